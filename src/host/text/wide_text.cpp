#include "host/text/wide_text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zwt {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

bool IsSurrogate(char32_t code) {
  return code >= 0xD800 && code <= 0xDFFF;
}
bool IsHighSurrogate(char32_t code) {
  return code >= 0xD800 && code <= 0xDBFF;
}
bool IsLowSurrogate(char32_t code) {
  return code >= 0xDC00 && code <= 0xDFFF;
}

void AppendUtf8(std::string& bytes, char32_t code) {
  const auto trail = [&bytes, code](int shift) {
    bytes.push_back(static_cast<char>(0x80U | ((code >> shift) & 0x3FU)));
  };
  if (code < 0x80) {
    bytes.push_back(static_cast<char>(code));
  } else if (code < 0x800) {
    bytes.push_back(static_cast<char>(0xC0U | (code >> 6)));
    trail(0);
  } else if (code < 0x10000) {
    bytes.push_back(static_cast<char>(0xE0U | (code >> 12)));
    trail(6);
    trail(0);
  } else {
    bytes.push_back(static_cast<char>(0xF0U | (code >> 18)));
    trail(12);
    trail(6);
    trail(0);
  }
}

void AppendWide(std::wstring& text, char32_t code) {
  if constexpr (kWideIsUtf16) {
    if (code >= 0x10000) {
      text.push_back(static_cast<wchar_t>(0xD800U + ((code - 0x10000U) >> 10)));
      text.push_back(static_cast<wchar_t>(0xDC00U + ((code - 0x10000U) & 0x3FFU)));
      return;
    }
  }
  text.push_back(static_cast<wchar_t>(code));
}

/// The character at the front of a wide text (not empty), and how many units it takes.
char32_t ReadWide(std::wstring_view text, std::size_t& units) {
  units = 1;
  const auto code = static_cast<char32_t>(text[0]);
  if (IsHighSurrogate(code) && kWideIsUtf16 && text.size() > 1) {
    const auto low = static_cast<char32_t>(text[1]);
    if (IsLowSurrogate(low)) {
      units = 2;
      return 0x10000U + ((code - 0xD800U) << 10) + (low - 0xDC00U);
    }
  }
  return IsSurrogate(code) || code > 0x10FFFF ? kReplacement : code;
}

/// Length in bytes of the UTF-8 character that this byte opens, 0 if it opens none.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

/// Reads one well-formed character at the front of the bytes (not empty). False if there is none.
bool ReadUtf8(std::string_view bytes, char32_t& code, std::size_t& length) {
  constexpr std::array<char32_t, 5> kLowest = {0, 0, 0x80, 0x800, 0x10000};
  constexpr std::array<unsigned, 5> kLeadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
  const auto lead = static_cast<unsigned char>(bytes[0]);
  length = SequenceLength(lead);
  if (length == 0 || length > bytes.size()) return false;
  code = lead & kLeadBits[length];
  for (std::size_t i = 1; i < length; ++i) {
    const auto trail = static_cast<unsigned char>(bytes[i]);
    if ((trail & 0xC0U) != 0x80U) return false;
    code = (code << 6) | (trail & 0x3FU);
  }
  return code >= kLowest[length] && code <= 0x10FFFF && !IsSurrogate(code);
}

}  // namespace

std::string Utf8FromWide(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    std::size_t units = 0;
    AppendUtf8(bytes, ReadWide(text, units));
    text.remove_prefix(units);
  }
  return bytes;
}

std::wstring WideFromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    char32_t code = kReplacement;
    std::size_t length = 1;
    if (!ReadUtf8(bytes, code, length)) {
      code = kReplacement;
      length = 1;
    }
    AppendWide(text, code);
    bytes.remove_prefix(length);
  }
  return text;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    char32_t code = 0;
    std::size_t length = 0;
    if (!ReadUtf8(bytes, code, length)) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

}  // namespace zwt
