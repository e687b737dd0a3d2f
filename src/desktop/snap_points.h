// Places in the drawing that the pointer jumps to: ends, middles, feet of perpendiculars.
#pragma once

#include <optional>

#include "desktop/drawing_picker.h"

namespace zwt {

enum class SnapKind : std::uint8_t { kEnd, kMiddle, kPerpendicular };

struct SnapPoint {
  SnapKind kind = SnapKind::kEnd;
  QPointF place;
};

/// The snap point within reach of a place, of the lines that may be snapped to. Ends win over middles, these
/// over perpendiculars; of one kind the nearest. Perpendiculars are those of a line drawn from a point.
std::optional<SnapPoint> FindSnapPoint(const DrawingPicker& picker, const QPointF& place, double reach,
                                       const std::optional<QPointF>& from,
                                       const DrawingPicker::Accept& accept);

}  // namespace zwt
