// One drainage stack as the calculation sees it: a row for each riser segment that carries a branch, in the
// order in which a walk from the selected end finds them.
#pragma once

#include <cstdint>
#include <vector>

#include "drainage/drainage_hydraulics.h"
#include "frame/containers/zc_dlist.h"
#include "host/drawing/object_id.h"
#include "host/text/wide_text.h"

/// A riser segment and its branch.
struct ZwtPsPipeEdge {
  AcDbObjectId riserId;
  AcDbObjectId branchId;
  CString material;        // of the branch
  double equivalent = 0;   // drainage equivalents of its fixtures
  double flux = 0;         // sum of their rated flows, L/s
  double qmax = 0;         // largest flow of a single fixture, L/s
  std::int32_t maxDn = 0;  // largest drain diameter of a fixture, mm
};

/// The stack. Row i is floor i + 1, counted from the selected end; segments without a branch take no number.
class ZwtPsPipeNetwork {
 public:
  /// Walks up the risers from the selected pipe. Pipes that cannot be opened are passed over. Always gives 1.
  std::int32_t BuildFromEndPipe(AcDbObjectId id);

  /// What the calculation takes of the rows, in their order.
  std::vector<zwt::DrainageBranch> Branches() const;

  /// How the stack is vented: the attribute of the selected pipe, read now; empty if it has none.
  CString GetVentType() const;

  /// Annotates the riser and then the branch of each row with the diameters that they have in the drawing.
  void AnnotatePipes();

  AcDbObjectId endPipeId;
  ZcDList<ZwtPsPipeEdge> edges;
};
