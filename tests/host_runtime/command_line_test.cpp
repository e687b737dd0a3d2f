// What commands print.
#include "host/runtime/command_line.h"

#include <gtest/gtest.h>

#include "support/recorded_command_line.h"

namespace {

TEST(CommandLines, TextsArriveAsTheyStand) {
  zwt::test::RecordedCommandLine line;
  acutPrintf(L"\n此命令尚未实现.");
  acutPrintf(L"\n100%");
  EXPECT_EQ(line.printed, L"\n此命令尚未实现.\n100%");
}

TEST(CommandLines, ArgumentsAreFilledInInOrder) {
  zwt::test::RecordedCommandLine line;
  const CString text = L"给水";
  acutPrintf(L"\n%s %d/%d 100%% %s", text, 1, -2147483647 - 1, L"层");
  EXPECT_EQ(line.printed, L"\n给水 1/-2147483648 100% 层");
}

TEST(CommandLines, DirectivesWithoutArgumentStayAndArgumentsLeftOverAreDropped) {
  EXPECT_EQ(zwt::FormatPrint(L"%d %s %x %", {1}), L"1 %s %x %");
  EXPECT_EQ(zwt::FormatPrint(L"a", {1, CString(L"b")}), L"a");
}

TEST(CommandLines, DirectiveTakesWhatComesNextWhateverItIs) {
  EXPECT_EQ(zwt::FormatPrint(L"%s%d", {7, CString(L"x")}), L"7x");
}

TEST(CommandLines, PerCentSignsInArgumentsAreNoDirectives) {
  EXPECT_EQ(zwt::FormatPrint(L"%s %d", {CString(L"%d%%"), 5}), L"%d%% 5");
}

TEST(CommandLines, WithoutACommandLineTheTextIsLost) {
  ASSERT_EQ(zwt::CurrentCommandLine(), nullptr);
  acutPrintf(L"\nlost");
  zwt::test::RecordedCommandLine line;
  EXPECT_EQ(line.printed, L"");
}

TEST(CommandLines, InnerOneGivesWayToTheOuterOne) {
  zwt::test::RecordedCommandLine outer;
  {
    zwt::test::RecordedCommandLine inner;
    acutPrintf(L"a");
    EXPECT_EQ(inner.printed, L"a");
  }
  acutPrintf(L"b");
  EXPECT_EQ(outer.printed, L"b");
}

}  // namespace
