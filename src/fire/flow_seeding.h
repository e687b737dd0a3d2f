// Section flows to start the passes from: what the hydrants in use take, handed on from node to node.
#pragma once

#include <cstdint>

#include "fire/looped_network_solver.h"

namespace zwt {

/// Adds to each node's accumulated flow what comes from the sections that end there, from node 1 down to
/// `number`: the flow of a node is shared evenly among the sections that start from it. Nodes that nothing
/// leads to keep their flow. Where sections form a circle, a node is not entered again while it is being
/// worked on.
void AccumulateFlows(LoopedNetwork& network, std::int32_t number);

/// Gives every section an even share of its start node's accumulated flow.
void SeedSectionFlows(LoopedNetwork& network);

}  // namespace zwt
