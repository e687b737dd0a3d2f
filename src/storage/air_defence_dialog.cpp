// Controls and handlers of the civil air defence panel.
#include "storage/air_defence_dialog.h"

#include "frame/scope/panel_command.h"

namespace {

using zwt::AirDefenceField;
using zwt::ControlKind;
using zwt::Placement;

enum Control : int {
  kExit = 1,
  kWork = 2048,
  kStaff = 2049,
  kStaffDrinking = 2050,
  kStaffDomestic = 2051,
  kWounded = 2052,
  kWoundedDrinking = 2053,
  kWoundedDomestic = 2054,
  kReliableInside = 2055,
  kNoReliableInside = 2056,
  kDrinkingDays = 2057,
  kProtectedOutside = 2058,
  kDomesticTime = 2059,
  kDrinkingTotal = 2060,
  kDomesticTotal = 2061,
  kWoundedLabel = 2062,
  kStaffLabel = 2063,
  kDomesticTimeLabel = 2064,
  kCompute = 2065,
  kPeople = 2066,
  kDrinking = 2067,
  kDomestic = 2068,
  kPeopleLabel = 3000,
  kDrinkingLabel,
  kDomesticLabel,
};

constexpr const wchar_t* kWorks[] = {L"人员掩蔽工程", L"专业队队员掩蔽部", L"配套工程", L"救护站",
                                     L"中心医院、急救医院"};
constexpr const wchar_t* kWorkGroup = L"工程类别及水源";
constexpr const wchar_t* kUseGroup = L"人数及用水量标准";
constexpr const wchar_t* kTimeGroup = L"贮水时间";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kWork,
     .name = L"projectType",
     .label = L"选择工程类别：",
     .kind = ControlKind::kCombo,
     .items = kWorks,
     .text = L"人员掩蔽工程",
     .group = kWorkGroup},
    {.id = kReliableInside,
     .name = L"waterSource",
     .label = L"有可靠内水源",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart,
     .group = kWorkGroup},
    {.id = kNoReliableInside,
     .label = L"无可靠内水源",
     .kind = ControlKind::kRadio,
     .group = kWorkGroup,
     .place = Placement::kBeside},
    {.id = kProtectedOutside,
     .name = L"protectedOutside",
     .label = L"有防护外水源",
     .kind = ControlKind::kCheck,
     .style = zwt::kDisabled,
     .group = kWorkGroup,
     .place = Placement::kBeside},
    {.id = kPeopleLabel,
     .label = L"人数：",
     .kind = ControlKind::kStatic,
     .group = kUseGroup,
     .labelOf = kPeople},
    {.id = kPeople, .name = L"people", .kind = ControlKind::kEdit, .group = kUseGroup},
    {.id = kWoundedLabel,
     .label = L"伤病员",
     .kind = ControlKind::kStatic,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside,
     .labelOf = kWounded},
    {.id = kWounded,
     .name = L"wounded",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kStaffLabel,
     .label = L"工作人员",
     .kind = ControlKind::kStatic,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside,
     .labelOf = kStaff},
    {.id = kStaff,
     .name = L"staff",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kDrinkingLabel,
     .label = L"饮用水(L/pd)：",
     .kind = ControlKind::kStatic,
     .group = kUseGroup,
     .labelOf = kDrinking},
    {.id = kDrinking, .name = L"drinking", .kind = ControlKind::kEdit, .text = L"6", .group = kUseGroup},
    {.id = kWoundedDrinking,
     .name = L"woundedDrinking",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kStaffDrinking,
     .name = L"staffDrinking",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kDomesticLabel,
     .label = L"生活用水(L/pd)：",
     .kind = ControlKind::kStatic,
     .group = kUseGroup,
     .labelOf = kDomestic},
    {.id = kDomestic, .name = L"domestic", .kind = ControlKind::kEdit, .text = L"4", .group = kUseGroup},
    {.id = kWoundedDomestic,
     .name = L"woundedDomestic",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kStaffDomestic,
     .name = L"staffDomestic",
     .kind = ControlKind::kEdit,
     .style = zwt::kHidden,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kDrinkingDays,
     .name = L"drinkingDays",
     .label = L"饮用水贮水时间(d)：",
     .kind = ControlKind::kEdit,
     .text = L"3",
     .group = kTimeGroup},
    {.id = kDomesticTimeLabel,
     .label = L"生活用水贮水时间(h):",
     .kind = ControlKind::kStatic,
     .group = kTimeGroup,
     .labelOf = kDomesticTime},
    {.id = kDomesticTime,
     .name = L"domesticTime",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .text = L"0",
     .group = kTimeGroup},
    {.id = kDrinkingTotal,
     .name = L"drinkingTotal",
     .label = L"饮用水总量(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kDomesticTotal,
     .name = L"domesticTotal",
     .label = L"生活用水总量(立方米)：",
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
constexpr int kResults[] = {kDrinkingTotal, kDomesticTotal};

int ControlOf(AirDefenceField field) {
  switch (field) {
    case AirDefenceField::DrinkingDays:
      return kDrinkingDays;
    case AirDefenceField::DomesticTime:
      return kDomesticTime;
    case AirDefenceField::People:
      return kPeople;
    case AirDefenceField::Drinking:
      return kDrinking;
    case AirDefenceField::Domestic:
      return kDomestic;
    case AirDefenceField::Wounded:
      return kWounded;
    case AirDefenceField::WoundedDrinking:
      return kWoundedDrinking;
    case AirDefenceField::WoundedDomestic:
      return kWoundedDomestic;
    case AirDefenceField::Staff:
      return kStaff;
    case AirDefenceField::StaffDrinking:
      return kStaffDrinking;
    case AirDefenceField::StaffDomestic:
      return kStaffDomestic;
  }
  return kDrinkingDays;
}

}  // namespace

namespace zwt {

constexpr PanelTemplate kAirDefencePanel = {.resource = 2012,
                                            .className = L"ZcUiAerialDefenceDialog",
                                            .title = L"人防用水量计算",
                                            .command = L"ZWTRFSL",
                                            .controls = kControls,
                                            .calculatingButtons = kButtons,
                                            .results = kResults};

void RunAirDefenceCommand() {
  RunPanel<ZcUiAerialDefenceDialog>();
}

}  // namespace zwt

ZcUiAerialDefenceDialog::ZcUiAerialDefenceDialog(CDialog* parent)
    : ZcUiDialog(zwt::kAirDefencePanel, parent) {
  OnSelectionChange(kWork, [this] { ChooseWork(); });
  OnClick(kReliableInside, [this] { ChooseSource(zwt::WaterSource::ReliableInside); });
  OnClick(kNoReliableInside, [this] { ChooseSource(zwt::WaterSource::NoReliableInside); });
  OnClick(kProtectedOutside, [this] { ToggleOutside(); });
  OnClick(kCompute, [this] { Calculate(); });
}

void ZcUiAerialDefenceDialog::OnInitDialog() {
  ZcUiDialog::OnInitDialog();
  ShowState();
}

/// The texts alone: work and source have their own handlers, which compare with what is held.
void ZcUiAerialDefenceDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, kPeople, state_.people);
  DDX_Text(exchange, kDrinking, state_.drinking);
  DDX_Text(exchange, kDomestic, state_.domestic);
  DDX_Text(exchange, kWounded, state_.wounded);
  DDX_Text(exchange, kWoundedDrinking, state_.woundedDrinking);
  DDX_Text(exchange, kWoundedDomestic, state_.woundedDomestic);
  DDX_Text(exchange, kStaff, state_.staff);
  DDX_Text(exchange, kStaffDrinking, state_.staffDrinking);
  DDX_Text(exchange, kStaffDomestic, state_.staffDomestic);
  DDX_Text(exchange, kDrinkingDays, state_.drinkingDays);
  DDX_Text(exchange, kDomesticTime, state_.domesticTime);
  DDX_Text(exchange, kDrinkingTotal, drinkingTotal_);
  DDX_Text(exchange, kDomesticTotal, domesticTotal_);
}

void ZcUiAerialDefenceDialog::ChooseWork() {
  if (!UpdateData(true)) return;
  zwt::ChooseWork(state_, static_cast<zwt::AirDefenceWork>(Combo(kWork).GetCurSel()));
  ShowState();
}

void ZcUiAerialDefenceDialog::ChooseSource(zwt::WaterSource source) {
  if (!UpdateData(true)) return;
  zwt::ChooseWaterSource(state_, source);
  ShowState();
}

void ZcUiAerialDefenceDialog::ToggleOutside() {
  if (!UpdateData(true)) return;
  zwt::ToggleProtectedOutside(state_);
  ShowState();
}

void ZcUiAerialDefenceDialog::ShowState() {
  const bool twoColumns = zwt::HasTwoColumns(state_.work);
  Show({kPeople, kDrinking, kDomestic}, !twoColumns);
  Show({kWoundedLabel, kWounded, kWoundedDrinking, kWoundedDomestic, kStaffLabel, kStaff, kStaffDrinking,
        kStaffDomestic},
       twoColumns);
  const bool reliable = state_.source == zwt::WaterSource::ReliableInside;
  CheckRadioButton(reliable ? kReliableInside : kNoReliableInside);
  Button(kProtectedOutside).SetCheck(state_.protectedOutside);
  Enable({kProtectedOutside}, state_.outsideEnabled);
  SetDlgItemText(kDomesticTimeLabel, zwt::DomesticTimeLabel(state_.source));
  Edit(kDrinkingDays).SetReadOnly(state_.drinkingDaysReadOnly);
  Edit(kDomesticTime).SetReadOnly(state_.domesticTimeReadOnly);
  UpdateData(false);
}

void ZcUiAerialDefenceDialog::Calculate() {
  if (!UpdateData(true)) return;
  const zwt::AirDefenceResult result = zwt::ComputeAirDefenceWater(state_);
  if (result.focus) Edit(ControlOf(*result.focus)).FocusAndSelect();
  if (result.drinkingTotal) drinkingTotal_ = *result.drinkingTotal;
  if (result.domesticTotal) domesticTotal_ = *result.domesticTotal;
  UpdateData(false);
}
