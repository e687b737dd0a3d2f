// Runs the commands of the program, one at a time, and tells when one begins and ends. What a command changes
// in the drawing is one undo step. What goes wrong in a command is shown on the command line and never leaves
// this class.
#pragma once

#include <functional>

#include "desktop/nested_waits.h"
#include "host/text/wide_text.h"

namespace zwt {

class CommandSession {
 public:
  explicit CommandSession(NestedWaits& waits) : waits_(waits) {}
  CommandSession(const CommandSession&) = delete;
  CommandSession& operator=(const CommandSession&) = delete;

  /// Runs a command to its end. A command that is asked for while another runs is not run.
  void Run(const CString& name);

  bool IsRunning() const { return running_; }
  /// The command that ran last, empty before the first.
  const CString& LastCommand() const { return last_; }

  std::function<void()> onBegun;
  std::function<void()> onEnded;

 private:
  NestedWaits& waits_;
  CString last_;
  bool running_ = false;
};

}  // namespace zwt
