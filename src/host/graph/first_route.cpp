// Shortest ways by settling nodes in order of distance. Edges are at least 1 long, so when two ways to a node
// tie, the last node but one of each is settled, and the tie is decided for good by walking back to where
// they part.
#include "host/graph/first_route.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

bool Contains(std::span<const std::int32_t> values, std::int32_t value) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

std::int64_t LengthOfPipe(const RouteNetwork& network, std::int32_t pipe) {
  std::int64_t length = 0;
  for (std::int32_t edge = 0; edge < network.EdgeCount(); ++edge) {
    if (network.Edge(edge).pipe == pipe) length += network.Edge(edge).length;
  }
  return length;
}

}  // namespace

FirstRoutes::FirstRoutes(const RouteNetwork& network, std::span<const std::int32_t> sources,
                         std::span<const std::int32_t> barred, std::int32_t goal)
    : network_(network),
      barredEdge_(At(network.EdgeCount()), 0),
      length_(At(network.NodeCount()), 0),
      depth_(At(network.NodeCount()), -1),
      lastEdge_(At(network.NodeCount()), -1) {
  if (!barred.empty()) {
    for (std::int32_t edge = 0; edge < network.EdgeCount(); ++edge) {
      if (Contains(barred, network.Edge(edge).pipe)) barredEdge_[At(edge)] = 1;
    }
  }
  for (const std::int32_t source : sources) {
    depth_[At(source)] = 0;
    open_.emplace_back(0, source);
  }
  Search(goal);
}

void FirstRoutes::Search(std::int32_t goal) {
  while (!open_.empty()) {
    std::pop_heap(open_.begin(), open_.end(), std::greater<>());
    const auto [length, node] = open_.back();
    open_.pop_back();
    if (length != length_[At(node)]) continue;  // a longer way to a node that has been settled since
    if (node == goal) break;
    for (const std::int32_t edge : network_.EdgesAt(node)) {
      if (barredEdge_[At(edge)] != 0) continue;
      Improve(network_.Opposite(edge, node), {node, edge}, length + network_.Edge(edge).length);
    }
  }
  open_.clear();
}

void FirstRoutes::Improve(std::int32_t node, Tail tail, std::int64_t length) {
  const bool known = Reaches(node);
  if (known && length > length_[At(node)]) return;
  if (known && length == length_[At(node)]) {
    const std::int32_t lastEdge = lastEdge_[At(node)];
    if (LosesTie(tail, {network_.Opposite(lastEdge, node), lastEdge})) return;
  } else {
    open_.emplace_back(length, node);
    std::push_heap(open_.begin(), open_.end(), std::greater<>());
  }
  length_[At(node)] = length;
  depth_[At(node)] = depth_[At(tail.node)] + 1;
  lastEdge_[At(node)] = tail.edge;
}

bool FirstRoutes::LosesTie(Tail first, Tail second) const {
  const auto stepBack = [this](std::int32_t node, std::int32_t& latest) {
    const std::int32_t edge = lastEdge_[At(node)];
    latest = std::max(latest, edge);
    return network_.Opposite(edge, node);
  };
  std::int32_t latestOfFirst = first.edge;
  std::int32_t latestOfSecond = second.edge;
  while (first.node != second.node) {
    const std::int32_t ahead = depth_[At(first.node)] - depth_[At(second.node)];
    if (ahead == 0 && depth_[At(first.node)] == 0) break;  // two sources: the routes share nothing
    if (ahead >= 0) first.node = stepBack(first.node, latestOfFirst);
    if (ahead <= 0) second.node = stepBack(second.node, latestOfSecond);
  }
  return latestOfFirst > latestOfSecond;
}

Route FirstRoutes::To(std::int32_t node) const {
  std::vector<std::int32_t> edges;
  while (lastEdge_[At(node)] >= 0) {
    edges.push_back(lastEdge_[At(node)]);
    node = network_.Opposite(edges.back(), node);
  }
  std::reverse(edges.begin(), edges.end());
  return RouteAlong(network_, node, std::move(edges));
}

bool FirstRoutes::ComesBefore(std::int32_t first, std::int32_t second) const {
  const std::int64_t difference = length_[At(first)] - length_[At(second)];
  return difference != 0 ? difference < 0 : LosesTie({second, -1}, {first, -1});
}

std::optional<Route> FirstRouteBetweenNodes(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  const FirstRoutes routes(network, std::span(&from, 1), {}, to);
  if (!routes.Reaches(to)) return std::nullopt;
  return routes.To(to);
}

std::vector<std::int32_t> NodesOfPipe(const RouteNetwork& network, std::int32_t pipe) {
  std::vector<std::int32_t> nodes;
  for (std::int32_t index = 0; index < network.EdgeCount(); ++index) {
    const RouteEdge& edge = network.Edge(index);
    if (edge.pipe != pipe) continue;
    for (const std::int32_t node : {edge.start, edge.end}) {
      if (!Contains(nodes, node)) nodes.push_back(node);
    }
  }
  return nodes;
}

std::optional<Route> FirstRouteBetweenPipes(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  Route route;
  if (from == to) {
    route.length = LengthOfPipe(network, from);
    return route;
  }
  const std::vector<std::int32_t> sources = NodesOfPipe(network, from);
  const std::int32_t barred[] = {from, to};
  const FirstRoutes routes(network, sources, barred);
  std::vector<std::int32_t> goals = NodesOfPipe(network, to);
  // Joints that both pipes share tie without an edge; the first along `from` is taken.
  const auto placeOnFrom = [&](std::int32_t node) { return std::find(sources.begin(), sources.end(), node); };
  std::stable_sort(goals.begin(), goals.end(),
                   [&](std::int32_t a, std::int32_t b) { return placeOnFrom(a) < placeOnFrom(b); });
  std::int32_t best = -1;
  for (const std::int32_t goal : goals) {
    if (routes.Reaches(goal) && (best < 0 || routes.ComesBefore(goal, best))) best = goal;
  }
  if (best < 0) return std::nullopt;
  route = routes.To(best);
  route.length += LengthOfPipe(network, from) + LengthOfPipe(network, to);
  return route;
}

}  // namespace zwt
