// Storage of ZcDynArray: space, slack, and handing the block over.
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "contents.h"
#include "frame/containers/zc_dyn_array.h"

namespace {

using zwt::test::Contents;
using zwt::test::Fill;
using Ints = std::vector<int>;

TEST(DynArray, ConstructionGivesSpaceButNoLength) {
  const ZcDynArray<int> array(8, 3);
  EXPECT_EQ(array.GetSpaceSize(), 8);
  EXPECT_EQ(array.GetAllocUnit(), 3);
  EXPECT_EQ(array.GetLength(), 0);
}

TEST(DynArray, GrowthBeyondTheSpaceAddsTheAllocUnit) {
  ZcDynArray<int> array(0, 3);
  array.Append(1);
  EXPECT_EQ(array.GetSpaceSize(), 4);
  Fill(array, {2, 3, 4});
  EXPECT_EQ(array.GetSpaceSize(), 4);
  array.SetAllocUnit(10);
  array.Append(5);
  EXPECT_EQ(array.GetSpaceSize(), 15);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 3, 4, 5}));
}

TEST(DynArray, DecreaseSizeShortensWithoutTouchingTheSpace) {
  ZcDynArray<int> array(5, 0);
  Fill(array, {1, 2, 3});
  array.DecreaseSize(2);
  EXPECT_EQ(Contents(array), (Ints{1}));
  EXPECT_EQ(array.GetSpaceSize(), 5);
}

TEST(DynArray, DecreaseSizeBelowNothingEmpties) {
  ZcDynArray<int> array;
  array.Append(1);
  array.DecreaseSize(4);
  EXPECT_EQ(array.GetLength(), 0);
}

TEST(DynArray, IncreaseSizeKeepsTheElementsAndAddsDefaultOnes) {
  ZcDynArray<int> array(0, 2);
  Fill(array, {1, 2, 3});
  array.IncreaseSize(3);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 3, 0, 0, 0}));
}

TEST(DynArray, GrowingBringsNoDeletedElementBack) {
  ZcDynArray<std::wstring> array;
  array << L"a" << L"b";
  array.DelTail();
  array.IncreaseSize(1);
  EXPECT_EQ(Contents(array), (std::vector<std::wstring>{L"a", L""}));
}

TEST(DynArray, SetLengthMakesSpaceAndLengthExact) {
  ZcDynArray<int> array(0, 16);
  Fill(array, {1, 2, 3});
  array.SetLength(2, true);
  EXPECT_EQ(array.GetSpaceSize(), 2);
  EXPECT_EQ(Contents(array), (Ints{1, 2}));
  array.SetLength(4, true);
  EXPECT_EQ(array.GetSpaceSize(), 4);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 0, 0}));
  array.SetLength(0, true);
  EXPECT_EQ(array.GetSpaceSize(), 0);
  EXPECT_EQ(array.GetFirst(), nullptr);
}

TEST(DynArray, SetLengthWithoutKeepLosesTheContentsWhereReAllocateKeepsThem) {
  ZcDynArray<int> array(0, 0);
  Fill(array, {1, 2, 3});
  array.IncreaseSize(1);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 3, 0}));
  array.SetLength(5, false);
  EXPECT_EQ(Contents(array), (Ints{0, 0, 0, 0, 0}));
}

TEST(DynArray, SetLengthToTheSpaceOnlyChangesTheLength) {
  ZcDynArray<int> array(3, 0);
  Fill(array, {1, 2});
  array.SetLength(3, false);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 0}));
}

TEST(DynArray, SetSpaceSizeKeepsLengthAndElements) {
  ZcDynArray<int> array(0, 16);
  Fill(array, {1, 2, 3});
  EXPECT_FALSE(array.SetSpaceSize(2));
  EXPECT_TRUE(array.SetSpaceSize(array.GetSpaceSize()));
  EXPECT_TRUE(array.SetSpaceSize(3));
  EXPECT_EQ(array.GetSpaceSize(), 3);
  EXPECT_TRUE(array.SetSpaceSize(9));
  EXPECT_EQ(array.GetSpaceSize(), 9);
  EXPECT_EQ(Contents(array), (Ints{1, 2, 3}));
}

TEST(DynArray, DetachHandsTheBlockOverAndEmpties) {
  ZcDynArray<int> array;
  Fill(array, {1, 2});
  const std::unique_ptr<int[]> block(array.Detach());
  EXPECT_EQ(block[0], 1);
  EXPECT_EQ(block[1], 2);
  EXPECT_EQ(array.GetLength(), 0);
  EXPECT_EQ(array.GetSpaceSize(), 0);
  EXPECT_EQ(array.Append(3), 0);
}

TEST(DynArray, AttachTakesABlockAsSpaceAndLength) {
  ZcDynArray<int> array;
  array.Append(9);
  array.Attach(2, new int[2]{1, 2});
  EXPECT_EQ(array.GetSpaceSize(), 2);
  EXPECT_EQ(Contents(array), (Ints{1, 2}));
}

TEST(DynArray, DetachedBlockCanBeAttachedToAnother) {
  ZcDynArray<int> from;
  Fill(from, {1, 2});
  from.SetSpaceSize(2);
  ZcDynArray<int> to;
  to.Attach(2, from.Detach());
  EXPECT_EQ(Contents(to), (Ints{1, 2}));
}

TEST(DynArray, AnElementOfTheArrayItselfCanBeInserted) {
  ZcDynArray<std::wstring> array(1, 0);
  array << L"first";
  array.InsertHead(array.GetAt(0));
  array.Append(array.GetAt(1));
  array.Insert(1, array.GetAt(2));
  EXPECT_EQ(Contents(array), (std::vector<std::wstring>(4, L"first")));
}

TEST(DynArray, InsertCurWithTheCursorBeyondAnEndInsertsAtThatEnd) {
  ZcDynArray<int> array;
  Fill(array, {1, 2});
  array.MoveTo(-5);
  array.InsertCur(0);
  array.MoveTo(50);
  array.InsertCur(3);
  EXPECT_EQ(Contents(array), (Ints{0, 1, 2, 3}));
}

}  // namespace
