// Heat and flow of both supply regimes, and the values that leave them empty.
#include "hotwater/heat_demand.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

HeatDemandInput AllDay() {
  return {.waterQuota = 200, .units = 100, .hourlyVariation = 2, .coldTemperature = 10};
}

HeatDemandInput Timed() {
  return {.supply = HotWaterSupply::Timed, .hourlyQuota = 500, .coldTemperature = 10};
}

TEST(HeatDemand, AllDaySupplyOfAHundredUnits) {
  const HeatDemandResult result = ComputeHeatDemand(AllDay());
  EXPECT_EQ(result.heatText, L"343068.823");
  EXPECT_EQ(result.flowText, L"1666.667");
}

TEST(HeatDemand, TimedSupplyCarriesTheHourlyQuota) {
  const HeatDemandResult result = ComputeHeatDemand(Timed());
  EXPECT_EQ(result.heatText, L"102920.647");  // 500 * 50 * 0.98324 * 4.187
  EXPECT_EQ(result.flowText, L"500.000");
}

TEST(HeatDemand, HoursOfTheQuotaRowCount) {
  HeatDemandInput input = AllDay();
  input.useHours = 12;
  EXPECT_EQ(ComputeHeatDemand(input).flowText, L"3333.333");
}

TEST(HeatDemand, ColdTemperatureZeroIsNotGiven) {
  for (HeatDemandInput input : {AllDay(), Timed()}) {
    input.coldTemperature = 0;
    EXPECT_EQ(ComputeHeatDemand(input).heatText, L"");
    EXPECT_EQ(ComputeHeatDemand(input).flowText, L"");
  }
}

TEST(HeatDemand, ColdWaterOfSixtyDegreesGivesZeroHeatAndNoFlow) {
  for (HeatDemandInput input : {AllDay(), Timed()}) {
    input.coldTemperature = 60;
    EXPECT_EQ(ComputeHeatDemand(input).heatText, L"0.000");
    EXPECT_EQ(ComputeHeatDemand(input).flowText, L"");
  }
}

TEST(HeatDemand, WarmerColdWaterGivesANegativeHeat) {
  HeatDemandInput input = AllDay();
  input.coldTemperature = 70;
  EXPECT_EQ(ComputeHeatDemand(input).heatText, L"-68613.765");
  EXPECT_EQ(ComputeHeatDemand(input).flowText, L"1666.667");
}

TEST(HeatDemand, MissingValueLeavesBothResultsEmpty) {
  using Member = double HeatDemandInput::*;
  for (const Member member : {&HeatDemandInput::waterQuota, &HeatDemandInput::units,
                              &HeatDemandInput::hourlyVariation, &HeatDemandInput::useHours}) {
    HeatDemandInput input = AllDay();
    input.*member = 0;
    EXPECT_EQ(ComputeHeatDemand(input).heatText, L"");
    EXPECT_EQ(ComputeHeatDemand(input).flowText, L"");
  }
  HeatDemandInput timed = Timed();
  timed.hourlyQuota = 0;
  EXPECT_EQ(ComputeHeatDemand(timed).heatText, L"");
}

TEST(HeatDemand, EachRegimeIgnoresTheValuesOfTheOther) {
  HeatDemandInput input = Timed();
  input.waterQuota = 200;
  input.units = 100;
  input.hourlyVariation = 2;
  EXPECT_EQ(ComputeHeatDemand(input).flowText, L"500.000");
  input.supply = HotWaterSupply::AllDay;
  EXPECT_EQ(ComputeHeatDemand(input).flowText, L"1666.667");
}

TEST(HeatDemand, FlowDoesNotDependOnTheColdTemperature) {
  HeatDemandInput input = AllDay();
  for (double temperature = 1; temperature < 60; temperature += 0.5) {
    input.coldTemperature = temperature;
    EXPECT_EQ(ComputeHeatDemand(input).flowText, L"1666.667") << temperature;
  }
}

}  // namespace
}  // namespace zwt::test
