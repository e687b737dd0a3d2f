// Nominal diameter and velocity for a flow, out of two size tables that are fixed in the program. The
// calculation of a drawn system takes its sizes from the data file instead.
#pragma once

#include <cstdint>
#include <optional>

#include "host/text/trace.h"
#include "supply/velocity_choice.h"

namespace zwt {

enum class InletMaterial : std::int32_t { Metal, Plastic };

/// Nominal diameter (mm) and velocity (m/s) for a flow in L/s, a step each in a trace. Nothing where no size
/// fits: the panel then keeps what it shows.
std::optional<SizedVelocity> ChooseInletDiameter(InletMaterial material, double flow, Trace* trace = nullptr);

}  // namespace zwt
