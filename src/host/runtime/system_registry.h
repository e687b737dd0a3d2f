// The objects that a module finds by name: the dynamic linker, which keeps the loaded applications, and the
// command stack. Each is there from the start and for as long as the program runs.
#pragma once

#include <map>

#include "host/runtime/rx_object.h"
#include "host/text/wide_text.h"

/// System objects by name. It does not own them.
class AcRxDictionary : public AcRxObject {
 public:
  static const AcRxClass* desc();
  const AcRxClass* isA() const override { return desc(); }

  /// The object of a name, null where there is none.
  AcRxObject* at(const CString& name) const;
  void setAt(const CString& name, AcRxObject* object) { objects_[name] = object; }

 private:
  std::map<CString, AcRxObject*> objects_;
};

/// Takes note of what applications tell of themselves.
class AcRxDynamicLinker : public AcRxObject {
 public:
  static const AcRxClass* desc();
  const AcRxClass* isA() const override { return desc(); }

  /// The application works with any number of drawings. False for an application that is not loaded.
  bool registerAppMDIAware(void* appId);
};

/// Names in the registry.
inline constexpr const wchar_t* kDynamicLinkerName = L"DynamicLinker";
inline constexpr const wchar_t* kCommandStackName = L"ACAD_REGISTERED_COMMANDS";

/// The one registry of the program, never null.
AcRxDictionary* acrxSysRegistry();

/// Allows an application to be unloaded; before, it stays. False for an application that is not loaded.
bool acrxUnlockApplication(void* appId);
