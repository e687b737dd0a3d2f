// The network that connected pipes form: where they meet, and the stretches between. Reads the drawing, keeps
// none of it.
#pragma once

#include <cstdint>
#include <vector>

#include "host/drawing/drawing.h"
#include "host/drawing/geometry.h"
#include "host/graph/route_network.h"

namespace zwt {

/// A place where pipes end or meet, on one of them.
struct PipeJoint {
  AcGePoint3d point;
  std::int32_t node = 0;
};

struct PipeLayout {
  std::vector<std::int32_t>
      pipes;  ///< entities in drawing order; a pipe's place here is its number in the network
  std::vector<AcGePoint3d> nodes;  ///< in the order in which the pipes, each from its start, come to them
  std::vector<PipeJoint> joints;   ///< every place that was joined into a node
  RouteNetwork network;            ///< edges in drawing order, those of a pipe from its start to its end
};

/// The layout of everything connected to a pipe, directly or by way of others; empty if the entity is no
/// living pipe. A pipe that others meet between its ends is several edges; one that lies within a single
/// joint is none. Joints in a chain of near ones are one node, at the point of the first pipe.
PipeLayout MakePipeLayout(const Drawing& drawing, std::int32_t entity);

/// The same for everything connected to any of several pipes, which must be living ones: it may fall into
/// parts.
PipeLayout MakePipeLayout(const Drawing& drawing, std::vector<std::int32_t> pipes);

}  // namespace zwt
