// Numbers under a locale with a decimal comma, of the C library and of C++. Each test first proves that the
// switch took place, by a call that does follow the locale.
#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "host_text/random_doubles.h"

namespace {

void ExpectNumbersKeepTheirPoint() {
  EXPECT_EQ(_wtof(L"1.5"), 1.5);
  EXPECT_EQ(_wtof(L"1,5"), 1.0);
  EXPECT_EQ(_wtoi(L"1.234"), 1);
  EXPECT_EQ(zwt::FormatFixed(1234567.891, 3), L"1234567.891");
  EXPECT_EQ(zwt::FormatBound(1234567.5), L"1234567.5");
  EXPECT_EQ(ZwtNum2Str(1234567.25, -1), L"1234567.25");
  EXPECT_EQ(ZwtNum2Str(std::int32_t{1234567}), L"1234567");
  std::mt19937_64 random(7);
  for (int i = 0; i < 10'000; ++i) {
    const double value = zwt::test::EverydayDouble(random);
    ASSERT_EQ(_wtof(ZwtNum2Str(value, -1)), value);
  }
}

/// An installed locale with a decimal comma, or one compiled into a folder of the test; false if neither is
/// to be had.
bool SwitchToDecimalComma() {
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) return true;
  }
  std::string folder = testing::TempDir() + "zwt_locale_XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return false;
  const std::string compile = "localedef -i de_DE -f UTF-8 '" + folder + "/de_DE.UTF-8' 2>/dev/null";
  setenv("LOCPATH", folder.c_str(), 1);
  const bool switched = std::system(compile.c_str()) == 0 && std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
  unsetenv("LOCPATH");
  std::filesystem::remove_all(folder);
  return switched;
}

std::string PrintedByTheCLibrary(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  return text.data();
}

TEST(NumberTextLocale, DecimalCommaOfTheCLibraryChangesNothing) {
  if (!SwitchToDecimalComma()) {
    GTEST_SKIP() << "no locale with a decimal comma is installed and localedef can make none";
  }
  EXPECT_EQ(PrintedByTheCLibrary(1.5), "1,5") << "the locale was not switched";
  ExpectNumbersKeepTheirPoint();
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(PrintedByTheCLibrary(1.5), "1.5");
}

template <typename Char>
class DecimalComma : public std::numpunct<Char> {
 protected:
  Char do_decimal_point() const override { return Char{','}; }
  Char do_thousands_sep() const override { return Char{'.'}; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberTextLocale, DecimalCommaOfTheGlobalCxxLocaleChangesNothing) {
  const std::locale narrow(std::locale::classic(), new DecimalComma<char>);
  const std::locale before = std::locale::global(std::locale(narrow, new DecimalComma<wchar_t>));
  std::wostringstream shown;
  shown << 1234.5;
  EXPECT_EQ(shown.str(), L"1.234,5") << "the locale was not switched";
  ExpectNumbersKeepTheirPoint();
  std::locale::global(before);
}

}  // namespace
