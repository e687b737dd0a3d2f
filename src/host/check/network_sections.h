// The sections of a pipe network as the looped calculation forms them: chains of edges between free ends and
// tees. And the question whether there is a shorter way round one.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "host/graph/route_network.h"

namespace zwt {

/// A chain of edges from one free end or tee to the next.
struct NetworkSection {
  std::int32_t start = 0;
  std::int32_t end = 0;
  std::int64_t length = 0;          // thousandths of a millimetre
  std::vector<std::int32_t> pipes;  // by number in the network, each once, from the start on
};

/// All sections, each once, by their first edge. Circles without a tee are none.
std::vector<NetworkSection> SectionsOf(const RouteNetwork& network);

/// Searches for ways within a bound: costs what lies within it.
class WayRound {
 public:
  explicit WayRound(const RouteNetwork& network);

  /// Length of the shortest way between two nodes; the bound where none is shorter than that.
  std::int64_t Shortest(std::int32_t from, std::int32_t to, std::int64_t bound);

 private:
  void Improve(std::int32_t node, std::int64_t length);

  const RouteNetwork& network_;
  std::int32_t search_ = 0;
  std::vector<std::int32_t> metIn_;  // by node: the last search that came to it
  std::vector<std::int64_t> length_;
  std::vector<std::pair<std::int64_t, std::int32_t>> open_;
};

}  // namespace zwt
