// The sanitary fixtures from which a drainage branch is composed, and their totals.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// A fixture as the panel shows it; totals are computed from these texts.
struct DrainageFixture {
  const wchar_t* name;
  const wchar_t* flow;  // L/s
  const wchar_t* equivalent;
  const wchar_t* diameter;  // mm, "-" for none of its own
};

/// The fixtures in the order of the table (GB 50015-2003, table 4.4.4).
std::span<const DrainageFixture> DrainageFixtures();

/// So many pieces of a fixture, both as the grid holds them.
struct ChosenFixture {
  CString count;
  CString name;
};

/// What a branch carries. The largest diameter is only ever raised while a panel lives.
struct FixtureTotals {
  double equivalent = 0;
  double flux = 0;         // sum of rated flows, L/s
  double qmax = 0;         // largest flow of a single fixture, L/s
  std::int32_t maxDn = 0;  // largest drain diameter, mm
};

/// Sums up chosen fixtures. Sums and largest flow start anew, the largest diameter from that of `before`. A
/// count that is no number counts as 0, and its fixture still enters the two largest values; an unknown name
/// adds nothing.
FixtureTotals SumFixtures(const std::vector<ChosenFixture>& chosen, const FixtureTotals& before);

}  // namespace zwt
