#include "supply/velocity_choice.h"

#include <algorithm>
#include <iterator>
#include <numbers>
#include <vector>

namespace zwt {
namespace {

constexpr double kSlowVelocity = 0.8;  // m/s

struct VelocityBand {
  std::int32_t diameterBelow;
  double lowest;
  double highest;
};

constexpr VelocityBand kSmallPipes{25, 0.6, 1.0};
constexpr VelocityBand kMiddlePipes{80, 0.8, 1.2};
constexpr VelocityBand kLargePipes{0, 1.0, 1.5};

const VelocityBand& BandOf(std::int32_t diameter) {
  if (diameter < kSmallPipes.diameterBelow) return kSmallPipes;
  if (diameter < kMiddlePipes.diameterBelow) return kMiddlePipes;
  return kLargePipes;
}

}  // namespace

double Velocity(double innerDiameter, double flow) {
  const double diameter = innerDiameter * 0.001;
  return 4 * flow * 0.001 / (std::numbers::pi * (diameter * diameter));
}

bool IsInVelocityBand(const SizedVelocity& size) {
  const VelocityBand& band = BandOf(size.diameter);
  return size.velocity >= band.lowest && size.velocity <= band.highest;
}

std::optional<SizedVelocity> ChooseByVelocity(std::span<const SizedVelocity> sizes,
                                              const FallbackLimits& fallback) {
  std::vector<SizedVelocity> candidates;
  std::copy_if(sizes.begin(), sizes.end(), std::back_inserter(candidates), IsInVelocityBand);
  if (!candidates.empty()) return candidates[candidates.size() / 2];
  std::optional<SizedVelocity> chosen;
  double best = fallback.largestGap;
  for (const SizedVelocity& size : sizes.first(std::min(sizes.size(), fallback.sizes))) {
    const double gap = kSlowVelocity - size.velocity;
    if (gap > 0 && gap < best) {
      best = gap;
      chosen = size;
    }
  }
  return chosen;
}

}  // namespace zwt
