// Picking a cold water temperature.
#include "hotwater/cold_water_dialog.h"

#include "data/design_tables.h"
#include "data/range_value.h"
#include "host/dialog/grouped_rows.h"

namespace zwt {

namespace {

enum ColdWaterControl : int { kFirstTable = 2043, kSecondTable = 2044 };

enum ColdWaterColumn { kRegion, kProvince, kPart, kSurfaceWater, kGroundWater };

constexpr int kFixedColumns = 3;

constexpr ControlTemplate kColdWaterControls[] = {
    {.id = kFirstTable, .name = L"firstTable", .kind = ControlKind::kGrid, .width = 210, .height = 300},
    {.id = kSecondTable,
     .name = L"secondTable",
     .kind = ControlKind::kGrid,
     .place = Placement::kBeside,
     .width = 210,
     .height = 300},
};

void SetUpGrid(CGridCtrl& grid) {
  constexpr int kHeaderHeight = 32;
  SetUpColumns(grid,
               {{L"区域", 40}, {L"省、市、自治区、行政区", 70}, {L"", 65}, {L"地面水", 55}, {L"地下水", 60}},
               kFixedColumns);
  grid.SetRowHeight(0, kHeaderHeight);
  grid.SetFixedCellCombine(0, kProvince, 0, 1);
}

int AddTemperatures(CGridCtrl& grid, const ZcDtDictItem& item) {
  const int row = grid.InsertRow(L"");
  grid.SetItemText(row, kSurfaceWater, item.GetAttributeValue(L"UC"));
  grid.SetItemText(row, kGroundWater, item.GetAttributeValue(L"DC"));
  return row;
}

/// A name beside the rows from row first to the end of the grid, merged over them. Where there are none the
/// name gets a row of its own.
void NameRows(CGridCtrl& grid, int first, int column, const CString& name) {
  if (grid.GetRowCount() == first) grid.InsertRow(L"");
  grid.SetItemText(first, column, name);
  grid.SetFixedCellCombine(first, column, grid.GetRowCount() - 1 - first, 0);
}

void AddProvince(CGridCtrl& grid, const ZcDtDictItem& province) {
  if (province.GetKindCode() == ZcDtDictItem::kLeaf) {
    const int row = AddTemperatures(grid, province);
    grid.SetItemText(row, kProvince, province.GetName());
    grid.SetFixedCellCombine(row, kProvince, 0, 1);
    return;
  }
  const int first = grid.GetRowCount();
  for (std::int32_t index = 0; index < province.GetCount(); ++index) {
    const ZcDtDictItem& part = *province.GetAt(index);
    grid.SetItemText(AddTemperatures(grid, part), kPart, part.GetName());
  }
  NameRows(grid, first, kProvince, province.GetName());
}

void FillGrid(CGridCtrl& grid, const ZcDtDictItem& table) {
  for (std::int32_t index = 0; index < table.GetCount(); ++index) {
    const ZcDtDictItem& region = *table.GetAt(index);
    const int first = grid.GetRowCount();
    for (std::int32_t child = 0; child < region.GetCount(); ++child) AddProvince(grid, *region.GetAt(child));
    NameRows(grid, first, kRegion, region.GetName());
  }
}

}  // namespace

constexpr PanelTemplate kColdWaterPanel = {.resource = 2010,
                                           .className = L"ZcUiComputeRsColdDialog",
                                           .title = L"冷水的计算温度",
                                           .controls = kColdWaterControls};

}  // namespace zwt

ZcUiComputeRsColdDialog::ZcUiComputeRsColdDialog(CDialog* parent) : CDialog(zwt::kColdWaterPanel, parent) {
  for (const int grid : {zwt::kFirstTable, zwt::kSecondTable}) {
    OnCell(grid, CellNotice::kDoubleClick,
           [this, grid](int row, int column) { PickCell(grid, row, column); });
  }
}

void ZcUiComputeRsColdDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  ZcDtDictionary dictionary(nullptr, nullptr);
  const bool readable = zwt::ReadDesignTables(dictionary);
  for (const auto& [id, name] : {std::pair{zwt::kFirstTable, L"TABLE06"}, {zwt::kSecondTable, L"TABLE09"}}) {
    CGridCtrl& grid = Grid(id);
    zwt::SetUpGrid(grid);
    if (readable) zwt::FillGrid(grid, zwt::FindTable(dictionary, name));
    AlignAll(grid, CellAlign::kCenter);
  }
}

/// Any cell but the first three headings counts, also a name: its text is no number and gives 0.
void ZcUiComputeRsColdDialog::PickCell(int grid, int row, int column) {
  if (row == 0 && column < zwt::kFixedColumns) return;
  temperature = zwt::ParseRangeValue(Grid(grid).GetItemText(row, column));
  EndDialog(IDOK);
}
