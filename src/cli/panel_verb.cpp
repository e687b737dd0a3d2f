// zwtcal panel: the controls of a panel, so that scripts can name them. The panel is opened where its command
// does so without a drawing: then defaults and items are those that the user finds; else they are those of
// its template.
#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "cli/control_state.h"
#include "cli/host_session.h"
#include "cli/json_layout.h"
#include "cli/panel_player.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "host/runtime/command_stack.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;

/// What a control holds when its panel opens: a text, or whether it is checked.
Json DefaultOf(const CWnd& control) {
  switch (control.Shape().kind) {
    case ControlKind::kEdit:
    case ControlKind::kCombo:
      return Utf8FromWide(control.GetWindowText());
    case ControlKind::kRadio:
    case ControlKind::kCheck:
      return dynamic_cast<const CButton&>(control).GetCheck();
    default:
      return nullptr;
  }
}

Json Describe(const CWnd& control) {
  const int number = control.GetDlgCtrlID();
  Json line;
  line["number"] = number < kFirstInternalNumber ? Json(number) : Json(nullptr);
  line["name"] = Utf8FromWide(control.Shape().name);
  line["label"] = Utf8FromWide(control.Label());
  line["kind"] = ControlKindName(control.Shape().kind);
  line["default"] = DefaultOf(control);
  Json items = Json::array();
  if (const auto* combo = dynamic_cast<const CComboBox*>(&control)) {
    for (const CString& item : combo->Items()) items.push_back(Utf8FromWide(item));
  }
  line["items"] = std::move(items);
  return line;
}

Json Describe(const CDialog& panel) {
  Json controls = Json::array();
  for (const auto& control : panel.Controls()) {
    if (!IsMereLabel(*control)) controls.push_back(Describe(*control));
  }
  return {{"panel", panel.Shape().resource},
          {"class", Utf8FromWide(panel.Shape().className)},
          {"title", Utf8FromWide(panel.Shape().title)},
          {"command", Utf8FromWide(panel.Shape().command)},
          {"controls", std::move(controls)}};
}

/// Describes the first panel that opens and closes every one.
class Onlooker : public Presenter {
 public:
  Onlooker() = default;
  Onlooker(const Onlooker&) = delete;
  Onlooker& operator=(const Onlooker&) = delete;
  ~Onlooker() override = default;

  void RunModal(CDialog& panel) override {
    if (!description.has_value()) description = Describe(panel);
    panel.NotifyClose();
  }
  void ShowModeless(CDialog&) override {}
  void CloseModeless(CDialog&) override {}
  void ShowMessage(CDialog*, const CString&, const CString&, MessageIcon) override {}
  void GiveWayToDrawing(CDialog&) override {}
  void ReturnFromDrawing(CDialog&) override {}

  std::optional<Json> description;
};

Json DescribeCommand(const PanelTemplate& shape) {
  Onlooker onlooker;
  const PresenterInForce inForce(onlooker);
  RunCommand(shape.command);
  return onlooker.description.has_value() ? *onlooker.description : Describe(CDialog(shape));
}

/// The panel of a command, or the one with a number.
const PanelTemplate& FindPanel(const CString& wanted) {
  if (const PanelTemplate* panel = FindPanelOfCommand(wanted)) return *panel;
  for (const PanelTemplate* panel : RegisteredPanels()) {
    if (wanted == std::to_wstring(panel->resource)) return *panel;
  }
  throw ArgumentError("COMMAND: no panel belongs to \"" + Utf8FromWide(wanted) + '"');
}

CString TextOf(const Json& value) {
  if (value.is_null()) return L"";
  if (value.is_boolean()) return value.get<bool>() ? L"on" : L"off";
  if (value.is_string()) return WideFromUtf8(value.get_ref<const std::string&>());
  return WideFromUtf8(value.dump());
}

std::string AsTable(const Json& panel) {
  std::vector<std::vector<CString>> rows = {{L"number", L"name", L"label", L"kind", L"default", L"items"}};
  for (const Json& control : panel["controls"]) {
    CString items;
    for (const Json& item : control["items"]) items += (items.empty() ? L"" : L" | ") + TextOf(item);
    rows.push_back({TextOf(control["number"]), TextOf(control["name"]), TextOf(control["label"]),
                    TextOf(control["kind"]), TextOf(control["default"]), items});
  }
  return TextTable({{TextOf(panel["panel"]), TextOf(panel["class"]), TextOf(panel["title"])}}) + '\n' +
         TextTable(rows);
}

void ListPanel(const CString& wanted, bool asJson, std::ostream& output) {
  const HostSession session;
  const PanelTemplate& shape = FindPanel(wanted);
  const Json panel = *shape.command == L'\0' ? Describe(CDialog(shape)) : DescribeCommand(shape);
  output << (asJson ? LayOutJson(panel) + '\n' : AsTable(panel));
}

}  // namespace

void AddPanelVerb(CLI::App& program, const Streams& streams) {
  struct Options {
    std::string command;
    bool asJson = false;
  };
  CLI::App* verb = program.add_subcommand("panel", "List the controls of a command's panel");
  const auto options = std::make_shared<Options>();
  verb->add_option("COMMAND", options->command, "The command, or the number of a panel")->required();
  verb->add_flag("--json", options->asJson, "Print JSON");
  verb->callback(
      [options, streams] { ListPanel(WideFromUtf8(options->command), options->asJson, streams.output); });
}

}  // namespace zwt
