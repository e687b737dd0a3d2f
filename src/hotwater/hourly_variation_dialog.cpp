// Picking an hourly variation coefficient. The user picks by eye: nothing is interpolated between the
// columns.
#include "hotwater/hourly_variation_dialog.h"

#include "data/design_tables.h"
#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

enum VariationControl : int {
  kDwellings = 2043,
  kHotels = 2044,
  kHospitals = 2045,
  kDwellingsCaption = 3000,
  kHotelsCaption,
  kHospitalsCaption,
  kNote,
};

constexpr int kVariationRow = 1;

/// One table: its grid, the class of the data file, and the shape of the grid.
struct VariationTable {
  int grid;
  const wchar_t* itemClass;
  const wchar_t* heading;
  int columns;
  int columnWidth;
};

constexpr VariationTable kTables[] = {
    {kDwellings, L"Class01", L"居住人数", 10, 42},
    {kHotels, L"Class02", L"床位数", 7, 63},
    {kHospitals, L"Class03", L"床位数", 8, 54},
};

constexpr ControlTemplate kVariationControls[] = {
    {.id = kDwellingsCaption,
     .label = L"表1：住宅、别墅的热水小时变化系数Kh值",
     .kind = ControlKind::kStatic},
    {.id = kDwellings, .name = L"dwellings", .kind = ControlKind::kGrid, .width = 300, .height = 34},
    {.id = kHotelsCaption, .label = L"表2：旅馆的热水小时变化系数Kh值", .kind = ControlKind::kStatic},
    {.id = kHotels, .name = L"hotels", .kind = ControlKind::kGrid, .width = 300, .height = 34},
    {.id = kHospitalsCaption, .label = L"表3：医院的热水小时变化系数Kh值", .kind = ControlKind::kStatic},
    {.id = kHospitals, .name = L"hospitals", .kind = ControlKind::kGrid, .width = 300, .height = 34},
    {.id = kNote,
     .label = L"注：招待所、培训中心、宾馆的客房（不含员工）、养老院、幼儿园、托儿所（有住宿）等建筑的Kh可参"
              L"照表2选用。",
     .kind = ControlKind::kStatic,
     .style = kMultiLine,
     .width = 460,
     .height = 30},
    {.id = IDCANCEL, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

void SetUpGrid(CGridCtrl& grid, const VariationTable& table) {
  constexpr int kHeadingWidth = 65;
  grid.SetColumnCount(table.columns);
  grid.SetRowCount(2);
  grid.SetFixedRowCount(1);
  grid.SetFixedColumnCount(1);
  for (int column = 0; column < table.columns; ++column) {
    grid.SetColumnWidth(column, column == 0 ? kHeadingWidth : table.columnWidth);
  }
  grid.SetItemText(0, 0, table.heading);
  grid.SetItemText(kVariationRow, 0, L"Kh");
  AlignAll(grid, CellAlign::kCenter);
}

void FillGrid(CGridCtrl& grid, const ZcDtDictItem& items) {
  for (std::int32_t index = 0; index < items.GetCount(); ++index) {
    const ZcDtDictItem& item = *items.GetAt(index);
    grid.SetItemText(0, index + 1, item.GetAttributeValue(L"M"));
    grid.SetItemText(kVariationRow, index + 1, item.GetAttributeValue(L"Kh"));
  }
}

}  // namespace

constexpr PanelTemplate kHourlyVariationPanel = {.resource = 2009,
                                                 .className = L"ZcUiComputeRsCoeffDialog",
                                                 .title = L"热水小时变化系数",
                                                 .controls = kVariationControls};

}  // namespace zwt

ZcUiComputeRsCoeffDialog::ZcUiComputeRsCoeffDialog(CDialog* parent)
    : CDialog(zwt::kHourlyVariationPanel, parent) {
  for (const zwt::VariationTable& table : zwt::kTables) {
    OnCell(table.grid, CellNotice::kDoubleClick,
           [this, grid = table.grid](int row, int column) { PickCell(grid, row, column); });
  }
}

void ZcUiComputeRsCoeffDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  ZcDtDictionary dictionary(nullptr, nullptr);
  zwt::ReadDesignTables(dictionary);
  const ZcDtDictItem* variation = dictionary.FindItem(L"TABLE08");
  for (const zwt::VariationTable& table : zwt::kTables) {
    CGridCtrl& grid = Grid(table.grid);
    zwt::SetUpGrid(grid, table);
    const ZcDtDictItem* items = variation == nullptr ? nullptr : variation->FindItem(table.itemClass);
    if (items != nullptr) zwt::FillGrid(grid, *items);
  }
}

void ZcUiComputeRsCoeffDialog::PickCell(int grid, int row, int column) {
  const CGridCtrl& table = Grid(grid);
  if (row != zwt::kVariationRow || column <= 0 || column >= table.GetColumnCount()) return;
  hourlyVariation = _wtof(table.GetItemText(row, column));
  EndDialog(IDOK);
}
