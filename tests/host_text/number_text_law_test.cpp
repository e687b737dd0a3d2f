// A million random doubles against the C library, which these programs run in its "C" locale.
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "host_text/random_doubles.h"

namespace {

constexpr int kCount = 1'000'000;

std::string Narrow(const CString& text) {
  return zwt::Utf8FromWide(text);
}

std::string Printed(const char* format, int precision, double value) {
  std::array<char, 400> text{};
  const int length = std::snprintf(text.data(), text.size(), format, precision, value);
  return {text.data(), static_cast<std::size_t>(length)};
}

bool SameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// Every second number is an everyday one: the others are mostly huge or tiny.
double Number(int index, std::mt19937_64& random) {
  return index % 2 == 0 ? zwt::test::EverydayDouble(random) : zwt::test::AnyDouble(random);
}

TEST(NumberTextLaw, FixedFormatPrintsAsPrintf) {
  std::mt19937_64 random(1);
  for (int i = 0; i < kCount; ++i) {
    const double value = Number(i, random);
    const int decimals = i % 7;
    ASSERT_EQ(Narrow(zwt::FormatFixed(value, decimals)), Printed("%.*f", decimals, value)) << "number " << i;
  }
}

TEST(NumberTextLaw, BoundFormatPrintsAsPrintfWithFifteenDigits) {
  std::mt19937_64 random(2);
  for (int i = 0; i < kCount; ++i) {
    const double value = Number(i, random);
    ASSERT_EQ(Narrow(zwt::FormatBound(value)), Printed("%.*g", 15, value)) << "number " << i;
  }
}

TEST(NumberTextLaw, ChosenDecimalsReadBackHereAndInTheCLibrary) {
  std::mt19937_64 random(3);
  for (int i = 0; i < kCount; ++i) {
    const double value = Number(i, random);
    const CString text = ZwtNum2Str(value, -1);
    ASSERT_TRUE(SameBits(_wtof(text), value)) << Narrow(text);
    ASSERT_TRUE(SameBits(std::strtod(Narrow(text).c_str(), nullptr), value)) << Narrow(text);
    ASSERT_LE(text.size(), 24U) << Narrow(text);
  }
}

TEST(NumberTextLaw, ReadingAgreesWithTheCLibrary) {
  std::mt19937_64 random(4);
  for (int i = 0; i < kCount; ++i) {
    const std::string text = Printed("%.*e", static_cast<int>(random() % 21), Number(i, random));
    const CString wide(text.begin(), text.end());
    ASSERT_TRUE(SameBits(_wtof(wide), std::strtod(text.c_str(), nullptr))) << text;
  }
}

TEST(NumberTextLaw, ReadingAgreesWithTheCLibraryWhereDoublesEnd) {
  std::mt19937_64 random(5);
  for (int i = 0; i < kCount / 10; ++i) {
    const int power = static_cast<int>(random() % 60) + (i % 2 == 0 ? 290 : -350);
    const std::string text = std::to_string(random() % 100'000) + "." + std::to_string(random() % 100'000) +
                             "e" + std::to_string(power);
    const CString wide(text.begin(), text.end());
    ASSERT_TRUE(SameBits(_wtof(wide), std::strtod(text.c_str(), nullptr))) << text;
  }
}

TEST(NumberTextLaw, WholeNumbersReadBack) {
  std::mt19937_64 random(6);
  for (int i = 0; i < kCount; ++i) {
    const auto value = static_cast<std::int32_t>(static_cast<std::uint32_t>(random()));
    ASSERT_EQ(_wtoi(ZwtNum2Str(value)), value);
    ASSERT_EQ(zwt::ToInt(_wtof(ZwtNum2Str(value))), value);
  }
}

}  // namespace
