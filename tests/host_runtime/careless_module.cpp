// A module for the loading tests. It prints every message that it gets, takes hold of everything that the
// host offers, and misbehaves as the variable ZWT_CARELESS says. It never cleans up.
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>

#include "host/runtime/command_line.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/language_switch.h"
#include "host/runtime/loaded_module.h"
#include "host/runtime/module_entry.h"
#include "host/runtime/system_registry.h"

class ZcDtDictionary {
 public:
  ~ZcDtDictionary() { acutPrintf(L"\ndictionary destroyed"); }
};

namespace {

bool Misbehaves(const std::string& how) {
  const char* asked = std::getenv("ZWT_CARELESS");
  return asked != nullptr && asked == how;
}

/// An exception whose code lies in the module.
class OwnFailure : public std::exception {
 public:
  explicit OwnFailure(std::string text) : text_(std::move(text)) {}
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string text_;
};

void Greet() {
  acutPrintf(L"\nhello");
}

void Fail() {
  throw OwnFailure("the command's own failure");
}

constexpr ZcCmdTable kTable[] = {{L"GREET", &Greet, 0}, {L"FAIL", &Fail, 0}};

AFX_EXTENSION_MODULE extension;
std::optional<CDynLinkLibrary> link;

void TakeHold(void* appId) {
  AfxInitExtensionModule(extension, zwt::FindApplication(appId));
  link.emplace(extension);
  AfxSetResourceHandle(extension.hModule);
  if (!Misbehaves("stay locked")) acrxUnlockApplication(appId);
  AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(kDynamicLinkerName))->registerAppMDIAware(appId);
  ZcDefineCommand(L"Careless", kTable, 2, 0);
  g_pZaecLangSwitch->SetMaker(
      {[] { return new ZcDtDictionary; }, [](ZcDtDictionary* dictionary) { delete dictionary; }});
  g_pCurModuleLang = g_pZaecLangSwitch->Lookup(L"careless");
}

}  // namespace

extern "C" std::int32_t acrxEntryPoint(std::int32_t message, void* appId);
extern "C" std::int32_t acrxGetApiVersion();

std::int32_t acrxEntryPoint(std::int32_t message, void* appId) {
  acutPrintf(L"\nmessage %d", message);
  if (message == AcRx::kInitAppMsg) {
    TakeHold(appId);
    if (Misbehaves("throw on load")) throw OwnFailure("own failure on load");
    if (Misbehaves("throw a number on load")) throw 1;
    if (Misbehaves("refuse to load")) return 5;
  }
  if (message == AcRx::kUnloadAppMsg && Misbehaves("throw on unload"))
    throw OwnFailure("own failure on unload");
  return 0;
}

std::int32_t acrxGetApiVersion() {
  return zwt::kHostApiVersion + (Misbehaves("be of another edition") ? 1 : 0);
}
