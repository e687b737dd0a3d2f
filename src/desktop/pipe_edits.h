// Changes of many entities of the working drawing at once, each one undo step: fields of pipes, lines that
// become pipes, copies of a storey, gaps. No toolkit. Entities are indices of the drawing.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "host/check/drawing_check.h"
#include "host/drawing/drawing.h"

namespace zwt {

using Entities = std::span<const std::int32_t>;

/// Those of the entities that are pipes, and those that are none but can become some.
std::vector<std::int32_t> PipesAmong(Entities entities);
std::vector<std::int32_t> LinesAmong(Entities entities);

/// The text that all pipes among the entities have under a key, empty where they have none; nothing where
/// they differ.
std::optional<CString> CommonField(Entities entities, const CString& key);

/// Takes entities out of the drawing.
void EraseAll(Entities entities);

/// How a copy went.
struct CopyCount {
  std::int32_t copied = 0;
  std::int32_t leftOut = 0;  // pipes that are no straight lines
};

/// Copies the pipes among the entities upward, once for each storey, each so many millimetres above the one
/// before. Copies have the fields and layers of their pipe; that of an entry is a riser.
CopyCount CopyStoreyUpward(Entities entities, double height, std::int32_t storeys);

/// Moves the ends that nearly meet another pipe onto it: of each of these findings of a gap. How many are
/// closed; what is no straight line stays.
std::int32_t CloseGaps(const std::vector<Finding>& findings);

}  // namespace zwt
