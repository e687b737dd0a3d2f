// A looped hydrant network to start from: risers with a hydrant on every storey between a main below the
// lowest floor and one under the roof, entered at the left end of the lower main.
#pragma once

#include <memory>

#include "host/drawing/drawing.h"

namespace zwt {

struct HydrantSchematic {
  std::int32_t storeys = 6;
  std::int32_t risers = 4;
  double storeyHeight = 3000;  // mm
  double bay = 8000;           // mm between neighbouring risers
  double entry = 6000;         // mm of main before the first riser
  CString material = L"镀锌钢管";
};

/// Draws the network. The branch of the highest hydrant of each riser is marked and says how many hydrants
/// the riser has. Lengths on risers are heights, so hydrants stand as high above each other as they do in the
/// building.
std::unique_ptr<Drawing> DrawHydrantSchematic(const HydrantSchematic& schematic);

}  // namespace zwt
