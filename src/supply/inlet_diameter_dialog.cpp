// Estimate of a dwelling's inlet pipe.
#include "supply/inlet_diameter_dialog.h"

#include "host/text/number_text.h"
#include "supply/equivalents_dialog.h"
#include "supply/inlet_diameter.h"

namespace zwt {

namespace {

constexpr const wchar_t* kMaterials[] = {L"金属管", L"塑料管"};

constexpr ControlTemplate kInletControls[] = {
    {.id = 2014,
     .name = L"material",
     .label = L"管材：",
     .kind = ControlKind::kCombo,
     .items = kMaterials,
     .text = L"金属管",
     .group = L"输入数据"},
    {.id = 2016,
     .name = L"equivalents",
     .label = L"每户器具当量总数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2015,
     .label = L"..",
     .kind = ControlKind::kButton,
     .group = L"输入数据",
     .place = Placement::kBeside},
    {.id = 2017,
     .name = L"diameter",
     .label = L"公称直径(mm)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 2018,
     .name = L"velocity",
     .label = L"流速(m/s)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 1,
     .label = L"估算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr int kInletButtons[] = {1};
constexpr int kInletResults[] = {2017, 2018};

}  // namespace

constexpr PanelTemplate kInletDiameterPanel = {.resource = 2002,
                                               .className = L"ZcUiMaxDayDiameterDialog",
                                               .title = L"估算入户管管径",
                                               .controls = kInletControls,
                                               .calculatingButtons = kInletButtons,
                                               .results = kInletResults};

}  // namespace zwt

ZcUiMaxDayDiameterDialog::ZcUiMaxDayDiameterDialog(CDialog* parent)
    : CDialog(zwt::kInletDiameterPanel, parent) {
  OnClick(1, [this] { Estimate(); });
  OnClick(2015, [this] { SumFixtures(); });
}

void ZcUiMaxDayDiameterDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_Text(exchange, 2016, equivalents_);
  DDX_Text(exchange, 2017, diameterText_);
  DDX_Text(exchange, 2018, velocityText_);
}

void ZcUiMaxDayDiameterDialog::Estimate() {
  if (!UpdateData(true)) return;
  if (equivalents_ == 0) {
    Edit(2016).FocusAndSelect();
    return;
  }
  const double flow = zwt::ProbabilityFlowEstimate(inputs, equivalents_);
  const auto material =
      Combo(2014).GetCurSel() == 0 ? zwt::InletMaterial::Metal : zwt::InletMaterial::Plastic;
  if (const auto chosen = zwt::ChooseInletDiameter(material, flow)) {
    diameterText_ = ZwtNum2Str(chosen->diameter);
    velocityText_ = zwt::FormatFixed(chosen->velocity, 2);
    UpdateData(false);
  }
}

void ZcUiMaxDayDiameterDialog::SumFixtures() {
  if (!UpdateData(true)) return;
  ZcUiGEquivalentDialog fixtures(this);
  fixtures.total = equivalents_;
  if (fixtures.DoModal() != IDOK) return;
  equivalents_ = fixtures.total;
  UpdateData(false);
}

/// Leaving forgets the quantities of the fixture panel.
void ZcUiMaxDayDiameterDialog::OnCancel() {
  zwt::ClearRememberedQuantities();
  CDialog::OnCancel();
}
