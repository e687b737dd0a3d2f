#include "host/drawing/text_encoding.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <utility>

#include "host/text/wide_text.h"

namespace zwt {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

bool IsHigh(char32_t code) {
  return code >= 0xD800 && code < 0xDC00;
}
bool IsLow(char32_t code) {
  return code >= 0xDC00 && code < 0xE000;
}

/// Value of hexadecimal digits at the front of a text; -1 where there are too few.
std::int32_t HexDigits(std::wstring_view text, std::size_t count) {
  if (text.size() < count) return -1;
  std::int32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const wchar_t letter = text[i];
    if (letter >= L'0' && letter <= L'9') {
      value = value * 16 + static_cast<std::int32_t>(letter - L'0');
    } else if (letter >= L'A' && letter <= L'F') {
      value = value * 16 + static_cast<std::int32_t>(letter - L'A') + 10;
    } else if (letter >= L'a' && letter <= L'f') {
      value = value * 16 + static_cast<std::int32_t>(letter - L'a') + 10;
    } else {
      return -1;
    }
  }
  return value;
}

/// Name of the code page of the digit in \M+n; empty where there is none. The fourth, Johab, is not read.
std::string_view EscapePage(wchar_t digit) {
  static constexpr std::array<std::string_view, 5> kPages = {"ANSI_932", "ANSI_950", "ANSI_949", "ANSI_1361",
                                                             "ANSI_936"};
  if (digit < L'1' || digit > L'5') return {};
  return kPages[static_cast<std::size_t>(digit - L'1')];
}

struct Escape {
  char32_t character = 0;
  std::size_t length = 0;  // 0: no escape here
};

Escape UnicodeEscape(std::wstring_view text) {
  const std::int32_t code = HexDigits(text.substr(3), 4);
  return code < 0 ? Escape{} : Escape{static_cast<char32_t>(code), 7};
}

Escape MultiByteEscape(std::wstring_view text) {
  if (text.size() < 8) return {};
  const std::int32_t code = HexDigits(text.substr(4), 4);
  const std::string_view name = EscapePage(text[3]);
  if (code < 0 || name.empty()) return {};
  std::optional<CodePage> page = CodePage::Open(name);
  if (!page.has_value()) return {kReplacement, 8};
  std::string bytes;
  if (code > 0xFF) bytes.push_back(static_cast<char>(code >> 8));
  bytes.push_back(static_cast<char>(code & 0xFF));
  const CString decoded = page->Decode(bytes).text;
  return {decoded.size() == 1 ? static_cast<char32_t>(decoded[0]) : kReplacement, 8};
}

/// The escape at the front of a text.
Escape ReadEscape(std::wstring_view text) {
  if (text.size() < 7 || text[0] != L'\\' || text[2] != L'+') return {};
  if (text[1] == L'U') return UnicodeEscape(text);
  if (text[1] == L'M') return MultiByteEscape(text);
  return {};
}

void AppendWide(std::wstring& text, char32_t character) {
  if (kWideIsUtf16 && character >= 0x10000) {
    text.push_back(static_cast<wchar_t>(0xD800U + ((character - 0x10000U) >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00U + ((character - 0x10000U) & 0x3FFU)));
    return;
  }
  text.push_back(static_cast<wchar_t>(character));
}

std::wstring ReplaceEscapes(std::wstring_view text) {
  std::wstring plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    Escape escape = ReadEscape(text.substr(i));
    if (escape.length == 0) {
      plain.push_back(text[i++]);
      continue;
    }
    i += escape.length;
    if (IsHigh(escape.character)) {
      const Escape low = ReadEscape(text.substr(i));
      if (low.length > 0 && IsLow(low.character)) {
        escape.character = 0x10000U + ((escape.character - 0xD800U) << 10) + (low.character - 0xDC00U);
        i += low.length;
      }
    }
    const bool lone = IsHigh(escape.character) || IsLow(escape.character);
    AppendWide(plain, lone ? kReplacement : escape.character);
  }
  return plain;
}

void AppendEscape(char32_t character, std::string& bytes) {
  if (character >= 0x10000) {
    AppendEscape(0xD800U + ((character - 0x10000U) >> 10), bytes);
    AppendEscape(0xDC00U + ((character - 0x10000U) & 0x3FFU), bytes);
    return;
  }
  std::array<char, 12> escape{};
  std::snprintf(escape.data(), escape.size(), "\\U+%04X", static_cast<unsigned>(character));
  bytes += escape.data();
}

/// The character at the front of a text (not empty); units says how many elements it takes.
char32_t ReadWide(std::wstring_view text, std::size_t& units) {
  units = 1;
  const auto code = static_cast<char32_t>(text[0]);
  if (kWideIsUtf16 && IsHigh(code) && text.size() > 1 && IsLow(static_cast<char32_t>(text[1]))) {
    units = 2;
    return 0x10000U + ((code - 0xD800U) << 10) + (static_cast<char32_t>(text[1]) - 0xDC00U);
  }
  if (IsHigh(code) || IsLow(code) || code > 0x10FFFF) return kReplacement;
  return code;
}

}  // namespace

TextEncoding::TextEncoding(CodePage page) : page_(std::make_shared<CodePage>(std::move(page))) {}

std::wstring TextEncoding::Decode(std::string_view bytes) const {
  std::wstring text = IsUtf8() ? WideFromUtf8(bytes) : page_->Decode(bytes).text;
  return text.find(L'\\') == std::wstring::npos ? text : ReplaceEscapes(text);
}

std::string TextEncoding::Encode(std::wstring_view text) const {
  std::string bytes;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t units = 1;
    const char32_t character = ReadWide(text.substr(i), units);
    const bool plain = character >= 0x20 && character < 0x7F && character != '\\';
    if (plain) {
      bytes.push_back(static_cast<char>(character));
    } else if (character < 0x20 || character == 0x7F || ReadEscape(text.substr(i)).length > 0 ||
               !AppendPlain(text.substr(i, units), bytes)) {
      AppendEscape(character, bytes);
    }
    i += units;
  }
  return bytes;
}

bool TextEncoding::AppendPlain(std::wstring_view character, std::string& bytes) const {
  if (!IsUtf8()) return page_->Encode(character, bytes) == character.size();
  bytes += Utf8FromWide(character);
  return true;
}

}  // namespace zwt
