// What the count memory keeps, and the part of it that clearing leaves.
#include "hotwater/fixture_counts.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

TEST(FixtureCounts, ClearingForgetsTheFirstEightRowsOnly) {
  FixtureCounts counts;
  for (std::int32_t row = 0; row < FixtureCounts::kRows; ++row) counts.Set(row, row + 1);
  counts.Clear();
  for (std::int32_t row = 0; row < 8; ++row) EXPECT_EQ(counts.Get(row), 0) << row;
  for (std::int32_t row = 8; row < 32; ++row) EXPECT_EQ(counts.Get(row), row + 1) << row;
}

TEST(FixtureCounts, RowsBeyondThirtyTwoAreNotRemembered) {
  FixtureCounts counts;
  counts.Set(31, 5);
  counts.Set(32, 6);
  counts.Set(-1, 7);
  EXPECT_EQ(counts.Get(31), 5);
  EXPECT_EQ(counts.Get(32), 0);
  EXPECT_EQ(counts.Get(-1), 0);
}

TEST(FixtureCounts, TheMemoryOfTheProcessIsOne) {
  RememberedFixtureCounts().Set(9, 4);
  EXPECT_EQ(RememberedFixtureCounts().Get(9), 4);
  RememberedFixtureCounts().Set(9, 0);
}

}  // namespace
}  // namespace zwt::test
