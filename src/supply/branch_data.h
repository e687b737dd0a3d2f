// The six values that a branch pipe carries for the supply calculation, as attributes of the pipe in the
// drawing.
#pragma once

#include <cstdint>

#include "host/drawing/object_id.h"

namespace zwt {

/// Values of a branch. A new pipe carries none: they then read as 0.
struct BranchData {
  double ration = 250.0;    // L per person and day
  double kh = 2.8;          // hourly variation coefficient
  double equivalent = 0.0;  // fixture equivalents per household
  double doorNum = 2.0;     // households
  double userNum = 3.5;     // persons per household
  std::int32_t time = 24;   // hours of use per day
};

/// The values of a branch pipe. Attributes that are missing or hold no number read as 0, as do all those of
/// the null identifier.
BranchData ReadBranchFields(AcDbObjectId branchId);

/// Writes all six values; a pipe that cannot be opened stays as it is.
void WriteBranchFields(AcDbObjectId branchId, const BranchData& data);

}  // namespace zwt
