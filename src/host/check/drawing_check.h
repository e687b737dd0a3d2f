// Findings about a drawing: what a designer should look at before calculating. The calculations take a
// drawing as it stands and say nothing; here is what they would pass over in silence. Plain data, for a list
// in a window as for a terminal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/drawing/drawing.h"
#include "host/text/wide_text.h"

namespace zwt {

/// One finding.
struct Finding {
  std::string kind;  // a short name that stays the same from version to version: "gap"
  CString text;      // one line in the designer's words
  AcGePoint3d place;
  std::vector<std::uint64_t> handles;  // of the entities concerned, the one that it is about first
};

/// What the checks must know beside the drawing.
struct CheckSettings {
  /// Names of the materials that the material file lists; nothing where that is not known.
  std::optional<std::vector<CString>> materials;
  /// Hydrants used together, and how many of them the farthest riser takes, as the hydrant panel starts with.
  std::int32_t guns = 2;
  std::int32_t gunsOnFirstRiser = 2;
};

/// All findings, in drawing order of the entity that they are about: pipes in blocks come first.
std::vector<Finding> CheckDrawing(const Drawing& drawing, const CheckSettings& settings = {});

}  // namespace zwt
