// Small dense matrix of doubles, with which the looped hydrant network is solved: storage, element access,
// copying and addition. The solver's arithmetic beyond that lies with the solver.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>

class CMatrix {
 public:
  /// Receives the text of a message box to show.
  using MessageHook = void (*)(const wchar_t* text);

  /// 1 by 1, holding 0.
  CMatrix() { Init(1, 1); }
  /// All 0. Negative or too large shapes are kept without data, as Init has it.
  CMatrix(int rowCount, int colCount) { Init(rowCount, colCount); }
  CMatrix(const CMatrix& other) { CopyFrom(other); }
  CMatrix& operator=(const CMatrix& other) {
    if (this != &other) CopyFrom(other);
    return *this;
  }
  virtual ~CMatrix() { Free(); }

  /// Takes a new shape, all 0. False if the number of elements is negative or above 2^31 - 1 or memory runs
  /// out: the shape is the new one all the same, and there is no data.
  bool Init(int rowCount, int colCount) {
    Free();
    rows = rowCount;
    cols = colCount;
    const std::int64_t count = Count();
    if (count < 0 || count > std::numeric_limits<std::int32_t>::max()) return false;
    data = new (std::nothrow) double[static_cast<std::size_t>(count)]();
    return data != nullptr;
  }

  int GetRows() const { return rows; }
  int GetCols() const { return cols; }

  /// Row and column count from 0 and are not checked.
  double GetElement(int row, int col) const { return data[Offset(row, col)]; }
  /// False, and no change, if row or column is out of range or there is no data.
  bool SetElement(int row, int col, double value) {
    if (data == nullptr || row < 0 || row >= rows || col < 0 || col >= cols) return false;
    data[Offset(row, col)] = value;
    return true;
  }

  /// The sum. If the shapes differ, the message hook is told so and a copy of this matrix comes back.
  CMatrix operator+(const CMatrix& other) const {
    CMatrix sum(*this);
    if (rows != other.rows || cols != other.cols) {
      if (messageHook != nullptr) messageHook(L"两矩阵不能相加！");
      return sum;
    }
    if (sum.data == nullptr || other.data == nullptr) return sum;
    for (int row = 0; row < rows; ++row) {
      for (int col = 0; col < cols; ++col) {
        sum.SetElement(row, col, GetElement(row, col) + other.GetElement(row, col));
      }
    }
    return sum;
  }

  /// Installs what shows the messages of all matrices of this module, null for nobody, and returns the one
  /// before.
  static MessageHook SetMessageHook(MessageHook hook) {
    const MessageHook before = messageHook;
    messageHook = hook;
    return before;
  }

 private:
  std::int64_t Count() const { return static_cast<std::int64_t>(rows) * cols; }
  std::size_t Offset(int row, int col) const {
    return static_cast<std::size_t>(col) + static_cast<std::size_t>(row) * static_cast<std::size_t>(cols);
  }

  void Free() {
    delete[] data;
    data = nullptr;
  }

  void CopyFrom(const CMatrix& other) {
    const bool hasData = Init(other.rows, other.cols);
    if (other.data == nullptr) {
      Free();
    } else if (hasData) {
      std::copy_n(other.data, Count(), data);
    }
  }

  int rows = 0;
  int cols = 0;
  double* data = nullptr;

  static inline MessageHook messageHook = nullptr;
};
