// Plain array outside the container family's tree: exactly as long as its block, no cursor and no slack.
// Zc2dArray is an array of rows. An index out of range is the caller's fault unless an operation says
// otherwise.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "frame/containers/element_order.h"
#include "frame/containers/zc_dyn_array_base.h"

template <class T>
class ZcArray {
 public:
  using Compare = zwt::CompareFunction<T>;

  /// Holds `count` default elements.
  explicit ZcArray(std::int32_t count = 0) { ReAllocate(count, false); }
  ZcArray(const ZcArray& other) { CopyFrom(other); }
  explicit ZcArray(const ZcDynArrayBase<T>& other) { CopyFrom(other); }
  ZcArray& operator=(const ZcArray& other) {
    if (this != &other) CopyFrom(other);
    return *this;
  }
  ZcArray& operator=(const ZcDynArrayBase<T>& other) {
    CopyFrom(other);
    return *this;
  }
  ~ZcArray() = default;

  /// Makes the block exactly newLength long (0 if it is negative). With `keep` the elements stay as far as
  /// they fit; without it all are default ones, unless that is the length already, when nothing happens.
  void ReAllocate(std::int32_t newLength, bool keep) {
    newLength = std::max(newLength, 0);
    if (newLength == length) return;
    Block block = NewBlock(newLength);
    if (keep) std::copy_n(data.get(), std::min(length, newLength), block.get());
    Adopt(std::move(block), newLength);
  }
  void Reset() { ReAllocate(0, false); }

  std::int32_t GetLength() const { return length; }
  const T& GetAt(std::int32_t index) const { return data[Offset(index)]; }
  void SetAt(std::int32_t index, const T& value) { data[Offset(index)] = value; }
  /// Element `index`. An index at or above the length extends the array up to it.
  T& operator[](std::int32_t index) {
    if (index >= length) ReAllocate(index + 1, true);
    return data[Offset(index)];
  }
  const T& operator[](std::int32_t index) const { return GetAt(index); }
  /// The elements side by side; null when there are none.
  T* GetDataBuffer() { return data.get(); }
  const T* GetDataBuffer() const { return data.get(); }

  /// Inserts in front of element `index`; beyond either end, at that end. The value may be an element of this
  /// array.
  void Insert(std::int32_t index, const T& value) {
    const std::int32_t place = std::clamp(index, 0, length);
    Block block = NewBlock(length + 1);
    std::copy_n(data.get(), place, block.get());
    block[Offset(place)] = value;
    std::copy_n(data.get() + place, length - place, block.get() + place + 1);
    Adopt(std::move(block), length + 1);
  }
  void InsertHead(const T& value) { Insert(0, value); }
  /// Returns the index of the new element.
  std::int32_t Append(const T& value) {
    Insert(length, value);
    return length - 1;
  }

  /// No effect if there is no such element.
  void Del(std::int32_t index) {
    if (index < 0 || index >= length) return;
    Block block = NewBlock(length - 1);
    std::copy_n(data.get(), index, block.get());
    std::copy_n(data.get() + index + 1, length - 1 - index, block.get() + index);
    Adopt(std::move(block), length - 1);
  }
  void DelHead() { Del(0); }
  void DelTail() { Del(length - 1); }

  void SetAll(const T& value) {
    const T copy(value);
    std::fill_n(data.get(), length, copy);
  }

  /// Index of the first element from `first` to `last` that equals the value, -1 if there is none. A `last`
  /// out of range means the last index.
  std::int32_t Find(const T& value, std::int32_t first = 0, std::int32_t last = -1) const {
    last = LastOf(last);
    for (std::int32_t index = std::max(first, 0); index <= last; ++index) {
      if (GetAt(index) == value) return index;
    }
    return -1;
  }
  /// The same by bisection of an ascending array, for an element that is neither below nor above the value.
  std::int32_t BFind(const T& value, std::int32_t low = 0, std::int32_t high = -1) const {
    const auto elementAt = [this](std::int32_t index) -> const T& { return GetAt(index); };
    const auto below = [](const T& left, const T& right) { return left < right; };
    return zwt::Bisect(elementAt, value, std::max(low, 0), LastOf(high), below);
  }

  /// Stable insertion sort, as the containers of the tree have it.
  void Sort(Compare compare) { zwt::InsertionSort(data.get(), length, zwt::GoesBehind<T>(compare)); }
  void Sort(bool ascending) { zwt::InsertionSort(data.get(), length, zwt::GoesBehind<T>(ascending)); }

  /// Swaps the elements from `first` to `last` end for end; -1 means the last index.
  void Reverse(std::int32_t first = 0, std::int32_t last = -1) {
    const std::int32_t start = std::max(first, 0);
    const std::int32_t end = LastOf(last) + 1;
    if (start < end) std::reverse(data.get() + start, data.get() + end);
  }

 private:
  using Block = std::unique_ptr<T[]>;

  static std::size_t Offset(std::int32_t index) { return static_cast<std::size_t>(index); }
  static Block NewBlock(std::int32_t count) {
    return count == 0 ? nullptr : std::make_unique<T[]>(Offset(count));
  }

  std::int32_t LastOf(std::int32_t last) const { return last >= 0 && last < length ? last : length - 1; }

  void Adopt(Block block, std::int32_t newLength) {
    data = std::move(block);
    length = newLength;
  }

  void CopyFrom(const ZcArray& other) {
    Block block = NewBlock(other.length);
    std::copy_n(other.data.get(), other.length, block.get());
    Adopt(std::move(block), other.length);
  }
  void CopyFrom(const ZcDynArrayBase<T>& other) {
    Block block = NewBlock(other.GetLength());
    T* place = block.get();
    for (const T* element = other.GetFirst(); element != nullptr; element = other.GetNext(element)) {
      *place++ = *element;
    }
    Adopt(std::move(block), other.GetLength());
  }

  Block data;
  std::int32_t length = 0;
};

template <class T>
class Zc2dArray : public ZcArray<ZcArray<T>> {
 public:
  explicit Zc2dArray(std::int32_t rows = 0, std::int32_t columns = 0) { ReAllocate(rows, columns); }

  /// Makes it rows by columns; elements inside both the old and the new shape stay.
  void ReAllocate(std::int32_t rows, std::int32_t columns) {
    ZcArray<ZcArray<T>>::ReAllocate(rows, true);
    for (std::int32_t row = 0; row < this->GetLength(); ++row) (*this)[row].ReAllocate(columns, true);
  }

  void SetAll(const T& value) {
    const T copy(value);
    for (std::int32_t row = 0; row < this->GetLength(); ++row) (*this)[row].SetAll(copy);
  }
};
