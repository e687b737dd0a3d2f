// The plain way: list every route and sort them. Grows without bound, so it is for small networks only.
#pragma once

#include <algorithm>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

#include "host/graph/route_network.h"

namespace zwt::testing_routes {

/// True if `first` comes before `second`: by length, and of equal ones the one without the latest edge that
/// only one of them uses.
inline bool ComesBefore(const Route& first, const Route& second) {
  if (first.length != second.length) return first.length < second.length;
  std::vector<std::int32_t> a = first.edges;
  std::vector<std::int32_t> b = second.edges;
  std::sort(a.begin(), a.end());
  std::sort(b.begin(), b.end());
  std::vector<std::int32_t> onlyOne;
  std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(onlyOne));
  if (onlyOne.empty()) return false;
  return std::binary_search(b.begin(), b.end(), onlyOne.back());
}

/// Lists the routes that go on from the end of `route` without meeting a node again.
inline void ListOnwards(const RouteNetwork& network, std::int32_t to, Route& route,
                        std::vector<Route>& found) {
  const std::int32_t node = route.nodes.back();
  if (node == to) {
    found.push_back(route);
    return;
  }
  for (const std::int32_t edge : network.EdgesAt(node)) {
    const std::int32_t other = network.Opposite(edge, node);
    if (std::find(route.nodes.begin(), route.nodes.end(), other) != route.nodes.end()) continue;
    route.nodes.push_back(other);
    route.edges.push_back(edge);
    route.length += network.Edge(edge).length;
    ListOnwards(network, to, route, found);
    route.nodes.pop_back();
    route.edges.pop_back();
    route.length -= network.Edge(edge).length;
  }
}

/// All routes between two nodes in sort order.
inline std::vector<Route> AllRoutes(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  Route route;
  route.nodes.push_back(from);
  std::vector<Route> found;
  ListOnwards(network, to, route, found);
  std::stable_sort(found.begin(), found.end(), ComesBefore);
  return found;
}

/// All routes between two pipes in sort order, over the joints between them, each pipe counted in full.
inline std::vector<Route> AllPipeRoutes(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  std::vector<RouteEdge> others;
  std::vector<std::int32_t> numbers;
  std::vector<std::int32_t> joints[2];
  std::int64_t ofPipes = 0;
  for (std::int32_t index = 0; index < network.EdgeCount(); ++index) {
    const RouteEdge& edge = network.Edge(index);
    if (edge.pipe != from && edge.pipe != to) {
      others.push_back(edge);
      numbers.push_back(index);
      continue;
    }
    ofPipes += edge.length;
    auto& ends = joints[edge.pipe == from ? 0 : 1];
    for (const std::int32_t node : {edge.start, edge.end}) {
      if (std::find(ends.begin(), ends.end(), node) == ends.end()) ends.push_back(node);
    }
  }
  const RouteNetwork between(network.NodeCount(), others);
  std::vector<Route> found;
  for (const std::int32_t start : joints[0]) {
    for (const std::int32_t end : joints[1]) {
      for (Route& route : AllRoutes(between, start, end)) {
        for (std::int32_t& edge : route.edges) edge = numbers[static_cast<std::size_t>(edge)];
        route.length += ofPipes;
        found.push_back(std::move(route));
      }
    }
  }
  std::stable_sort(found.begin(), found.end(), ComesBefore);
  return found;
}

/// A random network; few different lengths give many routes that tie.
inline RouteNetwork RandomNetwork(std::mt19937& random, std::int32_t maxNodes, std::int32_t maxExtraEdges,
                                  std::int32_t maxLength) {
  const auto pick = [&random](std::int32_t first, std::int32_t last) {
    return first + static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(last - first + 1));
  };
  const std::int32_t nodes = pick(1, maxNodes);
  std::vector<RouteEdge> edges;
  const auto add = [&](std::int32_t start, std::int32_t end) {
    edges.push_back({start, end, pick(1, maxLength), pick(0, 5)});
  };
  for (std::int32_t node = 1; node < nodes; ++node) {
    if (pick(0, 19) != 0) add(pick(std::max(0, node - 3), node - 1), node);
  }
  for (std::int32_t extra = pick(0, maxExtraEdges); extra > 0; --extra)
    add(pick(0, nodes - 1), pick(0, nodes - 1));
  std::shuffle(edges.begin(), edges.end(), random);
  return {nodes, std::move(edges)};
}

}  // namespace zwt::testing_routes
