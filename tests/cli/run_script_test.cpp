// Scripts from bytes to steps: every verb, every key, and the pointer of each thing that does not fit.
#include "cli/run_script.h"

#include <string>

#include <gtest/gtest.h>

#include "cli/script_error.h"

namespace zwt {
namespace {

RunScript Read(const std::string& bytes) {
  return ReadRunScript(bytes);
}

/// The steps of one panel.
std::vector<PanelStep> ReadPanel(const std::string& steps) {
  return Read(R"({"steps": [{"command": "C", "panel": )" + steps + "}]}").steps.at(0).panel;
}

PanelStep ReadOne(const std::string& step) {
  return ReadPanel("[" + step + "]").at(0);
}

struct BadScript {
  const char* name;
  const char* script;
  const char* problem;
};

void PrintTo(const BadScript& row, std::ostream* out) {
  *out << row.name;
}

class RefusedScript : public testing::TestWithParam<BadScript> {};

TEST_P(RefusedScript, NamesThePlace) {
  try {
    Read(GetParam().script);
    FAIL() << "was read";
  } catch (const ScriptError& error) {
    EXPECT_STREQ(error.what(), GetParam().problem);
  }
}

#define PANEL(steps) R"({"steps": [{"command": "C", "panel": )" steps "}]}"

constexpr BadScript kBadScripts[] = {
    {"NotJson", "steps", "script: not JSON (line 1, column 1)"},
    {"AList", "[]", "script: an object is expected"},
    {"NoSteps", "{}", "script: \"steps\" is missing"},
    {"UnknownKey", R"({"steps": [], "stepps": []})", "/stepps: unknown key"},
    {"StepsNoList", R"({"steps": {}})", "/steps: a list is expected"},
    {"PathNoText", R"({"steps": [], "drawing": 1})", "/drawing: a text is expected"},
    {"PathEmpty", R"({"steps": [], "save": ""})", "/save: a path is expected"},
    {"PathWithNul", R"({"steps": [], "save": "a\u0000b"})", "/save: a path is expected"},
    {"StepNoObject", R"({"steps": ["ZWTGRGS"]})", "/steps/0: an object is expected"},
    {"NoCommand", R"({"steps": [{"panel": []}]})", "/steps/0: \"command\" is missing"},
    {"CommandNoText", R"({"steps": [{"command": 1}]})", "/steps/0/command: a text is expected"},
    {"StepUnknownKey", R"({"steps": [{"command": "C"}, {"command": "C", "points": []}]})",
     "/steps/1/points: unknown key"},
    {"SelectWord", R"({"steps": [{"command": "C", "select": "some"}]})",
     "/steps/0/select: a list of handles, \"all\" or \"cancel\" is expected"},
    {"SelectNumber", R"({"steps": [{"command": "C", "select": ["2A", 42]}]})",
     "/steps/0/select/1: a text is expected"},
    {"PanelNoList", PANEL("{}"), "/steps/0/panel: a list is expected"},
    {"PanelStepNoObject", PANEL("[1]"), "/steps/0/panel/0: an object is expected"},
    {"NoVerb", PANEL("[{}]"), "/steps/0/panel/0: a step with one verb is expected"},
    {"UnknownVerb", PANEL(R"([{"click": 1}, {"press": 1}])"), "/steps/0/panel/1/press: unknown key"},
    {"TwoVerbs", PANEL(R"([{"click": 1, "read": "all"}])"),
     "/steps/0/panel/0: two verbs in one step: \"click\" and \"read\""},
    {"SetNoObject", PANEL(R"([{"set": [2007, "1"]}])"), "/steps/0/panel/0/set: an object is expected"},
    {"SetNumber", PANEL(R"([{"set": {"a/b": 1}}])"), "/steps/0/panel/0/set/a~1b: a text is expected"},
    {"SetTwice", PANEL(R"([{"set": {"1": "a", "1": "b"}}])"), "/steps/0/panel/0/set/1: the key stands twice"},
    {"SetWithPanel", PANEL(R"([{"set": {}, "panel": []}])"), "/steps/0/panel/0/panel: unknown key"},
    {"IndexText", PANEL(R"([{"index": {"1": "2"}}])"),
     "/steps/0/panel/0/index/1: a whole number is expected"},
    {"IndexFraction", PANEL(R"([{"index": {"1": 2.5}}])"),
     "/steps/0/panel/0/index/1: a whole number is expected"},
    {"IndexHuge", PANEL(R"([{"index": {"1": 2147483648}}])"),
     "/steps/0/panel/0/index/1: a whole number is expected"},
    {"ClickFraction", PANEL(R"([{"click": 1.5}])"),
     "/steps/0/panel/0/click: a control is expected: its number, name or label"},
    {"PointWord", PANEL(R"([{"click": 1, "points": ["point", "stop"]}])"),
     "/steps/0/panel/0/points/1: \"point\", \"none\" or \"cancel\" is expected"},
    {"NestedPanel", PANEL(R"([{"click": 1, "panel": [{"click": 2, "do": "click"}]}])"),
     "/steps/0/panel/0/panel/0/do: unknown key"},
    {"CellShort", PANEL(R"([{"cell": [1, 2], "do": "click"}])"),
     "/steps/0/panel/0/cell: a control and 2 whole numbers are expected"},
    {"CellText", PANEL(R"([{"cell": [1, 2, "3"], "do": "click"}])"),
     "/steps/0/panel/0/cell/2: a whole number is expected"},
    {"CellNoControl", PANEL(R"([{"cell": [null, 2, 3], "do": "click"}])"),
     "/steps/0/panel/0/cell/0: a control is expected: its number, name or label"},
    {"CellNoDo", PANEL(R"([{"cell": [1, 2, 3]}])"), "/steps/0/panel/0: \"do\" is missing"},
    {"CellWord", PANEL(R"([{"cell": [1, 2, 3], "do": "push"}])"),
     "/steps/0/panel/0/do: \"select\", \"click\", \"double-click\" or \"edit\" is expected"},
    {"EditNoText", PANEL(R"([{"cell": [1, 2, 3], "do": "edit"}])"), "/steps/0/panel/0: \"text\" is missing"},
    {"ClickText", PANEL(R"([{"cell": [1, 2, 3], "do": "click", "text": "a"}])"),
     "/steps/0/panel/0/text: only \"edit\" takes a text"},
    {"ClickPanel", PANEL(R"([{"cell": [1, 2, 3], "do": "click", "panel": []}])"),
     "/steps/0/panel/0/panel: only \"double-click\" may open a panel"},
    {"CellsShort", PANEL(R"([{"cells": [1, 2, 3]}])"),
     "/steps/0/panel/0/cells: a control and 4 whole numbers are expected"},
    {"ReadOne", PANEL(R"([{"read": 2005}])"),
     "/steps/0/panel/0/read: a list of controls or \"all\" is expected"},
    {"CloseFalse", PANEL(R"([{"close": false}])"), "/steps/0/panel/0/close: true is expected"},
};

INSTANTIATE_TEST_SUITE_P(Rows, RefusedScript, testing::ValuesIn(kBadScripts),
                         [](const auto& row) { return row.param.name; });

TEST(RunScriptReader, PathsAreOptional) {
  const RunScript bare = Read(R"({"steps": []})");
  EXPECT_FALSE(bare.drawing || bare.mainDirectory || bare.save || bare.reportDirectory);
  const RunScript full =
      Read(R"({"drawing": "a.dxf", "main-dir": "m/", "steps": [], "save": "b.dxf", "report-dir": "r"})");
  EXPECT_EQ(full.drawing, "a.dxf");
  EXPECT_EQ(full.mainDirectory, "m/");
  EXPECT_EQ(full.save, "b.dxf");
  EXPECT_EQ(full.reportDirectory, "r");
}

TEST(RunScriptReader, ACommandWithoutSelectCancelsThePrompt) {
  const RunScript script = Read(R"({"steps": [{"command": "ZWTGRGS"}]})");
  EXPECT_EQ(script.steps.at(0).command, L"ZWTGRGS");
  EXPECT_EQ(script.steps.at(0).select.kind, PipePick::Kind::kCancel);
  EXPECT_EQ(script.steps.at(0).at, "/steps/0");
}

TEST(RunScriptReader, HandlesKeepThePickingOrder) {
  const PipePick pick = Read(R"({"steps": [{"command": "C", "select": ["2b", "2A"]}]})").steps.at(0).select;
  EXPECT_EQ(pick.kind, PipePick::Kind::kHandles);
  EXPECT_EQ(pick.handles, (std::vector<std::string>{"2b", "2A"}));
  EXPECT_EQ(pick.at, "/steps/0/select");
}

TEST(RunScriptReader, SelectWordsAreRead) {
  const auto kind = [](const std::string& word) {
    return Read(R"({"steps": [{"command": "C", "select": ")" + word + "\"}]}").steps.at(0).select.kind;
  };
  EXPECT_EQ(kind("all"), PipePick::Kind::kAll);
  EXPECT_EQ(kind("cancel"), PipePick::Kind::kCancel);
}

TEST(RunScriptReader, SetKeepsTheOrderOfItsKeys) {
  const PanelStep step = ReadOne(R"({"set": {"2007": "200", "users": "100", "2003": ""}})");
  const auto& values = std::get<SetStep>(step.action).values;
  ASSERT_EQ(values.size(), 3U);
  EXPECT_EQ(values[0], (std::pair<CString, CString>{L"2007", L"200"}));
  EXPECT_EQ(values[1], (std::pair<CString, CString>{L"users", L"100"}));
  EXPECT_EQ(values[2], (std::pair<CString, CString>{L"2003", L""}));
  EXPECT_EQ(step.at, "/steps/0/panel/0");
}

TEST(RunScriptReader, AControlMayBeANumberOrAText) {
  EXPECT_EQ(std::get<ClickStep>(ReadOne(R"({"click": 2007})").action).control, L"2007");
  EXPECT_EQ(std::get<ClickStep>(ReadOne(R"({"click": "计算"})").action).control, L"计算");
}

TEST(RunScriptReader, AClickMayCarryAPanelAndPoints) {
  const PanelStep step = ReadOne(R"({"click": 1, "panel": [{"close": true}], "points": ["point", "none"]})");
  const auto& click = std::get<ClickStep>(step.action);
  ASSERT_EQ(click.panel.size(), 1U);
  EXPECT_EQ(click.panel[0].at, "/steps/0/panel/0/panel/0");
  EXPECT_EQ(click.points, (std::vector<PointAnswer>{PointAnswer::kPoint, PointAnswer::kNone}));
}

TEST(RunScriptReader, CellActionsAreRead) {
  const auto edit =
      std::get<CellStep>(ReadOne(R"({"cell": [2012, -1, 6], "do": "edit", "text": "3"})").action);
  EXPECT_EQ(edit.control, L"2012");
  EXPECT_EQ(edit.row, -1);
  EXPECT_EQ(edit.column, 6);
  EXPECT_EQ(edit.action, CellAction::kEdit);
  EXPECT_EQ(edit.text, L"3");
  const auto twice = std::get<CellStep>(
      ReadOne(R"({"cell": [1, 0, 0], "do": "double-click", "panel": [{"close": true}]})").action);
  EXPECT_EQ(twice.action, CellAction::kDoubleClick);
  EXPECT_EQ(twice.panel.size(), 1U);
}

TEST(RunScriptReader, ARangeOfCellsIsRead) {
  const auto cells = std::get<CellsStep>(ReadOne(R"({"cells": ["g", 1, 2, 3, 4]})").action);
  EXPECT_EQ(cells.row, 1);
  EXPECT_EQ(cells.column, 2);
  EXPECT_EQ(cells.endRow, 3);
  EXPECT_EQ(cells.endColumn, 4);
}

TEST(RunScriptReader, ReadTakesAListOrAll) {
  EXPECT_TRUE(std::get<ReadStep>(ReadOne(R"({"read": "all"})").action).all);
  const auto some = std::get<ReadStep>(ReadOne(R"({"read": [2005, "users"]})").action);
  EXPECT_FALSE(some.all);
  EXPECT_EQ(some.controls, (std::vector<CString>{L"2005", L"users"}));
}

TEST(RunScriptReader, ManyPanelsInsideEachOtherAreRead) {
  std::string steps = "[]";
  for (int depth = 0; depth < 20; ++depth) steps = R"([{"click": 1, "panel": )" + steps + "}]";
  EXPECT_EQ(ReadPanel(steps).size(), 1U);
}

}  // namespace
}  // namespace zwt
