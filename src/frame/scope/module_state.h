// What the module knows of itself from its load to its unload.
#pragma once

#include <memory>

#include "host/runtime/language_switch.h"
#include "host/runtime/loaded_module.h"

namespace zwt {

struct ModuleState {
  HINSTANCE handle = nullptr;      // also the handle of the module's resources
  AFX_EXTENSION_MODULE extension;  // the dialog framework's record of the module
  std::unique_ptr<CDynLinkLibrary> link;
  ZcDtDictionary* language = nullptr;  // the language switch's answer; null before it has answered
};

/// The state of this module.
ModuleState& ThisModule();

/// The module's language dictionary. As long as there is none the language switch is asked for it, by the key
/// of the module's file; null where it has none either.
ZcDtDictionary* ModuleLanguage();

}  // namespace zwt
