// Random operations on every container of the tree against the plain model: contents, cursor, results, the
// ring of the lists, the anchors, and the number of elements alive are compared after each step.
#include <algorithm>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "container_model.h"
#include "counted.h"
#include "subject.h"

namespace zwt::test {
namespace {

struct Case {
  const char* name;
  Kind kind;
  std::unique_ptr<Subject> (*make)();
};

class RandomOperations : public testing::TestWithParam<Case> {
 protected:
  using Step = std::function<void()>;

  RandomOperations()
      : subject(GetParam().make()), model(GetParam().kind, subject->OwnsPointees() ? Slot() : Slot(0)) {
    AddMoves();
    AddInsertions();
    AddDeletions();
    AddOrders();
    AddSizes();
    subject->OwnsPointees() ? AddOwnership() : AddSearches();
    model.IsList() ? AddRingOperations() : AddBlockOperations();
  }

  int Random(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
  bool Chance(int oneOutOf) { return Random(1, oneOutOf) == 1; }
  int NewValue() { return Random(0, 15) * Counted::kMarks + Random(0, Counted::kMarks - 1); }
  int AnyIndex() { return Random(0, model.Length() - 1); }
  int IndexOrOutside() { return Random(-2, model.Length() + 1); }

  void Add(const char* name, Step step) { steps.emplace_back(name, std::move(step)); }
  /// A step that needs an element.
  void AddIfFilled(const char* name, Step step) {
    Add(name, [this, step = std::move(step)] {
      if (model.Length() > 0) step();
    });
  }

  void Check() {
    ASSERT_EQ(subject->Length(), model.Length());
    ASSERT_EQ(subject->Forward(), model.slots);
    ASSERT_EQ(subject->Backward(), model.slots);
    ASSERT_EQ(subject->Cur(), model.cursor);
    ASSERT_EQ(subject->IsOut(), model.IsOut());
    if (model.HasElement()) {
      ASSERT_EQ(subject->CurData(), model.Current());
    }
    if (model.Length() > 0) {
      const int index = AnyIndex();
      ASSERT_EQ(subject->At(index), model.At(index));
      ASSERT_EQ(subject->Cur(), model.cursor);
    }
    ASSERT_EQ(Counted::alive, subject->ElementsAlive());
    subject->CheckInside();
  }

  void AddMoves() {
    Add("MoveToFirst", [this] { subject->MoveToFirst(), model.First(); });
    Add("MoveToLast", [this] { subject->MoveToLast(), model.Last(); });
    Add("MoveToNext", [this] {
      if (model.IsList() || model.cursor < model.Length()) subject->MoveToNext(), model.Next();
    });
    Add("MoveToPre", [this] {
      if (model.IsList() || model.cursor >= 0) subject->MoveToPre(), model.Previous();
    });
    Add("MoveTo", [this] {
      const int index = IndexOrOutside();
      subject->MoveTo(index), model.StandOn(index);
    });
    Add("GetTo", [this] {
      const int index = IndexOrOutside();
      Slot slot;
      ASSERT_EQ(subject->HasElementTo(index, slot), model.IsValid(index));
      if (model.IsValid(index)) {
        ASSERT_EQ(slot, model.At(index));
      }
    });
    Add("cursor loop", [this] {
      Slots seen;
      for (subject->MoveToFirst(); !subject->IsOut(); subject->MoveToNext())
        seen.push_back(subject->CurData());
      ASSERT_EQ(seen, model.slots);
      model.StandOn(model.Length());
    });
  }

  void AddInsertions() {
    Add("InsertCur", [this] {
      const int value = NewValue();
      subject->InsertCur(value), model.InsertHere(value);
    });
    Add("Insert", [this] {
      const int index = Random(0, model.Length());
      const int value = NewValue();
      subject->Insert(index, value), model.Insert(index, value);
    });
    Add("InsertHead", [this] {
      const int value = NewValue();
      subject->InsertHead(value), model.Insert(0, value);
    });
    Add("Append", [this] {
      const int value = NewValue();
      ASSERT_EQ(subject->Append(value), model.Append(value));
    });
    Add("operator<<", [this] {
      const int value = NewValue();
      subject->Shift(value), model.Append(value);
    });
    Add("operator[]", [this] {
      const int index = Random(0, model.Length() + 2);
      const Slot read = subject->Subscript(index);
      model.ReAllocate(std::max(index + 1, model.Length()));
      model.StandOn(index);
      ASSERT_EQ(read, model.Current());
    });
    Add("SetCurData", [this] {
      if (!model.HasElement()) return;
      const int value = NewValue();
      subject->SetCurData(value);
      model.Current() = value;
    });
  }

  void AddDeletions() {
    Add("DelCur", [this] { subject->DelCur(), model.Delete(); });
    AddIfFilled("Del", [this] {
      const int index = AnyIndex();
      subject->Del(index);
      model.StandOn(index), model.Delete();
    });
    Add("DelHead", [this] {
      subject->DelHead();
      model.First(), model.Delete();
    });
    Add("DelTail", [this] {
      subject->DelTail();
      model.Last(), model.Delete();
    });
    Add("DelCur in a loop", [this] {
      for (subject->MoveToFirst(), model.First(); !subject->IsOut(); subject->MoveToNext(), model.Next()) {
        if (Chance(5)) subject->DelCur(), model.Delete();
      }
    });
    Add("Reset", [this] {
      if (!Chance(20)) return;
      subject->Reset();
      model.slots.clear();
      model.cursor = model.place = -1;
    });
    AddIfFilled("FindDel", [this] {
      // A pointer is found as itself, a value wherever an equal one stands first.
      int index = AnyIndex();
      ASSERT_EQ(subject->FindDelElementAt(index), 1);
      if (!subject->OwnsPointees() || !model.At(index)) index = model.Find(model.At(index), 0, -1);
      model.StandOn(index), model.Delete();
    });
    Add("FindDel of what is not there", [this] {
      ASSERT_EQ(subject->FindDelAbsent(), 0);
      model.StandOn(model.Length());
    });
  }

  void AddOrders() {
    Add("Sort(ascending)", [this] {
      const bool ascending = Chance(2);
      subject->SortAscending(ascending), model.Sort(ascending);
    });
    Add("Sort(compare)", [this] { subject->SortByKey(), model.Sort(true); });
    Add("SortInto", [this] {
      subject->SortAscending(true), model.Sort(true);
      for (int count = 0; count < 4; ++count) SortIntoOne(NewValue(), Chance(2));
    });
    Add("BFind", [this] {
      subject->SortAscending(true), model.Sort(true);
      const int value = NewValue();
      int place = -1;
      const bool isThere = model.Bisect(value, place);
      ASSERT_EQ(subject->BFind(value), isThere ? place : -1);
      if (subject->OwnsPointees()) return;
      ASSERT_EQ(subject->BFindTo(value), isThere);
      model.StandOn(place);
    });
    AddIfFilled("Exchange", [this] {
      const int left = AnyIndex();
      const int right = AnyIndex();
      subject->Exchange(left, right);
      std::swap(model.At(left), model.At(right));
    });
    AddIfFilled("Reverse", [this] {
      const int first = AnyIndex();
      const int last = Random(-1, model.Length() - 1);
      subject->Reverse(first, last);
      const int end = last < 0 ? model.Length() : last + 1;
      if (first < end) std::reverse(model.slots.begin() + first, model.slots.begin() + end);
    });
    AddIfFilled("Move", [this] {
      const int from = AnyIndex();
      const int to = Random(0, model.Length());
      ASSERT_EQ(subject->Move(from, to), model.Move(from, to));
    });
    Add("Mid", [this] {
      const int first = Random(0, model.Length());
      const int count = Random(0, model.Length());
      const int end = std::min(first + count, model.Length());
      ASSERT_EQ(subject->Mid(first, count), Slots(model.slots.begin() + first, model.slots.begin() + end));
    });
  }

  void SortIntoOne(int value, bool allowEqual) {
    int place = -1;
    const bool isThere = model.Bisect(value, place);
    ASSERT_EQ(subject->SortInto(value, allowEqual), allowEqual || !isThere);
    if (isThere && !allowEqual) return model.StandOn(place);
    while (model.IsValid(place) && !ContainerModel::Below(value, model.At(place))) ++place;
    model.Insert(place, value);
  }

  void AddSizes() {
    Add("IncreaseSize", [this] {
      const int count = Random(0, 3);
      subject->IncreaseSize(count);
      model.ReAllocate(model.Length() + count);
    });
    Add("DecreaseSize", [this] {
      const int count = Random(0, model.Length());
      subject->DecreaseSize(count);
      model.ReAllocate(model.Length() - count);
    });
    Add("SetLength", [this] {
      const int length = Random(0, model.Length() + 3);
      const bool keep = !Chance(4);
      const bool contentsStay = keep || length == subject->SpaceSize();
      subject->SetLength(length, keep);
      model.SetLength(length, contentsStay);
    });
  }

  void AddSearches() {
    AddIfFilled("Find", [this] {
      const int first = AnyIndex();
      const int last = Random(-1, model.Length());
      const int value = Chance(4) ? NewValue() : *model.At(AnyIndex());
      ASSERT_EQ(subject->Find(value, first, last), model.Find(value, first, last));
      std::vector<int> expected;
      for (int index = first; index <= (model.IsValid(last) ? last : model.Length() - 1); ++index) {
        if (model.At(index) == value) expected.push_back(index);
      }
      ASSERT_EQ(subject->FindAll(value, first, last), expected);
    });
    AddIfFilled("FindTo", [this] {
      const int start = Random(0, model.Length());
      const int value = *model.At(AnyIndex());
      ASSERT_EQ(subject->FindTo(value, start), model.FindTo(value, start));
    });
    Add("FindOrAppend", [this] {
      const int value = NewValue();
      if (!model.FindTo(value, 0)) model.Append(value);
      ASSERT_EQ(subject->FindOrAppend(value), model.cursor);
    });
    Add("FindOrInsertHead", [this] {
      const int value = NewValue();
      if (!model.FindTo(value, 0)) model.Insert(0, value);
      ASSERT_EQ(subject->FindOrInsertHead(value), model.cursor);
    });
    Add("copy and assign", [this] {
      ASSERT_EQ(subject->CopyAndAssign(), model.slots);
      model.StandOn(-1);
    });
  }

  void AddRingOperations() {
    Add("InsertAfterCur", [this] {
      const int value = NewValue();
      subject->InsertAfterCur(value), model.InsertBehind(value);
    });
    Add("ReverseList", [this] { subject->ReverseList(), model.ReverseLinks(); });
    AddIfFilled("Rotate", [this] {
      const int a = AnyIndex();
      const int b = AnyIndex();
      subject->Rotate(a, b), model.Rotate(a, b);
    });
    Add("DetachAfterCur", [this] {
      if (!Chance(4)) return;
      const auto cut = model.slots.begin() + (model.place + 1);
      ASSERT_EQ(subject->TakeBehindCur(), Slots(cut, model.slots.end()));
      model.slots.erase(cut, model.slots.end());
      model.cursor = model.place;
    });
    Add("Conbine", [this] { ConbineWithAnother(); });
    Add("SplitAt", [this] { SplitOff(false); });
    Add("SplitAtCur", [this] { SplitOff(true); });
  }

  std::unique_ptr<Subject> MakeAnother(Slots& slots) {
    std::unique_ptr<Subject> another = GetParam().make();
    for (int count = Random(0, 9); count > 0; --count) {
      slots.emplace_back(NewValue());
      another->Append(*slots.back());
    }
    return another;
  }

  static void MoveTail(Slots& source, int from, Slots& target) {
    target.insert(target.end(), source.begin() + from, source.end());
    source.resize(static_cast<std::size_t>(from));
  }

  void ConbineWithAnother() {
    Slots slots;
    const std::unique_ptr<Subject> another = MakeAnother(slots);
    const int count = static_cast<int>(slots.size());
    const int from = Random(-1, count);
    if (from >= 0 && from < count) MoveTail(slots, from, model.slots);
    ASSERT_EQ(subject->Conbine(*another, from), model.Length());
    ASSERT_EQ(another->Forward(), slots);
    another->CheckInside();
  }

  void SplitOff(bool atCursor) {
    Slots slots;
    const std::unique_ptr<Subject> another = MakeAnother(slots);
    const int from = atCursor ? model.cursor : Random(-1, model.Length());
    atCursor ? subject->SplitAtCur(*another) : subject->SplitAt(from, *another);
    if (!atCursor) model.StandOn(from);
    if (model.IsValid(from)) {
      MoveTail(model.slots, from, slots);
      model.StandOn(from - 1);
    }
    ASSERT_EQ(another->Forward(), slots);
    another->CheckInside();
  }

  void AddBlockOperations() {
    Add("SetSpaceSize", [this] {
      const int space = Random(0, model.Length() + 5);
      ASSERT_EQ(subject->SetSpaceSize(space), space >= model.Length());
      if (space >= model.Length()) {
        ASSERT_EQ(subject->SpaceSize(), space);
      }
    });
    Add("Detach and Attach", [this] {
      ASSERT_EQ(subject->DetachAndAttach(), 0);
      model.StandOn(-1);
    });
    Add("SetAllocUnit", [this] {
      const int unit = Random(0, 4);
      ASSERT_EQ(subject->SetAllocUnit(unit), unit);
    });
  }

  void EmptyCurrentSlot() {
    if (!model.IsOut()) model.Current().reset();
  }

  /// Compares what was taken off with the slot under the model's cursor, which it empties.
  void CheckTakenOff(const Slot& taken) {
    ASSERT_EQ(taken, model.IsOut() ? Slot() : model.Current());
    EmptyCurrentSlot();
  }

  void AddOwnership() {
    Add("ReleaseCur", [this] { subject->ReleaseCur(), EmptyCurrentSlot(); });
    Add("Release", [this] {
      const int index = IndexOrOutside();
      subject->Release(index);
      model.StandOn(index), EmptyCurrentSlot();
    });
    Add("ReleaseAll", [this] {
      if (!Chance(9)) return;
      subject->ReleaseAll();
      std::fill(model.slots.begin(), model.slots.end(), Slot());
      model.StandOn(model.Length());
    });
    Add("TakeOffCur", [this] { CheckTakenOff(subject->TakeOffCur()); });
    Add("TakeOff", [this] {
      const int index = IndexOrOutside();
      model.StandOn(index);
      CheckTakenOff(subject->TakeOff(index));
    });
    Add("TakeOffHead", [this] {
      model.First();
      CheckTakenOff(subject->TakeOffHead());
    });
    Add("TakeOffTail", [this] {
      model.Last();
      CheckTakenOff(subject->TakeOffTail());
    });
    Add("PlaceIn", [this] {
      const int value = NewValue();
      if (!model.FindTo(Slot(), 0)) model.Append(Slot());
      model.Current() = value;
      ASSERT_EQ(subject->PlaceIn(value), model.cursor);
    });
    Add("reading the slots", [this] {
      ASSERT_EQ(subject->IsCurEmpty(), model.IsOut() || !model.Current());
      for (int index = -1; index <= model.Length(); ++index) {
        ASSERT_EQ(subject->PointeeAt(index), model.IsValid(index) ? model.At(index) : Slot());
      }
    });
    AddSearchesByData();
  }

  void AddSearchesByData() {
    Add("FindData", [this] {
      const int value = NewValue();
      ASSERT_EQ(subject->FindData(value), model.Find(value, 0, -1));
    });
    Add("FindDataDel", [this] {
      const int value = NewValue();
      const bool found = model.FindTo(value, 0);
      if (found) model.Delete();
      ASSERT_EQ(subject->FindDataDel(value), found ? 1 : 0);
    });
    Add("FindDataOrAppend", [this] {
      const int value = NewValue();
      if (!model.FindTo(value, 0)) model.Append(value);
      ASSERT_EQ(subject->FindDataOrAppend(value), model.cursor);
    });
    if (model.IsList()) return;
    Add("SortEx(ascending)", [this] {
      const bool ascending = Chance(2);
      subject->SortEx(ascending), model.Sort(ascending);
    });
    Add("SortEx(compare)", [this] { subject->SortExByKey(), model.Sort(true); });
  }

  std::mt19937 random{20240817};
  std::unique_ptr<Subject> subject;
  ContainerModel model;
  std::vector<std::pair<const char*, Step>> steps;
};

TEST_P(RandomOperations, AgreeWithAVectorThatHasACursor) {
  constexpr int kSteps = 40000;
  constexpr int kLongest = 40;
  for (int number = 0; number < kSteps; ++number) {
    const auto& [name, step] = steps[static_cast<std::size_t>(Random(0, static_cast<int>(steps.size()) - 1))];
    ASSERT_NO_FATAL_FAILURE(step()) << name << " in step " << number;
    if (model.Length() > kLongest) subject->SetLength(5, true), model.SetLength(5, true);
    ASSERT_NO_FATAL_FAILURE(Check()) << name << " in step " << number;
    ASSERT_FALSE(HasNonfatalFailure()) << name << " in step " << number;
  }
  subject.reset();
  EXPECT_EQ(Counted::alive, 0);
}

/// Groups of few nodes, so that short lists have many anchors.
template <class List, int kGroupSize>
struct Grouped : List {
  Grouped() : List(0, kGroupSize, 1) {}
};

template <class Container, class Element>
std::unique_ptr<Subject> Make() {
  return std::make_unique<SubjectOf<Container, Element>>();
}

INSTANTIATE_TEST_SUITE_P(
    Containers, RandomOperations,
    testing::Values(Case{"ZcDynArray", Kind::kArray, Make<ZcDynArray<Counted>, Counted>},
                    Case{"ZcList", Kind::kSingleList, Make<ZcList<Counted>, Counted>},
                    Case{"ZcDList", Kind::kDoubleList, Make<ZcDList<Counted>, Counted>},
                    Case{"ZcXListInThrees", Kind::kDoubleList, Make<Grouped<ZcXList<Counted>, 3>, Counted>},
                    Case{"ZcXListInOnes", Kind::kDoubleList, Make<Grouped<ZcXList<Counted>, 1>, Counted>},
                    Case{"ZcDynPArray", Kind::kArray, Make<ZcDynPArray<Counted>, Counted*>},
                    Case{"ZcPDList", Kind::kDoubleList, Make<ZcPDList<Counted>, Counted*>},
                    Case{"ZcPXListInThrees", Kind::kDoubleList,
                         Make<Grouped<ZcPXList<Counted>, 3>, Counted*>}),
    [](const auto& instance) { return std::string(instance.param.name); });

}  // namespace
}  // namespace zwt::test
