// Measuring the cells of a grid.
#include "desktop/grid_measure.h"

#include <QStringList>
#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

std::size_t Index(int value) {
  return static_cast<std::size_t>(value);
}

/// The merged area of each cell that belongs to one.
class MergedCells {
 public:
  explicit MergedCells(const CGridCtrl& grid) {
    for (const MergedArea& area : grid.MergedAreas()) {
      for (int row = area.row; row < area.row + area.rows; ++row) {
        for (int column = area.column; column < area.column + area.columns; ++column) {
          areas_[{row, column}] = &area;
        }
      }
    }
  }
  const MergedArea* At(int row, int column) const {
    const auto found = areas_.find({row, column});
    return found == areas_.end() ? nullptr : found->second;
  }

 private:
  std::map<std::pair<int, int>, const MergedArea*> areas_;
};

/// The width below which a text would be broken where it must not: numbers and latin words stay whole, a
/// Chinese text needs a few characters to a line.
int UnbrokenWidth(const CString& text, const PanelMetrics& metrics) {
  constexpr int kCharactersOfALine = 6;
  const int line = metrics.TextWidth(QStringLiteral("国")) * kCharactersOfALine;
  int widest = 0;
  for (const QString& part : ToQt(text).split(QLatin1Char('\n'))) {
    const bool latin = std::all_of(part.cbegin(), part.cend(), [](QChar c) { return c.unicode() < 0x80; });
    const int whole = metrics.TextWidth(part);
    widest = std::max(widest, latin ? whole : std::min(whole, line));
  }
  return widest;
}

int WrappedHeight(const CString& text, const PanelMetrics& metrics, int width) {
  if (text.empty()) return metrics.LineHeight();
  const QRect box(0, 0, std::max(width - CellPadding(metrics), 1), 1 << 20);
  return metrics.Font().boundingRect(box, Qt::TextWordWrap, ToQt(text)).height();
}

int SumOf(const std::vector<int>& sizes, int first, int count) {
  const auto from = sizes.begin() + first;
  return std::accumulate(from, from + count, 0);
}

/// Heightens the rows of areas that are merged downwards until their texts fit.
void MakeRoomForTallAreas(const CGridCtrl& grid, const PanelMetrics& metrics, const std::vector<int>& widths,
                          std::vector<int>& heights) {
  for (const MergedArea& area : grid.MergedAreas()) {
    if (area.rows < 2) continue;
    const int width = SumOf(widths, area.column, area.columns);
    if (width == 0) continue;
    const int needed =
        WrappedHeight(grid.GetItemText(area.row, area.column), metrics, width) + CellPadding(metrics) / 2;
    const int missing = needed - SumOf(heights, area.row, area.rows);
    for (int i = 0; missing > 0 && i < area.rows; ++i) {
      heights[Index(area.row + i)] += (missing * (i + 1)) / area.rows - (missing * i) / area.rows;
    }
  }
}

}  // namespace

int CellPadding(const PanelMetrics& metrics) {
  return std::max(metrics.Horizontal(6), 6);
}

std::vector<int> ColumnWidths(const CGridCtrl& grid, const PanelMetrics& metrics) {
  const MergedCells merged(grid);
  std::vector<int> widths(Index(grid.GetColumnCount()), 0);
  for (int column = 0; column < grid.GetColumnCount(); ++column) {
    if (grid.GetColumnWidth(column) <= 0) continue;
    int width = metrics.GridPixels(grid.GetColumnWidth(column));
    for (int row = 0; row < grid.GetRowCount(); ++row) {
      const MergedArea* area = merged.At(row, column);
      if (area != nullptr && area->columns > 1) continue;
      int needed = UnbrokenWidth(grid.GetItemText(row, column), metrics) + CellPadding(metrics);
      if (grid.GetCombo(row, column) != nullptr) needed += metrics.LineHeight();
      width = std::max(width, needed);
    }
    widths[Index(column)] = width;
  }
  return widths;
}

void FillWidth(std::vector<int>& widths, int available) {
  const int total = std::accumulate(widths.begin(), widths.end(), 0);
  if (total <= 0 || total >= available) return;
  int before = 0;
  for (int& width : widths) {
    const int from = before * available / total;
    before += width;
    width = before * available / total - from;
  }
}

std::vector<int> RowHeights(const CGridCtrl& grid, const PanelMetrics& metrics,
                            const std::vector<int>& widths) {
  const MergedCells merged(grid);
  const int gap = CellPadding(metrics) / 2;
  std::vector<int> heights(Index(grid.GetRowCount()), 0);
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    int height = std::max(metrics.LineHeight() + gap, metrics.GridPixels(grid.GetRowHeight(row)));
    for (int column = 0; column < grid.GetColumnCount(); ++column) {
      const MergedArea* area = merged.At(row, column);
      if (area != nullptr && (area->rows > 1 || area->column != column)) continue;
      const int width = SumOf(widths, column, area == nullptr ? 1 : area->columns);
      if (width == 0) continue;
      height = std::max(height, WrappedHeight(grid.GetItemText(row, column), metrics, width) + gap);
    }
    heights[Index(row)] = height;
  }
  MakeRoomForTallAreas(grid, metrics, widths, heights);
  return heights;
}

}  // namespace zwt
