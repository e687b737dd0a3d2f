// Field by field exchange.
#include "host/dialog/data_exchange.h"

#include <string>

#include "host/dialog/dialog.h"
#include "host/text/number_text.h"

namespace {

template <typename Value, typename Parse, typename Format>
void ExchangeNumber(CDataExchange* exchange, int id, Value& value, Parse parse, Format format) {
  CEdit& field = exchange->m_panel.Edit(id);
  if (!exchange->m_bSaveAndValidate) {
    field.SetWindowText(format(value));
    return;
  }
  if (exchange->Stopped()) return;
  Value read{};
  if (parse(field.GetWindowText(), read)) {
    value = read;
  } else {
    exchange->Refuse(field);
  }
}

}  // namespace

void DDX_Text(CDataExchange* exchange, int id, double& value) {
  ExchangeNumber(exchange, id, value, zwt::ParseNumber, zwt::FormatBound);
}

void DDX_Text(CDataExchange* exchange, int id, std::int32_t& value) {
  ExchangeNumber(exchange, id, value, zwt::ParseWholeNumber,
                 [](std::int32_t held) { return std::to_wstring(held); });
}

void DDX_Text(CDataExchange* exchange, int id, CString& value) {
  CWnd& control = exchange->m_panel.GetDlgItem(id);
  if (!exchange->m_bSaveAndValidate) {
    control.SetWindowText(value);
  } else if (!exchange->Stopped()) {
    value = control.GetWindowText();
  }
}

void DDX_Check(CDataExchange* exchange, int id, std::int32_t& value) {
  CButton& box = exchange->m_panel.Button(id);
  if (!exchange->m_bSaveAndValidate) {
    box.SetCheck(value != 0);
  } else if (!exchange->Stopped()) {
    value = box.GetCheck() ? 1 : 0;
  }
}

void DDX_Radio(CDataExchange* exchange, int firstId, std::int32_t& value) {
  const auto buttons = exchange->m_panel.RadioGroup(firstId);
  if (exchange->m_bSaveAndValidate && exchange->Stopped()) return;
  std::int32_t checked = -1;
  std::int32_t index = 0;
  for (CButton* button : buttons) {
    if (!exchange->m_bSaveAndValidate) button->SetCheck(index == value);
    if (button->GetCheck()) checked = index;
    ++index;
  }
  if (exchange->m_bSaveAndValidate) value = checked;
}

void DDX_CBIndex(CDataExchange* exchange, int id, std::int32_t& index) {
  CComboBox& combo = exchange->m_panel.Combo(id);
  if (!exchange->m_bSaveAndValidate) {
    combo.SetCurSel(index);
  } else if (!exchange->Stopped()) {
    index = combo.GetCurSel();
  }
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value) {
  CComboBox& combo = exchange->m_panel.Combo(id);
  if (!exchange->m_bSaveAndValidate) {
    combo.SetWindowText(value);
  } else if (!exchange->Stopped()) {
    value = combo.GetWindowText();
  }
}

void DDV_MinMaxDouble(CDataExchange* exchange, int id, double value, double lowest, double highest) {
  if (!exchange->m_bSaveAndValidate || exchange->Stopped()) return;
  if (!(value >= lowest && value <= highest)) exchange->Refuse(exchange->m_panel.Edit(id));
}
