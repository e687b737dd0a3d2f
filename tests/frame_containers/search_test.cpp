// What the root gives to every container: searching, sorting, copying, comparing, and moving single elements.
#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "counted.h"
#include "frame/containers/zc_array.h"
#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_queue.h"
#include "frame/containers/zc_xlist.h"

namespace {

using zwt::test::Contents;
using zwt::test::Counted;
using zwt::test::Fill;
using Ints = std::vector<int>;

template <class Container>
class Root : public testing::Test {
 protected:
  Container container;
};
using Kinds = testing::Types<ZcDynArray<int>, ZcList<int>, ZcDList<int>, ZcXList<int>>;
TYPED_TEST_SUITE(Root, Kinds);

TYPED_TEST(Root, IndexQueriesFollowTheLength) {
  Fill(this->container, {1, 2});
  EXPECT_EQ(this->container.GetLength(), 2);
  EXPECT_EQ(this->container.GetMaxIndex(), 1);
  EXPECT_TRUE(this->container.IsValidIndex(1));
  EXPECT_FALSE(this->container.IsValidIndex(2));
  EXPECT_FALSE(this->container.IsValidIndex(-1));
  EXPECT_FALSE(this->container.IsEmpty());
}

TYPED_TEST(Root, GetToIsNullForAnIndexThatIsNotValid) {
  Fill(this->container, {1, 2});
  EXPECT_EQ(this->container.GetTo(2), nullptr);
  EXPECT_EQ(this->container.GetTo(-1), nullptr);
  *this->container.GetTo(0) = 7;
  EXPECT_EQ(this->container.GetAt(0), 7);
  EXPECT_EQ(this->container.GetCur(), 1);
}

TYPED_TEST(Root, ElementPointersWalkBothWays) {
  EXPECT_EQ(this->container.GetFirst(), nullptr);
  EXPECT_EQ(this->container.GetLast(), nullptr);
  EXPECT_EQ(this->container.GetNext(nullptr), nullptr);
  EXPECT_EQ(this->container.GetPre(nullptr), nullptr);
  Fill(this->container, {1, 2});
  const int* const first = this->container.GetFirst();
  const int* const last = this->container.GetLast();
  EXPECT_EQ(*first, 1);
  EXPECT_EQ(*last, 2);
  EXPECT_EQ(this->container.GetNext(first), last);
  EXPECT_EQ(this->container.GetPre(last), first);
  EXPECT_EQ(this->container.GetNext(last), nullptr);
  EXPECT_EQ(this->container.GetPre(first), nullptr);
}

TYPED_TEST(Root, SetCurDataReplacesTheElementUnderTheCursor) {
  Fill(this->container, {1, 2, 3});
  this->container.MoveTo(1);
  this->container.SetCurData(9);
  EXPECT_EQ(Contents(this->container), (Ints{1, 9, 3}));
}

TYPED_TEST(Root, DelHeadDelTailAndDelTakeTheirElement) {
  Fill(this->container, {1, 2, 3, 4, 5});
  this->container.DelHead();
  EXPECT_EQ(this->container.GetCur(), -1);
  this->container.DelTail();
  EXPECT_EQ(this->container.GetCur(), 2);
  this->container.Del(1);
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(Contents(this->container), (Ints{2, 4}));
}

TYPED_TEST(Root, FindGivesTheFirstIndexWithinTheRange) {
  Fill(this->container, {5, 7, 5, 7, 5});
  EXPECT_EQ(this->container.Find(7), 1);
  EXPECT_EQ(this->container.Find(7, 2), 3);
  EXPECT_EQ(this->container.Find(7, 2, 2), -1);
  EXPECT_EQ(this->container.Find(5, 3, 99), 4);
  EXPECT_EQ(this->container.Find(6), -1);
  EXPECT_EQ(this->container.Find(5, 5), -1);
  EXPECT_EQ(this->container.GetCur(), 4);
}

TYPED_TEST(Root, FindCollectsAllIndicesInAQueue) {
  Fill(this->container, {5, 7, 5, 7, 5});
  ZcListQuene<std::int32_t> all;
  this->container.Find(5, all);
  ASSERT_EQ(all.GetLength(), 3);
  EXPECT_EQ(all.GetAt(0), 0);
  EXPECT_EQ(all.GetAt(1), 2);
  EXPECT_EQ(all.GetAt(2), 4);
  ZcListQuene<std::int32_t> inside;
  this->container.Find(5, inside, 1, 3);
  EXPECT_EQ(inside.GetLength(), 1);
  ZcListQuene<std::int32_t> bounded(2);
  this->container.Find(5, bounded);
  EXPECT_EQ(bounded.GetLength(), 2);
}

TYPED_TEST(Root, FindToPutsTheCursorOnTheMatchOrOut) {
  Fill(this->container, {5, 7, 5});
  EXPECT_TRUE(this->container.FindTo(5));
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_TRUE(this->container.FindTo(5, 1));
  EXPECT_EQ(this->container.GetCur(), 2);
  EXPECT_FALSE(this->container.FindTo(7, 2));
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(Root, FindDelTakesTheFirstMatchOnly) {
  Fill(this->container, {5, 7, 5});
  EXPECT_EQ(this->container.FindDel(5), 1);
  EXPECT_EQ(this->container.FindDel(6), 0);
  EXPECT_EQ(Contents(this->container), (Ints{7, 5}));
}

TYPED_TEST(Root, FindOrAppendAndFindOrInsertHeadAddWhatIsAbsent) {
  EXPECT_EQ(this->container.FindOrAppend(5), 0);
  EXPECT_EQ(this->container.FindOrAppend(6), 1);
  EXPECT_EQ(this->container.FindOrAppend(5), 0);
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(this->container.FindOrInsertHead(6), 1);
  EXPECT_EQ(this->container.FindOrInsertHead(4), 0);
  EXPECT_EQ(Contents(this->container), (Ints{4, 5, 6}));
}

TYPED_TEST(Root, BFindHalvesFromTheMiddle) {
  Fill(this->container, {1, 3, 5, 5, 5, 9});
  EXPECT_EQ(this->container.BFind(1), 0);
  EXPECT_EQ(this->container.BFind(9), 5);
  EXPECT_EQ(this->container.BFind(5), 2);
  EXPECT_EQ(this->container.BFind(4), -1);
  EXPECT_EQ(this->container.BFind(0), -1);
  EXPECT_EQ(this->container.BFind(10), -1);
  EXPECT_EQ(this->container.GetCur(), 5);
}

TYPED_TEST(Root, BFindStaysWithinItsRange) {
  Fill(this->container, {1, 3, 5, 7, 9});
  EXPECT_EQ(this->container.BFind(1, 1, 3), -1);
  EXPECT_EQ(this->container.BFind(9, 1, 3), -1);
  EXPECT_EQ(this->container.BFind(7, 1, 3), 3);
  EXPECT_EQ(this->container.BFind(9, 1, 5), 4);
  EXPECT_EQ(this->container.BFind(5, 3, 2), -1);
}

TYPED_TEST(Root, BFindOnEmptyFindsNothing) {
  EXPECT_EQ(this->container.BFind(1), -1);
  EXPECT_FALSE(this->container.BFindTo(1));
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(Root, BFindToStandsWhereTheValueBelongs) {
  Fill(this->container, {1, 3, 5});
  EXPECT_TRUE(this->container.BFindTo(3));
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_FALSE(this->container.BFindTo(4));
  EXPECT_EQ(this->container.GetCur(), 2);
  EXPECT_FALSE(this->container.BFindTo(0));
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_FALSE(this->container.BFindTo(6));
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(Root, SortIntoKeepsTheOrderAndRefusesEqualOnesUnlessAllowed) {
  for (const int value : {5, 1, 9, 3, 9, 1}) EXPECT_TRUE(this->container.SortInto(value, true));
  EXPECT_FALSE(this->container.SortInto(5, false));
  EXPECT_TRUE(this->container.SortInto(4, false));
  EXPECT_EQ(this->container.GetCur(), 3);
  EXPECT_EQ(Contents(this->container), (Ints{1, 1, 3, 4, 5, 9, 9}));
}

TYPED_TEST(Root, ExchangeSwapsTwoElementsAndKeepsTheCursor) {
  Fill(this->container, {1, 2, 3});
  this->container.Exchange(0, 2);
  this->container.Exchange(1, 1);
  this->container.Exchange(0, 3);
  EXPECT_EQ(Contents(this->container), (Ints{3, 2, 1}));
  EXPECT_EQ(this->container.GetCur(), 2);
}

TYPED_TEST(Root, ReverseTurnsARangeOrAll) {
  Fill(this->container, {1, 2, 3, 4, 5});
  this->container.Reverse(1, 3);
  EXPECT_EQ(Contents(this->container), (Ints{1, 4, 3, 2, 5}));
  this->container.Reverse();
  EXPECT_EQ(Contents(this->container), (Ints{5, 2, 3, 4, 1}));
  this->container.Reverse(3, -1);
  EXPECT_EQ(Contents(this->container), (Ints{5, 2, 3, 1, 4}));
  this->container.Reverse(3, 2);
  EXPECT_EQ(Contents(this->container), (Ints{5, 2, 3, 1, 4}));
}

TYPED_TEST(Root, MoveBringsAnElementInFrontOfAnother) {
  Fill(this->container, {0, 1, 2, 3, 4});
  EXPECT_TRUE(this->container.Move(3, 1));
  EXPECT_EQ(Contents(this->container), (Ints{0, 3, 1, 2, 4}));
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(this->container.GetCurData(), 3);
  EXPECT_TRUE(this->container.Move(1, 4));
  EXPECT_EQ(Contents(this->container), (Ints{0, 1, 2, 3, 4}));
  EXPECT_EQ(this->container.GetCur(), 3);
  EXPECT_TRUE(this->container.Move(0, 5));
  EXPECT_EQ(Contents(this->container), (Ints{1, 2, 3, 4, 0}));
}

TYPED_TEST(Root, MoveToItsOwnPlaceOrOutOfRangeGivesFalse) {
  Fill(this->container, {0, 1, 2});
  EXPECT_FALSE(this->container.Move(1, 1));
  EXPECT_FALSE(this->container.Move(1, 2));
  EXPECT_FALSE(this->container.Move(3, 0));
  EXPECT_FALSE(this->container.Move(-1, 2));
  EXPECT_FALSE(this->container.Move(0, 4));
  EXPECT_EQ(Contents(this->container), (Ints{0, 1, 2}));
}

TYPED_TEST(Root, LeftMidAndRightCopyParts) {
  Fill(this->container, {1, 2, 3, 4});
  const auto values = [](const ZcArray<int>& part) {
    return Ints(part.GetDataBuffer(), part.GetDataBuffer() + part.GetLength());
  };
  EXPECT_EQ(values(this->container.Left(2)), (Ints{1, 2}));
  EXPECT_EQ(values(this->container.Right(3)), (Ints{2, 3, 4}));
  EXPECT_EQ(values(this->container.Mid(1, 2)), (Ints{2, 3}));
  EXPECT_EQ(this->container.Left(9).GetLength(), 4);
  EXPECT_EQ(this->container.Right(-1).GetLength(), 0);
  EXPECT_EQ(this->container.Mid(9, 1).GetLength(), 0);
  EXPECT_EQ(this->container.Mid(3, 9).GetAt(0), 4);
}

TYPED_TEST(Root, DeepCopyTakesAnyContainerOfTheFamily) {
  ZcDynArray<int> array;
  Fill(array, {1, 2, 3});
  this->container.Append(9);
  this->container.DeepCopy(array);
  EXPECT_EQ(Contents(this->container), (Ints{1, 2, 3}));
  EXPECT_EQ(this->container.GetCur(), -1);
  ZcArray<int> plain(2);
  plain.SetAll(4);
  this->container.DeepCopy(plain);
  EXPECT_EQ(Contents(this->container), (Ints{4, 4}));
  this->container.DeepCopy(this->container);
  EXPECT_EQ(Contents(this->container), (Ints{4, 4}));
}

TYPED_TEST(Root, CopyAndAssignmentAreIndependentOfTheSource) {
  Fill(this->container, {1, 2});
  TypeParam copy(this->container);
  TypeParam assigned;
  assigned.Append(7);
  assigned = this->container;
  this->container.MoveToFirst();
  this->container.SetCurData(9);
  EXPECT_EQ(Contents(copy), (Ints{1, 2}));
  EXPECT_EQ(Contents(assigned), (Ints{1, 2}));
  EXPECT_EQ(copy.GetCur(), -1);
  const TypeParam& self = assigned;
  assigned = self;
  EXPECT_EQ(Contents(assigned), (Ints{1, 2}));
}

TYPED_TEST(Root, ShiftAppends) {
  this->container << 1 << 2;
  EXPECT_EQ(Contents(this->container), (Ints{1, 2}));
}

TYPED_TEST(Root, EqualityComparesElementsAndOrderComparesLengths) {
  ZcDList<int> same;
  Fill(this->container, {1, 2});
  Fill(same, {1, 2});
  EXPECT_TRUE(this->container == same);
  EXPECT_FALSE(this->container != same);
  EXPECT_TRUE(this->container <= same);
  EXPECT_TRUE(this->container >= same);
  same.SetCurData(0);
  EXPECT_TRUE(this->container != same);
  EXPECT_FALSE(this->container < same);
  same.Append(0);
  EXPECT_TRUE(this->container != same);
  EXPECT_TRUE(this->container < same);
  EXPECT_TRUE(same > this->container);
}

TYPED_TEST(Root, AnElementOfTheContainerItselfCanBeAdded) {
  Fill(this->container, {1, 2});
  this->container.Append(this->container.GetAt(0));
  this->container.InsertHead(this->container.GetAt(1));
  this->container.Insert(2, this->container.GetAt(3));
  EXPECT_EQ(Contents(this->container), (Ints{2, 1, 1, 2, 1}));
}

TYPED_TEST(Root, SortUpAndDown) {
  Fill(this->container, {3, 1, 2, 1});
  this->container.Sort(true);
  EXPECT_EQ(Contents(this->container), (Ints{1, 1, 2, 3}));
  this->container.Sort(false);
  EXPECT_EQ(Contents(this->container), (Ints{3, 2, 1, 1}));
}

TYPED_TEST(Root, SortKeepsTheCursorsIndex) {
  Fill(this->container, {3, 1, 2});
  this->container.MoveTo(1);
  this->container.Sort(true);
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(this->container.GetCurData(), 2);
}

TYPED_TEST(Root, SortOfNoneOrOneDoesNothing) {
  this->container.Sort(true);
  EXPECT_TRUE(this->container.IsEmpty());
  this->container.Append(1);
  this->container.Sort(false);
  EXPECT_EQ(Contents(this->container), (Ints{1}));
}

template <class Container>
class Stable : public testing::Test {
 protected:
  Stable() {
    for (const int value : {3 * 8, 1 * 8, 3 * 8 + 1, 1 * 8 + 1, 2 * 8, 1 * 8 + 2})
      container.Append(Counted(value));
  }
  Ints Values() const {
    Ints values;
    for (const Counted& element : Contents<Counted>(container)) values.push_back(element.value);
    return values;
  }

  Container container;
};
using StableKinds = testing::Types<ZcDynArray<Counted>, ZcList<Counted>, ZcDList<Counted>, ZcXList<Counted>>;
TYPED_TEST_SUITE(Stable, StableKinds);

int MinusOneForEqual(const Counted& left, const Counted& right) {
  return left.Key() > right.Key() ? 1 : -1;
}
int ZeroForEqual(const Counted& left, const Counted& right) {
  return left.Key() - right.Key();
}

TYPED_TEST(Stable, EqualKeysKeepTheirOrderAlsoWhereTheComparisonNeverGivesZero) {
  this->container.Sort(&MinusOneForEqual);
  EXPECT_EQ(this->Values(), (Ints{8, 9, 10, 16, 24, 25}));
}

TYPED_TEST(Stable, EqualKeysKeepTheirOrderUnderZero) {
  this->container.Sort(&ZeroForEqual);
  EXPECT_EQ(this->Values(), (Ints{8, 9, 10, 16, 24, 25}));
}

TYPED_TEST(Stable, EqualKeysKeepTheirOrderGoingDownAsWell) {
  this->container.Sort(false);
  EXPECT_EQ(this->Values(), (Ints{24, 25, 16, 8, 9, 10}));
}

TYPED_TEST(Stable, ComparisonThatThrowsLosesNoElement) {
  EXPECT_THROW(this->container.Sort(+[](const Counted& left, const Counted& right) {
    if (left.value == 24 && right.value == 16) throw std::runtime_error("compare");
    return left.Key() - right.Key();
  }),
               std::runtime_error);
  Ints values = this->Values();
  std::sort(values.begin(), values.end());
  EXPECT_EQ(values, (Ints{8, 9, 10, 16, 24, 25}));
  this->container.Sort(true);
  EXPECT_EQ(this->Values(), (Ints{8, 9, 10, 16, 24, 25}));
}

struct Unordered {
  int value = 0;
};

TEST(ElementTypes, ContainersHoldElementsWithoutOrderButRefuseToSortThemByIt) {
  ZcDynArray<Unordered> array;
  ZcDList<Unordered> list;
  for (int value = 0; value < 2; ++value) array << Unordered{value}, list << Unordered{value};
  EXPECT_THROW(array.Sort(true), std::logic_error);
  EXPECT_THROW(list.Sort(true), std::logic_error);
  list.Sort(+[](const Unordered& left, const Unordered& right) { return right.value - left.value; });
  EXPECT_EQ(list.GetAt(0).value, 1);
  EXPECT_EQ(list.GetLength(), 2);
}

/// A list that is an element of another list, as the riser lines of a supply system are.
struct Line : ZcList<std::wstring> {
  int Characters() {
    int count = 0;
    for (MoveToFirst(); !IsOut(); MoveToNext()) count += static_cast<int>(GetCurData().size());
    return count;
  }
};

TEST(ElementTypes, AListOfListsCopiesThemOnInsertion) {
  ZcDList<Line> lines;
  Line line;
  line << L"JL-1" << L"JL-2";
  lines.Append(line);
  line.Append(L"JL-3");
  EXPECT_EQ(lines.GetCurData().Characters(), 8);
  ZcDList<Line> copy(lines);
  lines.Reset();
  EXPECT_EQ(copy.GetAt(0).GetLength(), 2);
}

}  // namespace
