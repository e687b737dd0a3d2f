// From a file name to a key, step by step.
#include "frame/scope/module_key.h"

#include <algorithm>

namespace zwt {

namespace {

constexpr std::size_t kLongestFileName = 1023;

/// Only the letters of the module's own name matter: no locale is asked about the others.
wchar_t FoldCase(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

/// Found, and behind the first character.
bool IsInside(std::size_t position) {
  return position != CString::npos && position > 0;
}

}  // namespace

ModuleKey KeyOfModule(const CString& fileName) {
  CString name = fileName.substr(0, kLongestFileName);
  std::transform(name.begin(), name.end(), name.begin(), FoldCase);

  const std::size_t backslash = name.rfind(L'\\');
  if (!IsInside(backslash) || backslash + 1 == name.size()) return {};
  name.erase(0, backslash + 1);

  const std::size_t fullStop = name.find(L'.');
  if (!IsInside(fullStop)) return {};
  name.erase(fullStop);

  if (IsDigit(name.back())) name.pop_back();
  return {name, true};
}

}  // namespace zwt
