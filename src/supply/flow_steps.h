// The steps by which supply calculations tell how a flow and a size were found. What was computed is handed
// in: nothing here computes.
#pragma once

#include <cstdint>

#include "host/text/trace.h"

namespace zwt {

/// Mean outflow probability U0 (per cent) of quota (L per person and day), persons, hourlyFactor Kh, hours
/// per day and equivalents Ng.
struct ProbabilityNumbers {
  double quota = 0;
  double persons = 0;
  double hourlyFactor = 0;
  double hours = 0;
  double equivalents = 0;
};
TraceStep ProbabilityStep(const ProbabilityNumbers& numbers, double u0);

/// αc of the table for U0.
TraceStep CoefficientStep(double u0, double coefficient);

/// Simultaneous use ratio U.
TraceStep RatioStep(double coefficient, double equivalents, double ratio);

/// Design flow in L/s, shown with so many decimals: by the probability method, and by the square root method.
TraceStep ProbabilityFlowStep(double useRatio, double equivalents, double flow, int decimals);
TraceStep RootFlowStep(double rootFactor, double equivalents, double flow, int decimals);

/// A nominal diameter chosen by its velocity among the sizes of a material, or none.
TraceStep SizeStep(const CString& material, std::int32_t diameter, bool isFound);

/// Velocity in m/s of a flow (L/s) in an inner diameter (mm), shown with so many decimals.
TraceStep VelocityStep(double innerDiameter, double flow, double velocity, int decimals);

}  // namespace zwt
