#include "supply/flow_steps.h"

#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr const wchar_t* kFlowSubject = L"设计秒流量 qg";
constexpr const wchar_t* kProbabilitySource = L"GB 50015-2003 第3.6.4条";

}  // namespace

TraceStep ProbabilityStep(const ProbabilityNumbers& numbers, double u0) {
  return {.subject = L"最大用水时平均出流概率 U0",
          .formula = L"100·q0·m·Kh / (0.2·Ng·T·3600)",
          .substitution = WithNumbers(
              L"100 × # × # × # / (0.2 × # × # × 3600)",
              {numbers.quota, numbers.persons, numbers.hourlyFactor, numbers.equivalents, numbers.hours}),
          .result = FormatFixed(u0, 3) + L" %",
          .source = kProbabilitySource};
}

TraceStep CoefficientStep(double u0, double coefficient) {
  return {.subject = L"系数 αc",
          .substitution = WithNumbers(L"按最接近 U0 = # % 的一行取值", {u0}),
          .result = FormatBound(coefficient),
          .source = L"GB 50015-2003 附录C"};
}

TraceStep RatioStep(double coefficient, double equivalents, double ratio) {
  return {
      .subject = L"同时出流概率 U",
      .formula = L"(1 + αc·(Ng - 1)^0.49) / √Ng",
      .substitution = WithNumbers(L"(1 + # × (# - 1)^0.49) / √#", {coefficient, equivalents, equivalents}),
      .result = ZwtNum2Str(ratio, 2),
      .source = kProbabilitySource};
}

TraceStep ProbabilityFlowStep(double useRatio, double equivalents, double flow, int decimals) {
  return {.subject = kFlowSubject,
          .formula = L"0.2·U·Ng",
          .substitution = WithNumbers(L"0.2 × # × #", {useRatio, equivalents}),
          .result = ZwtNum2Str(flow, decimals) + L" L/s",
          .source = kProbabilitySource};
}

TraceStep RootFlowStep(double rootFactor, double equivalents, double flow, int decimals) {
  return {.subject = kFlowSubject,
          .formula = L"0.2·α·√Ng",
          .substitution = WithNumbers(L"0.2 × # × √#", {rootFactor, equivalents}),
          .result = ZwtNum2Str(flow, decimals) + L" L/s",
          .source = L"GB 50015-2003 第3.6.5条"};
}

TraceStep SizeStep(const CString& material, std::int32_t diameter, bool isFound) {
  const CString rule = L"流速在适宜范围内的居中一档，无则取低于 0.8 m/s 而最接近者";
  return {.subject = L"管径 DN",
          .substitution = isFound ? material + L"，" + rule : CString(L"没有流速适宜的管径"),
          .result = ZwtNum2Str(diameter) + L" mm",
          .source = L"GB 50015-2003 第3.6.9条"};
}

TraceStep VelocityStep(double innerDiameter, double flow, double velocity, int decimals) {
  return {.subject = L"流速 v",
          .formula = L"4·qg / (π·dj²)",
          .substitution = WithNumbers(L"4 × # × 0.001 / (π × (# × 0.001)²)", {flow, innerDiameter}),
          .result = ZwtNum2Str(velocity, decimals) + L" m/s"};
}

}  // namespace zwt
