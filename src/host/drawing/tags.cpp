#include "host/drawing/tags.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zwt {
namespace {

/// Plain decimal numbers, as nearly all are: up to 15 digits and a point. Both the digits as a whole number
/// and the power of ten are exact doubles then, and one division rounds as it must.
bool ParsePlain(std::string_view text, double& number) {
  static constexpr std::array<double, 16> kPowers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool negative = !text.empty() && text[0] == '-';
  if (negative) text.remove_prefix(1);
  if (text.empty() || text.size() > 16) return false;
  std::int64_t digits = 0;
  std::size_t behindPoint = 0;
  bool point = false;
  for (const char letter : text) {
    if (letter == '.' && !point) {
      point = true;
    } else if (letter >= '0' && letter <= '9') {
      digits = digits * 10 + (letter - '0');
      behindPoint += point ? 1 : 0;
    } else {
      return false;
    }
  }
  if (text.size() - (point ? 1 : 0) > 15 || (point && text.size() == 1)) return false;
  const double value = static_cast<double>(digits) / kPowers[behindPoint];
  number = negative ? -value : value;
  return true;
}

}  // namespace

void TagReader::FailCode() const {
  const auto* lineEnd =
      static_cast<const char*>(std::memchr(at_, '\n', static_cast<std::size_t>(end_ - at_)));
  const char* stop = lineEnd == nullptr ? end_ : lineEnd;
  const std::string_view found(at_, static_cast<std::size_t>(stop - at_));
  throw DrawingError(line_, "expected a group code, found " + Quoted(Trimmed(found)));
}

void TagReader::FailCut() const {
  throw DrawingError(line_ + 1, "expected a value, found the end of the file");
}

std::vector<Tag> SplitTags(std::string_view bytes) {
  std::vector<Tag> tags;
  TagReader reader(bytes);
  Tag tag;
  while (reader.Next(tag)) tags.push_back(tag);
  return tags;
}

bool ParseReal(std::string_view value, double& number) {
  std::string_view text = Trimmed(value);
  if (ParsePlain(text, number)) return true;
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double parsed = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
  if (stop != text.data() + text.size()) return false;
  const bool tooSmall = error == std::errc::result_out_of_range &&
                        (text.find("e-") != text.npos || text.find("E-") != text.npos);
  if ((error != std::errc() && !tooSmall) || !std::isfinite(parsed)) return false;
  number = tooSmall ? 0 : parsed;
  return true;
}

bool ParseInteger(std::string_view value, std::int64_t& number) {
  std::string_view text = Trimmed(value);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  std::int64_t parsed = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
  if (error != std::errc() || stop != text.data() + text.size()) return false;
  number = parsed;
  return true;
}

bool ParseHandle(std::string_view value, std::uint64_t& handle) {
  const std::string_view text = Trimmed(value);
  std::uint64_t parsed = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), parsed, 16);
  if (error != std::errc() || stop != text.data() + text.size() || parsed == 0) return false;
  handle = parsed;
  return true;
}

std::string HandleText(std::uint64_t handle) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), handle, 16).ptr;
  std::string text(digits.data(), end);
  for (char& letter : text) {
    if (letter >= 'a') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return text;
}

std::string RealText(double number) {
  if (number == 0) return "0.0";
  std::array<char, 40> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  std::string text(digits.data(), end);
  if (text.find_first_of(".en") == std::string::npos) text += ".0";
  return text;
}

TagWriter& TagWriter::Text(std::int32_t code, std::string_view value) {
  const std::string digits = std::to_string(code);
  if (digits.size() < 3) bytes_.append(3 - digits.size(), ' ');
  bytes_ += digits;
  bytes_ += lineEnd_;
  bytes_ += value;
  bytes_ += lineEnd_;
  return *this;
}

TagWriter& TagWriter::Point(std::int32_t code, double x, double y, double z) {
  return Real(code, x).Real(code + 10, y).Real(code + 20, z);
}

}  // namespace zwt
