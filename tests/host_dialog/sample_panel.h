// A panel with one control of each kind, for the tests of the framework.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt::test {

inline constexpr const wchar_t* kColours[] = {L"红", L"绿", L"蓝"};
inline constexpr const wchar_t* kFactors[] = {L"1.5", L"2.0"};

inline constexpr ControlTemplate kSampleControls[] = {
    {.id = 2001,
     .name = L"users",
     .label = L"用水单位数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber},
    {.id = 2002,
     .name = L"count",
     .label = L"件数(&N)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kWholeNumber},
    {.id = 2003, .name = L"note", .label = L"备注：", .kind = ControlKind::kEdit, .text = L"无"},
    {.id = 2004, .label = L"结果：", .kind = ControlKind::kEdit, .style = kReadOnly},
    {.id = 2005, .kind = ControlKind::kEdit},
    {.id = 3005, .label = L"高度(m):", .kind = ControlKind::kStatic, .labelOf = 2005},
    {.id = 2010, .label = L"颜色：", .kind = ControlKind::kCombo, .items = kColours, .text = L"红"},
    {.id = 2011, .label = L"系数：", .kind = ControlKind::kCombo, .style = kEditableCombo, .items = kFactors},
    {.id = 2020, .label = L"甲", .kind = ControlKind::kRadio, .style = kGroupStart},
    {.id = 2021, .label = L"乙", .kind = ControlKind::kRadio},
    {.id = 2022, .label = L"丙", .kind = ControlKind::kRadio, .style = kGroupStart},
    {.id = 2023, .label = L"计入(&A)", .kind = ControlKind::kCheck},
    {.id = 2030, .label = L"..", .kind = ControlKind::kButton},
    {.id = 2031, .label = L"..", .kind = ControlKind::kButton, .style = kDisabled},
    {.id = 2040, .kind = ControlKind::kGrid},
    {.id = 2041, .kind = ControlKind::kGrid, .style = kReportsWrites},
    {.id = 2050, .kind = ControlKind::kList},
    {.id = 2060, .label = L"藏", .kind = ControlKind::kButton, .style = kHidden},
    {.id = 1,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
};

inline constexpr PanelTemplate kSamplePanel = {.resource = 2999,
                                               .className = L"SamplePanel",
                                               .title = L"样板",
                                               .command = L"ZWTSAMPLE",
                                               .controls = kSampleControls};

class SamplePanel : public ZcUiDialog {
 public:
  SamplePanel() : ZcUiDialog(kSamplePanel) {}

  double users = 0;
  std::int32_t count = 7;
  CString note = L"无";
  std::int32_t choice = 0;
  std::int32_t counted = 0;

  using CDialog::OnCell;
  using CDialog::OnClick;
  using CDialog::OnDropDownClosed;
  using CDialog::OnLeave;
  using CDialog::OnSelectionChange;

 protected:
  void DoDataExchange(CDataExchange* exchange) override {
    DDX_Text(exchange, 2001, users);
    DDX_Text(exchange, 2002, count);
    DDX_Text(exchange, 2003, note);
    DDX_Radio(exchange, 2020, choice);
    DDX_Check(exchange, 2023, counted);
  }
};

}  // namespace zwt::test
