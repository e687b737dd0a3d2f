// Looped hydrant schematics drawn into the working drawing: risers with hydrants between a lower and an upper
// main.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/drawing/drawing.h"

namespace zwt::testing_rings {

/// A fresh working drawing for as long as it lives.
class FreshDrawing {
 public:
  FreshDrawing() : former_(ReplaceWorkingDrawing(std::make_unique<Drawing>())) {}
  ~FreshDrawing() { ReplaceWorkingDrawing(std::move(former_)); }
  FreshDrawing(const FreshDrawing&) = delete;
  FreshDrawing& operator=(const FreshDrawing&) = delete;

 private:
  std::unique_ptr<Drawing> former_;
};

struct HydrantSizes {
  std::int32_t risers = 2;
  std::int32_t storeys = 3;
  double storey = 3000;  // mm
  double bay = 8000;     // mm
  double entry = 5000;   // mm
  bool upperMain = true;
  bool middleMain = false;
};

struct HydrantDrawing {
  AcDbObjectId mainEnd;
  std::vector<AcDbObjectId> topBranches;  // by riser
};

inline AcDbObjectId DrawFirePipe(const AcGePoint3d& start, const AcGePoint3d& end, const CString& role,
                                 FieldList more = {}) {
  FieldList fields = {{L"WtSystem", L"消防"}, {L"ELS_TYPE", role}};
  fields.insert(fields.end(), more.begin(), more.end());
  return WorkingDrawing().AddPipe(start, end, fields);
}

/// Fields of the branch of a riser's top hydrant.
inline FieldList TopFields(std::int32_t storeys) {
  return {{L"IsTopHydrant", L"TRUE"}, {L"LayerNum", std::to_wstring(storeys)}};
}

/// Draws a schematic. Riser r stands at x = r bays; its hydrants branch off one storey apart, to the right.
inline HydrantDrawing DrawHydrants(const HydrantSizes& sizes) {
  HydrantDrawing drawing;
  drawing.mainEnd = DrawFirePipe({-sizes.entry, 0, 0}, {0, 0, 0}, L"干管");
  const double top = (sizes.storeys + 1) * sizes.storey;
  for (std::int32_t riser = 0; riser < sizes.risers; ++riser) {
    const double x = riser * sizes.bay;
    for (std::int32_t storey = 0; storey <= sizes.storeys; ++storey) {
      const double y = storey * sizes.storey;
      const bool isLast = storey == sizes.storeys;
      if (!isLast || sizes.upperMain) DrawFirePipe({x, y, 0}, {x, y + sizes.storey, 0}, L"立管");
      if (storey == 0) continue;
      const AcDbObjectId branch = DrawFirePipe({x, y, 0}, {x + std::min(600.0, sizes.bay / 2), y, 0}, L"支管",
                                               isLast ? TopFields(sizes.storeys) : FieldList{});
      if (isLast) drawing.topBranches.push_back(branch);
    }
    if (riser == 0) continue;
    DrawFirePipe({x - sizes.bay, 0, 0}, {x, 0, 0}, L"干管");
    if (sizes.upperMain) DrawFirePipe({x - sizes.bay, top, 0}, {x, top, 0}, L"干管");
    const std::int32_t middleStorey = (sizes.storeys + 2) / 2;
    const double middle = middleStorey * sizes.storey;
    if (sizes.middleMain) DrawFirePipe({x - sizes.bay, middle, 0}, {x, middle, 0}, L"干管");
  }
  return drawing;
}

}  // namespace zwt::testing_rings
