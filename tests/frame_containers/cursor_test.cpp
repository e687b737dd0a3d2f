// The cursor table: how each operation moves the cursor on the array and on both lists, which differ on
// purpose.
#include <cstdint>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_list.h"
#include "frame/containers/zc_xlist.h"

namespace {

using zwt::test::Contents;
using zwt::test::Fill;
using Ints = std::vector<int>;

struct XListInThrees : ZcXList<int> {
  XListInThrees() : ZcXList<int>(0, 3, 1) {}
};

template <class Container>
class EveryContainer : public testing::Test {
 protected:
  static constexpr bool kIsArray = std::is_same_v<Container, ZcDynArray<int>>;

  Container container;
};
using AllKinds = testing::Types<ZcDynArray<int>, ZcList<int>, ZcDList<int>, XListInThrees>;
TYPED_TEST_SUITE(EveryContainer, AllKinds);

template <class Container>
using EveryList = EveryContainer<Container>;
using ListKinds = testing::Types<ZcList<int>, ZcDList<int>, XListInThrees>;
TYPED_TEST_SUITE(EveryList, ListKinds);

TYPED_TEST(EveryContainer, IsEmptyAtConstructionWithTheCursorInFront) {
  EXPECT_EQ(this->container.GetLength(), 0);
  EXPECT_EQ(this->container.GetMaxIndex(), -1);
  EXPECT_TRUE(this->container.IsEmpty());
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_TRUE(this->container.IsBegin());
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(EveryContainer, MoveToFirstOnEmptyIsOut) {
  this->container.MoveToFirst();
  EXPECT_EQ(this->container.GetCur(), TestFixture::kIsArray ? 0 : -1);
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(EveryContainer, MoveToLastOnEmptyIsInFront) {
  this->container.MoveToLast();
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(EveryContainer, CursorLoopReadsEachElementOnce) {
  Fill(this->container, {4, 5, 6});
  Ints seen;
  for (this->container.MoveToFirst(); !this->container.IsOut(); this->container.MoveToNext()) {
    seen.push_back(this->container.GetCurData());
  }
  EXPECT_EQ(seen, (Ints{4, 5, 6}));
}

TYPED_TEST(EveryContainer, CursorLoopReadsNothingWhenEmpty) {
  int steps = 0;
  for (this->container.MoveToFirst(); !this->container.IsOut(); this->container.MoveToNext()) ++steps;
  EXPECT_EQ(steps, 0);
}

TYPED_TEST(EveryContainer, MoveToNextFromTheLastIsOut) {
  Fill(this->container, {4, 5, 6});
  this->container.MoveToLast();
  this->container.MoveToNext();
  EXPECT_EQ(this->container.GetCur(), TestFixture::kIsArray ? 3 : -1);
  EXPECT_TRUE(this->container.IsOut());
  EXPECT_EQ(this->container.IsEnd(), TestFixture::kIsArray);
  EXPECT_EQ(this->container.IsBegin(), !TestFixture::kIsArray);
}

TYPED_TEST(EveryContainer, MoveToPreFromTheFirstIsInFront) {
  Fill(this->container, {4, 5});
  this->container.MoveToFirst();
  this->container.MoveToPre();
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(EveryContainer, MoveToPreStepsBackOneElement) {
  Fill(this->container, {4, 5, 6});
  this->container.MoveToLast();
  this->container.MoveToPre();
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(this->container.GetCurData(), 5);
}

TYPED_TEST(EveryList, MoveToPreFromTheSentinelWrapsToTheLast) {
  Fill(this->container, {4, 5, 6});
  this->container.MoveTo(-1);
  this->container.MoveToPre();
  EXPECT_EQ(this->container.GetCur(), 2);
  EXPECT_EQ(this->container.GetCurData(), 6);
}

TYPED_TEST(EveryList, MoveToPreOnEmptyStaysInFront) {
  this->container.MoveToPre();
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_TRUE(this->container.IsOut());
}

TYPED_TEST(EveryList, MoveToNextFromTheSentinelReachesTheFirst) {
  Fill(this->container, {4, 5});
  this->container.MoveTo(-1);
  this->container.MoveToNext();
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(this->container.GetCurData(), 4);
}

TYPED_TEST(EveryContainer, MoveToReachesEveryIndexFromEveryOther) {
  Fill(this->container, {10, 11, 12, 13, 14});
  for (int from = 0; from < 5; ++from) {
    for (int to = 0; to < 5; ++to) {
      this->container.MoveTo(from);
      this->container.MoveTo(to);
      EXPECT_EQ(this->container.GetCur(), to);
      EXPECT_EQ(this->container.GetCurData(), 10 + to);
    }
  }
}

TYPED_TEST(EveryList, MoveToOutOfRangeStandsOnTheSentinel) {
  Fill(this->container, {4, 5});
  for (const int index : {-1, -7, 2, 99}) {
    this->container.MoveToLast();
    this->container.MoveTo(index);
    EXPECT_EQ(this->container.GetCur(), -1);
    this->container.MoveToNext();
    EXPECT_EQ(this->container.GetCurData(), 4);
  }
}

TEST(ArrayCursor, MoveToGoesAnywhereUnchecked) {
  ZcDynArray<int> array;
  array << 4 << 5;
  array.MoveTo(17);
  EXPECT_EQ(array.GetCur(), 17);
  EXPECT_TRUE(array.IsEnd());
  array.MoveTo(-3);
  EXPECT_EQ(array.GetCur(), -3);
  EXPECT_TRUE(array.IsBegin());
}

TYPED_TEST(EveryContainer, GetAtReadsEveryIndexAndNeverMovesTheCursor) {
  Fill(this->container, {10, 11, 12, 13, 14});
  for (int from = 0; from < 5; ++from) {
    this->container.MoveTo(from);
    for (int index = 0; index < 5; ++index) {
      EXPECT_EQ(this->container.GetAt(index), 10 + index);
      EXPECT_EQ(this->container.GetCur(), from);
      EXPECT_EQ(this->container.GetCurData(), 10 + from);
    }
  }
}

TYPED_TEST(EveryContainer, SubscriptMovesTheCursor) {
  Fill(this->container, {10, 11, 12});
  this->container[1] = 21;
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(Contents(this->container), (Ints{10, 21, 12}));
}

TYPED_TEST(EveryContainer, SubscriptBehindTheEndExtendsByDefaultElements) {
  Fill(this->container, {10});
  this->container[3] = 13;
  EXPECT_EQ(this->container.GetCur(), 3);
  EXPECT_EQ(Contents(this->container), (Ints{10, 0, 0, 13}));
}

TYPED_TEST(EveryContainer, AppendStandsOnTheNewElementAndGivesItsIndex) {
  EXPECT_EQ(this->container.Append(4), 0);
  EXPECT_EQ(this->container.GetCur(), 0);
  this->container.MoveToFirst();
  EXPECT_EQ(this->container.Append(5), 1);
  EXPECT_EQ(this->container.GetCur(), 1);
  EXPECT_EQ(this->container.GetCurData(), 5);
}

TYPED_TEST(EveryContainer, InsertHeadStandsOnTheNewElementAtIndexZero) {
  Fill(this->container, {4, 5});
  this->container.InsertHead(3);
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(this->container.GetCurData(), 3);
  EXPECT_EQ(Contents(this->container), (Ints{3, 4, 5}));
}

TYPED_TEST(EveryContainer, InsertPutsTheElementAtTheIndexWithTheCursorOnIt) {
  for (int index = 0; index <= 3; ++index) {
    this->container.Reset();
    Fill(this->container, {10, 11, 12});
    Ints expected{10, 11, 12};
    expected.insert(expected.begin() + index, 7);
    this->container.Insert(index, 7);
    EXPECT_EQ(Contents(this->container), expected);
    EXPECT_EQ(this->container.GetCur(), index);
    EXPECT_EQ(this->container.GetCurData(), 7);
  }
}

TYPED_TEST(EveryList, InsertFarBehindTheEndGoesToTheFront) {
  Fill(this->container, {4, 5});
  this->container.Insert(9, 3);
  EXPECT_EQ(Contents(this->container), (Ints{3, 4, 5}));
  EXPECT_EQ(this->container.GetCur(), 0);
}

TYPED_TEST(EveryContainer, InsertCurGoesInFrontOfTheElementUnderTheCursor) {
  Fill(this->container, {10, 11, 12});
  this->container.MoveTo(1);
  this->container.InsertCur(7);
  EXPECT_EQ(Contents(this->container), (Ints{10, 7, 11, 12}));
  EXPECT_EQ(this->container.GetCur(), 1);
}

TYPED_TEST(EveryList, InsertCurFromTheSentinelAppends) {
  Fill(this->container, {10, 11});
  this->container.MoveTo(-1);
  this->container.InsertCur(7);
  EXPECT_EQ(Contents(this->container), (Ints{10, 11, 7}));
  EXPECT_EQ(this->container.GetCur(), 2);
}

TYPED_TEST(EveryContainer, DelCurStandsOnThePreviousElement) {
  Fill(this->container, {10, 11, 12});
  this->container.MoveTo(1);
  this->container.DelCur();
  EXPECT_EQ(Contents(this->container), (Ints{10, 12}));
  EXPECT_EQ(this->container.GetCur(), 0);
  EXPECT_EQ(this->container.GetCurData(), 10);
  this->container.DelCur();
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_EQ(Contents(this->container), (Ints{12}));
}

TYPED_TEST(EveryContainer, DelCurInALoopLosesNoElement) {
  Fill(this->container, {1, 2, 3, 4, 5, 6});
  Ints seen;
  for (this->container.MoveToFirst(); !this->container.IsOut(); this->container.MoveToNext()) {
    seen.push_back(this->container.GetCurData());
    if (this->container.GetCurData() % 3 != 0) this->container.DelCur();
  }
  EXPECT_EQ(seen, (Ints{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(Contents(this->container), (Ints{3, 6}));
}

TYPED_TEST(EveryContainer, DelCurOfAllInALoopEmpties) {
  Fill(this->container, {1, 2, 3});
  for (this->container.MoveToFirst(); !this->container.IsOut(); this->container.MoveToNext()) {
    this->container.DelCur();
  }
  EXPECT_TRUE(this->container.IsEmpty());
}

TYPED_TEST(EveryContainer, DelCurOutOfTheElementsDoesNothing) {
  Fill(this->container, {1, 2});
  this->container.MoveTo(-1);
  this->container.DelCur();
  this->container.MoveToLast();
  this->container.MoveToNext();
  this->container.DelCur();
  EXPECT_EQ(Contents(this->container), (Ints{1, 2}));
}

TYPED_TEST(EveryContainer, ResetEmptiesWithTheCursorInFront) {
  Fill(this->container, {1, 2});
  this->container.Reset();
  EXPECT_TRUE(this->container.IsEmpty());
  EXPECT_EQ(this->container.GetCur(), -1);
  EXPECT_EQ(this->container.Append(9), 0);
  EXPECT_EQ(Contents(this->container), (Ints{9}));
}

}  // namespace
