// Volumes and pressures of the pressure tank, and where the focus goes.
#include "storage/pressure_tank.h"

#include <gmock/gmock.h>

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PressureTankInput GoodInput() {
  return {.pressureRatio = L"0.7",
          .pumpStarts = L"6",
          .safetyFactor = L"1.0",
          .pumpFlow = L"10",
          .volumeFactor = L"1.25",
          .heightDifference = L"20",
          .headLoss = L"5",
          .outletHead = L"5"};
}

TEST(PressureTank, DefaultsWithTenLitresPerSecond) {
  const PressureTankResult result = ComputePressureTank(GoodInput());
  EXPECT_EQ(result.regulatingVolume, L"1.500");
  EXPECT_EQ(result.totalVolume, L"6.250");
  EXPECT_THAT(result.focus, IsEmpty());
}

TEST(PressureTank, PressuresOfThirtyMetres) {
  const PressureTankResult result = ComputePressureTank(GoodInput());
  EXPECT_EQ(result.lowestPressure, L"0.30");
  EXPECT_EQ(result.highestPressure, L"0.47");
}

TEST(PressureTank, RatioOfZeroOneOrNothingStopsAll) {
  for (const CString ratio : {L"0", L"1", L"", L"-0.5", L"1.2", L"abc"}) {
    PressureTankInput input = GoodInput();
    input.pressureRatio = ratio;
    const PressureTankResult result = ComputePressureTank(input);
    EXPECT_THAT(result.focus, ElementsAre(PressureTankField::PressureRatio));
    EXPECT_EQ(result.regulatingVolume, L"");
    EXPECT_EQ(result.totalVolume, L"");
    EXPECT_EQ(result.lowestPressure, L"");
    EXPECT_EQ(result.highestPressure, L"");
  }
}

TEST(PressureTank, EmptyFlowGivesPressuresAndNoVolumes) {
  PressureTankInput input = GoodInput();
  input.pumpFlow = L"";
  const PressureTankResult result = ComputePressureTank(input);
  EXPECT_EQ(result.regulatingVolume, L"");
  EXPECT_EQ(result.totalVolume, L"");
  EXPECT_EQ(result.lowestPressure, L"0.30");
  EXPECT_EQ(result.highestPressure, L"0.47");
  EXPECT_THAT(result.focus, ElementsAre(PressureTankField::PumpFlow));
}

TEST(PressureTank, NegativeHeadLossGivesVolumesAndNoPressures) {
  PressureTankInput input = GoodInput();
  input.headLoss = L"-1";
  const PressureTankResult result = ComputePressureTank(input);
  EXPECT_EQ(result.regulatingVolume, L"1.500");
  EXPECT_EQ(result.totalVolume, L"6.250");
  EXPECT_EQ(result.lowestPressure, L"");
  EXPECT_EQ(result.highestPressure, L"");
  EXPECT_THAT(result.focus, ElementsAre(PressureTankField::HeadLoss));
}

TEST(PressureTank, FirstBadFieldOfTheVolumesTakesTheFocus) {
  PressureTankInput input = GoodInput();
  input.volumeFactor = L"";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::VolumeFactor));
  input.pumpStarts = L"-6";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::PumpStarts));
  input.pumpFlow = L"-1";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::PumpFlow));
  input.safetyFactor = L"";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::SafetyFactor));
}

TEST(PressureTank, FirstBadFieldOfThePressuresTakesTheFocus) {
  PressureTankInput input = GoodInput();
  input.outletHead = L"";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::OutletHead));
  input.headLoss = L"";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::HeadLoss));
  input.heightDifference = L"-20";
  EXPECT_THAT(ComputePressureTank(input).focus, ElementsAre(PressureTankField::HeightDifference));
}

TEST(PressureTank, BothHalvesMoveTheFocusTheVolumesFirst) {
  PressureTankInput input = GoodInput();
  input.pumpFlow = L"";
  input.headLoss = L"";
  EXPECT_THAT(ComputePressureTank(input).focus,
              ElementsAre(PressureTankField::PumpFlow, PressureTankField::HeadLoss));
}

TEST(PressureTank, NoPumpStartsDivideByZero) {
  PressureTankInput input = GoodInput();
  input.pumpStarts = L"0";
  EXPECT_EQ(ComputePressureTank(input).regulatingVolume, L"inf");
  EXPECT_EQ(ComputePressureTank(input).totalVolume, L"inf");
  input.pumpFlow = L"0";
  EXPECT_EQ(ComputePressureTank(input).regulatingVolume, L"nan");
  EXPECT_EQ(ComputePressureTank(input).totalVolume, L"nan");
}

TEST(PressureTank, ZeroIsAcceptedInBothHalves) {
  PressureTankInput input = GoodInput();
  input.pumpFlow = L"0";
  input.heightDifference = input.headLoss = input.outletHead = L"0";
  const PressureTankResult result = ComputePressureTank(input);
  EXPECT_EQ(result.regulatingVolume, L"0.000");
  EXPECT_EQ(result.lowestPressure, L"0.00");
  EXPECT_EQ(result.highestPressure, L"0.04");  // 0.098 / 0.7 - 0.098
}

TEST(PressureTank, RatioOfTheAbsolutePressuresIsTheRatioGiven) {
  for (const double ratio : {0.1, 0.5, 0.65, 0.85, 0.99}) {
    for (const double lowest : {0.0, 0.1, 0.3, 1.2}) {
      EXPECT_NEAR((lowest + 0.098) / (HighestPressure(lowest, ratio) + 0.098), ratio, 1e-12);
    }
  }
}

}  // namespace
}  // namespace zwt::test
