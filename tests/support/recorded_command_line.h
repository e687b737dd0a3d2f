// A command line for tests: it records what is printed while it lives.
#pragma once

#include "host/runtime/command_line.h"

namespace zwt::test {

class RecordedCommandLine : public CommandLine {
 public:
  RecordedCommandLine() : before_(SetCommandLine(this)) {}
  RecordedCommandLine(const RecordedCommandLine&) = delete;
  RecordedCommandLine& operator=(const RecordedCommandLine&) = delete;
  ~RecordedCommandLine() override { SetCommandLine(before_); }

  void Print(const CString& text) override { printed += text; }

  CString printed;

 private:
  CommandLine* before_;
};

}  // namespace zwt::test
