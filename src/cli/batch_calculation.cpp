// Typing, pressing and collecting.
#include "cli/batch_calculation.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "cli/control_state.h"
#include "cli/json_layout.h"
#include "cli/text_table.h"
#include "cli/verbs.h"

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

/// Checks or clears a box; presses a radio button that is to be on, or the one of its group with a number
/// from 0 or a label.
void SetButton(CDialog& panel, CWnd& control, const CString& text) {
  PanelUser user(panel);
  auto& button = dynamic_cast<CButton&>(control);
  if (control.Shape().kind == ControlKind::kCheck) {
    if (button.GetCheck() != IsYes(text)) user.Click(button);
    return;
  }
  const auto group = panel.RadioGroup(control.GetDlgCtrlID());
  for (std::size_t i = 0; i < group.size(); ++i) {
    if (text == std::to_wstring(i) || text == WithoutShortcut(group[i]->Label()))
      return user.Click(*group[i]);
  }
  throw PanelRefusal("no such choice");
}

void SetValue(CDialog& panel, const CString& name, const CString& text) {
  PanelUser user(panel);
  CWnd& control = user.Find(name);
  const ControlKind kind = control.Shape().kind;
  if (kind == ControlKind::kRadio || kind == ControlKind::kCheck) {
    SetButton(panel, control, text);
  } else {
    user.Set(control, text);
  }
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
    for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column) {
      cells.push_back(list.GetItemText(row, column));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

/// Single values first, under each other, then each grid and list as a table of its own.
std::string ResultTable(const std::vector<const CWnd*>& controls) {
  Rows values;
  std::string tables;
  for (const CWnd* control : controls) {
    if (!control->IsWindowVisible()) continue;
    if (const auto* grid = dynamic_cast<const CGridCtrl*>(control)) {
      tables += '\n' + TextTable(GridRows(*grid));
    } else if (const auto* list = dynamic_cast<const CListCtrl*>(control)) {
      tables += '\n' + TextTable(ListRows(*list));
    } else if (control->Shape().kind == ControlKind::kStatic) {
      values.push_back({control->GetWindowText()});
    } else {
      values.push_back({control->Label(), control->GetWindowText()});
    }
  }
  if (values.empty() && !tables.empty()) tables.erase(0, 1);
  return TextTable(values) + tables;
}

Json ResultJson(const CDialog& panel, const std::vector<const CWnd*>& controls) {
  Json results = Json::array();
  for (const CWnd* control : controls) {
    Json line;
    line["control"] = ControlKey(*control);
    line["label"] = Utf8FromWide(control->Label());
    line.update(ControlState(*control));
    results.push_back(std::move(line));
  }
  return {{"panel", panel.Shape().resource},
          {"title", Utf8FromWide(panel.Shape().title)},
          {"results", std::move(results)}};
}

/// The annotating button of a panel; its label is spaced out on some.
const CWnd* FindAnnotatingButton(const CDialog& panel) {
  for (const auto& control : panel.Controls()) {
    CString label = control->Label();
    std::erase(label, L' ');
    if (control->Shape().kind == ControlKind::kButton && label == L"标注") return control.get();
  }
  return nullptr;
}

}  // namespace

void BatchCalculation::RunModal(CDialog& panel) {
  const bool first = !hasRun_;
  hasRun_ = true;
  if (first) Calculate(panel);
  if (!panel.HasEnded()) panel.NotifyClose();
  if (!panel.HasEnded()) throw ArgumentError(PanelName(panel) + " stays open after its close box");
}

void BatchCalculation::Calculate(CDialog& panel) {
  for (const auto& [name, text] : request_.values) {
    try {
      SetValue(panel, name, text);
    } catch (const PanelRefusal& refusal) {
      throw ArgumentError(Utf8FromWide(name) + '=' + Utf8FromWide(text) + ": " + refusal.what());
    }
  }
  for (const int button : panel.Shape().calculatingButtons) Press(panel, button);
  if (request_.annotate) Annotate(panel);
  std::vector<const CWnd*> controls;
  for (const int id : panel.Shape().results) controls.push_back(&panel.GetDlgItem(id));
  result_.table = ResultTable(controls);
  result_.json = LayOutJson(ResultJson(panel, controls)) + '\n';
}

void BatchCalculation::Press(CDialog& panel, int button) {
  PanelUser user(panel);
  stopped_.clear();
  refused_ = nullptr;
  panel.AddListener(this);
  try {
    user.Click(panel.GetDlgItem(button));
  } catch (const PanelRefusal& refusal) {
    panel.RemoveListener(this);
    throw ArgumentError(refusal.what());
  }
  panel.RemoveListener(this);
  if (!stopped_.empty()) throw ArgumentError(Utf8FromWide(stopped_));
  if (refused_ != nullptr) {
    throw ArgumentError(NameOf(*refused_) + " \"" + Utf8FromWide(refused_->GetWindowText()) +
                        "\" is not what the calculation needs");
  }
  if (panel.HasEnded())
    throw ArgumentError(PanelName(panel) + " has closed before its results could be read");
}

void BatchCalculation::Annotate(CDialog& panel) {
  const CWnd* button = FindAnnotatingButton(panel);
  if (button == nullptr) throw ArgumentError("--annotate: " + PanelName(panel) + " annotates nothing");
  Press(panel, button->GetDlgCtrlID());
}

void BatchCalculation::ShowMessage(CDialog*, const CString& text, const CString&, MessageIcon icon) {
  if (icon == MessageIcon::kStop) {
    stopped_ = text;
  } else {
    result_.notes.push_back(text);
  }
}

void BatchCalculation::OnFocusMoved(CWnd& control, bool selected) {
  if (selected && refused_ == nullptr) refused_ = &control;
}

}  // namespace zwt
