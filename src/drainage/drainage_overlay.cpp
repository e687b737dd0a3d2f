#include "drainage/drainage_overlay.h"

#include <utility>

#include "host/text/number_text.h"

namespace zwt {
namespace {

OverlaySection BranchSection(AcDbObjectId pipe, std::int32_t row, const ShownDrainageBranch& shown) {
  OverlaySection section = {.row = row, .pipes = {pipe}};
  section.course = PipeCourse(pipe);
  if (!shown.velocity.empty()) section.value = _wtof(shown.velocity);
  if (!shown.diameter.empty()) section.label = L"DN" + shown.diameter;
  return section;
}

}  // namespace

Overlay DescribeDrainage(ZwtPsPipeNetwork& network, const std::vector<ShownDrainageBranch>& shown,
                         std::int32_t riserDiameter, std::int32_t table) {
  Overlay overlay;
  overlay.title = L"排水水力计算";
  overlay.quantity = L"流速";
  overlay.unit = L"m/s";
  overlay.labelMeaning = L"管径(mm)";
  overlay.sectionTable = table;
  std::int32_t row = 1;
  for (network.edges.MoveToFirst(); !network.edges.IsOut(); network.edges.MoveToNext(), ++row) {
    const ZwtPsPipeEdge& edge = network.edges.GetCurData();
    overlay.sections.push_back(
        BranchSection(edge.branchId, row, shown.at(static_cast<std::size_t>(row) - 1)));
    OverlaySection riser = {.row = row, .pipes = {edge.riserId}};
    riser.course = PipeCourse(edge.riserId);
    if (row == 1 && riserDiameter != 0) riser.label = L"DN" + ZwtNum2Str(riserDiameter);
    overlay.sections.push_back(std::move(riser));
  }
  return overlay;
}

}  // namespace zwt
