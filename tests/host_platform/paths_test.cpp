// Paths of wide texts, in both directions.
#include "host/platform/paths.h"

#include <clocale>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace {

TEST(Paths, EitherSeparatorSeparates) {
  const std::filesystem::path expected = std::filesystem::path("Common2") / "a" / "b.xml";
  EXPECT_EQ(zwt::PathFromText(L"Common2\\a/b.xml"), expected);
}

TEST(Paths, ChineseNamesAreUtf8UnderEveryLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"C", "C.UTF-8", "zh_CN.GBK", "de_DE.UTF-8"}) {
    std::setlocale(LC_ALL, locale);  // where the system lacks it, the run before counts twice
    EXPECT_EQ(zwt::PathFromText(L"给水\\图.dxf").native(), "\xE7\xBB\x99\xE6\xB0\xB4/\xE5\x9B\xBE.dxf");
    EXPECT_EQ(zwt::TextFromPath("\xE7\xBB\x99\xE6\xB0\xB4"), L"给水");
  }
  std::setlocale(LC_ALL, before.c_str());
}

TEST(Paths, CharactersBeyondTheBasicPlaneReadBack) {
  EXPECT_EQ(zwt::TextFromPath(zwt::PathFromText(L"\U0001F6B0.dxf")), L"\U0001F6B0.dxf");
}

TEST(Paths, EveryByteSequenceReadsBackAsTheSamePath) {
  for (int first = 1; first < 256; ++first) {
    for (int second = 1; second < 256; ++second) {
      std::string name = {'a', static_cast<char>(first), static_cast<char>(second)};
      if (name.find('\\') != std::string::npos) continue;  // separates here
      EXPECT_EQ(zwt::PathFromText(zwt::TextFromPath(name)).native(), name);
    }
  }
  const std::string surrogate = "\xED\xA0\x80";
  EXPECT_EQ(zwt::PathFromText(zwt::TextFromPath(surrogate)).native(), surrogate);
  const std::string tooFar = "\xF4\x90\x80\x80";
  EXPECT_EQ(zwt::PathFromText(zwt::TextFromPath(tooFar)).native(), tooFar);
}

TEST(Paths, CharactersThatNoNameCanHoldAreReplaced) {
  using namespace std::string_literals;
  const std::string replaced = "a\xEF\xBF\xBD";
  EXPECT_EQ(zwt::PathFromText(L"a\0"s).native(), replaced);
  EXPECT_EQ(zwt::PathFromText(std::wstring{L'a', static_cast<wchar_t>(0xD800)}).native(), replaced);
  EXPECT_EQ(zwt::PathFromText(std::wstring{L'a', static_cast<wchar_t>(0x110000)}).native(), replaced);
  EXPECT_EQ(zwt::PathFromText(std::wstring{L'a', static_cast<wchar_t>(-1)}).native(), replaced);
}

TEST(Paths, EmptyTextIsTheEmptyPath) {
  EXPECT_TRUE(zwt::PathFromText(L"").empty());
  EXPECT_EQ(zwt::TextFromPath(""), L"");
}

TEST(Paths, BackslashTextHasNoOtherSeparator) {
  EXPECT_EQ(zwt::BackslashTextFromPath("/usr/lib/zwtcal/ZwtCalModel.so"),
            L"\\usr\\lib\\zwtcal\\ZwtCalModel.so");
}

TEST(Paths, HostAndProgramLieWhereTheBuildPutThem) {
  const std::filesystem::path build = std::filesystem::canonical(ZWT_BINARY_DIR);
  EXPECT_EQ(zwt::HostDirectory(), build / "lib");
  EXPECT_EQ(zwt::ProgramDirectory(), build / "bin");
}

}  // namespace
