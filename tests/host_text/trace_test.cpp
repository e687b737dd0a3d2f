// Steps of a calculation as text.
#include "host/text/trace.h"

#include <gtest/gtest.h>

namespace zwt {
namespace {

TEST(Trace, NumbersTakeTheirPlacesInOrder) {
  EXPECT_EQ(WithNumbers(L"0.2 × # × #", {0.5, 4}), L"0.2 × 0.5 × 4");
}

TEST(Trace, NumbersShowNoMoreDigitsThanPeopleRead) {
  EXPECT_EQ(TraceNumber(0.269184757591732), L"0.269185");
  EXPECT_EQ(TraceNumber(1.5e-7), L"1.5e-07");
  EXPECT_EQ(WithNumbers(L"#", {0.1 + 0.2}), L"0.3");
}

TEST(Trace, PlacesWithoutANumberStayAndNumbersWithoutAPlaceAreLeftOut) {
  EXPECT_EQ(WithNumbers(L"# + #", {1}), L"1 + #");
  EXPECT_EQ(WithNumbers(L"#", {1, 2}), L"1");
}

TEST(Trace, LineLeavesOutWhatIsEmpty) {
  EXPECT_EQ(
      TraceLine({.subject = L"U", .formula = L"a", .substitution = L"b", .result = L"c", .source = L"d"}),
      L"U：a = b = c  [d]");
  EXPECT_EQ(TraceLine({.subject = L"U", .formula = L"", .substitution = L"", .result = L"c", .source = L""}),
            L"U：c");
}

}  // namespace
}  // namespace zwt
