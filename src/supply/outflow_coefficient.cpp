// The table of the code and the nearest row.
#include "supply/outflow_coefficient.h"

#include <array>
#include <cmath>

namespace zwt {
namespace {

constexpr double kEquivalentFlow = 0.2;  // L/s of one equivalent
constexpr double kSecondsPerHour = 3600;

struct OutflowRow {
  double probability;  // U0, per cent
  double coefficient;  // αc
};

// GB 50015-2003, appendix C.
constexpr std::array kOutflowRows = {
    OutflowRow{1.0, 0.00323}, OutflowRow{1.5, 0.00697}, OutflowRow{2.0, 0.01097}, OutflowRow{2.5, 0.01512},
    OutflowRow{3.0, 0.01939}, OutflowRow{3.5, 0.02374}, OutflowRow{4.0, 0.02816}, OutflowRow{4.5, 0.03263},
    OutflowRow{5.0, 0.03715}, OutflowRow{6.0, 0.04629}, OutflowRow{7.0, 0.05555}, OutflowRow{8.0, 0.06489},
};

}  // namespace

double OutflowProbability(double quota, double persons, double hourlyFactor, double hours,
                          double equivalents) {
  return quota * persons * hourlyFactor / (kEquivalentFlow * equivalents * hours * kSecondsPerHour) * 100;
}

double OutflowCoefficient(double u0, double farthest) {
  double coefficient = 0;
  double best = farthest;
  for (const OutflowRow& row : kOutflowRows) {
    const double distance = std::fabs(row.probability - u0);
    if (best >= distance) {
      best = distance;
      coefficient = row.coefficient;
    }
  }
  return coefficient;
}

double UseRatio(double outflowCoefficient, double equivalents) {
  return (1 + outflowCoefficient * std::pow(equivalents - 1, 0.49)) / std::sqrt(equivalents);
}

double ProbabilityFlow(double useRatio, double equivalents) {
  return kEquivalentFlow * useRatio * equivalents;
}

double RootFlow(double rootFactor, double equivalents) {
  return kEquivalentFlow * rootFactor * std::sqrt(equivalents);
}

}  // namespace zwt
