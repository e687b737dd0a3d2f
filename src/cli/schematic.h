// Parametric schematics to start from: a supply riser system, a drainage stack. Pipes with their roles and
// branch attributes, and storey lines and labels as ordinary entities.
#pragma once

#include <memory>
#include <vector>

#include "host/drawing/drawing.h"

namespace zwt {

/// A schematic of risers with a branch on every storey.
struct RiserSchematic {
  std::int32_t storeys = 6;
  std::int32_t risers = 1;
  double storeyHeight = 3000;      // mm
  std::vector<CString> materials;  // of pipes and branches; riser i takes them in turn
  FieldList branch;                // attributes of every branch, which replace those of the same key
  CString system;                  // of the pipes
  CString label;                   // of the risers, in front of their number: "JL-"
  FieldList entry;                 // further attributes of the lowest section
};

/// What a supply system and a drainage stack start with.
RiserSchematic SupplySchematic();
RiserSchematic DrainageSchematic();

/// The largest schematic that is drawn, in sections.
inline constexpr std::int32_t kMostSections = 200000;

/// Draws a schematic. The lowest section of each riser is its entry.
std::unique_ptr<Drawing> DrawSchematic(const RiserSchematic& schematic);

}  // namespace zwt
