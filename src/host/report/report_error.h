// What the word processor documents report when they cannot be read or written.
#pragma once

#include <stdexcept>

namespace zwt {

/// A template or report that cannot be used; what() is one line with the file and the reason, in UTF-8.
class ReportError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace zwt
