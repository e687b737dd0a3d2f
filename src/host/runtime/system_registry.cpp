// The registry and the objects in it.
#include "host/runtime/system_registry.h"

#include "host/runtime/command_stack.h"
#include "host/runtime/loaded_module.h"

namespace {

/// Everything that the registry names, made together so that none can be missing.
struct SystemObjects {
  SystemObjects() {
    registry.setAt(kDynamicLinkerName, &linker);
    registry.setAt(kCommandStackName, &commands);
  }

  AcRxDictionary registry;
  AcRxDynamicLinker linker;
  AcEdCommandStack commands;
};

}  // namespace

const AcRxClass* AcRxDictionary::desc() {
  static const AcRxClass kClass(L"AcRxDictionary", AcRxObject::desc());
  return &kClass;
}

AcRxObject* AcRxDictionary::at(const CString& name) const {
  const auto found = objects_.find(name);
  return found == objects_.end() ? nullptr : found->second;
}

const AcRxClass* AcRxDynamicLinker::desc() {
  static const AcRxClass kClass(L"AcRxDynamicLinker", AcRxObject::desc());
  return &kClass;
}

bool AcRxDynamicLinker::registerAppMDIAware(void* appId) {
  zwt::LoadedModule* module = zwt::FindApplication(appId);
  if (module == nullptr) return false;
  module->registered = true;
  return true;
}

AcRxDictionary* acrxSysRegistry() {
  static SystemObjects objects;
  return &objects.registry;
}

bool acrxUnlockApplication(void* appId) {
  zwt::LoadedModule* module = zwt::FindApplication(appId);
  if (module == nullptr) return false;
  module->unlocked = true;
  return true;
}
