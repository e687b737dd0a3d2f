// Controls and handlers of the hydrant jet panel.
#include "fire/hydrant_jet_dialog.h"

#include "frame/scope/panel_command.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;

enum Control : int {
  kHoseMaterial = 3000,
  kHoseDiameter,
  kHoseLength,
  kNozzle,
  kKnownColumn,
  kKnownFlow,
  kInputLabel,
  kInput,
  kResultLabel,
  kResult,
  kPressure,
  kRadius,
  kCompute,
  kExit,
};

constexpr const wchar_t* kHoseMaterials[] = {L"衬胶", L"帆布、麻织"};
constexpr const wchar_t* kHoseDiameters[] = {L"50", L"65"};
constexpr const wchar_t* kNozzles[] = {L"13", L"16", L"19", L"22", L"25"};
constexpr const wchar_t* kInputGroup = L"输入数据";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kHoseMaterial,
     .name = L"hoseMaterialIndex",
     .label = L"水龙带材料：",
     .kind = ControlKind::kCombo,
     .items = kHoseMaterials,
     .text = L"衬胶",
     .group = kInputGroup},
    {.id = kHoseDiameter,
     .name = L"hoseDiameterIndex",
     .label = L"水龙带直径(mm)：",
     .kind = ControlKind::kCombo,
     .items = kHoseDiameters,
     .text = L"65",
     .group = kInputGroup},
    {.id = kHoseLength,
     .name = L"hoseLengthText",
     .label = L"水龙带长度(m)：",
     .kind = ControlKind::kEdit,
     .text = L"25",
     .group = kInputGroup},
    {.id = kNozzle,
     .name = L"nozzleIndex",
     .label = L"水龙喷嘴直径(mm)：",
     .kind = ControlKind::kCombo,
     .items = kNozzles,
     .text = L"19",
     .group = kInputGroup},
    {.id = kKnownColumn,
     .name = L"knownMode",
     .label = L"已知充实水柱长度",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart,
     .group = kInputGroup},
    {.id = kKnownFlow,
     .label = L"已知出口水流量",
     .kind = ControlKind::kRadio,
     .group = kInputGroup,
     .place = Placement::kBeside},
    {.id = kInputLabel,
     .name = L"inputLabel",
     .label = L"水枪喷嘴射出流量(L/s)：",
     .kind = ControlKind::kStatic,
     .group = kInputGroup,
     .labelOf = kInput},
    {.id = kInput, .name = L"inputText", .kind = ControlKind::kEdit, .group = kInputGroup},
    {.id = kResultLabel,
     .name = L"resultLabel",
     .label = L"充实水柱长度(m)：",
     .kind = ControlKind::kStatic,
     .group = kResultGroup,
     .labelOf = kResult},
    {.id = kResult,
     .name = L"resultText",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kPressure,
     .name = L"pressureText",
     .label = L"消火栓栓口水压(mH2O)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kRadius,
     .name = L"radiusText",
     .label = L"消火栓保护半径(m)：",
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
constexpr int kResults[] = {kResult, kPressure, kRadius};

}  // namespace

namespace zwt {

constexpr PanelTemplate kHydrantJetPanel = {.resource = 2017,
                                            .className = L"ZcUiHydrantDialoge",
                                            .title = L"消火栓计算",
                                            .command = L"ZWTXHS",
                                            .controls = kControls,
                                            .calculatingButtons = kButtons,
                                            .results = kResults};

void RunHydrantJetCommand() {
  RunPanel<ZcUiHydrantDialoge>();
}

}  // namespace zwt

ZcUiHydrantDialoge::ZcUiHydrantDialoge(CDialog* parent) : ZcUiDialog(zwt::kHydrantJetPanel, parent) {
  OnClick(kKnownColumn, [this] { ChooseKnown(zwt::JetKnown::WaterColumn); });
  OnClick(kKnownFlow, [this] { ChooseKnown(zwt::JetKnown::Flow); });
  OnClick(kCompute, [this] { ComputeHydrantJet(); });
  OnClick(kExit, [this] { EndDialog(IDCANCEL); });
}

void ZcUiHydrantDialoge::OnInitDialog() {
  hoseMaterialIndex_ = 0;
  hoseDiameterIndex_ = 1;
  hoseLengthText_ = L"25";
  nozzleIndex_ = 2;
  knownMode_ = static_cast<std::int32_t>(zwt::JetKnown::Flow);
  ZcUiDialog::OnInitDialog();
}

void ZcUiHydrantDialoge::DoDataExchange(CDataExchange* exchange) {
  DDX_CBIndex(exchange, kHoseMaterial, hoseMaterialIndex_);
  DDX_CBIndex(exchange, kHoseDiameter, hoseDiameterIndex_);
  DDX_Text(exchange, kHoseLength, hoseLengthText_);
  DDX_CBIndex(exchange, kNozzle, nozzleIndex_);
  DDX_Radio(exchange, kKnownColumn, knownMode_);
  DDX_Text(exchange, kInput, inputText_);
  DDX_Text(exchange, kResult, resultText_);
  DDX_Text(exchange, kPressure, pressureText_);
  DDX_Text(exchange, kRadius, radiusText_);
}

/// The last result becomes the input of the other direction.
void ZcUiHydrantDialoge::ChooseKnown(zwt::JetKnown known) {
  if (!UpdateData(true)) return;
  knownMode_ = static_cast<std::int32_t>(known);
  const bool column = known == zwt::JetKnown::WaterColumn;
  // The water column as input is the one caption without a colon.
  SetDlgItemText(kInputLabel, column ? L"充实水柱长度(m)" : L"消火栓出口流量(L/s):");
  SetDlgItemText(kResultLabel, column ? L"消火栓出口流量(L/s):" : L"充实水柱长度(m):");
  inputText_ = resultText_;
  resultText_.clear();
  UpdateData(false);
}

zwt::HydrantJetInput ZcUiHydrantDialoge::Input() const {
  return {.hoseMaterialIndex = hoseMaterialIndex_,
          .hoseDiameterIndex = hoseDiameterIndex_,
          .nozzleIndex = nozzleIndex_,
          .known = static_cast<zwt::JetKnown>(knownMode_),
          .inputText = inputText_,
          .hoseLengthText = hoseLengthText_};
}

void ZcUiHydrantDialoge::ComputeHydrantJet() {
  if (!UpdateData(true)) return;
  const zwt::HydrantJetResult result = zwt::ComputeHydrantJet(Input());
  resultText_ = result.resultText;
  pressureText_ = result.pressureText;
  if (result.radiusText) radiusText_ = *result.radiusText;
  UpdateData(false);
  if (!result.message.empty()) MessageBoxW(result.message);
  if (result.focus) Edit(*result.focus == zwt::JetField::HoseLength ? kHoseLength : kInput).FocusAndSelect();
}
