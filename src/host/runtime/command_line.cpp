// Formatting for the command line, and where it goes.
#include "host/runtime/command_line.h"

#include <utility>

namespace zwt {

namespace {

CommandLine* line = nullptr;

struct ArgumentText {
  CString operator()(int number) const { return std::to_wstring(number); }
  CString operator()(const CString& text) const { return text; }
};

}  // namespace

CommandLine* CurrentCommandLine() {
  return line;
}

CommandLine* SetCommandLine(CommandLine* next) {
  return std::exchange(line, next);
}

CString FormatPrint(const CString& format, std::initializer_list<PrintArgument> arguments) {
  CString text;
  const auto* next = arguments.begin();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const wchar_t directive = format[i] == L'%' && i + 1 < format.size() ? format[i + 1] : L'\0';
    if (directive == L'%') {
      text += L'%';
      ++i;
    } else if ((directive == L'd' || directive == L's') && next != arguments.end()) {
      text += std::visit(ArgumentText{}, *next++);
      ++i;
    } else {
      text += format[i];
    }
  }
  return text;
}

void PrintText(const CString& text) {
  if (line != nullptr) line->Print(text);
}

}  // namespace zwt
