#include "drainage/drainage_overlay.h"

#include "host/text/number_text.h"

namespace zwt {

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
    const ShownDrainageBranch& branch = shown.at(static_cast<std::size_t>(row) - 1);
    overlay.sections.push_back(SectionOfPipe(row, edge.branchId, branch.velocity, branch.diameter));
    const CString stack = row == 1 && riserDiameter != 0 ? ZwtNum2Str(riserDiameter) : CString();
    overlay.sections.push_back(SectionOfPipe(row, edge.riserId, {}, stack));
  }
  return overlay;
}

}  // namespace zwt
