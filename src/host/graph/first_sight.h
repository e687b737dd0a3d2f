// The routes between two nodes that show something new, out of all of them in sort order. Their number is at
// most that of the edges, however many routes there are.
#pragma once

#include <cstdint>
#include <vector>

#include "host/graph/route_network.h"

namespace zwt {

/// In sort order, every route that is the first of all routes from `from` to `to` to use one of its edges.
/// Walking these meets nodes, edges and their directions for the first time in the same order as walking all
/// routes would. None where nothing leads to `to`; from a node to itself the route without an edge.
std::vector<Route> RoutesOfFirstSight(const RouteNetwork& network, std::int32_t from, std::int32_t to);

}  // namespace zwt
