// The choice of a pipe size by its velocity, shared by the fixed size tables and the materials of the data
// file: the middle one of the sizes whose velocity lies in the band of their diameter, else the one nearest
// below 0.8 m/s.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zwt {

struct SizedVelocity {
  std::int32_t diameter = 0;  // nominal, mm
  double velocity = 0;        // m/s
};

/// Velocity in m/s of a flow (L/s) in an inner diameter (mm). A zero diameter gives an infinite velocity.
double Velocity(double innerDiameter, double flow);

/// Whether a velocity lies in the band of a nominal diameter, both ends included: 0.6 to 1.0 m/s below DN 25,
/// 0.8 to 1.2 below DN 80, 1.0 to 1.5 from there on (GB 50015-2003, 3.6.9).
bool IsInVelocityBand(const SizedVelocity& size);

/// How the search for a velocity below 0.8 m/s is bounded when no size lies in its band.
struct FallbackLimits {
  std::size_t sizes = 0;  // so many sizes from the front take part
  double largestGap = 0;  // m/s below 0.8; a velocity must lie nearer
};

/// The chosen one of sizes in their order. Nothing if no size lies in its band and none of the fallback's is
/// slower than 0.8 m/s.
std::optional<SizedVelocity> ChooseByVelocity(std::span<const SizedVelocity> sizes,
                                              const FallbackLimits& fallback);

}  // namespace zwt
