// The matrix: shape, bounds, copying, addition and its message. Running out of memory is made to happen.
#include "frame/containers/matrix.h"

#include <cstddef>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "frame/containers/zc_dlist.h"

namespace {
bool allocationFails = false;
}  // namespace

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  if (allocationFails) return nullptr;
  try {
    return ::operator new[](size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

namespace {

int shownCount = 0;
std::wstring shownText;

/// Counts the messages while it lives.
class MessageCounter {
 public:
  MessageCounter() : before(CMatrix::SetMessageHook(&Show)) { shownCount = 0; }
  MessageCounter(const MessageCounter&) = delete;
  MessageCounter& operator=(const MessageCounter&) = delete;
  ~MessageCounter() { CMatrix::SetMessageHook(before); }

 private:
  static void Show(const wchar_t* text) {
    ++shownCount;
    shownText = text;
  }

  CMatrix::MessageHook before;
};

CMatrix Numbered(int rows, int cols) {
  CMatrix matrix(rows, cols);
  for (int row = 0; row < rows; ++row) {
    for (int col = 0; col < cols; ++col) matrix.SetElement(row, col, 10.0 * row + col);
  }
  return matrix;
}

TEST(Matrix, DefaultIsOneByOneHoldingZero) {
  const CMatrix matrix;
  EXPECT_EQ(matrix.GetRows(), 1);
  EXPECT_EQ(matrix.GetCols(), 1);
  EXPECT_EQ(matrix.GetElement(0, 0), 0.0);
}

TEST(Matrix, ConstructionZeroesEveryElement) {
  const CMatrix matrix(2, 3);
  for (int row = 0; row < 2; ++row) {
    for (int col = 0; col < 3; ++col) EXPECT_EQ(matrix.GetElement(row, col), 0.0);
  }
}

TEST(Matrix, ElementsKeepToTheirPlaces) {
  const CMatrix matrix = Numbered(3, 4);
  for (int row = 0; row < 3; ++row) {
    for (int col = 0; col < 4; ++col) EXPECT_EQ(matrix.GetElement(row, col), 10.0 * row + col);
  }
}

TEST(Matrix, SetElementOutOfRangeGivesFalseAndChangesNothing) {
  CMatrix matrix = Numbered(2, 3);
  EXPECT_FALSE(matrix.SetElement(2, 0, 99));
  EXPECT_FALSE(matrix.SetElement(0, -1, 99));
  EXPECT_FALSE(matrix.SetElement(-1, 0, 99));
  EXPECT_FALSE(matrix.SetElement(0, 3, 99));
  for (int row = 0; row < 2; ++row) {
    for (int col = 0; col < 3; ++col) EXPECT_EQ(matrix.GetElement(row, col), 10.0 * row + col);
  }
}

TEST(Matrix, ZeroByZeroHoldsNothing) {
  CMatrix matrix(0, 0);
  EXPECT_EQ(matrix.GetRows(), 0);
  EXPECT_EQ(matrix.GetCols(), 0);
  EXPECT_FALSE(matrix.SetElement(0, 0, 1));
  const CMatrix copy(matrix);
  EXPECT_EQ(copy.GetRows(), 0);
  EXPECT_EQ((matrix + copy).GetRows(), 0);
}

TEST(Matrix, InitTakesANewShapeAndForgetsTheOldElements) {
  CMatrix matrix = Numbered(2, 2);
  EXPECT_TRUE(matrix.Init(1, 3));
  EXPECT_EQ(matrix.GetRows(), 1);
  EXPECT_EQ(matrix.GetCols(), 3);
  for (int col = 0; col < 3; ++col) EXPECT_EQ(matrix.GetElement(0, col), 0.0);
}

TEST(Matrix, InitOfANegativeNumberOfElementsKeepsTheShapeWithoutData) {
  CMatrix matrix;
  EXPECT_FALSE(matrix.Init(-2, 3));
  EXPECT_EQ(matrix.GetRows(), -2);
  EXPECT_EQ(matrix.GetCols(), 3);
  EXPECT_FALSE(matrix.SetElement(0, 0, 1));
  const CMatrix copy(matrix);
  EXPECT_EQ(copy.GetRows(), -2);
}

TEST(Matrix, InitOfMoreElementsThanFitGivesFalse) {
  CMatrix matrix;
  EXPECT_FALSE(matrix.Init(65536, 65536));
  EXPECT_FALSE(matrix.SetElement(5, 5, 1));
  EXPECT_FALSE(matrix.Init(50000, 50000));
  EXPECT_FALSE(matrix.SetElement(0, 0, 1));
}

TEST(Matrix, InitWithoutMemoryGivesFalseAndLeavesAShapeWithoutData) {
  CMatrix matrix = Numbered(2, 2);
  CMatrix source = Numbered(2, 2);
  allocationFails = true;
  const bool made = matrix.Init(3, 3);
  const CMatrix copy(source);
  allocationFails = false;
  EXPECT_FALSE(made);
  EXPECT_EQ(matrix.GetRows(), 3);
  EXPECT_FALSE(matrix.SetElement(0, 0, 1));
  const CMatrix sum = matrix + CMatrix(3, 3);
  EXPECT_EQ(sum.GetRows(), 3);
  EXPECT_EQ(copy.GetRows(), 2);
  EXPECT_TRUE(matrix.Init(3, 3));
}

TEST(Matrix, CopiesShareNothing) {
  CMatrix source = Numbered(2, 3);
  const CMatrix copy(source);
  CMatrix assigned;
  assigned = source;
  source.SetElement(1, 2, 99);
  EXPECT_EQ(copy.GetElement(1, 2), 12.0);
  EXPECT_EQ(assigned.GetRows(), 2);
  EXPECT_EQ(assigned.GetCols(), 3);
  EXPECT_EQ(assigned.GetElement(1, 2), 12.0);
}

TEST(Matrix, AssignmentToItselfLeavesItAsItWas) {
  CMatrix matrix = Numbered(2, 2);
  const CMatrix& same = matrix;
  matrix = same;
  EXPECT_EQ(matrix.GetElement(1, 1), 11.0);
}

TEST(Matrix, AddsElementByElement) {
  const MessageCounter counter;
  const CMatrix left = Numbered(2, 3);
  CMatrix right(2, 3);
  right.SetElement(1, 2, 0.5);
  const CMatrix sum = left + right;
  EXPECT_EQ(sum.GetElement(1, 2), 12.5);
  EXPECT_EQ(sum.GetElement(0, 1), 1.0);
  EXPECT_EQ(left.GetElement(1, 2), 12.0);
  EXPECT_EQ(shownCount, 0);
}

TEST(Matrix, AddingTwoByThreeToThreeByTwoShowsTheMessageOnceAndGivesTheLeftOperand) {
  const MessageCounter counter;
  const CMatrix sum = Numbered(3, 2) + Numbered(2, 3);
  EXPECT_EQ(shownCount, 1);
  EXPECT_EQ(shownText, L"两矩阵不能相加！");
  EXPECT_EQ(sum.GetRows(), 3);
  EXPECT_EQ(sum.GetCols(), 2);
  EXPECT_EQ(sum.GetElement(2, 1), 21.0);
}

TEST(Matrix, WithoutAHookAMismatchIsSilent) {
  const CMatrix sum = Numbered(1, 2) + Numbered(2, 1);
  EXPECT_EQ(sum.GetElement(0, 1), 1.0);
}

TEST(Matrix, InAListItIsCopiedOnInsertion) {
  ZcDList<CMatrix> list;
  CMatrix source = Numbered(2, 2);
  list.Append(source);
  source.SetElement(0, 0, 99);
  EXPECT_EQ(list.GetCurData().GetElement(0, 0), 0.0);
  EXPECT_EQ(list.GetCurData().GetElement(1, 1), 11.0);
}

}  // namespace
