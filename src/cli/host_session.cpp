// Setting the host up, and putting it back.
#include "cli/host_session.h"

#include <utility>

#include "cli/script_error.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

namespace {

std::unique_ptr<Drawing> OpenDrawing(const std::optional<RunPath>& drawing) {
  if (!drawing) return std::make_unique<Drawing>();
  try {
    return ReadDrawing(drawing->path);
  } catch (const FileError& error) {
    throw ScriptError(drawing->at, error.what());
  } catch (const DrawingError& error) {
    throw ScriptError(drawing->at, error.what());
  }
}

/// The directory is handed on as it stands, but a folder that is not there is a mistake of whoever named it.
CString MainDirectory(const RunPath& folder) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(folder.path, ignored)) {
    throw ScriptError(folder.at, "no folder " + folder.path.string());
  }
  return TextFromPath(folder.path);
}

}  // namespace

HostSession::HostSession(const std::optional<RunPath>& mainDirectory, const std::optional<RunPath>& drawing) {
  const CString directory = mainDirectory ? MainDirectory(*mainDirectory) : DefaultMainDirectory();
  drawingBefore_ = ReplaceWorkingDrawing(OpenDrawing(drawing));
  mainDirectoryBefore_ = GetMainDirectory();
  SetMainDirectory(directory);
  module_.Load();
}

HostSession::~HostSession() {
  SetMainDirectory(mainDirectoryBefore_);
  ReplaceWorkingDrawing(std::move(drawingBefore_));
}

void HostSession::Save(const RunPath& path) {
  try {
    SaveDrawing(GetDrawing(), path.path);
  } catch (const FileError& error) {
    throw ScriptError(path.at, error.what());
  }
}

void HostSession::RequireCommand(const CString& name, const std::string& at) {
  if (CommandStack().lookupCommand(name) == nullptr) {
    throw ScriptError(at, "no command \"" + Utf8FromWide(name) + '"');
  }
}

}  // namespace zwt
