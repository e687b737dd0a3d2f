// Design flow of one section.
#include "supply/design_flow_dialog.h"

#include <algorithm>
#include <iterator>

#include "frame/scope/panel_command.h"
#include "host/text/number_text.h"
#include "supply/equivalents_dialog.h"
#include "supply/inlet_diameter.h"

namespace zwt {

namespace {

constexpr auto kSiteNames = [] {
  std::array<const wchar_t*, kDesignFlowSites.size()> names{};
  std::transform(kDesignFlowSites.begin(), kDesignFlowSites.end(), names.begin(),
                 [](const DesignFlowSite& site) { return site.name; });
  return names;
}();

constexpr const wchar_t* kMaterials[] = {L"塑料管", L"金属管"};

constexpr ControlTemplate kFlowControls[] = {
    {.id = 2018,
     .name = L"site",
     .label = L"场所：",
     .kind = ControlKind::kCombo,
     .items = kSiteNames,
     .text = kSiteNames[0],
     .group = L"输入数据"},
    {.id = 2014,
     .name = L"material",
     .label = L"管材：",
     .kind = ControlKind::kCombo,
     .items = kMaterials,
     .text = kMaterials[0],
     .group = L"输入数据"},
    {.id = 2020,
     .name = L"usersPerHousehold",
     .label = L"每户用水人数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2016,
     .name = L"equivalents",
     .label = L"器具当量总数：",
     .kind = ControlKind::kEdit,
     .value = ValueKind::kNumber,
     .group = L"输入数据"},
    {.id = 2015,
     .label = L"..",
     .kind = ControlKind::kButton,
     .group = L"输入数据",
     .place = Placement::kBeside},
    {.id = 2024,
     .name = L"flow",
     .label = L"设计管段流量(L/s)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 2025,
     .name = L"diameter",
     .label = L"公称直径(mm)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 2026,
     .name = L"velocity",
     .label = L"流速(m/s)：",
     .kind = ControlKind::kEdit,
     .style = kReadOnly,
     .group = L"计算结果"},
    {.id = 1,
     .label = L"计算",
     .kind = ControlKind::kButton,
     .style = kDefaultButton,
     .place = Placement::kButtonRow},
    {.id = 2, .label = L"退出", .kind = ControlKind::kButton, .place = Placement::kButtonRow},
};

constexpr int kFlowButtons[] = {1};
constexpr int kFlowResults[] = {2024, 2025, 2026};

}  // namespace

namespace {

InletMaterial InletMaterialOf(const CString& material) {
  return material == L"塑料管" ? InletMaterial::Plastic : InletMaterial::Metal;
}

}  // namespace

constexpr PanelTemplate kDesignFlowPanel = {.resource = 2005,
                                            .className = L"ZcUiComputeGSDialog",
                                            .title = L"给水计算",
                                            .command = L"ZWTJDGS",
                                            .controls = kFlowControls,
                                            .calculatingButtons = kFlowButtons,
                                            .results = kFlowResults};

void RunDesignFlowCommand() {
  RunPanel<ZcUiComputeGSDialog>();
}

}  // namespace zwt

ZcUiComputeGSDialog::ZcUiComputeGSDialog() : ZcUiDialog(zwt::kDesignFlowPanel) {
  OnClick(1, [this] { Calculate(); });
  OnClick(2015, [this] { SumFixtures(); });
  OnExplain(2024, [this](int) {
    zwt::Trace trace;
    if (calculated_) zwt::DesignFlow(*calculated_, &trace);
    return trace;
  });
  OnExplain(2025, [this](int) {
    zwt::Trace trace = ExplainSize();
    trace.resize(std::min<std::size_t>(trace.size(), 1));
    return trace;
  });
  OnExplain(2026, [this](int) {
    zwt::Trace trace = ExplainSize();
    trace.erase(trace.begin(), trace.begin() + (trace.empty() ? 0 : 1));
    return trace;
  });
  inputs_.site = zwt::kSiteNames[0];
}

void ZcUiComputeGSDialog::DoDataExchange(CDataExchange* exchange) {
  DDX_CBString(exchange, 2018, inputs_.site);
  DDX_CBString(exchange, 2014, material_);
  DDX_Text(exchange, 2020, inputs_.personsPerHousehold);
  DDX_Text(exchange, 2016, inputs_.equivalents);
  DDX_Text(exchange, 2024, flowText_);
  DDX_Text(exchange, 2025, diameterText_);
  DDX_Text(exchange, 2026, velocityText_);
}

void ZcUiComputeGSDialog::Calculate() {
  if (!UpdateData(true)) return;
  const zwt::DesignFlowRefusal refusal = zwt::CheckDesignFlow(inputs_);
  if (refusal != zwt::DesignFlowRefusal::None) {
    Edit(refusal == zwt::DesignFlowRefusal::Equivalents ? 2016 : 2020).FocusAndSelect();
    return;
  }
  const double flow = zwt::DesignFlow(inputs_);
  flowText_ = zwt::FormatFixed(flow, 3);
  calculated_ = inputs_;
  calculatedMaterial_ = material_;
  if (const auto chosen = zwt::ChooseInletDiameter(zwt::InletMaterialOf(material_), flow)) {
    diameterText_ = ZwtNum2Str(chosen->diameter);
    velocityText_ = zwt::FormatFixed(chosen->velocity, 2);
  }
  UpdateData(false);
}

zwt::Trace ZcUiComputeGSDialog::ExplainSize() const {
  zwt::Trace trace;
  if (calculated_) {
    zwt::ChooseInletDiameter(zwt::InletMaterialOf(calculatedMaterial_), zwt::DesignFlow(*calculated_),
                             &trace);
  }
  return trace;
}

void ZcUiComputeGSDialog::SumFixtures() {
  if (!UpdateData(true)) return;
  ZcUiGEquivalentDialog fixtures(this);
  fixtures.total = inputs_.equivalents;
  if (fixtures.DoModal() != IDOK) return;
  inputs_.equivalents = fixtures.total;
  UpdateData(false);
}
