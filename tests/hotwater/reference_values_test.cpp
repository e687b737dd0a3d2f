// Cells of the design tables as numbers.
#include "hotwater/reference_values.h"

#include <gtest/gtest.h>

#include "data/range_value.h"

namespace zwt::test {
namespace {

TEST(HotWaterReferenceValues, RangeGivesItsMiddleAndAPlainNumberItself) {
  EXPECT_EQ(ParseRangeValue(L"5～10"), 7.5);
  EXPECT_EQ(ParseRangeValue(L"60"), 60.0);
  EXPECT_EQ(ParseRangeValue(L"-"), 0.0);
  EXPECT_EQ(ParseRangeValue(L"黑龙江"), 0.0);
  EXPECT_EQ(ParseRangeValue(L"5~10"), 5.0) << "the narrow tilde makes no range";
}

TEST(HotWaterReferenceValues, HoursThatARowDoesNotGiveAreAWholeDay) {
  EXPECT_EQ(UseHoursOfCell(L""), 24.0);
  EXPECT_EQ(UseHoursOfCell(L"0"), 24.0);
  EXPECT_EQ(UseHoursOfCell(L"定时供应"), 24.0);
  EXPECT_EQ(UseHoursOfCell(L"12"), 12.0);
  EXPECT_EQ(UseHoursOfCell(L"10～12"), 11.0);
}

TEST(HotWaterReferenceValues, FixturesAddUpTheirHourlyUse) {
  const FixtureUse fixtures[] = {{L"300", 10}, {L"140～200", 2}, {L"-", 5}, {L"30", 0}, {L"", 3}};
  EXPECT_EQ(SumHourlyUse(fixtures), 3340.0);
  EXPECT_EQ(SumHourlyUse({}), 0.0);
}

TEST(HotWaterReferenceValues, NegativeCountTakesAway) {
  const FixtureUse fixtures[] = {{L"300", -1}};
  EXPECT_EQ(SumHourlyUse(fixtures), -300.0);
}

}  // namespace
}  // namespace zwt::test
