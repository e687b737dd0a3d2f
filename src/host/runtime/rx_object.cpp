// Run-time classes: a chain from each class to its base.
#include "host/runtime/rx_object.h"

bool AcRxClass::isDerivedFrom(const AcRxClass* other) const {
  for (const AcRxClass* step = this; step != nullptr; step = step->parent_) {
    if (step == other) return true;
  }
  return false;
}

AcRxObject::~AcRxObject() = default;

const AcRxClass* AcRxObject::desc() {
  static constexpr AcRxClass kClass(L"AcRxObject", nullptr);
  return &kClass;
}

const AcRxClass* AcRxObject::isA() const {
  return desc();
}
