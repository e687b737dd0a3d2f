#include "host/text/number_text.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t kMaxInt = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMinInt = std::numeric_limits<std::int32_t>::min();

TEST(WtofTest, ReadsLeadingBlanksSignFractionAndExponent) {
  EXPECT_EQ(_wtof(L" \t\n\v\f\r-12.5e2rest"), -1250.0);
  EXPECT_EQ(_wtof(L"+3"), 3.0);
  EXPECT_EQ(_wtof(L".5"), 0.5);
  EXPECT_EQ(_wtof(L"5."), 5.0);
  EXPECT_EQ(_wtof(L"2.8"), 2.8);
  EXPECT_EQ(_wtof(L"1E+3"), 1000.0);
}

TEST(WtofTest, TextWithoutNumberCountsAsZero) {
  for (const wchar_t* text : {L"", L" ", L"-", L"+", L".", L"-.", L"e5", L"水", L"- 5", L"+-5", L"\u30005"}) {
    EXPECT_EQ(_wtof(text), 0.0) << "text of length " << CString(text).size();
  }
}

TEST(WtofTest, KnowsNoHexadecimalInfinityOrNaN) {
  EXPECT_EQ(_wtof(L"0x1A"), 0.0);
  EXPECT_EQ(_wtof(L"inf"), 0.0);
  EXPECT_EQ(_wtof(L"infinity"), 0.0);
  EXPECT_EQ(_wtof(L"nan"), 0.0);
}

TEST(WtofTest, CommaEndsTheNumber) {
  EXPECT_EQ(_wtof(L"1,5"), 1.0);
}

TEST(WtofTest, FullWidthTildeEndsTheNumber) {
  EXPECT_EQ(_wtof(L"130～300"), 130.0);
}

TEST(WtofTest, IncompleteExponentIsNotPartOfTheNumber) {
  std::size_t length = 0;
  EXPECT_EQ(zwt::ReadDouble(L"2e", length), 2.0);
  EXPECT_EQ(length, 1U);
  EXPECT_EQ(zwt::ReadDouble(L"2e+x", length), 2.0);
  EXPECT_EQ(length, 1U);
  EXPECT_EQ(zwt::ReadDouble(L"  2e3x", length), 2000.0);
  EXPECT_EQ(length, 5U);
}

TEST(WtofTest, NoNumberReadsNoCharacters) {
  std::size_t length = 7;
  EXPECT_EQ(zwt::ReadDouble(L"  x", length), 0.0);
  EXPECT_EQ(length, 0U);
}

TEST(WtofTest, TooLargeIsInfiniteAndTooSmallIsZero) {
  EXPECT_EQ(_wtof(L"1e400"), kInfinity);
  EXPECT_EQ(_wtof(L"-1e400"), -kInfinity);
  EXPECT_EQ(_wtof(L"1e-400"), 0.0);
  EXPECT_EQ(_wtof(L"1e99999999999999999999999"), kInfinity);
  EXPECT_EQ(_wtof(L"1e-99999999999999999999999"), 0.0);
  EXPECT_EQ(_wtof(L"0e99999999999999999999999"), 0.0);
  EXPECT_EQ(_wtof(CString(400, L'9')), kInfinity);
  EXPECT_EQ(_wtof(L"0." + CString(400, L'0') + L"1"), 0.0);
  EXPECT_EQ(_wtof(L"0." + CString(400, L'0') + L"1e401"), 1.0);
  EXPECT_TRUE(std::signbit(_wtof(L"-1e-400")));
}

TEST(WtofTest, ReadsTheSmallestAndTheLargestDouble) {
  EXPECT_EQ(_wtof(L"4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(_wtof(L"1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(WtoiTest, ReadsWholeNumberAtTheFront) {
  EXPECT_EQ(_wtoi(L" 12 mm"), 12);
  EXPECT_EQ(_wtoi(L"-7.9"), -7);
  EXPECT_EQ(_wtoi(L"+5"), 5);
  EXPECT_EQ(_wtoi(L"1e3"), 1);
  EXPECT_EQ(_wtoi(L""), 0);
  EXPECT_EQ(_wtoi(L"层"), 0);
}

TEST(WtoiTest, SaturatesAtTheBounds) {
  EXPECT_EQ(_wtoi(L"2147483647"), kMaxInt);
  EXPECT_EQ(_wtoi(L"2147483648"), kMaxInt);
  EXPECT_EQ(_wtoi(L"-2147483648"), kMinInt);
  EXPECT_EQ(_wtoi(L"-2147483649"), kMinInt);
  EXPECT_EQ(_wtoi(L"99999999999999999999999999"), kMaxInt);
  EXPECT_EQ(_wtoi(L"-99999999999999999999999999"), kMinInt);
}

TEST(ParseNumberTest, WholeTextMustBeANumber) {
  double value = 7;
  EXPECT_TRUE(zwt::ParseNumber(L" 2.50 ", value));
  EXPECT_EQ(value, 2.5);
  for (const wchar_t* text : {L"", L"  ", L"2.5x", L"2,5", L"nan", L"0x10", L"2 5"}) {
    EXPECT_FALSE(zwt::ParseNumber(text, value));
  }
  EXPECT_EQ(value, 2.5);
}

TEST(ParseWholeNumberTest, RefusesAFraction) {
  std::int32_t value = 7;
  EXPECT_FALSE(zwt::ParseWholeNumber(L"2.5", value));
  EXPECT_FALSE(zwt::ParseWholeNumber(L"", value));
  EXPECT_FALSE(zwt::ParseWholeNumber(L"1e3", value));
  EXPECT_EQ(value, 7);
  EXPECT_TRUE(zwt::ParseWholeNumber(L" -12 ", value));
  EXPECT_EQ(value, -12);
  EXPECT_TRUE(zwt::ParseWholeNumber(L"4294967296", value));
  EXPECT_EQ(value, kMaxInt);
}

TEST(FormatFixedTest, PrintsExactlyTheDecimals) {
  EXPECT_EQ(zwt::FormatFixed(22, 3), L"22.000");
  EXPECT_EQ(zwt::FormatFixed(2.520833, 3), L"2.521");
  EXPECT_EQ(zwt::FormatFixed(0.125, 2), L"0.12");
  EXPECT_EQ(zwt::FormatFixed(-0.0001, 3), L"-0.000");
  EXPECT_EQ(zwt::FormatFixed(2.5, 0), L"2");
  EXPECT_EQ(zwt::FormatFixed(1e22, 1), L"10000000000000000000000.0");
}

TEST(FormatFixedTest, NegativeDecimalsCountAsNone) {
  EXPECT_EQ(zwt::FormatFixed(3.25, -4), L"3");
}

TEST(FormatFixedTest, NamesWhatIsNoFiniteNumber) {
  EXPECT_EQ(zwt::FormatFixed(kInfinity, 3), L"inf");
  EXPECT_EQ(zwt::FormatFixed(-kInfinity, 3), L"-inf");
  EXPECT_EQ(zwt::FormatFixed(kNaN, 3), L"nan");
  EXPECT_EQ(zwt::FormatFixed(-kNaN, 3), L"nan");
}

TEST(FormatFixedTest, LargestDoubleWithManyDecimalsFits) {
  EXPECT_EQ(zwt::FormatFixed(-std::numeric_limits<double>::max(), 50).size(), 1U + 309U + 1U + 50U);
}

TEST(FormatBoundTest, ShowsAtMostFifteenDigits) {
  EXPECT_EQ(zwt::FormatBound(0), L"0");
  EXPECT_EQ(zwt::FormatBound(10.0), L"10");
  EXPECT_EQ(zwt::FormatBound(0.1 + 0.2), L"0.3");
  EXPECT_EQ(zwt::FormatBound(1.0 / 3.0), L"0.333333333333333");
  EXPECT_EQ(zwt::FormatBound(123456789012345.0), L"123456789012345");
  EXPECT_EQ(zwt::FormatBound(1e15), L"1e+15");
  EXPECT_EQ(zwt::FormatBound(kNaN), L"nan");
  EXPECT_EQ(zwt::FormatBound(-kInfinity), L"-inf");
}

TEST(Num2StrTest, FixedDecimals) {
  EXPECT_EQ(ZwtNum2Str(0.4133, 3), L"0.413");
  EXPECT_EQ(ZwtNum2Str(50.0, 0), L"50");
  EXPECT_EQ(ZwtNum2Str(kNaN, 3), L"nan");
}

TEST(Num2StrTest, ChoosesTheFewestDigitsThatReadBack) {
  EXPECT_EQ(ZwtNum2Str(0.1, -1), L"0.1");
  EXPECT_EQ(ZwtNum2Str(50.0, -1), L"50");
  EXPECT_EQ(ZwtNum2Str(-2.75, -1), L"-2.75");
  EXPECT_EQ(ZwtNum2Str(0.1 + 0.2, -1), L"0.30000000000000004");
  EXPECT_EQ(ZwtNum2Str(0.0, -1), L"0");
  EXPECT_EQ(ZwtNum2Str(kInfinity, -1), L"inf");
  EXPECT_EQ(ZwtNum2Str(kNaN, -1), L"nan");
}

TEST(Num2StrTest, WritesRoundNumbersInFull) {
  EXPECT_EQ(ZwtNum2Str(100000.0, -1), L"100000");
  EXPECT_EQ(ZwtNum2Str(0.0001, -1), L"0.0001");
  EXPECT_EQ(ZwtNum2Str(0.00001, -1), L"0.00001");
  EXPECT_EQ(ZwtNum2Str(1e15, -1), L"1000000000000000");
  EXPECT_EQ(ZwtNum2Str(1e16, -1), L"1e+16");
  EXPECT_EQ(ZwtNum2Str(1e-6, -1), L"1e-06");
}

TEST(Num2StrTest, WholeNumbers) {
  EXPECT_EQ(ZwtNum2Str(std::int32_t{0}), L"0");
  EXPECT_EQ(ZwtNum2Str(kMinInt), L"-2147483648");
  EXPECT_EQ(ZwtNum2Str(kMaxInt), L"2147483647");
}

TEST(ToIntTest, TruncatesSaturatesAndTakesNaNAsZero) {
  EXPECT_EQ(zwt::ToInt(2.9), 2);
  EXPECT_EQ(zwt::ToInt(-2.9), -2);
  EXPECT_EQ(zwt::ToInt(kNaN), 0);
  EXPECT_EQ(zwt::ToInt(kInfinity), kMaxInt);
  EXPECT_EQ(zwt::ToInt(-kInfinity), kMinInt);
  EXPECT_EQ(zwt::ToInt(2147483647.9), kMaxInt);
  EXPECT_EQ(zwt::ToInt(-2147483648.9), kMinInt);
  EXPECT_EQ(zwt::ToInt(2147483646.5), 2147483646);
}

}  // namespace
