#include "host/text/code_page.h"

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using zwt::CodePage;
using zwt::DecodedText;

const std::vector<std::string> kNames = {
    "ANSI_874",  "ANSI_932",  "ANSI_936",  "ANSI_949",  "ANSI_950",  "ANSI_1250", "ANSI_1251",
    "ANSI_1252", "ANSI_1253", "ANSI_1254", "ANSI_1255", "ANSI_1256", "ANSI_1257", "ANSI_1258",
    "GB2312",    "BIG5",      "DOS437",    "DOS850",    "DOS852",    "DOS866",    "DOS932"};

CodePage Page(const std::string& name) {
  std::optional<CodePage> page = CodePage::Open(name);
  if (!page.has_value()) throw std::runtime_error("no code page " + name);
  return std::move(*page);
}

/// The text in bytes, each character that does not fit as a drawing escapes it.
std::string EncodeWithEscapes(CodePage& page, std::wstring_view text) {
  std::string bytes;
  for (;;) {
    text.remove_prefix(page.Encode(text, bytes));
    if (text.empty()) return bytes;
    char escape[16];
    std::snprintf(escape, sizeof escape, "\\U+%04X", static_cast<unsigned>(text[0]));
    bytes += escape;
    text.remove_prefix(1);
  }
}

TEST(CodePageTest, ChineseOfficesWriteGbk) {
  CodePage page = Page("ANSI_936");
  const DecodedText decoded = page.Decode("DN\xB8\xF8\xCB\xAE\xA1\xAB 1");
  EXPECT_EQ(decoded.text, L"DN给水～ 1");
  EXPECT_TRUE(decoded.complete);
  std::string bytes = ">";
  EXPECT_EQ(page.Encode(L"DN给水～ 1", bytes), 7U);
  EXPECT_EQ(bytes, ">DN\xB8\xF8\xCB\xAE\xA1\xAB 1");
}

TEST(CodePageTest, TrailByteThatLooksLikeABackslashIsPartOfItsCharacter) {
  EXPECT_EQ(Page("ANSI_936").Decode("\x81\x5C\x5C").text, L"乗\\");
  EXPECT_EQ(Page("ANSI_950").Decode("\xA5\x5C").text, L"功");
}

TEST(CodePageTest, NamesAreFoundInUpperAndLowerCase) {
  for (const std::string& name : kNames) EXPECT_TRUE(CodePage::Open(name).has_value()) << name;
  EXPECT_TRUE(CodePage::Open("ansi_936").has_value());
  EXPECT_TRUE(CodePage::Open("utf-8").has_value());
  for (const char* name : {"", "ANSI_1", "ANSI_9366", "JOHAB", "CP936", "ANSI_936//TRANSLIT"}) {
    EXPECT_FALSE(CodePage::Open(name).has_value()) << name;
  }
}

TEST(CodePageTest, BytesThatCannotBeDecodedAreReportedAndShown) {
  CodePage page = Page("ANSI_936");
  const DecodedText decoded = page.Decode("a\xFF\xB8\xF8\x81 \xB8");
  EXPECT_FALSE(decoded.complete);
  EXPECT_EQ(decoded.text, L"a\uFFFD给\uFFFD \uFFFD");
  EXPECT_TRUE(page.Decode("\xB8\xF8").complete) << "a broken text must not leave anything behind";
}

TEST(CodePageTest, UndefinedByteOfASingleBytePageIsReported) {
  const DecodedText decoded = Page("ANSI_1252").Decode("\x80\x81");
  EXPECT_FALSE(decoded.complete);
  EXPECT_EQ(decoded.text, L"€\uFFFD");
}

TEST(CodePageTest, EncodingStopsAtTheFirstCharacterThatDoesNotFit) {
  CodePage page = Page("ANSI_936");
  std::string bytes;
  EXPECT_EQ(page.Encode(L"水é한x", bytes), 2U);
  EXPECT_EQ(bytes, "\xCB\xAE\xA8\xA6");
  EXPECT_EQ(page.Encode(L"한", bytes), 0U);
  EXPECT_EQ(bytes, "\xCB\xAE\xA8\xA6");
  EXPECT_EQ(EncodeWithEscapes(page, L"水한x\U00020BB7"), "\xCB\xAE\\U+D55Cx\\U+20BB7");
  EXPECT_EQ(EncodeWithEscapes(page, L"한"), "\\U+D55C");
}

TEST(CodePageTest, InvisibleTagCharactersAreNotDropped) {
  CodePage page = Page("ANSI_936");
  EXPECT_EQ(EncodeWithEscapes(page, L"水\U000E0041水"), "\xCB\xAE\\U+E0041\xCB\xAE");
  EXPECT_EQ(EncodeWithEscapes(page, L"\U000E0001"), "\\U+E0001");
}

TEST(CodePageTest, LookAlikesDoNotStandForWhatThePageDoesNotHold) {
  CodePage page = Page("ANSI_932");
  EXPECT_EQ(EncodeWithEscapes(page, L"5¢"), "5\\U+00A2");
  EXPECT_EQ(EncodeWithEscapes(page, L"水¢水"), "\x90\x85\\U+00A2\x90\x85");
}

TEST(CodePageTest, EmptyTextsAreEmpty) {
  for (const char* name : {"ANSI_936", "UTF-8"}) {
    CodePage page = Page(name);
    EXPECT_EQ(page.Decode("").text, L"");
    EXPECT_TRUE(page.Decode("").complete);
    std::string bytes;
    EXPECT_EQ(page.Encode(L"", bytes), 0U);
    EXPECT_EQ(bytes, "");
  }
}

TEST(CodePageTest, Utf8IsACodePageToo) {
  CodePage page = Page("UTF-8");
  EXPECT_EQ(page.Decode("\xE6\xB0\xB4").text, L"水");
  EXPECT_TRUE(page.Decode("\xE6\xB0\xB4").complete);
  EXPECT_FALSE(page.Decode("\xE6\xB0").complete);
  std::string bytes;
  EXPECT_EQ(page.Encode(L"水\U00020BB7", bytes), std::wstring(L"水\U00020BB7").size());
  EXPECT_EQ(bytes, "\xE6\xB0\xB4\xF0\xA0\xAE\xB7");
  const std::wstring lone = {L'a', static_cast<wchar_t>(0xD800), L'b'};
  EXPECT_EQ(page.Encode(lone, bytes), 1U);
}

TEST(CodePageTest, AccentsThatFollowTheirLetterAreJoinedAndTheLastOneIsNotLost) {
  CodePage page = Page("ANSI_1258");
  EXPECT_EQ(page.Decode("\xC2").text, L"Â");
  EXPECT_EQ(page.Decode("\xC2\xEC").text, L"Ấ");
  EXPECT_EQ(page.Decode("xa").text, L"xa");
}

TEST(CodePageLaw, AsciiIsItselfInEveryPageAlsoBehindOtherBytes) {
  std::string ascii;
  for (char c = 1; c > 0 && c < 0x7F; ++c) ascii.push_back(c);
  const std::wstring wide(ascii.begin(), ascii.end());
  for (const std::string& name : kNames) {
    CodePage page = Page(name);
    EXPECT_EQ(page.Decode(ascii).text, wide) << name;
    // A byte that is no character of its own keeps the fast way out.
    EXPECT_EQ(page.Decode("\xC1\xA1|" + ascii).text.substr(page.Decode("\xC1\xA1|").text.size()), wide)
        << name;
    std::string bytes;
    EXPECT_EQ(page.Encode(wide, bytes), wide.size()) << name;
    EXPECT_EQ(bytes, ascii) << name;
  }
}

TEST(CodePageLaw, WhatEncodesComesBackTheSame) {
  for (const char* name :
       {"ANSI_936", "ANSI_950", "ANSI_932", "ANSI_949", "ANSI_1251", "ANSI_1252", "ANSI_874"}) {
    CodePage page = Page(name);
    int held = 0;
    for (unsigned code = 1; code <= 0x2FFFF; ++code) {
      if (code >= 0xD800 && code <= 0xDFFF) continue;
      const std::wstring text(1, static_cast<wchar_t>(code));
      std::string bytes;
      if (page.Encode(text, bytes) == 0) {
        ASSERT_EQ(bytes, "") << name << " " << code;
        continue;
      }
      ++held;
      const DecodedText decoded = page.Decode(bytes);
      ASSERT_EQ(decoded.text, text) << name << " " << code;
      ASSERT_TRUE(decoded.complete) << name << " " << code;
    }
    EXPECT_GE(held, 200) << name;
  }
}

TEST(CodePageLaw, AnyBytesDecodeToAtMostOneCharacterEachAndReportWhatTheyLose) {
  std::mt19937 random(9);
  for (const std::string& name : kNames) {
    CodePage page = Page(name);
    for (int i = 0; i < 2'000; ++i) {
      std::string bytes(random() % 40, '\0');
      for (char& byte : bytes) byte = static_cast<char>(static_cast<unsigned char>(random()));
      const DecodedText decoded = page.Decode(bytes);
      ASSERT_LE(decoded.text.size(), bytes.size()) << name;
      ASSERT_EQ(decoded.complete, decoded.text.find(L'\uFFFD') == std::wstring::npos) << name;
    }
  }
}

}  // namespace
