// Arrangement of a template's controls.
#include "desktop/panel_plan.h"

#include <map>
#include <string_view>

namespace zwt {

namespace {

/// Boxes in the order of the template, before they are dealt out to columns.
class BoxBuilder {
 public:
  void Add(const ControlTemplate& control, Placement place) {
    const bool sameBox = !boxes_.empty() && std::wstring_view(boxes_.back().title) == control.group &&
                         boxes_.back().column == control.column;
    if (!sameBox) boxes_.push_back({.title = control.group, .column = control.column, .rows = {}});
    PanelBox& box = boxes_.back();
    if (place == Placement::kRow || box.rows.empty()) box.rows.emplace_back();
    box.rows.back().push_back(&control);
  }

  std::vector<PanelBox> Take() { return std::move(boxes_); }

 private:
  std::vector<PanelBox> boxes_;
};

std::vector<PanelBand> DealOut(std::vector<PanelBox> boxes) {
  std::vector<PanelBand> bands;
  int columnBefore = 0;
  for (PanelBox& box : boxes) {
    if (bands.empty() || box.column < columnBefore) bands.emplace_back();
    columnBefore = box.column;
    auto& columns = bands.back().columns;
    const auto column = static_cast<std::size_t>(box.column < 0 ? 0 : box.column);
    if (columns.size() <= column) columns.resize(column + 1);
    columns[column].push_back(std::move(box));
  }
  return bands;
}

}  // namespace

PanelPlan PlanPanel(const PanelTemplate& panel) {
  PanelPlan plan;
  BoxBuilder boxes;
  std::map<int, Placement> placeOfLabel;
  for (const ControlTemplate& control : panel.controls) {
    if (control.labelOf != 0) {
      placeOfLabel.emplace(control.labelOf, control.place);
      continue;
    }
    const auto label = placeOfLabel.find(control.id);
    const Placement place = label == placeOfLabel.end() ? control.place : label->second;
    if (control.place == Placement::kButtonRow) {
      plan.buttonRow.push_back(&control);
    } else {
      boxes.Add(control, place);
    }
  }
  plan.bands = DealOut(boxes.Take());
  return plan;
}

}  // namespace zwt
