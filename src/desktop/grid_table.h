// The table of a grid control: fixed rows and columns stay in place while the rest scrolls, cells merge, the
// selection can be copied. Built of four table views on one model: the body and, over its margins, the fixed
// rows, the fixed columns and the corner of both.
#pragma once

#include <QTableView>
#include <array>
#include <vector>

#include "desktop/grid_model.h"
#include "desktop/panel_metrics.h"

namespace zwt {

class GridDelegate;

class GridTable : public QTableView {
 public:
  GridTable(const CGridCtrl& grid, const PanelMetrics& metrics, QWidget* parent);

  /// The delegate that draws and edits the cells of the body; the table does not own it.
  void SetDelegate(GridDelegate& delegate);

  /// Takes over rows, columns, sizes and merged cells from the control.
  void TakeOver();

  /// Selects exactly the range; none for an invalid one.
  void ShowSelection(const CCellRange& range);
  /// The bounding range of the selected cells, invalid for none.
  CCellRange SelectedRange() const;

  /// The view in which a cell is seen: the body, or one of the fixed parts.
  QTableView& ViewOf(int row, int column);
  /// All four views, for connections.
  std::array<QTableView*, 4> Views();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Prepare(QTableView& part) const;
  void Arrange();
  void ApplySizes(QTableView& view, bool fixedRows, bool fixedColumns) const;
  void ApplySpans(QTableView& view, bool fixedRows, bool fixedColumns) const;
  void PlaceParts();
  int FixedWidth() const;
  int FixedHeight() const;
  int ScrollBarWidth() const;

  const CGridCtrl& grid_;
  PanelMetrics metrics_;
  GridModel* model_;
  GridDelegate* delegate_ = nullptr;
  QTableView* top_;     // fixed rows
  QTableView* left_;    // fixed columns
  QTableView* corner_;  // both
  std::vector<int> widths_;
  std::vector<int> heights_;
  int wantedWidth_ = 0;
};

}  // namespace zwt
