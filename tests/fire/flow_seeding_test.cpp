// Flows handed on from node 1 to the source, shared evenly among the sections that leave a node.
#include "fire/flow_seeding.h"

#include <random>
#include <set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zwt {
namespace {

LoopedNetwork Network(std::size_t nodes, const std::vector<std::pair<std::int32_t, std::int32_t>>& sections) {
  LoopedNetwork network;
  network.nodes.resize(nodes);
  for (const auto& [start, end] : sections) {
    LoopedSection section;
    section.startNumber = start;
    section.endNumber = end;
    network.sections.push_back(section);
  }
  return network;
}

TEST(FlowSeeding, ANodeSharesItsFlowEvenly) {
  LoopedNetwork network = Network(4, {{1, 2}, {1, 3}, {2, 4}, {3, 4}});
  network.nodes[0].accumulatedFlow = 10;
  network.nodes[1].accumulatedFlow = 3;
  AccumulateFlows(network, 4);
  SeedSectionFlows(network);
  EXPECT_EQ(network.sections[0].flow, 5);
  EXPECT_EQ(network.sections[1].flow, 5);
  EXPECT_EQ(network.sections[2].flow, 8);
  EXPECT_EQ(network.sections[3].flow, 5);
  EXPECT_EQ(network.nodes[3].accumulatedFlow, 13);
}

TEST(FlowSeeding, NodeOneTakesNothingFromSectionsThatEndThere) {
  LoopedNetwork network = Network(3, {{1, 2}, {3, 1}, {2, 3}});
  network.nodes[0].accumulatedFlow = 6;
  AccumulateFlows(network, 3);
  EXPECT_EQ(network.nodes[0].accumulatedFlow, 6);
  EXPECT_EQ(network.nodes[2].accumulatedFlow, 6);
}

TEST(FlowSeeding, ACircleOfSectionsEnds) {
  // 2 to 3 to 4 and back to 2: node 2 is being worked on when the walk comes back, and gives what it has by
  // then.
  LoopedNetwork network = Network(5, {{1, 2}, {4, 2}, {2, 3}, {3, 4}, {4, 5}});
  network.nodes[0].accumulatedFlow = 8;
  AccumulateFlows(network, 5);
  EXPECT_EQ(network.nodes[1].accumulatedFlow, 8);
  EXPECT_EQ(network.nodes[2].accumulatedFlow, 8);
  EXPECT_EQ(network.nodes[3].accumulatedFlow, 8);
  EXPECT_EQ(network.nodes[4].accumulatedFlow, 4);
}

TEST(FlowSeeding, ANumberThatIsNoneChangesNothing) {
  LoopedNetwork network = Network(2, {{1, 2}});
  network.nodes[0].accumulatedFlow = 8;
  AccumulateFlows(network, 0);
  AccumulateFlows(network, 3);
  EXPECT_EQ(network.nodes[1].accumulatedFlow, 0);
}

/// The description read plainly, by recursion.
void AccumulatePlainly(LoopedNetwork& network, std::set<std::int32_t>& visited, std::int32_t number) {
  double& flow = network.nodes[static_cast<std::size_t>(number - 1)].accumulatedFlow;
  for (const LoopedSection& section : network.sections) {
    if (section.endNumber != number) continue;
    const std::int32_t start = section.startNumber;
    if (start != 1 && !visited.contains(start)) AccumulatePlainly(network, visited, start);
    int count = 0;
    for (const LoopedSection& other : network.sections) count += other.startNumber == start ? 1 : 0;
    flow += network.nodes[static_cast<std::size_t>(start - 1)].accumulatedFlow / count;
  }
  visited.insert(number);
}

TEST(FlowSeeding, EqualsTheRecursionOnNetworksWithoutCircles) {
  std::mt19937 random(31);
  for (int round = 0; round < 500; ++round) {
    const auto nodes = static_cast<std::int32_t>(2 + random() % 30);
    std::vector<std::pair<std::int32_t, std::int32_t>> sections;
    for (auto count = random() % 60; count > 0; --count) {
      const auto start = static_cast<std::int32_t>(1 + random() % static_cast<unsigned>(nodes));
      const auto end = static_cast<std::int32_t>(1 + random() % static_cast<unsigned>(nodes));
      if (start < end) sections.emplace_back(start, end);
    }
    LoopedNetwork network = Network(static_cast<std::size_t>(nodes), sections);
    for (LoopedNode& node : network.nodes) node.accumulatedFlow = 0.1 * static_cast<double>(random() % 70);
    LoopedNetwork plain = network;
    AccumulateFlows(network, nodes);
    std::set<std::int32_t> visited;
    AccumulatePlainly(plain, visited, nodes);
    for (std::size_t i = 0; i < network.nodes.size(); ++i) {
      ASSERT_EQ(network.nodes[i].accumulatedFlow, plain.nodes[i].accumulatedFlow);
    }
  }
}

TEST(FlowSeeding, AVeryLongWayEnds) {
  std::vector<std::pair<std::int32_t, std::int32_t>> sections;
  for (std::int32_t node = 1; node < 300000; ++node) sections.emplace_back(node, node + 1);
  LoopedNetwork network = Network(300000, sections);
  network.nodes[0].accumulatedFlow = 5;
  AccumulateFlows(network, 300000);
  EXPECT_EQ(network.nodes.back().accumulatedFlow, 5);
}

}  // namespace
}  // namespace zwt
