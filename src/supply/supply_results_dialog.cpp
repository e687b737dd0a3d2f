// Results of the supply calculation, section by section.
#include "supply/supply_results_dialog.h"

#include <vector>

#include "data/diameter_choices.h"
#include "data/materials.h"
#include "frame/scope/push_resource.h"
#include "host/dialog/grouped_rows.h"
#include "host/editor/pipe_selection.h"
#include "host/text/number_text.h"
#include "output/grid_report.h"
#include "output/pipe_write_back.h"
#include "supply/branch_data_dialog.h"
#include "supply/supply_hydraulics.h"
#include "supply/supply_overlay.h"
#include "supply/velocity_choice.h"

namespace zwt {

namespace {

/// Columns of the grid.
enum ResultColumn { kLabel, kLength, kEquivalents, kRatio, kFlow, kVelocity, kHeadLoss, kDiameter };

constexpr int kRatioWidth = 70;
constexpr double kMetresPerMillimetre = 0.001;

constexpr const wchar_t* kClasses[] = {kDwellingClass, kPublicClass};
constexpr const wchar_t* kPlaces[] = {L"幼儿园、托儿所、养老院",
                                      L"门诊部、诊疗所",
                                      L"办公楼、商场",
                                      L"图书馆",
                                      L"书店",
                                      L"学校",
                                      L"医院、疗养院、休养所",
                                      L"酒店式公寓",
                                      L"旅馆、招待所、宾馆",
                                      L"客运站、航站楼、会展中心、公共厕所"};

constexpr ControlTemplate kResultControls[] = {
    {.id = 2147,
     .name = L"buildingClass",
     .label = L"建筑类别：",
     .kind = ControlKind::kCombo,
     .items = kClasses},
    {.id = 2122,
     .name = L"place",
     .label = L"用水场所：",
     .kind = ControlKind::kCombo,
     .items = kPlaces,
     .place = Placement::kBeside},
    {.id = 2012, .name = L"sectionTable", .kind = ControlKind::kGrid, .width = 560, .height = 260},
    {.id = 2148,
     .label = L"计    算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2149, .label = L"复    算", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2151, .label = L"修改数据", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2150, .label = L"查看图面", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2156, .label = L"标    注", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2152, .label = L"计 算 书", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2, .label = L"退    出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr int kResultButtons[] = {2148};
constexpr int kResults[] = {2012};

}  // namespace

constexpr PanelTemplate kSupplyResultsPanel = {.resource = 2025,
                                               .className = L"ZcUiElementsGsDialog",
                                               .title = L"给水水力计算",
                                               .command = L"ZWTGSJS",
                                               .controls = kResultControls,
                                               .calculatingButtons = kResultButtons,
                                               .results = kResults};

void RunSupplyCommand() {
  ZcDbObjectIdList entries;
  const PipeQuestion question = {L"\n请选择要计算的原理图干管末端: ", L"给水,热水", L"入口立管"};
  if (!SelectPipes(question, entries)) return;
  entries.Sort(CompareEndPointX);
  const ZcUtPushResource scope;
  ZcUiElementsGsDialog panel;
  for (entries.MoveToFirst(); !entries.IsOut(); entries.MoveToNext()) {
    BuildRiserData(panel.risers, entries.GetCurData());
  }
  panel.DoModal();
}

}  // namespace zwt

ZcUiElementsGsDialog::ZcUiElementsGsDialog() : ZcUiDialog(zwt::kSupplyResultsPanel) {
  OnDropDownClosed(2147, [this] { UpdateClassControls(); });
  OnClick(2148, [this] { CalculateAll(); });
  OnClick(2149, [this] { RecalculateChanged(); });
  OnClick(2151, [this] { EditSelectedSection(); });
  OnClick(2150, [this] { ViewDrawing(); });
  OnClick(2156, [this] { AnnotateAllSections(); });
  OnClick(2152, [this] { WriteSupplyReport(); });
  OnCell(2012, CellNotice::kBeginEdit, [this](int row, int column) { OnBeginCellEdit(row, column); });
  OnCell(2012, CellNotice::kEndEdit, [this](int row, int column) { OnEndCellEdit(row, column); });
  OnExplain(2012, [this](int row) { return ExplainRow(row); });
}

void ZcUiElementsGsDialog::OnInitDialog() {
  ZcUiDialog::OnInitDialog();
  Combo(2147).SetCurSel(0);
  Combo(2122).SetCurSel(0);
  InitGrid();
  FillGrid();
  UpdateClassControls();
  ZwtSetComboBoxAutoWidth(Combo(2122));
  PublishSections();
}

void ZcUiElementsGsDialog::InitGrid() {
  CGridCtrl& grid = Grid(2012);
  SetUpColumns(grid,
               {{L"编号", 55},
                {L"管长(m)", 70},
                {L"当量", 70},
                {L"U(%)", zwt::kRatioWidth},
                {L"流量(L/s)", 70},
                {L"流速(m/s)", 70},
                {L"水损(mH2O)", 70},
                {L"管径(mm)", 70}},
               0);
  AlignAll(grid, CellAlign::kCenter);
  grid.SetEditable(true);
}

void ZcUiElementsGsDialog::UpdateClassControls() {
  const bool isPublic = Combo(2147).GetCurSel() != 0;
  Combo(2122).EnableWindow(isPublic);
  Grid(2012).SetColumnWidth(zwt::kRatio, isPublic ? 0 : zwt::kRatioWidth);
  Grid(2012).Refresh();
}

void ZcUiElementsGsDialog::FillGrid() {
  CGridCtrl& grid = Grid(2012);
  int row = 1;
  std::vector<CString> diameterTexts;
  zwt::ForEachSection(
      risers, [&](const ZwtVPipeEdge& edge, int riserIndex, int position, const ZwtVPipeData& riser) {
        if (row >= grid.GetRowCount()) row = grid.InsertRow(L"NewRow", -1);
        grid.SetItemText(row, zwt::kLabel, zwt::FormatSectionLabel(riserIndex, position));
        grid.SetItemText(row, zwt::kLength, ZwtNum2Str(edge.length * zwt::kMetresPerMillimetre, 2));
        grid.SetItemText(row, zwt::kEquivalents, ZwtNum2Str(riser.SumEquivalent(position), 2));
        if (diameterTexts.empty()) diameterTexts = zwt::DiameterTexts(edge.material);
        grid.SetCombo(row, zwt::kDiameter, {diameterTexts, 2});
        ++row;
      });
  for (row = 1; row < grid.GetRowCount(); ++row) {
    for (int column = zwt::kLabel; column < zwt::kDiameter; ++column) grid.SetReadOnly(row, column);
  }
  grid.Refresh();
}

void ZcUiElementsGsDialog::CalculateAll() {
  calculated_ = true;
  calculatedClass_ = ZwtGetComboBoxCurString(Combo(2147));
  calculatedPlace_ = ZwtGetComboBoxCurString(Combo(2122));
  overruled_.clear();
  CGridCtrl& grid = Grid(2012);
  int row = 1;
  zwt::ForEachSection(risers, [&](const ZwtVPipeEdge& edge, int, int position, const ZwtVPipeData& riser) {
    const zwt::SupplySectionResult result =
        zwt::CalculateSection(zwt::SectionInput(riser, position), calculatedClass_, calculatedPlace_);
    grid.SetItemText(row, zwt::kRatio, ZwtNum2Str(result.useRatio, 2));
    grid.SetItemText(row, zwt::kFlow, ZwtNum2Str(result.flow, 2));
    grid.SetItemText(row, zwt::kVelocity, ZwtNum2Str(result.velocity, 3));
    grid.SetItemText(row, zwt::kDiameter, ZwtNum2Str(result.diameter));
    grid.SetModified(row, zwt::kDiameter, false);
    grid.SetItemBkColour(row, zwt::kDiameter, std::nullopt);
    grid.SetItemText(row, zwt::kHeadLoss, ZwtNum2Str(result.headLoss * zwt::kMetresOfWaterPerKilopascal, 3));
    zwt::SetSectionDiameter(edge.pipeId, result.diameter);
    ++row;
  });
  grid.Refresh();
  PublishSections();
}

/// The row moves on only past a changed one, so that recalculation stops for good at the first row left
/// unchanged.
void ZcUiElementsGsDialog::RecalculateChanged() {
  if (!calculated_) return;
  CGridCtrl& grid = Grid(2012);
  int row = 1;
  zwt::ForEachSection(risers, [&](const ZwtVPipeEdge& edge, int, int, const ZwtVPipeData&) {
    if (!grid.IsModified(row, zwt::kDiameter)) return;
    const double flow = _wtof(grid.GetItemText(row, zwt::kFlow));
    const std::int32_t diameter = _wtoi(grid.GetItemText(row, zwt::kDiameter));
    const zwt::ChangedDiameterResult result =
        zwt::RecalculateSection(edge.material, diameter, flow, edge.length);
    grid.SetItemText(row, zwt::kVelocity, ZwtNum2Str(result.velocity, 3));
    grid.SetItemText(row, zwt::kHeadLoss, ZwtNum2Str(result.headLoss * zwt::kMetresOfWaterPerKilopascal, 3));
    overruled_[row] = {flow, diameter};
    ++row;
    zwt::SetSectionDiameter(edge.pipeId, diameter);
  });
  grid.Refresh();
  PublishSections();
}

void ZcUiElementsGsDialog::PublishSections() {
  if (!zwt::IsOverlayWatched()) return;
  const CGridCtrl& grid = Grid(2012);
  std::vector<zwt::ShownSupplySection> shown;
  for (int row = 1; row < grid.GetRowCount(); ++row) {
    shown.push_back({.label = grid.GetItemText(row, zwt::kLabel),
                     .flow = grid.GetItemText(row, zwt::kFlow),
                     .velocity = grid.GetItemText(row, zwt::kVelocity),
                     .headLoss = grid.GetItemText(row, zwt::kHeadLoss),
                     .diameter = grid.GetItemText(row, zwt::kDiameter)});
  }
  zwt::PublishOverlay(zwt::DescribeSupply(risers, shown, 2012));
}

ZcUiElementsGsDialog::RowSection ZcUiElementsGsDialog::SectionOfRow(int row) {
  std::int32_t riserIndex = 0;
  RowSection found;
  const CString& label = Grid(2012).GetItemText(row, zwt::kLabel);
  if (!zwt::ParseSectionLabel(label, riserIndex, found.position)) return {};
  found.riser = risers.GetTo(riserIndex);
  if (found.riser != nullptr) found.edge = found.riser->GetTo(found.position);
  return found;
}

void ZcUiElementsGsDialog::EditSelectedSection() {
  const CGridCtrl& grid = Grid(2012);
  const int row = grid.GetSelectedCellRange().minRow;
  if (row < 0 || row >= grid.GetRowCount()) {
    MessageBoxW(L"请先在表格中选择要修改的管段！", L"错误", MB_ICONSTOP);
    return;
  }
  ZwtVPipeEdge* edge = SectionOfRow(row).edge;
  if (edge == nullptr) return;
  ZcUiComputeGSParamEditDialog branch(this);
  branch.data = zwt::ReadBranchFields(edge->branchId);
  if (branch.DoModal() != IDOK) return;
  edge->ration = branch.data.ration;
  edge->kh = branch.data.kh;
  edge->equivalent = branch.data.equivalent;
  edge->doorNum = branch.data.doorNum;
  edge->userNum = branch.data.userNum;
  edge->time = branch.data.time;
  zwt::WriteBranchFields(edge->branchId, branch.data);
  FillGrid();
  if (calculated_) CalculateAll();
}

/// A row whose diameter was overruled and recalculated tells that, any other the whole calculation.
zwt::Trace ZcUiElementsGsDialog::ExplainRow(int row) {
  if (!calculated_ || row < 1 || row >= Grid(2012).GetRowCount()) return {};
  const auto [riser, position, edge] = SectionOfRow(row);
  if (edge == nullptr) return {};
  zwt::Trace trace;
  const auto overruled = overruled_.find(row);
  if (overruled != overruled_.end()) {
    const auto [flow, diameter] = overruled->second;
    zwt::RecalculateSection(edge->material, diameter, flow, edge->length, &trace);
  } else {
    zwt::CalculateSection(zwt::SectionInput(*riser, position), calculatedClass_, calculatedPlace_, &trace);
  }
  return trace;
}

void ZcUiElementsGsDialog::ViewDrawing() {
  BeginEditorCommand();
  zwt::LetUserLookAround();
  CompleteEditorCommand(true);
}

void ZcUiElementsGsDialog::AnnotateAllSections() {
  zwt::ForEachSection(risers, [](const ZwtVPipeEdge& edge, int, int, const ZwtVPipeData&) {
    zwt::AnnotatePipeDiameter(edge.pipeId);
  });
}

void ZcUiElementsGsDialog::WriteSupplyReport() {
  ZwtWordApplication report;
  if (zwt::OpenReport(report, L"Template\\ZWT-GSJS-ZZ.doc", 0)) zwt::WriteGridAtEnd(report, Grid(2012));
}

bool ZcUiElementsGsDialog::IsDiameterCell(int row, int column) const {
  return row >= 1 && row < Grid(2012).GetRowCount() && column == zwt::kDiameter;
}

void ZcUiElementsGsDialog::OnBeginCellEdit(int row, int column) {
  if (IsDiameterCell(row, column)) textBeforeEdit_ = Grid(2012).GetItemText(row, column);
}

void ZcUiElementsGsDialog::OnEndCellEdit(int row, int column) {
  if (!IsDiameterCell(row, column)) return;
  CGridCtrl& grid = Grid(2012);
  if (grid.GetItemText(row, column) == textBeforeEdit_) return;
  grid.SetModified(row, column, true);
  grid.SetItemBkColour(row, column, kRed);
}
