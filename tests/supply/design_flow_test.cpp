#include "supply/design_flow.h"

#include <cmath>
#include <iterator>
#include <utility>

#include <gtest/gtest.h>

#include "host/text/number_text.h"

namespace {

using zwt::CheckDesignFlow;
using zwt::DesignFlow;
using zwt::DesignFlowInputs;
using zwt::DesignFlowRefusal;

CString Shown(const DesignFlowInputs& inputs) {
  return zwt::FormatFixed(DesignFlow(inputs), 3);
}

TEST(DesignFlowTest, DwellingByTheProbabilityMethod) {
  EXPECT_EQ(Shown({L"普通住宅Ⅱ", 3.5, 4}), L"0.413");
  EXPECT_DOUBLE_EQ(DesignFlow({L"普通住宅Ⅱ", 3.5, 4}), 0.2 * ((1 + 0.01939 * std::pow(3.0, 0.49)) / 2) * 4);
}

TEST(DesignFlowTest, SchoolByTheSquareRootMethod) {
  EXPECT_EQ(Shown({L"学校", 0, 9}), L"1.080");
}

TEST(DesignFlowTest, HalfAnEquivalentIsRefusedInADwellingAndFlowsInASchool) {
  EXPECT_EQ(CheckDesignFlow({L"普通住宅Ⅰ", 3.5, 0.5}), DesignFlowRefusal::Equivalents);
  EXPECT_EQ(CheckDesignFlow({L"学校", 0, 0.5}), DesignFlowRefusal::None);
  EXPECT_EQ(Shown({L"学校", 0, 0.5}), L"0.255");
}

TEST(DesignFlowTest, OneEquivalentInADwellingFlowsAsOneTap) {
  EXPECT_EQ(CheckDesignFlow({L"别墅", 3.5, 1}), DesignFlowRefusal::None);
  EXPECT_EQ(Shown({L"别墅", 3.5, 1}), L"0.200");
}

TEST(DesignFlowTest, DwellingsDifferOnlyThroughTheRowOfTheTable) {
  // 3 persons, 4 equivalents: U0 is 1.402 in the one (row 1.5) and 2.447 in the other (row 2.5).
  EXPECT_DOUBLE_EQ(DesignFlow({L"普通住宅Ⅰ", 3, 4}), 0.2 * ((1 + 0.00697 * std::pow(3.0, 0.49)) / 2) * 4);
  EXPECT_DOUBLE_EQ(DesignFlow({L"别墅", 3, 4}), 0.2 * ((1 + 0.01512 * std::pow(3.0, 0.49)) / 2) * 4);
}

TEST(DesignFlowTest, DwellingNeedsAPersonAndLooksAtTheEquivalentsFirst) {
  EXPECT_EQ(CheckDesignFlow({L"普通住宅Ⅲ", 0.9, 4}), DesignFlowRefusal::Persons);
  EXPECT_EQ(CheckDesignFlow({L"普通住宅Ⅲ", 0, 0}), DesignFlowRefusal::Equivalents);
  EXPECT_EQ(CheckDesignFlow({L"普通住宅Ⅲ", 1, 1}), DesignFlowRefusal::None);
}

TEST(DesignFlowTest, OtherSitesRefuseOnlyNoEquivalentsAtAll) {
  EXPECT_EQ(CheckDesignFlow({L"书店", 0, 0}), DesignFlowRefusal::Equivalents);
  EXPECT_EQ(CheckDesignFlow({L"书店", 0, -4}), DesignFlowRefusal::None);
  EXPECT_EQ(Shown({L"书店", 0, -4}), L"nan");
}

TEST(DesignFlowTest, SiteThatIsNotInTheTableHasNoFlow) {
  EXPECT_EQ(CheckDesignFlow({L"仓库", 0, 9}), DesignFlowRefusal::None);
  EXPECT_EQ(Shown({L"仓库", 0, 9}), L"0.000");
  EXPECT_EQ(Shown({L"", 0, 9}), L"0.000");
}

TEST(DesignFlowTest, EverySiteOfTheTable) {
  const std::pair<const wchar_t*, double> expected[] = {{L"幼儿园、托儿所、养老院", 1.2},
                                                        {L"门诊部、诊疗所", 1.4},
                                                        {L"办公楼、商场", 1.5},
                                                        {L"图书馆", 1.6},
                                                        {L"书店", 1.7},
                                                        {L"学校", 1.8},
                                                        {L"医院、疗养所、休养所", 2.0},
                                                        {L"酒店式公寓", 2.2},
                                                        {L"宿舍、旅馆、招待所、宾馆", 2.5},
                                                        {L"和运站、航站楼、会展中心、公共厕所", 3.0}};
  for (const auto& [site, factor] : expected) EXPECT_EQ(DesignFlow({site, 0, 16}), 0.2 * factor * 4);
  EXPECT_EQ(zwt::kDesignFlowSites.size(), 4 + std::size(expected));
}

TEST(DesignFlowTest, ProbabilityBeyondEveryRowLeavesTheCoefficientAtZero) {
  EXPECT_EQ(DesignFlow({L"普通住宅Ⅰ", 1e7, 4}), 0.2 * 0.5 * 4);
}

}  // namespace
