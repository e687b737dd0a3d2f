// Picking a water quota from the tables of dwellings and public buildings.
#include "supply/quota_dialog.h"

#include "data/range_value.h"
#include "data/reference_rows.h"
#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr int kGridWidth = 620;

constexpr ControlTemplate kQuotaControls[] = {
    {.id = 2009, .label = L"住宅", .kind = ControlKind::kRadio, .style = kGroupStart},
    {.id = 2010, .label = L"宿舍、旅馆、公共建筑", .kind = ControlKind::kRadio, .place = Placement::kBeside},
    {.id = 2012, .name = L"quotaTable", .kind = ControlKind::kGrid, .width = kGridWidth, .height = 220},
    {.id = 1,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"取消", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

/// Columns of the public buildings table behind the name.
enum PublicColumn { kUnit = 2, kQuota = 3, kHours = 4, kFactor = 5 };

int ShareOfGrid(double share) {
  return ToInt(share * kGridWidth);
}

}  // namespace

constexpr PanelTemplate kQuotaPanel = {.resource = 2001,
                                       .className = L"ZcUiMaxDayParamDialog",
                                       .title = L"住宅的最高日生活用水定额及小时变化系数",
                                       .controls = kQuotaControls};

}  // namespace zwt

ZcUiMaxDayParamDialog::ZcUiMaxDayParamDialog(CDialog* parent) : CDialog(zwt::kQuotaPanel, parent) {
  OnClick(2009, [this] { ShowDwellings(); });
  OnClick(2010, [this] { ShowPublicBuildings(); });
  OnCell(2012, CellNotice::kClick, [this](int row, int column) { PickRow(row, column); });
  OnCell(2012, CellNotice::kDoubleClick, [this](int row, int column) {
    if (PickRow(row, column)) EndDialog(IDOK);
  });
}

void ZcUiMaxDayParamDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  CheckRadioButton(2009);
  ShowDwellings();
}

void ZcUiMaxDayParamDialog::ShowDwellings() {
  constexpr int kHeaderHeight = 35;
  constexpr int kRowHeight = 30;
  table = Table::kDwellings;
  CGridCtrl& grid = Grid(2012);
  SetUpColumns(grid,
               {{L"住宅类别", zwt::ShareOfGrid(0.065)},
                {L"", zwt::ShareOfGrid(0.065)},
                {L"卫生器具设置标准", zwt::ShareOfGrid(0.53)},
                {L"用水定额(L)", zwt::ShareOfGrid(0.165)},
                {L"小时变化系数", zwt::ShareOfGrid(0.18)}},
               2);
  grid.SetRowCount(5);
  grid.SetRowHeight(0, kHeaderHeight);
  for (int row = 1; row < grid.GetRowCount(); ++row) grid.SetRowHeight(row, kRowHeight);
  grid.SetFixedCellCombine(0, 0, 0, 1);
  grid.SetFixedCellCombine(1, 0, 2, 0);
  grid.SetFixedCellCombine(4, 0, 0, 1);
  grid.SetItemText(1, 0, L"\n\n普\n通\n住\n宅");
  grid.SetItemText(1, 1, L"Ⅰ");
  grid.SetItemText(2, 1, L"Ⅱ");
  grid.SetItemText(3, 1, L"Ⅲ");
  grid.SetItemText(4, 0, L"别墅");
  int row = 1;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"TABLE01", {L"WareSet", L"Ql", L"Kh"})) {
    for (int column = 2; column <= 4; ++column) {
      grid.SetItemText(row, column, item.texts[static_cast<std::size_t>(column - 2)]);
    }
    ++row;
  }
  AlignAll(grid, CellAlign::kCenter);
  AlignColumn(grid, 2, 1, CellAlign::kLeft);
}

void ZcUiMaxDayParamDialog::ShowPublicBuildings() {
  table = Table::kPublicBuildings;
  CGridCtrl& grid = Grid(2012);
  SetUpColumns(grid,
               {{L"序", zwt::ShareOfGrid(0.05)},
                {L"建筑物名称", zwt::ShareOfGrid(0.4)},
                {L"单位", zwt::ShareOfGrid(0.15)},
                {L"用水定额", zwt::ShareOfGrid(0.12)},
                {L"使用时数", zwt::ShareOfGrid(0.12)},
                {L"小时变化系数", zwt::ShareOfGrid(0.12)}},
               1);
  int heading = 0;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"TABLE02", {L"Unit", L"L", L"h", L"Kh"})) {
    if (item.heading) {
      heading = AddGroupHeading(grid, item.number, item.name);
    } else if (item.group.empty()) {
      AddReferenceRow(grid, item.number, item.name, item.texts);
    } else {
      const int row = AddReferenceRow(grid, L"", NameBelowHeading(item.name), item.texts);
      grid.SetItemData(row, zwt::kFactor, item.group);
    }
    if (item.closesGroup) CloseGroup(grid, heading);
  }
  AlignAll(grid, CellAlign::kCenter);
  AlignColumn(grid, 1, 1, CellAlign::kLeft);
}

bool ZcUiMaxDayParamDialog::PickRow(int row, int column) {
  return table == Table::kDwellings ? PickDwelling(row, column) : PickPublicBuilding(row, column);
}

bool ZcUiMaxDayParamDialog::PickDwelling(int row, int column) {
  constexpr const wchar_t* kNames[] = {L"普通住宅Ⅰ", L"普通住宅Ⅱ", L"普通住宅Ⅲ", L"别墅"};
  constexpr int kDwellingRows = 4;
  if (row < 1 || row > kDwellingRows || column == 0 || column == 1) return false;
  const CGridCtrl& grid = Grid(2012);
  quota = zwt::ParseRangeValue(grid.GetItemText(row, 3));
  hourlyFactor = zwt::ParseRangeValue(grid.GetItemText(row, 4));
  hours = 24;
  name = kNames[row - 1];
  return true;
}

bool ZcUiMaxDayParamDialog::PickPublicBuilding(int row, int column) {
  if (row < 1 || column < 1) return false;
  const CGridCtrl& grid = Grid(2012);
  const bool isHeading =
      grid.GetItemText(row, zwt::kUnit).empty() && grid.GetItemText(row, zwt::kQuota).empty() &&
      grid.GetItemText(row, zwt::kHours).empty() && grid.GetItemText(row, zwt::kFactor).empty();
  if (isHeading) return false;
  quota = zwt::ParseRangeValue(grid.GetItemText(row, zwt::kQuota));
  hours = zwt::ToInt(zwt::ParseRangeValue(grid.GetItemText(row, zwt::kHours)));
  hourlyFactor = zwt::ParseRangeValue(grid.GetItemText(row, zwt::kFactor));
  name = grid.GetItemData(row, zwt::kFactor);
  if (name.empty()) name = grid.GetItemText(row, 1);
  return true;
}
