// Base of the objects that the system registry hands out: they know their class at run time, so that who
// fetches one by name can make sure of what it is.
#pragma once

/// A class as a value: its name and the class that it derives from.
class AcRxClass {
 public:
  constexpr AcRxClass(const wchar_t* name, const AcRxClass* parent) : name_(name), parent_(parent) {}

  const wchar_t* name() const { return name_; }
  /// Whether this is the other class or derives from it.
  bool isDerivedFrom(const AcRxClass* other) const;

 private:
  const wchar_t* name_;
  const AcRxClass* parent_;
};

/// A class that derives from it names itself by desc() and isA(), and gets its cast from AcRxCast.
class AcRxObject {
 public:
  AcRxObject() = default;
  AcRxObject(const AcRxObject&) = delete;
  AcRxObject& operator=(const AcRxObject&) = delete;
  virtual ~AcRxObject();

  static const AcRxClass* desc();
  virtual const AcRxClass* isA() const;
  bool isKindOf(const AcRxClass* other) const { return isA()->isDerivedFrom(other); }
};

/// The object as one of class T, null where it is none or is null itself.
template <typename T>
T* AcRxCast(AcRxObject* object) {
  const bool fits = object != nullptr && object->isKindOf(T::desc());
  return fits ? static_cast<T*>(object) : nullptr;
}
