// How the cells of the data files may be written, one expression for each kind of cell.
#pragma once

#include <regex>
#include <string>

namespace zwt::test {

struct CellSyntax {
  const char* name;
  const char* pattern;  // of the whole cell, in UTF-8
};

// A number without superfluous zeros in front; the digits behind the point are those of the standard.
#define ZWT_NUMBER "(0|[1-9][0-9]*)(\\.[0-9]+)?"
#define ZWT_RANGE ZWT_NUMBER "(～" ZWT_NUMBER ")?"

constexpr CellSyntax kTextCell{"text", "[^ ].*[^ ]|[^ ]"};
constexpr CellSyntax kNumberCell{"number", ZWT_NUMBER};
constexpr CellSyntax kRangeCell{"number or range", ZWT_RANGE};
constexpr CellSyntax kRangeOrDashCell{"number, range or -", ZWT_RANGE "|-"};
/// The figure in brackets is for cold or hot water alone.
constexpr CellSyntax kBracketCell{"number or range, figure in brackets", ZWT_RANGE "(\\(" ZWT_NUMBER "\\))?"};
constexpr CellSyntax kHoursCell{"hours", ZWT_RANGE "(或定时供应)?"};
constexpr CellSyntax kCountCell{"count, the last one open", "(≥)?[1-9][0-9]*"};

#undef ZWT_RANGE
#undef ZWT_NUMBER

inline bool Fits(const CellSyntax& syntax, const std::string& cell) {
  return std::regex_match(cell, std::regex(syntax.pattern));
}

}  // namespace zwt::test
