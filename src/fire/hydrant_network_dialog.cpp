// Looped hydrant network: parameters and results.
#include "fire/hydrant_network_dialog.h"

#include <memory>
#include <utility>

#include "fire/calculating_dialog.h"
#include "fire/hydrant_demand_dialog.h"
#include "fire/hydrant_formula.h"
#include "fire/hydrant_overlay.h"
#include "frame/scope/push_resource.h"
#include "host/dialog/grouped_rows.h"
#include "host/drawing/entities.h"
#include "host/editor/pipe_selection.h"
#include "host/runtime/command_line.h"
#include "host/text/number_text.h"
#include "output/grid_report.h"

namespace zwt {

namespace {

enum Control {
  kHydrantFlow = 3001,
  kGunCount,
  kGunMinFlow,
  kRiserMinFlow,
  kDemandButton,
  kNozzle,
  kHoseLength,
  kHoseDiameter,
  kWaterColumn,
  kHoseMaterial,
  kJetButton,
  kJetFlow,
  kKeepNumbers,
  kSectionTable,
  kNodeTable,
  kCalculateButton,
  kViewButton,
  kWriteBackButton,
  kReportButton,
};

constexpr const wchar_t* kNozzles[] = {L"13", L"16", L"19", L"22"};
constexpr const wchar_t* kHoseLengths[] = {L"15", L"20", L"25", L"30"};
constexpr const wchar_t* kHoseDiameters[] = {L"50", L"65", L"80"};
constexpr const wchar_t* kWaterColumns[] = {L"6", L"8", L"10", L"12", L"14", L"16"};
constexpr const wchar_t* kHoseMaterials[] = {L"麻织", L"衬胶"};

constexpr const wchar_t* kDemandGroup = L"消防用水量";
constexpr const wchar_t* kGunGroup = L"水枪参数";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr ControlTemplate kNetworkControls[] = {
    {.id = kDemandButton,
     .label = L"建筑物室内消火栓用水量",
     .kind = ControlKind::kButton,
     .group = kDemandGroup},
    {.id = kHydrantFlow,
     .name = L"hydrantFlow",
     .label = L"消火栓用水量(L/s)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = kDemandGroup},
    {.id = kGunCount,
     .name = L"gunCount",
     .label = L"同时使用水枪数量(支)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kWholeNumber,
     .group = kDemandGroup},
    {.id = kGunMinFlow,
     .name = L"gunMinFlow",
     .label = L"每支水枪最小流量(L/s)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = kDemandGroup},
    {.id = kRiserMinFlow,
     .name = L"riserMinFlow",
     .label = L"每根竖管最小流量(L/s)：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = kDemandGroup},
    {.id = kNozzle,
     .name = L"nozzleDiameter",
     .label = L"喷嘴口径(mm)：",
     .kind = ControlKind::kCombo,
     .items = kNozzles,
     .text = L"19",
     .group = kGunGroup,
     .column = 1},
    {.id = kHoseLength,
     .name = L"hoseLength",
     .label = L"水带长度(m)：",
     .kind = ControlKind::kCombo,
     .items = kHoseLengths,
     .text = L"25",
     .group = kGunGroup,
     .column = 1},
    {.id = kHoseDiameter,
     .name = L"hoseDiameter",
     .label = L"水带口径(mm)：",
     .kind = ControlKind::kCombo,
     .items = kHoseDiameters,
     .text = L"50",
     .group = kGunGroup,
     .column = 1},
    {.id = kWaterColumn,
     .name = L"waterColumn",
     .label = L"充实水柱(m)：",
     .kind = ControlKind::kCombo,
     .items = kWaterColumns,
     .text = L"12",
     .group = kGunGroup,
     .column = 1},
    {.id = kHoseMaterial,
     .name = L"hoseMaterial",
     .label = L"水带材料：",
     .kind = ControlKind::kCombo,
     .items = kHoseMaterials,
     .text = L"衬胶",
     .group = kGunGroup,
     .column = 1},
    {.id = kJetButton,
     .label = L"水枪射流量(L/s)",
     .kind = ControlKind::kButton,
     .group = kGunGroup,
     .column = 1},
    {.id = kJetFlow,
     .name = L"jetFlow",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .text = L"0",
     .group = kGunGroup,
     .place = Placement::kBeside,
     .column = 1},
    {.id = kKeepNumbers,
     .name = L"keepNumbers",
     .label = L"退出保留节点编号",
     .kind = ControlKind::kCheck,
     .group = kGunGroup,
     .column = 1},
    {.id = kSectionTable,
     .name = L"sectionTable",
     .kind = ControlKind::kGrid,
     .group = kResultGroup,
     .width = 260,
     .height = 260},
    {.id = kNodeTable,
     .name = L"nodeTable",
     .kind = ControlKind::kGrid,
     .group = kResultGroup,
     .place = Placement::kBeside,
     .width = 230,
     .height = 260},
    {.id = kCalculateButton,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kViewButton, .label = L"查看图面", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = kWriteBackButton,
     .label = L"赋回图中",
     .kind = ControlKind::kButton,
     .place = Placement::kButtonRow},
    {.id = kReportButton, .label = L"计算书", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr HydrantTables kResultTables = {.sections = kSectionTable, .nodes = kNodeTable};

constexpr int kNetworkButtons[] = {kJetButton, kCalculateButton};
constexpr int kNetworkResults[] = {kSectionTable, kNodeTable};

/// Builds the model. False, after telling why, where there is none or none with a loop.
bool BuildLoopedModel(ZwtHydrantGraph& model, AcDbObjectId mainEnd) {
  if (!model.BuildHydrantModel(mainEnd)) {
    acutPrintf(L"\n创建管网数据失败.");
    return false;
  }
  if (!model.HasLoop()) {
    acutPrintf(L"\n无法计算枝状消火栓系统.");
    return false;
  }
  return true;
}

}  // namespace

constexpr PanelTemplate kHydrantNetworkPanel = {.resource = 2028,
                                                .className = L"ZcUiHydrantElementDialog",
                                                .title = L"消火栓环状管网水力计算",
                                                .command = L"ZWTXFJS",
                                                .controls = kNetworkControls,
                                                .calculatingButtons = kNetworkButtons,
                                                .results = kNetworkResults};

void RunHydrantNetworkCommand() {
  ZcDbObjectIdList picked;
  const PipeQuestion question = {L"\n请选择要计算的消防原理图干管末端: ", L"消防", nullptr, true};
  if (!SelectPipes(question, picked)) return;
  const ZcUtPushResource scope;
  ZcUiHydrantElementDialog panel;
  if (!BuildLoopedModel(panel.model, picked.GetAt(0))) return;
  panel.model.CreateNumberTexts();
  UpdateGraphics();
  panel.DoModal();
  if (!panel.KeepsNumbers()) panel.model.EraseNumberTexts();
}

}  // namespace zwt

ZcUiHydrantElementDialog::ZcUiHydrantElementDialog() : ZcUiDialog(zwt::kHydrantNetworkPanel) {
  OnClick(zwt::kDemandButton, [this] { PickDemand(); });
  OnClick(zwt::kJetButton, [this] { ComputeJetFlow(); });
  OnClick(zwt::kCalculateButton, [this] { Calculate(); });
  OnClick(zwt::kViewButton, [this] { ViewDrawing(); });
  OnClick(zwt::kWriteBackButton, [this] { WriteBackDiameters(); });
  OnClick(zwt::kReportButton, [this] { WriteHydrantReport(); });
  OnExplain(zwt::kSectionTable, [this](int row) { return ExplainSectionRow(row); });
  OnExplain(zwt::kNodeTable, [this](int row) { return ExplainNodeRow(row); });
}

void ZcUiHydrantElementDialog::OnInitDialog() {
  ZwtSetComboBoxCurString(Combo(zwt::kNozzle), ZwtNum2Str(input_.nozzleDiameter, -1));
  ZwtSetComboBoxCurString(Combo(zwt::kHoseLength), ZwtNum2Str(input_.hoseLength, -1));
  ZwtSetComboBoxCurString(Combo(zwt::kHoseDiameter), ZwtNum2Str(input_.hoseDiameter, -1));
  ZwtSetComboBoxCurString(Combo(zwt::kWaterColumn), ZwtNum2Str(input_.waterColumn, -1));
  ZwtSetComboBoxCurString(Combo(zwt::kHoseMaterial), input_.hoseMaterial);
  ZcUiDialog::OnInitDialog();
  BuildSectionTable();
  BuildNodeTable();
  if (zwt::IsOverlayWatched()) zwt::PublishOverlay(zwt::DescribeHydrants(model, zwt::kResultTables, false));
}

void ZcUiHydrantElementDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, zwt::kHydrantFlow, input_.hydrantFlow);
  DDX_Text(exchange, zwt::kGunCount, input_.gunCount);
  DDX_Text(exchange, zwt::kGunMinFlow, input_.gunMinFlow);
  DDX_Text(exchange, zwt::kRiserMinFlow, input_.riserMinFlow);
  DDX_Text(exchange, zwt::kJetFlow, input_.jetFlow);
  DDX_Check(exchange, zwt::kKeepNumbers, keepNumbers_);
}

void ZcUiHydrantElementDialog::OnCancel() {
  TakeReadableValues();
  EndDialog(IDCANCEL);
}

void ZcUiHydrantElementDialog::ReadSelections() {
  input_.nozzleDiameter = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kNozzle)));
  input_.hoseLength = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kHoseLength)));
  input_.hoseDiameter = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kHoseDiameter)));
  input_.waterColumn = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kWaterColumn)));
  input_.hoseMaterial = ZwtGetComboBoxCurString(Combo(zwt::kHoseMaterial));
}

void ZcUiHydrantElementDialog::BuildSectionTable() {
  CGridCtrl& table = Grid(zwt::kSectionTable);
  SetUpColumns(table, {{L"管段编号", 60}, {L"管长(m)", 60}, {L"管径", 50}, {L"流量(L/s)", 70}}, 1);
  AlignAll(table, CellAlign::kCenter);
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const zwt::ZwtHydrantEdge& section = model.edges.GetCurData();
    const int row =
        table.InsertRow(ZwtNum2Str(section.startNumber) + L"-" + ZwtNum2Str(section.endNumber), -1);
    if (section.path != nullptr) table.SetItemText(row, 1, ZwtNum2Str(section.path->Length() * 0.001, 3));
  }
}

void ZcUiHydrantElementDialog::BuildNodeTable() {
  CGridCtrl& table = Grid(zwt::kNodeTable);
  SetUpColumns(table, {{L"节点编号", 60}, {L"流量(L/s)", 73}, {L"压力(mH2O)", 78}}, 1);
  AlignAll(table, CellAlign::kCenter);
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    table.InsertRow(ZwtNum2Str(model.nodes.GetCurData().number), -1);
  }
}

void ZcUiHydrantElementDialog::PickDemand() {
  if (!UpdateData(true)) return;
  ZcUiHydrantElementParamDialog demand(this);
  if (demand.DoModal() != IDOK) return;
  input_.hydrantFlow = demand.hydrantFlow;
  input_.gunCount = demand.gunCount;
  input_.gunMinFlow = demand.gunMinFlow;
  input_.riserMinFlow = demand.riserMinFlow;
  UpdateData(false);
}

void ZcUiHydrantElementDialog::ComputeJetFlow() {
  if (!UpdateData(true)) return;
  if (input_.gunMinFlow == 0) return;
  input_.nozzleDiameter = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kNozzle)));
  input_.waterColumn = _wtof(ZwtGetComboBoxCurString(Combo(zwt::kWaterColumn)));
  const zwt::ZwtHydrantFormula formula;
  input_.jetFlow =
      ZwtNum2Str(formula.JetFlow(input_.waterColumn, input_.nozzleDiameter, input_.gunMinFlow), 3);
  UpdateData(false);
}

/// The tables are filled also when the passes failed: they then show the last one.
void ZcUiHydrantElementDialog::Calculate() {
  if (!UpdateData(true)) return;
  ReadSelections();
  std::unique_ptr<ZcUiCalingDialog> progress;
  zwt::HydrantCalcEvents events;
  events.solvingStarts = [&] { progress = std::make_unique<ZcUiCalingDialog>(this); };
  events.solvingEnds = [&] { progress.reset(); };
  zwt::PassHistory history;
  if (zwt::IsOverlayWatched()) events.passDone = [&](const zwt::LoopedPass& pass) { history.Add(pass); };
  zwt::HydrantCalcResult result = zwt::CalculateHydrantNetwork(input_, model, events);
  for (const CString& message : result.messages) MessageBoxW(message, zwt::kHydrantMessageTitle, MB_ICONSTOP);
  if (!result.isSolved) return;
  ShowResults();
  calculated_.reset();
  if (result.passes.outcome != zwt::LoopedOutcome::NoSolution) {
    calculated_ = Calculated{input_, std::move(result.network)};
  }
  if (zwt::IsOverlayWatched()) PublishResults(result.passes, history);
}

void ZcUiHydrantElementDialog::PublishResults(const zwt::LoopedResult& passes,
                                              const zwt::PassHistory& history) {
  zwt::Overlay overlay = zwt::DescribeHydrants(model, zwt::kResultTables, true);
  history.Describe(passes, model, overlay);
  zwt::PublishOverlay(std::move(overlay));
}

void ZcUiHydrantElementDialog::ShowResults() {
  CGridCtrl& sections = Grid(zwt::kSectionTable);
  int row = 1;
  for (const zwt::SectionResultTexts& section : zwt::SectionResults(model)) {
    sections.SetItemText(row, 2, section.diameter);
    sections.SetItemText(row, 3, section.flow);
    ++row;
  }
  CGridCtrl& nodes = Grid(zwt::kNodeTable);
  row = 1;
  for (const zwt::NodeResultTexts& node : zwt::NodeResults(model)) {
    nodes.SetItemText(row, 1, node.flow);
    nodes.SetItemText(row, 2, node.pressure);
    ++row;
  }
  sections.Refresh();
  nodes.Refresh();
}

zwt::Trace ZcUiHydrantElementDialog::ExplainSectionRow(int row) {
  const std::int32_t section = zwt::SectionOfResultRow(model, row - 1);
  if (!calculated_ || row < 1 || section < 0) return {};
  return zwt::ExplainSection(calculated_->network, static_cast<std::size_t>(section));
}

zwt::Trace ZcUiHydrantElementDialog::ExplainNodeRow(int row) const {
  if (!calculated_ || row < 1) return {};
  const auto node = static_cast<std::size_t>(row) - 1;
  if (node >= calculated_->network.nodes.size()) return {};
  return zwt::ExplainNode(calculated_->network, calculated_->input, node);
}

void ZcUiHydrantElementDialog::ViewDrawing() {
  BeginEditorCommand();
  zwt::LetUserLookAround();
  CompleteEditorCommand(true);
}

void ZcUiHydrantElementDialog::WriteBackDiameters() {
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const zwt::ZwtHydrantEdge& section = model.edges.GetCurData();
    if (section.path == nullptr) continue;
    ZcDbObjectIdList pipes;
    section.path->GetPathPipeId(pipes);
    for (pipes.MoveToFirst(); !pipes.IsOut(); pipes.MoveToNext()) {
      ZcDbWtPipe* pipe = nullptr;
      if (acdbOpenAcDbObject(pipe, pipes.GetCurData(), AcDb::kForWrite) != Acad::eOk) continue;
      pipe->SetDiameter(section.diameter);
      pipe->close();
    }
  }
}

void ZcUiHydrantElementDialog::WriteHydrantReport() {
  constexpr std::int32_t kBookmarks = 6;
  ZwtWordApplication report;
  if (!zwt::OpenReport(report, L"Template\\ZWT-XHSJS.doc", kBookmarks)) return;
  zwt::WriteAtBookmark(report, 1, ZwtNum2Str(input_.hydrantFlow, -1));
  zwt::WriteAtBookmark(report, 2, ZwtNum2Str(input_.gunCount));
  zwt::WriteAtBookmark(report, 3, ZwtNum2Str(input_.gunMinFlow, -1));
  zwt::WriteAtBookmark(report, 4, ZwtNum2Str(input_.riserMinFlow, -1));
  zwt::WriteGridAtBookmark(report, 5, Grid(zwt::kSectionTable));
  zwt::WriteGridAtBookmark(report, 6, Grid(zwt::kNodeTable));
}
