// A script as plain values: the commands of a run, the pipes picked for each, and what the user does in the
// panels. Every step carries the JSON pointer of its place, for messages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

struct PanelStep;

/// What the user answers to a prompt for a point.
enum class PointAnswer : std::uint8_t { kPoint, kNone, kCancel };

/// A control as the script names it: by number, by the name of its value, or by its label.
using ControlName = CString;

/// Types a text into each control, or picks the item with that text, in order.
struct SetStep {
  std::vector<std::pair<ControlName, CString>> values;
};

/// Picks items by their number from 0, in order.
struct IndexStep {
  std::vector<std::pair<ControlName, std::int32_t>> items;
};

/// Presses a button, with what the user does in the panel and at the point prompts that follow.
struct ClickStep {
  ControlName control;
  std::vector<PanelStep> panel;
  std::vector<PointAnswer> points;
};

enum class CellAction : std::uint8_t { kSelect, kClick, kDoubleClick, kEdit };

struct CellStep {
  ControlName control;
  std::int32_t row = 0;
  std::int32_t column = 0;
  CellAction action = CellAction::kSelect;
  CString text;                  // for kEdit
  std::vector<PanelStep> panel;  // for kDoubleClick
};

/// Selects a range of cells.
struct CellsStep {
  ControlName control;
  std::int32_t row = 0;
  std::int32_t column = 0;
  std::int32_t endRow = 0;
  std::int32_t endColumn = 0;
};

/// Adds the state of controls to the result.
struct ReadStep {
  bool all = false;
  std::vector<ControlName> controls;
};

/// The close box.
struct CloseStep {};

struct PanelStep {
  std::string at;
  std::variant<SetStep, IndexStep, ClickStep, CellStep, CellsStep, ReadStep, CloseStep> action;
};

/// The answer to a command's prompt for pipes.
struct PipePick {
  enum class Kind : std::uint8_t { kCancel, kAll, kHandles };

  std::string at;
  Kind kind = Kind::kCancel;
  std::vector<std::string> handles;
};

/// One command from its start to its end.
struct CommandStep {
  std::string at;
  CString command;
  PipePick select;
  std::vector<PanelStep> panel;
};

struct RunScript {
  std::optional<std::string> drawing;
  std::optional<std::string> mainDirectory;
  std::optional<std::string> save;
  std::optional<std::string> reportDirectory;
  bool explain = false;  // results tell how they were computed
  std::vector<CommandStep> steps;
};

/// Reads a script and checks it as a whole: what is read here can be played but for what the panels and
/// drawings refuse. Throws ScriptError with the pointer of the first place that does not fit.
RunScript ReadRunScript(std::string_view bytes);

}  // namespace zwt
