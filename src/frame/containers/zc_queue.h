// First-in first-out queue: the abstract operations, and their implementation on a ZcDList.
#pragma once

#include <cstdint>

#include "frame/containers/zc_dlist.h"

template <class T>
class ZcQuene {
 public:
  virtual void Reset() = 0;
  virtual std::int32_t GetLength() const = 0;
  /// Element `index` from the head, writable. At or above the length the queue is extended by default
  /// elements.
  virtual T& GetAt(std::int32_t index) = 0;
  /// Copies the element at either end; false when empty.
  virtual bool PeekHead(T& out) const = 0;
  virtual bool PeekTail(T& out) const = 0;
  /// Adds at the tail; false, and no change, if the length has reached the capacity.
  virtual bool Push(const T& value) = 0;
  /// Copies the head and deletes it; false when empty.
  virtual bool Pop(T& out) = 0;
  virtual ~ZcQuene() = default;

 protected:
  explicit ZcQuene(std::int32_t maxLength) : capacity(maxLength) {}
  ZcQuene(const ZcQuene&) = default;
  ZcQuene& operator=(const ZcQuene&) = default;

  bool IsFull() const { return capacity >= 0 && GetLength() >= capacity; }

 private:
  std::int32_t capacity;
};

template <class T>
class ZcListQuene : public ZcQuene<T> {
 public:
  /// A negative maxLength means no limit.
  explicit ZcListQuene(std::int32_t maxLength = -1) : ZcQuene<T>(maxLength) {}

  void Reset() override { list.Reset(); }
  std::int32_t GetLength() const override { return list.GetLength(); }
  T& GetAt(std::int32_t index) override { return list[index]; }
  bool PeekHead(T& out) const override { return Copy(list.GetFirst(), out); }
  bool PeekTail(T& out) const override { return Copy(list.GetLast(), out); }
  bool Push(const T& value) override {
    if (this->IsFull()) return false;
    list.Append(value);
    return true;
  }
  bool Pop(T& out) override {
    if (!PeekHead(out)) return false;
    list.DelHead();
    return true;
  }

 private:
  static bool Copy(const T* element, T& out) {
    if (element == nullptr) return false;
    out = *element;
    return true;
  }

  ZcDList<T> list;
};
