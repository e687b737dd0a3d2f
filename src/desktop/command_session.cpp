// One command at a time.
#include "desktop/command_session.h"

#include <exception>

#include "desktop/undo_step.h"
#include "host/runtime/command_line.h"
#include "host/runtime/command_stack.h"

namespace zwt {

void CommandSession::Run(const CString& name) {
  if (running_) return;
  running_ = true;
  last_ = name;
  if (onBegun) onBegun();
  try {
    const UndoStep step;
    RunCommand(name);
  } catch (const std::exception& failure) {
    PrintText(L"\n命令未能完成：" + WideFromUtf8(failure.what()));
  }
  running_ = false;
  waits_.CommandEnded();
  if (onEnded) onEnded();
}

}  // namespace zwt
