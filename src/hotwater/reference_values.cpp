// Cells of the design tables as numbers.
#include "hotwater/reference_values.h"

#include "data/range_value.h"

namespace zwt {

double UseHoursOfCell(const CString& text) {
  constexpr double kWholeDay = 24.0;
  const double hours = ParseRangeValue(text);
  return hours == 0.0 ? kWholeDay : hours;
}

double SumHourlyUse(std::span<const FixtureUse> fixtures) {
  double sum = 0.0;
  for (const FixtureUse& fixture : fixtures) {
    if (fixture.count != 0) sum += ParseRangeValue(fixture.hourlyUse) * fixture.count;
  }
  return sum;
}

}  // namespace zwt
