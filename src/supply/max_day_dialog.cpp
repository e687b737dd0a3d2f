// Maximum-day and maximum-hour water use.
#include "supply/max_day_dialog.h"

#include "frame/scope/panel_command.h"
#include "supply/inlet_diameter_dialog.h"
#include "supply/quota_dialog.h"

namespace zwt {

namespace {

constexpr ControlTemplate kMaxDayControls[] = {
    {.id = 2000, .label = L"用水定额", .kind = ControlKind::kButton, .group = L"输入数据"},
    {.id = 2007,
     .name = L"quota",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据",
     .place = Placement::kBeside},
    {.id = 2008, .name = L"quotaName", .kind = ControlKind::kStatic, .group = L"输入数据"},
    {.id = 2001,
     .name = L"users",
     .label = L"用水单位数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2002,
     .name = L"hourlyFactor",
     .label = L"时变化系数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2003,
     .name = L"hours",
     .label = L"用水时间(h)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2004,
     .name = L"unforeseenPercent",
     .label = L"未预见水量百分比(%)：",
     .kind = ControlKind::kEdit,
     .text = L"10",
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2005,
     .name = L"maxDayText",
     .label = L"最高日用水量(立方米)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 2006,
     .name = L"maxHourText",
     .label = L"最高时用水量(立方米)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 2013,
     .label = L"估算住宅入户管管径",
     .kind = ControlKind::kButton,
     .place = Placement::kButtonRow},
    {.id = 1,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr int kMaxDayButtons[] = {1};
constexpr int kMaxDayResults[] = {2005, 2006};

}  // namespace

constexpr PanelTemplate kMaxDayPanel = {.resource = 2000,
                                        .className = L"ZcUiMaxDayDialog",
                                        .title = L"最高日最高时计算",
                                        .command = L"ZWTGRGS",
                                        .controls = kMaxDayControls,
                                        .calculatingButtons = kMaxDayButtons,
                                        .results = kMaxDayResults};

void RunMaxDayCommand() {
  RunPanel<ZcUiMaxDayDialog>();
}

}  // namespace zwt

ZcUiMaxDayDialog::ZcUiMaxDayDialog() : ZcUiDialog(zwt::kMaxDayPanel) {
  OnClick(1, [this] { Calculate(); });
  OnClick(2000, [this] { PickQuota(); });
  OnClick(2013, [this] { EstimateInlet(); });
  OnExplain(2005, [this](int) {
    zwt::Trace trace;
    if (calculated_) zwt::MaxDayText(*calculated_, &trace);
    return trace;
  });
  OnExplain(2006, [this](int) {
    zwt::Trace trace;
    if (calculated_) zwt::MaxHourText(*calculated_, maxDayText_, &trace);
    return trace;
  });
}

void ZcUiMaxDayDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, 2007, inputs_.quota);
  DDX_Text(exchange, 2001, inputs_.users);
  DDX_Text(exchange, 2002, inputs_.hourlyFactor);
  DDX_Text(exchange, 2003, inputs_.hours);
  DDX_Text(exchange, 2004, inputs_.unforeseenPercent);
  DDX_Text(exchange, 2008, quotaName_);
  DDX_Text(exchange, 2005, maxDayText_);
  DDX_Text(exchange, 2006, maxHourText_);
}

void ZcUiMaxDayDialog::Calculate() {
  if (!UpdateData(true)) return;
  calculated_ = inputs_;
  maxDayText_ = zwt::MaxDayText(inputs_);
  maxHourText_ = zwt::MaxHourText(inputs_, maxDayText_);
  UpdateData(false);
}

void ZcUiMaxDayDialog::PickQuota() {
  if (!UpdateData(true)) return;
  ZcUiMaxDayParamDialog picking(this);
  if (picking.DoModal() != IDOK) return;
  inputs_.quota = picking.quota;
  inputs_.hourlyFactor = picking.hourlyFactor;
  inputs_.hours = picking.hours;
  quotaName_ = picking.name;
  UpdateData(false);
  GetDlgItem(2013).EnableWindow(picking.table == ZcUiMaxDayParamDialog::Table::kDwellings);
}

void ZcUiMaxDayDialog::EstimateInlet() {
  if (!UpdateData(true)) return;
  if (inputs_.quota == 0 || inputs_.users == 0 || inputs_.hourlyFactor == 0 || inputs_.hours == 0) return;
  ZcUiMaxDayDiameterDialog inlet(this);
  inlet.inputs = inputs_;
  inlet.DoModal();
}
