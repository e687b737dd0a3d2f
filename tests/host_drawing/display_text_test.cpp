// Texts of drawings as they are read.
#include "host/drawing/display_text.h"

#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

using test::DrawingOf;
using test::Seen;

TEST(PlainText, CodesAreTheSignsThatTheyStandFor) {
  EXPECT_EQ(PlainText(L"%%c100"), L"∅100");
  EXPECT_EQ(PlainText(L"%%C100 45%%d %%P0.000"), L"∅100 45° ±0.000");
  EXPECT_EQ(PlainText(L"50%%%"), L"50%");
  EXPECT_EQ(PlainText(L"%%u给水%%U %%o上%%O"), L"给水 上");
  EXPECT_EQ(PlainText(L"%%065%%066"), L"AB");
}

TEST(PlainText, WhatIsNoCodeStandsAsItIs) {
  EXPECT_EQ(PlainText(L"100%"), L"100%");
  EXPECT_EQ(PlainText(L"5%%"), L"5%%");
  EXPECT_EQ(PlainText(L"%%x %%12 %%007"), L"%%x %%12 %%007");
}

TEST(PlainText, CaretsAndControlCharactersAreBlanks) {
  EXPECT_EQ(PlainText(L"A^IB^ C"), L"A B^C");
  EXPECT_EQ(PlainText(L"A\tB"), L"A B");
  EXPECT_EQ(PlainText(L"x^2"), L"x^2");
}

/// Lines joined by bars.
CString Lines(std::wstring_view text, double width = 0) {
  CString joined;
  for (const TextLine& line : MultilineText(text, 2.5, width, EstimatedWidth)) {
    if (!joined.empty()) joined += L'|';
    joined += line.text;
  }
  return joined;
}

TEST(MultilineText, FormatsAreResolved) {
  EXPECT_EQ(Lines(L"{\\fSimSun|b0|i0|c134;给水}\\P{\\H2.5x;\\C1;DN100}"), L"给水|DN100");
  EXPECT_EQ(Lines(L"\\A1;\\pi-3,l3,t3;1.\\Lunder\\l \\Oover\\o \\Kstrike\\k"), L"1.under over strike");
  EXPECT_EQ(Lines(L"a\\~b \\{c\\} d\\\\e"), L"a\u00A0b {c} d\\e");
  EXPECT_EQ(Lines(L"%%c100"), L"∅100");
  EXPECT_EQ(Lines(L"C:\\dir"), L"C:\\dir");
}

TEST(MultilineText, StacksAreFractions) {
  EXPECT_EQ(Lines(L"\\S1/2; \\S+0.1^-0.2; \\S3#4;"), L"1/2 +0.1/-0.2 3/4");
  EXPECT_EQ(Lines(L"m\\S2^ ;"), L"m2 ");
}

TEST(MultilineText, HeightsAndWidthsAreThoseOfTheLine) {
  const auto lines = MultilineText(L"a\\P\\H5;b\\P{\\H0.5x;\\W0.8;c}\\Pd", 2.5, 0, EstimatedWidth);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0].height, 1);
  EXPECT_EQ(lines[1].height, 2);
  EXPECT_EQ(lines[2].height, 1);
  EXPECT_EQ(lines[2].widthFactor, 0.8);
  EXPECT_EQ(lines[3].height, 2);
  EXPECT_EQ(lines[3].widthFactor, 1);
}

TEST(MultilineText, LongLinesBreakAtBlanksAndBetweenIdeographs) {
  EXPECT_EQ(Lines(L"aa bb cc", 4), L"aa bb|cc");
  EXPECT_EQ(Lines(L"给水排水", 3), L"给水|排水");
  EXPECT_EQ(Lines(L"给水DN100", 5), L"给水|DN100");
  EXPECT_EQ(Lines(L"unbreakable", 2), L"unbreakable");
}

TEST(MultilineText, BrokenFormatsAreNoTrap) {
  EXPECT_EQ(Lines(L"\\H2"), L"2");
  EXPECT_EQ(Lines(L"}}{{{a"), L"a");
  EXPECT_EQ(Lines(L"\\"), L"\\");
  EXPECT_EQ(Lines(L"\\S1\\"), L"1\\");
  EXPECT_EQ(Lines(L""), L"");
}

TEST(Texts, ATextStandsByItsFirstPointOrItsAlignment) {
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|40 3|1 DN25"), "text DN25 at 1,2 height 3\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|11 5|21 6|40 3|72 1|73 1|1 DN25"),
            "text DN25 at 5,6 height 3 center bottom\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|11 5|21 6|40 3|72 2|73 3|1 DN25"),
            "text DN25 at 5,6 height 3 right top\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|11 5|21 6|40 3|72 4|1 DN25"),
            "text DN25 at 5,6 height 3 center middle\n");
}

TEST(Texts, ATextIsFittedBetweenTwoPoints) {
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|11 0|21 50|40 3|72 5|1 A"),
            "text A at 0,0 height 3 angle 90 fit 50\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|11 40|21 0|40 3|41 0.5|72 3|1 A"),
            "text A at 0,0 height 3 width 0.5 fit 40\n");
}

TEST(Texts, ATextHasItsAngleWidthAndSlant) {
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|40 3|50 30|41 0.7|51 15|1 A"),
            "text A at 0,0 height 3 angle 30 width 0.7 slant 15\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|40 3|71 2|1 A"), "text A at 0,0 height 3 width -1\n");
}

TEST(Texts, MultilineTextsStackTheirLines) {
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 1|1 a\\Pb"),
            "text a at 0,-3 height 3\ntext b at 0,-8 height 3\n");
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 5|1 a\\Pb"),
            "text a at 0,1 height 3 center\ntext b at 0,-4 height 3 center\n");
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 9|44 2|1 a\\Pb"),
            "text a at 0,10 height 3 right\ntext b at 0,0 height 3 right\n");
}

TEST(Texts, MultilineTextsTurnByAngleOrDirection) {
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 1|50 90|1 a"), "text a at 3,0 height 3 angle 90\n");
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 1|11 0|21 1|31 0|1 a"), "text a at 3,0 height 3 angle 90\n");
}

TEST(Texts, LongMultilineTextsAreJoinedBeforeTheyAreDecoded) {
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 7|3 给\xE6\xB0|1 \xB4"), "text 给水 at 0,0 height 3\n");
}

TEST(Texts, MultilineTextsAreAsWideAsTheirStyle) {
  EXPECT_EQ(
      Seen("0 MTEXT|8 0|10 0|20 0|40 3|71 7|7 窄|1 a", "", "0 TABLE|2 STYLE|0 STYLE|2 窄|41 0.7|0 ENDTAB"),
      "text a at 0,0 height 3 width 0.7\n");
}

TEST(Texts, ColoursInsideOfAMultilineTextCount) {
  EXPECT_EQ(Seen("0 MTEXT|8 0|62 3|10 0|20 0|40 3|71 7|1 {\\C1;a}"), "text a at 0,0 height 3 #ff0000\n");
}

TEST(Texts, TextsWithoutAHeightAreLeftOut) {
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|40 0|1 A"), "");
  EXPECT_EQ(Seen("0 MTEXT|8 0|10 0|20 0|40 -1|71 1|1 A"), "");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 0|20 0|40 2|1 "), "");
}

TEST(Texts, TheBoxOfATextHoldsIt) {
  const DisplayList list = MakeDisplayList(*DrawingOf("0 TEXT|8 0|10 10|20 20|40 4|50 90|1 DN25"));
  const PlaneBox box = BoxOf(list.texts[0]);
  EXPECT_EQ(test::PointText(box.low) + " " + test::PointText(box.high), "5.2,20 11.2,32");
}

}  // namespace
}  // namespace zwt
