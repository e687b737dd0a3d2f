// The first route in sort order from one place to another: the shortest, and of equal ones the one that the
// order of the edges puts first. Exact, since lengths are whole numbers, and without listing other routes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "host/graph/route_network.h"

namespace zwt {

/// The first routes from a set of nodes to every node that can be reached, without the edges of some pipes.
/// Equal routes: look at the latest edge that only one of them uses; the route without it comes first.
class FirstRoutes {
 public:
  /// Searches from `sources`, over no edge of the pipes `barred`, and no further than `goal` if that is 0 or
  /// greater. `network` is used on and must stay.
  FirstRoutes(const RouteNetwork& network, std::span<const std::int32_t> sources,
              std::span<const std::int32_t> barred = {}, std::int32_t goal = -1);

  bool Reaches(std::int32_t node) const { return depth_[static_cast<std::size_t>(node)] >= 0; }

  /// Length of the route to `node`, which must be reached; thousandths of a millimetre.
  std::int64_t LengthTo(std::int32_t node) const { return length_[static_cast<std::size_t>(node)]; }

  /// The route from its source to `node`, which must be reached.
  Route To(std::int32_t node) const;

  /// True if the route to `first` comes before the route to `second`; both must be reached.
  bool ComesBefore(std::int32_t first, std::int32_t second) const;

 private:
  struct Tail {
    std::int32_t node;  ///< the end of the route but for its last edge
    std::int32_t edge;  ///< its last edge, -1 for none
  };

  void Search(std::int32_t goal);
  void Improve(std::int32_t node, Tail tail, std::int64_t length);
  bool LosesTie(Tail first, Tail second) const;

  const RouteNetwork& network_;
  std::vector<char> barredEdge_;
  std::vector<std::int64_t> length_;
  std::vector<std::int32_t> depth_;     ///< edges from the source, -1 where nothing leads
  std::vector<std::int32_t> lastEdge_;  ///< -1 at a source
  std::vector<std::pair<std::int64_t, std::int32_t>> open_;
};

/// The first route between two nodes; from a node to itself the route without an edge.
std::optional<Route> FirstRouteBetweenNodes(const RouteNetwork& network, std::int32_t from, std::int32_t to);

/// The nodes of a pipe in order from its start; none for a pipe without edges.
std::vector<std::int32_t> NodesOfPipe(const RouteNetwork& network, std::int32_t pipe);

/// The first route that starts with one pipe and ends with the other. Its edges are those between the two,
/// its nodes the joints, its length that of all edges of both pipes too. Of equal joints the first along
/// `from` counts. A pipe reaches itself without a joint. `network` must hold both pipes.
std::optional<Route> FirstRouteBetweenPipes(const RouteNetwork& network, std::int32_t from, std::int32_t to);

}  // namespace zwt
