// Design flow from fixture equivalents: the probability method for dwellings (GB 50015-2003, 3.6.4; mean
// outflow probability U0, outflow coefficient αc, simultaneous use ratio U) and the square root method for
// public buildings (3.6.5). Which of them a building takes, and the diameter for the flow, are decided
// elsewhere.
#pragma once

#include <limits>

namespace zwt {

/// Mean outflow probability U0 in per cent. quota L per person and day, persons that the quota counts,
/// hourlyFactor Kh, hours of use per day, equivalents Ng. Zero hours or equivalents divide by zero.
double OutflowProbability(double quota, double persons, double hourlyFactor, double hours,
                          double equivalents);

/// The stand-alone estimates look no farther than this (in per cent of U0) for a row of the table.
inline constexpr double kFarthestRow = 9999.9;

/// αc of the table row whose U0 lies nearest to u0 (per cent); on a tie the later row. No interpolation. 0
/// where no row lies within `farthest`, or where u0 is not a number.
double OutflowCoefficient(double u0, double farthest = std::numeric_limits<double>::infinity());

/// Simultaneous use ratio U, a plain ratio and no percentage. Not a number for equivalents below 1.
double UseRatio(double outflowCoefficient, double equivalents);

/// Design flow in L/s of equivalents that are used at the ratio given.
double ProbabilityFlow(double useRatio, double equivalents);

/// Design flow in L/s of a public building with the factor α. Negative equivalents give no number.
double RootFlow(double rootFactor, double equivalents);

}  // namespace zwt
