#include "host/text/trace.h"

#include "host/text/number_text.h"

namespace zwt {

CString WithNumbers(std::wstring_view pattern, std::initializer_list<double> numbers) {
  CString text;
  const double* number = numbers.begin();
  for (const wchar_t c : pattern) {
    if (c == L'#' && number != numbers.end()) {
      text += FormatBound(*number);
      ++number;
    } else {
      text += c;
    }
  }
  return text;
}

CString TraceLine(const TraceStep& step) {
  CString line = step.subject + L"：";
  if (!step.formula.empty()) line += step.formula + L" = ";
  if (!step.substitution.empty()) line += step.substitution + L" = ";
  line += step.result;
  if (!step.source.empty()) line += L"  [" + step.source + L"]";
  return line;
}

}  // namespace zwt
