#include "supply/max_day.h"

#include "host/text/number_text.h"
#include "supply/outflow_coefficient.h"

namespace zwt {
namespace {

constexpr int kVolumeDecimals = 3;

}  // namespace

CString MaxDayText(const MaxDayInputs& inputs) {
  const double dayLitres = inputs.quota * inputs.users;
  const double allowance = dayLitres * inputs.unforeseenPercent * 0.01;
  const double maxDay = (dayLitres + allowance) * 0.001;
  return FormatFixed(maxDay, kVolumeDecimals);
}

CString MaxHourText(const MaxDayInputs& inputs, const CString& maxDayText) {
  if (inputs.hours == 0 || inputs.hourlyFactor == 0) return FormatFixed(0, kVolumeDecimals);
  const double dayLitres = _wtof(maxDayText) * 1000;
  const double meanHour = dayLitres / inputs.hours;
  double peak = inputs.hourlyFactor * meanHour;
  peak = peak + peak * inputs.unforeseenPercent * 0.01;
  return FormatFixed(peak * 0.001, kVolumeDecimals);
}

double ProbabilityFlowEstimate(const MaxDayInputs& inputs, double householdEquivalents) {
  const double u0 =
      OutflowProbability(inputs.quota, inputs.users, inputs.hourlyFactor, inputs.hours, householdEquivalents);
  const double useRatio = UseRatio(OutflowCoefficient(u0, kFarthestRow), householdEquivalents);
  return ProbabilityFlow(useRatio, householdEquivalents);
}

}  // namespace zwt
