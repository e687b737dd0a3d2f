// Controls and handlers of the extinguisher choice panel.
#include "fire/extinguisher_choice_dialog.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;

enum Control : int {
  kExit = 1,
  kBack = 2,
  kResult = 2117,
  kTotal = 2118,
  kMinimum = 2119,
  kPoints = 2120,
  kDanger = 2121,
  kList = 2122,
  kPlace = 2125,
  kHandHeld = 3000,
  kTrolley,
};

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kTotal, .name = L"total", .label = L"总配置：", .kind = ControlKind::kEdit},
    {.id = kMinimum,
     .name = L"minimum",
     .label = L"最小配置：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .place = Placement::kBeside},
    {.id = kDanger,
     .name = L"danger",
     .label = L"危险级别：",
     .kind = ControlKind::kCombo,
     .items = zwt::kDangerItems,
     .text = L"严重危险级"},
    {.id = kPoints,
     .name = L"points",
     .label = L"配置点数：",
     .kind = ControlKind::kEdit,
     .place = Placement::kBeside},
    {.id = kHandHeld,
     .name = L"kind",
     .label = L"手提式灭火器",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart},
    {.id = kTrolley, .label = L"推车式灭火器", .kind = ControlKind::kRadio, .place = Placement::kBeside},
    {.id = kList, .name = L"models", .kind = ControlKind::kList, .width = 240, .height = 110},
    {.id = kResult,
     .name = L"result",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly | zwt::kMultiLine,
     .width = 240,
     .height = 50},
    {.id = kPlace,
     .label = L"配置",
     .kind = ControlKind::kButton,
     .style = zwt::kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kBack, .label = L"上一步", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
    {.id = kExit, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};
constexpr int kButtons[] = {kPlace};
constexpr int kResults[] = {kTotal, kMinimum, kResult};

void Fill(ZcDynArray<ZcUiFireChildDialog::three>& rows, std::span<const zwt::ExtinguisherModel> models) {
  rows.Reset();
  for (const zwt::ExtinguisherModel& model : models) rows.Append(model);
}

}  // namespace

namespace zwt {

constexpr PanelTemplate kExtinguisherChoicePanel = {.resource = 2021,
                                                    .className = L"ZcUiFireChildDialog",
                                                    .title = L"灭火器配置",
                                                    .controls = kControls,
                                                    .calculatingButtons = kButtons,
                                                    .results = kResults};

}  // namespace zwt

ZcUiFireChildDialog::ZcUiFireChildDialog(const zwt::Rating& rating, std::int32_t fireClass,
                                         std::int32_t dangerIndex, CDialog* parent)
    : CDialog(zwt::kExtinguisherChoicePanel, parent),
      total_{rating.totalText, fireClass, rating.minimumText, rating.minimumNumber},
      dangerIndex_(dangerIndex) {
  OnLeave(kTotal, [this] { NormalizeTotalText(); });
  OnSelectionChange(kDanger, [this] { ChooseDanger(); });
  OnClick(kHandHeld, [this] { ChooseKind(); });
  OnClick(kTrolley, [this] { ChooseKind(); });
  OnCell(kList, CellNotice::kClick, [this](int, int) { listClicked_ = 1; });
  OnClick(kPlace, [this] { ComposeResult(); });
}

void ZcUiFireChildDialog::OnInitDialog() {
  kind_ = zwt::kHandHeldKind;
  CDialog::OnInitDialog();
  CListCtrl& list = List(kList);
  list.InsertColumn(L"类型", 100);
  list.InsertColumn(L"规格", 50);
  list.InsertColumn(L"型号", 130);
  list.InsertColumn(L"类别", 50);
  FillExtinguisherCatalogue();
  RefreshCatalogueList();
  Edit(kPoints).SetFocus();
  ready_ = 1;
  listClicked_ = 0;
}

/// A cancel that comes while the total text is being read waits for that to end; on the one thread it always
/// has.
void ZcUiFireChildDialog::OnCancel() {
  while (ready_ != 1) {
  }
  CDialog::OnCancel();
}

void ZcUiFireChildDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Radio(exchange, kHandHeld, kind_);
  DDX_Text(exchange, kTotal, total_.text);
  DDX_Text(exchange, kMinimum, total_.minimumText);
  DDX_CBIndex(exchange, kDanger, dangerIndex_);
  DDX_Text(exchange, kResult, resultText_);
}

void ZcUiFireChildDialog::FillExtinguisherCatalogue() {
  Fill(handHeld_, zwt::HandHeldExtinguishers());
  Fill(trolley_, zwt::TrolleyExtinguishers());
}

void ZcUiFireChildDialog::RefreshCatalogueList() {
  rows_.clear();
  if (kind_ == zwt::kHandHeldKind || kind_ == zwt::kTrolleyKind) {
    const ZcDynArray<three>& models = kind_ == zwt::kHandHeldKind ? handHeld_ : trolley_;
    rows_ = zwt::RefreshCatalogueList({models.GetFirst(), static_cast<std::size_t>(models.GetLength())},
                                      total_.fireClass, total_.minimumNumber);
  }
  CListCtrl& list = List(kList);
  list.DeleteAllItems();
  for (const zwt::ExtinguisherRow& row : rows_) {
    const int item = list.InsertItem(row.type);
    list.SetItemText(item, 1, row.spec);
    list.SetItemText(item, 2, row.model);
    list.SetItemText(item, 3, row.rating);
  }
  list.SelectItem(0);
}

void ZcUiFireChildDialog::NormalizeTotalText() {
  ready_ = 0;
  if (UpdateData(true)) {
    total_ = zwt::NormalizeTotalText(total_, dangerIndex_);
    RefreshCatalogueList();
    UpdateData(false);
  }
  ready_ = 1;
}

void ZcUiFireChildDialog::ChooseKind() {
  if (UpdateData(true)) RefreshCatalogueList();
}

void ZcUiFireChildDialog::ChooseDanger() {
  if (!UpdateData(true)) return;
  zwt::SetMinimum(total_, dangerIndex_);
  UpdateData(false);
  RefreshCatalogueList();
}

void ZcUiFireChildDialog::ComposeResult() {
  if (!UpdateData(true)) return;
  CListCtrl& list = List(kList);
  const zwt::ExtinguisherPlacing placing = zwt::ComposeResult(
      GetDlgItemText(kPoints), rows_, list.GetFirstSelectedItem(), total_.text, total_.fireClass);
  if (placing.firstRowTaken) list.SelectItem(0);
  resultText_ = placing.text;
  UpdateData(false);
  if (placing.pointsRefused) Edit(kPoints).FocusAndSelect();
}
