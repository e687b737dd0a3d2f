// What the database must know of the file that a new drawing is written into (host/dxf holds its bytes).
#pragma once

#include <cstdint>

namespace zwt {

/// Handle of model space's block record, and the first handle that is free.
constexpr std::uint64_t kNewModelSpace = 0x1F;
constexpr std::uint64_t kNewFirstHandle = 0x40;

/// Its $DIMSCALE: schematics are plotted 1:100.
constexpr double kNewDimensionScale = 100;

}  // namespace zwt
