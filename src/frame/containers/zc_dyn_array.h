// Array of the container family: elements side by side, with slack for growth. Slots behind the length always
// hold default elements, so that growing never brings a deleted element back.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "frame/containers/zc_dyn_array_base.h"

template <class T>
class ZcDynArray : public ZcDynArrayBase<T> {
 public:
  using typename ZcDynArrayBase<T>::Compare;

  /// Room for `spaceSize` elements, but length 0. allocUnit is the slack that growth adds.
  explicit ZcDynArray(std::int32_t spaceSize = 0, std::int32_t unit = 16) : allocUnit(std::max(unit, 0)) {
    data = NewBlock(spaceSize);
    space = std::max(spaceSize, 0);
  }
  ZcDynArray(const ZcDynArray& other) : ZcDynArray(0, other.allocUnit) { this->DeepCopy(other); }
  ZcDynArray& operator=(const ZcDynArray& other) {
    if (this != &other) this->DeepCopy(other);
    return *this;
  }

 protected:
  /// Grows or shrinks the length; the space only ever grows, by the slack beyond what is asked.
  void ReAllocate(std::int32_t newLength) override {
    newLength = std::max(newLength, 0);
    if (newLength > space) {
      Rebuild(newLength + allocUnit, length);
    } else {
      for (std::int32_t index = newLength; index < length; ++index) data[index] = T();
    }
    length = newLength;
  }

 public:
  ~ZcDynArray() override { delete[] data; }

  /// Makes both space and length newLength. Without `keep` the elements are lost, unless newLength is the
  /// space already, when only the length changes.
  void SetLength(std::int32_t newLength, bool keep) override {
    newLength = std::max(newLength, 0);
    if (newLength != space) Rebuild(newLength, keep ? std::min(length, newLength) : 0);
    length = newLength;
  }

  void Reset() override {
    delete[] data;
    data = nullptr;
    space = 0;
    ZcDynArrayBase<T>::Reset();
  }

  T& GetCurData() override { return data[cursor]; }
  void SetCurData(const T& value) override { data[cursor] = value; }

  const T* GetFirst() const override { return length == 0 ? nullptr : data; }
  const T* GetNext(const T* element) const override {
    return element == nullptr || element == GetLast() ? nullptr : element + 1;
  }
  const T* GetPre(const T* element) const override {
    return element == nullptr || element == GetFirst() ? nullptr : element - 1;
  }
  const T* GetLast() const override { return length == 0 ? nullptr : data + (length - 1); }

  const T& GetAt(std::int32_t index) const override { return data[index]; }

  /// A cursor beyond either end counts as that end. The value may be an element of this array.
  void InsertCur(const T& value) override {
    T added(value);
    cursor = std::clamp(cursor, 0, length);
    ReAllocate(length + 1);
    std::move_backward(data + cursor, data + (length - 1), data + length);
    data[cursor] = std::move(added);
  }

  void DelCur() override {
    if (this->IsOut()) return;
    std::move(data + cursor + 1, data + length, data + cursor);
    ReAllocate(length - 1);
    --cursor;
  }

  void Sort(Compare compare) override { SortBy(zwt::GoesBehind<T>(compare)); }
  void Sort(bool ascending) override { SortBy(zwt::GoesBehind<T>(ascending)); }

  std::int32_t GetSpaceSize() const { return space; }
  /// Makes the space exactly newSpace, keeping length and elements; false if they would not fit.
  bool SetSpaceSize(std::int32_t newSpace) {
    if (newSpace < length) return false;
    if (newSpace == space) return true;
    const std::int32_t kept = length;
    SetLength(newSpace, true);
    length = kept;
    return true;
  }

  std::int32_t GetAllocUnit() const { return allocUnit; }
  void SetAllocUnit(std::int32_t unit) { allocUnit = std::max(unit, 0); }

  /// Hands the block to the caller, who frees it with delete[], and is empty afterwards.
  T* Detach() {
    space = 0;
    ZcDynArrayBase<T>::Reset();
    return std::exchange(data, nullptr);
  }
  /// Takes over a block of `count` elements made with new[], as space and length; the present block is freed.
  void Attach(std::int32_t count, T* block) {
    if (block != data) delete[] data;
    data = block;
    space = count;
    length = count;
  }

 protected:
  using ZcDynArrayBase<T>::cursor;
  using ZcDynArrayBase<T>::length;

  template <class Rule>
  void SortBy(Rule goesBehind) {
    zwt::InsertionSort(data, length, goesBehind);
  }

  T* data = nullptr;
  std::int32_t space = 0;
  std::int32_t allocUnit = 0;

 private:
  static T* NewBlock(std::int32_t count) {
    return count <= 0 ? nullptr : new T[static_cast<std::size_t>(count)]();
  }

  void Rebuild(std::int32_t newSpace, std::int32_t kept) {
    std::unique_ptr<T[]> block(NewBlock(newSpace));
    std::copy_n(data, kept, block.get());
    delete[] data;
    data = block.release();
    space = newSpace;
  }
};
