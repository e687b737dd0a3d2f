#include "drainage/drainage_hydraulics.h"

#include <cmath>

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "support/data_folder.h"

namespace {

using zwt::CalculateStack;
using zwt::ClampMinimumGrade;
using zwt::DrainageBranch;
using zwt::DrainageBranchResult;
using zwt::DrainageFlow;
using zwt::DrainageSettings;
using zwt::DrainageStackResult;
using zwt::DrainMaterial;
using zwt::DrainMaterialOf;
using zwt::RiserResultText;
using zwt::SelectBranchDiameter;
using zwt::SelectRiserDiameter;

constexpr const wchar_t* kMetal = L"铸铁管";
constexpr const wchar_t* kPlastic = L"PVC-U排水管";

std::int32_t Branch(double flow, std::int32_t largestFixture, const CString& material) {
  return SelectBranchDiameter(flow, largestFixture, material).diameter;
}

TEST(DrainageFlowTest, RootOfTheEquivalentsAndTheLargestFixture) {
  EXPECT_EQ(DrainageFlow(1.5, 16, 1.5), 1.5 * 0.12 * 4 + 1.5);
  EXPECT_EQ(DrainageFlow(1.5, 0, 0), 0);
  EXPECT_EQ(DrainageFlow(0, 16, 1.2), 1.2) << "a coefficient that is no number counts as 0";
  EXPECT_TRUE(std::isnan(DrainageFlow(1.5, -1, 1)));
}

TEST(DrainMaterialTest, IronCopperAndSteelAreMetalUnlessPlasticIsNamed) {
  for (const wchar_t* material : {L"铸铁管", L"不锈钢", L"铜", L"镀锌钢管", L"排水铸铁管(柔性接口)"}) {
    EXPECT_EQ(DrainMaterialOf(material), DrainMaterial::Metal);
  }
  for (const wchar_t* material : {L"钢塑复合管", L"衬塑钢管", L"PVC-U排水管", L"混凝土管", L""}) {
    EXPECT_EQ(DrainMaterialOf(material), DrainMaterial::Plastic);
  }
}

TEST(BranchDiameterTest, NoFlowTakesTheSmallestSize) {
  EXPECT_EQ(Branch(0, 0, kMetal), 50);
  EXPECT_EQ(Branch(0, 0, kPlastic), 50);
  EXPECT_EQ(Branch(0, 100, kMetal), 100);
}

TEST(BranchDiameterTest, TakesTheNearestCapacityEvenBelowTheFlow) {
  EXPECT_EQ(Branch(1.4, 0, kMetal), 75);
  EXPECT_EQ(Branch(1.3, 0, kMetal), 50);
  EXPECT_EQ(Branch(300, 0, kMetal), 200);
}

TEST(BranchDiameterTest, OfTwoEquallyNearCapacitiesTheSmallerSizeStands) {
  ASSERT_EQ(std::fabs(1.9 - 2.775), std::fabs(3.65 - 2.775));
  EXPECT_EQ(Branch(2.775, 0, kMetal), 75);
  ASSERT_EQ(std::fabs(1.79 - 3.14), std::fabs(4.49 - 3.14));
  EXPECT_EQ(Branch(3.14, 0, kPlastic), 75);
}

TEST(BranchDiameterTest, MiddleOfTheTwoSmallestMetalCapacities) {
  // No double lies equally far from 0.76 and 1.9: that of 1.33 is nearer to 1.9, the next one below nearer to
  // 0.76.
  EXPECT_EQ(Branch(std::nextafter(1.33, 0.0), 0, kMetal), 50);
  EXPECT_EQ(Branch(1.33, 0, kMetal), 75);
}

TEST(BranchDiameterTest, EveryCapacityGivesItsOwnSize) {
  const double metal[] = {0.76, 1.9, 3.65, 5.86, 10.23, 19.7};
  const std::int32_t metalSizes[] = {50, 75, 100, 125, 150, 200};
  const double plastic[] = {0.74, 1.79, 4.49, 5.88, 12.8, 19.67};
  const std::int32_t plasticSizes[] = {50, 75, 110, 125, 160, 200};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Branch(metal[i], 0, kMetal), metalSizes[i]);
    EXPECT_EQ(Branch(plastic[i], 0, kPlastic), plasticSizes[i]);
  }
}

TEST(BranchDiameterTest, RisesToTheLargestFixture) {
  EXPECT_EQ(Branch(0.74, 100, kPlastic), 110);
  EXPECT_EQ(Branch(0.76, 75, kMetal), 75);
  EXPECT_EQ(Branch(10, 50, kMetal), 150);
}

TEST(BranchDiameterTest, FixtureBeyondEverySizeLeavesTheNearestCapacity) {
  EXPECT_EQ(Branch(0.76, 300, kMetal), 50);
  EXPECT_EQ(Branch(4.49, 300, kPlastic), 110);
  EXPECT_EQ(Branch(30, 300, kPlastic), 200);
}

TEST(BranchDiameterTest, FlowNearNoCapacityTakesTheLargestSize) {
  EXPECT_EQ(Branch(5000, 0, kMetal), 200);
  EXPECT_EQ(Branch(-5000, 0, kPlastic), 200);
  EXPECT_EQ(Branch(std::nan(""), 0, kPlastic), 200);
}

double Clamped(DrainMaterial material, std::int32_t diameter, double grade = 0) {
  ClampMinimumGrade(material, diameter, grade);
  return grade;
}

TEST(MinimumGradeTest, EveryMinimum) {
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 50), 0.025);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 75), 0.015);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 100), 0.012);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 125), 0.01);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 150), 0.007);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 200), 0.005);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 110), 0);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 50), 0.012);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 75), 0.007);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 100), 0.004);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 110), 0.004);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 125), 0.0035);
  EXPECT_EQ(Clamped(DrainMaterial::Plastic, 160), 0.003);
}

TEST(MinimumGradeTest, SteeperGradesStay) {
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 50, 0.03), 0.03);
  EXPECT_EQ(Clamped(DrainMaterial::Metal, 50, -1), 0.025);
}

TEST(FullnessTest, LargePipesRunFuller) {
  EXPECT_EQ(zwt::Fullness(125), 0.5);
  EXPECT_EQ(zwt::Fullness(149), 0.5);
  EXPECT_EQ(zwt::Fullness(150), 0.6);
}

TEST(RiserDiameterTest, CapacityMustExceedTheFlow) {
  EXPECT_EQ(SelectRiserDiameter(3.19, 0, 0), 110);
  EXPECT_EQ(SelectRiserDiameter(3.2, 0, 0), 125);
  EXPECT_EQ(SelectRiserDiameter(3.2, 0, 1), 110);
  EXPECT_EQ(SelectRiserDiameter(0.8, 0, 0), 75);
  EXPECT_EQ(SelectRiserDiameter(0.8, 0, 1), 50);
  EXPECT_EQ(SelectRiserDiameter(7.39, 0, 1), 160);
}

TEST(RiserDiameterTest, FlowBeyondEveryCapacityFallsBackToTheSmallest) {
  EXPECT_EQ(SelectRiserDiameter(6, 0, 0), 50);
  EXPECT_EQ(SelectRiserDiameter(6, 100, 0), 110);
  EXPECT_EQ(SelectRiserDiameter(7.4, 0, 1), 50);
}

TEST(RiserDiameterTest, RisesToTheLargestFixtureIfASizeReachesIt) {
  EXPECT_EQ(SelectRiserDiameter(0.5, 100, 0), 110);
  EXPECT_EQ(SelectRiserDiameter(0.5, 200, 0), 50);
}

DrainageBranch Bathroom(const CString& material) {
  return {.equivalents = 6.0, .largestFlow = 1.5, .largestFixture = 100, .material = material};
}

/// The cells of the results grid, as the panel writes them.
CString Shown(const DrainageBranchResult& branch) {
  return ZwtNum2Str(branch.flow, 3) + L" " + ZwtNum2Str(branch.diameter) + L" " +
         ZwtNum2Str(branch.grade, 3) + L" " + ZwtNum2Str(branch.velocity, 3) + L" " +
         ZwtNum2Str(branch.fullness, 1);
}

CString ShownAlone(const DrainageBranch& branch) {
  return Shown(CalculateStack({branch}, {1.5, 0, L"伸顶通气"}).branches.at(0));
}

TEST(DrainageStackTest, BranchesOfEitherMaterial) {
  // 1.5 · 0.12 · √6 + 1.5 = 1.941 L/s.
  EXPECT_EQ(ShownAlone(Bathroom(kMetal)), L"1.941 100 0.012 0.494 0.5");
  EXPECT_EQ(ShownAlone(Bathroom(kPlastic)), L"1.941 110 0.004 0.461 0.5");
}

TEST(DrainageStackTest, LowGradeIsRaisedAndTheVelocityStays) {
  const DrainageBranch basin{
      .equivalents = 0.75, .largestFlow = 0.25, .largestFixture = 50, .material = kMetal};
  // 0.406 L/s lies on the table's row of grade 0.010 almost exactly.
  EXPECT_EQ(ShownAlone(basin), L"0.406 50 0.025 0.413 0.5");
}

TEST(DrainageStackTest, LargeBranchRunsAtSixTenths) {
  const DrainageBranch many{
      .equivalents = 2000, .largestFlow = 2, .largestFixture = 100, .material = kPlastic};
  EXPECT_EQ(ShownAlone(many), L"10.050 160 0.004 0.884 0.6");
}

TEST(DrainageStackTest, FlowAboveTheTableGoesAlongItsFirstLine) {
  // 5 L/s on a pipe raised to DN 200 would be inside; 120 L/s lies above every row of DN 200.
  const DrainageBranch flood{.equivalents = 0, .largestFlow = 120, .largestFixture = 0, .material = kPlastic};
  const DrainageBranchResult result = CalculateStack({flood}, {1.5, 0, L""}).branches.at(0);
  EXPECT_EQ(result.diameter, 200);
  EXPECT_EQ(result.grade, (0.002 * 15.247 - 0.003 * 12.449 + (0.003 - 0.002) * 120) / (15.247 - 12.449));
  EXPECT_EQ(result.velocity, (0.699 * 15.247 - 0.857 * 12.449 + (0.857 - 0.699) * 120) / (15.247 - 12.449));
}

TEST(DrainageStackTest, RiserCarriesAllEquivalentsAndTheLargestFixture) {
  DrainageBranch kitchen = Bathroom(kPlastic);
  kitchen.equivalents = 10;
  kitchen.largestFlow = 0.67;
  const DrainageStackResult result = CalculateStack(
      {Bathroom(kPlastic), kitchen}, {.useFactor = 2.0, .formIndex = 0, .ventType = L"伸顶通气"});
  EXPECT_EQ(result.branches.size(), 2U);
  EXPECT_EQ(result.riserFlow, 2.0 * 0.12 * std::sqrt(16.0) + 1.5);
  EXPECT_EQ(result.riserDiameter, 110);
  EXPECT_EQ(RiserResultText(result), L"立管设计秒流量为：2.460，管径为：110。");
}

TEST(DrainageStackTest, SeparateVentsMakeTheRiser110WhateverTheFixture) {
  DrainageBranch slot = Bathroom(kPlastic);
  slot.largestFixture = 150;
  EXPECT_EQ(CalculateStack({slot}, {1.5, 0, L"专用通气"}).riserDiameter, 110);
  EXPECT_EQ(CalculateStack({slot}, {1.5, 1, L"自循环通气"}).riserDiameter, 110);
}

TEST(DrainageStackTest, UnknownVentLeavesTheRiserWithoutDiameter) {
  const DrainageStackResult result = CalculateStack({Bathroom(kPlastic)}, {1.5, 0, L"通气"});
  EXPECT_EQ(result.riserDiameter, 0);
  EXPECT_EQ(RiserResultText(result), L"立管设计秒流量为：1.941，管径为：0。");
}

TEST(DrainageStackTest, StackWithoutBranches) {
  const DrainageStackResult result = CalculateStack({}, {1.5, 0, L"伸顶通气"});
  EXPECT_TRUE(result.branches.empty());
  EXPECT_EQ(RiserResultText(result), L"立管设计秒流量为：0.000，管径为：50。");
}

TEST(DrainageStackTest, UnreadableTablesLeaveTheMinimumGradeAndNoVelocity) {
  const zwt::test::DataFolder folder;
  EXPECT_EQ(ShownAlone(Bathroom(kMetal)), L"1.941 100 0.012 0.000 0.5");
  EXPECT_EQ(ShownAlone(Bathroom(kPlastic)), L"1.941 110 0.004 0.000 0.5");
}

TEST(DrainageStackTest, EqualBranchesGetEqualResultsWhereverTheyStand) {
  const std::vector<DrainageBranch> branches = {Bathroom(kMetal), Bathroom(kPlastic), Bathroom(kMetal),
                                                Bathroom(kPlastic)};
  const DrainageStackResult result = CalculateStack(branches, {1.5, 0, L"伸顶通气"});
  EXPECT_EQ(Shown(result.branches.at(0)), Shown(result.branches.at(2)));
  EXPECT_EQ(Shown(result.branches.at(1)), Shown(result.branches.at(3)));
  EXPECT_EQ(Shown(result.branches.at(0)), ShownAlone(Bathroom(kMetal)));
}

}  // namespace
