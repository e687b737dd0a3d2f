// Picking a hot water quota.
#include "hotwater/hot_water_quota_dialog.h"

#include "data/range_value.h"
#include "data/reference_rows.h"
#include "host/dialog/grouped_rows.h"
#include "hotwater/reference_values.h"

namespace zwt {

namespace {

enum QuotaControl : int { kQuotaTable = 2012, kTake = 3000, kLeave };

enum QuotaColumn { kNumber, kBuilding, kUnit, kQuota, kHours, kColumns };

constexpr ControlTemplate kQuotaControls[] = {
    {.id = kQuotaTable, .name = L"quotaTable", .kind = ControlKind::kGrid, .width = 285, .height = 300},
    {.id = kTake,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kLeave, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

void ShowItem(CGridCtrl& grid, const ReferenceRow& item) {
  const bool inGroup = !item.group.empty();
  const CString name = inGroup ? NameBelowHeading(item.name) : item.name;
  const int row = AddReferenceRow(grid, inGroup ? CString() : item.number, name, item.texts);
  if (inGroup) grid.SetItemData(row, kHours, item.group);
  if (!grid.GetItemText(row, kQuota).empty()) grid.SetItemFgColour(row, kQuota, kRed);
}

}  // namespace

constexpr PanelTemplate kHotWaterQuotaPanel = {.resource = 2008,
                                               .className = L"ZcUiComputeRsParamDialog",
                                               .title = L"热水用水定额",
                                               .controls = kQuotaControls};

}  // namespace zwt

ZcUiComputeRsParamDialog::ZcUiComputeRsParamDialog(CDialog* parent)
    : CDialog(zwt::kHotWaterQuotaPanel, parent) {
  OnClick(zwt::kTake, [this] { EndDialog(IDOK); });
  OnClick(zwt::kLeave, [this] { EndDialog(IDCANCEL); });
  OnCell(zwt::kQuotaTable, CellNotice::kClick, [this](int row, int column) { PickRow(row, column); });
  OnCell(zwt::kQuotaTable, CellNotice::kDoubleClick, [this](int row, int column) {
    if (PickRow(row, column)) EndDialog(IDOK);
  });
}

void ZcUiComputeRsParamDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  FillTable();
}

void ZcUiComputeRsParamDialog::FillTable() {
  CGridCtrl& grid = Grid(zwt::kQuotaTable);
  SetUpColumns(grid,
               {{L"序", 23}, {L"建筑物名称", 165}, {L"单位", 70}, {L"用水定额(L)", 75}, {L"使用时间(h)", 75}},
               1);
  int heading = 0;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"TABLE04", {L"Unit", L"L", L"h"})) {
    if (item.heading) {
      heading = AddGroupHeading(grid, item.number, item.name);
    } else {
      zwt::ShowItem(grid, item);
    }
    if (item.closesGroup) CloseGroup(grid, heading);
  }
  AlignAll(grid, CellAlign::kCenter);
  AlignColumn(grid, zwt::kBuilding, 0, CellAlign::kLeft);
}

bool ZcUiComputeRsParamDialog::PickRow(int row, int column) {
  if (row < 1 || column < 1) return false;
  const CGridCtrl& grid = Grid(zwt::kQuotaTable);
  const CString& quotaCell = grid.GetItemText(row, zwt::kQuota);
  const CString& hoursCell = grid.GetItemText(row, zwt::kHours);
  if (grid.GetItemText(row, zwt::kUnit).empty() && quotaCell.empty() && hoursCell.empty()) return false;
  quota = zwt::ParseRangeValue(quotaCell);
  hours = zwt::UseHoursOfCell(hoursCell);
  // The group's name lies in the last column; behind it there is nothing, and the row's own name counts.
  buildingText = grid.GetItemData(row, zwt::kColumns);
  if (buildingText.empty()) buildingText = grid.GetItemText(row, zwt::kBuilding);
  return true;
}
