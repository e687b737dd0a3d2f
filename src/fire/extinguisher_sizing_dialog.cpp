// Controls and handlers of the extinguisher sizing panel.
#include "fire/extinguisher_sizing_dialog.h"

#include "fire/extinguisher_choice_dialog.h"
#include "frame/scope/panel_command.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;

enum Control : int {
  kExit = 2,
  kArea = 2111,
  kFireClass = 2112,
  kBuilding = 2113,
  kDanger = 2114,
  kFacility = 2115,
  kCompute = 2116,
};

constexpr const wchar_t* kFireClasses[] = {L"A类火灾", L"B类火灾"};
constexpr const wchar_t* kBuildings[] = {L"地上建筑", L"地下建筑", L"歌舞娱乐放映游艺场所",
                                         L"网吧、商场、寺庙"};
constexpr const wchar_t* kFacilities[] = {L"只设有室内消火栓系统", L"未设室内消火栓系统和灭火系统",
                                          L"只设有灭火系统", L"设有室内消火栓系统和灭火系统",
                                          L"可燃物露天堆垛/甲乙丙类液体贮罐/可燃气体贮罐"};

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kArea, .name = L"area", .label = L"保护面积(㎡)：", .kind = ControlKind::kEdit},
    {.id = kFireClass,
     .name = L"fireClass",
     .label = L"火灾类别：",
     .kind = ControlKind::kCombo,
     .items = kFireClasses,
     .text = L"A类火灾"},
    {.id = kBuilding,
     .name = L"building",
     .label = L"建筑类别：",
     .kind = ControlKind::kCombo,
     .items = kBuildings,
     .text = L"地上建筑"},
    {.id = kDanger,
     .name = L"danger",
     .label = L"危险类别：",
     .kind = ControlKind::kCombo,
     .items = zwt::kDangerItems,
     .text = L"严重危险级"},
    {.id = kFacility,
     .name = L"facility",
     .label = L"灭火设施类别：",
     .kind = ControlKind::kCombo,
     .items = kFacilities,
     .text = L"只设有室内消火栓系统"},
    {.id = kCompute,
     .label = L"计算并配置",
     .kind = ControlKind::kButton,
     .style = zwt::kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kExit, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};
constexpr int kButtons[] = {kCompute};

}  // namespace

namespace zwt {

constexpr PanelTemplate kExtinguisherSizingPanel = {.resource = 2019,
                                                    .className = L"ZcUiFireExtinguisherDialog",
                                                    .title = L"灭火器计算",
                                                    .command = L"ZWTMHQ",
                                                    .controls = kControls,
                                                    .calculatingButtons = kButtons};

void RunExtinguisherCommand() {
  RunPanel<ZcUiFireExtinguisherDialog>();
}

}  // namespace zwt

ZcUiFireExtinguisherDialog::ZcUiFireExtinguisherDialog(CDialog* parent)
    : ZcUiDialog(zwt::kExtinguisherSizingPanel, parent) {
  OnClick(kCompute, [this] { RequiredRating(); });
}

void ZcUiFireExtinguisherDialog::OnInitDialog() {
  area_ = {};
  ZcUiDialog::OnInitDialog();
  ZwtSetComboBoxAutoWidth(Combo(kBuilding));
  ZwtSetComboBoxAutoWidth(Combo(kFacility));
}

void ZcUiFireExtinguisherDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, kArea, area_.areaText);
  DDX_CBIndex(exchange, kFireClass, area_.classIndex);
  DDX_CBIndex(exchange, kBuilding, area_.buildingIndex);
  DDX_CBIndex(exchange, kDanger, area_.dangerIndex);
  DDX_CBIndex(exchange, kFacility, area_.facilityIndex);
}

/// The choice ends both panels, or comes back here with the danger and the class that were settled there.
void ZcUiFireExtinguisherDialog::RequiredRating() {
  if (!UpdateData(true)) return;
  const zwt::Rating rating = zwt::RequiredRating(area_);
  ZcUiFireChildDialog choice(rating, area_.classIndex, area_.dangerIndex, this);
  switch (choice.DoModal()) {
    case IDOK:
      EndDialog(IDOK);
      break;
    case IDCANCEL:
      TakeBack(choice);
      break;
    default:
      break;
  }
}

void ZcUiFireExtinguisherDialog::TakeBack(const ZcUiFireChildDialog& choice) {
  area_.dangerIndex = choice.DangerIndex();
  const bool holdsB = choice.TotalText().find_first_of(L"Bb") != CString::npos;
  area_.classIndex = holdsB ? zwt::kFireClassB : zwt::kFireClassA;
  UpdateData(false);
}
