#include "host/text/trace.h"

#include <array>
#include <charconv>

namespace zwt {

CString TraceNumber(double value) {
  constexpr int kDigits = 6;
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, kDigits).ptr;
  return {text.data(), end};
}

CString WithNumbers(std::wstring_view pattern, std::initializer_list<double> numbers) {
  CString text;
  const double* number = numbers.begin();
  for (const wchar_t c : pattern) {
    if (c == L'#' && number != numbers.end()) {
      text += TraceNumber(*number);
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
