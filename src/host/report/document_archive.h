// The archive that a word processor document is: named parts, read whole and written whole. Parts that nobody
// touches are written back with the same bytes in the same order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zwt {

class DocumentArchive {
 public:
  struct Part {
    std::string name;
    std::string bytes;
  };

  /// Reads an archive from its bytes. Throws ReportError if they are none, if a part is damaged, or if the
  /// parts together are larger than any document of ours (256 MiB).
  explicit DocumentArchive(std::string_view bytes);

  /// Null if there is no such part.
  const Part* Find(std::string_view name) const;
  const std::vector<Part>& Parts() const { return parts_; }

  /// Replaces a part's bytes, or adds the part at the end.
  void Put(const std::string& name, std::string bytes);

  /// The archive as bytes. Throws ReportError if it cannot be packed.
  std::string Pack() const;

 private:
  std::vector<Part> parts_;
};

}  // namespace zwt
