// Controls and handlers of the pressure tank panel.
#include "storage/pressure_tank_dialog.h"

#include "frame/scope/panel_command.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;
using zwt::PressureTankField;

enum Control : int {
  kExit = 2,
  kCompute = 2065,
  kPressureRatio = 2066,
  kPumpStarts = 2067,
  kSafetyFactor = 2068,
  kPumpFlow = 2069,
  kVolumeFactor = 2070,
  kRegulatingVolume = 2071,
  kTotalVolume = 2072,
  kHeightDifference = 2073,
  kHeadLoss = 2074,
  kOutletHead = 2075,
  kLowestPressure = 2076,
  kHighestPressure = 2077,
};

constexpr const wchar_t* kVolumeGroup = L"容积计算";
constexpr const wchar_t* kPressureGroup = L"压力计算";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kPressureRatio,
     .name = L"pressureRatio",
     .label = L"最小压力/最大压力比：",
     .kind = ControlKind::kEdit,
     .text = L"0.7",
     .group = kVolumeGroup},
    {.id = kPumpStarts,
     .name = L"pumpStarts",
     .label = L"水泵开启最大频率(/h)：",
     .kind = ControlKind::kEdit,
     .text = L"6",
     .group = kVolumeGroup},
    {.id = kSafetyFactor,
     .name = L"safetyFactor",
     .label = L"安全系数：",
     .kind = ControlKind::kEdit,
     .text = L"1.0",
     .group = kVolumeGroup},
    {.id = kPumpFlow,
     .name = L"pumpFlow",
     .label = L"水泵总出水量(L/s)：",
     .kind = ControlKind::kEdit,
     .group = kVolumeGroup},
    {.id = kVolumeFactor,
     .name = L"volumeFactor",
     .label = L"容积系数：",
     .kind = ControlKind::kEdit,
     .text = L"1.25",
     .group = kVolumeGroup},
    {.id = kHeightDifference,
     .name = L"heightDifference",
     .label = L"最低水位与最不利配水点的高程差(m)：",
     .kind = ControlKind::kEdit,
     .group = kPressureGroup},
    {.id = kHeadLoss,
     .name = L"headLoss",
     .label = L"管网沿程水头损失与局部水头损失之和(m)：",
     .kind = ControlKind::kEdit,
     .group = kPressureGroup},
    {.id = kOutletHead,
     .name = L"outletHead",
     .label = L"最不利点流出水头(m)：",
     .kind = ControlKind::kEdit,
     .group = kPressureGroup},
    {.id = kRegulatingVolume,
     .name = L"regulatingVolume",
     .label = L"调节容积(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kTotalVolume,
     .name = L"totalVolume",
     .label = L"总容积(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kLowestPressure,
     .name = L"lowestPressure",
     .label = L"最低工作压力(MPa)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kHighestPressure,
     .name = L"highestPressure",
     .label = L"最高工作压力(MPa)：",
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
constexpr int kResults[] = {kRegulatingVolume, kTotalVolume, kLowestPressure, kHighestPressure};

int ControlOf(PressureTankField field) {
  switch (field) {
    case PressureTankField::PressureRatio:
      return kPressureRatio;
    case PressureTankField::PumpStarts:
      return kPumpStarts;
    case PressureTankField::SafetyFactor:
      return kSafetyFactor;
    case PressureTankField::PumpFlow:
      return kPumpFlow;
    case PressureTankField::VolumeFactor:
      return kVolumeFactor;
    case PressureTankField::HeightDifference:
      return kHeightDifference;
    case PressureTankField::HeadLoss:
      return kHeadLoss;
    case PressureTankField::OutletHead:
      return kOutletHead;
  }
  return kPressureRatio;
}

}  // namespace

namespace zwt {

constexpr PanelTemplate kPressureTankPanel = {.resource = 2014,
                                              .className = L"ZcUiAirContainerDialog",
                                              .title = L"气压水罐计算",
                                              .command = L"ZWTQYSG",
                                              .controls = kControls,
                                              .calculatingButtons = kButtons,
                                              .results = kResults};

void RunPressureTankCommand() {
  RunPanel<ZcUiAirContainerDialog>();
}

}  // namespace zwt

ZcUiAirContainerDialog::ZcUiAirContainerDialog(CDialog* parent)
    : ZcUiDialog(zwt::kPressureTankPanel, parent) {
  OnClick(kCompute, [this] { Calculate(); });
}

void ZcUiAirContainerDialog::OnInitDialog() {
  input_.pressureRatio = L"0.7";
  input_.pumpStarts = L"6";
  input_.safetyFactor = L"1.0";
  input_.volumeFactor = L"1.25";
  ZcUiDialog::OnInitDialog();
}

void ZcUiAirContainerDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, kPressureRatio, input_.pressureRatio);
  DDX_Text(exchange, kPumpStarts, input_.pumpStarts);
  DDX_Text(exchange, kSafetyFactor, input_.safetyFactor);
  DDX_Text(exchange, kPumpFlow, input_.pumpFlow);
  DDX_Text(exchange, kVolumeFactor, input_.volumeFactor);
  DDX_Text(exchange, kHeightDifference, input_.heightDifference);
  DDX_Text(exchange, kHeadLoss, input_.headLoss);
  DDX_Text(exchange, kOutletHead, input_.outletHead);
  DDX_Text(exchange, kRegulatingVolume, result_.regulatingVolume);
  DDX_Text(exchange, kTotalVolume, result_.totalVolume);
  DDX_Text(exchange, kLowestPressure, result_.lowestPressure);
  DDX_Text(exchange, kHighestPressure, result_.highestPressure);
}

void ZcUiAirContainerDialog::Calculate() {
  if (!UpdateData(true)) return;
  result_ = zwt::ComputePressureTank(input_);
  for (const PressureTankField field : result_.focus) Edit(ControlOf(field)).FocusAndSelect();
  UpdateData(false);
}
