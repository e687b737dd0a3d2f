// What the hot water calculation takes from the cells of the design tables.
#pragma once

#include <cstdint>
#include <span>

#include "host/text/wide_text.h"

namespace zwt {

/// Hours of use per day off a quota row, the middle of a range; 24 where the row gives none.
double UseHoursOfCell(const CString& text);

/// One row of the fixture table: the hourly use of one fixture (L/h) as it stands in the table, and how many
/// there are.
struct FixtureUse {
  CString hourlyUse;
  std::int32_t count = 0;
};

/// Hourly use of all fixtures, L/h. Of a range the middle counts; a text without a number counts as 0.
double SumHourlyUse(std::span<const FixtureUse> fixtures);

}  // namespace zwt
