// Picking the hydrant demand of a building.
#include "fire/hydrant_demand_dialog.h"

#include "data/reference_rows.h"
#include "host/dialog/grouped_rows.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

enum DemandColumn { kBuilding, kSize, kDemand, kGuns, kGunFlow, kRiserFlow };

constexpr ControlTemplate kDemandControls[] = {
    {.id = 3001, .name = L"demandTable", .kind = ControlKind::kGrid, .width = 530, .height = 320},
};

}  // namespace

constexpr PanelTemplate kHydrantDemandPanel = {.resource = 3100,
                                               .className = L"ZcUiHydrantElementParamDialog",
                                               .title = L"低层建筑物室内消火栓用水量",
                                               .controls = kDemandControls};

}  // namespace zwt

ZcUiHydrantElementParamDialog::ZcUiHydrantElementParamDialog(CDialog* parent)
    : CDialog(zwt::kHydrantDemandPanel, parent) {
  OnCell(3001, CellNotice::kDoubleClick, [this](int row, int) { PickRow(row); });
}

void ZcUiHydrantElementParamDialog::OnInitDialog() {
  CDialog::OnInitDialog();
  FillTable();
}

void ZcUiHydrantElementParamDialog::FillTable() {
  CGridCtrl& table = Grid(3001);
  SetUpColumns(table,
               {{L"建筑物", 70},
                {L"高度、层数、体积或座位数", 160},
                {L"用水量", 65},
                {L"水枪数量", 65},
                {L"每支水枪最小流量", 70},
                {L"每根竖管最小流量", 70}},
               1);
  AlignAll(table, CellAlign::kCenter);
  table.SetItemFormat(0, zwt::kSize, CellAlign::kLeft);
  int firstOfGroup = 0;
  for (const zwt::ReferenceRow& item : zwt::ReadReferenceRows(L"HydrantQ", {L"L", L"N", L"HQ", L"VQ"})) {
    if (item.heading) {
      firstOfGroup = table.GetRowCount();
      continue;
    }
    const bool inGroup = !item.group.empty();
    const bool namesBuilding = !inGroup || table.GetRowCount() == firstOfGroup;
    const CString building = inGroup ? item.group : item.name;
    AddReferenceRow(table, namesBuilding ? building : CString(), inGroup ? item.name : CString(), item.texts);
    if (item.closesGroup) CloseGroup(table, firstOfGroup);
  }
  for (int row = 0; row < table.GetRowCount(); ++row) {
    for (int column = 0; column < table.GetColumnCount(); ++column) table.SetReadOnly(row, column);
  }
}

void ZcUiHydrantElementParamDialog::PickRow(int row) {
  if (row == 0) return;
  const CGridCtrl& table = Grid(3001);
  hydrantFlow = _wtof(table.GetItemText(row, zwt::kDemand));
  gunCount = _wtoi(table.GetItemText(row, zwt::kGuns));
  gunMinFlow = _wtof(table.GetItemText(row, zwt::kGunFlow));
  riserMinFlow = _wtof(table.GetItemText(row, zwt::kRiserFlow));
  EndDialog(IDOK);
}
