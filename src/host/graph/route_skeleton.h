// What routes between two nodes can use at all, with runs of edges that are only ever used together drawn
// into one.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/graph/route_network.h"

namespace zwt {

/// A run of edges between two nodes of the skeleton with no choice in between.
struct RouteChain {
  std::int32_t start = 0;  ///< skeleton node
  std::int32_t end = 0;    ///< skeleton node, never `start`
  std::int64_t length = 0;
  std::vector<std::int32_t> edges;  ///< edges of the network, from start to end
};

/// Every chain lies on some route between the two nodes, and every route between them is a sequence of
/// chains. The chains are in the order of their latest edges, so that the tie rule reads the same on chains
/// as on edges.
struct RouteSkeleton {
  std::int32_t from = 0;  ///< skeleton node
  std::int32_t to = 0;
  std::vector<std::int32_t> nodes;  ///< the network's node of each skeleton node
  std::vector<RouteChain> chains;
  std::vector<std::vector<std::int32_t>> chainsAt;  ///< by skeleton node

  std::int32_t NodeCount() const { return static_cast<std::int32_t>(nodes.size()); }
  std::int32_t ChainCount() const { return static_cast<std::int32_t>(chains.size()); }
  std::int32_t Opposite(std::int32_t chain, std::int32_t node) const {
    const RouteChain& ends = chains[static_cast<std::size_t>(chain)];
    return ends.start == node ? ends.end : ends.start;
  }
};

/// The skeleton of the routes between two different nodes. Without chains where there is no route.
RouteSkeleton MakeRouteSkeleton(const RouteNetwork& network, std::int32_t from, std::int32_t to);

}  // namespace zwt
