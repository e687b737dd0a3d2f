#include "supply/supply_hydraulics.h"

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "support/data_folder.h"

namespace {

using zwt::FormatFixed;
using zwt::kDwellingClass;
using zwt::kPublicClass;
using zwt::MeanOutflowProbability;
using zwt::PublicFlow;
using zwt::SectionHeadLoss;
using zwt::SelectDiameter;
using zwt::SimultaneousRatio;
using zwt::SupplySectionInput;
using zwt::SupplySectionResult;

struct TestSize {
  int diameter;
  double inner;
};

/// Inner diameter in mm at which a flow (L/s) runs at a velocity (m/s).
double InnerFor(double velocity, double flow) {
  return std::sqrt(4 * flow * 0.001 / (3.141592653589793 * velocity)) * 1000;
}

class SupplyHydraulicsTest : public testing::Test {
 protected:
  void WriteMaterial(const std::string& attributes, const std::vector<TestSize>& sizes) {
    std::string bytes = "<Materials><Material Name='管' " + attributes + ">";
    for (const TestSize& size : sizes) {
      bytes += "<Size DN='" + std::to_string(size.diameter) + "' Inner='" +
               zwt::Utf8FromWide(ZwtNum2Str(size.inner, -1)) + "'/>";
    }
    folder.Write("ZwtMaterials.xml", bytes + "</Material></Materials>");
  }

  /// Diameter and velocity as the results table shows them.
  static CString Shown(double flow, const CString& material = L"管") {
    std::int32_t diameter = 0;
    double velocity = 0;
    SelectDiameter(material, flow, diameter, velocity);
    return ZwtNum2Str(diameter) + L" " + FormatFixed(velocity, 3);
  }

  zwt::test::DataFolder folder;
};

const std::vector<TestSize> kExampleSizes = {{15, 15}, {20, 20}, {25, 25}, {32, 32}};

SupplySectionInput ExampleSection() {
  return {.equivalents = 4,
          .persons = 7,
          .quota = 250,
          .hourlyFactor = 2.8,
          .hours = 24,
          .length = 3000,
          .material = L"管"};
}

TEST_F(SupplyHydraulicsTest, DwellingRiserOfOneSection) {
  WriteMaterial("Coefficient='140'", kExampleSizes);
  const SupplySectionResult result = CalculateSection(ExampleSection(), kDwellingClass, L"");
  EXPECT_NEAR(result.u0, 7.0891, 0.00005);
  EXPECT_NEAR(result.useRatio, 0.54758, 0.000005);
  EXPECT_NEAR(result.flow, 0.43807, 0.000005);
  EXPECT_EQ(result.diameter, 25);
  EXPECT_EQ(FormatFixed(result.velocity, 3), L"0.892");
  EXPECT_NEAR(result.headLoss, 1.3087, 0.00005);
  EXPECT_EQ(FormatFixed(result.headLoss * 0.1, 3), L"0.131");
}

TEST_F(SupplyHydraulicsTest, VelocitiesOfTheExampleSizes) {
  const double flow = zwt::ResidentialFlow(4, SimultaneousRatio(7.0891, 4));
  EXPECT_EQ(FormatFixed(zwt::Velocity(15, flow), 3), L"2.479");
  EXPECT_EQ(FormatFixed(zwt::Velocity(20, flow), 3), L"1.394");
  EXPECT_EQ(FormatFixed(zwt::Velocity(25, flow), 3), L"0.892");
  EXPECT_EQ(FormatFixed(zwt::Velocity(32, flow), 3), L"0.545");
}

TEST_F(SupplyHydraulicsTest, OfficeBuildingBySquareRoot) {
  EXPECT_DOUBLE_EQ(PublicFlow(16, L"办公楼、商场"), 1.2);
  WriteMaterial("Coefficient='140'", kExampleSizes);
  SupplySectionInput section = ExampleSection();
  section.equivalents = 16;
  EXPECT_DOUBLE_EQ(CalculateSection(section, kPublicClass, L"办公楼、商场").flow, 1.2);
}

TEST_F(SupplyHydraulicsTest, PublicBuildingStillGetsItsProbability) {
  WriteMaterial("Coefficient='140'", kExampleSizes);
  const SupplySectionResult result = CalculateSection(ExampleSection(), kPublicClass, L"学校");
  EXPECT_NEAR(result.u0, 7.0891, 0.00005);
  EXPECT_NEAR(result.useRatio, 0.54758, 0.000005);
}

TEST_F(SupplyHydraulicsTest, AnyOtherBuildingClassHasNoFlow) {
  WriteMaterial("Coefficient='140'", kExampleSizes);
  const SupplySectionResult result = CalculateSection(ExampleSection(), L"住宅", L"学校");
  EXPECT_EQ(result.flow, 0);
  EXPECT_EQ(result.diameter, 15) << "the first of the list stands still";
}

TEST(MeanOutflowProbabilityTest, ZeroHoursOrEquivalentsGiveZero) {
  EXPECT_EQ(MeanOutflowProbability(250, 7, 2.8, 0, 4), 0);
  EXPECT_EQ(MeanOutflowProbability(250, 7, 2.8, 24, 0), 0);
}

TEST(MeanOutflowProbabilityTest, KeepsItsOrderOfOperations) {
  EXPECT_EQ(MeanOutflowProbability(130.7, 3.3, 2.9, 23, 7.1),
            130.7 * 3.3 * 2.9 / (0.2 * 7.1 * 23 * 3600) * 100);
}

TEST(SimultaneousRatioTest, TakesTheNearestRowAndOnATieTheLater) {
  const double root = std::pow(8.0, 0.49);
  EXPECT_EQ(SimultaneousRatio(1.25, 9), (1 + 0.00697 * root) / 3);
  EXPECT_EQ(SimultaneousRatio(1.24, 9), (1 + 0.00323 * root) / 3);
}

TEST(SimultaneousRatioTest, NoProbabilityIsTooFarForARow) {
  const double root = std::pow(8.0, 0.49);
  EXPECT_EQ(SimultaneousRatio(0, 9), (1 + 0.00323 * root) / 3);
  EXPECT_EQ(SimultaneousRatio(1e6, 9), (1 + 0.06489 * root) / 3);
}

TEST(SimultaneousRatioTest, OneEquivalentIsAlwaysInUse) {
  for (const double u0 : {0.0, 1.0, 3.3, 8.0, 500.0}) {
    EXPECT_EQ(SimultaneousRatio(u0, 1), 1);
    EXPECT_EQ(zwt::ResidentialFlow(1, SimultaneousRatio(u0, 1)), 0.2);
  }
}

TEST_F(SupplyHydraulicsTest, NoEquivalentsGiveAFlowThatIsNoNumber) {
  WriteMaterial("Coefficient='140'", kExampleSizes);
  SupplySectionInput section = ExampleSection();
  section.equivalents = 0;
  const SupplySectionResult result = CalculateSection(section, kDwellingClass, L"");
  EXPECT_EQ(result.u0, 0);
  EXPECT_TRUE(std::isnan(result.useRatio));
  EXPECT_EQ(ZwtNum2Str(result.flow, 3), L"nan");
  EXPECT_EQ(result.diameter, 0);
  EXPECT_EQ(result.velocity, 0);
  EXPECT_EQ(result.headLoss, 0);
}

TEST_F(SupplyHydraulicsTest, SectionWithoutABranchTakesTheFirstRowAndNoDiameter) {
  WriteMaterial("Coefficient='140'", kExampleSizes);
  const SupplySectionInput section{.equivalents = 100, .material = L""};
  const SupplySectionResult result = CalculateSection(section, kDwellingClass, L"");
  EXPECT_EQ(result.u0, 0);
  EXPECT_EQ(result.useRatio, (1 + 0.00323 * std::pow(99.0, 0.49)) / 10);
  EXPECT_EQ(result.diameter, 0);
  EXPECT_EQ(result.velocity, 0);
  EXPECT_EQ(result.headLoss, 0);
}

TEST(PublicFlowTest, EveryPlaceOfTheTable) {
  const std::pair<const wchar_t*, double> expected[] = {{L"幼儿园、托儿所、养老院", 1.2},
                                                        {L"门诊部、诊疗所", 1.4},
                                                        {L"办公楼、商场", 1.5},
                                                        {L"图书馆", 1.6},
                                                        {L"书店", 1.7},
                                                        {L"学校", 1.8},
                                                        {L"医院、疗养院、休养所", 2.0},
                                                        {L"酒店式公寓", 2.2},
                                                        {L"旅馆、招待所、宾馆", 2.5},
                                                        {L"客运站、航站楼、会展中心、公共厕所", 3.0}};
  for (const auto& [place, factor] : expected) EXPECT_EQ(PublicFlow(16, place), 0.2 * factor * 4);
}

TEST(PublicFlowTest, PlacesOfTheOtherPanelHaveNoFlowHere) {
  EXPECT_EQ(PublicFlow(16, L"医院、疗养所、休养所"), 0);
  EXPECT_EQ(PublicFlow(16, L"宿舍、旅馆、招待所、宾馆"), 0);
  EXPECT_EQ(PublicFlow(16, L"和运站、航站楼、会展中心、公共厕所"), 0);
  EXPECT_EQ(PublicFlow(16, L""), 0);
}

TEST_F(SupplyHydraulicsTest, TwoCandidatesTakeTheSecondInListOrder) {
  WriteMaterial("", {{32, InnerFor(1.1, 1)}, {40, InnerFor(0.9, 1)}});
  EXPECT_EQ(Shown(1), L"40 0.900");
  WriteMaterial("", {{40, InnerFor(0.9, 1)}, {32, InnerFor(1.1, 1)}});
  EXPECT_EQ(Shown(1), L"32 1.100");
}

TEST_F(SupplyHydraulicsTest, AllVelocitiesTooHighFindNoDiameter) {
  WriteMaterial("", {{15, 15}, {20, 20}});
  EXPECT_EQ(Shown(100), L"0 0.000");
}

TEST_F(SupplyHydraulicsTest, WithoutCandidateTheVelocityNearestBelowIsTaken) {
  WriteMaterial("", {{25, InnerFor(0.75, 1)}, {32, InnerFor(0.79, 1)}});
  EXPECT_EQ(Shown(1), L"32 0.790");
}

TEST_F(SupplyHydraulicsTest, PositionsBehindTheTwentySecondAreCandidatesButNoFallback) {
  std::vector<TestSize> sizes(22, {100, InnerFor(0.5, 1)});
  sizes.push_back({125, InnerFor(0.7, 1)});
  WriteMaterial("", sizes);
  EXPECT_EQ(Shown(1), L"100 0.500");
  sizes.back() = {125, InnerFor(1.2, 1)};
  WriteMaterial("", sizes);
  EXPECT_EQ(Shown(1), L"125 1.200");
}

TEST_F(SupplyHydraulicsTest, DiameterStaysAsItWasWhereNoneIsFound) {
  WriteMaterial("", kExampleSizes);
  std::int32_t diameter = 7;
  double velocity = 0.5;
  SelectDiameter(L"", 1, diameter, velocity);
  EXPECT_EQ(diameter, 7);
  EXPECT_EQ(velocity, 0.5);
}

TEST_F(SupplyHydraulicsTest, UnknownMaterialHasNoDiameter) {
  WriteMaterial("", kExampleSizes);
  EXPECT_EQ(Shown(0.4, L""), L"0 0.000");
  EXPECT_EQ(Shown(0.4, L"木管"), L"0 0.000");
}

TEST_F(SupplyHydraulicsTest, HeadLossKeepsItsOrderOfOperations) {
  WriteMaterial("Coefficient='130'", {{50, 48.6}});
  const double perMetre =
      105 * std::pow(130.0, -1.85) * std::pow(48.6 * 0.001, -4.87) * std::pow(2.3 * 0.001, 1.85);
  EXPECT_EQ(SectionHeadLoss(L"管", 50, 2.3, 3300), perMetre * (3300 * 0.001));
}

TEST_F(SupplyHydraulicsTest, DiameterZeroLosesNothingWhateverTheMaterial) {
  WriteMaterial("Coefficient='130'", {{0, 10}});
  EXPECT_EQ(SectionHeadLoss(L"管", 0, 2.3, 3300), 0);
  EXPECT_EQ(SectionHeadLoss(L"", 0, std::nan(""), 3300), 0);
}

TEST_F(SupplyHydraulicsTest, DrainUsedAsSupplyPipeLosesWithoutBound) {
  WriteMaterial("", {{50, 48.6}});
  EXPECT_EQ(FormatFixed(SectionHeadLoss(L"管", 50, 2.3, 3300), 3), L"inf");
}

TEST_F(SupplyHydraulicsTest, MoreFlowLosesMore) {
  WriteMaterial("Coefficient='130'", {{50, 48.6}});
  double before = -1;
  for (int i = 0; i < 100; ++i) {
    const double loss = SectionHeadLoss(L"管", 50, i * 0.1, 3300);
    EXPECT_GT(loss, before);
    before = loss;
  }
}

}  // namespace
