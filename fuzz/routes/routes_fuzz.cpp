// Any network, however tangled: the searches end, and what they give are routes in sort order.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "host/graph/first_route.h"
#include "host/graph/first_sight.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

/// Two bytes of nodes and ends, then four bytes an edge: its ends, its length, its pipe.
zwt::RouteNetwork NetworkFrom(const std::uint8_t* data, std::size_t size, std::int32_t nodes) {
  std::vector<zwt::RouteEdge> edges;
  for (std::size_t at = 0; at + 4 <= size; at += 4) {
    edges.push_back({data[at] % nodes, data[at + 1] % nodes, data[at + 2], data[at + 3] % 16});
  }
  return {nodes, std::move(edges)};
}

void CheckRoute(const zwt::RouteNetwork& network, const zwt::Route& route, std::int32_t from,
                std::int32_t to) {
  Require(route.nodes.front() == from && route.nodes.back() == to);
  std::vector<char> met(static_cast<std::size_t>(network.NodeCount()), 0);
  for (const std::int32_t node : route.nodes) Require(met[static_cast<std::size_t>(node)]++ == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3 || size > 4 * 400) return 0;
  const std::int32_t nodes = 1 + data[0] % 64;
  const std::int32_t from = data[1] % nodes;
  const std::int32_t to = data[2] % nodes;
  const zwt::RouteNetwork network = NetworkFrom(data + 3, size - 3, nodes);
  const std::vector<zwt::Route> routes = zwt::RoutesOfFirstSight(network, from, to);
  const auto first = zwt::FirstRouteBetweenNodes(network, from, to);
  Require(first.has_value() == !routes.empty());
  if (first) Require(first->edges == routes.front().edges);
  for (std::size_t i = 0; i < routes.size(); ++i) {
    CheckRoute(network, routes[i], from, to);
    if (i > 0) Require(routes[i - 1].length <= routes[i].length && routes[i - 1].edges != routes[i].edges);
  }
  if (network.EdgeCount() > 1) {
    zwt::FirstRouteBetweenPipes(network, network.Edge(0).pipe, network.Edge(1).pipe);
  }
  network.HasLoop();
  return 0;
}
