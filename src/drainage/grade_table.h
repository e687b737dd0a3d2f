// Grade, flow and velocity of part-full horizontal drains, from the design tables, and the straight lines
// between their rows.
#pragma once

#include <cstdint>

#include "frame/containers/zc_list.h"

namespace zwt {

enum class DrainMaterial : std::int32_t { Metal = 0, Plastic = 1 };

/// Appends one entry per row of the material's table to three parallel lists: the grade, and flow (L/s) and
/// velocity (m/s) of the nominal diameter (mm). The file is read anew; where it cannot be read, or has no
/// such table, nothing is appended.
void LoadGradeTable(DrainMaterial material, std::int32_t diameter, ZcList<double>& grades,
                    ZcList<double>& flows, ZcList<double>& velocities);

/// Grade and velocity for a flow, along the line through the two rows around it. A flow below the first row,
/// and also one at or above the last, goes along the first two rows. Both stay as they are for fewer than two
/// rows.
void InterpolateGrade(double flow, ZcList<double>& grades, ZcList<double>& flows, ZcList<double>& velocities,
                      double& grade, double& velocity);

}  // namespace zwt
