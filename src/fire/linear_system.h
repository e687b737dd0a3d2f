// Dense linear systems by elimination with full pivoting: the plain form, which takes every number as it
// comes.
#pragma once

#include <cstdint>

namespace zwt {

/// A pivot below this counts as none.
inline constexpr double kPivotLimit = 0.000001;

/// Solves the system of `size` equations, row after row in `matrix`, and writes `solution`. Matrix and right
/// side are used up. False, with `solution` as it was, where no pivot of at least kPivotLimit is left. The
/// last pivot is tested with its sign, so a negative one fails. What is no number never becomes a pivot but
/// the last.
bool SolveLinearSystem(double* matrix, double* rightSide, std::int32_t size, double* solution);

}  // namespace zwt
