// Pan and zoom.
#include "desktop/view_transform.h"

#include <algorithm>

namespace zwt {

namespace {

constexpr double kSmallestScale = 1e-8;
constexpr double kLargestScale = 1e5;
/// Share of the window that a fitted part takes.
constexpr double kFilled = 0.92;

}  // namespace

QPointF ViewTransform::ToPixel(double x, double y) const {
  return {size_.width() / 2 + (x - middle_.x()) * scale_, size_.height() / 2 - (y - middle_.y()) * scale_};
}

QPointF ViewTransform::ToPlace(const QPointF& pixel) const {
  return {middle_.x() + (pixel.x() - size_.width() / 2) / scale_,
          middle_.y() - (pixel.y() - size_.height() / 2) / scale_};
}

QRectF ViewTransform::Shown() const {
  const QSizeF shown = size_ / scale_;
  return {QPointF(middle_.x() - shown.width() / 2, middle_.y() - shown.height() / 2), shown};
}

void ViewTransform::ZoomAt(const QPointF& pixel, double factor) {
  const QPointF place = ToPlace(pixel);
  scale_ = std::clamp(scale_ * factor, kSmallestScale, kLargestScale);
  middle_ += place - ToPlace(pixel);
}

void ViewTransform::Pan(const QPointF& pixels) {
  middle_ += QPointF(-pixels.x(), pixels.y()) / scale_;
}

void ViewTransform::Fit(const QRectF& part) {
  middle_ = part.center();
  const double widest = part.width() / size_.width();
  const double highest = part.height() / size_.height();
  const double needed = std::max(widest, highest);
  if (needed > 0) scale_ = std::clamp(kFilled / needed, kSmallestScale, kLargestScale);
}

}  // namespace zwt
