// User actions with their refusals.
#include "host/dialog/panel_user.h"

#include <algorithm>

#include "host/text/number_text.h"

namespace zwt {

namespace {

std::string Name(const CWnd& control) {
  return "control " + std::to_string(control.GetDlgCtrlID());
}

void RequireUsable(const CWnd& control) {
  if (!control.IsWindowVisible()) throw PanelRefusal(Name(control) + " is hidden");
  if (!control.IsWindowEnabled()) throw PanelRefusal(Name(control) + " is disabled");
}

std::string CellName(const CWnd& control, int row, int column) {
  return Name(control) + " cell [" + std::to_string(row) + ", " + std::to_string(column) + "]";
}

/// Whether a control answers to a label; a static that labels another control stands back for that control.
bool BearsLabel(const CWnd& control, const CString& wanted) {
  if (control.Shape().labelOf != 0) return false;
  const CString label = control.Label();
  return !label.empty() && (label == wanted || WithoutShortcut(label) == wanted);
}

CGridCtrl* AsGrid(CWnd& control) {
  return dynamic_cast<CGridCtrl*>(&control);
}
CListCtrl* AsList(CWnd& control) {
  return dynamic_cast<CListCtrl*>(&control);
}

void RequireCell(CWnd& control, int row, int column) {
  bool inside = false;
  if (const CGridCtrl* grid = AsGrid(control)) {
    inside = grid->IsValid(row, column);
  } else if (const CListCtrl* list = AsList(control)) {
    inside = row >= 0 && row < list->GetItemCount() && column >= 0 &&
             column < static_cast<int>(list->Columns().size());
  } else {
    throw PanelRefusal(Name(control) + " has no cells");
  }
  if (!inside) throw PanelRefusal("no " + CellName(control, row, column));
}

void PutSelection(CWnd& control, int row, int column) {
  if (CGridCtrl* grid = AsGrid(control)) {
    grid->SetSelectedRange({row, column, row, column});
  } else if (CListCtrl* list = AsList(control)) {
    list->SelectItem(row);
  }
}

/// Picks an item; the item that a combo box already shows does not count as a change.
void PickItem(CDialog& panel, CComboBox& combo, int index) {
  const bool changes = combo.GetCurSel() != index;
  if (changes) {
    combo.SetCurSel(index);
    panel.NotifySelectionChange(combo.GetDlgCtrlID());
  }
  panel.NotifyDropDownClosed(combo.GetDlgCtrlID());
}

void SetCombo(CDialog& panel, CComboBox& combo, const CString& text) {
  const auto& items = combo.Items();
  const auto item = std::find(items.begin(), items.end(), text);
  if (item != items.end()) {
    PickItem(panel, combo, static_cast<int>(item - items.begin()));
  } else if (combo.IsEditable()) {
    combo.SetWindowText(text);
  } else {
    throw PanelRefusal(Name(combo) + " has no item \"" + Utf8FromWide(text) + "\"");
  }
}

}  // namespace

CWnd& PanelUser::Find(const CString& wanted) const {
  const bool digits = !wanted.empty() && std::all_of(wanted.begin(), wanted.end(),
                                                     [](wchar_t c) { return c >= L'0' && c <= L'9'; });
  if (digits) {
    if (CWnd* control = panel_.FindItem(_wtoi(wanted))) return *control;
  }
  CWnd* found = nullptr;
  std::string numbers;
  for (const auto& control : panel_.Controls()) {
    if (!wanted.empty() && wanted == control->Shape().name) return *control;
    if (!BearsLabel(*control, wanted)) continue;
    numbers += (numbers.empty() ? "" : ", ") + std::to_string(control->GetDlgCtrlID());
    found = found == nullptr ? control.get() : found;
  }
  const std::string name = digits ? Utf8FromWide(wanted) : "\"" + Utf8FromWide(wanted) + "\"";
  const std::string panel = std::to_string(panel_.Shape().resource);
  if (found == nullptr) throw NoSuchControl("no control " + name + " in panel " + panel);
  if (numbers.find(',') != std::string::npos) {
    throw PanelRefusal("several controls of panel " + panel + " bear the label " + name + ": " + numbers);
  }
  return *found;
}

void PanelUser::Set(CWnd& control, const CString& text) {
  RequireUsable(control);
  panel_.UserFocused(&control);
  if (auto* edit = dynamic_cast<CEdit*>(&control)) {
    if (edit->IsReadOnly()) throw PanelRefusal(Name(control) + " is read-only");
    edit->SetWindowText(text);
  } else if (auto* combo = dynamic_cast<CComboBox*>(&control)) {
    SetCombo(panel_, *combo, text);
  } else {
    throw PanelRefusal(Name(control) + " takes no text");
  }
  if (!panel_.HasEnded()) panel_.UserFocused(nullptr);
}

void PanelUser::Pick(CWnd& control, int index) {
  RequireUsable(control);
  panel_.UserFocused(&control);
  if (auto* combo = dynamic_cast<CComboBox*>(&control)) {
    if (index < 0 || index >= combo->GetCount()) {
      throw PanelRefusal(Name(control) + " has no item " + std::to_string(index));
    }
    PickItem(panel_, *combo, index);
  } else if (auto* list = dynamic_cast<CListCtrl*>(&control)) {
    if (index < 0 || index >= list->GetItemCount()) {
      throw PanelRefusal(Name(control) + " has no row " + std::to_string(index));
    }
    list->SelectItem(index);
  } else {
    throw PanelRefusal(Name(control) + " is no list");
  }
}

void PanelUser::Click(CWnd& control) {
  RequireUsable(control);
  auto* button = dynamic_cast<CButton*>(&control);
  if (button == nullptr) throw PanelRefusal(Name(control) + " cannot be pressed");
  panel_.UserFocused(&control);
  if (panel_.HasEnded()) return;
  const int id = control.GetDlgCtrlID();
  if (control.Shape().kind == ControlKind::kRadio) panel_.CheckRadioButton(id);
  if (control.Shape().kind == ControlKind::kCheck) button->SetCheck(!button->GetCheck());
  panel_.NotifyClick(id);
}

void PanelUser::SelectCell(CWnd& control, int row, int column) {
  RequireUsable(control);
  if (row != -1) RequireCell(control, row, column);
  panel_.UserFocused(&control);
  PutSelection(control, row, column);
}

void PanelUser::SelectCells(CWnd& control, const CCellRange& range) {
  RequireUsable(control);
  CGridCtrl* grid = AsGrid(control);
  if (grid == nullptr) throw PanelRefusal(Name(control) + " is no grid");
  RequireCell(control, range.minRow, range.minColumn);
  RequireCell(control, range.maxRow, range.maxColumn);
  panel_.UserFocused(&control);
  grid->SetSelectedRange({std::min(range.minRow, range.maxRow), std::min(range.minColumn, range.maxColumn),
                          std::max(range.minRow, range.maxRow), std::max(range.minColumn, range.maxColumn)});
}

void PanelUser::ClickCell(CWnd& control, int row, int column) {
  SelectCell(control, row, column);
  panel_.NotifyCell(control.GetDlgCtrlID(), CellNotice::kClick, row, column);
}

void PanelUser::DoubleClickCell(CWnd& control, int row, int column) {
  SelectCell(control, row, column);
  panel_.NotifyCell(control.GetDlgCtrlID(), CellNotice::kDoubleClick, row, column);
}

void PanelUser::EditCell(CWnd& control, int row, int column, const CString& text) {
  RequireUsable(control);
  RequireCell(control, row, column);
  CGridCtrl* grid = AsGrid(control);
  if (grid == nullptr || !grid->TakesText(row, column)) {
    throw PanelRefusal(CellName(control, row, column) + " is read-only");
  }
  SelectCell(control, row, column);
  const CGridBtnCellCombo* combo = grid->GetCombo(row, column);
  const bool listOnly = combo != nullptr && combo->style == 3;
  if (listOnly && std::find(combo->choices.begin(), combo->choices.end(), text) == combo->choices.end()) {
    throw PanelRefusal(CellName(control, row, column) + " has no choice \"" + Utf8FromWide(text) + "\"");
  }
  const int id = control.GetDlgCtrlID();
  panel_.NotifyCell(id, CellNotice::kBeginEdit, row, column);
  const bool changes = grid->GetItemText(row, column) != text;
  const bool reported = (grid->Shape().style & kReportsWrites) != 0;
  grid->SetItemText(row, column, text);
  panel_.NotifyCell(id, CellNotice::kEndEdit, row, column);
  if (changes && !reported) panel_.NotifyCell(id, CellNotice::kChanged, row, column);
}

}  // namespace zwt
