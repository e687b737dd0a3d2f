// Maximum-day and maximum-hour water volume of a building, and the flow of a dwelling's inlet pipe. Knows
// nothing of the panel or of the tables that the quota comes from.
#pragma once

#include "host/text/trace.h"
#include "host/text/wide_text.h"

namespace zwt {

struct MaxDayInputs {
  double quota = 0;                 // L per user and day
  double users = 0;                 // persons, beds and the like, as the quota counts them
  double hourlyFactor = 0;          // Kh
  double hours = 0;                 // of use per day
  double unforeseenPercent = 10.0;  // allowance for unforeseen use
};

/// Maximum-day volume in m³, with three decimals (GB 50015-2003, 3.1.9 and 3.1.10).
CString MaxDayText(const MaxDayInputs& inputs, Trace* trace = nullptr);

/// Maximum-hour volume in m³, with three decimals, of the day volume that maxDayText shows: its rounding is
/// carried on. The allowance enters a second time, on a day that holds it already: that is how the hour is
/// defined here. "0.000" for zero hours or a zero factor.
CString MaxHourText(const MaxDayInputs& inputs, const CString& maxDayText, Trace* trace = nullptr);

/// Flow of a dwelling's inlet pipe in L/s by the probability method, for the equivalents of one household and
/// the users of the whole building. Equivalents of 0 are to be refused before; below 1 the flow is not a
/// number.
double ProbabilityFlowEstimate(const MaxDayInputs& inputs, double householdEquivalents);

}  // namespace zwt
