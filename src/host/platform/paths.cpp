// Paths and wide text. The standard's own conversion by way of 32-bit characters is used for whole names:
// unlike that of wide characters it never looks at the locale. What it refuses is handled here.
#include "host/platform/paths.h"

#include <algorithm>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace zwt {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

#ifdef _WIN32

std::filesystem::path PathOfModule(HMODULE module) {
  std::wstring name(32768, L'\0');
  name.resize(GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())));
  return std::filesystem::canonical(name);
}

#else

constexpr wchar_t kFirstEscape = 0xDC80;
constexpr wchar_t kLastEscape = 0xDCFF;

bool IsEscapedByte(wchar_t c) {
  return c >= kFirstEscape && c <= kLastEscape;
}

bool IsCharacter(wchar_t c) {
  const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
  return c > 0 && c <= 0x10FFFF && !surrogate;
}

static_assert(sizeof(wchar_t) == sizeof(char32_t), "wide text holds whole characters on this system");

std::string BytesOfPlainText(std::wstring text) {
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return !IsCharacter(c); }, kReplacement);
  return std::filesystem::path(std::u32string(text.begin(), text.end())).string();
}

/// Bytes of a name that is not valid UTF-8, as characters: ASCII as it stands, the others escaped.
std::wstring EscapedText(const std::string& bytes) {
  std::wstring text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += byte < 0x80 ? static_cast<wchar_t>(byte) : static_cast<wchar_t>(kFirstEscape + (byte - 0x80));
  }
  return text;
}

#endif

}  // namespace

#ifdef _WIN32

std::filesystem::path PathFromText(std::wstring_view text) {
  std::wstring name(text);
  std::replace(name.begin(), name.end(), L'/', L'\\');
  std::replace(name.begin(), name.end(), L'\0', kReplacement);
  return name;
}

std::wstring TextFromPath(const std::filesystem::path& path) {
  return path.wstring();
}

std::filesystem::path HostDirectory() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&HostDirectory), &module);
  return PathOfModule(module).parent_path();
}

std::filesystem::path ProgramDirectory() {
  return PathOfModule(nullptr).parent_path();
}

#else

std::filesystem::path PathFromText(std::wstring_view text) {
  std::wstring name(text);
  std::replace(name.begin(), name.end(), L'\\', L'/');
  std::string bytes;
  for (auto from = name.begin(); from != name.end();) {
    if (IsEscapedByte(*from)) {
      bytes += static_cast<char>(*from - kFirstEscape + 0x80);
      ++from;
      continue;
    }
    const auto to = std::find_if(from, name.end(), IsEscapedByte);
    bytes += BytesOfPlainText({from, to});
    from = to;
  }
  return bytes;
}

std::wstring TextFromPath(const std::filesystem::path& path) {
  std::u32string characters;
  try {
    characters = path.u32string();
  } catch (const std::system_error&) {
    return EscapedText(path.native());
  }
  const std::wstring text(characters.begin(), characters.end());
  const bool readsBack = std::all_of(text.begin(), text.end(), IsCharacter);
  return readsBack ? text : EscapedText(path.native());
}

std::filesystem::path HostDirectory() {
  Dl_info info{};
  // The address of a static function: a library may bind the address of an exported one to the program's own.
  dladdr(reinterpret_cast<const void*>(&EscapedText), &info);
  return std::filesystem::canonical(info.dli_fname).parent_path();
}

std::filesystem::path ProgramDirectory() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

#endif

std::wstring BackslashTextFromPath(const std::filesystem::path& path) {
  std::wstring text = TextFromPath(path);
  std::replace(text.begin(), text.end(), L'/', L'\\');
  return text;
}

}  // namespace zwt
