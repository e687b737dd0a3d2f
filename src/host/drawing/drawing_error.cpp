#include "host/drawing/drawing_error.h"

#include <array>
#include <cstdio>

#include "host/text/wide_text.h"

namespace zwt {
namespace {

constexpr std::size_t kLongestQuote = 40;

std::string Place(std::int64_t line, const std::string& reason) {
  return line > 0 ? "line " + std::to_string(line) + ": " + reason : reason;
}

}  // namespace

DrawingError::DrawingError(std::int64_t line, const std::string& reason)
    : std::runtime_error(Place(line, reason)), line_(line) {}

DrawingError DrawingError::In(const std::string& file) const {
  return {file + ": " + what(), line_};
}

std::string Quoted(std::string_view bytes) {
  const std::string_view shown = bytes.substr(0, kLongestQuote);
  const bool readable = IsUtf8(shown);
  std::string text = "\"";
  for (const char byte : shown) {
    const auto value = static_cast<unsigned char>(byte);
    if (value >= 0x20 && value != 0x7F && (value < 0x80 || readable)) {
      text.push_back(byte);
      continue;
    }
    std::array<char, 8> escape{};
    std::snprintf(escape.data(), escape.size(), "\\x%02X", static_cast<unsigned>(value));
    text += escape.data();
  }
  text += bytes.size() > kLongestQuote ? "...\"" : "\"";
  return text;
}

}  // namespace zwt
