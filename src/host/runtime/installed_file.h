// Files that come with the program, named by the wide texts in which the module forms their paths. What they
// hold is no business of this file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "host/platform/files.h"
#include "host/text/wide_text.h"

namespace zwt {

/// One file, which need not exist. Its path may have either separator.
class InstalledFile {
 public:
  explicit InstalledFile(const CString& path);

  /// All bytes. Throws FileError where the file cannot be read, is a folder or has more than `largest` bytes.
  std::string Read(std::size_t largest) const;

  /// How the file looks from outside. Nothing where it cannot be looked at, and where it was written so
  /// lately that a further write might look the same: who keeps what it read must then read again.
  std::optional<FileState> SettledState() const;

 private:
  std::filesystem::path path_;
};

}  // namespace zwt
