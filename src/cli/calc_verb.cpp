// zwtcal calc: one calculation from the command line.
#include <memory>
#include <ostream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "cli/batch_calculation.h"
#include "cli/editor_player.h"
#include "cli/host_session.h"
#include "cli/panel_player.h"
#include "cli/report_file.h"
#include "cli/verbs.h"
#include "host/platform/paths.h"
#include "host/runtime/command_stack.h"

namespace zwt {

namespace {

struct CalcOptions {
  std::string command;
  std::vector<std::string> arguments;  // the drawing, if any, and values
  std::string select = "all";
  std::string mainDirectory;
  std::string save;
  std::string report;
  bool annotate = false;
  bool pdf = false;
  bool explain = false;
  bool asJson = false;
};

struct CalcRequest {
  std::optional<RunPath> drawing;
  BatchRequest batch;
};

/// An argument with "=" is a value, the first one without is the drawing.
CalcRequest Sort(const CalcOptions& options) {
  CalcRequest request;
  request.batch.annotate = options.annotate;
  request.batch.report = !options.report.empty();
  request.batch.explain = options.explain;
  for (const std::string& argument : options.arguments) {
    const std::size_t equals = argument.find('=');
    if (equals != std::string::npos) {
      request.batch.values.emplace_back(WideFromUtf8(argument.substr(0, equals)),
                                        WideFromUtf8(argument.substr(equals + 1)));
    } else if (!request.drawing) {
      request.drawing = RunPath{argument, "DRAWING"};
    } else {
      throw ArgumentError("\"" + argument + "\": name=value is expected");
    }
  }
  return request;
}

/// "all", or handles with commas between them.
PipePick ReadPick(const std::string& select) {
  PipePick pick{"--select", PipePick::Kind::kAll, {}};
  if (select == "all") return pick;
  pick.kind = PipePick::Kind::kHandles;
  std::istringstream list(select);
  for (std::string handle; std::getline(list, handle, ',');) pick.handles.push_back(handle);
  return pick;
}

/// What a command printed last, without the line feeds around it.
std::string LastPrinted(const CString& text) {
  const std::size_t first = text.find_first_not_of(L'\n');
  return first == CString::npos ? "" : Utf8FromWide(text.substr(first));
}

/// Keeps what commands print last: it is the reason where no panel opens.
class Answering : public EditorPlayer {
 public:
  using EditorPlayer::EditorPlayer;
  void Print(const CString& text) override { last = text; }

  CString last;
};

void Calculate(const CalcOptions& options, const Streams& streams) {
  const CalcRequest request = Sort(options);
  if (options.pdf && options.report.empty())
    throw ArgumentError("--pdf: --report FILE is expected beside it");
  std::optional<ReportFile> report;
  if (request.batch.report) report.emplace(PathFromText(WideFromUtf8(options.report)), options.pdf);
  std::optional<RunPath> mainDirectory;
  if (!options.mainDirectory.empty()) mainDirectory = RunPath{options.mainDirectory, "--main-dir"};
  HostSession session(mainDirectory, request.drawing);
  const CString command = WideFromUtf8(options.command);
  HostSession::RequireCommand(command, "COMMAND");
  EventLog log;
  Answering user(session.GetDrawing(), log, [] { return PointAnswer::kCancel; });
  user.Answer(ReadPick(options.select));
  BatchCalculation calculation(request.batch);
  {
    const PresenterInForce inForce(calculation);
    RunCommand(command);
  }
  if (!calculation.HasRun())
    throw ArgumentError(options.command + ": no panel has opened: " + LastPrinted(user.last));
  if (report) streams.errors << report->Write(LastPrinted(user.last));
  if (!options.save.empty()) session.Save({options.save, "--save"});
  const BatchResult& result = calculation.Result();
  for (const std::string& note : result.notes) streams.errors << note << '\n';
  streams.output << (options.asJson ? result.json : result.table);
}

}  // namespace

void AddCalcVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb =
      program.add_subcommand("calc", "Calculate with values from the command line and print the results");
  const auto options = std::make_shared<CalcOptions>();
  verb->add_option("COMMAND", options->command, "The command")->required();
  verb->add_option("ARGUMENTS", options->arguments,
                   "The drawing to work on, if any, and name=value for controls of the panel");
  verb->add_option("--select", options->select, "Handles of the pipes, with commas between them, or all")
      ->capture_default_str();
  verb->add_option("--main-dir", options->mainDirectory, "Folder of the data files and templates");
  verb->add_option("--save", options->save, "Where the drawing is saved");
  verb->add_option("--report", options->report, "Where the report is written, a new .docx");
  verb->add_flag("--annotate", options->annotate, "Annotate the diameters in the drawing");
  verb->add_flag("--pdf", options->pdf, "Write the report as PDF as well, with LibreOffice");
  verb->add_flag("--explain", options->explain, "Tell how each result was computed");
  verb->add_flag("--json", options->asJson, "Print JSON");
  verb->callback([options, streams] { Calculate(*options, streams); });
}

}  // namespace zwt
