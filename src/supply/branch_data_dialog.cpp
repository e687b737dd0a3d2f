// Editing the supply data of branch pipes.
#include "supply/branch_data_dialog.h"

#include "frame/scope/push_resource.h"
#include "host/editor/pipe_selection.h"
#include "supply/equivalents_dialog.h"
#include "supply/quota_dialog.h"

namespace zwt {

namespace {

constexpr double kLowestValue = 0;
constexpr double kHighestValue = 65535;

constexpr ControlTemplate kBranchControls[] = {
    {.id = 2144,
     .name = L"equivalent",
     .label = L"每户当量：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kNumber},
    {.id = 2145, .label = L"..", .kind = ControlKind::kButton, .place = Placement::kBeside},
    {.id = 2007,
     .name = L"ration",
     .label = L"用水定额(L/人·d)：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kNumber},
    {.id = 2000, .label = L"..", .kind = ControlKind::kButton, .place = Placement::kBeside},
    {.id = 2143,
     .name = L"kh",
     .label = L"小时变化系数(Kh)：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kNumber},
    {.id = 2003,
     .name = L"time",
     .label = L"用水小时数(T)：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kWholeNumber},
    {.id = 2120,
     .name = L"doorNum",
     .label = L"可供户数：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kNumber},
    {.id = 2121,
     .name = L"userNum",
     .label = L"每户用水人数：",
     .kind = ControlKind::kEdit,
     .style = kNumbersOnly,
     .value = ValueKind::kNumber},
    {.id = 1,
     .label = L"确定",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"取消", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

void ExchangeBounded(CDataExchange* exchange, int id, double& value) {
  DDX_Text(exchange, id, value);
  DDV_MinMaxDouble(exchange, id, value, kLowestValue, kHighestValue);
}

}  // namespace

constexpr PanelTemplate kBranchDataPanel = {.resource = 2024,
                                            .className = L"ZcUiComputeGSParamEditDialog",
                                            .title = L"给水计算参数",
                                            .command = L"ZWTGSCS",
                                            .controls = kBranchControls};

void RunBranchDataCommand() {
  ZcDbObjectIdList branches;
  if (!SelectPipes({L"\n请选择要修改的支管: ", L"给水,热水", L"支管"}, branches) || branches.IsEmpty())
    return;
  const ZcUtPushResource scope;
  ZcUiComputeGSParamEditDialog panel;
  panel.data = ReadBranchFields(branches.GetAt(0));
  if (panel.DoModal() != IDOK) return;
  for (branches.MoveToFirst(); !branches.IsOut(); branches.MoveToNext()) {
    WriteBranchFields(branches.GetCurData(), panel.data);
  }
}

}  // namespace zwt

ZcUiComputeGSParamEditDialog::ZcUiComputeGSParamEditDialog(CDialog* parent)
    : ZcUiDialog(zwt::kBranchDataPanel, parent) {
  OnClick(2000, [this] { PickQuota(); });
  OnClick(2145, [this] { SumFixtures(); });
}

void ZcUiComputeGSParamEditDialog::DoDataExchange(CDataExchange* exchange) {
  zwt::ExchangeBounded(exchange, 2007, data.ration);
  zwt::ExchangeBounded(exchange, 2143, data.kh);
  zwt::ExchangeBounded(exchange, 2144, data.equivalent);
  zwt::ExchangeBounded(exchange, 2120, data.doorNum);
  zwt::ExchangeBounded(exchange, 2121, data.userNum);
  DDX_Text(exchange, 2003, data.time);
  DDV_MinMaxDouble(exchange, 2003, data.time, zwt::kLowestValue, zwt::kHighestValue);
}

void ZcUiComputeGSParamEditDialog::PickQuota() {
  if (!UpdateData(true)) return;
  ZcUiMaxDayParamDialog picking(this);
  if (picking.DoModal() != IDOK) return;
  data.ration = picking.quota;
  data.kh = picking.hourlyFactor;
  data.time = picking.hours;
  UpdateData(false);
}

void ZcUiComputeGSParamEditDialog::SumFixtures() {
  if (!UpdateData(true)) return;
  ZcUiGEquivalentDialog fixtures(this);
  if (fixtures.DoModal() != IDOK) return;
  data.equivalent = fixtures.total;
  UpdateData(false);
}
