// The command line as commands see it: they print, whoever shows it decides what becomes of the text.
#pragma once

#include <initializer_list>
#include <string>
#include <variant>

#include "host/text/wide_text.h"

namespace zwt {

/// Shows or records what commands print.
class CommandLine {
 public:
  virtual ~CommandLine() = default;
  virtual void Print(const CString& text) = 0;
};

/// The command line in force, null before one is set.
CommandLine* CurrentCommandLine();
/// Puts a command line in force and gives back the one before it.
CommandLine* SetCommandLine(CommandLine* line);

using PrintArgument = std::variant<int, CString>;

/// A format with its arguments put in: "%d" takes a whole number, "%s" a text, each takes what comes next
/// whatever it is; "%%" is a per cent sign. A directive without an argument, and any other, stays as it
/// stands; arguments left over are passed over.
CString FormatPrint(const CString& format, std::initializer_list<PrintArgument> arguments);

/// Prints a text on the command line in force; without one it is lost.
void PrintText(const CString& text);

}  // namespace zwt

/// Prints a line on the command line. Texts begin with "\n". For the format see zwt::FormatPrint.
template <typename... Arguments>
void acutPrintf(const wchar_t* format, const Arguments&... arguments) {
  zwt::PrintText(zwt::FormatPrint(format, {zwt::PrintArgument(arguments)...}));
}
