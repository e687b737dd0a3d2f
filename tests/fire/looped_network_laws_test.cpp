// Converged networks obey the laws of flow, and a second method finds the same ones.
#include <cmath>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fire/newton_network.h"
#include "fire/ring_network.h"

namespace zwt {
namespace {

using testing_rings::MakeRings;
using testing_rings::NewtonNetwork;
using testing_rings::RingNetwork;
using testing_rings::RingSizes;
using testing_rings::UseHydrants;

struct Guns {
  std::int32_t onFirst;
  std::int32_t onSecond;
};

/// Converged networks of many shapes, each handed to `check`.
template <class Check>
void ForConvergedNetworks(Check check) {
  HydrantCalcInput input;
  input.jetFlow = L"5.153";
  for (const std::int32_t risers : {2, 3, 4}) {
    for (const std::int64_t bay : {2000, 8000}) {
      for (const bool middle : {false, true}) {
        for (const Guns guns : {Guns{1, 0}, Guns{2, 0}, Guns{2, 1}, Guns{2, 2}}) {
          RingNetwork network = MakeRings({risers, 3, 3000, bay, 5000, middle});
          UseHydrants(network, input, guns.onFirst, guns.onSecond);
          const LoopedResult result = SolveLoopedNetwork(network.looped, input);
          ASSERT_EQ(result.outcome, LoopedOutcome::Converged);
          check(network.looped, input);
        }
      }
    }
  }
}

double HeadAt(const LoopedNetwork& network, std::int32_t number) {
  const LoopedNode& node = network.nodes[static_cast<std::size_t>(number - 1)];
  return node.pressure + node.riserLength * 0.001;
}

TEST(LoopedNetworkLaws, WhatComesToANodeLeavesIt) {
  ForConvergedNetworks([](const LoopedNetwork& network, const HydrantCalcInput&) {
    std::vector<double> balance(network.nodes.size(), 0.0);
    for (std::size_t i = 0; i < balance.size(); ++i) {
      if (network.nodes[i].isActive) balance[i] = -network.nodes[i].flow;
    }
    const auto source = static_cast<std::size_t>(network.sourceNumber - 1);
    balance[source] += network.nodes[source].flow;
    for (const LoopedSection& section : network.sections) {
      const bool toStart = HeadAt(network, section.endNumber) > HeadAt(network, section.startNumber);
      const double flow = toStart ? section.flow : -section.flow;
      balance[static_cast<std::size_t>(section.startNumber - 1)] += flow;
      balance[static_cast<std::size_t>(section.endNumber - 1)] -= flow;
    }
    for (const double left : balance) EXPECT_NEAR(left, 0.0, 0.005);
  });
}

TEST(LoopedNetworkLaws, TheHeadDifferenceIsTheLossOfTheFlow) {
  ForConvergedNetworks([](const LoopedNetwork& network, const HydrantCalcInput&) {
    for (const LoopedSection& section : network.sections) {
      const double difference =
          std::fabs(HeadAt(network, section.startNumber) - HeadAt(network, section.endNumber));
      // The loss is S q², and the convergence limit is one on q².
      const double d = section.diameter / 1000;
      const double fast = 1.736e-9 * section.length * 0.001 / std::pow(d, 5.3);
      const double velocity = 4 * section.flow / (d * d * 3.141592653589793 * 1000);
      const double s = velocity < 1.2 ? fast * 0.852 * std::pow(1 + 0.867 / velocity, 0.3) : fast;
      EXPECT_NEAR(difference, s * section.flow * section.flow, s * kLoopedConvergenceLimit);
    }
  });
}

TEST(LoopedNetworkLaws, NewtonsMethodFindsTheSameFlowsAndPressures) {
  ForConvergedNetworks([](const LoopedNetwork& network, const HydrantCalcInput& input) {
    NewtonNetwork newton(network, input);
    ASSERT_TRUE(newton.Solve());
    for (std::size_t i = 0; i < network.sections.size(); ++i) {
      const double flow = newton.SectionFlow(i);
      const double squared = network.sections[i].flow * network.sections[i].flow;
      EXPECT_NEAR(squared, flow * flow, kLoopedConvergenceLimit) << "section " << i;
    }
    for (std::size_t i = 0; i < network.nodes.size(); ++i) {
      EXPECT_NEAR(network.nodes[i].pressure, newton.Pressure(i), 0.0005) << "node " << i + 1;
      if (!network.nodes[i].isActive) continue;
      EXPECT_NEAR(network.nodes[i].flow, newton.NodeFlow(i), 0.0005) << "node " << i + 1;
    }
  });
}

TEST(LoopedNetworkLaws, TheSourceGivesWhatTheHydrantsTake) {
  ForConvergedNetworks([](const LoopedNetwork& network, const HydrantCalcInput&) {
    double taken = 0.0;
    for (const LoopedNode& node : network.nodes) taken += node.isActive ? node.flow : 0.0;
    EXPECT_EQ(network.nodes[static_cast<std::size_t>(network.sourceNumber - 1)].flow, taken);
  });
}

}  // namespace
}  // namespace zwt
