#include "supply/inlet_diameter.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

#include "supply/flow_steps.h"

namespace zwt {
namespace {

struct InletSize {
  std::int32_t diameter;  // nominal, mm
  double inner;           // mm
};

// DN 65 and DN 70 are two names for one pipe.
constexpr std::array kMetalSizes = {
    InletSize{8, 8},     InletSize{10, 11.5},  InletSize{15, 14.75}, InletSize{20, 20.25},
    InletSize{25, 26},   InletSize{32, 34.75}, InletSize{40, 40},    InletSize{50, 52},
    InletSize{65, 67},   InletSize{70, 67},    InletSize{80, 79.5},  InletSize{100, 105},
    InletSize{125, 125}, InletSize{150, 147},  InletSize{175, 173},  InletSize{200, 198},
    InletSize{225, 224}, InletSize{250, 252},  InletSize{275, 278},  InletSize{300, 305},
    InletSize{325, 331}, InletSize{350, 357},
};

constexpr std::array kPlasticSizes = {
    InletSize{8, 9},     InletSize{10, 12},   InletSize{15, 16},   InletSize{20, 22},   InletSize{25, 29},
    InletSize{32, 36},   InletSize{40, 46},   InletSize{50, 58},   InletSize{65, 70},   InletSize{70, 70},
    InletSize{80, 84},   InletSize{100, 103}, InletSize{110, 117}, InletSize{125, 131}, InletSize{150, 150},
    InletSize{175, 169}, InletSize{200, 188}, InletSize{225, 211}, InletSize{250, 235}, InletSize{275, 263},
    InletSize{300, 296}, InletSize{350, 334}, InletSize{400, 376},
};

constexpr int kVelocityDecimals = 2;  // of the panels

constexpr double kMetalLargestGap = 999999;     // m/s
constexpr double kPlasticLargestGap = 9999999;  // m/s

/// Plastic pipes are computed with the rounded 4/π of their handbook.
double PlasticVelocity(double innerDiameter, double flow) {
  const double diameter = innerDiameter * 0.001;
  return 1.273 * flow / (1000 * (diameter * diameter));
}

std::vector<SizedVelocity> Velocities(std::span<const InletSize> sizes, double flow,
                                      double (*velocity)(double, double)) {
  std::vector<SizedVelocity> velocities;
  velocities.reserve(sizes.size());
  for (const InletSize& size : sizes) velocities.push_back({size.diameter, velocity(size.inner, flow)});
  return velocities;
}

}  // namespace

std::optional<SizedVelocity> ChooseInletDiameter(InletMaterial material, double flow, Trace* trace) {
  const bool isMetal = material == InletMaterial::Metal;
  const std::span<const InletSize> sizes = isMetal ? std::span<const InletSize>(kMetalSizes) : kPlasticSizes;
  const FallbackLimits fallback{sizes.size(), isMetal ? kMetalLargestGap : kPlasticLargestGap};
  const auto chosen =
      ChooseByVelocity(Velocities(sizes, flow, isMetal ? Velocity : PlasticVelocity), fallback);
  if (trace == nullptr) return chosen;
  trace->push_back(
      SizeStep(isMetal ? L"金属管" : L"塑料管", chosen ? chosen->diameter : 0, chosen.has_value()));
  if (!chosen) return chosen;
  const auto size = std::find_if(sizes.begin(), sizes.end(),
                                 [&](const InletSize& each) { return each.diameter == chosen->diameter; });
  TraceStep step = VelocityStep(size->inner, flow, chosen->velocity, kVelocityDecimals);
  if (!isMetal) {
    step.formula = L"1.273·qg / (1000·dj²)";
    step.substitution = WithNumbers(L"1.273 × # / (1000 × (# × 0.001)²)", {flow, size->inner});
  }
  trace->push_back(std::move(step));
  return chosen;
}

}  // namespace zwt
