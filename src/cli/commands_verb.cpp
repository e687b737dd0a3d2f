// zwtcal commands: what can be run.
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "cli/host_session.h"
#include "cli/json_layout.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "host/dialog/panel_template.h"
#include "host/runtime/command_stack.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;

CString TitleOf(const AcEdCommand& command) {
  const PanelTemplate* panel = FindPanelOfCommand(command.name);
  return panel == nullptr ? L"" : panel->title;
}

void ListCommands(bool asJson, std::ostream& output) {
  const HostSession session;
  Json list = Json::array();
  std::vector<std::vector<CString>> rows;
  for (const AcEdCommand& command : CommandStack().commands()) {
    list.push_back({{"command", Utf8FromWide(command.name)}, {"title", Utf8FromWide(TitleOf(command))}});
    rows.push_back({command.name, TitleOf(command)});
  }
  output << (asJson ? LayOutJson(list) + '\n' : TextTable(rows));
}

}  // namespace

void AddCommandsVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("commands", "List the commands with the titles of their panels");
  const auto asJson = std::make_shared<bool>(false);
  verb->add_flag("--json", *asJson, "Print JSON");
  verb->callback([asJson, streams] { ListCommands(*asJson, streams.output); });
}

}  // namespace zwt
