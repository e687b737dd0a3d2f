// Widths of a grid's columns and heights of its rows in pixels: the panel's wishes, widened and heightened
// where a text would be cut off.
#pragma once

#include <vector>

#include "desktop/panel_metrics.h"
#include "host/dialog/grid_control.h"

namespace zwt {

/// Blank pixels around the text of a cell, for a font of this height.
int CellPadding(const PanelMetrics& metrics);

/// Width of each column, 0 for hidden ones. Numbers and short words are never broken, longer texts may wrap.
std::vector<int> ColumnWidths(const CGridCtrl& grid, const PanelMetrics& metrics);

/// Widens visible columns in proportion until they fill the width; wider ones stay as they are.
void FillWidth(std::vector<int>& widths, int available);

/// Height of each row for these widths, with wrapped texts in full, also those of merged cells.
std::vector<int> RowHeights(const CGridCtrl& grid, const PanelMetrics& metrics,
                            const std::vector<int>& widths);

}  // namespace zwt
