// What goes back into the drawing for one pipe: its diameter, and the annotation beside it.
#pragma once

#include <cstdint>

#include "host/drawing/object_id.h"

namespace zwt {

/// Writes a nominal diameter, mm, into a pipe. A pipe that cannot be opened stays as it is, in silence.
void SetSectionDiameter(AcDbObjectId pipeId, std::int32_t diameter);

/// Replaces whatever is attached to a pipe by one diameter annotation at the midpoint of its curve. The
/// number is the diameter that the pipe has in the drawing. A pipe that cannot be opened is passed over.
void AnnotatePipeDiameter(AcDbObjectId pipeId);

}  // namespace zwt
