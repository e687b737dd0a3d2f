// Whether two pipes lie on each other along a stretch.
#pragma once

#include <optional>
#include <span>

#include "host/drawing/geometry.h"

namespace zwt {

/// A stretch that two curves share.
struct Overlap {
  double length = 0;  // mm
  AcGePoint3d middle;
};

/// The longest stretch, of more than two millimetres, that two curves share next to a point on both. Straight
/// parts share one where both are within reach of each other along it, arcs only with arcs of the same
/// circle.
std::optional<Overlap> FindOverlap(std::span<const CurvePart> curve, std::span<const CurvePart> other,
                                   const AcGePoint3d& point);

}  // namespace zwt
