// Controls and handlers of the hot water panel.
#include "hotwater/heat_demand_dialog.h"

#include "frame/scope/panel_command.h"
#include "hotwater/cold_water_dialog.h"
#include "hotwater/fixture_counts.h"
#include "hotwater/hot_water_fixtures_dialog.h"
#include "hotwater/hot_water_quota_dialog.h"
#include "hotwater/hourly_variation_dialog.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;
using zwt::ValueKind;

enum Control : int {
  kCompute = 1,
  kExit = 2,
  kPickQuota = 2000,
  kHourlyVariation = 2002,
  kWaterQuota = 2007,
  kBuilding = 2008,
  kUnits = 2020,
  kAllDay = 2024,
  kTimed = 2025,
  kPickHourlyVariation = 2029,
  kHourlyQuota = 2031,
  kCountFixtures = 2032,
  kPickColdTemperature = 2033,
  kColdTemperature = 2034,
  kHeat = 2035,
  kFlow = 2036,
};

constexpr const wchar_t* kAllDayGroup = L"全日供应耗热量参数";
constexpr const wchar_t* kTimedGroup = L"定时供应耗热量参数";
constexpr const wchar_t* kWaterGroup = L"设计水量参数";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kAllDay,
     .name = L"supplyMode",
     .label = L"全天供应",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart},
    {.id = kTimed, .label = L"定时供应", .kind = ControlKind::kRadio, .place = Placement::kBeside},
    {.id = kPickQuota, .label = L"热水用水定额", .kind = ControlKind::kButton, .group = kAllDayGroup},
    {.id = kWaterQuota,
     .name = L"waterQuota",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kAllDayGroup,
     .place = Placement::kBeside},
    {.id = kBuilding, .name = L"buildingText", .kind = ControlKind::kStatic, .group = kAllDayGroup},
    {.id = kUnits,
     .name = L"units",
     .label = L"用水计算单位数：",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kAllDayGroup},
    {.id = kPickHourlyVariation,
     .label = L"小时变化系数",
     .kind = ControlKind::kButton,
     .group = kAllDayGroup},
    {.id = kHourlyVariation,
     .name = L"Kh",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kAllDayGroup,
     .place = Placement::kBeside},
    {.id = kCountFixtures, .label = L"小时用水定额", .kind = ControlKind::kButton, .group = kTimedGroup},
    {.id = kHourlyQuota,
     .name = L"hourlyQuota",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kTimedGroup,
     .place = Placement::kBeside},
    {.id = kPickColdTemperature, .label = L"冷水温度(℃)", .kind = ControlKind::kButton, .group = kWaterGroup},
    {.id = kColdTemperature,
     .name = L"coldTemperature",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kWaterGroup,
     .place = Placement::kBeside},
    {.id = kHeat,
     .name = L"heatResult",
     .label = L"小时耗热量(kJ/h)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kFlow,
     .name = L"flowResult",
     .label = L"小时热水量(L/h)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kCompute,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = zwt::kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kExit, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};
constexpr int kButtons[] = {kCompute};
constexpr int kResults[] = {kHeat, kFlow};

}  // namespace

namespace zwt {

constexpr PanelTemplate kHeatDemandPanel = {.resource = 2007,
                                            .className = L"ZcUiComputeRSDialog",
                                            .title = L"热水计算",
                                            .command = L"ZWTRSJS",
                                            .controls = kControls,
                                            .calculatingButtons = kButtons,
                                            .results = kResults};

void RunHeatDemandCommand() {
  RunPanel<ZcUiComputeRSDialog>();
}

}  // namespace zwt

ZcUiComputeRSDialog::ZcUiComputeRSDialog(CDialog* parent) : ZcUiDialog(zwt::kHeatDemandPanel, parent) {
  OnClick(kAllDay, [this] { ChooseAllDay(); });
  OnClick(kTimed, [this] { ChooseTimed(); });
  OnClick(kPickQuota, [this] { PickQuota(); });
  OnClick(kPickHourlyVariation, [this] { PickHourlyVariation(); });
  OnClick(kCountFixtures, [this] { CountFixtures(); });
  OnClick(kPickColdTemperature, [this] { PickColdTemperature(); });
  OnClick(kCompute, [this] {
    zwt::RememberedFixtureCounts().Clear();
    Calculate();
  });
}

void ZcUiComputeRSDialog::OnInitDialog() {
  ZcUiDialog::OnInitDialog();
  CheckRadioButton(kAllDay);
  ChooseAllDay();
}

void ZcUiComputeRSDialog::OnCancel() {
  zwt::RememberedFixtureCounts().Clear();
  ZcUiDialog::OnCancel();
}

void ZcUiComputeRSDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, kWaterQuota, input_.waterQuota);
  DDX_Text(exchange, kUnits, input_.units);
  DDX_Text(exchange, kHourlyVariation, input_.hourlyVariation);
  DDX_Text(exchange, kHourlyQuota, input_.hourlyQuota);
  DDX_Text(exchange, kColdTemperature, input_.coldTemperature);
  DDX_Text(exchange, kBuilding, buildingText_);
  DDX_Text(exchange, kHeat, result_.heatText);
  DDX_Text(exchange, kFlow, result_.flowText);
}

void ZcUiComputeRSDialog::ChooseAllDay() {
  EnableSupply(zwt::HotWaterSupply::AllDay);
  if (!UpdateData(true)) return;
  buildingText_.clear();
  input_.hourlyQuota = 0.0;
  UpdateData(false);
}

/// The values of the all-day supply stay, unseen.
void ZcUiComputeRSDialog::ChooseTimed() {
  EnableSupply(zwt::HotWaterSupply::Timed);
  if (!UpdateData(true)) return;
  buildingText_.clear();
  UpdateData(false);
}

void ZcUiComputeRSDialog::EnableSupply(zwt::HotWaterSupply supply) {
  input_.supply = supply;
  const bool allDay = supply == zwt::HotWaterSupply::AllDay;
  Enable({kPickQuota, kWaterQuota, kUnits, kPickHourlyVariation, kHourlyVariation}, allDay);
  Enable({kCountFixtures, kHourlyQuota}, !allDay);
}

void ZcUiComputeRSDialog::PickQuota() {
  ZcUiComputeRsParamDialog picking(this);
  if (picking.DoModal() != IDOK || !UpdateData(true)) return;
  input_.waterQuota = picking.quota;
  input_.useHours = picking.hours;
  buildingText_ = picking.buildingText;
  UpdateData(false);
}

void ZcUiComputeRSDialog::PickHourlyVariation() {
  ZcUiComputeRsCoeffDialog picking(this);
  if (picking.DoModal() != IDOK || !UpdateData(true)) return;
  input_.hourlyVariation = picking.hourlyVariation;
  UpdateData(false);
}

void ZcUiComputeRSDialog::CountFixtures() {
  ZcUiComputeRsWareDialog counting(input_.hourlyQuota, this);
  if (counting.DoModal() != IDOK || !UpdateData(true)) return;
  input_.hourlyQuota = counting.hourlyQuota;
  UpdateData(false);
}

void ZcUiComputeRSDialog::PickColdTemperature() {
  ZcUiComputeRsColdDialog picking(this);
  if (picking.DoModal() != IDOK || !UpdateData(true)) return;
  input_.coldTemperature = picking.temperature;
  UpdateData(false);
}

void ZcUiComputeRSDialog::Calculate() {
  if (!UpdateData(true)) return;
  result_ = {};
  UpdateData(false);
  result_ = zwt::ComputeHeatDemand(input_);
  UpdateData(false);
}
