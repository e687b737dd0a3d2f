// Typing, pressing and collecting.
#include "cli/batch_calculation.h"

#include <algorithm>
#include <utility>

#include <nlohmann/json.hpp>

#include "cli/control_state.h"
#include "cli/explanation.h"
#include "cli/json_layout.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;
using Rows = std::vector<std::vector<CString>>;

std::string PanelName(const CDialog& panel) {
  return "panel " + std::to_string(panel.Shape().resource);
}

/// What messages call a control: its label, else its key.
std::string NameOf(const CWnd& control) {
  const std::string label = Utf8FromWide(control.Label());
  return label.empty() ? ControlKey(control) : label;
}

bool IsYes(const CString& text) {
  return text == L"1" || text == L"on" || text == L"true";
}

/// Checks or clears a box; presses a radio button that is to be "on", or the one of its group with a number
/// from 0 or a label.
void SetButton(CDialog& panel, CWnd& control, const CString& text) {
  PanelUser user(panel);
  auto& button = dynamic_cast<CButton&>(control);
  if (control.Shape().kind == ControlKind::kCheck) {
    if (button.GetCheck() != IsYes(text)) user.Click(button);
    return;
  }
  if (text == L"on") return user.Click(button);
  const auto group = panel.RadioGroup(control.GetDlgCtrlID());
  for (std::size_t i = 0; i < group.size(); ++i) {
    if (text == std::to_wstring(i) || text == WithoutShortcut(group[i]->Label()))
      return user.Click(*group[i]);
  }
  throw PanelRefusal("no such choice");
}

/// Picks the first row of a list that has a cell with the text, else the row with that number from 0.
void PickRow(CDialog& panel, CListCtrl& list, const CString& text) {
  PanelUser user(panel);
  const int columns = static_cast<int>(list.Columns().size());
  for (int row = 0; row < list.GetItemCount(); ++row) {
    for (int column = 0; column < columns; ++column) {
      if (list.GetItemText(row, column) == text) return user.Pick(list, row);
    }
  }
  if (text != ZwtNum2Str(_wtoi(text))) throw PanelRefusal("no row has this text");
  user.Pick(list, _wtoi(text));
}

void SetValue(CDialog& panel, CWnd& control, const CString& text) {
  const ControlKind kind = control.Shape().kind;
  if (kind == ControlKind::kRadio || kind == ControlKind::kCheck) {
    SetButton(panel, control, text);
  } else if (auto* list = dynamic_cast<CListCtrl*>(&control)) {
    PickRow(panel, *list, text);
  } else {
    PanelUser(panel).Set(control, text);
  }
}

/// What a table calls a control: its label, or that of the button it stands beside, or its name.
CString RowTitle(const CDialog& panel, const CWnd& control) {
  if (!control.Label().empty()) return control.Label();
  const CWnd* before = nullptr;
  for (const auto& other : panel.Controls()) {
    if (other.get() == &control && before != nullptr && control.Shape().place == Placement::kBeside &&
        before->Shape().kind == ControlKind::kButton) {
      return WithoutShortcut(before->Label());
    }
    before = other.get();
  }
  return control.Shape().name;
}

std::vector<const CWnd*> ResultControls(const CDialog& panel) {
  std::vector<const CWnd*> controls;
  controls.reserve(panel.Shape().results.size());
  for (const int id : panel.Shape().results) controls.push_back(&panel.GetDlgItem(id));
  return controls;
}

/// The fields that a panel without results shows and takes.
std::vector<const CWnd*> Fields(const CDialog& panel) {
  std::vector<const CWnd*> fields;
  for (const auto& control : panel.Controls()) {
    if (dynamic_cast<const CEdit*>(control.get()) != nullptr) fields.push_back(control.get());
  }
  return fields;
}

/// What a field that the program refused is told of.
std::string Refusal(const CWnd& field) {
  return NameOf(field) + " \"" + Utf8FromWide(field.GetWindowText()) + "\" is not what the calculation needs";
}

/// The cells of a grid without its hidden columns.
Rows GridRows(const CGridCtrl& grid) {
  Rows rows;
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    std::vector<CString> cells;
    for (int column = 0; column < grid.GetColumnCount(); ++column) {
      if (grid.GetColumnWidth(column) != 0) cells.push_back(grid.GetItemText(row, column));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Rows ListRows(const CListCtrl& list) {
  std::vector<CString> titles;
  titles.reserve(list.Columns().size());
  for (const CListCtrl::Column& column : list.Columns()) titles.push_back(column.title);
  Rows rows = {std::move(titles)};
  for (int row = 0; row < list.GetItemCount(); ++row) {
    std::vector<CString> cells;
    cells.reserve(list.Columns().size());
    for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
      cells.push_back(list.GetItemText(row, column));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

/// The lines of a text, their parts between tabs under each other.
std::string TextBlock(const CString& text) {
  Rows rows = {{CString()}};
  for (const wchar_t c : text) {
    CString& cell = rows.back().back();
    if (c == L'\n') {
      rows.push_back({CString()});
    } else if (c == L'\t') {
      if (!cell.empty()) rows.back().emplace_back();
    } else if (c != L'\r' && (c != L' ' || !cell.empty())) {
      cell += c;
    }
  }
  return TextTable(rows);
}

/// Single values first, under each other, then each grid, list and text of several lines by itself.
std::string ResultTable(const CDialog& panel, const std::vector<const CWnd*>& controls) {
  Rows values;
  std::string tables;
  for (const CWnd* control : controls) {
    if (!control->IsWindowVisible()) continue;
    if (const auto* grid = dynamic_cast<const CGridCtrl*>(control)) {
      tables += '\n' + TextTable(GridRows(*grid));
    } else if (const auto* list = dynamic_cast<const CListCtrl*>(control)) {
      tables += '\n' + TextTable(ListRows(*list));
    } else if ((control->Shape().style & kMultiLine) != 0) {
      tables += '\n' + TextBlock(control->GetWindowText());
    } else if (control->Shape().kind == ControlKind::kStatic) {
      values.push_back({control->GetWindowText()});
    } else {
      values.push_back({RowTitle(panel, *control), control->GetWindowText()});
    }
  }
  if (values.empty() && !tables.empty()) tables.erase(0, 1);
  return TextTable(values) + tables;
}

Json ResultJson(const CDialog& panel, const std::vector<const CWnd*>& controls, bool explain) {
  Json results = Json::array();
  for (const CWnd* control : controls) {
    Json line;
    line["control"] = ControlKey(*control);
    line["label"] = Utf8FromWide(control->Label());
    line.update(ControlState(*control));
    Json explanation = explain ? ExplanationJson(*control) : Json(nullptr);
    if (!explanation.is_null()) line["explanation"] = std::move(explanation);
    results.push_back(std::move(line));
  }
  return {{"panel", panel.Shape().resource},
          {"title", Utf8FromWide(panel.Shape().title)},
          {"results", std::move(results)}};
}

/// The first button of a panel with one of the labels, which are spaced out on some; null if there is none.
const CWnd* FindButton(const CDialog& panel, const std::vector<CString>& wanted) {
  for (const auto& control : panel.Controls()) {
    CString label = control->Label();
    std::erase(label, L' ');
    if (control->Shape().kind != ControlKind::kButton) continue;
    if (std::find(wanted.begin(), wanted.end(), label) != wanted.end()) return control.get();
  }
  return nullptr;
}

}  // namespace

void BatchCalculation::RunModal(CDialog& panel) {
  const bool first = !hasRun_;
  hasRun_ = true;
  if (first || pressing_) Calculate(panel);
  if (!panel.HasEnded()) panel.NotifyClose();
  if (!panel.HasEnded()) throw ArgumentError(PanelName(panel) + " stays open after its close box");
}

void BatchCalculation::Calculate(CDialog& panel) {
  SetValues(panel);
  try {
    PressAll(panel);
  } catch (const ArgumentError&) {
    RequireAllTaken();
    throw;
  }
}

void BatchCalculation::SetValues(CDialog& panel) {
  missing_.clear();
  for (std::size_t i = 0; i < request_.values.size(); ++i) {
    if (!open_[i]) continue;
    const auto& [name, text] = request_.values[i];
    const std::string given = Utf8FromWide(name) + '=' + Utf8FromWide(text) + ": ";
    try {
      SetValue(panel, PanelUser(panel).Find(name), text);
      open_[i] = false;
    } catch (const NoSuchControl& refusal) {
      if (missing_.empty()) missing_ = given + refusal.what();
    } catch (const PanelRefusal& refusal) {
      throw ArgumentError(given + refusal.what());
    }
  }
}

void BatchCalculation::RequireAllTaken() const {
  if (!missing_.empty()) throw ArgumentError(missing_);
}

void BatchCalculation::PressAll(CDialog& panel) {
  const PanelTemplate& shape = panel.Shape();
  for (const int button : shape.calculatingButtons) Press(panel, button);
  RequireAllTaken();
  if (request_.annotate) PressByLabel(panel, {L"标注", L"赋回图中"}, "--annotate", "annotates nothing");
  if (request_.report) PressByLabel(panel, {L"计算书"}, "--report", "writes no report");
  if (!shape.results.empty()) Collect(panel, ResultControls(panel));
  if (shape.results.empty() && shape.calculatingButtons.empty()) Confirm(panel);
}

/// Presses a button and hears what the panel says to it.
BatchCalculation::Answer BatchCalculation::Click(CDialog& panel, int button) {
  Answer outer = std::exchange(answer_, {});
  panel.AddListener(this);
  try {
    PanelUser(panel).Click(panel.GetDlgItem(button));
  } catch (const PanelRefusal& refusal) {
    panel.RemoveListener(this);
    throw ArgumentError(refusal.what());
  }
  panel.RemoveListener(this);
  Answer answer = std::exchange(answer_, std::move(outer));
  if (!answer.stopped.empty()) throw ArgumentError(Utf8FromWide(answer.stopped));
  return answer;
}

/// A panel that answers and shows no other results than before has calculated nothing.
void BatchCalculation::Press(CDialog& panel, int button) {
  const std::vector<const CWnd*> results = ResultControls(panel);
  const std::string before = ResultTable(panel, results);
  const bool pressingBefore = std::exchange(pressing_, true);
  Answer answer = Click(panel, button);
  pressing_ = pressingBefore;
  if (panel.HasEnded())
    throw ArgumentError(PanelName(panel) + " has closed before its results could be read");
  std::vector<std::string> notes = std::move(answer.messages);
  for (const CWnd* field : answer.refused) notes.push_back(Refusal(*field));
  if (!notes.empty() && ResultTable(panel, results) == before) throw ArgumentError(notes.front());
  result_.notes.insert(result_.notes.end(), notes.begin(), notes.end());
}

/// A panel that calculates nothing takes data: with values given it is left by its first button, as the user
/// leaves it who wants them to be written.
void BatchCalculation::Confirm(CDialog& panel) {
  if (!request_.values.empty()) {
    const Answer answer = Click(panel, IDOK);
    if (!answer.refused.empty()) throw ArgumentError(Refusal(*answer.refused.front()));
  }
  Collect(panel, Fields(panel));
}

void BatchCalculation::Collect(const CDialog& panel, const std::vector<const CWnd*>& controls) {
  result_.table = ResultTable(panel, controls);
  result_.json = LayOutJson(ResultJson(panel, controls, request_.explain)) + '\n';
  if (!request_.explain) return;
  for (const CWnd* control : controls) result_.table += ExplanationText(*control);
}

void BatchCalculation::PressByLabel(CDialog& panel, const std::vector<CString>& labels,
                                    const std::string& option, const std::string& deed) {
  const CWnd* button = FindButton(panel, labels);
  if (button == nullptr) throw ArgumentError(option + ": " + PanelName(panel) + ' ' + deed);
  Press(panel, button->GetDlgCtrlID());
}

void BatchCalculation::ShowMessage(CDialog*, const CString& text, const CString&, MessageIcon icon) {
  if (icon == MessageIcon::kStop) {
    answer_.stopped = text;
  } else {
    answer_.messages.push_back(Utf8FromWide(text));
  }
}

void BatchCalculation::OnFocusMoved(CWnd& control, bool selected) {
  if (selected) answer_.refused.push_back(&control);
}

}  // namespace zwt
