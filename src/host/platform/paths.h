// Paths as the module writes them (wide text, either separator) and as the system takes them. What the names
// mean is no business of this file, nor is reading or writing what they name.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zwt {

/// Path of a wide text. Both '\' and '/' separate on every system. A character that no file name can hold
/// (zero, a lone surrogate that does not come from TextFromPath) becomes U+FFFD.
std::filesystem::path PathFromText(std::wstring_view text);

/// Wide text of a path, with the separator of the system. A name that is not valid UTF-8 keeps its bytes as
/// lone surrogates U+DC80 to U+DCFF, so that PathFromText gives the very same path again.
std::wstring TextFromPath(const std::filesystem::path& path);

/// As TextFromPath, with backslashes throughout: the form in which the module looks at paths.
std::wstring BackslashTextFromPath(const std::filesystem::path& path);

/// Folder of the library that holds this code (the host), links resolved.
std::filesystem::path HostDirectory();

/// Folder of the running program, links resolved.
std::filesystem::path ProgramDirectory();

}  // namespace zwt
