// The pipe materials of a material file, as they stand in it. Choosing among them is the calculations'
// business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "host/runtime/installed_file.h"
#include "host/text/wide_text.h"

namespace zwt {

struct PipeSize {
  std::int32_t diameter = 0;  // nominal, mm
  double inner = 0;           // calculation inner diameter, mm
  double outer = 0;           // mm, 0 where the file does not say
};

struct PipeMaterial {
  CString name;
  CString prefix;                     // before a diameter in an annotation
  std::optional<double> coefficient;  // Hazen-Williams C; drains have none
  std::vector<PipeSize> sizes;        // in the order of the file
};

/// The materials of a file's bytes. Throws DataFileError where they are no material file.
std::vector<PipeMaterial> ReadMaterials(std::string_view bytes);

/// The materials of one file, read again whenever the file has changed. One section asks three times, and a
/// drawing has thousands of sections.
class MaterialCatalogue {
 public:
  /// The material of that name in the file as it is now, null if there is none or the file cannot be read.
  /// Good until the next call.
  const PipeMaterial* Find(const CString& path, const CString& name);

 private:
  void Open(const CString& path);
  void Refresh();

  CString path_;
  InstalledFile file_{L""};
  std::optional<FileState> state_;  // of the file when it was read; nothing if it has to be read again
  std::vector<PipeMaterial> materials_;
};

}  // namespace zwt
