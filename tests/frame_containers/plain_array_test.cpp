// ZcArray and Zc2dArray: no cursor, no slack.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "frame/containers/zc_array.h"
#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_dyn_array.h"

namespace {

using Ints = std::vector<int>;

Ints Values(const ZcArray<int>& array) {
  return {array.GetDataBuffer(), array.GetDataBuffer() + array.GetLength()};
}

ZcArray<int> Made(std::initializer_list<int> values) {
  ZcArray<int> array;
  for (const int value : values) array.Append(value);
  return array;
}

TEST(PlainArray, ConstructionWithACountHoldsDefaultElements) {
  EXPECT_EQ(Values(ZcArray<int>(3)), (Ints{0, 0, 0}));
  const ZcArray<int> none;
  EXPECT_EQ(none.GetLength(), 0);
  EXPECT_EQ(none.GetDataBuffer(), nullptr);
}

TEST(PlainArray, ReAllocateMakesTheBlockExactlyThatLong) {
  ZcArray<int> array = Made({1, 2, 3});
  array.ReAllocate(5, true);
  EXPECT_EQ(Values(array), (Ints{1, 2, 3, 0, 0}));
  array.ReAllocate(2, true);
  EXPECT_EQ(Values(array), (Ints{1, 2}));
  array.ReAllocate(3, false);
  EXPECT_EQ(Values(array), (Ints{0, 0, 0}));
  array.ReAllocate(-1, true);
  EXPECT_EQ(array.GetLength(), 0);
}

TEST(PlainArray, InsertsAtEveryPlace) {
  ZcArray<int> array = Made({2});
  array.InsertHead(1);
  EXPECT_EQ(array.Append(4), 2);
  array.Insert(2, 3);
  array.Insert(99, 5);
  array.Insert(-9, 0);
  EXPECT_EQ(Values(array), (Ints{0, 1, 2, 3, 4, 5}));
}

TEST(PlainArray, DeletesAtEveryPlaceAndIgnoresWhatIsNotThere) {
  ZcArray<int> array = Made({1, 2, 3, 4, 5});
  array.Del(2);
  array.DelHead();
  array.DelTail();
  array.Del(2);
  array.Del(-1);
  EXPECT_EQ(Values(array), (Ints{2, 4}));
  array.Reset();
  array.DelHead();
  array.DelTail();
  EXPECT_EQ(array.GetLength(), 0);
}

TEST(PlainArray, ElementsAreReadAndWrittenByIndex) {
  ZcArray<int> array = Made({1, 2});
  array.SetAt(0, 7);
  array[1] = 8;
  EXPECT_EQ(array.GetAt(0), 7);
  const ZcArray<int>& readOnly = array;
  EXPECT_EQ(readOnly[1], 8);
}

TEST(PlainArray, SubscriptBehindTheEndExtends) {
  ZcArray<int> array;
  array[2] = 5;
  EXPECT_EQ(Values(array), (Ints{0, 0, 5}));
}

TEST(PlainArray, AnElementOfTheArrayItselfCanBeAddedAndSpread) {
  ZcArray<std::wstring> array;
  array.Append(L"给水");
  array.InsertHead(array[0]);
  array.Append(L"x");
  array.SetAll(array[0]);
  for (int index = 0; index < 3; ++index) EXPECT_EQ(array.GetAt(index), L"给水");
}

TEST(PlainArray, FindAndBFindKeepToTheirRange) {
  const ZcArray<int> array = Made({1, 3, 3, 5, 7});
  EXPECT_EQ(array.Find(3), 1);
  EXPECT_EQ(array.Find(3, 2), 2);
  EXPECT_EQ(array.Find(7, 0, 3), -1);
  EXPECT_EQ(array.BFind(5), 3);
  EXPECT_EQ(array.BFind(4), -1);
  EXPECT_EQ(array.BFind(7, 0, 3), -1);
  EXPECT_EQ(ZcArray<int>().BFind(1), -1);
  EXPECT_EQ(ZcArray<int>().Find(1), -1);
}

TEST(PlainArray, SortsAndReverses) {
  ZcArray<int> array = Made({3, 1, 2});
  array.Sort(true);
  EXPECT_EQ(Values(array), (Ints{1, 2, 3}));
  array.Sort(false);
  EXPECT_EQ(Values(array), (Ints{3, 2, 1}));
  array.Sort(+[](const int& left, const int& right) { return left > right ? 1 : -1; });
  EXPECT_EQ(Values(array), (Ints{1, 2, 3}));
  array.Reverse();
  EXPECT_EQ(Values(array), (Ints{3, 2, 1}));
  array.Reverse(1, 2);
  EXPECT_EQ(Values(array), (Ints{3, 1, 2}));
}

TEST(PlainArray, CopiesOfItselfAndOfTheFamilyAreIndependent) {
  ZcDList<int> list;
  list << 1 << 2;
  ZcArray<int> array(list);
  list.Reset();
  EXPECT_EQ(Values(array), (Ints{1, 2}));
  const ZcArray<int> copy(array);
  array[0] = 9;
  EXPECT_EQ(Values(copy), (Ints{1, 2}));
  ZcDynArray<int> other;
  other << 5;
  array = other;
  EXPECT_EQ(Values(array), (Ints{5}));
  array = copy;
  EXPECT_EQ(Values(array), (Ints{1, 2}));
}

TEST(TwoDimensions, IsMadeOfRowsOfEqualLength) {
  Zc2dArray<int> table(2, 3);
  EXPECT_EQ(table.GetLength(), 2);
  EXPECT_EQ(table[1].GetLength(), 3);
  table.SetAll(4);
  table[1][2] = 5;
  EXPECT_EQ(Values(table.GetAt(0)), (Ints{4, 4, 4}));
  EXPECT_EQ(Values(table.GetAt(1)), (Ints{4, 4, 5}));
}

TEST(TwoDimensions, ReAllocateKeepsWhatLiesInBothShapes) {
  Zc2dArray<int> table(2, 2);
  table.SetAll(1);
  table.ReAllocate(3, 1);
  EXPECT_EQ(table.GetLength(), 3);
  EXPECT_EQ(Values(table.GetAt(0)), (Ints{1}));
  EXPECT_EQ(Values(table.GetAt(2)), (Ints{0}));
  table.ReAllocate(1, 2);
  EXPECT_EQ(Values(table.GetAt(0)), (Ints{1, 0}));
}

}  // namespace
