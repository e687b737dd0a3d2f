// Registering and running commands.
#include "host/runtime/command_stack.h"

#include <algorithm>
#include <exception>
#include <string>

#include "host/runtime/system_registry.h"

namespace {

bool commandRuns = false;
int modulesKept = 0;

/// Marks a command as running, also when it is left by an exception.
class RunningCommand {
 public:
  RunningCommand() { commandRuns = true; }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;
  ~RunningCommand() { commandRuns = false; }
};

}  // namespace

const AcRxClass* AcEdCommandStack::desc() {
  static const AcRxClass kClass(L"AcEdCommandStack", AcRxObject::desc());
  return &kClass;
}

void AcEdCommandStack::addCommand(const CString& group, const CString& name, void (*function)(), int flags) {
  const auto same = std::find_if(commands_.begin(), commands_.end(), [&](const AcEdCommand& command) {
    return command.group == group && command.name == name;
  });
  if (same == commands_.end()) {
    commands_.push_back({group, name, function, flags});
  } else {
    same->function = function;
    same->flags = flags;
  }
}

bool AcEdCommandStack::removeGroup(const CString& group) {
  return std::erase_if(commands_, [&](const AcEdCommand& command) { return command.group == group; }) > 0;
}

const AcEdCommand* AcEdCommandStack::lookupCommand(const CString& name) const {
  const auto found = std::find_if(commands_.begin(), commands_.end(),
                                  [&](const AcEdCommand& command) { return command.name == name; });
  return found == commands_.end() ? nullptr : &*found;
}

void ZcDefineCommand(const wchar_t* group, const ZcCmdTable* table, int count, int flags) {
  if (group == nullptr || table == nullptr) return;
  AcEdCommandStack& commands = zwt::CommandStack();
  for (int i = 0; i < count; ++i) {
    const ZcCmdTable& row = table[i];
    if (row.name == nullptr || row.function == nullptr) continue;
    commands.addCommand(group, row.name, row.function, row.flags | flags);
  }
}

namespace zwt {

AcEdCommandStack& CommandStack() {
  return *AcRxCast<AcEdCommandStack>(acrxSysRegistry()->at(kCommandStackName));
}

CommandInterruption::~CommandInterruption() = default;

void RunCommand(const CString& name) {
  const AcEdCommand* command = CommandStack().lookupCommand(name);
  const std::string shown = Utf8FromWide(name);
  if (command == nullptr) throw CommandError("no command " + shown);
  if (commandRuns) throw CommandError("cannot run " + shown + ": another command is running");
  // The text is taken over and the exception is gone before the new one leaves: its own code may be the
  // module's.
  std::string failure;
  try {
    const RunningCommand running;
    command->function();
    return;
  } catch (const CommandInterruption&) {
    throw;
  } catch (const std::exception& error) {
    failure = error.what();
  } catch (...) {
    failure = "an exception without a text";
  }
  throw CommandError(shown + " failed: " + failure);
}

bool IsCommandRunning() {
  return commandRuns;
}

KeepModulesLoaded::KeepModulesLoaded() {
  ++modulesKept;
}
KeepModulesLoaded::~KeepModulesLoaded() {
  --modulesKept;
}
bool KeepModulesLoaded::Any() {
  return modulesKept > 0;
}

}  // namespace zwt
