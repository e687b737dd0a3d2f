// A plain network of nodes and edges with exact integer lengths: what routes are searched on. Knows no
// drawing.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace zwt {

/// A stretch of pipe between two nodes. Several may join the same two nodes, and one may end where it starts.
struct RouteEdge {
  std::int32_t start = 0;
  std::int32_t end = 0;
  std::int64_t length = 1;  ///< thousandths of a millimetre
  std::int32_t pipe = 0;    ///< the pipe that it belongs to
};

/// A way through the network that meets no node twice. It has one node more than edges.
struct Route {
  std::vector<std::int32_t> nodes;
  std::vector<std::int32_t> edges;
  std::int64_t length = 0;
};

/// Nodes 0 to nodeCount - 1 and the edges in their order, which is also the order that decides between equal
/// routes. Fixed once made.
class RouteNetwork {
 public:
  RouteNetwork() = default;

  /// Lengths are raised to 1, because no two nodes share a place, and held so small that the sum of all of
  /// them and some multiples of it fit 64 bits.
  RouteNetwork(std::int32_t nodeCount, std::vector<RouteEdge> edges);

  std::int32_t NodeCount() const { return static_cast<std::int32_t>(firstAt_.size()) - 1; }
  std::int32_t EdgeCount() const { return static_cast<std::int32_t>(edges_.size()); }
  const RouteEdge& Edge(std::int32_t edge) const { return edges_[static_cast<std::size_t>(edge)]; }

  /// The edges at a node in their order; one that ends where it starts comes once.
  std::span<const std::int32_t> EdgesAt(std::int32_t node) const;

  /// The far end of an edge, seen from a node at one of its ends.
  std::int32_t Opposite(std::int32_t edge, std::int32_t node) const;

  /// True if some edge can be taken away without any node losing its way to another.
  bool HasLoop() const;

 private:
  std::vector<RouteEdge> edges_;
  std::vector<std::int32_t> firstAt_ = {0};  ///< where a node's edges begin in at_
  std::vector<std::int32_t> at_;
};

/// The way that `edges` describe from `from` on, with nodes and length filled in.
Route RouteAlong(const RouteNetwork& network, std::int32_t from, std::vector<std::int32_t> edges);

}  // namespace zwt
