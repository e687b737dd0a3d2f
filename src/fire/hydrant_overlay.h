// What the hydrant panel shows over the drawing: sections by the amount and direction of their flow,
// pressures at the nodes, the hydrants in use, and, where the passes gave up, how they went.
#pragma once

#include <vector>

#include "fire/hydrant_calculation.h"
#include "fire/hydrant_network_model.h"
#include "host/overlay/overlay.h"

namespace zwt {

/// The grids whose rows are meant.
struct HydrantTables {
  std::int32_t sections = 0;
  std::int32_t nodes = 0;
};

/// The model as it stands: before a calculation the rows and courses alone, afterwards with flows in L/s as
/// values, diameters, pressures in mH2O and the hydrants in use. A course runs the way the water does.
Overlay DescribeHydrants(ZwtHydrantGraph& model, const HydrantTables& tables, bool isCalculated);

/// How the passes went, to be kept while they are made.
class PassHistory {
 public:
  void Add(const LoopedPass& pass) { passes_.push_back(pass); }
  /// Adds to an overlay how far the last pass was from the limit, at which section, and the largest change of
  /// each pass as a curve. Nothing for passes that converged.
  void Describe(const LoopedResult& result, ZwtHydrantGraph& model, Overlay& overlay) const;

 private:
  std::vector<LoopedPass> passes_;
};

}  // namespace zwt
