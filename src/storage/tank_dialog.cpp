// Controls and handlers of the tank panel.
#include "storage/tank_dialog.h"

#include "frame/scope/panel_command.h"

namespace {

using zwt::ControlKind;
using zwt::Placement;

enum Control : int {
  kExit = 1,
  kDomesticUse = 2009,
  kTankAlone = 2010,
  kSharedUse = 2011,
  kFireFlow = 2074,
  kFireMinutes = 2075,
  kBuildingClass = 2076,
  kWithPump = 2077,
  kA = 2078,
  kB = 2079,
  kDuration = 2080,
  kShortestRun = 2081,
  kFireVolume = 2082,
  kDomesticVolume = 2083,
  kTotal = 2084,
  kCompute = 2085,
  kFireUse = 2086,
  kNote = 2090,
  kSecondNote = 2092,
  kLabelA = 2093,
  kLabelB = 2094,
};

constexpr const wchar_t* kBuildingClasses[] = {L"一类建筑(住宅除外)", L"二类建筑(住宅除外)、一类建筑(住宅)",
                                               L"二类建筑(住宅)"};
constexpr const wchar_t* kUseGroup = L"水箱用途";
constexpr const wchar_t* kDomesticGroup = L"生活";
constexpr const wchar_t* kFireGroup = L"消防";
constexpr const wchar_t* kResultGroup = L"计算结果";

constexpr zwt::ControlTemplate kControls[] = {
    {.id = kFireUse,
     .name = L"use",
     .label = L"消防",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart,
     .group = kUseGroup},
    {.id = kDomesticUse,
     .label = L"生活",
     .kind = ControlKind::kRadio,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kSharedUse,
     .label = L"合用",
     .kind = ControlKind::kRadio,
     .group = kUseGroup,
     .place = Placement::kBeside},
    {.id = kTankAlone,
     .name = L"mode",
     .label = L"单设水箱",
     .kind = ControlKind::kRadio,
     .style = zwt::kGroupStart,
     .group = kDomesticGroup},
    {.id = kWithPump,
     .label = L"水泵、水箱联合工作",
     .kind = ControlKind::kRadio,
     .group = kDomesticGroup,
     .place = Placement::kBeside},
    {.id = kLabelA,
     .label = L"平均每小时用水量(立方米)：",
     .kind = ControlKind::kStatic,
     .group = kDomesticGroup,
     .labelOf = kA},
    {.id = kA, .name = L"a", .kind = ControlKind::kEdit, .group = kDomesticGroup},
    {.id = kLabelB,
     .label = L"最大连续出水时间(h)：",
     .kind = ControlKind::kStatic,
     .group = kDomesticGroup,
     .labelOf = kB},
    {.id = kB, .name = L"b", .kind = ControlKind::kEdit, .group = kDomesticGroup},
    {.id = kDuration,
     .name = L"c",
     .label = L"设计秒流量持续时间(h)：",
     .kind = ControlKind::kEdit,
     .text = L"0.5",
     .group = kDomesticGroup},
    {.id = kShortestRun,
     .name = L"d",
     .label = L"水泵最短运行时间(h)：",
     .kind = ControlKind::kEdit,
     .text = L"0.25",
     .group = kDomesticGroup},
    {.id = kFireFlow,
     .name = L"Qf",
     .label = L"消防用水量(L/s)：",
     .kind = ControlKind::kEdit,
     .group = kFireGroup},
    {.id = kFireMinutes,
     .name = L"t",
     .label = L"用水时间(min)：",
     .kind = ControlKind::kEdit,
     .text = L"10",
     .group = kFireGroup},
    {.id = kBuildingClass,
     .name = L"buildingClass",
     .label = L"建筑等级：",
     .kind = ControlKind::kCombo,
     .items = kBuildingClasses,
     .text = L"一类建筑(住宅除外)",
     .group = kFireGroup},
    {.id = kNote,
     .label = L"注:选以上建筑,消防水箱容积不小于18m3",
     .kind = ControlKind::kStatic,
     .group = kFireGroup},
    {.id = kSecondNote, .label = zwt::kNoSecondTankNote, .kind = ControlKind::kStatic, .group = kFireGroup},
    {.id = kFireVolume,
     .name = L"fireVolume",
     .label = L"消防水箱最小容积(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kDomesticVolume,
     .name = L"domesticVolume",
     .label = L"生活水箱容积(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kTotal,
     .name = L"total",
     .label = L"总容积(立方米)：",
     .kind = ControlKind::kEdit,
     .style = zwt::kReadOnly,
     .group = kResultGroup},
    {.id = kCompute,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = zwt::kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = kExit, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};
constexpr int kButtons[] = {kCompute};
constexpr int kResults[] = {kFireVolume, kDomesticVolume, kTotal, kNote, kSecondNote};

}  // namespace

namespace zwt {

constexpr PanelTemplate kTankPanel = {.resource = 2015,
                                      .className = L"ZcUiTankDialog",
                                      .title = L"水箱容积计算",
                                      .command = L"ZWTSXJS",
                                      .controls = kControls,
                                      .calculatingButtons = kButtons,
                                      .results = kResults};

void RunTankCommand() {
  RunPanel<ZcUiTankDialog>();
}

}  // namespace zwt

ZcUiTankDialog::ZcUiTankDialog(CDialog* parent) : ZcUiDialog(zwt::kTankPanel, parent) {
  OnClick(kFireUse, [this] { ChooseUse(zwt::TankUse::Fire); });
  OnClick(kDomesticUse, [this] { ChooseUse(zwt::TankUse::Domestic); });
  OnClick(kSharedUse, [this] { ChooseUse(zwt::TankUse::Shared); });
  OnClick(kTankAlone, [this] { ChooseMode(zwt::TankMode::TankAlone); });
  OnClick(kWithPump, [this] { ChooseMode(zwt::TankMode::WithPump); });
  OnSelectionChange(kBuildingClass, [this] { ChooseClass(); });
  OnClick(kCompute, [this] { Calculate(); });
}

/// The second group of fields stays visible on opening: it goes only when a working mode is clicked.
void ZcUiTankDialog::OnInitDialog() {
  input_.fireMinutes = L"10";
  input_.duration = L"0.5";
  input_.shortestRun = L"0.25";
  ZcUiDialog::OnInitDialog();
  ChooseUse(zwt::TankUse::Domestic);
}

void ZcUiTankDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Radio(exchange, kFireUse, use_);
  DDX_Radio(exchange, kTankAlone, mode_);
  DDX_Text(exchange, kFireFlow, input_.fireFlow);
  DDX_Text(exchange, kFireMinutes, input_.fireMinutes);
  DDX_CBIndex(exchange, kBuildingClass, input_.buildingClass);
  DDX_Text(exchange, kA, input_.a);
  DDX_Text(exchange, kB, input_.b);
  DDX_Text(exchange, kDuration, input_.duration);
  DDX_Text(exchange, kShortestRun, input_.shortestRun);
  DDX_Text(exchange, kFireVolume, fireVolumeText_);
  DDX_Text(exchange, kDomesticVolume, domesticVolumeText_);
  DDX_Text(exchange, kTotal, totalText_);
}

void ZcUiTankDialog::ChooseUse(zwt::TankUse use) {
  const bool domestic = use != zwt::TankUse::Fire;
  const bool fire = use != zwt::TankUse::Domestic;
  Enable({kTankAlone, kWithPump, kLabelA, kA, kLabelB, kB, kDuration, kShortestRun, kDomesticVolume},
         domestic);
  Enable({kFireFlow, kFireMinutes, kBuildingClass, kNote, kSecondNote, kFireVolume}, fire);
  Enable({kTotal}, use == zwt::TankUse::Shared);
  SetDlgItemText(kSecondNote, zwt::kNoSecondTankNote);
}

void ZcUiTankDialog::ChooseMode(zwt::TankMode mode) {
  const bool alone = mode == zwt::TankMode::TankAlone;
  SetDlgItemText(kLabelA, alone ? L"平均每小时用水量(立方米):" : L"设计秒流量(L/s):");
  SetDlgItemText(kLabelB, alone ? L"最大连续出水时间(h):" : L"水泵出水量(L/s):");
  Show({kDuration, kShortestRun}, !alone);
}

void ZcUiTankDialog::ChooseClass() {
  SetDlgItemText(kNote, zwt::TankClassNote(Combo(kBuildingClass).GetCurSel()));
}

void ZcUiTankDialog::Calculate() {
  if (!UpdateData(true)) return;
  input_.use = static_cast<zwt::TankUse>(use_);
  input_.mode = static_cast<zwt::TankMode>(mode_);
  const zwt::TankResult result = zwt::ComputeTank(input_);
  if (result.fireVolume) fireVolumeText_ = *result.fireVolume;
  if (result.domesticVolume) domesticVolumeText_ = *result.domesticVolume;
  if (result.totalVolume) totalText_ = *result.totalVolume;
  SetDlgItemText(kNote, result.note);
  SetDlgItemText(kSecondNote, result.secondNote);
  UpdateData(false);
}
