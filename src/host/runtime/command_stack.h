// The commands that modules offer, in groups, and how one is run: one at a time, to its end, on the one
// thread that all of this lives on.
#pragma once

#include <stdexcept>
#include <vector>

#include "host/runtime/rx_object.h"
#include "host/text/wide_text.h"

/// One row of a module's command table.
struct ZcCmdTable {
  const wchar_t* name;
  void (*function)();
  int flags;
};

/// A command as the host keeps it.
struct AcEdCommand {
  CString group;
  CString name;
  void (*function)();
  int flags;
};

/// The registered commands, in the order of registration.
class AcEdCommandStack : public AcRxObject {
 public:
  static const AcRxClass* desc();
  const AcRxClass* isA() const override { return desc(); }

  /// Registers a command at the end of the list. A name that its group has already keeps its place and gets
  /// the new function and flags.
  void addCommand(const CString& group, const CString& name, void (*function)(), int flags);
  /// Takes all commands of a group out; false where the group has none.
  bool removeGroup(const CString& group);
  /// Takes all commands out of which the test is true.
  template <typename Test>
  void removeIf(Test test) {
    std::erase_if(commands_, test);
  }

  /// The first registered command of a name, null where there is none. Names compare exactly.
  const AcEdCommand* lookupCommand(const CString& name) const;
  const std::vector<AcEdCommand>& commands() const { return commands_; }

 private:
  std::vector<AcEdCommand> commands_;
};

/// Registers count rows of a command table in a group, in order. A table that is null or a count below 1
/// registers nothing; rows without name or function are passed over. The flags go to every row beside its
/// own.
void ZcDefineCommand(const wchar_t* group, const ZcCmdTable* table, int count, int flags);

namespace zwt {

/// The one command stack of the program.
AcEdCommandStack& CommandStack();

/// A command that cannot be run or was left by an exception of its own; what() is one line.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Base of the exceptions that a front end sends through a command on purpose, as the player of a script does
/// for a step that it cannot play.
class CommandInterruption : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  ~CommandInterruption() override;
};

/// Runs a command to its end. Throws CommandError where none has the name, where another one is running, and
/// in place of every exception that leaves the command, CommandInterruption alone excepted: an exception made
/// in a module must not outlive the module.
void RunCommand(const CString& name);

bool IsCommandRunning();

/// While one of these lives, no module is unloaded. Whatever covers an open panel holds one.
class KeepModulesLoaded {
 public:
  KeepModulesLoaded();
  KeepModulesLoaded(const KeepModulesLoaded&) = delete;
  KeepModulesLoaded& operator=(const KeepModulesLoaded&) = delete;
  ~KeepModulesLoaded();

  static bool Any();
};

}  // namespace zwt
