// What the drainage panel shows over the drawing: branches by velocity with their diameters, and the diameter
// of the stack. Made of the texts that the user reads, so that the picture never says another number.
#pragma once

#include <vector>

#include "drainage/drainage_network.h"
#include "host/overlay/overlay.h"

namespace zwt {

/// A branch as the table of results shows it; texts are empty before the calculation.
struct ShownDrainageBranch {
  CString velocity;  // m/s
  CString diameter;  // nominal, mm
};

/// A branch and a riser segment for each floor, in the order of the rows, one shown branch for each; row 1 of
/// the table is the first. A branch has a value and a label once it shows a velocity and a diameter. Riser
/// segments have no value; the first bears the diameter of the stack in mm, if it has one yet (0: none).
Overlay DescribeDrainage(ZwtPsPipeNetwork& network, const std::vector<ShownDrainageBranch>& shown,
                         std::int32_t riserDiameter, std::int32_t table);

}  // namespace zwt
