// Wide strings and UTF-8. Everything inside is wide text, everything outside (files, terminals, JSON) is
// bytes.
#pragma once

#include <string>
#include <string_view>

/// The platform's wide string.
using CString = std::wstring;

namespace zwt {

/// UTF-8 bytes of a wide text. Lone surrogates become U+FFFD.
std::string Utf8FromWide(std::wstring_view text);

/// Wide text of UTF-8 bytes. Each byte that is not part of valid UTF-8 becomes U+FFFD.
std::wstring WideFromUtf8(std::string_view bytes);

/// True if the bytes are valid UTF-8 throughout.
bool IsUtf8(std::string_view bytes);

}  // namespace zwt
