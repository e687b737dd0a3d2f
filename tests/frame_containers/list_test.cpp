// What only the lists can: handing nodes over, cutting, turning.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_list.h"
#include "frame/containers/zc_xlist.h"
#include "probe.h"

namespace {

using zwt::test::Contents;
using zwt::test::Fill;
using Ints = std::vector<int>;

struct XListInThrees : ZcXList<int> {
  explicit XListInThrees(int count = 0) : ZcXList<int>(count, 3, 1) {}
};

template <class List>
class Lists : public testing::Test {
 protected:
  List list;
};
using Kinds = testing::Types<ZcList<int>, ZcDList<int>, XListInThrees>;
TYPED_TEST_SUITE(Lists, Kinds);

TYPED_TEST(Lists, ConstructionWithACountHoldsDefaultElements) {
  const TypeParam three(3);
  EXPECT_EQ(Contents(three), (Ints{0, 0, 0}));
  EXPECT_EQ(three.GetCur(), -1);
}

TYPED_TEST(Lists, ReAllocateToLessChangesNothing) {
  Fill(this->list, {1, 2, 3});
  this->list.MoveTo(1);
  this->list.DecreaseSize(2);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2, 3}));
  EXPECT_EQ(this->list.GetCur(), 1);
}

TYPED_TEST(Lists, ReAllocateToMoreAppendsDefaultsAndKeepsTheCursor) {
  Fill(this->list, {1, 2});
  this->list.MoveToFirst();
  this->list.IncreaseSize(2);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2, 0, 0}));
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(this->list.GetCurData(), 1);
}

TYPED_TEST(Lists, SetLengthDeletesFromTheTailWhateverKeepSays) {
  Fill(this->list, {1, 2, 3, 4});
  this->list.SetLength(2, false);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2}));
  EXPECT_EQ(this->list.GetCur(), 1);
  this->list.SetLength(3, false);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2, 0}));
  this->list.SetLength(0, true);
  EXPECT_TRUE(this->list.IsEmpty());
  EXPECT_EQ(this->list.GetCur(), -1);
}

TYPED_TEST(Lists, InsertAfterCurAtTheSentinelInsertsAtTheFront) {
  this->list.InsertAfterCur(2);
  this->list.MoveTo(-1);
  this->list.InsertAfterCur(1);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2}));
  EXPECT_EQ(this->list.GetCur(), 0);
}

TYPED_TEST(Lists, ConbineFromZeroEmptiesTheOtherAndKeepsTheCursor) {
  Fill(this->list, {1, 2, 3});
  this->list.MoveTo(1);
  TypeParam other;
  Fill(other, {4, 5});
  EXPECT_EQ(this->list.Conbine(other, 0), 5);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2, 3, 4, 5}));
  EXPECT_EQ(this->list.GetCur(), 1);
  EXPECT_EQ(this->list.GetCurData(), 2);
  EXPECT_TRUE(other.IsEmpty());
  EXPECT_EQ(other.GetCur(), -1);
  EXPECT_EQ(other.Append(6), 0);
}

TYPED_TEST(Lists, ConbineFromTheMiddleTakesTheRest) {
  Fill(this->list, {1});
  TypeParam other;
  Fill(other, {2, 3, 4});
  EXPECT_EQ(this->list.Conbine(other, 1), 3);
  EXPECT_EQ(Contents(this->list), (Ints{1, 3, 4}));
  EXPECT_EQ(Contents(other), (Ints{2}));
  this->list.Append(5);
  EXPECT_EQ(Contents(this->list), (Ints{1, 3, 4, 5}));
}

TYPED_TEST(Lists, ConbineWithAnInvalidIndexOrWithItselfChangesNothing) {
  Fill(this->list, {1, 2});
  TypeParam other;
  Fill(other, {3});
  EXPECT_EQ(this->list.Conbine(other, 1), 2);
  EXPECT_EQ(this->list.Conbine(other, -1), 2);
  EXPECT_EQ(this->list.Conbine(this->list, 0), 2);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2}));
  EXPECT_EQ(Contents(other), (Ints{3}));
}

TEST(ListKinds, ConbineBetweenOneWayAndTwoWayLinksMovesTheElements) {
  ZcList<std::wstring> single;
  single << L"a" << L"b" << L"c";
  ZcDList<std::wstring> both;
  both << L"x";
  EXPECT_EQ(both.Conbine(single, 1), 3);
  EXPECT_EQ(Contents(both), (std::vector<std::wstring>{L"x", L"b", L"c"}));
  EXPECT_EQ(Contents(single), (std::vector<std::wstring>{L"a"}));
  both.MoveToLast();
  both.MoveToPre();
  EXPECT_EQ(both.GetCurData(), L"b");
  EXPECT_EQ(single.Conbine(both, 0), 4);
  EXPECT_EQ(Contents(single), (std::vector<std::wstring>{L"a", L"x", L"b", L"c"}));
  EXPECT_TRUE(both.IsEmpty());
}

TYPED_TEST(Lists, SplitAtMovesTheRestToTheTarget) {
  Fill(this->list, {1, 2, 3, 4});
  TypeParam target;
  Fill(target, {9});
  this->list.SplitAt(2, target);
  EXPECT_EQ(Contents(this->list), (Ints{1, 2}));
  EXPECT_EQ(Contents(target), (Ints{9, 3, 4}));
  this->list.MoveToFirst();
  this->list.SplitAtCur(target);
  EXPECT_TRUE(this->list.IsEmpty());
  EXPECT_EQ(Contents(target), (Ints{9, 3, 4, 1, 2}));
  this->list.SplitAt(5, target);
  EXPECT_EQ(target.GetLength(), 5);
}

TYPED_TEST(Lists, ReverseListLeavesCursorAndElementAsTheyAre) {
  Fill(this->list, {1, 2, 3, 4});
  this->list.MoveTo(1);
  this->list.ReverseList();
  EXPECT_EQ(Contents(this->list), (Ints{4, 3, 2, 1}));
  EXPECT_EQ(this->list.GetCur(), 1);
  EXPECT_EQ(this->list.GetCurData(), 2);
}

TYPED_TEST(Lists, IndicesAreRightAfterReverseList) {
  Fill(this->list, {1, 2, 3, 4, 5});
  this->list.MoveTo(1);
  this->list.ReverseList();
  for (int index = 0; index < 5; ++index) EXPECT_EQ(this->list.GetAt(index), 5 - index);
  this->list.MoveTo(3);
  EXPECT_EQ(this->list.GetCurData(), 2);
}

TYPED_TEST(Lists, DelCurAfterReverseListDeletesTheElementUnderTheCursor) {
  Fill(this->list, {1, 2, 3, 4});
  this->list.MoveTo(0);
  this->list.ReverseList();
  this->list.DelCur();
  EXPECT_EQ(Contents(this->list), (Ints{4, 3, 2}));
  this->list.Append(7);
  EXPECT_EQ(Contents(this->list), (Ints{4, 3, 2, 7}));
}

TYPED_TEST(Lists, ReverseListBelowTwoElementsDoesNothing) {
  this->list.ReverseList();
  EXPECT_TRUE(this->list.IsEmpty());
  this->list.Append(1);
  this->list.ReverseList();
  EXPECT_EQ(Contents(this->list), (Ints{1}));
}

TYPED_TEST(Lists, RotateTwoToZeroTurnsTheListByTwo) {
  Fill(this->list, {1, 2, 3, 4});
  this->list.Rotate(2, 0);
  EXPECT_EQ(Contents(this->list), (Ints{3, 4, 1, 2}));
  EXPECT_EQ(this->list.GetCur(), 0);
  EXPECT_EQ(this->list.GetCurData(), 3);
}

TYPED_TEST(Lists, RotateBringsEveryElementToEveryIndex) {
  for (int a = 0; a < 5; ++a) {
    for (int b = 0; b < 5; ++b) {
      this->list.Reset();
      Fill(this->list, {0, 1, 2, 3, 4});
      this->list.Rotate(a, b);
      EXPECT_EQ(this->list.GetAt(b), a);
      EXPECT_EQ(this->list.GetAt((b + 1) % 5), (a + 1) % 5);
      EXPECT_EQ(this->list.GetCur(), a == b ? 4 : 0);
    }
  }
}

TYPED_TEST(Lists, RotateOnEmptyDoesNothing) {
  this->list.Rotate(1, 0);
  EXPECT_TRUE(this->list.IsEmpty());
}

TYPED_TEST(Lists, DetachAfterCutsBehindTheElementAndFreesNothing) {
  zwt::test::ListProbe<TypeParam, int> probe;
  Fill(probe, {1, 2, 3, 4});
  probe.MoveTo(1);
  EXPECT_EQ(probe.TakeElementsBehindCur(), (Ints{3, 4}));
  EXPECT_EQ(Contents<int>(probe), (Ints{1, 2}));
  EXPECT_EQ(probe.GetCur(), 1);
  EXPECT_EQ(probe.Append(5), 2);
  EXPECT_EQ(Contents<int>(probe), (Ints{1, 2, 5}));
}

TYPED_TEST(Lists, DetachFromTheSentinelEmptiesTheList) {
  zwt::test::ListProbe<TypeParam, int> probe;
  Fill(probe, {1, 2, 3});
  probe.MoveTo(-1);
  EXPECT_EQ(probe.TakeElementsBehindCur(), (Ints{1, 2, 3}));
  EXPECT_TRUE(probe.IsEmpty());
  EXPECT_EQ(probe.GetCur(), -1);
  probe.CheckRing();
}

TYPED_TEST(Lists, DetachOfAnEmptyListLeavesItUsable) {
  this->list.Detach();
  this->list.DetachAfter(0);
  EXPECT_EQ(this->list.Append(1), 0);
}

}  // namespace
