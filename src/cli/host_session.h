// The host as one run of the program uses it: main directory set, module loaded, an own working drawing.
#pragma once

#include <memory>

#include "cli/script_run.h"
#include "host/drawing/drawing.h"
#include "host/runtime/module_runtime.h"

namespace zwt {

class HostSession {
 public:
  /// Throws ScriptError where the main directory is no folder or the drawing cannot be read, and ModuleError
  /// where the module cannot be loaded. Without a drawing the working one is empty.
  explicit HostSession(const std::optional<RunPath>& mainDirectory = std::nullopt,
                       const std::optional<RunPath>& drawing = std::nullopt);
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;
  /// Puts everything back as it was.
  ~HostSession();

  /// The working drawing.
  Drawing& GetDrawing() { return WorkingDrawing(); }
  /// Writes the drawing, as a whole or not at all. Throws ScriptError.
  void Save(const RunPath& path);

  /// Throws ScriptError with the place where no command has the name.
  static void RequireCommand(const CString& name, const std::string& at);

 private:
  CString mainDirectoryBefore_;
  std::unique_ptr<Drawing> drawingBefore_;
  ModuleRuntime module_;
};

}  // namespace zwt
