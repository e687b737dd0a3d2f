#include "supply/max_day.h"

#include "host/text/number_text.h"
#include "supply/outflow_coefficient.h"

namespace zwt {
namespace {

constexpr int kVolumeDecimals = 3;

}  // namespace

CString MaxDayText(const MaxDayInputs& inputs, Trace* trace) {
  const double dayLitres = inputs.quota * inputs.users;
  const double allowance = dayLitres * inputs.unforeseenPercent * 0.01;
  const double maxDay = (dayLitres + allowance) * 0.001;
  CString text = FormatFixed(maxDay, kVolumeDecimals);
  if (trace != nullptr) {
    trace->push_back({.subject = L"用水量 Q",
                      .formula = L"q0·m",
                      .substitution = WithNumbers(L"# × #", {inputs.quota, inputs.users}),
                      .result = TraceNumber(dayLitres) + L" L",
                      .source = L"GB 50015-2003 第3.1.9条"});
    trace->push_back({.subject = L"未预见水量 ΔQ",
                      .formula = L"Q·p·0.01",
                      .substitution = WithNumbers(L"# × # × 0.01", {dayLitres, inputs.unforeseenPercent}),
                      .result = TraceNumber(allowance) + L" L"});
    trace->push_back({.subject = L"最高日用水量 Qd",
                      .formula = L"(Q + ΔQ)·0.001",
                      .substitution = WithNumbers(L"(# + #) × 0.001", {dayLitres, allowance}),
                      .result = text + L" m³"});
  }
  return text;
}

CString MaxHourText(const MaxDayInputs& inputs, const CString& maxDayText, Trace* trace) {
  if (inputs.hours == 0 || inputs.hourlyFactor == 0) {
    CString none = FormatFixed(0, kVolumeDecimals);
    if (trace != nullptr)
      trace->push_back(
          {.subject = L"最高时用水量 Qh", .substitution = L"T 或 Kh 为 0", .result = none + L" m³"});
    return none;
  }
  const double dayLitres = _wtof(maxDayText) * 1000;
  const double meanHour = dayLitres / inputs.hours;
  const double peak = inputs.hourlyFactor * meanHour;
  const double withAllowance = peak + peak * inputs.unforeseenPercent * 0.01;
  CString text = FormatFixed(withAllowance * 0.001, kVolumeDecimals);
  if (trace != nullptr) {
    trace->push_back({.subject = L"平均时用水量 Qp",
                      .formula = L"Qd / T",
                      .substitution = WithNumbers(L"# / #", {dayLitres, inputs.hours}),
                      .result = TraceNumber(meanHour) + L" L",
                      .source = L"GB 50015-2003 第3.1.10条"});
    trace->push_back({.subject = L"高峰时用水量 Q1",
                      .formula = L"Kh·Qp",
                      .substitution = WithNumbers(L"# × #", {inputs.hourlyFactor, meanHour}),
                      .result = TraceNumber(peak) + L" L",
                      .source = L"GB 50015-2003 第3.1.10条"});
    trace->push_back(
        {.subject = L"最高时用水量 Qh",
         .formula = L"(Q1 + Q1·p·0.01)·0.001",
         .substitution = WithNumbers(L"(# + # × # × 0.01) × 0.001", {peak, peak, inputs.unforeseenPercent}),
         .result = text + L" m³"});
  }
  return text;
}

double ProbabilityFlowEstimate(const MaxDayInputs& inputs, double householdEquivalents) {
  const double u0 =
      OutflowProbability(inputs.quota, inputs.users, inputs.hourlyFactor, inputs.hours, householdEquivalents);
  const double useRatio = UseRatio(OutflowCoefficient(u0, kFarthestRow), householdEquivalents);
  return ProbabilityFlow(useRatio, householdEquivalents);
}

}  // namespace zwt
