// The linear system of one pass: the heads of a looped network from its conductances and outflows. Works on
// the few entries that are not zero, with the pivots, sums and so the last digits of the plain elimination.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace zwt {

/// Two node indices, from 0.
struct NodePair {
  std::int32_t start = 0;
  std::int32_t end = 0;
};

/// Made once for the sections of a network, solved once per pass.
class HeadSystem {
 public:
  HeadSystem(std::int32_t nodeCount, std::vector<NodePair> sections);

  /// Heads that balance the outflows `rightSide`, with row 0 replaced by head 0 = rightSide[0]. conductances
  /// in the order of the sections. False, with `heads` as they were, where no pivot is left. The result, to
  /// the last bit, is that of SolveLinearSystem on the full matrix, also where a conductance is no finite
  /// number.
  bool Solve(const std::vector<double>& conductances, const std::vector<double>& rightSide,
             std::vector<double>& heads);

 private:
  struct Entry {
    std::int32_t column;
    double value;
  };
  using Row = std::vector<Entry>;
  enum class Result { Solved, NoPivot, NotFinite };

  /// Where a section's conductance goes: indices into the rows, -1 in row 0, which is fixed.
  struct Stamp {
    std::int32_t startOwn, startOther, endOwn, endOther;
  };

  std::int32_t EntryIn(std::int32_t row, std::int32_t column);
  void AddConductances(const std::vector<double>& conductances);
  Result SolveSparse(const std::vector<double>& rightSide, std::vector<double>& heads);
  bool FindPivot(std::size_t step);
  void MoveToPivot(std::size_t step);
  bool Normalise(std::size_t step);
  void Eliminate(std::size_t step);
  void Subtract(std::int32_t target, const Row& pivotRow, double factor);
  double TakeFactor(std::int32_t row);
  void NoteLargest(std::int32_t row);
  Result Substitute(std::vector<double>& heads);
  bool SolveDense(const std::vector<double>& conductances, std::vector<double> rightSide,
                  std::vector<double>& heads) const;

  std::size_t size_;
  std::vector<NodePair> sections_;
  std::vector<Stamp> stamps_;
  std::vector<Row> assembled_;

  std::vector<Row> rows_;  // by row as assembled; a row that has been a pivot keeps what is right of it
  std::vector<double> right_;
  std::vector<std::vector<std::int32_t>> rowsOfColumn_;
  std::vector<std::vector<std::int32_t>> assembledRowsOfColumn_;
  std::vector<std::int32_t> rowAt_, columnAt_;  // by place in the order of elimination
  std::vector<std::int32_t> placeOfRow_, placeOfColumn_;
  std::vector<double> largest_;  // by place: the greatest magnitude of a row that is still to be eliminated
  std::vector<std::int32_t> entryOfColumn_;  // scratch of Subtract, -1 between calls
  std::vector<double> headAt_;               // by place
  std::size_t pivotRowPlace_ = 0;
  std::int32_t pivotColumn_ = 0;
};

}  // namespace zwt
