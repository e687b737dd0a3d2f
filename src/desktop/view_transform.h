// Where the drawing lies on the screen: which place stands in the middle of the window, and how large. The
// drawing is seen from above, its Y axis upwards; pixels count downwards.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "host/drawing/geometry.h"

namespace zwt {

class ViewTransform {
 public:
  /// Pixels of the window, above 0.
  void SetSize(const QSizeF& size) { size_ = size; }
  const QSizeF& Size() const { return size_; }

  /// Pixels for one millimetre of the drawing.
  double Scale() const { return scale_; }
  /// Length in the drawing that so many pixels show.
  double LengthOf(double pixels) const { return pixels / scale_; }

  QPointF ToPixel(double x, double y) const;
  QPointF ToPixel(const QPointF& place) const { return ToPixel(place.x(), place.y()); }
  /// Place of the drawing under a pixel.
  QPointF ToPlace(const QPointF& pixel) const;
  /// What of the drawing the window shows.
  QRectF Shown() const;

  /// Makes everything so many times larger; what lies under the pixel stays there. Factors that would leave
  /// 1e-8 to 1e5 pixels for a millimetre are cut to it.
  void ZoomAt(const QPointF& pixel, double factor);
  /// Moves the drawing with the pointer.
  void Pan(const QPointF& pixels);
  /// Shows a part of the drawing as large as the window allows, with a margin around it. A part without
  /// extent is shown in the middle, the scale as it was.
  void Fit(const QRectF& part);

 private:
  QSizeF size_{1, 1};
  QPointF middle_;
  double scale_ = 0.05;
};

}  // namespace zwt
