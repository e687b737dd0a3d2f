// The lists of loaded and linked modules and the resource handle in force.
#include "host/runtime/loaded_module.h"

#include <algorithm>

namespace {

std::vector<HINSTANCE> loaded;
std::vector<HINSTANCE> linked;
HINSTANCE resources = nullptr;

}  // namespace

bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE module) {
  if (zwt::FindApplication(module) == nullptr) return false;
  state = {true, module};
  return true;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state) {
  state = {};
}

CDynLinkLibrary::CDynLinkLibrary(const AFX_EXTENSION_MODULE& state) : module_(state.hModule) {
  linked.push_back(module_);
}

CDynLinkLibrary::~CDynLinkLibrary() {
  const auto last = std::find(linked.rbegin(), linked.rend(), module_);
  if (last != linked.rend()) linked.erase(std::next(last).base());
}

HINSTANCE AfxGetResourceHandle() {
  return resources;
}
void AfxSetResourceHandle(HINSTANCE module) {
  resources = module;
}

namespace zwt {

HINSTANCE FindApplication(const void* appId) {
  const auto found = std::find(loaded.begin(), loaded.end(), appId);
  return found == loaded.end() ? nullptr : *found;
}

CString FileNameOfModule(HINSTANCE module) {
  const HINSTANCE known = FindApplication(module);
  return known == nullptr ? CString() : known->fileName;
}

const std::vector<HINSTANCE>& LinkedModules() {
  return linked;
}
const std::vector<HINSTANCE>& LoadedModules() {
  return loaded;
}

void EnterModule(LoadedModule& module) {
  loaded.push_back(&module);
}

void ForgetModule(const LoadedModule& module) {
  std::erase(loaded, &module);
  std::erase(linked, &module);
  if (resources == &module) resources = nullptr;
}

}  // namespace zwt
