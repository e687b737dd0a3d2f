// State of the plain controls, and their word to the panel when it changes.
#include "host/dialog/controls.h"

#include <algorithm>

#include "host/dialog/dialog.h"

namespace {

bool CarriesLabelAsText(zwt::ControlKind kind) {
  using zwt::ControlKind;
  return kind == ControlKind::kStatic || kind == ControlKind::kButton || kind == ControlKind::kRadio ||
         kind == ControlKind::kCheck;
}

}  // namespace

CWnd::CWnd(CDialog& panel, const zwt::ControlTemplate& shape)
    : panel_(panel),
      shape_(shape),
      text_(CarriesLabelAsText(shape.kind) ? shape.label : shape.text),
      enabled_((shape.style & zwt::kDisabled) == 0),
      visible_((shape.style & zwt::kHidden) == 0) {}

CString CWnd::Label() const {
  if (CarriesLabelAsText(shape_.kind)) return text_;
  const CWnd* label = panel_.LabelControlOf(shape_.id);
  return label != nullptr ? label->GetWindowText() : CString(shape_.label);
}

void CWnd::SetWindowText(const CString& text) {
  if (text_ == text) return;
  text_ = text;
  Changed(ControlAspect::kText);
}

void CWnd::EnableWindow(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed(ControlAspect::kEnabled);
}

void CWnd::ShowWindow(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Changed(ControlAspect::kVisible);
}

void CWnd::SetFocus() {
  panel_.MoveFocus(*this, false);
}

void CWnd::Changed(ControlAspect aspect) {
  panel_.ControlChanged(*this, aspect);
}

CEdit::CEdit(CDialog& panel, const zwt::ControlTemplate& shape)
    : CWnd(panel, shape), readOnly_((shape.style & zwt::kReadOnly) != 0) {}

void CEdit::SetReadOnly(bool readOnly) {
  if (readOnly_ == readOnly) return;
  readOnly_ = readOnly;
  Changed(ControlAspect::kReadOnly);
}

void CEdit::FocusAndSelect() {
  Panel().MoveFocus(*this, true);
}

void CButton::SetCheck(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Changed(ControlAspect::kChecked);
}

CComboBox::CComboBox(CDialog& panel, const zwt::ControlTemplate& shape)
    : CWnd(panel, shape), items_(shape.items.begin(), shape.items.end()) {
  const auto shown = std::find(items_.begin(), items_.end(), GetWindowText());
  if (shown != items_.end()) index_ = static_cast<int>(shown - items_.begin());
}

void CComboBox::AddString(const CString& item) {
  items_.push_back(item);
  Changed(ControlAspect::kItems);
}

void CComboBox::ResetContent() {
  items_.clear();
  index_ = -1;
  Changed(ControlAspect::kItems);
  CWnd::SetWindowText(L"");
}

void CComboBox::SetCurSel(int index) {
  const bool inRange = index >= 0 && index < GetCount();
  index_ = inRange ? index : -1;
  CWnd::SetWindowText(inRange ? items_[static_cast<std::size_t>(index)] : CString());
  Changed(ControlAspect::kSelection);
}

void CComboBox::SetWindowText(const CString& text) {
  const auto shown = std::find(items_.begin(), items_.end(), text);
  index_ = shown == items_.end() ? -1 : static_cast<int>(shown - items_.begin());
  CWnd::SetWindowText(index_ < 0 && !IsEditable() ? CString() : text);
  Changed(ControlAspect::kSelection);
}

void CComboBox::SetAutoWidth() {
  autoWidth_ = true;
  Changed(ControlAspect::kItems);
}

void CListCtrl::InsertColumn(const CString& title, int width) {
  columns_.push_back({title, width});
  Changed(ControlAspect::kCells);
}

int CListCtrl::InsertItem(const CString& text) {
  rows_.emplace_back(columns_.size());
  if (!columns_.empty()) rows_.back().front() = text;
  Changed(ControlAspect::kCells);
  return GetItemCount() - 1;
}

void CListCtrl::SetItemText(int row, int column, const CString& text) {
  if (row < 0 || row >= GetItemCount() || column < 0 || column >= static_cast<int>(columns_.size())) return;
  rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
  Changed(ControlAspect::kCells);
}

CString CListCtrl::GetItemText(int row, int column) const {
  if (row < 0 || row >= GetItemCount() || column < 0 || column >= static_cast<int>(columns_.size()))
    return {};
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void CListCtrl::DeleteAllItems() {
  rows_.clear();
  selected_.clear();
  Changed(ControlAspect::kCells);
}

void CListCtrl::SelectItem(int row) {
  selected_.clear();
  if (row >= 0 && row < GetItemCount()) selected_.insert(row);
  Changed(ControlAspect::kSelection);
}

CString ZwtGetComboBoxCurString(const CComboBox& combo) {
  return combo.GetWindowText();
}

bool ZwtSetComboBoxCurString(CComboBox& combo, const CString& text) {
  combo.SetWindowText(text);
  return combo.GetCurSel() >= 0 || combo.IsEditable();
}

void ZwtSetComboBoxAutoWidth(CComboBox& combo) {
  combo.SetAutoWidth();
}
