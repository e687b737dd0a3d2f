// Storey lines and labels of a schematic: ordinary entities that no calculation looks at.
#pragma once

#include <cstdint>

#include "host/drawing/drawing.h"

namespace zwt {

/// A line at every floor and at the roof, from left to right, with its name over its left end; mm.
struct StoreyLines {
  std::int32_t storeys = 0;
  double storeyHeight = 0;
  double left = 0;
  double right = 0;
};

void DrawStoreyLines(Drawing& drawing, const StoreyLines& lines);

/// A text of annotation height at a point.
void DrawLabel(Drawing& drawing, const CString& content, const AcGePoint3d& position, AcDbObjectId layer);

}  // namespace zwt
