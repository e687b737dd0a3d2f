// Why zeros can be passed over without a change in any bit: a row whose multiplier is zero loses zeros, which
// leaves every number as it is, since a difference that comes out as zero is never a negative zero. That
// holds while all numbers are finite; where one is not, a zero times it is no number, and the full matrix is
// worked through instead.
#include "fire/head_system.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "fire/linear_system.h"

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

bool AreFinite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

/// A zero with a sign could lose it to a zero that is passed over.
bool HasNegativeZero(const std::vector<double>& values) {
  return std::any_of(values.begin(), values.end(),
                     [](double value) { return value == 0.0 && std::signbit(value); });
}

}  // namespace

HeadSystem::HeadSystem(std::int32_t nodeCount, std::vector<NodePair> sections)
    : size_(At(nodeCount)),
      sections_(std::move(sections)),
      assembled_(size_),
      assembledRowsOfColumn_(size_),
      entryOfColumn_(size_, -1) {
  if (size_ > 0) EntryIn(0, 0);
  stamps_.reserve(sections_.size());
  for (const NodePair& section : sections_) {
    stamps_.push_back({EntryIn(section.start, section.start), EntryIn(section.start, section.end),
                       EntryIn(section.end, section.end), EntryIn(section.end, section.start)});
  }
  for (std::size_t row = 0; row < size_; ++row) {
    for (const Entry& entry : assembled_[row]) {
      assembledRowsOfColumn_[At(entry.column)].push_back(static_cast<std::int32_t>(row));
    }
  }
}

/// Place of an entry in its row, made if it is new; -1 in row 0 but for its own column.
std::int32_t HeadSystem::EntryIn(std::int32_t row, std::int32_t column) {
  if (row == 0 && column != 0) return -1;
  Row& entries = assembled_[At(row)];
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [column](const Entry& entry) { return entry.column == column; });
  const auto place = static_cast<std::int32_t>(found - entries.begin());
  if (found == entries.end()) entries.push_back({column, 0.0});
  return place;
}

bool HeadSystem::Solve(const std::vector<double>& conductances, const std::vector<double>& rightSide,
                       std::vector<double>& heads) {
  if (AreFinite(conductances) && AreFinite(rightSide) && !HasNegativeZero(rightSide)) {
    AddConductances(conductances);
    const Result result = SolveSparse(rightSide, heads);
    if (result != Result::NotFinite) return result == Result::Solved;
  }
  return SolveDense(conductances, rightSide, heads);
}

void HeadSystem::AddConductances(const std::vector<double>& conductances) {
  for (Row& row : assembled_) {
    for (Entry& entry : row) entry.value = 0.0;
  }
  const auto add = [this](std::int32_t row, std::int32_t entry, double value) {
    if (entry >= 0) assembled_[At(row)][At(entry)].value += value;
  };
  for (std::size_t index = 0; index < sections_.size(); ++index) {
    const NodePair& section = sections_[index];
    const Stamp& stamp = stamps_[index];
    const double conductance = conductances[index];
    add(section.start, stamp.startOwn, conductance);
    if (section.start == section.end) continue;
    add(section.start, stamp.startOther, -conductance);
    add(section.end, stamp.endOwn, conductance);
    add(section.end, stamp.endOther, -conductance);
  }
  if (size_ > 0) assembled_[0][0].value = 1.0;
}

HeadSystem::Result HeadSystem::SolveSparse(const std::vector<double>& rightSide, std::vector<double>& heads) {
  rows_ = assembled_;
  right_ = rightSide;
  rowsOfColumn_ = assembledRowsOfColumn_;
  for (auto* places : {&rowAt_, &columnAt_, &placeOfRow_, &placeOfColumn_}) {
    places->resize(size_);
    std::iota(places->begin(), places->end(), 0);
  }
  largest_.resize(size_);
  for (std::size_t row = 0; row < size_; ++row) NoteLargest(static_cast<std::int32_t>(row));
  for (std::size_t step = 0; step + 1 < size_; ++step) {
    if (!FindPivot(step)) return Result::NoPivot;
    MoveToPivot(step);
    if (!Normalise(step)) return Result::NotFinite;
    Eliminate(step);
  }
  return size_ > 0 ? Substitute(heads) : Result::Solved;
}

void HeadSystem::NoteLargest(std::int32_t row) {
  double largest = 0.0;
  for (const Entry& entry : rows_[At(row)]) largest = std::max(largest, std::fabs(entry.value));
  largest_[At(placeOfRow_[At(row)])] = largest;
}

/// The greatest entry that is left; of equal ones the first by row and column as exchanged so far.
bool HeadSystem::FindPivot(std::size_t step) {
  const auto largest = std::max_element(largest_.begin() + static_cast<std::ptrdiff_t>(step), largest_.end());
  if (*largest < kPivotLimit) return false;
  pivotRowPlace_ = static_cast<std::size_t>(largest - largest_.begin());
  std::int32_t place = static_cast<std::int32_t>(size_);
  for (const Entry& entry : rows_[At(rowAt_[pivotRowPlace_])]) {
    if (std::fabs(entry.value) == *largest) place = std::min(place, placeOfColumn_[At(entry.column)]);
  }
  pivotColumn_ = columnAt_[At(place)];
  return true;
}

void HeadSystem::MoveToPivot(std::size_t step) {
  const auto exchange = [](std::vector<std::int32_t>& at, std::vector<std::int32_t>& placeOf,
                           std::size_t first, std::size_t second) {
    std::swap(at[first], at[second]);
    placeOf[At(at[first])] = static_cast<std::int32_t>(first);
    placeOf[At(at[second])] = static_cast<std::int32_t>(second);
  };
  exchange(columnAt_, placeOfColumn_, step, At(placeOfColumn_[At(pivotColumn_)]));
  exchange(rowAt_, placeOfRow_, step, pivotRowPlace_);
  std::swap(largest_[step], largest_[pivotRowPlace_]);
}

/// Takes the entry of the pivot's column out of a row.
double HeadSystem::TakeFactor(std::int32_t row) {
  Row& entries = rows_[At(row)];
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [this](const Entry& entry) { return entry.column == pivotColumn_; });
  const double factor = found->value;
  *found = entries.back();
  entries.pop_back();
  return factor;
}

/// Divides the pivot's row. False if the pivot or the right side is no finite number.
bool HeadSystem::Normalise(std::size_t step) {
  const std::int32_t row = rowAt_[step];
  const double pivot = TakeFactor(row);
  for (Entry& entry : rows_[At(row)]) entry.value /= pivot;
  right_[At(row)] /= pivot;
  return std::isfinite(pivot) && std::isfinite(right_[At(row)]);
}

void HeadSystem::Eliminate(std::size_t step) {
  const std::int32_t pivotRow = rowAt_[step];
  for (const std::int32_t row : rowsOfColumn_[At(pivotColumn_)]) {
    if (At(placeOfRow_[At(row)]) <= step) continue;
    const double factor = TakeFactor(row);
    if (factor == 0.0) continue;
    Subtract(row, rows_[At(pivotRow)], factor);
    right_[At(row)] -= factor * right_[At(pivotRow)];
    NoteLargest(row);
  }
}

void HeadSystem::Subtract(std::int32_t target, const Row& pivotRow, double factor) {
  Row& row = rows_[At(target)];
  for (std::size_t index = 0; index < row.size(); ++index) {
    entryOfColumn_[At(row[index].column)] = static_cast<std::int32_t>(index);
  }
  for (const Entry& entry : pivotRow) {
    const std::int32_t place = entryOfColumn_[At(entry.column)];
    if (place >= 0) {
      row[At(place)].value -= factor * entry.value;
    } else {
      row.push_back({entry.column, 0.0 - factor * entry.value});
      rowsOfColumn_[At(entry.column)].push_back(target);
    }
  }
  for (const Entry& entry : row) entryOfColumn_[At(entry.column)] = -1;
}

HeadSystem::Result HeadSystem::Substitute(std::vector<double>& heads) {
  const std::size_t last = size_ - 1;
  const std::int32_t lastRow = rowAt_[last];
  const Row& lastEntries = rows_[At(lastRow)];
  const double lastPivot = lastEntries.empty() ? 0.0 : lastEntries.front().value;
  if (!std::isfinite(lastPivot)) return Result::NotFinite;
  if (lastPivot < kPivotLimit) return Result::NoPivot;
  headAt_.resize(size_);
  headAt_[last] = right_[At(lastRow)] / lastPivot;
  for (std::size_t place = last; place-- > 0;) {
    Row& row = rows_[At(rowAt_[place])];
    // The sum runs from the left, as in the full matrix.
    std::sort(row.begin(), row.end(), [this](const Entry& a, const Entry& b) {
      return placeOfColumn_[At(a.column)] < placeOfColumn_[At(b.column)];
    });
    double sum = 0.0;
    for (const Entry& entry : row) sum += entry.value * headAt_[At(placeOfColumn_[At(entry.column)])];
    headAt_[place] = right_[At(rowAt_[place])] - sum;
  }
  if (!AreFinite(headAt_)) return Result::NotFinite;
  heads.resize(size_);
  for (std::size_t place = 0; place < size_; ++place) heads[At(columnAt_[place])] = headAt_[place];
  return Result::Solved;
}

bool HeadSystem::SolveDense(const std::vector<double>& conductances, std::vector<double> rightSide,
                            std::vector<double>& heads) const {
  std::vector<double> matrix(size_ * size_, 0.0);
  const auto at = [&](std::int32_t row, std::int32_t column) -> double& {
    return matrix[At(row) * size_ + At(column)];
  };
  for (std::size_t index = 0; index < sections_.size(); ++index) {
    const NodePair& section = sections_[index];
    const double conductance = conductances[index];
    at(section.start, section.start) += conductance;
    if (section.start == section.end) continue;
    at(section.start, section.end) += -conductance;
    at(section.end, section.start) += -conductance;
    at(section.end, section.end) += conductance;
  }
  if (size_ > 0) {
    std::fill_n(matrix.begin(), size_, 0.0);
    matrix[0] = 1.0;
  }
  heads.resize(size_);
  return SolveLinearSystem(matrix.data(), rightSide.data(), static_cast<std::int32_t>(size_), heads.data());
}

}  // namespace zwt
