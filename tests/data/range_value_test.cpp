#include "data/range_value.h"

#include <gtest/gtest.h>

namespace {

using zwt::ParseRangeValue;

TEST(RangeValueTest, RangeGivesItsMiddle) {
  EXPECT_EQ(ParseRangeValue(L"130～300"), 215);
  EXPECT_EQ(ParseRangeValue(L"5～10"), 7.5);
  EXPECT_EQ(ParseRangeValue(L"3.0～2.5"), 2.75);
}

TEST(RangeValueTest, PlainNumberIsItself) {
  EXPECT_EQ(ParseRangeValue(L"2.8"), 2.8);
  EXPECT_EQ(ParseRangeValue(L"60"), 60);
}

TEST(RangeValueTest, TextWithoutANumberCountsAsZero) {
  EXPECT_EQ(ParseRangeValue(L"-"), 0);
  EXPECT_EQ(ParseRangeValue(L""), 0);
  EXPECT_EQ(ParseRangeValue(L"地面水"), 0);
  EXPECT_EQ(ParseRangeValue(L"～"), 0);
}

TEST(RangeValueTest, AsciiTildeIsNoRange) {
  EXPECT_EQ(ParseRangeValue(L"5~10"), 5);
}

TEST(RangeValueTest, OnlyTheFirstTildeDivides) {
  EXPECT_EQ(ParseRangeValue(L"10～20～30"), 15);
}

TEST(RangeValueTest, TextBehindTheNumbersIsPassedOver) {
  EXPECT_EQ(ParseRangeValue(L"24或定时供应"), 24);
  EXPECT_EQ(ParseRangeValue(L"0.75～1.00(0.70)"), 0.875);
  EXPECT_EQ(ParseRangeValue(L"0.15(0.10)"), 0.15);
  EXPECT_EQ(ParseRangeValue(L"≥6000"), 0);
}

TEST(RangeValueTest, MissingEndCountsAsZero) {
  EXPECT_EQ(ParseRangeValue(L"～300"), 150);
  EXPECT_EQ(ParseRangeValue(L"130～"), 65);
}

}  // namespace
