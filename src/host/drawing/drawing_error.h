// What a reader of drawings throws. The place is a line of the file, since that is what a user can look up.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zwt {

/// A drawing that cannot be used as it stands; what() is one line: "line 12: expected a group code, found
/// "x"".
class DrawingError : public std::runtime_error {
 public:
  /// line counts from 1; 0 where the file as a whole is meant.
  DrawingError(std::int64_t line, const std::string& reason);

  std::int64_t Line() const { return line_; }

  /// The same error, with the name of the file in front.
  DrawingError In(const std::string& file) const;

 private:
  DrawingError(const std::string& text, std::int64_t line) : std::runtime_error(text), line_(line) {}

  std::int64_t line_;
};

/// A piece of a file for a message: in quotes, cut to a few characters, with nothing unprintable in it.
std::string Quoted(std::string_view bytes);

}  // namespace zwt
