// Containers that own their pointees: what is deleted when, empty slots, and searching by data.
#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "counted.h"
#include "frame/containers/zc_array.h"
#include "frame/containers/zc_pointer_containers.h"

namespace {

using zwt::test::Contents;
using zwt::test::Counted;
using Ints = std::vector<int>;

constexpr int kEmpty = -1;

template <class Container>
class Owners : public testing::Test {
 protected:
  ~Owners() override {
    container.Reset();
    EXPECT_EQ(Counted::alive, 0);
  }

  void Fill(std::initializer_list<int> values) {
    for (const int value : values) container.Append(value == kEmpty ? nullptr : new Counted(value));
  }
  Ints Values() const {
    Ints values;
    for (Counted* const object : Contents<Counted*>(container)) {
      values.push_back(object == nullptr ? kEmpty : object->value);
    }
    return values;
  }

  Container container;
};
using Kinds = testing::Types<ZcDynPArray<Counted>, ZcPDList<Counted>, ZcPXList<Counted>>;
TYPED_TEST_SUITE(Owners, Kinds);

TYPED_TEST(Owners, DestructorDeletesEveryPointee) {
  {
    TypeParam local;
    local.Append(new Counted(1));
    local.Append(nullptr);
    local.Append(new Counted(2));
    EXPECT_EQ(Counted::alive, 2);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TYPED_TEST(Owners, PointeesAreDeletedThroughTheirVirtualDestructor) {
  struct Larger : Counted {
    explicit Larger(bool& deletedFlag) : deleted(deletedFlag) {}
    ~Larger() override { deleted = true; }
    bool& deleted;
  };
  bool deleted = false;
  this->container.Append(new Larger(deleted));
  this->container.DelHead();
  EXPECT_TRUE(deleted);
}

TYPED_TEST(Owners, ANullSlotSurvivesReset) {
  this->Fill({1, kEmpty, 2});
  this->container.Reset();
  EXPECT_TRUE(this->container.IsEmpty());
  EXPECT_EQ(Counted::alive, 0);
}

TYPED_TEST(Owners, ANullSlotSurvivesEverySortAndGoesLast) {
  this->Fill({30, kEmpty, 10, kEmpty, 20});
  this->container.Sort(true);
  EXPECT_EQ(this->Values(), (Ints{10, 20, 30, kEmpty, kEmpty}));
  this->container.Sort(false);
  EXPECT_EQ(this->Values(), (Ints{30, 20, 10, kEmpty, kEmpty}));
  this->container.Move(3, 0);
  this->container.Sort(+[](const Counted& left, const Counted& right) { return left.value - right.value; });
  EXPECT_EQ(this->Values(), (Ints{10, 20, 30, kEmpty, kEmpty}));
  this->container.Move(3, 0);
  this->container.Sort(
      +[](Counted* const& left, Counted* const& right) { return right->value - left->value; });
  EXPECT_EQ(this->Values(), (Ints{30, 20, 10, kEmpty, kEmpty}));
}

TYPED_TEST(Owners, DelCurDeletesThePointeeAndTheSlot) {
  this->Fill({1, 2, 3, 4});
  this->container.MoveTo(1);
  this->container.DelCur();
  EXPECT_EQ(this->Values(), (Ints{1, 3, 4}));
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(Counted::alive, 3);
  this->container.DelTail();
  EXPECT_EQ(this->Values(), (Ints{1, 3}));
  this->container.DelHead();
  this->container.DelHead();
  EXPECT_EQ(Counted::alive, 0);
}

TYPED_TEST(Owners, ReleaseCurDeletesThePointeeAndKeepsTheSlot) {
  this->Fill({1, 2});
  this->container.MoveToFirst();
  this->container.ReleaseCur();
  this->container.ReleaseCur();
  EXPECT_EQ(this->Values(), (Ints{kEmpty, 2}));
  this->container.MoveTo(-1);
  this->container.ReleaseCur();
  EXPECT_EQ(Counted::alive, 1);
  this->container.Release(1);
  EXPECT_EQ(this->Values(), (Ints{kEmpty, kEmpty}));
}

TYPED_TEST(Owners, ReleaseAllEmptiesEverySlot) {
  this->Fill({1, 2, kEmpty, 3});
  this->container.ReleaseAll();
  EXPECT_EQ(this->container.GetLength(), 4);
  EXPECT_EQ(this->container.GetDataNum(), 0);
  EXPECT_EQ(Counted::alive, 0);
}

TYPED_TEST(Owners, TakeOffHandsThePointeeOverAndKeepsTheSlot) {
  this->Fill({1, 2, 3});
  const std::unique_ptr<Counted> head(this->container.TakeOffHead());
  const std::unique_ptr<Counted> tail(this->container.TakeOffTail());
  const std::unique_ptr<Counted> middle(this->container.TakeOff(1));
  EXPECT_EQ(head->value, 1);
  EXPECT_EQ(middle->value, 2);
  EXPECT_EQ(tail->value, 3);
  EXPECT_EQ(this->container.GetLength(), 3);
  EXPECT_EQ(this->container.GetDataNum(), 0);
  EXPECT_EQ(this->container.TakeOffHead(), nullptr);
}

TYPED_TEST(Owners, TakeOffWithTheCursorOutGivesNull) {
  EXPECT_EQ(this->container.TakeOffCur(), nullptr);
  EXPECT_EQ(this->container.TakeOffHead(), nullptr);
  EXPECT_EQ(this->container.TakeOffTail(), nullptr);
  this->Fill({1});
  EXPECT_EQ(this->container.TakeOff(5), nullptr);
  EXPECT_EQ(this->container.TakeOff(-1), nullptr);
}

TYPED_TEST(Owners, PlaceInFillsTheFirstEmptySlotOrExtends) {
  this->Fill({1, kEmpty, kEmpty});
  EXPECT_EQ(this->container.PlaceIn(new Counted(2)), 1);
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(this->container.PlaceIn(new Counted(3)), 2);
  EXPECT_EQ(this->container.PlaceIn(new Counted(4)), 3);
  EXPECT_EQ(this->Values(), (Ints{1, 2, 3, 4}));
}

TYPED_TEST(Owners, SlotsAreReadByIndexAndUnderTheCursor) {
  this->Fill({1, kEmpty});
  EXPECT_EQ(this->container.GetPData(0)->value, 1);
  EXPECT_EQ(this->container.GetPData(1), nullptr);
  EXPECT_EQ(this->container.GetPData(2), nullptr);
  EXPECT_EQ(this->container(0).value, 1);
  EXPECT_FALSE(this->container.IsEmptyData(0));
  EXPECT_TRUE(this->container.IsEmptyData(1));
  EXPECT_TRUE(this->container.IsEmptyData(-1));
  EXPECT_TRUE(this->container.IsCurEmpty());
  this->container.MoveToFirst();
  EXPECT_FALSE(this->container.IsCurEmpty());
  EXPECT_EQ(this->container.GetCurPData(), this->container.GetPData(0));
  this->container.MoveTo(-1);
  EXPECT_TRUE(this->container.IsCurEmpty());
  EXPECT_EQ(this->container.GetCurPData(), nullptr);
}

TYPED_TEST(Owners, GetDataNumCountsFilledSlotsAndGetLengthAll) {
  this->Fill({kEmpty, 1, kEmpty, 2});
  EXPECT_EQ(this->container.GetDataNum(), 2);
  EXPECT_EQ(this->container.GetLength(), 4);
}

TYPED_TEST(Owners, FindDataComparesThePointees) {
  this->Fill({5, kEmpty, 7, 5});
  EXPECT_EQ(this->container.FindData(Counted(5)), 0);
  EXPECT_EQ(this->container.FindData(Counted(5), 1), 3);
  EXPECT_EQ(this->container.FindData(Counted(6)), -1);
}

TYPED_TEST(Owners, FindDelComparesThePointersAndDeletesThePointee) {
  this->Fill({5, 5});
  Counted* const second = this->container.GetPData(1);
  Counted stranger(5);
  EXPECT_EQ(this->container.FindDel(&stranger), 0);
  EXPECT_EQ(this->container.FindDel(second), 1);
  EXPECT_EQ(this->Values(), (Ints{5}));
  EXPECT_EQ(Counted::alive, 2);
}

TYPED_TEST(Owners, FindDataDelDeletesTheFirstMatch) {
  this->Fill({5, 7, 5});
  EXPECT_EQ(this->container.FindDataDel(Counted(5)), 1);
  EXPECT_EQ(this->container.FindDataDel(Counted(6)), 0);
  EXPECT_EQ(this->Values(), (Ints{7, 5}));
  EXPECT_EQ(Counted::alive, 2);
}

TYPED_TEST(Owners, FindDataOrAppendOwnsOnlyWhatItAppends) {
  this->Fill({kEmpty, 5});
  const auto duplicate = std::make_unique<Counted>(5);
  EXPECT_EQ(this->container.FindDataOrAppend(duplicate.get()), 1);
  EXPECT_EQ(this->container.FindDataOrAppend(new Counted(6)), 2);
  EXPECT_EQ(this->Values(), (Ints{kEmpty, 5, 6}));
}

TYPED_TEST(Owners, SortIntoAndBFindDataOrderByThePointees) {
  for (const int key : {5, 1, 9, 3}) {
    EXPECT_TRUE(this->container.SortInto(new Counted(key * Counted::kMarks), false));
  }
  this->container.Append(nullptr);
  const auto duplicate = std::make_unique<Counted>(3 * Counted::kMarks);
  EXPECT_FALSE(this->container.SortInto(duplicate.get(), false));
  EXPECT_TRUE(this->container.SortInto(new Counted(3 * Counted::kMarks + 1), true));
  EXPECT_TRUE(this->container.SortInto(new Counted(10 * Counted::kMarks), true));
  EXPECT_EQ(this->Values(), (Ints{8, 24, 25, 40, 72, 80, kEmpty}));
  EXPECT_EQ(this->container.BFindData(Counted(40)), 3);
  EXPECT_EQ(this->container.BFindData(Counted(48)), -1);
}

TYPED_TEST(Owners, MoveCarriesThePointeeAlong) {
  this->Fill({0, 1, 2, 3});
  EXPECT_TRUE(this->container.Move(0, 3));
  EXPECT_EQ(this->Values(), (Ints{1, 2, 0, 3}));
  EXPECT_EQ(this->container.GetCur(), 2);
  EXPECT_TRUE(this->container.Move(3, 0));
  EXPECT_EQ(this->Values(), (Ints{3, 1, 2, 0}));
  EXPECT_FALSE(this->container.Move(1, 2));
  EXPECT_EQ(Counted::alive, 4);
}

TYPED_TEST(Owners, GrowthAddsEmptySlots) {
  this->Fill({1});
  this->container.IncreaseSize(2);
  EXPECT_EQ(this->Values(), (Ints{1, kEmpty, kEmpty}));
  this->container[4];
  EXPECT_EQ(this->container.GetLength(), 5);
  EXPECT_EQ(this->container.GetDataNum(), 1);
}

TYPED_TEST(Owners, SetLengthDeletesThePointeesThatGo) {
  this->Fill({1, 2, 3});
  this->container.SetLength(1, true);
  EXPECT_EQ(this->Values(), (Ints{1}));
  EXPECT_EQ(Counted::alive, 1);
}

TYPED_TEST(Owners, ACopyHoldsTheSamePointers) {
  this->Fill({1, 2});
  {
    TypeParam copy(this->container);
    TypeParam assigned;
    assigned.Append(new Counted(9));
    assigned = this->container;
    EXPECT_EQ(Counted::alive, 2);
    EXPECT_EQ(copy.GetPData(0), this->container.GetPData(0));
    EXPECT_EQ(assigned.GetPData(1), this->container.GetPData(1));
    while (copy.TakeOff(copy.Find(copy.GetPData(0) != nullptr ? copy.GetPData(0) : copy.GetPData(1))) !=
           nullptr) {
    }
    assigned.TakeOffHead();
    assigned.TakeOffTail();
  }
  EXPECT_EQ(this->Values(), (Ints{1, 2}));
}

TEST(DynPArray, DecreaseSizeDeletesThePointeesThatGo) {
  ZcDynPArray<Counted> array;
  for (int value = 0; value < 3; ++value) array.Append(new Counted(value));
  array.DecreaseSize(2);
  EXPECT_EQ(Counted::alive, 1);
  EXPECT_EQ(array.GetPData(0)->value, 0);
}

TEST(DynPArray, SetLengthWithoutKeepDeletesAllPointees) {
  ZcDynPArray<Counted> array;
  for (int value = 0; value < 3; ++value) array.Append(new Counted(value));
  array.SetLength(5, false);
  EXPECT_EQ(Counted::alive, 0);
  EXPECT_EQ(array.GetDataNum(), 0);
}

TEST(DynPArray, DelCurKeepsThePointeeOfTheLastSlot) {
  ZcDynPArray<Counted> array;
  for (int value = 0; value < 3; ++value) array.Append(new Counted(value));
  array.Del(0);
  EXPECT_EQ(array.GetPData(0)->value, 1);
  EXPECT_EQ(array.GetPData(1)->value, 2);
  EXPECT_EQ(Counted::alive, 2);
}

TEST(DynPArray, AttachDeletesThePointeesHeldSoFarAndDetachNone) {
  ZcDynPArray<Counted> array;
  array.Append(new Counted(1));
  array.Attach(
      2, new Counted* [2] { new Counted(2), nullptr });
  EXPECT_EQ(Counted::alive, 1);
  const std::unique_ptr<Counted*[]> block(array.Detach());
  EXPECT_EQ(Counted::alive, 1);
  delete block[0];
}

TEST(DynPArray, SortExIsStableAndAgreesWithSort) {
  ZcDynPArray<Counted> merged;
  ZcDynPArray<Counted> inserted;
  for (int number = 0; number < 1000; ++number) {
    const int value = number * 7919 % 100 * Counted::kMarks + number % Counted::kMarks;
    merged.Append(number % 17 == 0 ? nullptr : new Counted(value));
    inserted.Append(number % 17 == 0 ? nullptr : new Counted(value));
  }
  const auto compare =
      +[](const Counted& left, const Counted& right) { return left.Key() > right.Key() ? 1 : -1; };
  merged.SortEx(compare);
  inserted.Sort(compare);
  for (int index = 0; index < merged.GetLength(); ++index) {
    ASSERT_EQ(merged.IsEmptyData(index), inserted.IsEmptyData(index));
    if (!merged.IsEmptyData(index)) {
      ASSERT_EQ(merged(index).value, inserted(index).value);
    }
  }
  merged.SortEx(false);
  EXPECT_EQ(merged(0).Key(), 99);
}

TEST(PointerLists, ConbineMovesTheOwnership) {
  ZcPDList<Counted> first;
  ZcPDList<Counted> second;
  first.Append(new Counted(1));
  second.Append(new Counted(2));
  second.Append(new Counted(3));
  EXPECT_EQ(first.Conbine(second, 1), 2);
  second.Reset();
  EXPECT_EQ(Counted::alive, 2);
  EXPECT_EQ(first.GetPData(1)->value, 3);
}

TEST(PointerLists, ConbineFromAPlainListOfPointersTakesTheOwnership) {
  ZcList<Counted*> plain;
  plain.Append(new Counted(1));
  ZcPXList<Counted> owner;
  EXPECT_EQ(owner.Conbine(plain, 0), 1);
  EXPECT_TRUE(plain.IsEmpty());
  EXPECT_EQ(owner(0).value, 1);
}

}  // namespace
