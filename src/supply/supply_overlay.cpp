#include "supply/supply_overlay.h"

#include <utility>

#include "host/text/number_text.h"

namespace zwt {
namespace {

OverlayProfile EmptyProfile(std::int32_t riserIndex) {
  OverlayProfile profile;
  profile.title = ZwtNum2Str(riserIndex + 1) + L"#立管";
  profile.stepName = L"管段";
  profile.curves = {{L"流量", L"L/s", {}}, {L"累计水损", L"mH2O", {}}};
  return profile;
}

/// Adds a section to the profile of its riser.
void AddStep(std::vector<OverlayProfile>& profiles, std::int32_t riserIndex, bool isFirst,
             const ShownSupplySection& shown) {
  if (shown.flow.empty()) return;
  if (isFirst || profiles.empty()) profiles.push_back(EmptyProfile(riserIndex));
  OverlayProfile& profile = profiles.back();
  profile.steps.push_back(shown.label);
  profile.curves[0].values.push_back(_wtof(shown.flow));
  std::vector<double>& losses = profile.curves[1].values;
  const double before = losses.empty() ? 0.0 : losses.back();
  losses.push_back(before + _wtof(shown.headLoss));
}

}  // namespace

Overlay DescribeSupply(ZcDList<ZwtVPipeData>& risers, const std::vector<ShownSupplySection>& shown,
                       std::int32_t table) {
  Overlay overlay;
  overlay.title = L"给水水力计算";
  overlay.quantity = L"流速";
  overlay.unit = L"m/s";
  overlay.labelMeaning = L"管径(mm)";
  overlay.sectionTable = table;
  std::int32_t row = 0;
  ForEachSection(risers, [&](const ZwtVPipeEdge& edge, std::int32_t riserIndex, std::int32_t position,
                             const ZwtVPipeData&) {
    const ShownSupplySection& section = shown.at(static_cast<std::size_t>(row));
    ++row;
    overlay.sections.push_back(SectionOfPipe(row, edge.pipeId, section.velocity, section.diameter));
    AddStep(overlay.profiles, riserIndex, position == 0, section);
  });
  return overlay;
}

}  // namespace zwt
