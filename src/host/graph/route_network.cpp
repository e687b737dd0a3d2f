// Edges by node in one array, and the question whether there is a loop.
#include "host/graph/route_network.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace zwt {

namespace {

constexpr std::int64_t kSumsInHand = 8;  // the searches add and subtract a few times the sum of all lengths

void HoldLengths(std::vector<RouteEdge>& edges) {
  const auto count = static_cast<std::int64_t>(edges.size()) + 1;
  const std::int64_t longest = std::numeric_limits<std::int64_t>::max() / (kSumsInHand * count);
  for (RouteEdge& edge : edges) edge.length = std::clamp<std::int64_t>(edge.length, 1, longest);
}

/// Node that stands for everything joined to `node` so far; shortens the chain that it follows.
std::int32_t Representative(std::vector<std::int32_t>& parent, std::int32_t node) {
  auto at = static_cast<std::size_t>(node);
  while (parent[at] != static_cast<std::int32_t>(at)) {
    parent[at] = parent[static_cast<std::size_t>(parent[at])];
    at = static_cast<std::size_t>(parent[at]);
  }
  return static_cast<std::int32_t>(at);
}

}  // namespace

RouteNetwork::RouteNetwork(std::int32_t nodeCount, std::vector<RouteEdge> edges)
    : edges_(std::move(edges)), firstAt_(static_cast<std::size_t>(nodeCount) + 1, 0) {
  HoldLengths(edges_);
  for (const RouteEdge& edge : edges_) {
    ++firstAt_[static_cast<std::size_t>(edge.start) + 1];
    if (edge.end != edge.start) ++firstAt_[static_cast<std::size_t>(edge.end) + 1];
  }
  std::partial_sum(firstAt_.begin(), firstAt_.end(), firstAt_.begin());
  at_.resize(static_cast<std::size_t>(firstAt_.back()));
  std::vector<std::int32_t> next(firstAt_.begin(), firstAt_.end() - 1);
  for (std::int32_t index = 0; index < EdgeCount(); ++index) {
    const RouteEdge& edge = Edge(index);
    at_[static_cast<std::size_t>(next[static_cast<std::size_t>(edge.start)]++)] = index;
    if (edge.end != edge.start)
      at_[static_cast<std::size_t>(next[static_cast<std::size_t>(edge.end)]++)] = index;
  }
}

std::span<const std::int32_t> RouteNetwork::EdgesAt(std::int32_t node) const {
  const auto first = static_cast<std::size_t>(firstAt_[static_cast<std::size_t>(node)]);
  const auto last = static_cast<std::size_t>(firstAt_[static_cast<std::size_t>(node) + 1]);
  return std::span(at_).subspan(first, last - first);
}

std::int32_t RouteNetwork::Opposite(std::int32_t edge, std::int32_t node) const {
  const RouteEdge& ends = Edge(edge);
  return ends.start == node ? ends.end : ends.start;
}

bool RouteNetwork::HasLoop() const {
  std::vector<std::int32_t> parent(static_cast<std::size_t>(NodeCount()));
  std::iota(parent.begin(), parent.end(), 0);
  for (const RouteEdge& edge : edges_) {
    const std::int32_t start = Representative(parent, edge.start);
    const std::int32_t end = Representative(parent, edge.end);
    if (start == end) return true;
    parent[static_cast<std::size_t>(start)] = end;
  }
  return false;
}

Route RouteAlong(const RouteNetwork& network, std::int32_t from, std::vector<std::int32_t> edges) {
  Route route;
  route.nodes.push_back(from);
  for (const std::int32_t edge : edges) {
    route.length += network.Edge(edge).length;
    route.nodes.push_back(network.Opposite(edge, route.nodes.back()));
  }
  route.edges = std::move(edges);
  return route;
}

}  // namespace zwt
