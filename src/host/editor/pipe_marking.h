// Turning drawn lines into pipes and setting the attributes of many pipes at once: for the command line as
// for a window that shows the properties of a selection. What to set may be proposed from how a pipe is
// drawn.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/drawing/drawing.h"

namespace zwt {

/// Which entities are meant. Of each list that is not empty an entity must have one.
struct EntityChoice {
  std::vector<std::int32_t> layers = {};  // indices of the drawing's layers
  /// Indices 1 to 255, as seen: that of the layer where the entity has none.
  std::vector<std::int32_t> colors = {};
  std::vector<std::uint64_t> handles = {};
};

/// Whether an entity is a living line or polyline of model space: a pipe, or one that can become one.
bool CanBePipe(const Drawing& drawing, std::int32_t entity);

/// The lines and polylines of model space that are meant, pipes or not, in drawing order.
std::vector<std::int32_t> FindLines(const Drawing& drawing, const EntityChoice& choice);

/// System of the pipes on a layer, by what stands in its name: 热水, 消防 (also 消火栓), 污水, 废水 or 给水,
/// looked for in this order. Empty where the name says nothing.
CString ProposeSystem(const CString& layerName);

/// Roles (ELS_TYPE) of pipes as they are drawn, one text for each: upright ones are 立管, the one with the
/// lowest free foot of everything that hangs together 入口立管, others with a free end on an upright one
/// 支管; empty for the rest. Upright is along Z where the pipes reach through space, else along Y. Pipes of
/// 消防 get no entry: their height counts only where they are 立管.
std::vector<CString> ProposeRoles(const Drawing& drawing, std::span<const std::int32_t> pipes);

/// What is to be set.
struct PipeMarking {
  FieldList fields = {};
  bool proposeSystem = false;  // WtSystem of each by the name of its layer, where that says one
  bool proposeRole = false;    // ELS_TYPE of each as it is drawn, where that says one
};

/// Puts a text into a list of fields, in place of what it has under the key.
void PutField(FieldList& fields, const CString& key, const CString& text);

/// Makes the entities pipes and sets their fields, all in one undo step. Where one of them refuses nothing is
/// changed, and the observers have been told why.
Acad::ErrorStatus MarkPipes(Drawing& drawing, std::span<const std::int32_t> entities,
                            const PipeMarking& marking);

}  // namespace zwt
