// JSON pointers, with "~" and "/" escaped as RFC 6901 says.
#include "cli/script_error.h"

namespace zwt {

std::string PointerTo(const std::string& parent, std::string_view key) {
  std::string pointer = parent + '/';
  for (const char c : key) {
    if (c == '~') {
      pointer += "~0";
    } else if (c == '/') {
      pointer += "~1";
    } else {
      pointer += c;
    }
  }
  return pointer;
}

std::string PointerTo(const std::string& parent, std::size_t index) {
  return parent + '/' + std::to_string(index);
}

}  // namespace zwt
