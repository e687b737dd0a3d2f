// Containers that own what their slots point to, and delete it: ZcDynPArray, ZcPDList and ZcPXList. A slot
// may be empty (null). Searching and sorting by data compare the pointees and take empty slots as the last of
// all. A copy holds the same pointers as its source: the caller sees to it that only one of the two deletes
// them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_xlist.h"

namespace zwt {

/// What the three share. Self is the container itself, Base the container of plain pointers below it.
template <class Self, class T, class Base>
class OwnedSlots : public Base {
 public:
  using typename Base::Compare;
  using PointeeCompare = CompareFunction<T>;

  using Base::Base;
  OwnedSlots(const OwnedSlots&) = default;
  OwnedSlots& operator=(const OwnedSlots&) = default;
  ~OwnedSlots() override { DeletePointeesFrom(0); }

  void Reset() override {
    DeletePointeesFrom(0);
    Base::Reset();
  }

  /// Sorts by a comparison of the pointers, which are never null: empty slots go last.
  void Sort(Compare compare) override {
    SortFilled([compare](T* earlier, T* element) { return compare(earlier, element) <= 0; });
  }
  /// Sorts by `<` of the pointees, up or down; empty slots go last either way.
  void Sort(bool ascending) override {
    SortFilled(
        [rule = GoesBehind<T>(ascending)](T* earlier, T* element) { return rule(*earlier, *element); });
  }

  bool Move(std::int32_t from, std::int32_t to) override {
    if (!this->CanMove(from, to)) return false;
    this->Insert(to, nullptr);
    const std::int32_t old = from < to ? from : from + 1;
    this->Exchange(old, to);
    this->Del(old);
    this->MoveTo(from < to ? to - 1 : to);
    return true;
  }

  /// Deletes the pointee of slot `index`, which stays as an empty slot.
  void Release(std::int32_t index) {
    this->MoveTo(index);
    self().ReleaseCur();
  }
  /// The same for every slot; the cursor ends out.
  void ReleaseAll() {
    for (this->MoveToFirst(); !this->IsOut(); this->MoveToNext()) self().ReleaseCur();
  }

  /// The object of slot `index`, which the caller owns from now on; the slot stays as an empty one. Null if
  /// there is no such slot.
  T* TakeOff(std::int32_t index) {
    this->MoveTo(index);
    return self().TakeOffCur();
  }
  T* TakeOffHead() {
    this->MoveToFirst();
    return self().TakeOffCur();
  }
  T* TakeOffTail() {
    this->MoveToLast();
    return self().TakeOffCur();
  }

  /// Stores an object, owned from now on, in the first empty slot or in a new one at the end; returns the
  /// index.
  std::int32_t PlaceIn(T* object) {
    if (!this->FindTo(nullptr)) (*this)[length] = nullptr;
    this->SetCurData(object);
    return cursor;
  }

  /// The pointer in a slot, null as well when there is no such slot or the cursor is out.
  T* GetPData(std::int32_t index) const {
    T* const* const slot = this->GetTo(index);
    return slot == nullptr ? nullptr : *slot;
  }
  T* GetCurPData() { return this->IsOut() ? nullptr : this->GetCurData(); }
  /// The pointee of a slot that is not empty.
  T& operator()(std::int32_t index) const { return *GetPData(index); }

  bool IsEmptyData(std::int32_t index) const { return GetPData(index) == nullptr; }
  bool IsCurEmpty() { return GetCurPData() == nullptr; }

  /// Number of slots that are not empty; GetLength counts them all.
  std::int32_t GetDataNum() const {
    std::int32_t filled = 0;
    for (T* const* slot = this->GetFirst(); slot != nullptr; slot = this->GetNext(slot)) {
      if (*slot != nullptr) ++filled;
    }
    return filled;
  }

  /// Index of the first pointee from `first` to `last` that equals the value, as Find.
  std::int32_t FindData(const T& value, std::int32_t first = 0, std::int32_t last = -1) const {
    return this->FindIf([&value](const T* slot) { return slot != nullptr && *slot == value; }, first, last);
  }
  /// The same by bisection, as BFind, in a container whose pointees ascend.
  std::int32_t BFindData(const T& value, std::int32_t low = 0, std::int32_t high = -1) const {
    return this->BisectAt(const_cast<T*>(&value), low, high, PointeeBelow);
  }
  /// Deletes the first slot whose pointee equals the value; 1 if there was one, else 0.
  std::int32_t FindDataDel(const T& value) {
    if (!this->FindToIf([&value](const T* slot) { return slot != nullptr && *slot == value; }, 0)) return 0;
    this->DelCur();
    return 1;
  }
  /// Index of the slot whose pointee equals that of `object`, which then stays the caller's; else it is
  /// appended.
  std::int32_t FindDataOrAppend(T* object) {
    const auto equals = [object](const T* slot) {
      return slot == object || (slot != nullptr && object != nullptr && *slot == *object);
    };
    if (!this->FindToIf(equals, 0)) this->Append(object);
    return cursor;
  }
  /// Inserts by the order of the pointees, as SortInto of the root; on false the object stays the caller's.
  bool SortInto(T* object, bool allowEqual) { return this->InsertSorted(object, allowEqual, PointeeBelow); }

 protected:
  using Base::cursor;
  using Base::length;

  void ReleaseSlotUnderCursor() { delete TakeSlotUnderCursor(); }
  T* TakeSlotUnderCursor() { return this->IsOut() ? nullptr : std::exchange(this->GetCurData(), nullptr); }

  void DeletePointeesFrom(std::int32_t index) {
    for (T* const* slot = this->GetTo(index); slot != nullptr; slot = this->GetNext(slot)) {
      delete std::exchange(const_cast<T*&>(*slot), nullptr);
    }
  }

  void SortByPointees(PointeeCompare compare) {
    SortFilled([compare](T* earlier, T* element) { return compare(*earlier, *element) <= 0; });
  }

  /// The rule of a sort with the empty slots at the end, in the order in which they stand.
  template <class Rule>
  static auto EmptyLast(Rule goesBehind) {
    return [goesBehind](T* earlier, T* element) {
      return element == nullptr || (earlier != nullptr && goesBehind(earlier, element));
    };
  }

 private:
  Self& self() { return static_cast<Self&>(*this); }

  template <class Rule>
  void SortFilled(Rule goesBehind) {
    this->SortBy(EmptyLast(goesBehind));
  }

  static bool PointeeBelow(T* left, T* right) {
    return left != nullptr && (right == nullptr || *left < *right);
  }
};

/// What the two lists share.
template <class Self, class T, class Base>
class OwnedNodes : public OwnedSlots<Self, T, Base> {
 public:
  using OwnedSlots<Self, T, Base>::OwnedSlots;

  /// Also deletes the pointees of the slots that go.
  void SetLength(std::int32_t newLength, bool keep) override {
    this->DeletePointeesFrom(std::max(newLength, 0));
    Base::SetLength(newLength, keep);
  }

  /// Deletes the pointee, then the slot.
  void DelCur() override {
    if (this->current == this->head) return;
    delete std::exchange(this->current->data, nullptr);
    Base::DelCur();
  }

  /// Deletes the pointee of the slot under the cursor; the slot stays. No effect when it is empty or the
  /// cursor out.
  void ReleaseCur() { this->ReleaseSlotUnderCursor(); }
  /// Hands the pointee to the caller; the slot stays, empty. Null when the cursor is out.
  T* TakeOffCur() { return this->TakeSlotUnderCursor(); }
};

}  // namespace zwt

template <class T>
class ZcDynPArray : public zwt::OwnedSlots<ZcDynPArray<T>, T, ZcDynArray<T*>> {
  using Slots = zwt::OwnedSlots<ZcDynPArray<T>, T, ZcDynArray<T*>>;

 public:
  using typename Slots::PointeeCompare;

  using Slots::Slots;
  using Slots::Sort;

 protected:
  /// Grows by empty slots; slots that go take their pointees with them.
  void ReAllocate(std::int32_t newLength) override {
    this->DeletePointeesFrom(std::max(newLength, 0));
    ZcDynArray<T*>::ReAllocate(newLength);
  }

 public:
  /// Deletes the pointees that the array does not keep.
  void SetLength(std::int32_t newLength, bool keep) override {
    const bool contentsStay = keep || newLength == this->space;
    this->DeletePointeesFrom(contentsStay ? std::max(newLength, 0) : 0);
    ZcDynArray<T*>::SetLength(newLength, keep);
  }

  /// Deletes the pointee, then the slot. The last slot is set aside meanwhile: the shrinking array would take
  /// the pointee that is left behind there for one to delete.
  void DelCur() override {
    if (this->IsOut()) return;
    delete std::exchange(data[cursor], nullptr);
    const bool isLast = cursor == length - 1;
    T* const kept = std::exchange(data[length - 1], nullptr);
    ZcDynArray<T*>::DelCur();
    if (!isLast) data[length - 1] = kept;
  }

  /// Deletes the pointee of the slot under the cursor; the slot stays. No effect when it is empty or the
  /// cursor out.
  virtual void ReleaseCur() { this->ReleaseSlotUnderCursor(); }
  /// Hands the pointee to the caller; the slot stays, empty. Null when the cursor is out.
  virtual T* TakeOffCur() { return this->TakeSlotUnderCursor(); }
  /// Sorts by a comparison of the pointees; empty slots go last.
  virtual void Sort(PointeeCompare compare) { this->SortByPointees(compare); }

  /// The same order as Sort, by merging: for long arrays.
  void SortEx(PointeeCompare compare) {
    MergeSort([compare](T* earlier, T* element) { return compare(*earlier, *element) <= 0; });
  }
  void SortEx(bool ascending) {
    MergeSort(
        [rule = zwt::GoesBehind<T>(ascending)](T* earlier, T* element) { return rule(*earlier, *element); });
  }

  /// Takes over a block and the pointees in it; those held so far are deleted.
  void Attach(std::int32_t count, T** block) {
    if (block != data) this->DeletePointeesFrom(0);
    ZcDynArray<T*>::Attach(count, block);
  }

 protected:
  using Slots::cursor;
  using Slots::data;
  using Slots::length;

 private:
  /// Merges runs of doubling length between the array and a second block. A comparison that throws leaves the
  /// array with all its pointers, in some order between the old and the new.
  template <class Rule>
  void MergeSort(Rule goesBehind) {
    const auto rule = Slots::EmptyLast(goesBehind);
    const std::unique_ptr<T*[]> merged = std::make_unique<T*[]>(static_cast<std::size_t>(length));
    for (std::int64_t run = 1; run < length; run *= 2) {
      for (std::int64_t start = 0; start < length; start += 2 * run) {
        const std::int64_t middle = std::min<std::int64_t>(start + run, length);
        const std::int64_t end = std::min<std::int64_t>(start + 2 * run, length);
        Merge(data + start, data + middle, data + end, merged.get() + start, rule);
      }
      std::copy_n(merged.get(), length, data);
    }
  }

  template <class Rule>
  static void Merge(T** left, T** middle, T** end, T** out, const Rule& goesBehind) {
    for (T** right = middle; left != middle || right != end; ++out) {
      const bool takeLeft = left != middle && (right == end || goesBehind(*left, *right));
      *out = takeLeft ? *left++ : *right++;
    }
  }
};

template <class T>
class ZcPDList : public zwt::OwnedNodes<ZcPDList<T>, T, ZcDList<T*>> {
  using Nodes = zwt::OwnedNodes<ZcPDList<T>, T, ZcDList<T*>>;

 public:
  using typename Nodes::PointeeCompare;

  using Nodes::Nodes;
  using Nodes::Sort;
  /// Sorts by a comparison of the pointees; empty slots go last.
  virtual void Sort(PointeeCompare compare) { this->SortByPointees(compare); }
};

template <class T>
class ZcPXList : public zwt::OwnedNodes<ZcPXList<T>, T, ZcXList<T*>> {
  using Nodes = zwt::OwnedNodes<ZcPXList<T>, T, ZcXList<T*>>;

 public:
  using typename Nodes::PointeeCompare;

  using Nodes::Nodes;
  using Nodes::Sort;
  /// Sorts by a comparison of the pointees; empty slots go last.
  virtual void Sort(PointeeCompare compare) { this->SortByPointees(compare); }
};
