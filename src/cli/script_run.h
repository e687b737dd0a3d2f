// One run of a script: host and module set up, every command run, the drawing saved at the end.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "cli/run_script.h"

namespace zwt {

/// A file or folder that a run was told of, and where: the pointer in the script, or the option.
struct RunPath {
  std::filesystem::path path;
  std::string at;
};

struct RunPaths {
  std::optional<RunPath> drawing;
  std::optional<RunPath> mainDirectory;
  std::optional<RunPath> save;
  std::optional<RunPath> reportDirectory;
};

/// Plays a script and gives its result as JSON text. Throws ScriptError; then nothing has been saved.
std::string PlayScript(const RunScript& script, const RunPaths& paths);

}  // namespace zwt
