// The product's passes against the plain ones, bit by bit, and what is known of the networks that don't
// converge.
#include "fire/looped_network_solver.h"

#include <bit>
#include <cmath>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "fire/plain_looped_solver.h"
#include "fire/ring_network.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

using testing_rings::MakeRings;
using testing_rings::PlainSolveLoopedNetwork;
using testing_rings::RingNetwork;
using testing_rings::RingSizes;
using testing_rings::UseHydrants;

HydrantCalcInput DefaultInput() {
  HydrantCalcInput input;
  input.jetFlow = L"5.153";
  return input;
}

bool IsSame(double first, double second) {
  if (std::isnan(first) && std::isnan(second)) return true;
  return std::bit_cast<std::uint64_t>(first) == std::bit_cast<std::uint64_t>(second);
}

void ExpectSame(const LoopedNetwork& first, const LoopedNetwork& second) {
  ASSERT_EQ(first.nodes.size(), second.nodes.size());
  ASSERT_EQ(first.sections.size(), second.sections.size());
  for (std::size_t i = 0; i < first.nodes.size(); ++i) {
    ASSERT_TRUE(IsSame(first.nodes[i].flow, second.nodes[i].flow)) << "node " << i + 1;
    ASSERT_TRUE(IsSame(first.nodes[i].pressure, second.nodes[i].pressure)) << "node " << i + 1;
  }
  for (std::size_t i = 0; i < first.sections.size(); ++i) {
    ASSERT_TRUE(IsSame(first.sections[i].flow, second.sections[i].flow)) << "section " << i;
    ASSERT_TRUE(IsSame(first.sections[i].diameter, second.sections[i].diameter)) << "section " << i;
    ASSERT_TRUE(IsSame(first.sections[i].conductance, second.sections[i].conductance)) << "section " << i;
  }
}

/// Solves both ways and compares everything; gives the result.
LoopedResult SolveBothWays(const RingNetwork& network, const HydrantCalcInput& input) {
  RingNetwork plain = network;
  LoopedNetwork ours = network.looped;
  const LoopedResult expected = PlainSolveLoopedNetwork(plain, input);
  const LoopedResult result = SolveLoopedNetwork(ours, input);
  EXPECT_EQ(result.outcome, expected.outcome);
  EXPECT_EQ(result.passes, expected.passes);
  ExpectSame(ours, plain.looped);
  return result;
}

/// Any connected network: a root with one pipe, random lengths, random hydrants in use.
RingNetwork RandomNetwork(std::mt19937& random, std::int32_t maxNodes) {
  const auto pick = [&random](std::int32_t last) {
    return static_cast<std::int32_t>(random() % static_cast<unsigned>(last + 1));
  };
  RingNetwork network;
  const std::int32_t nodes = 3 + pick(maxNodes - 3);
  std::vector<RouteEdge> edges;
  const auto add = [&](std::int32_t start, std::int32_t end) {
    edges.push_back({start, end, 1000LL * (100 + pick(20000)), static_cast<std::int32_t>(edges.size())});
    network.isRiser.push_back(pick(2) == 0 ? 1 : 0);
  };
  add(0, 1);
  for (std::int32_t node = 2; node < nodes; ++node) add(1 + pick(node - 2), node);
  for (std::int32_t extra = 1 + pick(nodes / 2); extra > 0; --extra) {
    const std::int32_t start = 1 + pick(nodes - 2);
    const std::int32_t end = 1 + pick(nodes - 2);
    if (start != end) add(start, end);
  }
  network.routes = RouteNetwork(nodes, std::move(edges));
  testing_rings::BuildLooped(network, 0, nodes - 1);
  for (LoopedNode& node : network.looped.nodes) {
    if (pick(4) != 0) continue;
    node.isActive = true;
    node.flow = node.accumulatedFlow = 5.0 + 0.1 * pick(10);
  }
  network.looped.nodes.front().isActive = true;
  network.looped.nodes.front().flow = network.looped.nodes.front().accumulatedFlow = 5.2;
  AccumulateFlows(network.looped, network.looped.sourceNumber);
  SeedSectionFlows(network.looped);
  return network;
}

TEST(LoopedNetworkSolver, GivesTheBitsOfThePlainReadingOnRandomNetworks) {
  std::mt19937 random(21);
  int converged = 0;
  for (int round = 0; round < 60; ++round) {
    const RingNetwork network = RandomNetwork(random, round % 12 == 0 ? 60 : 16);
    const LoopedResult result = SolveBothWays(network, DefaultInput());
    ASSERT_FALSE(testing::Test::HasFatalFailure()) << "round " << round;
    converged += result.outcome == LoopedOutcome::Converged ? 1 : 0;
  }
  EXPECT_GT(converged, 20);
}

struct KnownNetwork {
  const char* name;
  RingSizes sizes;
  std::int32_t onFirst;
  std::int32_t onSecond;
  LoopedOutcome outcome;
  std::int32_t passes;
};

void PrintTo(const KnownNetwork& known, std::ostream* stream) {
  *stream << known.name;
}

class KnownNetworks : public testing::TestWithParam<KnownNetwork> {};

TEST_P(KnownNetworks, EndAsKnownAndAsThePlainReading) {
  RingNetwork network = MakeRings(GetParam().sizes);
  UseHydrants(network, DefaultInput(), GetParam().onFirst, GetParam().onSecond);
  const LoopedResult result = SolveBothWays(network, DefaultInput());
  EXPECT_EQ(result.outcome, GetParam().outcome);
  EXPECT_EQ(result.passes, GetParam().passes);
}

constexpr auto kConverged = LoopedOutcome::Converged;
constexpr auto kNotConverged = LoopedOutcome::NotConverged;
constexpr auto kNoSolution = LoopedOutcome::NoSolution;

INSTANTIATE_TEST_SUITE_P(
    Rings, KnownNetworks,
    testing::Values(
        KnownNetwork{"TwoRisers", {2, 3, 3000, 8000, 5000, false}, 2, 0, kConverged, 34},
        KnownNetwork{"TwoRisersFourHydrants", {2, 5, 3000, 8000, 5000, false}, 2, 2, kConverged, 124},
        KnownNetwork{"ThreeMainsOfTwoRisers", {2, 5, 3000, 8000, 5000, true}, 2, 2, kConverged, 100},
        KnownNetwork{"SixRisers", {6, 7, 3000, 8000, 5000, false}, 2, 0, kConverged, 39},
        // Short mains carry much at little loss: what is left of a disturbance swings and hardly fades.
        KnownNetwork{"ShortMainsNeverSettle", {2, 3, 2800, 100, 5000, true}, 2, 2, kNotConverged, 4999},
        // On the way the heads at both ends of a section become equal to the last bit: its flow is zero, its
        // conductance no number, and the next pass finds no pivot.
        KnownNetwork{"ShortMainsMeetAnExactZero", {2, 3, 2800, 500, 5000, true}, 2, 2, kNoSolution, 1509},
        // Node 1 takes nothing, so the sections from it start without flow.
        KnownNetwork{"SecondRiserAlone", {2, 3, 3000, 8000, 5000, false}, 0, 2, kNoSolution, 1}),
    [](const testing::TestParamInfo<KnownNetwork>& known) { return std::string(known.param.name); });

TEST(LoopedNetworkSolver, PassesGrowWithTheFlowInFewRisers) {
  const auto passes = [](std::int32_t risers, std::int32_t guns) {
    RingNetwork network = MakeRings({risers, 18, 3000, 8000, 5000, false});
    UseHydrants(network, DefaultInput(), guns, guns);
    const LoopedResult result = SolveLoopedNetwork(network.looped, DefaultInput());
    EXPECT_EQ(result.outcome, LoopedOutcome::Converged);
    return result.passes;
  };
  EXPECT_EQ(passes(2, 4), 361);
  EXPECT_EQ(passes(3, 4), 2049);
}

TEST(LoopedNetworkSolver, FastMainsSwingBetweenTwoFlowsForGood) {
  // From 1.2 m/s on the loss is S q². A pass divides it by the flow of the pass before, so that round a ring
  // of fast mains a flow q becomes q*²/q: it swings about q* with the same swing for ever. Only slower
  // sections, whose loss grows with less than the square, damp it.
  RingNetwork network = MakeRings({4, 10, 3000, 8000, 5000, false});
  UseHydrants(network, DefaultInput(), 4, 4);
  std::vector<double> flows;
  double lastChange = 0;
  constexpr std::size_t kMain = 12;
  const LoopedResult result = SolveLoopedNetwork(network.looped, DefaultInput(), [&](const LoopedPass& pass) {
    flows.push_back(network.looped.sections[kMain].flow);
    lastChange = pass.largestChange;
  });
  EXPECT_EQ(result.outcome, LoopedOutcome::NotConverged);
  EXPECT_EQ(result.passes, 4999);
  EXPECT_EQ(ZwtNum2Str(lastChange, 3), L"38.968");
  const std::size_t last = flows.size() - 1;
  EXPECT_EQ(ZwtNum2Str(flows[last], 4), L"35.1026");
  EXPECT_EQ(ZwtNum2Str(flows[last - 1], 4), L"34.5431");
  for (std::size_t i = last - 50; i <= last; ++i) EXPECT_NEAR(flows[i], flows[i - 2], 1e-6);
}

TEST(LoopedNetworkSolver, FlowsSeededDownToNothingMeetAnExactZero) {
  // Halved at every one of 30 risers, a flow comes to a billionth, and its section to a loss below the last
  // bit.
  RingNetwork network = MakeRings({30, 1, 3000, 8000, 5000, false});
  UseHydrants(network, DefaultInput(), 1, 0);
  const LoopedResult result = SolveLoopedNetwork(network.looped, DefaultInput());
  EXPECT_EQ(result.outcome, LoopedOutcome::NoSolution);
  EXPECT_EQ(result.passes, 2);
}

TEST(LoopedNetworkSolver, ASeededFlowOfZeroGivesAConductanceThatIsNoNumber) {
  RingNetwork network = MakeRings({2, 2, 3000, 8000, 5000, false});
  UseHydrants(network, DefaultInput(), 0, 1);
  ASSERT_EQ(network.looped.sections.front().flow, 0.0);
  const LoopedResult result = SolveBothWays(network, DefaultInput());
  EXPECT_EQ(result.outcome, LoopedOutcome::NoSolution);
  SolveLoopedNetwork(network.looped, DefaultInput());
  EXPECT_TRUE(std::isnan(network.looped.sections.front().conductance));
  EXPECT_DOUBLE_EQ(network.looped.sections.front().diameter, 100)
      << "5 L/s stand for the flow that is missing";
}

TEST(LoopedNetworkSolver, ASectionWithoutLengthSpoilsTheHeadsOfTheNextPass) {
  RingNetwork network = MakeRings({2, 3, 3000, 8000, 5000, false});
  UseHydrants(network, DefaultInput(), 2, 0);
  network.looped.sections[2].length = 0;
  LoopedNetwork looped = network.looped;
  const LoopedResult result = SolveLoopedNetwork(looped, DefaultInput());
  EXPECT_EQ(result.outcome, LoopedOutcome::NoSolution);
  EXPECT_EQ(result.passes, 2);
  EXPECT_TRUE(std::isnan(looped.sections[2].conductance));
}

TEST(LoopedNetworkSolver, FlowsThatAreNoNumberEndAtTheLimitWithoutThePassesBetween) {
  LoopedNetwork network;
  network.nodes.resize(1);
  network.nodes[0].isActive = true;
  network.nodes[0].flow = 5;
  LoopedSection section;
  section.startNumber = section.endNumber = 1;
  section.length = 1000;
  section.flow = std::nan("");
  network.sections.push_back(section);
  std::int32_t passes = 0;
  const LoopedResult result =
      SolveLoopedNetwork(network, DefaultInput(), [&passes](const LoopedPass&) { ++passes; });
  EXPECT_EQ(result.outcome, LoopedOutcome::NotConverged);
  EXPECT_EQ(result.passes, 4999);
  EXPECT_LT(passes, 5);
  EXPECT_TRUE(std::isnan(network.sections[0].flow));
  EXPECT_DOUBLE_EQ(network.sections[0].diameter, 100) << "an estimate that is no number";
}

TEST(LoopedNetworkSolver, WithoutSectionsOrSourceConvergesAtOnce) {
  LoopedNetwork network;
  network.nodes.resize(1);
  const LoopedResult result = SolveLoopedNetwork(network, DefaultInput());
  EXPECT_EQ(result.outcome, LoopedOutcome::Converged);
  EXPECT_EQ(result.passes, 1);
  EXPECT_NEAR(network.nodes[0].pressure, 23.33, 0.005);
  LoopedNetwork empty;
  EXPECT_EQ(SolveLoopedNetwork(empty, DefaultInput()).outcome, LoopedOutcome::Converged);
}

TEST(LoopedNetworkSolver, TheObserverHearsOfEveryPassAndChangesNothing) {
  RingNetwork network = MakeRings({2, 3, 3000, 8000, 5000, false});
  UseHydrants(network, DefaultInput(), 2, 0);
  LoopedNetwork unobserved = network.looped;
  std::vector<LoopedPass> passes;
  const LoopedResult result = SolveLoopedNetwork(
      network.looped, DefaultInput(), [&passes](const LoopedPass& pass) { passes.push_back(pass); });
  SolveLoopedNetwork(unobserved, DefaultInput());
  ExpectSame(network.looped, unobserved);
  ASSERT_EQ(static_cast<std::int32_t>(passes.size()), result.passes);
  for (std::size_t i = 0; i < passes.size(); ++i) {
    EXPECT_EQ(passes[i].pass, static_cast<std::int32_t>(i) + 1);
    EXPECT_GE(passes[i].section, 0);
    EXPECT_EQ(passes[i].largestChange <= kLoopedConvergenceLimit, i + 1 == passes.size());
  }
}

TEST(MainDiameter, HalfwayTakesTheSmaller) {
  EXPECT_EQ(SelectMainDiameter(0.1125), 0.1);
  EXPECT_EQ(SelectMainDiameter(std::nextafter(0.1125, 1.0)), 0.125);
}

TEST(MainDiameter, BeyondTheRangeTakesTheNearestEnd) {
  EXPECT_EQ(SelectMainDiameter(0.0), 0.1);
  EXPECT_EQ(SelectMainDiameter(-3.0), 0.1);
  EXPECT_EQ(SelectMainDiameter(7.0), 0.25);
}

TEST(MainDiameter, WhatIsNoNumberTakes100) {
  EXPECT_EQ(SelectMainDiameter(std::nan("")), 0.1);
}

TEST(MainDiameter, EverySizeTakesItselfAndPrintsAsAWholeNumber) {
  for (const double size : kMainDiameters) {
    EXPECT_EQ(SelectMainDiameter(size / 1000), size * 0.001);
    EXPECT_EQ(ToInt(size * 0.001 * 1000), static_cast<std::int32_t>(size));
  }
}

}  // namespace
}  // namespace zwt
