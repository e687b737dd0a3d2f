// Composing a drainage branch.
#include "drainage/drainage_fixture_dialog.h"

#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

enum ChosenColumn { kCount, kName };

constexpr int kFixtureTable = 2200;
constexpr int kChosenTable = 2012;

constexpr ControlTemplate kFixtureControls[] = {
    {.id = kFixtureTable, .name = L"fixtureTable", .kind = ControlKind::kGrid, .width = 380, .height = 300},
    {.id = kChosenTable,
     .name = L"chosenTable",
     .kind = ControlKind::kGrid,
     .style = kReportsWrites,
     .place = Placement::kBeside,
     .width = 185,
     .height = 300},
    {.id = 2144,
     .name = L"equivalent",
     .label = L"累计当量：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber},
    {.id = 2024,
     .name = L"flux",
     .label = L"累计额定流量：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .place = Placement::kBeside},
    {.id = 2199,
     .name = L"qmax",
     .label = L"单器具最大流量：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .place = Placement::kBeside},
    {.id = 2070, .label = L"删除", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 2017, .label = L"清空", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 1,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"取消", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

void DressAlike(ZcUiWtGridCtrl& grid, int nameColumn) {
  grid.SetHeaderAlign(2);
  grid.SetColumnAlign(2);
  grid.SetColumnAlign(nameColumn, 0);
}

}  // namespace

constexpr PanelTemplate kDrainageFixturePanel = {.resource = 2073,
                                                 .className = L"ZcUiAddPsWareDialog",
                                                 .title = L"卫生器具表",
                                                 .controls = kFixtureControls};

}  // namespace zwt

ZcUiAddPsWareDialog::ZcUiAddPsWareDialog(CDialog* parent) : CDialog(zwt::kDrainageFixturePanel, parent) {
  OnCell(zwt::kFixtureTable, CellNotice::kDoubleClick, [this](int row, int) { AddFixture(row); });
  OnCell(zwt::kChosenTable, CellNotice::kChanged, [this](int, int) { RecalculateTotals(); });
  OnClick(2070, [this] { DeleteChosen(); });
  OnClick(2017, [this] { ClearChosen(); });
}

void ZcUiAddPsWareDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  SetUpGrids();
}

void ZcUiAddPsWareDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, 2144, totals.equivalent);
  DDX_Text(exchange, 2024, totals.flux);
  DDX_Text(exchange, 2199, totals.qmax);
}

void ZcUiAddPsWareDialog::SetUpGrids() {
  ZcUiWtGridCtrl& table = WtGrid(zwt::kFixtureTable);
  SetUpColumns(table, {{L"洁具名称", 140}, {L"排水流量(L/s)", 100}, {L"当量", 50}, {L"排水管径", 70}}, 0);
  zwt::DressAlike(table, 0);
  for (const zwt::DrainageFixture& fixture : zwt::DrainageFixtures()) {
    table.AddRow({fixture.name, fixture.flow, fixture.equivalent, fixture.diameter});
  }
  ZcUiWtGridCtrl& chosen = WtGrid(zwt::kChosenTable);
  SetUpColumns(chosen, {{L"数量", 50}, {L"器具", 115}}, 0);
  zwt::DressAlike(chosen, zwt::kName);
  chosen.SetEditable(true);
}

/// A fixture that was chosen before only counts one more: the totals follow because the grid reports the
/// written cell.
void ZcUiAddPsWareDialog::AddFixture(int row) {
  if (row < 1) return;
  const CString name = Grid(zwt::kFixtureTable).GetItemText(row, 0);
  ZcUiWtGridCtrl& chosen = WtGrid(zwt::kChosenTable);
  for (int chosenRow = 1; chosenRow < chosen.GetRowCount(); ++chosenRow) {
    if (chosen.GetItemText(chosenRow, zwt::kName) != name) continue;
    const std::int32_t count = _wtoi(chosen.GetItemText(chosenRow, zwt::kCount));
    chosen.SetItemText(chosenRow, zwt::kCount, ZwtNum2Str(count + 1));
    return;
  }
  chosen.SetItemAllowEdit(chosen.AddRow({L"1", name}), zwt::kName, false);
  RecalculateTotals();
}

void ZcUiAddPsWareDialog::DeleteChosen() {
  ZcUiWtGridCtrl& chosen = WtGrid(zwt::kChosenTable);
  const int row = chosen.GetSelectedCellRange().minRow;
  if (row < 1) return;
  chosen.DeleteRow(row);
  RecalculateTotals();
}

void ZcUiAddPsWareDialog::ClearChosen() {
  WtGrid(zwt::kChosenTable).DeleteNonFixedRows();
  const std::int32_t largestDiameter = totals.maxDn;
  totals = {};
  totals.maxDn = largestDiameter;
  UpdateData(false);
}

void ZcUiAddPsWareDialog::RecalculateTotals() {
  const CGridCtrl& chosen = Grid(zwt::kChosenTable);
  std::vector<zwt::ChosenFixture> rows;
  for (int row = 1; row < chosen.GetRowCount(); ++row) {
    rows.push_back({chosen.GetItemText(row, zwt::kCount), chosen.GetItemText(row, zwt::kName)});
  }
  totals = zwt::SumFixtures(rows, totals);
  UpdateData(false);
}
