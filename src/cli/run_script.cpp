// From the tree of a script to its steps, with every check that needs no panel and no drawing.
#include "cli/run_script.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <limits>

#include "cli/json_tree.h"

namespace zwt {

namespace {

using Kind = JsonNode::Kind;

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

const JsonNode& RequireObject(const JsonNode& node, const std::string& at) {
  if (node.kind != Kind::kObject) throw ScriptError(at, "an object is expected");
  return node;
}

const JsonNode& RequireArray(const JsonNode& node, const std::string& at) {
  if (node.kind != Kind::kArray) throw ScriptError(at, "a list is expected");
  return node;
}

const std::string& ReadBytes(const JsonNode& node, const std::string& at) {
  if (node.kind != Kind::kText) throw ScriptError(at, "a text is expected");
  return node.text;
}

CString ReadText(const JsonNode& node, const std::string& at) {
  return WideFromUtf8(ReadBytes(node, at));
}

std::int32_t ReadWhole(const JsonNode& node, const std::string& at) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (node.kind != Kind::kWhole || node.whole < Limits::min() || node.whole > Limits::max()) {
    throw ScriptError(at, "a whole number is expected");
  }
  return static_cast<std::int32_t>(node.whole);
}

ControlName ReadControl(const JsonNode& node, const std::string& at) {
  if (node.kind == Kind::kWhole) return WideFromUtf8(std::to_string(node.whole));
  if (node.kind != Kind::kText) throw ScriptError(at, "a control is expected: its number, name or label");
  return WideFromUtf8(node.text);
}

void RequireKnownKeys(const JsonNode& object, const std::string& at,
                      std::initializer_list<std::string_view> known) {
  for (const auto& [key, value] : object.members) {
    if (std::find(known.begin(), known.end(), key) == known.end()) {
      throw ScriptError(PointerTo(at, key), "unknown key");
    }
  }
}

std::vector<PanelStep> ReadPanel(const JsonNode& node, const std::string& at);

/// The steps under "panel" of a step, none where the key is missing.
std::vector<PanelStep> ReadOwnPanel(const JsonNode& step, const std::string& at) {
  const JsonNode* panel = step.Find("panel");
  return panel == nullptr ? std::vector<PanelStep>{} : ReadPanel(*panel, PointerTo(at, "panel"));
}

SetStep ReadSet(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"set"});
  const std::string place = PointerTo(at, "set");
  SetStep set;
  for (const auto& [control, text] : RequireObject(verb, place).members) {
    set.values.emplace_back(WideFromUtf8(control), ReadText(text, PointerTo(place, control)));
  }
  return set;
}

IndexStep ReadIndex(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"index"});
  const std::string place = PointerTo(at, "index");
  IndexStep index;
  for (const auto& [control, item] : RequireObject(verb, place).members) {
    index.items.emplace_back(WideFromUtf8(control), ReadWhole(item, PointerTo(place, control)));
  }
  return index;
}

PointAnswer ReadPoint(const JsonNode& node, const std::string& at) {
  const std::string& answer = ReadBytes(node, at);
  if (answer == "point") return PointAnswer::kPoint;
  if (answer == "none") return PointAnswer::kNone;
  if (answer == "cancel") return PointAnswer::kCancel;
  throw ScriptError(at, R"("point", "none" or "cancel" is expected)");
}

ClickStep ReadClick(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"click", "panel", "points"});
  ClickStep click{ReadControl(verb, PointerTo(at, "click")), ReadOwnPanel(step, at), {}};
  if (const JsonNode* points = step.Find("points")) {
    const std::string place = PointerTo(at, "points");
    const auto& answers = RequireArray(*points, place).items;
    for (std::size_t i = 0; i < answers.size(); ++i) {
      click.points.push_back(ReadPoint(answers[i], PointerTo(place, i)));
    }
  }
  return click;
}

CellAction ReadCellAction(const JsonNode& step, const std::string& at) {
  const JsonNode* node = step.Find("do");
  if (node == nullptr) throw ScriptError(at, "\"do\" is missing");
  const std::string place = PointerTo(at, "do");
  const std::string& action = ReadBytes(*node, place);
  if (action == "select") return CellAction::kSelect;
  if (action == "click") return CellAction::kClick;
  if (action == "double-click") return CellAction::kDoubleClick;
  if (action == "edit") return CellAction::kEdit;
  throw ScriptError(place, R"("select", "click", "double-click" or "edit" is expected)");
}

/// A list of a control and so many whole numbers.
template <std::size_t Count>
std::array<std::int32_t, Count> ReadCellNumbers(const JsonNode& list, const std::string& at) {
  if (RequireArray(list, at).items.size() != Count + 1) {
    throw ScriptError(at, "a control and " + std::to_string(Count) + " whole numbers are expected");
  }
  std::array<std::int32_t, Count> numbers{};
  for (std::size_t i = 0; i < Count; ++i) numbers[i] = ReadWhole(list.items[i + 1], PointerTo(at, i + 1));
  return numbers;
}

CellStep ReadCell(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"cell", "do", "text", "panel"});
  const std::string place = PointerTo(at, "cell");
  const auto [row, column] = ReadCellNumbers<2>(verb, place);
  CellStep cell{
      ReadControl(verb.items[0], PointerTo(place, 0)), row, column, ReadCellAction(step, at), {}, {}};
  const JsonNode* text = step.Find("text");
  if (cell.action == CellAction::kEdit) {
    if (text == nullptr) throw ScriptError(at, "\"text\" is missing");
    cell.text = ReadText(*text, PointerTo(at, "text"));
  } else if (text != nullptr) {
    throw ScriptError(PointerTo(at, "text"), "only \"edit\" takes a text");
  }
  if (cell.action != CellAction::kDoubleClick && step.Find("panel") != nullptr) {
    throw ScriptError(PointerTo(at, "panel"), "only \"double-click\" may open a panel");
  }
  cell.panel = ReadOwnPanel(step, at);
  return cell;
}

CellsStep ReadCells(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"cells"});
  const std::string place = PointerTo(at, "cells");
  const auto [row, column, endRow, endColumn] = ReadCellNumbers<4>(verb, place);
  return {ReadControl(verb.items[0], PointerTo(place, 0)), row, column, endRow, endColumn};
}

ReadStep ReadRead(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"read"});
  const std::string place = PointerTo(at, "read");
  ReadStep read;
  if (verb.kind == Kind::kText && verb.text == "all") {
    read.all = true;
    return read;
  }
  if (verb.kind != Kind::kArray) throw ScriptError(place, "a list of controls or \"all\" is expected");
  for (std::size_t i = 0; i < verb.items.size(); ++i) {
    read.controls.push_back(ReadControl(verb.items[i], PointerTo(place, i)));
  }
  return read;
}

CloseStep ReadClose(const JsonNode& step, const JsonNode& verb, const std::string& at) {
  RequireKnownKeys(step, at, {"close"});
  if (verb.kind != Kind::kBoolean || !verb.boolean)
    throw ScriptError(PointerTo(at, "close"), "true is expected");
  return {};
}

constexpr std::array<std::string_view, 7> kVerbs = {"set",   "index", "click", "cell",
                                                    "cells", "read",  "close"};

/// The one verb of a step.
std::string_view FindVerb(const JsonNode& step, const std::string& at) {
  std::string_view found;
  for (const auto& [key, value] : step.members) {
    if (std::find(kVerbs.begin(), kVerbs.end(), key) == kVerbs.end()) continue;
    if (!found.empty())
      throw ScriptError(at, "two verbs in one step: " + Quoted(found) + " and " + Quoted(key));
    found = key;
  }
  if (!found.empty()) return found;
  if (!step.members.empty()) throw ScriptError(PointerTo(at, step.members.front().first), "unknown key");
  throw ScriptError(at, "a step with one verb is expected");
}

PanelStep ReadPanelStep(const JsonNode& step, const std::string& at) {
  const std::string_view verb = FindVerb(RequireObject(step, at), at);
  const JsonNode& node = *step.Find(verb);
  if (verb == "set") return {at, ReadSet(step, node, at)};
  if (verb == "index") return {at, ReadIndex(step, node, at)};
  if (verb == "click") return {at, ReadClick(step, node, at)};
  if (verb == "cell") return {at, ReadCell(step, node, at)};
  if (verb == "cells") return {at, ReadCells(step, node, at)};
  if (verb == "read") return {at, ReadRead(step, node, at)};
  return {at, ReadClose(step, node, at)};
}

std::vector<PanelStep> ReadPanel(const JsonNode& node, const std::string& at) {
  std::vector<PanelStep> steps;
  const auto& items = RequireArray(node, at).items;
  for (std::size_t i = 0; i < items.size(); ++i) steps.push_back(ReadPanelStep(items[i], PointerTo(at, i)));
  return steps;
}

PipePick ReadSelect(const JsonNode& node, const std::string& at) {
  PipePick pick{at, PipePick::Kind::kHandles, {}};
  if (node.kind == Kind::kText && node.text == "all") {
    pick.kind = PipePick::Kind::kAll;
  } else if (node.kind == Kind::kText && node.text == "cancel") {
    pick.kind = PipePick::Kind::kCancel;
  } else if (node.kind == Kind::kArray) {
    for (std::size_t i = 0; i < node.items.size(); ++i) {
      pick.handles.push_back(ReadBytes(node.items[i], PointerTo(at, i)));
    }
  } else {
    throw ScriptError(at, R"(a list of handles, "all" or "cancel" is expected)");
  }
  return pick;
}

CommandStep ReadCommandStep(const JsonNode& node, const std::string& at) {
  RequireKnownKeys(RequireObject(node, at), at, {"command", "select", "panel"});
  const JsonNode* command = node.Find("command");
  if (command == nullptr) throw ScriptError(at, "\"command\" is missing");
  CommandStep step{at, ReadText(*command, PointerTo(at, "command")), {}, ReadOwnPanel(node, at)};
  if (const JsonNode* select = node.Find("select"))
    step.select = ReadSelect(*select, PointerTo(at, "select"));
  return step;
}

std::optional<std::string> ReadPath(const JsonNode& script, std::string_view key) {
  const JsonNode* node = script.Find(key);
  if (node == nullptr) return std::nullopt;
  const std::string at = PointerTo("", key);
  const std::string& path = ReadBytes(*node, at);
  if (path.empty() || path.find('\0') != std::string::npos) throw ScriptError(at, "a path is expected");
  return path;
}

/// True or false; false without the key.
bool ReadSwitch(const JsonNode& script, std::string_view key) {
  const JsonNode* node = script.Find(key);
  if (node == nullptr) return false;
  if (node->kind != JsonNode::Kind::kBoolean)
    throw ScriptError(PointerTo("", key), "true or false is expected");
  return node->boolean;
}

}  // namespace

RunScript ReadRunScript(std::string_view bytes) {
  const JsonNode tree = ReadJson(bytes);
  RequireKnownKeys(RequireObject(tree, ""), "",
                   {"drawing", "main-dir", "steps", "save", "report-dir", "explain"});
  RunScript script{ReadPath(tree, "drawing"),    ReadPath(tree, "main-dir"),  ReadPath(tree, "save"),
                   ReadPath(tree, "report-dir"), ReadSwitch(tree, "explain"), {}};
  const JsonNode* steps = tree.Find("steps");
  if (steps == nullptr) throw ScriptError("", "\"steps\" is missing");
  const auto& items = RequireArray(*steps, "/steps").items;
  for (std::size_t i = 0; i < items.size(); ++i) {
    script.steps.push_back(ReadCommandStep(items[i], PointerTo("/steps", i)));
  }
  return script;
}

}  // namespace zwt
