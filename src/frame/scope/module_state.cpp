// The one state, and how its language is found.
#include "frame/scope/module_state.h"

#include "frame/scope/module_key.h"

namespace zwt {

ModuleState& ThisModule() {
  static ModuleState state;
  return state;
}

ZcDtDictionary* ModuleLanguage() {
  ModuleState& module = ThisModule();
  if (module.language != nullptr) return module.language;
  const ModuleKey key = KeyOfModule(FileNameOfModule(module.handle));
  if (key.asksSwitch && g_pZaecLangSwitch != nullptr) module.language = g_pZaecLangSwitch->Lookup(key.text);
  return module.language;
}

}  // namespace zwt
