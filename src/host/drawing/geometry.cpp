#include "host/drawing/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace zwt {
namespace {

/// Below this size of both X and Y of an extrusion direction the world's Y axis takes part, not Z.
constexpr double kNearZ = 1.0 / 64.0;

/// A way shorter than this has no direction: the inverse of its length would overflow.
constexpr double kShortest = 1e-100;

Vector Unit(const Vector& way) {
  const double length = Length(way);
  return length > kShortest ? way * (1 / length) : Vector{};
}

}  // namespace

Vector operator-(const AcGePoint3d& a, const AcGePoint3d& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
AcGePoint3d operator+(const AcGePoint3d& point, const Vector& way) {
  return {point.x + way.x, point.y + way.y, point.z + way.z};
}
Vector operator*(const Vector& way, double factor) {
  return {way.x * factor, way.y * factor, way.z * factor};
}
double Dot(const Vector& a, const Vector& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vector Cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double Length(const Vector& way) {
  return std::hypot(way.x, way.y, way.z);
}
double Distance(const AcGePoint3d& a, const AcGePoint3d& b) {
  return Length(a - b);
}

ObjectFrame::ObjectFrame(const Vector& extrusion) {
  const Vector direction = Unit(extrusion);
  if ((direction.x == 0 && direction.y == 0 && direction.z > 0) || Length(direction) == 0) {
    isWorld_ = true;
    x_ = {1, 0, 0};
    y_ = {0, 1, 0};
    z_ = {0, 0, 1};
    return;
  }
  z_ = direction;
  const bool nearZ = std::abs(z_.x) < kNearZ && std::abs(z_.y) < kNearZ;
  x_ = Unit(Cross(nearZ ? Vector{0, 1, 0} : Vector{0, 0, 1}, z_));
  y_ = Unit(Cross(z_, x_));
}

AcGePoint3d ObjectFrame::ToWorld(const AcGePoint3d& point) const {
  if (isWorld_) return point;
  return AcGePoint3d{} + Vector{x_.x * point.x + y_.x * point.y + z_.x * point.z,
                                x_.y * point.x + y_.y * point.y + z_.y * point.z,
                                x_.z * point.x + y_.z * point.y + z_.z * point.z};
}

double CurvePart::GetLength() const {
  return radius > 0 ? radius * sweep : Distance(start, end);
}

AcGePoint3d CurvePart::PointAt(double share) const {
  if (radius > 0) {
    const double angle = sweep * share;
    return center + toStart * (radius * std::cos(angle)) + across * (radius * std::sin(angle));
  }
  return start + (end - start) * share;
}

Vector CurvePart::DirectionAt(double share) const {
  if (radius <= 0) return Unit(end - start);
  const double angle = sweep * share;
  const Vector along = across * std::cos(angle);
  const Vector inward = toStart * -std::sin(angle);
  return Unit({along.x + inward.x, along.y + inward.y, along.z + inward.z});
}

double CurvePart::DistanceTo(const AcGePoint3d& point) const {
  if (radius <= 0) {
    const Vector way = end - start;
    const double square = Dot(way, way);
    const double share = square > 0 ? std::clamp(Dot(point - start, way) / square, 0.0, 1.0) : 0.0;
    return Distance(point, share == 1 ? end : start + way * share);
  }
  const Vector fromCenter = point - center;
  double angle = std::atan2(Dot(fromCenter, across), Dot(fromCenter, toStart));
  if (angle < 0) angle += 2 * std::acos(-1.0);
  const double atEnds = std::min(Distance(point, start), Distance(point, end));
  return angle <= sweep ? std::min(atEnds, Distance(point, PointAt(angle / sweep))) : atEnds;
}

CurvePart StraightPart(const AcGePoint3d& start, const AcGePoint3d& end) {
  CurvePart part;
  part.start = start;
  part.end = end;
  return part;
}

CurvePart BulgePart(const AcGePoint3d& start, const AcGePoint3d& end, double bulge,
                    const ObjectFrame& frame) {
  CurvePart part = StraightPart(frame.ToWorld(start), frame.ToWorld(end));
  const double dx = end.x - start.x;
  const double dy = end.y - start.y;
  const double chord = std::hypot(dx, dy);
  const double size = std::abs(bulge);
  // The rise of a flatter arc is lost in the last digits of the chord's ends, and its center is nowhere.
  if (chord == 0 || size < 1e-12) return part;
  const double radius = chord * (1 + size * size) / (4 * size);
  if (!std::isfinite(radius)) return part;
  const double side = (bulge > 0 ? 1 : -1) * (1 - size * size) / (4 * size);
  const AcGePoint3d center{start.x + dx / 2 - dy * side, start.y + dy / 2 + dx * side, start.z};
  part.radius = radius;
  part.sweep = 4 * std::atan(size);
  part.center = frame.ToWorld(center);
  const double ux = (start.x - center.x) / radius;
  const double uy = (start.y - center.y) / radius;
  const double turn = bulge > 0 ? 1 : -1;
  const ObjectFrame& axes = frame;
  part.toStart = {axes.X().x * ux + axes.Y().x * uy, axes.X().y * ux + axes.Y().y * uy,
                  axes.X().z * ux + axes.Y().z * uy};
  part.across = Cross(axes.Z(), part.toStart) * turn;
  return part;
}

double LengthOf(std::span<const CurvePart> curve) {
  double length = 0;
  for (const CurvePart& part : curve) length += part.GetLength();
  return length;
}

AcGePoint3d MidPointOf(std::span<const CurvePart> curve, Vector* direction) {
  double left = LengthOf(curve) / 2;
  for (const CurvePart& part : curve) {
    const double length = part.GetLength();
    const bool last = &part == &curve.back();
    if (left > length && !last) {
      left -= length;
      continue;
    }
    const double share = length > 0 ? std::clamp(left / length, 0.0, 1.0) : 0.0;
    if (direction != nullptr) *direction = part.DirectionAt(share);
    return part.PointAt(share);
  }
  return {};
}

double DistanceTo(std::span<const CurvePart> curve, const AcGePoint3d& point) {
  double nearest = std::numeric_limits<double>::infinity();
  for (const CurvePart& part : curve) nearest = std::min(nearest, part.DistanceTo(point));
  return nearest;
}

}  // namespace zwt

ZcGeCurve3d::ZcGeCurve3d(zwt::PipeCurve curve) : curve_(std::move(curve)) {}
ZcGeCurve3d::~ZcGeCurve3d() = default;

AcGePoint3d ZcGeCurve3d::GetMidPoint() const {
  return zwt::MidPointOf(curve_);
}
