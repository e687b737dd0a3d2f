// Search for snap points.
#include "desktop/snap_points.h"

namespace zwt {

namespace {

/// Keeps the best of the points that are offered.
class BestSnap {
 public:
  BestSnap(const QPointF& place, double reach) : place_(place), reach_(reach) {}

  void Offer(SnapKind kind, const QPointF& point) {
    const double distance = DistanceBetween(place_, point);
    if (distance > reach_) return;
    if (best_ && (best_->kind < kind || (best_->kind == kind && distance_ <= distance))) return;
    best_ = SnapPoint{kind, point};
    distance_ = distance;
  }

  const std::optional<SnapPoint>& Get() const { return best_; }

 private:
  QPointF place_;
  double reach_;
  std::optional<SnapPoint> best_;
  double distance_ = 0;
};

/// The point halfway along a line of corners.
QPointF MiddleOf(std::span<const QPointF> shape) {
  double length = 0;
  for (std::size_t i = 1; i < shape.size(); ++i) length += DistanceBetween(shape[i - 1], shape[i]);
  double left = length / 2;
  for (std::size_t i = 1; i < shape.size(); ++i) {
    const double stretch = DistanceBetween(shape[i - 1], shape[i]);
    if (left <= stretch && stretch > 0) return shape[i - 1] + (shape[i] - shape[i - 1]) * (left / stretch);
    left -= stretch;
  }
  return shape.back();
}

}  // namespace

std::optional<SnapPoint> FindSnapPoint(const DrawingPicker& picker, const QPointF& place, double reach,
                                       const std::optional<QPointF>& from,
                                       const DrawingPicker::Accept& accept) {
  BestSnap best(place, reach);
  const QPointF around(reach, reach);
  for (const std::int32_t entity : picker.Touching(QRectF(place - around, place + around), accept)) {
    const std::span<const QPointF> shape = picker.ShapeOf(entity);
    best.Offer(SnapKind::kEnd, shape.front());
    best.Offer(SnapKind::kEnd, shape.back());
    best.Offer(SnapKind::kMiddle, MiddleOf(shape));
    for (std::size_t i = 1; from && i < shape.size(); ++i) {
      best.Offer(SnapKind::kPerpendicular, NearestOnStretch(shape[i - 1], shape[i], *from));
    }
  }
  return best.Get();
}

}  // namespace zwt
