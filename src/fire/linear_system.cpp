// Elimination in place. The order of every comparison, exchange and sum is fixed: the last digits depend on
// it.
#include "fire/linear_system.h"

#include <cmath>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace zwt {

namespace {

class DenseElimination {
 public:
  DenseElimination(double* matrix, double* rightSide, std::size_t size)
      : matrix_(matrix), right_(rightSide), size_(size), columnOf_(size, 0) {}

  bool Solve(double* solution) {
    for (std::size_t k = 0; k + 1 < size_; ++k) {
      std::size_t pivotRow = k;
      if (!FindPivot(k, pivotRow)) return false;
      Exchange(k, pivotRow);
      Eliminate(k);
    }
    if (size_ == 0) return true;
    if (Row(size_ - 1)[size_ - 1] < kPivotLimit) return false;
    Substitute(solution);
    return true;
  }

 private:
  double* Row(std::size_t row) const { return matrix_ + row * size_; }

  /// The greatest entry from (k, k) on; of equal ones the first, row by row.
  bool FindPivot(std::size_t k, std::size_t& pivotRow) {
    double best = 0.0;
    for (std::size_t i = k; i < size_; ++i) {
      const double* row = Row(i);
      for (std::size_t j = k; j < size_; ++j) {
        if (std::fabs(row[j]) > best) {
          best = std::fabs(row[j]);
          pivotRow = i;
          columnOf_[k] = j;
        }
      }
    }
    return best >= kPivotLimit;
  }

  void Exchange(std::size_t k, std::size_t pivotRow) {
    const std::size_t column = columnOf_[k];
    if (column != k) {
      for (std::size_t i = 0; i < size_; ++i) std::swap(Row(i)[k], Row(i)[column]);
    }
    if (pivotRow != k) {
      for (std::size_t j = k; j < size_; ++j) std::swap(Row(k)[j], Row(pivotRow)[j]);
      std::swap(right_[k], right_[pivotRow]);
    }
  }

  void Eliminate(std::size_t k) {
    double* pivot = Row(k);
    for (std::size_t j = k + 1; j < size_; ++j) pivot[j] /= pivot[k];
    right_[k] /= pivot[k];
    for (std::size_t i = k + 1; i < size_; ++i) {
      double* row = Row(i);
      const double factor = row[k];
      for (std::size_t j = k + 1; j < size_; ++j) row[j] -= factor * pivot[j];
      right_[i] -= factor * right_[k];
    }
  }

  void Substitute(double* solution) {
    const std::size_t last = size_ - 1;
    solution[last] = right_[last] / Row(last)[last];
    for (std::size_t i = last; i-- > 0;) {
      double sum = 0.0;
      for (std::size_t j = i + 1; j < size_; ++j) sum += Row(i)[j] * solution[j];
      solution[i] = right_[i] - sum;
    }
    columnOf_[last] = last;
    for (std::size_t k = size_; k-- > 0;) {
      if (columnOf_[k] != k) std::swap(solution[k], solution[columnOf_[k]]);
    }
  }

  double* matrix_;
  double* right_;
  std::size_t size_;
  std::vector<std::size_t> columnOf_;  // by step: the column that its pivot came from
};

}  // namespace

bool SolveLinearSystem(double* matrix, double* rightSide, std::int32_t size, double* solution) {
  return DenseElimination(matrix, rightSide, static_cast<std::size_t>(size)).Solve(solution);
}

}  // namespace zwt
