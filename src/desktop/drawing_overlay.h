// The results of a panel over the drawing: sections in the colour of their velocity or in the width of their
// flow with an arrow, diameters and pressures beside them, what is in use marked, and a legend. Holds which
// row of a table is lit up.
#pragma once

#include <QPainter>
#include <QRectF>
#include <functional>
#include <optional>

#include "desktop/view_transform.h"
#include "host/overlay/overlay.h"

namespace zwt {

/// A row of a grid control.
struct TableRow {
  int table = 0;
  int row = -1;

  bool operator==(const TableRow&) const = default;
};

/// From slow to fast: a share of 0 to 1 as a colour that reads on light and dark ground.
QColor ColourOfShare(double share);

class DrawingOverlay : private OverlayWatcher {
 public:
  /// Watches for as long as it lives.
  DrawingOverlay();
  DrawingOverlay(const DrawingOverlay&) = delete;
  DrawingOverlay& operator=(const DrawingOverlay&) = delete;
  ~DrawingOverlay() override;

  /// Lights up what a row means; a row that means nothing puts the light out.
  void LightUp(const TableRow& row);
  const TableRow& Lit() const { return lit_; }
  /// Box around what is lit up; nothing where nothing is.
  std::optional<QRectF> LitPlace() const;
  /// The row that the section or point nearest to a place stands for, if it lies within reach (mm).
  std::optional<TableRow> RowAt(const QPointF& place, double reach) const;

  /// Paints over a drawing on ground of this colour.
  void Paint(QPainter& painter, const ViewTransform& view, const QColor& ground) const;

  /// Called when something else is to be seen.
  std::function<void()> onChanged;

 private:
  void OnOverlayChanged() override;

  OverlayWatcher* before_;
  TableRow lit_;
};

}  // namespace zwt
