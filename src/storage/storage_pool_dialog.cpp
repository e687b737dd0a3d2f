// Controls and handlers of the storage pool panel.
#include "storage/storage_pool_dialog.h"

#include "frame/scope/panel_command.h"
#include "host/text/number_text.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;
using zwt::ValueKind;

enum Control : int {
  kCompute = 1,
  kExit = 2,
  kSprinklerFlow = 2120,
  kFireReserve = 2121,
  kInletDiameter = 2123,
  kInletVelocity = 2124,
  kInletSupply = 2125,
  kCountRegulating = 2127,
  kCountFireReserve = 2128,
  kCountDomesticReserve = 2129,
  kCountInletSupply = 2130,
  kMaximumDay = 2131,
  kRegulatingPercent = 2132,
  kRegulating = 2133,
  kReserveHours = 2134,
  kHourlyUse = 2135,
  kDomesticReserve = 2136,
  kTotal = 2137,
  kInletFlow = 2138,
  kComputeInletFlow = 2139,
  kFireHours = 2140,
  kIndoorHydrantFlow = 2141,
  kOutdoorHydrantFlow = 2142,
  kHint = 3000,
};

constexpr const wchar_t* kPartsGroup = L"计算内容";
constexpr const wchar_t* kRegulatingGroup = L"调节容积";
constexpr const wchar_t* kDomesticGroup = L"生活储备";
constexpr const wchar_t* kFireGroup = L"消防用水量";
constexpr const wchar_t* kInletGroup = L"进水管补充水量";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kCountRegulating,
     .name = L"countRegulating",
     .label = L"调节容积(&A)",
     .kind = ControlKind::kCheck,
     .group = kPartsGroup},
    {.id = kCountDomesticReserve,
     .name = L"countDomesticReserve",
     .label = L"生活储备(&B)",
     .kind = ControlKind::kCheck,
     .group = kPartsGroup,
     .place = Placement::kBeside},
    {.id = kCountFireReserve,
     .name = L"countFireReserve",
     .label = L"消防用水量(&C)",
     .kind = ControlKind::kCheck,
     .group = kPartsGroup},
    {.id = kCountInletSupply,
     .name = L"countInletSupply",
     .label = L"进水管补充水量(&D)",
     .kind = ControlKind::kCheck,
     .group = kPartsGroup,
     .place = Placement::kBeside},
    {.id = kMaximumDay,
     .name = L"maximumDay",
     .label = L"最高日用水量(m3)：",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kRegulatingGroup},
    {.id = kRegulatingPercent,
     .name = L"regulatingPercent",
     .label = L"百分比系数(%)：",
     .kind = ControlKind::kEdit,
     .text = L"10",
     .value = ValueKind::kNumber,
     .group = kRegulatingGroup},
    {.id = kHint,
     .label = L"估算：Q1=8%～12%全日用水量",
     .kind = ControlKind::kStatic,
     .group = kRegulatingGroup},
    {.id = kRegulating,
     .name = L"regulating",
     .label = L"调节容积(m3)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kRegulatingGroup},
    {.id = kReserveHours,
     .name = L"reserveHours",
     .label = L"储备时间(h)：",
     .kind = ControlKind::kEdit,
     .text = L"3",
     .value = ValueKind::kNumber,
     .group = kDomesticGroup},
    {.id = kHourlyUse,
     .name = L"hourlyUse",
     .label = L"小时水量(m3/h)：",
     .kind = ControlKind::kEdit,
     .text = L"0",
     .value = ValueKind::kNumber,
     .group = kDomesticGroup},
    {.id = kDomesticReserve,
     .name = L"domesticReserve",
     .label = L"生活储备用水量(m3)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kDomesticGroup},
    {.id = kFireHours,
     .name = L"fireHours",
     .label = L"火灾延续时间(h)：",
     .kind = ControlKind::kEdit,
     .text = L"3",
     .value = ValueKind::kNumber,
     .group = kFireGroup,
     .column = 1},
    {.id = kIndoorHydrantFlow,
     .name = L"indoorHydrantFlow",
     .label = L"室内消火栓水量(L/s)：",
     .kind = ControlKind::kEdit,
     .text = L"40",
     .value = ValueKind::kNumber,
     .group = kFireGroup,
     .column = 1},
    {.id = kOutdoorHydrantFlow,
     .name = L"outdoorHydrantFlow",
     .label = L"室外消火栓水量(L/s)：",
     .kind = ControlKind::kEdit,
     .text = L"30",
     .value = ValueKind::kNumber,
     .group = kFireGroup,
     .column = 1},
    {.id = kSprinklerFlow,
     .name = L"sprinklerFlow",
     .label = L"自动喷洒用水量(L/s)：",
     .kind = ControlKind::kEdit,
     .text = L"30",
     .value = ValueKind::kNumber,
     .group = kFireGroup,
     .column = 1},
    {.id = kFireReserve,
     .name = L"fireReserve",
     .label = L"消防用水量(m3)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kFireGroup,
     .column = 1},
    {.id = kInletDiameter,
     .name = L"inletDiameter",
     .label = L"管径(mm)：",
     .kind = ControlKind::kEdit,
     .text = L"100",
     .value = ValueKind::kNumber,
     .group = kInletGroup,
     .column = 1},
    {.id = kInletVelocity,
     .name = L"inletVelocity",
     .label = L"流速(m/s)：",
     .kind = ControlKind::kEdit,
     .text = L"1.5",
     .value = ValueKind::kNumber,
     .group = kInletGroup,
     .column = 1},
    {.id = kComputeInletFlow,
     .label = L"进水管补充水量Qg(m3/h)",
     .kind = ControlKind::kButton,
     .group = kInletGroup,
     .column = 1},
    {.id = kInletFlow,
     .name = L"inletFlow",
     .kind = ControlKind::kEdit,
     .text = L"0.00",
     .group = kInletGroup,
     .place = Placement::kBeside,
     .column = 1},
    {.id = kInletSupply,
     .name = L"inletSupply",
     .label = L"补充水量Qg(m3)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kInletGroup,
     .column = 1},
    {.id = kTotal,
     .name = L"total",
     .label = L"水池总容积(m3)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup,
     .column = 1},
    {.id = kCompute,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = zwt::kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kExit, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};
constexpr int kButtons[] = {kCompute};
constexpr int kResults[] = {kRegulating, kDomesticReserve, kFireReserve, kInletFlow, kInletSupply, kTotal};

void TakeOver(CString& held, const std::optional<CString>& result) {
  if (result) held = *result;
}

}  // namespace

namespace zwt {

constexpr PanelTemplate kStoragePoolPanel = {.resource = 2023,
                                             .className = L"ZcUiComputePoolDialog",
                                             .title = L"贮水池容积计算",
                                             .command = L"ZWTZSC",
                                             .controls = kControls,
                                             .calculatingButtons = kButtons,
                                             .results = kResults};

void RunStoragePoolCommand() {
  RunPanel<ZcUiComputePoolDialog>();
}

}  // namespace zwt

ZcUiComputePoolDialog::ZcUiComputePoolDialog(CDialog* parent) : ZcUiDialog(zwt::kStoragePoolPanel, parent) {
  OnClick(kCompute, [this] { Calculate(); });
  OnClick(kComputeInletFlow, [this] { ShowInletFlow(); });
  OnClick(kCountFireReserve, [this] { SwitchInletSupply(); });
}

/// The inlet flow is computed while its check box is still clear, and so starts at 0.
void ZcUiComputePoolDialog::OnInitDialog() {
  ZcUiDialog::OnInitDialog();
  ShowInletFlow();
  for (const int part : {kCountRegulating, kCountFireReserve, kCountDomesticReserve, kCountInletSupply}) {
    Button(part).SetCheck(true);
  }
}

void ZcUiComputePoolDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, kInletDiameter, input_.inletDiameter);
  DDX_Text(exchange, kInletVelocity, input_.inletVelocity);
  DDX_Text(exchange, kInletFlow, inletFlowText_);
  DDX_Text(exchange, kFireHours, input_.fireHours);
  DDX_Text(exchange, kIndoorHydrantFlow, input_.indoorHydrantFlow);
  DDX_Text(exchange, kOutdoorHydrantFlow, input_.outdoorHydrantFlow);
  DDX_Text(exchange, kSprinklerFlow, input_.sprinklerFlow);
  DDX_Text(exchange, kFireReserve, fireReserveText_);
  DDX_Text(exchange, kMaximumDay, input_.maximumDay);
  DDX_Text(exchange, kRegulatingPercent, input_.regulatingPercent);
  DDX_Text(exchange, kRegulating, regulatingText_);
  DDX_Text(exchange, kReserveHours, input_.reserveHours);
  DDX_Text(exchange, kHourlyUse, input_.hourlyUse);
  DDX_Text(exchange, kDomesticReserve, domesticReserveText_);
  DDX_Text(exchange, kInletSupply, inletSupplyText_);
  DDX_Text(exchange, kTotal, totalText_);
}

void ZcUiComputePoolDialog::ShowInletFlow() {
  if (!UpdateData(true)) return;
  inletFlowText_ = zwt::FormatFixed(zwt::InletFlow(input_, Button(kCountInletSupply).GetCheck()), 2);
  UpdateData(false);
}

void ZcUiComputePoolDialog::SwitchInletSupply() {
  Enable({kCountInletSupply}, Button(kCountFireReserve).GetCheck());
}

void ZcUiComputePoolDialog::Calculate() {
  if (!UpdateData(true)) return;
  const zwt::StoragePoolParts parts{.regulating = Button(kCountRegulating).GetCheck(),
                                    .domesticReserve = Button(kCountDomesticReserve).GetCheck(),
                                    .fireReserve = Button(kCountFireReserve).GetCheck(),
                                    .inletSupply = Button(kCountInletSupply).GetCheck()};
  const zwt::StoragePoolResult result = zwt::ComputeStoragePool(input_, parts);
  TakeOver(regulatingText_, result.regulating);
  TakeOver(domesticReserveText_, result.domesticReserve);
  TakeOver(fireReserveText_, result.fireReserve);
  TakeOver(inletFlowText_, result.inletFlow);
  inletSupplyText_ = result.inletSupply;
  totalText_ = result.total;
  UpdateData(false);
}
