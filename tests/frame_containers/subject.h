// A container of the tree as the random tests see it: numbered slots behind one interface, whatever the
// storage, so that the tests themselves are compiled once.
#pragma once

#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

#include "container_model.h"
#include "contents.h"
#include "counted.h"
#include "frame/containers/zc_array.h"
#include "frame/containers/zc_pointer_containers.h"
#include "frame/containers/zc_queue.h"
#include "probe.h"

namespace zwt::test {

using Slot = ContainerModel::Slot;
using Slots = std::vector<Slot>;

/// Operations take and give the numbers that the slots stand for. Those of a kind of container that the
/// subject isn't must not be called.
class Subject {
 public:
  virtual ~Subject() = default;

  virtual bool OwnsPointees() const = 0;
  virtual int ElementsAlive() const = 0;
  virtual Slots Forward() const = 0;
  virtual Slots Backward() const = 0;
  virtual void CheckInside() const = 0;

  virtual int Length() const = 0;
  virtual int Cur() const = 0;
  virtual bool IsOut() const = 0;
  virtual Slot CurData() = 0;
  virtual Slot At(int index) const = 0;
  virtual bool HasElementTo(int index, Slot& slot) const = 0;

  virtual void MoveToFirst() = 0;
  virtual void MoveToLast() = 0;
  virtual void MoveToNext() = 0;
  virtual void MoveToPre() = 0;
  virtual void MoveTo(int index) = 0;
  virtual Slot Subscript(int index) = 0;

  virtual void InsertCur(int value) = 0;
  virtual void Insert(int index, int value) = 0;
  virtual void InsertHead(int value) = 0;
  virtual int Append(int value) = 0;
  virtual void Shift(int value) = 0;
  virtual void SetCurData(int value) = 0;

  virtual void DelCur() = 0;
  virtual void Del(int index) = 0;
  virtual void DelHead() = 0;
  virtual void DelTail() = 0;
  virtual void Reset() = 0;
  virtual int FindDelElementAt(int index) = 0;
  virtual int FindDelAbsent() = 0;

  virtual bool SortInto(int value, bool allowEqual) = 0;
  virtual void SortAscending(bool ascending) = 0;
  virtual void SortByKey() = 0;
  virtual void Exchange(int left, int right) = 0;
  virtual void Reverse(int first, int last) = 0;
  virtual bool Move(int from, int to) = 0;
  virtual Slots Mid(int first, int count) const = 0;
  virtual void IncreaseSize(int count) = 0;
  virtual void DecreaseSize(int count) = 0;
  virtual void SetLength(int length, bool keep) = 0;

  // Containers of values.
  virtual int Find(int value, int first, int last) const = 0;
  virtual std::vector<int> FindAll(int value, int first, int last) const = 0;
  virtual bool FindTo(int value, int start) = 0;
  virtual int FindOrAppend(int value) = 0;
  virtual int FindOrInsertHead(int value) = 0;
  virtual bool BFindTo(int value) = 0;
  /// Slots of a copy; the subject is assigned from it afterwards.
  virtual Slots CopyAndAssign() = 0;
  /// By value or, in a pointer container, by data.
  virtual int BFind(int value) const = 0;

  // Lists. `other` is of the same kind.
  virtual void InsertAfterCur(int value) = 0;
  virtual void ReverseList() = 0;
  virtual void Rotate(int a, int b) = 0;
  virtual Slots TakeBehindCur() = 0;
  virtual int Conbine(Subject& other, int from) = 0;
  virtual void SplitAt(int index, Subject& other) = 0;
  virtual void SplitAtCur(Subject& other) = 0;

  // Arrays.
  virtual int SpaceSize() const = 0;
  virtual bool SetSpaceSize(int space) = 0;
  virtual int SetAllocUnit(int unit) = 0;
  virtual int DetachAndAttach() = 0;

  // Owners of pointees.
  virtual void ReleaseCur() = 0;
  virtual void Release(int index) = 0;
  virtual void ReleaseAll() = 0;
  virtual Slot TakeOffCur() = 0;
  virtual Slot TakeOff(int index) = 0;
  virtual Slot TakeOffHead() = 0;
  virtual Slot TakeOffTail() = 0;
  virtual int PlaceIn(int value) = 0;
  virtual bool IsCurEmpty() = 0;
  /// IsEmptyData, GetPData and operator() told in one: nothing if they call the slot empty.
  virtual Slot PointeeAt(int index) const = 0;
  virtual int FindData(int value) const = 0;
  virtual int FindDataDel(int value) = 0;
  virtual int FindDataOrAppend(int value) = 0;
  virtual void SortEx(bool ascending) = 0;
  virtual void SortExByKey() = 0;
};

/// Never 0, to show that only the sign counts: equal keys stay in their order.
inline int CompareKeys(const Counted& left, const Counted& right) {
  return left.Key() > right.Key() ? 7 : -3;
}

template <class Container, class Element>
class SubjectOf : public Subject {
 public:
  bool OwnsPointees() const override { return kOwns; }
  int ElementsAlive() const override {
    if constexpr (kOwns) {
      return container.GetDataNum();
    } else if constexpr (kList) {
      return container.GetLength() + 1;
    } else {
      return container.GetSpaceSize();
    }
  }
  Slots Forward() const override {
    Slots slots;
    for (const Element& element : Contents<Element>(container)) slots.push_back(Read(element));
    return slots;
  }
  Slots Backward() const override {
    Slots slots;
    const Element* element = container.GetLast();
    for (; element != nullptr; element = container.GetPre(element)) slots.push_back(Read(*element));
    return {slots.rbegin(), slots.rend()};
  }
  void CheckInside() const override {
    if constexpr (kList) container.CheckRing();
  }

  int Length() const override { return container.GetLength(); }
  int Cur() const override { return container.GetCur(); }
  bool IsOut() const override { return container.IsOut(); }
  Slot CurData() override { return Read(container.GetCurData()); }
  Slot At(int index) const override { return Read(container.GetAt(index)); }
  bool HasElementTo(int index, Slot& slot) const override {
    const Element* const element = container.GetTo(index);
    if (element != nullptr) slot = Read(*element);
    return element != nullptr;
  }

  void MoveToFirst() override { container.MoveToFirst(); }
  void MoveToLast() override { container.MoveToLast(); }
  void MoveToNext() override { container.MoveToNext(); }
  void MoveToPre() override { container.MoveToPre(); }
  void MoveTo(int index) override { container.MoveTo(index); }
  Slot Subscript(int index) override { return Read(container[index]); }

  void InsertCur(int value) override { container.InsertCur(Make(value)); }
  void Insert(int index, int value) override { container.Insert(index, Make(value)); }
  void InsertHead(int value) override { container.InsertHead(Make(value)); }
  int Append(int value) override { return container.Append(Make(value)); }
  void Shift(int value) override { container << Make(value); }
  void SetCurData(int value) override {
    Discard(container.GetCurData());
    container.SetCurData(Make(value));
  }

  void DelCur() override { container.DelCur(); }
  void Del(int index) override { container.Del(index); }
  void DelHead() override { container.DelHead(); }
  void DelTail() override { container.DelTail(); }
  void Reset() override { container.Reset(); }
  int FindDelElementAt(int index) override {
    const Element value = container.GetAt(index);
    return container.FindDel(value);
  }
  int FindDelAbsent() override {
    const Element absent = Make(-1);
    const int deleted = container.FindDel(absent);
    Discard(absent);
    return deleted;
  }

  bool SortInto(int value, bool allowEqual) override {
    const Element element = Make(value);
    const bool inserted = container.SortInto(element, allowEqual);
    if (!inserted) Discard(element);
    return inserted;
  }
  void SortAscending(bool ascending) override { container.Sort(ascending); }
  void SortByKey() override { container.Sort(&CompareKeys); }
  void Exchange(int left, int right) override { container.Exchange(left, right); }
  void Reverse(int first, int last) override { container.Reverse(first, last); }
  bool Move(int from, int to) override { return container.Move(from, to); }
  Slots Mid(int first, int count) const override {
    const ZcArray<Element> part = container.Mid(first, count);
    Slots slots;
    for (int index = 0; index < part.GetLength(); ++index) slots.push_back(Read(part.GetAt(index)));
    return slots;
  }
  void IncreaseSize(int count) override { container.IncreaseSize(count); }
  void DecreaseSize(int count) override { container.DecreaseSize(count); }
  void SetLength(int length, bool keep) override { container.SetLength(length, keep); }

  int Find(int value, int first, int last) const override {
    if constexpr (kOwns)
      return -1;
    else
      return container.Find(Counted(value), first, last);
  }
  std::vector<int> FindAll(int value, int first, int last) const override {
    std::vector<int> all;
    if constexpr (!kOwns) {
      ZcListQuene<std::int32_t> indices;
      container.Find(Counted(value), indices, first, last);
      for (std::int32_t index = 0; indices.Pop(index);) all.push_back(index);
    }
    return all;
  }
  bool FindTo(int value, int start) override {
    if constexpr (kOwns)
      return false;
    else
      return container.FindTo(Counted(value), start);
  }
  int FindOrAppend(int value) override {
    if constexpr (kOwns)
      return -1;
    else
      return container.FindOrAppend(Counted(value));
  }
  int FindOrInsertHead(int value) override {
    if constexpr (kOwns)
      return -1;
    else
      return container.FindOrInsertHead(Counted(value));
  }
  bool BFindTo(int value) override {
    if constexpr (kOwns)
      return false;
    else
      return container.BFindTo(Counted(value));
  }
  Slots CopyAndAssign() override {
    Slots slots;
    if constexpr (!kOwns) {
      SubjectOf copy(*this);
      copy.CheckInside();
      if (copy.Cur() == -1 && copy.container == container) slots = copy.Forward();
      container = copy.container;
    }
    return slots;
  }
  int BFind(int value) const override {
    if constexpr (kOwns)
      return container.BFindData(Counted(value));
    else
      return container.BFind(Counted(value));
  }

  void InsertAfterCur(int value) override {
    if constexpr (kList) container.InsertAfterCur(Make(value));
  }
  void ReverseList() override {
    if constexpr (kList) container.ReverseList();
  }
  void Rotate(int a, int b) override {
    if constexpr (kList) container.Rotate(a, b);
  }
  Slots TakeBehindCur() override {
    Slots slots;
    if constexpr (kList) {
      for (const Element& element : container.TakeElementsBehindCur()) {
        slots.push_back(Read(element));
        Discard(element);
      }
    }
    return slots;
  }
  int Conbine(Subject& other, int from) override {
    if constexpr (kList)
      return container.Conbine(static_cast<SubjectOf&>(other).container, from);
    else
      return -1;
  }
  void SplitAt(int index, Subject& other) override {
    if constexpr (kList) container.SplitAt(index, static_cast<SubjectOf&>(other).container);
  }
  void SplitAtCur(Subject& other) override {
    if constexpr (kList) container.SplitAtCur(static_cast<SubjectOf&>(other).container);
  }

  int SpaceSize() const override {
    if constexpr (kList)
      return -1;
    else
      return container.GetSpaceSize();
  }
  bool SetSpaceSize(int space) override {
    if constexpr (kList)
      return false;
    else
      return container.SetSpaceSize(space);
  }
  int SetAllocUnit(int unit) override {
    if constexpr (!kList) container.SetAllocUnit(unit);
    if constexpr (kList)
      return -1;
    else
      return container.GetAllocUnit();
  }
  int DetachAndAttach() override {
    int lengthBetween = -1;
    if constexpr (!kList) {
      const int length = container.GetLength();
      Element* const block = container.SetSpaceSize(length) ? container.Detach() : nullptr;
      lengthBetween = container.GetLength();
      container.Attach(length, block);
    }
    return lengthBetween;
  }

  void ReleaseCur() override {
    if constexpr (kOwns) container.ReleaseCur();
  }
  void Release(int index) override {
    if constexpr (kOwns) container.Release(index);
  }
  void ReleaseAll() override {
    if constexpr (kOwns) container.ReleaseAll();
  }
  Slot TakeOffCur() override {
    if constexpr (kOwns)
      return ReadAndDelete(container.TakeOffCur());
    else
      return {};
  }
  Slot TakeOff(int index) override {
    if constexpr (kOwns)
      return ReadAndDelete(container.TakeOff(index));
    else
      return {};
  }
  Slot TakeOffHead() override {
    if constexpr (kOwns)
      return ReadAndDelete(container.TakeOffHead());
    else
      return {};
  }
  Slot TakeOffTail() override {
    if constexpr (kOwns)
      return ReadAndDelete(container.TakeOffTail());
    else
      return {};
  }
  int PlaceIn(int value) override {
    if constexpr (kOwns)
      return container.PlaceIn(Make(value));
    else
      return -1;
  }
  bool IsCurEmpty() override {
    if constexpr (kOwns)
      return container.IsCurEmpty() && container.GetCurPData() == nullptr;
    else
      return false;
  }
  Slot PointeeAt(int index) const override {
    if constexpr (kOwns) {
      if (container.IsEmptyData(index) || container.GetPData(index) == nullptr) return {};
      return container(index).value;
    } else {
      return {};
    }
  }
  int FindData(int value) const override {
    if constexpr (kOwns)
      return container.FindData(Counted(value));
    else
      return -1;
  }
  int FindDataDel(int value) override {
    if constexpr (kOwns)
      return container.FindDataDel(Counted(value));
    else
      return -1;
  }
  int FindDataOrAppend(int value) override {
    if constexpr (kOwns) {
      auto* const object = new Counted(value);
      const int index = container.FindDataOrAppend(object);
      if (container.GetPData(index) != object) delete object;
      return index;
    } else {
      return -1;
    }
  }
  void SortEx(bool ascending) override {
    if constexpr (kOwns && !kList) container.SortEx(ascending);
  }
  void SortExByKey() override {
    if constexpr (kOwns && !kList) container.SortEx(&CompareKeys);
  }

 private:
  static constexpr bool kOwns = std::is_pointer_v<Element>;
  static constexpr bool kList = kIsList<Container, Element>;

  static Element Make(int value) {
    if constexpr (kOwns)
      return new Counted(value);
    else
      return Counted(value);
  }
  static Slot Read(const Element& element) {
    if constexpr (kOwns)
      return element == nullptr ? Slot() : Slot(element->value);
    else
      return element.value;
  }
  static void Discard(const Element& element) {
    if constexpr (kOwns) delete element;
  }
  static Slot ReadAndDelete(const Counted* object) {
    const std::unique_ptr<const Counted> owner(object);
    return object == nullptr ? Slot() : Slot(object->value);
  }

  std::conditional_t<kList, ListProbe<Container, Element>, Container> container;
};

}  // namespace zwt::test
