// Counting fixtures.
#include "hotwater/hot_water_fixtures_dialog.h"

#include <vector>

#include "data/reference_rows.h"
#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"
#include "hotwater/fixture_counts.h"
#include "hotwater/reference_values.h"

namespace zwt {

namespace {

enum FixtureControl : int { kFixtureTable = 2012, kEmpty = 2017 };

enum FixtureColumn { kNumber, kFixture, kUse, kHourlyUse, kTemperature, kShare, kCount };

constexpr ControlTemplate kFixtureControls[] = {
    {.id = kFixtureTable, .name = L"fixtureTable", .kind = ControlKind::kGrid, .width = 295, .height = 300},
    {.id = kEmpty, .label = L"归零", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = IDOK,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = IDCANCEL, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

int ShowHeading(CGridCtrl& grid, const ReferenceRow& item) {
  const int row = AddGroupHeading(grid, item.number, item.name);
  for (int column = kNumber; column <= kCount; ++column) grid.SetReadOnly(row, column);
  return row;
}

void ShowFixture(CGridCtrl& grid, const ReferenceRow& item, bool remembered) {
  const bool inGroup = !item.group.empty();
  const CString name = inGroup ? NameBelowHeading(item.name) : item.name;
  const int row = AddReferenceRow(grid, inGroup ? CString() : item.number, name, item.texts);
  for (int column = kFixture; column <= kShare; ++column) grid.SetReadOnly(row, column);
  grid.SetItemFgColour(row, kHourlyUse, kRed);
  grid.SetItemFgColour(row, kCount, kBlue);
  const std::int32_t count = RememberedFixtureCounts().Get(row - 1);
  if (remembered && count != 0) grid.SetItemText(row, kCount, ZwtNum2Str(count));
}

}  // namespace

constexpr PanelTemplate kHotWaterFixturesPanel = {.resource = 2011,
                                                  .className = L"ZcUiComputeRsWareDialog",
                                                  .title = L"卫生器具的一次和小时热水用水量和水温",
                                                  .controls = kFixtureControls};

}  // namespace zwt

ZcUiComputeRsWareDialog::ZcUiComputeRsWareDialog(double hourlyQuotaHeld, CDialog* parent)
    : CDialog(zwt::kHotWaterFixturesPanel, parent), hourlyQuota(hourlyQuotaHeld) {
  OnClick(zwt::kEmpty, [this] { EmptyCounts(); });
}

void ZcUiComputeRsWareDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  FillTable();
}

void ZcUiComputeRsWareDialog::FillTable() {
  CGridCtrl& grid = Grid(zwt::kFixtureTable);
  SetUpColumns(grid,
               {{L"序号", 23},
                {L"卫生器具名称", 145},
                {L"一次用水量(L)", 55},
                {L"小时用水量(L)", 85},
                {L"使用水温(℃)", 0},
                {L"百分比(%)", 65},
                {L"数量", 50}},
               1);
  grid.SetEditable(true);
  int heading = 0;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"TABLE05", {L"L", L"HL", L"C", L"PER"})) {
    if (item.heading) {
      heading = zwt::ShowHeading(grid, item);
    } else {
      zwt::ShowFixture(grid, item, hourlyQuota != 0.0);
    }
    if (item.closesGroup) CloseGroup(grid, heading);
  }
  AlignAll(grid, CellAlign::kCenter);
  AlignColumn(grid, zwt::kFixture, 1, CellAlign::kLeft);
}

void ZcUiComputeRsWareDialog::OnOK() {
  const CGridCtrl& grid = Grid(zwt::kFixtureTable);
  std::vector<zwt::FixtureUse> fixtures;
  for (int row = 1; row < grid.GetRowCount(); ++row) {
    const std::int32_t count = _wtoi(grid.GetItemText(row, zwt::kCount));
    zwt::RememberedFixtureCounts().Set(row - 1, count);
    fixtures.push_back({grid.GetItemText(row, zwt::kHourlyUse), count});
  }
  hourlyQuota = zwt::SumHourlyUse(fixtures);
  EndDialog(IDOK);
}

/// The memory is not touched: the counts come back if the panel is left without "确定".
void ZcUiComputeRsWareDialog::EmptyCounts() {
  CGridCtrl& grid = Grid(zwt::kFixtureTable);
  for (int row = 1; row < grid.GetRowCount(); ++row) grid.SetItemText(row, zwt::kCount, L"");
  grid.Refresh();
}
