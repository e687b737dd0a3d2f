// How the single calculations of supply tell what they did.
#include <random>

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "supply/design_flow.h"
#include "supply/inlet_diameter.h"
#include "supply/max_day.h"

namespace zwt::test {
namespace {

std::vector<CString> Lines(const Trace& trace) {
  std::vector<CString> lines;
  lines.reserve(trace.size());
  for (const TraceStep& step : trace) lines.push_back(TraceLine(step));
  return lines;
}

TEST(FlowTrace, MaximumDayStepByStep) {
  const MaxDayInputs inputs = {.quota = 200, .users = 100, .hourlyFactor = 2.5, .hours = 24};
  Trace day;
  const CString dayText = MaxDayText(inputs, &day);
  EXPECT_EQ(Lines(day),
            (std::vector<CString>{L"用水量 Q：q0·m = 200 × 100 = 20000 L  [GB 50015-2003 第3.1.9条]",
                                  L"未预见水量 ΔQ：Q·p·0.01 = 20000 × 10 × 0.01 = 2000 L",
                                  L"最高日用水量 Qd：(Q + ΔQ)·0.001 = (20000 + 2000) × 0.001 = 22.000 m³"}));
  Trace hour;
  MaxHourText(inputs, dayText, &hour);
  ASSERT_EQ(hour.size(), 3U);
  EXPECT_EQ(TraceLine(hour[2]),
            L"最高时用水量 Qh：(Q1 + Q1·p·0.01)·0.001 = (2291.67 + 2291.67 × 10 × 0.01) × 0.001 = 2.521 m³");
}

TEST(FlowTrace, AnHourWithoutHoursSaysSo) {
  Trace hour;
  MaxHourText({.quota = 200, .users = 100}, L"22.000", &hour);
  EXPECT_EQ(Lines(hour), std::vector<CString>{L"最高时用水量 Qh：T 或 Kh 为 0 = 0.000 m³"});
}

TEST(FlowTrace, SchoolTakesTheRootFormulaAndThePlasticVelocity) {
  Trace trace;
  const double flow = DesignFlow({L"学校", 0, 9}, &trace);
  ChooseInletDiameter(InletMaterial::Plastic, flow, &trace);
  ASSERT_EQ(trace.size(), 3U);
  EXPECT_EQ(TraceLine(trace[0]),
            L"设计秒流量 qg：0.2·α·√Ng = 0.2 × 1.8 × √9 = 1.080 L/s  [GB 50015-2003 第3.6.5条]");
  EXPECT_EQ(trace[1].result, L"32 mm");
  EXPECT_EQ(TraceLine(trace[2]),
            L"流速 v：1.273·qg / (1000·dj²) = 1.273 × 1.08 / (1000 × (36 × 0.001)²) = 1.06 m/s");
}

TEST(FlowTrace, AFlowTooFastForEverySizeHasNoVelocity) {
  Trace trace;
  EXPECT_FALSE(ChooseInletDiameter(InletMaterial::Metal, 1e6, &trace));
  ASSERT_EQ(trace.size(), 1U);
  EXPECT_EQ(trace[0].substitution, L"没有流速适宜的管径");
}

TEST(FlowTrace, LastStepsAreWhatThePanelsShowAndChangeNoBit) {
  std::mt19937 random(3614);
  std::uniform_real_distribution<double> any(1, 400);
  for (int round = 0; round < 2000; ++round) {
    const MaxDayInputs inputs = {any(random), any(random), any(random) / 100, any(random) / 20,
                                 any(random) / 20};
    Trace day;
    const CString dayText = MaxDayText(inputs, &day);
    EXPECT_EQ(dayText, MaxDayText(inputs));
    EXPECT_EQ(day.back().result, dayText + L" m³");
    Trace hour;
    const CString hourText = MaxHourText(inputs, dayText, &hour);
    EXPECT_EQ(hourText, MaxHourText(inputs, dayText));
    EXPECT_EQ(hour.back().result, hourText + L" m³");

    const auto& site = kDesignFlowSites[static_cast<std::size_t>(round) % kDesignFlowSites.size()];
    const DesignFlowInputs design = {site.name, any(random) / 50, any(random)};
    Trace steps;
    const double flow = DesignFlow(design, &steps);
    EXPECT_EQ(flow, DesignFlow(design));
    EXPECT_EQ(steps.back().result, FormatFixed(flow, 3) + L" L/s");

    const auto material = round % 2 == 0 ? InletMaterial::Metal : InletMaterial::Plastic;
    Trace size;
    const auto chosen = ChooseInletDiameter(material, flow, &size);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(size.front().result, ZwtNum2Str(chosen->diameter) + L" mm");
    EXPECT_EQ(size.back().result, FormatFixed(chosen->velocity, 2) + L" m/s");
  }
}

}  // namespace
}  // namespace zwt::test
