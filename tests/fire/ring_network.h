// Two-ring hydrant networks as plain data: risers between a lower and an upper main, entered at one end of
// the lower one. Nodes are numbered by first sight along the routes, as the model of a drawing does.
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "fire/flow_seeding.h"
#include "fire/looped_network_solver.h"
#include "host/graph/first_route.h"
#include "host/graph/first_sight.h"

namespace zwt::testing_rings {

struct RingSizes {
  std::int32_t risers = 2;
  std::int32_t storeys = 3;
  std::int64_t storey = 3000;  // mm
  std::int64_t bay = 8000;     // mm
  std::int64_t entry = 5000;   // mm
  bool middleMain = false;
};

/// A plain network together with the pipes that its lengths come from.
struct RingNetwork {
  RouteNetwork routes;
  std::vector<char> isRiser;            // by pipe; each edge is a pipe of its own
  std::vector<std::int32_t> graphNode;  // by node number - 1
  std::vector<std::int32_t>
      topJoints;  // graph node of the top hydrant of each riser, the farthest riser last
  std::int32_t storeys = 0;
  LoopedNetwork looped;

  std::int32_t NumberOf(std::int32_t node) const {
    const auto found = std::find(graphNode.begin(), graphNode.end(), node);
    return found == graphNode.end() ? 0 : static_cast<std::int32_t>(found - graphNode.begin()) + 1;
  }
};

/// Length in mm of the first route between two numbered nodes, or of the riser pipes on it, searched anew.
inline double PipeLengthBetween(const RingNetwork& network, std::int32_t first, std::int32_t second,
                                bool riserOnly) {
  const auto route =
      FirstRouteBetweenNodes(network.routes, network.graphNode[static_cast<std::size_t>(first - 1)],
                             network.graphNode[static_cast<std::size_t>(second - 1)]);
  if (!route) return 0.0;
  if (!riserOnly) return static_cast<double>(route->length) / 1000;
  double length = 0.0;
  for (const std::int32_t edge : route->edges) {
    const RouteEdge& pipe = network.routes.Edge(edge);
    if (network.isRiser[static_cast<std::size_t>(pipe.pipe)] != 0)
      length += static_cast<double>(pipe.length) / 1000;
  }
  return length;
}

/// Numbers nodes and makes sections by first sight from `far` to `root`; lengths are filled in.
inline void BuildLooped(RingNetwork& network, std::int32_t root, std::int32_t far) {
  std::map<std::int32_t, std::int32_t> numbers;
  std::map<std::pair<std::int32_t, std::int32_t>, bool> made;
  for (Route& route : RoutesOfFirstSight(network.routes, root, far)) {
    std::reverse(route.nodes.begin(), route.nodes.end());
    for (const std::int32_t node : route.nodes) {
      if (numbers.emplace(node, static_cast<std::int32_t>(numbers.size()) + 1).second) {
        network.graphNode.push_back(node);
      }
    }
    for (std::size_t i = 1; i < route.nodes.size(); ++i) {
      const std::int32_t start = numbers[route.nodes[i - 1]];
      const std::int32_t end = numbers[route.nodes[i]];
      if (!made.emplace(std::minmax(start, end), true).second) continue;
      LoopedSection section;
      section.startNumber = start;
      section.endNumber = end;
      section.length = PipeLengthBetween(network, start, end, false);
      network.looped.sections.push_back(section);
    }
  }
  network.looped.nodes.resize(network.graphNode.size());
  network.looped.sourceNumber = network.NumberOf(root);
  for (std::size_t i = 0; i < network.looped.nodes.size(); ++i) {
    network.looped.nodes[i].riserLength =
        PipeLengthBetween(network, network.looped.sourceNumber, static_cast<std::int32_t>(i) + 1, true);
  }
}

inline RingNetwork MakeRings(const RingSizes& sizes) {
  RingNetwork network;
  std::vector<RouteEdge> edges;
  const auto add = [&](std::int32_t start, std::int32_t end, std::int64_t millimetres, bool isRiser) {
    edges.push_back({start, end, millimetres * 1000, static_cast<std::int32_t>(edges.size())});
    network.isRiser.push_back(isRiser ? 1 : 0);
  };
  const std::int32_t joints = sizes.storeys + 2;
  const auto node = [joints](std::int32_t riser, std::int32_t joint) { return riser * joints + joint; };
  const std::int32_t root = sizes.risers * joints;
  add(root, node(0, 0), sizes.entry, false);
  for (std::int32_t riser = 0; riser < sizes.risers; ++riser) {
    for (std::int32_t joint = 0; joint + 1 < joints; ++joint) {
      add(node(riser, joint), node(riser, joint + 1), sizes.storey, true);
    }
    if (riser > 0) {
      add(node(riser - 1, 0), node(riser, 0), sizes.bay, false);
      add(node(riser - 1, joints - 1), node(riser, joints - 1), sizes.bay, false);
      if (sizes.middleMain) add(node(riser - 1, joints / 2), node(riser, joints / 2), sizes.bay, false);
    }
    network.topJoints.push_back(node(riser, sizes.storeys));
  }
  network.storeys = sizes.storeys;
  network.routes = RouteNetwork(root + 1, std::move(edges));
  BuildLooped(network, root, network.topJoints.back());
  return network;
}

/// Sets the `guns` top hydrants of the farthest riser in use, their neighbours' on the one before it, and
/// seeds flows.
inline void UseHydrants(RingNetwork& network, const HydrantCalcInput& input, std::int32_t onFirst,
                        std::int32_t onSecond) {
  const ZwtHydrantFormula formula;
  const double flow = formula.JetFlow(input.waterColumn, input.nozzleDiameter, input.gunMinFlow);
  const auto use = [&](std::int32_t top, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
      const std::int32_t number = network.NumberOf(top - i);
      if (number == 0) continue;
      LoopedNode& node = network.looped.nodes[static_cast<std::size_t>(number - 1)];
      node.isActive = true;
      node.flow = node.accumulatedFlow = flow;
    }
  };
  use(network.topJoints.back(), onFirst);
  if (network.topJoints.size() > 1) use(network.topJoints[network.topJoints.size() - 2], onSecond);
  AccumulateFlows(network.looped, network.looped.sourceNumber);
  SeedSectionFlows(network.looped);
}

}  // namespace zwt::testing_rings
