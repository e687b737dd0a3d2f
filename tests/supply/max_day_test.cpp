#include "supply/max_day.h"

#include <cmath>

#include <gtest/gtest.h>

#include "host/text/number_text.h"

namespace {

using zwt::MaxDayInputs;
using zwt::MaxDayText;
using zwt::MaxHourText;
using zwt::ProbabilityFlowEstimate;

MaxDayInputs Dwelling() {
  return {.quota = 200, .users = 100, .hourlyFactor = 2.5, .hours = 24, .unforeseenPercent = 10};
}

TEST(MaxDayTest, DwellingOfAHundredUsers) {
  const MaxDayInputs inputs = Dwelling();
  EXPECT_EQ(MaxDayText(inputs), L"22.000");
  EXPECT_EQ(MaxHourText(inputs, MaxDayText(inputs)), L"2.521");
}

TEST(MaxDayTest, AllowanceDefaultsToTenPercent) {
  EXPECT_EQ(MaxDayInputs{}.unforeseenPercent, 10.0);
}

TEST(MaxDayTest, WithoutAllowanceThePlainFormulasHold) {
  MaxDayInputs inputs = Dwelling();
  inputs.unforeseenPercent = 0;
  EXPECT_EQ(MaxDayText(inputs), L"20.000");
  EXPECT_EQ(MaxHourText(inputs, MaxDayText(inputs)), L"2.083");
}

TEST(MaxDayTest, ZeroHoursGiveADayAndNoHour) {
  MaxDayInputs inputs = Dwelling();
  inputs.hours = 0;
  EXPECT_EQ(MaxDayText(inputs), L"22.000");
  EXPECT_EQ(MaxHourText(inputs, MaxDayText(inputs)), L"0.000");
}

TEST(MaxDayTest, ZeroFactorGivesADayAndNoHour) {
  MaxDayInputs inputs = Dwelling();
  inputs.hourlyFactor = 0;
  EXPECT_EQ(MaxHourText(inputs, MaxDayText(inputs)), L"0.000");
}

TEST(MaxDayTest, NothingGivenIsZero) {
  EXPECT_EQ(MaxDayText({}), L"0.000");
  EXPECT_EQ(MaxHourText({}, L"0.000"), L"0.000");
}

TEST(MaxDayTest, HourCarriesTheRoundingOfTheDayText) {
  // A day of 0.4 litres shows as 0.000 m³, so the hour is 0 also where its own figure would show.
  const MaxDayInputs inputs{
      .quota = 0.4, .users = 1, .hourlyFactor = 100, .hours = 1, .unforeseenPercent = 0};
  EXPECT_EQ(MaxDayText(inputs), L"0.000");
  EXPECT_EQ(MaxHourText(inputs, MaxDayText(inputs)), L"0.000");
  EXPECT_EQ(MaxHourText(inputs, L"0.0004"), L"0.040");
}

TEST(MaxDayTest, HourReadsWhatTheDayTextShows) {
  EXPECT_EQ(MaxHourText(Dwelling(), L"44.000"), L"5.042");
  EXPECT_EQ(MaxHourText(Dwelling(), L""), L"0.000");
}

TEST(MaxDayLaw, HourHoldsTheAllowanceTwice) {
  for (const double percent : {0.0, 5.0, 10.0, 15.0, 37.5}) {
    MaxDayInputs inputs = Dwelling();
    inputs.unforeseenPercent = percent;
    const CString day = MaxDayText(inputs);
    const double plain = inputs.hourlyFactor * _wtof(day) / inputs.hours;
    EXPECT_NEAR(_wtof(MaxHourText(inputs, day)), plain * (1 + percent / 100), 0.0005 + 1e-9) << percent;
  }
}

TEST(ProbabilityFlowEstimateTest, OneEquivalentFlowsAsOneTap) {
  EXPECT_EQ(ProbabilityFlowEstimate(Dwelling(), 1), 0.2);
}

TEST(ProbabilityFlowEstimateTest, TakesTheUsersOfTheBuildingAndTheEquivalentsOfOneHousehold) {
  // U0 = 250 × 3.5 × 2.8 / (0.2 × 4 × 24 × 3600) × 100 = 3.5446, nearest 3.5.
  const MaxDayInputs inputs{.quota = 250, .users = 3.5, .hourlyFactor = 2.8, .hours = 24};
  EXPECT_DOUBLE_EQ(ProbabilityFlowEstimate(inputs, 4), 0.2 * ((1 + 0.02374 * std::pow(3.0, 0.49)) / 2) * 4);
}

TEST(ProbabilityFlowEstimateTest, BetweenZeroAndOneEquivalentThereIsNoFlow) {
  EXPECT_TRUE(std::isnan(ProbabilityFlowEstimate(Dwelling(), 0.5)));
}

TEST(ProbabilityFlowEstimateTest, ProbabilityBeyondEveryRowLeavesTheCoefficientAtZero) {
  const MaxDayInputs inputs{.quota = 1e6, .users = 1e6, .hourlyFactor = 2.5, .hours = 24};
  EXPECT_EQ(ProbabilityFlowEstimate(inputs, 4), 0.2 * 0.5 * 4);
}

}  // namespace
