// Curves over a row of steps: flow and head loss along a riser, or the changes of an iteration. Each curve
// has a field of its own below the other, with its unit and its range.
#pragma once

#include <QWidget>

#include "host/overlay/overlay.h"

namespace zwt {

class ProfilePlot : public QWidget {
 public:
  explicit ProfilePlot(QWidget* parent);

  void Show(const OverlayProfile& profile);
  const OverlayProfile& Shown() const { return profile_; }
  /// Writes the plot as .png. False where the file cannot be written.
  bool SavePicture(const QString& file);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Paint(QPainter& painter, const QRectF& place) const;

  OverlayProfile profile_;
};

}  // namespace zwt
