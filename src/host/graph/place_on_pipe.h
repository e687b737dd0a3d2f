// Where along a pipe a point lies.
#pragma once

#include <span>

#include "host/drawing/geometry.h"

namespace zwt {

/// The place of a pipe that is nearest to a point.
struct PlaceOnPipe {
  double along = 0.0;  ///< mm from the start
  AcGePoint3d point;
};

/// Of several places equally near the first from the start.
PlaceOnPipe NearestPlace(std::span<const CurvePart> curve, const AcGePoint3d& point);

}  // namespace zwt
