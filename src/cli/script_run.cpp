// The run: everything that can fail before the first command does so there, and nothing is written before the
// last command has ended.
#include "cli/script_run.h"

#include "cli/editor_player.h"
#include "cli/event_log.h"
#include "cli/host_session.h"
#include "cli/panel_player.h"
#include "cli/report_collector.h"
#include "cli/script_error.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt {

namespace {

/// The template as it is named below the main directory.
CString TemplateName(const CString& path) {
  const CString folder = GetMainDirectory();
  return path.starts_with(folder) ? path.substr(folder.size()) : path;
}

void RequireFolder(const std::optional<RunPath>& folder) {
  std::error_code ignored;
  if (folder && !std::filesystem::is_directory(folder->path, ignored)) {
    throw ScriptError(folder->at, "no folder " + folder->path.string());
  }
}

void WriteReports(const ReportCollector& reports, const std::optional<RunPath>& folder) {
  try {
    reports.WriteAll();
  } catch (const FileError& error) {
    throw ScriptError(folder ? folder->at : "--report-dir", error.what());
  }
}

/// The presenter, the front end and the desk of one run, in force together.
class Players {
 public:
  Players(Drawing& drawing, const std::optional<RunPath>& reportDirectory, bool explain)
      : log_(explain),
        panels_(log_),
        inForce_(panels_),
        editor_(drawing, log_, [this] { return panels_.NextPoint(); }),
        reports_(reportDirectory ? reportDirectory->path : "",
                 [this](const CString& templatePath, const std::filesystem::path& file) {
                   log_.Report(TemplateName(templatePath), file.string());
                 }) {}

  void Play(const CommandStep& step) {
    HostSession::RequireCommand(step.command, PointerTo(step.at, "command"));
    log_.Command(step.command);
    editor_.Answer(step.select);
    try {
      panels_.Play(step.panel, PointerTo(step.at, "panel"), [&] { RunCommand(step.command); });
    } catch (const CommandError& error) {
      throw ScriptError(step.at, error.what());
    }
  }

  const ReportCollector& Reports() const { return reports_; }
  std::string Result() const { return log_.Result(); }

 private:
  EventLog log_;
  PanelPlayer panels_;
  PresenterInForce inForce_;
  EditorPlayer editor_;
  ReportCollector reports_;
};

}  // namespace

std::string PlayScript(const RunScript& script, const RunPaths& paths) {
  RequireFolder(paths.reportDirectory);
  HostSession session(paths.mainDirectory, paths.drawing);
  Players players(session.GetDrawing(), paths.reportDirectory, script.explain);
  for (const CommandStep& step : script.steps) players.Play(step);
  WriteReports(players.Reports(), paths.reportDirectory);
  if (paths.save) session.Save(*paths.save);
  return players.Result();
}

}  // namespace zwt
