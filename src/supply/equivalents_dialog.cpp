// Supply fittings and their equivalents.
#include "supply/equivalents_dialog.h"

#include <algorithm>
#include <vector>

#include "data/reference_rows.h"
#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

/// Columns of the grid.
enum EquivalentColumn { kNumber, kName, kFlow, kEquivalent, kDiameter, kPressure, kQuantity };

constexpr ControlTemplate kEquivalentsControls[] = {
    {.id = 2012, .name = L"equivalentTable", .kind = ControlKind::kGrid, .width = 500, .height = 300},
    {.id = 2017, .label = L"清零", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = 1,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"取消", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

/// By grid row less 1.
std::vector<std::int32_t>& RememberedQuantities() {
  static std::vector<std::int32_t> quantities;
  return quantities;
}

std::int32_t RememberedQuantity(int row) {
  const auto& quantities = RememberedQuantities();
  const auto index = static_cast<std::size_t>(row - 1);
  return index < quantities.size() ? quantities[index] : 0;
}

void RememberQuantity(int row, std::int32_t quantity) {
  auto& quantities = RememberedQuantities();
  const auto index = static_cast<std::size_t>(row - 1);
  if (index >= quantities.size()) quantities.resize(index + 1, 0);
  quantities[index] = quantity;
}

void DressHeading(CGridCtrl& grid, int row) {
  for (int column = kName; column <= kQuantity; ++column) grid.SetReadOnly(row, column);
}

void DressItem(CGridCtrl& grid, int row, double seed) {
  for (int column = kName; column <= kPressure; ++column) grid.SetReadOnly(row, column);
  grid.SetItemFgColour(row, kEquivalent, kRed);
  grid.SetItemFgColour(row, kQuantity, kBlue);
  const std::int32_t quantity = RememberedQuantity(row);
  if (seed != 0 && quantity != 0) grid.SetItemText(row, kQuantity, ZwtNum2Str(quantity));
}

}  // namespace

constexpr PanelTemplate kEquivalentsPanel = {.resource = 2003,
                                             .className = L"ZcUiGEquivalentDialog",
                                             .title = L"给水当量分类输入",
                                             .controls = kEquivalentsControls};

void ClearRememberedQuantities() {
  constexpr std::size_t kForgotten = 8;
  auto& quantities = RememberedQuantities();
  std::fill_n(quantities.begin(), std::min(quantities.size(), kForgotten), 0);
}

}  // namespace zwt

ZcUiGEquivalentDialog::ZcUiGEquivalentDialog(CDialog* parent) : CDialog(zwt::kEquivalentsPanel, parent) {
  OnClick(2017, [this] { ClearQuantities(); });
}

void ZcUiGEquivalentDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  FillEquivalentGrid();
}

void ZcUiGEquivalentDialog::FillEquivalentGrid() {
  CGridCtrl& grid = Grid(2012);
  SetUpColumns(grid,
               {{L"序", 23},
                {L"给水配件名称", 120},
                {L"额定流量(L/s)", 70},
                {L"当量", 70},
                {L"连接管公称直径(mm)", 70},
                {L"最低工作压力(MPa)", 70},
                {L"数量", 65}},
               1);
  AlignAll(grid, CellAlign::kCenter);
  grid.SetItemFormat(0, zwt::kName, CellAlign::kLeft);
  grid.SetEditable(true);
  int heading = 0;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"TABLE07", {L"L", L"Q", L"DN", L"MPa"})) {
    if (item.heading) {
      heading = AddGroupHeading(grid, item.number, item.name);
      zwt::DressHeading(grid, heading);
    } else {
      const bool inGroup = !item.group.empty();
      const CString name = inGroup ? NameBelowHeading(item.name) : item.name;
      zwt::DressItem(grid, AddReferenceRow(grid, inGroup ? CString() : item.number, name, item.texts), total);
    }
    if (item.closesGroup) CloseGroup(grid, heading);
  }
}

void ZcUiGEquivalentDialog::OnOK() {
  SumEquivalents();
  EndDialog(IDOK);
}

void ZcUiGEquivalentDialog::SumEquivalents() {
  const CGridCtrl& grid = Grid(2012);
  total = 0;
  for (int row = 1; row < grid.GetRowCount(); ++row) {
    const std::int32_t quantity = _wtoi(grid.GetItemText(row, zwt::kQuantity));
    zwt::RememberQuantity(row, quantity);
    if (quantity != 0) total += quantity * _wtof(grid.GetItemText(row, zwt::kEquivalent));
  }
}

void ZcUiGEquivalentDialog::ClearQuantities() {
  CGridCtrl& grid = Grid(2012);
  for (int row = 1; row < grid.GetRowCount(); ++row) grid.SetItemText(row, zwt::kQuantity, L"");
  grid.Refresh();
}
