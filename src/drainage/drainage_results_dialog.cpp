// Results of the drainage calculation, floor by floor.
#include "drainage/drainage_results_dialog.h"

#include <vector>

#include "data/diameter_choices.h"
#include "drainage/drainage_fixture_dialog.h"
#include "drainage/drainage_hydraulics.h"
#include "drainage/drainage_overlay.h"
#include "frame/scope/push_resource.h"
#include "host/dialog/grouped_rows.h"
#include "host/drawing/entities.h"
#include "host/editor/pipe_selection.h"
#include "host/text/number_text.h"
#include "output/pipe_write_back.h"

namespace zwt {

namespace {

/// Columns of the grid.
enum DrainageColumn {
  kFloor,
  kEquivalent,
  kLargestFlow,
  kRatedFlow,
  kFlow,
  kDiameter,
  kGrade,
  kVelocity,
  kFullness
};

constexpr const wchar_t* kUseCoefficients[] = {L"1.5", L"2.0", L"2.5"};
constexpr const wchar_t* kForms[] = {L"90度顺水三通", L"45度斜三通"};

constexpr ControlTemplate kDrainageControls[] = {
    {.id = 2154,
     .name = L"useCoefficient",
     .label = L"建筑物用途系数：",
     .kind = ControlKind::kCombo,
     .style = kEditableCombo,
     .items = kUseCoefficients,
     .text = L"1.5"},
    {.id = 2155,
     .name = L"form",
     .label = L"形式：",
     .kind = ControlKind::kCombo,
     .items = kForms,
     .text = L"90度顺水三通",
     .place = Placement::kBeside},
    {.id = 2012, .name = L"floorTable", .kind = ControlKind::kGrid, .width = 580, .height = 260},
    {.id = 2148,
     .label = L"计    算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2151, .label = L"修改数据", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2150, .label = L"查看图面", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2156, .label = L"标    注", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2, .label = L"退    出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr int kDrainageButtons[] = {2148};
constexpr int kDrainageResults[] = {2012};

/// Writes the totals of a branch into its pipe.
void WriteBranchTotals(AcDbObjectId branchId, const FixtureTotals& totals) {
  ZwtSetEntityFields(branchId, L"Equivalent", ZwtNum2Str(totals.equivalent, -1));
  ZwtSetEntityFields(branchId, L"Flux", ZwtNum2Str(totals.flux, -1));
  ZwtSetEntityFields(branchId, L"Qmax", ZwtNum2Str(totals.qmax, -1));
  ZwtSetEntityFields(branchId, L"MaxDN", ZwtNum2Str(static_cast<double>(totals.maxDn), -1));
}

}  // namespace

constexpr PanelTemplate kDrainageResultsPanel = {.resource = 2026,
                                                 .className = L"ZcUiElementsPsDialog",
                                                 .title = L"排水水力计算",
                                                 .command = L"ZWTPSJS",
                                                 .controls = kDrainageControls,
                                                 .calculatingButtons = kDrainageButtons,
                                                 .results = kDrainageResults};

void RunDrainageCommand() {
  ZcDbObjectIdList picked;
  const PipeQuestion question = {L"\n请选择要计算的排水原理图干管末端: ", L"污水,废水", L"入口立管", true};
  if (!SelectPipes(question, picked)) return;
  const ZcUtPushResource scope;
  ZcUiElementsPsDialog panel;
  panel.network.BuildFromEndPipe(picked.GetAt(0));
  panel.DoModal();
}

}  // namespace zwt

ZcUiElementsPsDialog::ZcUiElementsPsDialog() : ZcUiDialog(zwt::kDrainageResultsPanel) {
  OnClick(2148, [this] { Calculate(); });
  OnClick(2151, [this] { EditBranchData(); });
  OnClick(2150, [this] { ViewDrawing(); });
  OnClick(2156, [this] { network.AnnotatePipes(); });
  OnExplain(2012, [this](int row) { return ExplainRow(row); });
}

void ZcUiElementsPsDialog::OnInitDialog() {
  ZcUiDialog::OnInitDialog();
  InitGrid();
  FillGrid();
  Combo(2155).EnableWindow(network.GetVentType() == L"伸顶通气");
  PublishFloors(0);
}

void ZcUiElementsPsDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_CBString(exchange, 2154, useCoefficient_);
  DDX_CBIndex(exchange, 2155, formIndex_);
}

void ZcUiElementsPsDialog::InitGrid() {
  CGridCtrl& grid = Grid(2012);
  SetUpColumns(grid,
               {{L"编号", 55},
                {L"当量", 60},
                {L"最大流量", 70},
                {L"额定流量", 70},
                {L"流量L/s", 60},
                {L"管径", 60},
                {L"坡度", 60},
                {L"流速", 60},
                {L"充满度", 60}},
               0);
  AlignAll(grid, CellAlign::kCenter);
  grid.SetEditable(true);
}

void ZcUiElementsPsDialog::FillGrid() {
  CGridCtrl& grid = Grid(2012);
  grid.DeleteNonFixedRows();
  std::vector<CString> diameterTexts;
  std::int32_t floor = 1;
  for (network.edges.MoveToFirst(); !network.edges.IsOut(); network.edges.MoveToNext(), ++floor) {
    const ZwtPsPipeEdge& edge = network.edges.GetCurData();
    const int row = grid.InsertRow(L"NewRow", -1);
    grid.SetItemText(row, zwt::kFloor, ZwtNum2Str(floor) + L"层");
    grid.SetItemText(row, zwt::kEquivalent, ZwtNum2Str(edge.equivalent, -1));
    grid.SetItemText(row, zwt::kLargestFlow, ZwtNum2Str(edge.qmax, -1));
    grid.SetItemText(row, zwt::kRatedFlow, ZwtNum2Str(edge.flux, -1));
    for (int column = zwt::kFloor; column <= zwt::kRatedFlow; ++column) grid.SetReadOnly(row, column);
    if (diameterTexts.empty()) diameterTexts = zwt::DiameterTexts(edge.material);
    grid.SetCombo(row, zwt::kDiameter, {diameterTexts, 2});
  }
  const int resultRow = grid.InsertRow(L"计算结果", -1);
  grid.SetCellCombine(resultRow, 0, 0, grid.GetColumnCount() - 1);
  grid.SetItemText(resultRow, 0, L"");
  grid.Refresh();
}

/// Branch diameters go into the pipes row by row, the riser's at the end into all risers of the rows.
void ZcUiElementsPsDialog::Calculate() {
  if (!UpdateData(true)) return;
  calculatedSettings_ = {_wtof(useCoefficient_), formIndex_, network.GetVentType()};
  const zwt::DrainageStackResult result = zwt::CalculateStack(network.Branches(), calculatedSettings_);
  CGridCtrl& grid = Grid(2012);
  int row = 1;
  for (const zwt::DrainageBranchResult& branch : result.branches) {
    grid.SetItemText(row, zwt::kFlow, ZwtNum2Str(branch.flow, 3));
    grid.SetItemText(row, zwt::kDiameter, ZwtNum2Str(branch.diameter));
    grid.SetItemText(row, zwt::kGrade, ZwtNum2Str(branch.grade, 3));
    grid.SetItemText(row, zwt::kVelocity, ZwtNum2Str(branch.velocity, 3));
    grid.SetItemText(row, zwt::kFullness, ZwtNum2Str(branch.fullness, 1));
    zwt::SetSectionDiameter(network.edges.GetTo(row - 1)->branchId, branch.diameter);
    ++row;
  }
  grid.SetItemText(row, 0, zwt::RiserResultText(result));
  grid.Refresh();
  for (network.edges.MoveToFirst(); !network.edges.IsOut(); network.edges.MoveToNext()) {
    zwt::SetSectionDiameter(network.edges.GetCurData().riserId, result.riserDiameter);
  }
  calculated_ = true;
  PublishFloors(result.riserDiameter);
}

void ZcUiElementsPsDialog::PublishFloors(std::int32_t riserDiameter) {
  if (!zwt::IsOverlayWatched()) return;
  const CGridCtrl& grid = Grid(2012);
  std::vector<zwt::ShownDrainageBranch> shown;
  for (int row = 1; row < grid.GetRowCount(); ++row) {
    shown.push_back({.velocity = grid.GetItemText(row, zwt::kVelocity),
                     .diameter = grid.GetItemText(row, zwt::kDiameter)});
  }
  zwt::PublishOverlay(zwt::DescribeDrainage(network, shown, riserDiameter, 2012));
}

/// The row behind the last floor tells of the riser.
zwt::Trace ZcUiElementsPsDialog::ExplainRow(int row) {
  if (!calculated_ || row < 1 || row >= Grid(2012).GetRowCount()) return {};
  zwt::DrainageStackTrace trace;
  zwt::CalculateStack(network.Branches(), calculatedSettings_, &trace);
  const auto branch = static_cast<std::size_t>(row) - 1;
  return branch < trace.branches.size() ? trace.branches[branch] : trace.riser;
}

void ZcUiElementsPsDialog::EditBranchData() {
  const CGridCtrl& grid = Grid(2012);
  const int row = grid.GetSelectedCellRange().minRow;
  if (row < 1 || row > network.edges.GetLength()) {
    MessageBoxW(L"请先在表格中选择要修改的管段！", L"错误", MB_ICONSTOP);
    return;
  }
  ZwtPsPipeEdge& edge = *network.edges.GetTo(row - 1);
  ZcUiAddPsWareDialog fixtures(this);
  if (fixtures.DoModal() != IDOK) return;
  edge.equivalent = fixtures.totals.equivalent;
  edge.flux = fixtures.totals.flux;
  edge.qmax = fixtures.totals.qmax;
  edge.maxDn = fixtures.totals.maxDn;
  zwt::WriteBranchTotals(edge.branchId, fixtures.totals);
  FillGrid();
  if (calculated_) Calculate();
}

void ZcUiElementsPsDialog::ViewDrawing() {
  BeginEditorCommand();
  zwt::LetUserLookAround();
  CompleteEditorCommand(true);
}
