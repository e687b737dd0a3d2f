// How a number was computed, as a designer would write it down: a calculation that is handed a trace notes
// its steps while it makes them. Without one it notes nothing and costs nothing.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

struct TraceStep {
  CString subject{};       // what is found, with its symbol
  CString formula{};       // in symbols; empty where a value is looked up
  CString substitution{};  // the same with numbers put in, or what was looked up
  CString result{};        // the number, as printed where it is printed, and its unit
  CString source{};        // standard and clause, or handbook; empty where it has none

  bool operator==(const TraceStep&) const = default;
};

using Trace = std::vector<TraceStep>;

/// A number that was put in or found on the way, with at most six significant digits: as much as a reader
/// takes in.
CString TraceNumber(double value);

/// A pattern with each "#" replaced by the next number. Of numbers and places the fewer count.
CString WithNumbers(std::wstring_view pattern, std::initializer_list<double> numbers);

/// One step on one line: "subject: formula = substitution = result [source]", without what is empty.
CString TraceLine(const TraceStep& step);

}  // namespace zwt
