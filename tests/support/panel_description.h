// A panel as lines of text, one for each control, so that a test can state the whole of it:
//   2111 edit 保护面积(㎡)： = 100 readonly
// Key, kind, label, content, then what is unusual about the state. Controls with internal numbers go by the
// name of their value, or "-" where they have none.
#pragma once

#include <string>
#include <vector>

#include "host/dialog/panel_user.h"

namespace zwt::test {

inline CString KeyOf(const CWnd& control) {
  const ControlTemplate& shape = control.Shape();
  if (shape.id < 3000) return std::to_wstring(shape.id);
  return *shape.name == L'\0' ? L"-" : shape.name;
}

inline const wchar_t* KindOf(const CWnd& control) {
  switch (control.Shape().kind) {
    case ControlKind::kEdit:
      return L"edit";
    case ControlKind::kStatic:
      return L"static";
    case ControlKind::kButton:
      return L"button";
    case ControlKind::kRadio:
      return L"radio";
    case ControlKind::kCheck:
      return L"check";
    case ControlKind::kCombo:
      return L"combo";
    case ControlKind::kList:
      return L"list";
    case ControlKind::kGrid:
      return L"grid";
  }
  return L"";
}

inline CString ContentOf(const CWnd& control) {
  const ControlKind kind = control.Shape().kind;
  if (kind == ControlKind::kEdit) return L" = " + control.GetWindowText();
  const auto* combo = dynamic_cast<const CComboBox*>(&control);
  if (combo == nullptr) return {};
  CString content = L" = " + combo->GetWindowText() + L" of";
  for (const CString& item : combo->Items()) content += L" [" + item + L"]";
  return content;
}

inline CString Describe(const CWnd& control) {
  CString line = KeyOf(control) + L" " + KindOf(control) + L" " + control.Label() + ContentOf(control);
  const auto* edit = dynamic_cast<const CEdit*>(&control);
  const auto* button = dynamic_cast<const CButton*>(&control);
  if (edit != nullptr && edit->IsReadOnly()) line += L" readonly";
  if (button != nullptr && button->GetCheck()) line += L" checked";
  if ((control.Shape().style & kDefaultButton) != 0) line += L" default";
  if (!control.IsWindowEnabled()) line += L" disabled";
  if (!control.IsWindowVisible()) line += L" hidden";
  return line;
}

inline std::vector<CString> Describe(const CDialog& panel) {
  std::vector<CString> lines;
  for (const auto& control : panel.Controls()) lines.push_back(Describe(*control));
  return lines;
}

/// Of some controls by their numbers or names of values, in this order.
inline std::vector<CString> Describe(const PanelUser& user, std::initializer_list<const wchar_t*> controls) {
  std::vector<CString> lines;
  for (const wchar_t* control : controls) lines.push_back(Describe(user.Find(control)));
  return lines;
}

}  // namespace zwt::test
