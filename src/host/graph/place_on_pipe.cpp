// Part by part: the foot of the perpendicular on a line, the direction from the centre on an arc.
#include "host/graph/place_on_pipe.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace zwt {

namespace {

/// Share of the way along a straight part, 0 to 1.
double NearestShareOfLine(const CurvePart& part, const AcGePoint3d& point) {
  const Vector way = part.end - part.start;
  const double square = Dot(way, way);
  return square > 0 ? std::clamp(Dot(point - part.start, way) / square, 0.0, 1.0) : 0.0;
}

double NearestShareOfArc(const CurvePart& part, const AcGePoint3d& point) {
  const Vector fromCenter = point - part.center;
  double angle = std::atan2(Dot(fromCenter, part.across), Dot(fromCenter, part.toStart));
  if (angle < 0) angle += 2 * std::numbers::pi;
  if (angle <= part.sweep) return angle / part.sweep;
  return Distance(point, part.start) <= Distance(point, part.end) ? 0.0 : 1.0;
}

AcGePoint3d PointOf(const CurvePart& part, double share) {
  if (share == 0.0) return part.start;
  return share == 1.0 ? part.end : part.PointAt(share);
}

}  // namespace

PlaceOnPipe NearestPlace(std::span<const CurvePart> curve, const AcGePoint3d& point) {
  PlaceOnPipe nearest;
  double distance = std::numeric_limits<double>::infinity();
  double before = 0.0;
  for (const CurvePart& part : curve) {
    const double share = part.radius > 0 ? NearestShareOfArc(part, point) : NearestShareOfLine(part, point);
    const AcGePoint3d foot = PointOf(part, share);
    const double length = part.GetLength();
    if (Distance(point, foot) < distance) {
      distance = Distance(point, foot);
      nearest = {before + share * length, foot};
    }
    before += length;
  }
  return nearest;
}

}  // namespace zwt
