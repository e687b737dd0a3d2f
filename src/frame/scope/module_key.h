// The key under which the language switch knows a module: its file's base name without the version digit.
#pragma once

#include "host/text/wide_text.h"

namespace zwt {

/// The key of a module, and whether the language switch is asked for it.
struct ModuleKey {
  CString text;
  bool asksSwitch = false;

  bool operator==(const ModuleKey&) const = default;
};

/// Key of the module with this full file name, of which the first 1,023 characters count: lower case, what
/// stands between the last backslash and the first full stop after it, less one digit at the end. A name
/// without a backslash behind its first character, with nothing behind the last backslash, or without a full
/// stop behind the first character of the base name has the empty key, and the switch is not asked.
ModuleKey KeyOfModule(const CString& fileName);

}  // namespace zwt
