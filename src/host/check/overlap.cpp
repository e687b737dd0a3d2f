// A shared stretch of straight parts is found exactly; on arcs it is enough to look a short way along.
#include "host/check/overlap.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/drawing/connections.h"

namespace zwt {
namespace {

constexpr double kReach = kTouch + kTouchRounding;
/// Ends that were drawn a little too far still just touch.
constexpr double kShortest = 2 * kReach;

std::optional<Overlap> StraightOverlap(const CurvePart& part, const CurvePart& other) {
  const Vector way = part.end - part.start;
  const double length = Length(way);
  if (!(length > kShortest)) return std::nullopt;
  const Vector along = way * (1 / length);
  const double first = Dot(other.start - part.start, along);
  const double second = Dot(other.end - part.start, along);
  const double from = std::max(std::min(first, second), 0.0);
  const double to = std::min(std::max(first, second), length);
  if (!(to - from > kShortest)) return std::nullopt;
  const AcGePoint3d begin = part.start + along * from;
  const AcGePoint3d end = part.start + along * to;
  if (other.DistanceTo(begin) > kReach || other.DistanceTo(end) > kReach) return std::nullopt;
  return Overlap{to - from, begin + (end - begin) * 0.5};
}

/// A short way along an arc from the end that is near a point.
std::optional<Overlap> ArcOverlap(const CurvePart& part, const CurvePart& other, const AcGePoint3d& point) {
  constexpr double kLook = 20;  // mm
  if (Distance(part.center, other.center) > kReach || std::abs(part.radius - other.radius) > kReach)
    return {};
  const double step = std::min(1.0, kLook / part.GetLength());
  for (const double share : {step, 1 - step}) {
    const AcGePoint3d at = part.PointAt(share);
    if (Distance(at, point) <= 2 * kLook && Distance(at, point) > kShortest &&
        other.DistanceTo(at) <= kReach) {
      return Overlap{std::min(part.GetLength(), other.GetLength()), at};
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Overlap> FindOverlap(std::span<const CurvePart> curve, std::span<const CurvePart> other,
                                   const AcGePoint3d& point) {
  std::optional<Overlap> longest;
  for (const CurvePart& part : curve) {
    if (part.DistanceTo(point) > kReach) continue;
    for (const CurvePart& facing : other) {
      if ((part.radius > 0) != (facing.radius > 0) || facing.DistanceTo(point) > kReach) continue;
      const auto found = part.radius > 0 ? ArcOverlap(part, facing, point) : StraightOverlap(part, facing);
      if (found && (!longest || found->length > longest->length)) longest = found;
    }
  }
  return longest;
}

}  // namespace zwt
