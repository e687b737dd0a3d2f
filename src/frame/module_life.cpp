// Load and unload in the order that the host expects.
#include "frame/module_life.h"

#include "data/dictionary.h"
#include "frame/commands.h"
#include "frame/panels.h"
#include "frame/scope/module_state.h"
#include "host/runtime/system_registry.h"

namespace zwt {

namespace {

void RegisterApplication(void* appId) {
  auto* linker = AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(kDynamicLinkerName));
  if (linker != nullptr) linker->registerAppMDIAware(appId);
}

void RemoveCommands() {
  auto* commands = AcRxCast<AcEdCommandStack>(acrxSysRegistry()->at(kCommandStackName));
  if (commands != nullptr) commands->removeGroup(kCommandGroup);
}

/// The language switch keeps the dictionaries, this module alone knows how they are made and destroyed.
constexpr ZaecDictionaryMaker kDictionaryMaker = {[] { return new ZcDtDictionary(nullptr, nullptr); },
                                                  [](ZcDtDictionary* dictionary) { delete dictionary; }};

}  // namespace

void OnLoad(void* appId) {
  ModuleState& module = ThisModule();
  const HINSTANCE handle = FindApplication(appId);
  const bool initialised = AfxInitExtensionModule(module.extension, handle);
  module.handle = handle;
  if (initialised) module.link = std::make_unique<CDynLinkLibrary>(module.extension);
  acrxUnlockApplication(appId);
  RegisterApplication(appId);
  const auto table = CommandTable();
  ZcDefineCommand(kCommandGroup, table.data(), static_cast<int>(table.size()), 0);
  if (g_pZaecLangSwitch != nullptr) g_pZaecLangSwitch->SetMaker(kDictionaryMaker);
  for (const PanelTemplate* panel : ModulePanels()) RegisterPanel(*panel);
}

void OnUnload() {
  for (const PanelTemplate* panel : ModulePanels()) UnregisterPanel(*panel);
  if (g_pZaecLangSwitch != nullptr) g_pZaecLangSwitch->Withdraw();
  RemoveCommands();
  ModuleState& module = ThisModule();
  module.link.reset();
  AfxTermExtensionModule(module.extension);
  module = {};
}

}  // namespace zwt
