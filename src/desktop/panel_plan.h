// How the controls of a panel template are arranged: bands of columns, columns of group boxes, boxes of rows.
// Plain data without a toolkit, so that the arrangement can be tested by itself.
#pragma once

#include <vector>

#include "host/dialog/panel_template.h"

namespace zwt {

/// Controls side by side, in the order of the template.
using PanelRow = std::vector<const ControlTemplate*>;

/// Rows that lie in one group box; an empty title is a box without a frame.
struct PanelBox {
  const wchar_t* title = L"";
  int column = 0;
  std::vector<PanelRow> rows;
};

/// Columns of boxes side by side. The next band lies below.
struct PanelBand {
  std::vector<std::vector<PanelBox>> columns;
};

struct PanelPlan {
  std::vector<PanelBand> bands;
  PanelRow buttonRow;
};

/// Arranges a template. Neighbours with the same group title share a box. A new band begins where a box's
/// column lies to the left of that of the box before it. Statics that are the label of another control are
/// left out: they go with that control, which takes the label's place in the row where the label comes first.
PanelPlan PlanPanel(const PanelTemplate& panel);

}  // namespace zwt
