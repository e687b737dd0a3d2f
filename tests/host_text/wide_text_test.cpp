#include "host/text/wide_text.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace {

using zwt::IsUtf8;
using zwt::Utf8FromWide;
using zwt::WideFromUtf8;

TEST(WideTextTest, ChineseAndRareCharactersGoBothWays) {
  EXPECT_EQ(Utf8FromWide(L"给水DN50"),
            "\xE7\xBB\x99\xE6\xB0\xB4"
            "DN50");
  EXPECT_EQ(WideFromUtf8("\xE7\xBB\x99\xE6\xB0\xB4"
                         "DN50"),
            L"给水DN50");
  EXPECT_EQ(Utf8FromWide(L"\U00020BB7é"), "\xF0\xA0\xAE\xB7\xC3\xA9");
  EXPECT_EQ(WideFromUtf8("\xF0\xA0\xAE\xB7\xC3\xA9"), L"\U00020BB7é");
}

TEST(WideTextTest, ZeroCharacterIsKept) {
  EXPECT_EQ(Utf8FromWide(std::wstring(L"a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(WideFromUtf8(std::string("a\0b", 3)), std::wstring(L"a\0b", 3));
}

TEST(WideTextTest, LoneSurrogatesBecomeTheReplacementCharacter) {
  const std::wstring text = {L'a', static_cast<wchar_t>(0xD800), L'b', static_cast<wchar_t>(0xDFFF)};
  EXPECT_EQ(Utf8FromWide(text),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

TEST(WideTextTest, EachInvalidByteBecomesTheReplacementCharacter) {
  EXPECT_EQ(WideFromUtf8("a\xFF\x80"
                         "b"),
            L"a\uFFFD\uFFFDb");
  EXPECT_EQ(WideFromUtf8("\xE7\xBB"), L"\uFFFD\uFFFD");
  EXPECT_EQ(WideFromUtf8("\xE7\xBBx"), L"\uFFFD\uFFFDx");
}

TEST(WideTextTest, OverlongFormsSurrogatesAndTooLargeCodesAreInvalid) {
  for (const char* bytes : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\x80", "\xC3", "\xF0\xA0\xAE"}) {
    EXPECT_FALSE(IsUtf8(bytes));
    EXPECT_EQ(WideFromUtf8(bytes), std::wstring(std::string(bytes).size(), L'\uFFFD'));
  }
}

TEST(WideTextTest, ValidBytesAreRecognised) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("plain"));
  EXPECT_TRUE(IsUtf8("\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
  EXPECT_TRUE(IsUtf8("\xED\x9F\xBF\xEE\x80\x80"));
  EXPECT_FALSE(IsUtf8("plain\xB8\xF8"));
}

TEST(WideTextLaw, EveryCharacterGoesBothWays) {
  for (unsigned code = 0; code <= 0x10FFFF; ++code) {
    if (code >= 0xD800 && code <= 0xDFFF) continue;
    const std::wstring text(1, static_cast<wchar_t>(code));
    const std::string bytes = Utf8FromWide(text);
    ASSERT_TRUE(IsUtf8(bytes)) << code;
    ASSERT_EQ(WideFromUtf8(bytes), text) << code;
  }
}

TEST(WideTextLaw, BytesAreUtf8JustWhenTheyComeBackTheSame) {
  std::mt19937 random(8);
  constexpr std::string_view kBytes = "az\x7F\x80\x8F\x90\x9F\xA0\xBF\xC2\xDF\xE0\xED\xEF\xF0\xF4\xF5\xFF";
  for (int i = 0; i < 200'000; ++i) {
    std::string bytes(random() % 6, ' ');
    for (char& byte : bytes) byte = kBytes[random() % kBytes.size()];
    ASSERT_EQ(IsUtf8(bytes), Utf8FromWide(WideFromUtf8(bytes)) == bytes);
  }
}

}  // namespace
