// Root of the container family: the count, the cursor, and all that can be said by the virtual operations
// alone. Storage is left to ZcDynArray and ZcList. How the cursor moves is a contract of the whole
// calculation: the table stands in docs/containers.md. An index out of range is the caller's fault unless an
// operation says otherwise.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "frame/containers/element_order.h"

template <class T>
class ZcArray;
template <class T>
class ZcQuene;

template <class T>
class ZcDynArrayBase {
 public:
  using Compare = zwt::CompareFunction<T>;

 protected:
  /// Makes the length newLength, keeping the elements: see ZcDynArray and ZcList, which differ in shrinking.
  virtual void ReAllocate(std::int32_t newLength) = 0;

 public:
  virtual ~ZcDynArrayBase() = default;

  /// Makes the length exactly newLength (0 if it is negative); new elements are default ones.
  virtual void SetLength(std::int32_t newLength, bool keep) = 0;
  /// Empties the container: length 0, cursor -1.
  virtual void Reset() {
    length = 0;
    cursor = -1;
  }

  /// The element under the cursor, which must not be out.
  virtual T& GetCurData() = 0;
  virtual void SetCurData(const T& value) = 0;

  virtual void MoveToFirst() { cursor = 0; }
  virtual void MoveToNext() { ++cursor; }
  virtual void MoveToPre() { --cursor; }
  virtual void MoveToLast() { cursor = length - 1; }
  virtual void MoveTo(std::int32_t index) { cursor = index; }

  /// Element `index` with the cursor put on it. An index at or above the length extends the container up to
  /// it.
  virtual T& operator[](std::int32_t index) {
    if (index >= length) ReAllocate(index + 1);
    MoveTo(index);
    return GetCurData();
  }

  /// Walking without the cursor: pointers to elements, null in front of the first and behind the last.
  virtual const T* GetFirst() const = 0;
  virtual const T* GetNext(const T* element) const = 0;
  virtual const T* GetPre(const T* element) const = 0;
  virtual const T* GetLast() const = 0;

  /// Element `index`; never moves the cursor.
  virtual const T& GetAt(std::int32_t index) const = 0;

  /// Inserts in front of the element under the cursor; the cursor stands on the new element afterwards.
  virtual void InsertCur(const T& value) = 0;
  virtual void Insert(std::int32_t index, const T& value) {
    MoveTo(index);
    InsertCur(value);
  }
  virtual void InsertHead(const T& value) {
    MoveToFirst();
    InsertCur(value);
  }
  /// Inserts behind the last element, with the cursor on the new one, and returns its index.
  virtual std::int32_t Append(const T& value) {
    MoveTo(length);
    InsertCur(value);
    return cursor;
  }

  /// Deletes the element under the cursor and steps back by one, so that MoveToNext reaches the element
  /// behind it. Does nothing when the cursor is out.
  virtual void DelCur() = 0;

  /// Stable insertion sort under a comparison, or by `<` up or down; quadratic. The cursor keeps its index.
  virtual void Sort(Compare compare) = 0;
  virtual void Sort(bool ascending) = 0;

  /// Brings element `from` in front of the element that stands at `to` (length: behind the last), the cursor
  /// with it. False, and no change, if it stands there already or an index is out of range.
  virtual bool Move(std::int32_t from, std::int32_t to) {
    if (!CanMove(from, to)) return false;
    Insert(to, GetAt(from));
    Del(from < to ? from : from + 1);
    MoveTo(from < to ? to - 1 : to);
    return true;
  }

  std::int32_t GetLength() const { return length; }
  std::int32_t GetMaxIndex() const { return length - 1; }
  bool IsEmpty() const { return length == 0; }
  bool IsValidIndex(std::int32_t index) const { return index >= 0 && index < length; }

  /// The cursor's index; -1 in front of the first element.
  std::int32_t GetCur() const { return cursor; }
  bool IsBegin() const { return cursor < 0; }
  bool IsEnd() const { return cursor >= length; }
  bool IsOut() const { return IsBegin() || IsEnd(); }

  /// Pointer to element `index`, null if there is none; never moves the cursor.
  const T* GetTo(std::int32_t index) const { return IsValidIndex(index) ? &GetAt(index) : nullptr; }
  T* GetTo(std::int32_t index) { return const_cast<T*>(std::as_const(*this).GetTo(index)); }

  void IncreaseSize(std::int32_t count) { ReAllocate(length + count); }
  /// Takes `count` elements off the end of an array; a list keeps its elements.
  void DecreaseSize(std::int32_t count) { ReAllocate(length - count); }

  void Del(std::int32_t index) {
    MoveTo(index);
    DelCur();
  }
  void DelHead() {
    MoveToFirst();
    DelCur();
  }
  void DelTail() {
    MoveToLast();
    DelCur();
  }

  /// Swaps two elements; the cursor keeps its index. No effect if there is no such element.
  void Exchange(std::int32_t first, std::int32_t second) {
    T* const left = GetTo(first);
    T* const right = GetTo(second);
    if (left != nullptr && right != nullptr && left != right) SwapElements(*left, *right);
  }

  /// Index of the first element from `first` to `last` that equals the value, -1 if there is none. A `last`
  /// out of range means the last index. The cursor stays.
  std::int32_t Find(const T& value, std::int32_t first = 0, std::int32_t last = -1) const {
    return FindIf([&value](const T& element) { return element == value; }, first, last);
  }
  /// Pushes the indices of all elements that equal the value, as long as the queue takes them.
  template <class Index>
  void Find(const T& value, ZcQuene<Index>& indices, std::int32_t first = 0, std::int32_t last = -1) const {
    const auto equals = [&value](const T& element) { return element == value; };
    for (std::int32_t index = FindIf(equals, first, last); index >= 0;) {
      if (!indices.Push(index)) return;
      index = index == LastOf(last) ? -1 : FindIf(equals, index + 1, last);
    }
  }
  /// Puts the cursor on the first element from `start` that equals the value; false with the cursor out
  /// otherwise.
  bool FindTo(const T& value, std::int32_t start = 0) {
    return FindToIf([&value](const T& element) { return element == value; }, start);
  }
  /// Deletes the first element that equals the value; 1 if there was one, else 0.
  std::int32_t FindDel(const T& value) {
    if (!FindTo(value)) return 0;
    DelCur();
    return 1;
  }
  /// Index of the element that equals the value, with the cursor on it; it is added if there is none.
  std::int32_t FindOrAppend(const T& value) {
    if (!FindTo(value)) Append(value);
    return cursor;
  }
  std::int32_t FindOrInsertHead(const T& value) {
    if (!FindTo(value)) InsertHead(value);
    return cursor;
  }

  /// Index of an element that is neither below nor above the value, by bisection from `low` to `high` of an
  /// ascending container; -1 if there is none. A `high` out of range means the last index. The cursor stays.
  std::int32_t BFind(const T& value, std::int32_t low = 0, std::int32_t high = -1) const {
    return BisectAt(value, low, high, Below);
  }
  /// The same with the cursor: on the element found, or where the value belongs if it is absent, which on a
  /// list is -1 when that is behind the last element.
  bool BFindTo(const T& value, std::int32_t low = 0, std::int32_t high = -1) {
    return BisectTo(value, low, high, Below);
  }
  /// Inserts into an ascending container, behind equal elements. False, and no change, if an equal element is
  /// there and allowEqual is false.
  bool SortInto(const T& value, bool allowEqual) { return InsertSorted(value, allowEqual, Below); }

  /// Swaps the elements from `first` to `last` end for end; -1 means the last index. The cursor keeps its
  /// index. On a list with links one way only this is quadratic: ReverseList turns a whole list at once.
  void Reverse(std::int32_t first = 0, std::int32_t last = -1) {
    last = LastOf(last);
    T* front = GetTo(first);
    T* back = GetTo(last);
    for (; front != nullptr && first < last; ++first, --last) {
      SwapElements(*front, *back);
      front = const_cast<T*>(GetNext(front));
      back = const_cast<T*>(GetPre(back));
    }
  }

  /// Copies of up to `count` elements from the front, from index `first` on, from the back (needs
  /// zc_array.h).
  ZcArray<T> Left(std::int32_t count) const { return Mid(0, count); }
  ZcArray<T> Right(std::int32_t count) const {
    const std::int32_t taken = std::clamp(count, 0, length);
    return Mid(length - taken, taken);
  }
  ZcArray<T> Mid(std::int32_t first, std::int32_t count) const {
    const std::int32_t start = std::clamp(first, 0, length);
    const std::int32_t taken = std::clamp(count, 0, length - start);
    ZcArray<T> part(taken);
    const T* element = GetTo(start);
    for (std::int32_t index = 0; index < taken; ++index, element = GetNext(element))
      part.SetAt(index, *element);
    return part;
  }

  /// Becomes a copy, element by element, with the cursor at -1.
  void DeepCopy(const ZcDynArrayBase& other) {
    if (&other == this) return;
    Reset();
    SetLength(other.length, false);
    const T* source = other.GetFirst();
    for (MoveToFirst(); source != nullptr; MoveToNext(), source = other.GetNext(source)) SetCurData(*source);
    MoveTo(-1);
  }
  void DeepCopy(const ZcArray<T>& other) {
    Reset();
    SetLength(other.GetLength(), false);
    MoveToFirst();
    for (std::int32_t index = 0; index < other.GetLength(); ++index, MoveToNext())
      SetCurData(other.GetAt(index));
    MoveTo(-1);
  }

  /// Appends.
  ZcDynArrayBase& operator<<(const T& value) {
    Append(value);
    return *this;
  }

  /// Equal means the same elements in the same order, whatever the storage.
  bool operator==(const ZcDynArrayBase& other) const {
    if (length != other.length) return false;
    const T* theirs = other.GetFirst();
    for (const T* ours = GetFirst(); ours != nullptr; ours = GetNext(ours), theirs = other.GetNext(theirs)) {
      if (!(*ours == *theirs)) return false;
    }
    return true;
  }
  bool operator!=(const ZcDynArrayBase& other) const { return !(*this == other); }
  /// Comparison by length.
  bool operator<(const ZcDynArrayBase& other) const { return length < other.length; }
  bool operator>(const ZcDynArrayBase& other) const { return length > other.length; }
  bool operator<=(const ZcDynArrayBase& other) const { return length <= other.length; }
  bool operator>=(const ZcDynArrayBase& other) const { return length >= other.length; }

 protected:
  ZcDynArrayBase() = default;
  /// A copy starts empty: the storage classes fill it by DeepCopy when they are ready.
  ZcDynArrayBase(const ZcDynArrayBase& /*other*/) {}
  ZcDynArrayBase& operator=(const ZcDynArrayBase& other) {
    DeepCopy(other);
    return *this;
  }

  static bool Below(const T& left, const T& right) { return left < right; }

  bool CanMove(std::int32_t from, std::int32_t to) const {
    return from != to && from != to - 1 && IsValidIndex(from) && to >= 0 && to <= length;
  }

  std::int32_t LastOf(std::int32_t last) const { return IsValidIndex(last) ? last : length - 1; }

  template <class Matches>
  std::int32_t FindIf(Matches matches, std::int32_t first, std::int32_t last) const {
    last = LastOf(last);
    std::int32_t index = std::max(first, 0);
    for (const T* element = GetTo(index); element != nullptr && index <= last; ++index) {
      if (matches(*element)) return index;
      element = GetNext(element);
    }
    return -1;
  }

  template <class Matches>
  bool FindToIf(Matches matches, std::int32_t start) {
    for (MoveTo(start); !IsOut(); MoveToNext()) {
      if (matches(std::as_const(GetCurData()))) return true;
    }
    return false;
  }

  template <class Order>
  std::int32_t BisectAt(const T& value, std::int32_t low, std::int32_t high, Order below) const {
    const auto elementAt = [this](std::int32_t index) -> const T& { return GetAt(index); };
    return zwt::Bisect(elementAt, value, std::max(low, 0), LastOf(high), below);
  }

  template <class Order>
  bool BisectTo(const T& value, std::int32_t low, std::int32_t high, Order below) {
    low = std::max(low, 0);
    high = LastOf(high);
    while (low <= high) {
      const std::int32_t middle = low + (high - low) / 2;
      MoveTo(middle);
      const T& element = GetCurData();
      if (below(value, element)) {
        high = middle - 1;
      } else if (below(element, value)) {
        low = middle + 1;
      } else {
        return true;
      }
    }
    MoveTo(low);
    return false;
  }

  template <class Order>
  bool InsertSorted(const T& value, bool allowEqual, Order below) {
    if (BisectTo(value, 0, -1, below)) {
      if (!allowEqual) return false;
      while (!IsOut() && !below(value, std::as_const(GetCurData()))) MoveToNext();
    }
    InsertCur(value);
    return true;
  }

  std::int32_t length = 0;
  std::int32_t cursor = -1;

 private:
  static void SwapElements(T& left, T& right) {
    using std::swap;
    swap(left, right);
  }
};
