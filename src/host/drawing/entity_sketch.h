// Sketches of single entities: what each kind draws. Inserts are left to block_sketches.
#pragma once

#include <span>

#include "host/drawing/drawing_data.h"
#include "host/drawing/entity_groups.h"
#include "host/drawing/sketch.h"

namespace zwt {

/// Adds what an entity shows to a sketch. False, and nothing added, where it is broken; kinds without a
/// picture, and inserts, are sound and show nothing. tags: of the entity and of what belongs to it.
bool SketchEntity(std::span<const Tag> tags, const SketchStyle& style, const DrawingData& drawing,
                  Sketch& sketch);

/// Adds one attribute of an insert, which lies where it stands, not where the insert puts its block.
void SketchAttribute(EntityGroups& attribute, const SketchStyle& style, const DrawingData& drawing,
                     Sketch& sketch);

/// Adds the edges of a hatch.
void SketchHatch(EntityGroups& hatch, const SketchStyle& style, Sketch& sketch);

/// Adds the lines of a multi-line text.
void SketchMultilineText(EntityGroups& text, const SketchStyle& style, const DrawingData& drawing,
                         Sketch& sketch);

}  // namespace zwt
