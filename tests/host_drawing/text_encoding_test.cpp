#include "host/drawing/text_encoding.h"

#include <random>

#include <gtest/gtest.h>

namespace {

using zwt::TextEncoding;

TextEncoding Page(const char* name) {
  return TextEncoding(*zwt::CodePage::Open(name));
}

TEST(TextEncoding, ReadsEscapesInEveryCharacterSet) {
  for (const TextEncoding& encoding : {TextEncoding(), Page("ANSI_936"), Page("ANSI_1252")}) {
    EXPECT_EQ(encoding.Decode("\\U+7ED9\\U+6c34"), L"给水");
    EXPECT_EQ(encoding.Decode("a\\U+7ED"), L"a\\U+7ED");
    EXPECT_EQ(encoding.Decode("\\M+5B8F8\\M+5CBAE"), L"给水");
    EXPECT_EQ(encoding.Decode("\\M+9B8F8"), L"\\M+9B8F8");
    EXPECT_EQ(encoding.Decode("\\U+D83D\\U+DE00"), L"\U0001F600");
    EXPECT_EQ(encoding.Decode("\\U+D83Dx"), L"\xFFFDx");
  }
}

TEST(TextEncoding, ABackslashInsideAChineseCharacterIsNoEscape) {
  // In GBK the bytes 81 5C are one character; its second byte is that of a backslash.
  const TextEncoding gbk = Page("ANSI_936");
  EXPECT_EQ(gbk.Decode("\x81\x5CU+0041"), L"乗U+0041");
  EXPECT_EQ(gbk.Encode(L"乗U+0041"), "\x81\x5CU+0041");
}

TEST(TextEncoding, WhatTheSetDoesNotHaveIsEscaped) {
  EXPECT_EQ(TextEncoding().Encode(L"给水"), "\xE7\xBB\x99\xE6\xB0\xB4");
  EXPECT_EQ(Page("ANSI_936").Encode(L"给水"), "\xB8\xF8\xCB\xAE");
  EXPECT_EQ(Page("ANSI_1252").Encode(L"给ä"), "\\U+7ED9\xE4");
  EXPECT_EQ(Page("ANSI_936").Encode(L"\U0001F600"), "\\U+D83D\\U+DE00");
  EXPECT_EQ(TextEncoding().Encode(L"a\tb\n"), "a\\U+0009b\\U+000A");
}

TEST(TextEncoding, ABackslashIsEscapedOnlyWhereItWouldBeginAnEscape) {
  EXPECT_EQ(TextEncoding().Encode(L"C:\\a"), "C:\\a");
  EXPECT_EQ(TextEncoding().Encode(L"\\U+0041"), "\\U+005CU+0041");
}

TEST(TextEncoding, BytesThatAreNoCharacterAreShownAsReplacement) {
  EXPECT_EQ(TextEncoding().Decode("a\xFFz"), L"a\xFFFDz");
  EXPECT_EQ(Page("ANSI_936").Decode("\xB8\xF8\xFF\xCB\xAE"), L"给\xFFFD水");
  EXPECT_EQ(Page("ANSI_936").Decode("\xB8"), L"\xFFFD");
}

TEST(TextEncoding, EveryTextReadsBack) {
  std::mt19937 random(11);
  const std::wstring letters = L"\\\\\\UM++0041589AFa 给水热Ä\t\n\x7F€\U0001F600";
  for (const TextEncoding& encoding :
       {TextEncoding(), Page("ANSI_936"), Page("ANSI_1252"), Page("ANSI_932")}) {
    for (int i = 0; i < 2000; ++i) {
      std::wstring text;
      for (auto n = random() % 14; n > 0; --n) text += letters[random() % letters.size()];
      ASSERT_EQ(encoding.Decode(encoding.Encode(text)), text);
    }
  }
}

}  // namespace
