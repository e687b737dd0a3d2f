// Widths and alignment of terminal tables.
#include "cli/text_table.h"

#include <gtest/gtest.h>

namespace zwt {
namespace {

TEST(DisplayWidth, ChineseAndFullWidthCharactersTakeTwoColumns) {
  EXPECT_EQ(DisplayWidth(L""), 0U);
  EXPECT_EQ(DisplayWidth(L"DN 15"), 5U);
  EXPECT_EQ(DisplayWidth(L"用水定额"), 8U);
  EXPECT_EQ(DisplayWidth(L"高(m)："), 7U);
  EXPECT_EQ(DisplayWidth(L"130～300"), 8U);
  EXPECT_EQ(DisplayWidth(L"ᄀ가\U00020000"), 6U);
  EXPECT_EQ(DisplayWidth(L"Ⅰ±αÅ"), 4U);
  EXPECT_EQ(DisplayWidth(L"e\u0301\u200B\n"), 1U);
}

TEST(DisplayWidth, BlockEndsBelongToTheirBlock) {
  EXPECT_EQ(DisplayWidth(L"\u10FF"), 1U);
  EXPECT_EQ(DisplayWidth(L"\u1100"), 2U);
  EXPECT_EQ(DisplayWidth(L"\uFF60"), 2U);
  EXPECT_EQ(DisplayWidth(L"\uFF61"), 1U);
  EXPECT_EQ(DisplayWidth(L"\U0003FFFD"), 2U);
}

TEST(TextTable, ColumnsStandUnderEachOther) {
  EXPECT_EQ(TextTable({{L"最高日用水量", L"22.000"}, {L"DN", L"100", L"mm"}, {L"", L"二"}}),
            "最高日用水量  22.000\n"
            "DN            100     mm\n"
            "              二\n");
}

TEST(TextTable, ATextOfSeveralLinesStaysOnOne) {
  EXPECT_EQ(TextTable({{L"普\n通\t住", L"x"}, {L"a", L"y"}}),
            "普 通 住  x\n"
            "a         y\n");
}

TEST(TextTable, ARowOfItsFirstCellAloneRunsAcrossTheColumns) {
  EXPECT_EQ(TextTable({{L"1层", L"110"}, {L"立管设计秒流量为：2.518", L"", L""}, {L"注"}}),
            "1层  110\n"
            "立管设计秒流量为：2.518\n"
            "注\n");
}

TEST(TextTable, NoRowsGiveNoText) {
  EXPECT_EQ(TextTable({}), "");
  EXPECT_EQ(TextTable({{}}), "\n");
}

}  // namespace
}  // namespace zwt
