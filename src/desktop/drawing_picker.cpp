// Picking by distance and by rectangle.
#include "desktop/drawing_picker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace zwt {

namespace {

/// Angle of arc that one chord stands for.
constexpr double kChordAngle = std::numbers::pi / 36;

QPointF Flat(const AcGePoint3d& point) {
  return {point.x, point.y};
}

Box FlatBox(const QPointF& a, const QPointF& b, double around) {
  return BoxAround({a.x(), a.y(), 0}, {b.x(), b.y(), 0}, around);
}

/// Which sides of an area a place lies beyond, one bit for each.
int SidesBeyond(const QRectF& area, const QPointF& place) {
  return (place.x() < area.left() ? 1 : 0) | (place.x() > area.right() ? 2 : 0) |
         (place.y() < area.top() ? 4 : 0) | (place.y() > area.bottom() ? 8 : 0);
}

/// On which side of the line through a and b a place lies: the sign tells.
double SideOf(const QPointF& a, const QPointF& b, const QPointF& place) {
  return (b.x() - a.x()) * (place.y() - a.y()) - (b.y() - a.y()) * (place.x() - a.x());
}

bool StretchMeets(const QRectF& area, const QPointF& a, const QPointF& b) {
  const int beyondA = SidesBeyond(area, a);
  const int beyondB = SidesBeyond(area, b);
  if (beyondA == 0 || beyondB == 0) return true;
  if ((beyondA & beyondB) != 0) return false;
  const double sides[] = {SideOf(a, b, area.topLeft()), SideOf(a, b, area.topRight()),
                          SideOf(a, b, area.bottomLeft()), SideOf(a, b, area.bottomRight())};
  const auto [least, most] = std::minmax_element(std::begin(sides), std::end(sides));
  return *least <= 0 && *most >= 0;
}

bool IsFinite(const QPointF& place) {
  return std::isfinite(place.x()) && std::isfinite(place.y());
}

PipeCurve CurveOfEntity(const Drawing& drawing, std::int32_t entity) {
  const EntityRecord& record = drawing.Entity(entity);
  if (!record.alive || record.inPaperSpace || !record.canBePipe) return {};
  if (record.pipe >= 0) return drawing.CurveOf(entity);
  try {
    return ReadPipeCurve(SplitTags(record.tags), 0);
  } catch (const DrawingError&) {
    return {};
  }
}

}  // namespace

double DistanceBetween(const QPointF& a, const QPointF& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

QPointF NearestOnStretch(const QPointF& a, const QPointF& b, const QPointF& place) {
  const QPointF way = b - a;
  const double square = QPointF::dotProduct(way, way);
  if (square == 0) return a;
  return a + way * std::clamp(QPointF::dotProduct(place - a, way) / square, 0.0, 1.0);
}

DrawingPicker::DrawingPicker(const Drawing& drawing) {
  firstCorner_.reserve(static_cast<std::size_t>(drawing.EntityCount()) + 1);
  std::vector<Box> boxes;
  for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) TakeIn(drawing, i);
  firstCorner_.push_back(corners_.size());
  boxes.reserve(stretches_.size());
  for (const std::size_t at : stretches_) boxes.push_back(FlatBox(corners_[at], corners_[at + 1], 0));
  tree_ = BoxTree(boxes);
}

void DrawingPicker::TakeIn(const Drawing& drawing, std::int32_t entity) {
  const std::size_t first = corners_.size();
  firstCorner_.push_back(first);
  for (const CurvePart& part : CurveOfEntity(drawing, entity)) {
    if (corners_.size() == first) corners_.push_back(Flat(part.start));
    const int chords =
        part.radius > 0 ? std::max(1, static_cast<int>(std::ceil(part.sweep / kChordAngle))) : 1;
    for (int i = 1; i < chords; ++i) corners_.push_back(Flat(part.PointAt(static_cast<double>(i) / chords)));
    corners_.push_back(Flat(part.end));
  }
  const auto begin = corners_.begin() + static_cast<std::ptrdiff_t>(first);
  if (!std::all_of(begin, corners_.end(), IsFinite)) corners_.resize(first);
  for (std::size_t i = first; i + 1 < corners_.size(); ++i) {
    stretches_.push_back(i);
    owners_.push_back(entity);
  }
}

std::vector<std::int32_t> DrawingPicker::Near(const QRectF& area) const {
  return tree_.Find(FlatBox(area.topLeft(), area.bottomRight(), 0));
}

std::int32_t DrawingPicker::Nearest(const QPointF& place, double reach, const Accept& accept) const {
  std::int32_t nearest = -1;
  double least = std::numeric_limits<double>::infinity();
  const QPointF around(reach, reach);
  for (const std::int32_t stretch : Near(QRectF(place - around, place + around))) {
    const auto number = static_cast<std::size_t>(stretch);
    const std::size_t at = stretches_[number];
    const double distance = DistanceBetween(place, NearestOnStretch(corners_[at], corners_[at + 1], place));
    const std::int32_t owner = owners_[number];
    const bool better = distance < least || (distance == least && owner < nearest);
    if (distance > reach || !better || !accept(owner)) continue;
    nearest = owner;
    least = distance;
  }
  return nearest;
}

std::vector<std::int32_t> DrawingPicker::Inside(const QRectF& area, const Accept& accept) const {
  std::vector<std::int32_t> found = Touching(area, accept);
  std::erase_if(found, [&](std::int32_t entity) {
    const std::span<const QPointF> shape = ShapeOf(entity);
    return std::any_of(shape.begin(), shape.end(),
                       [&](const QPointF& corner) { return SidesBeyond(area, corner) != 0; });
  });
  return found;
}

std::vector<std::int32_t> DrawingPicker::Touching(const QRectF& area, const Accept& accept) const {
  // Marks bring what the tree finds into drawing order sooner than sorting does.
  std::vector<char> touches(firstCorner_.size());
  for (const std::int32_t stretch : Near(area)) {
    const auto number = static_cast<std::size_t>(stretch);
    const std::size_t at = stretches_[number];
    char& mark = touches[static_cast<std::size_t>(owners_[number])];
    if (mark == 0 && StretchMeets(area, corners_[at], corners_[at + 1])) mark = 1;
  }
  std::vector<std::int32_t> found;
  for (std::size_t i = 0; i < touches.size(); ++i) {
    const auto entity = static_cast<std::int32_t>(i);
    if (touches[i] != 0 && accept(entity)) found.push_back(entity);
  }
  return found;
}

std::span<const QPointF> DrawingPicker::ShapeOf(std::int32_t entity) const {
  const auto at = static_cast<std::size_t>(entity);
  if (entity < 0 || at + 1 >= firstCorner_.size()) return {};
  return {corners_.data() + firstCorner_[at], corners_.data() + firstCorner_[at + 1]};
}

QRectF DrawingPicker::BoundsOf(std::int32_t entity) const {
  const std::span<const QPointF> shape = ShapeOf(entity);
  if (shape.empty()) return {};
  QPointF low = shape.front();
  QPointF high = low;
  for (const QPointF& corner : shape) {
    low = {std::min(low.x(), corner.x()), std::min(low.y(), corner.y())};
    high = {std::max(high.x(), corner.x()), std::max(high.y(), corner.y())};
  }
  return {low, high};
}

}  // namespace zwt
