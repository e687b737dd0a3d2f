// The tags of drawing files: pairs of lines, a group code and a value. Here they are cut out of the bytes and
// put into them; what they mean is told elsewhere.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "host/drawing/drawing_error.h"

namespace zwt {

/// One group: its code, and its value without the line end, blanks kept.
struct Tag {
  std::int32_t code = 0;
  std::string_view value;
};

/// Cuts tags out of bytes, one after another. The bytes must outlive the tags.
class TagReader {
 public:
  /// start: where in the bytes the first tag begins.
  explicit TagReader(std::string_view bytes, std::size_t start = 0)
      : begin_(bytes.data()), at_(begin_ + start), end_(begin_ + bytes.size()) {}

  /// Takes the next tag; false at the end of the bytes. Throws DrawingError on a line that is no group code
  /// and on a code without a value line.
  bool Next(Tag& tag) {
    if (at_ == end_) return false;
    const char* at = ReadCode(tag.code);
    if (at == end_) FailCut();
    const auto* lineEnd =
        static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end_ - at)));
    const char* valueEnd = lineEnd == nullptr ? end_ : lineEnd;
    at_ = lineEnd == nullptr ? end_ : lineEnd + 1;
    if (valueEnd != at && valueEnd[-1] == '\r') --valueEnd;
    tag.value = std::string_view(at, static_cast<std::size_t>(valueEnd - at));
    line_ += 2;
    return true;
  }

  /// Where the next tag begins, in bytes.
  std::size_t Position() const { return static_cast<std::size_t>(at_ - begin_); }

  /// Line of the next tag's group code.
  std::int64_t Line() const { return line_; }

 private:
  /// Reads the code line; gives the start of the value line.
  const char* ReadCode(std::int32_t& code) {
    const char* at = at_;
    while (at != end_ && (*at == ' ' || *at == '\t')) ++at;
    const bool negative = at != end_ && *at == '-';
    if (negative) ++at;
    const char* digits = at;
    std::int32_t value = 0;
    while (at != end_ && *at >= '0' && *at <= '9' && at - digits < 6) value = value * 10 + (*at++ - '0');
    if (at == digits) FailCode();
    while (at != end_ && (*at == ' ' || *at == '\t' || *at == '\r')) ++at;
    if (at == end_) return at;
    if (*at != '\n') FailCode();
    code = negative ? -value : value;
    return at + 1;
  }

  [[noreturn]] void FailCode() const;
  [[noreturn]] void FailCut() const;

  const char* begin_;
  const char* at_;
  const char* end_;
  std::int64_t line_ = 1;
};

/// All tags of the bytes of one entity or table entry, which were read before and are known to be whole.
std::vector<Tag> SplitTags(std::string_view bytes);

/// A value without the blanks around it: keywords, names, numbers and handles are read so.
inline std::string_view Trimmed(std::string_view value) {
  const auto blank = [](char letter) { return letter == ' ' || letter == '\t' || letter == '\r'; };
  while (!value.empty() && blank(value.front())) value.remove_prefix(1);
  while (!value.empty() && blank(value.back())) value.remove_suffix(1);
  return value;
}

/// Value as a finite number, or false. Blanks around it and a leading + are allowed.
bool ParseReal(std::string_view value, double& number);

/// Value as a whole number, or false.
bool ParseInteger(std::string_view value, std::int64_t& number);

/// Value as a handle (hexadecimal, no sign), or false; 0 is no handle.
bool ParseHandle(std::string_view value, std::uint64_t& handle);

/// A handle as files show it: upper case, without leading zeros.
std::string HandleText(std::uint64_t handle);

/// A number as files show it: the shortest text that reads back as the number, always with a fraction or
/// exponent.
std::string RealText(double number);

/// Writes tags one after another, with the line end of the drawing.
class TagWriter {
 public:
  explicit TagWriter(std::string_view lineEnd) : lineEnd_(lineEnd) {}

  TagWriter& Text(std::int32_t code, std::string_view value);
  TagWriter& Real(std::int32_t code, double value) { return Text(code, RealText(value)); }
  TagWriter& Integer(std::int32_t code, std::int64_t value) { return Text(code, std::to_string(value)); }
  TagWriter& Handle(std::int32_t code, std::uint64_t value) { return Text(code, HandleText(value)); }
  /// Three reals under code, code + 10 and code + 20.
  TagWriter& Point(std::int32_t code, double x, double y, double z);

  const std::string& Bytes() const { return bytes_; }
  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
  std::string_view lineEnd_;
};

}  // namespace zwt
