// What the supply panel shows over the drawing: its sections by velocity with their diameters, and a profile
// of each riser. Made of the texts that the user reads, so that the picture never says another number.
#pragma once

#include <vector>

#include "host/overlay/overlay.h"
#include "supply/supply_network.h"

namespace zwt {

/// A section as the table of results shows it; texts are empty before the calculation.
struct ShownSupplySection {
  CString label;
  CString flow;      // L/s
  CString velocity;  // m/s
  CString headLoss;  // mH2O
  CString diameter;  // nominal, mm
};

/// Sections in the order of the rows, one shown section for each; row 1 of the table is the first. A section
/// has a value and a label once it shows a velocity and a diameter. A riser has a profile once its sections
/// show a flow: the flow, and the head loss summed from the entry on.
Overlay DescribeSupply(ZcDList<ZwtVPipeData>& risers, const std::vector<ShownSupplySection>& shown,
                       std::int32_t table);

}  // namespace zwt
