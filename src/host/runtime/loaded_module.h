// What the host keeps of a loaded module, and the framework calls by which a module makes itself and its
// resources known. Loading itself is module_runtime.h.
#pragma once

#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// A loaded module. Its address is both the handle and the application id that the module is given.
struct LoadedModule {
  CString fileName;         // with backslashes
  bool unlocked = false;    // may be unloaded
  bool registered = false;  // made its registration call on the dynamic linker
};

}  // namespace zwt

using HINSTANCE = zwt::LoadedModule*;

/// The framework's record of an extension module.
struct AFX_EXTENSION_MODULE {
  bool bInitialized = false;
  HINSTANCE hModule = nullptr;
};

/// Fills the record; false, and the record stays as it is, where no loaded module has the handle.
bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HINSTANCE module);
/// Empties the record.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

/// Links an extension module into the framework's search for resources for as long as it lives.
class CDynLinkLibrary {
 public:
  explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& state);
  CDynLinkLibrary(const CDynLinkLibrary&) = delete;
  CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;
  ~CDynLinkLibrary();

 private:
  HINSTANCE module_;
};

/// The module whose resources are in force, null where it is the program's own.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);

namespace zwt {

/// The handle that the loader gave to an application; null where it is not loaded.
HINSTANCE FindApplication(const void* appId);

/// Full file name of a module, with backslashes; empty for a module that is not loaded.
CString FileNameOfModule(HINSTANCE module);

/// The modules that are linked into the search for resources, the last linked one at the end.
const std::vector<HINSTANCE>& LinkedModules();

/// The loaded modules, in the order of loading.
const std::vector<HINSTANCE>& LoadedModules();

/// For the loader: a module comes, and everything that names it goes.
void EnterModule(LoadedModule& module);
void ForgetModule(const LoadedModule& module);

}  // namespace zwt
