// Routes against the plain listing of all of them, on hand-made and on thousands of random networks.
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "host/graph/first_route.h"
#include "host/graph/first_sight.h"
#include "host_graph/all_routes.h"

namespace zwt {
namespace {

using testing_routes::AllPipeRoutes;
using testing_routes::AllRoutes;
using testing_routes::RandomNetwork;

/// The route, which must be there.
Route Found(const std::optional<Route>& route) {
  if (route) return *route;
  ADD_FAILURE() << "no route";
  return {};
}

/// Nodes and directed edges in the order in which a walk along the routes meets them.
struct Sight {
  std::vector<std::int32_t> nodes;
  std::vector<std::pair<std::int32_t, std::int32_t>> edges;  // edge, node it is entered from

  bool operator==(const Sight&) const = default;
};

Sight FirstSight(const std::vector<Route>& routes) {
  Sight sight;
  std::set<std::int32_t> seenNodes;
  std::set<std::int32_t> seenEdges;
  for (const Route& route : routes) {
    for (std::size_t i = 0; i < route.nodes.size(); ++i) {
      if (seenNodes.insert(route.nodes[i]).second) sight.nodes.push_back(route.nodes[i]);
      if (i < route.edges.size() && seenEdges.insert(route.edges[i]).second) {
        sight.edges.emplace_back(route.edges[i], route.nodes[i]);
      }
    }
  }
  return sight;
}

std::vector<std::vector<std::int32_t>> EdgesOf(const std::vector<Route>& routes) {
  std::vector<std::vector<std::int32_t>> edges;
  edges.reserve(routes.size());
  for (const Route& route : routes) edges.push_back(route.edges);
  return edges;
}

/// A ring main of `risers` bays between two horizontal mains, all lengths equal, entered at node 0.
RouteNetwork Ladder(std::int32_t risers, std::int32_t storeys, std::int64_t length) {
  std::vector<RouteEdge> edges;
  const auto node = [storeys](std::int32_t riser, std::int32_t storey) {
    return riser * (storeys + 1) + storey;
  };
  for (std::int32_t riser = 0; riser < risers; ++riser) {
    for (std::int32_t storey = 0; storey < storeys; ++storey) {
      edges.push_back({node(riser, storey), node(riser, storey + 1), length, riser * 100 + storey});
    }
    if (riser > 0) {
      edges.push_back({node(riser - 1, 0), node(riser, 0), length, 90000 + riser});
      edges.push_back({node(riser - 1, storeys), node(riser, storeys), length, 95000 + riser});
    }
  }
  return {risers * (storeys + 1), std::move(edges)};
}

TEST(FirstRoute, OfEqualRoutesTheOneWithoutTheLatestEdgeComesFirst) {
  // 0-1-3 by edges 0 and 3, 0-2-3 by edges 1 and 2: edge 3 is the latest that only one of them uses.
  const RouteNetwork network(4, {{0, 1, 5, 0}, {0, 2, 5, 1}, {2, 3, 5, 2}, {1, 3, 5, 3}});
  const auto route = FirstRouteBetweenNodes(network, 0, 3);
  ASSERT_TRUE(route);
  EXPECT_EQ(Found(route).edges, (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(Found(route).nodes, (std::vector<std::int32_t>{0, 2, 3}));
  EXPECT_EQ(Found(route).length, 10);
}

TEST(FirstRoute, FewerEdgesDoNotWinATie) {
  // One edge of 10, which is the latest, against two of 5.
  const RouteNetwork network(3, {{0, 1, 5, 0}, {1, 2, 5, 0}, {0, 2, 10, 1}});
  EXPECT_EQ(Found(FirstRouteBetweenNodes(network, 0, 2)).edges, (std::vector<std::int32_t>{0, 1}));
}

TEST(FirstRoute, OfParallelEqualEdgesTheEarlierIsTaken) {
  const RouteNetwork network(2, {{1, 0, 7, 0}, {0, 1, 7, 1}});
  EXPECT_EQ(Found(FirstRouteBetweenNodes(network, 0, 1)).edges, (std::vector<std::int32_t>{0}));
}

TEST(FirstRoute, FromANodeToItselfHasNoEdge) {
  const RouteNetwork network(2, {{0, 1, 7, 0}, {0, 0, 3, 1}});
  const auto route = FirstRouteBetweenNodes(network, 0, 0);
  ASSERT_TRUE(route);
  EXPECT_TRUE(Found(route).edges.empty());
  EXPECT_EQ(Found(route).nodes, (std::vector<std::int32_t>{0}));
  EXPECT_EQ(RoutesOfFirstSight(network, 0, 0).size(), 1U);
}

TEST(FirstRoute, IsNoneWhereNothingLeads) {
  const RouteNetwork network(4, {{0, 1, 7, 0}, {2, 3, 7, 1}});
  EXPECT_FALSE(FirstRouteBetweenNodes(network, 0, 3));
  EXPECT_FALSE(FirstRouteBetweenPipes(network, 0, 1));
  EXPECT_TRUE(RoutesOfFirstSight(network, 0, 3).empty());
}

TEST(FirstRoute, EveryReachedNodeOfRandomNetworksAgreesWithTheListing) {
  std::mt19937 random(11);
  for (int round = 0; round < 4000; ++round) {
    const RouteNetwork network = RandomNetwork(random, 9, 7, round % 2 == 0 ? 2 : 9);
    const std::int32_t from =
        static_cast<std::int32_t>(random() % static_cast<unsigned>(network.NodeCount()));
    const FirstRoutes routes(network, std::span(&from, 1));
    for (std::int32_t to = 0; to < network.NodeCount(); ++to) {
      const std::vector<Route> all = AllRoutes(network, from, to);
      ASSERT_EQ(routes.Reaches(to), !all.empty());
      if (all.empty()) continue;
      ASSERT_EQ(routes.To(to).edges, all.front().edges) << "round " << round;
      ASSERT_EQ(Found(FirstRouteBetweenNodes(network, from, to)).edges, all.front().edges);
      ASSERT_EQ(routes.To(to).length, all.front().length);
    }
  }
}

TEST(FirstRouteBetweenPipes, CountsBothPipesInFullAndNamesTheJointsAlone) {
  // Pipe 0 from the free end 0 to joint 1, pipe 1 between, pipe 2 from joint 2 on to the tee 3 and the end 4.
  const RouteNetwork network(5, {{0, 1, 10, 0}, {1, 2, 20, 1}, {2, 3, 30, 2}, {3, 4, 40, 2}});
  const auto route = FirstRouteBetweenPipes(network, 0, 2);
  ASSERT_TRUE(route);
  EXPECT_EQ(Found(route).length, 100);
  EXPECT_EQ(Found(route).nodes, (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(Found(route).edges, (std::vector<std::int32_t>{1}));
}

TEST(FirstRouteBetweenPipes, OfTouchingPipesHasOneJoint) {
  const RouteNetwork network(3, {{0, 1, 10, 0}, {2, 1, 20, 1}});
  const auto route = FirstRouteBetweenPipes(network, 0, 1);
  ASSERT_TRUE(route);
  EXPECT_EQ(Found(route).nodes, (std::vector<std::int32_t>{1}));
  EXPECT_EQ(Found(route).length, 30);
}

TEST(FirstRouteBetweenPipes, FromAPipeToItselfIsThePipeAlone) {
  const RouteNetwork network(3, {{0, 1, 10, 0}, {1, 2, 20, 0}});
  const auto route = FirstRouteBetweenPipes(network, 0, 0);
  ASSERT_TRUE(route);
  EXPECT_TRUE(Found(route).nodes.empty());
  EXPECT_EQ(Found(route).length, 30);
}

TEST(FirstRouteBetweenPipes, OfTwoSharedJointsTheFirstAlongTheFirstPipeCounts) {
  const RouteNetwork network(2, {{1, 0, 10, 0}, {0, 1, 20, 1}});
  EXPECT_EQ(Found(FirstRouteBetweenPipes(network, 0, 1)).nodes, (std::vector<std::int32_t>{1}));
  EXPECT_EQ(Found(FirstRouteBetweenPipes(network, 1, 0)).nodes, (std::vector<std::int32_t>{0}));
}

TEST(FirstRouteBetweenPipes, OfRandomNetworksAgreesWithTheListing) {
  std::mt19937 random(12);
  int compared = 0;
  for (int round = 0; round < 10000; ++round) {
    const RouteNetwork network = RandomNetwork(random, 8, 6, round % 2 == 0 ? 2 : 9);
    const std::int32_t from = static_cast<std::int32_t>(random() % 6);
    const std::int32_t to = (from + 1 + static_cast<std::int32_t>(random() % 5)) % 6;
    if (NodesOfPipe(network, from).empty() || NodesOfPipe(network, to).empty()) continue;
    const std::vector<Route> all = AllPipeRoutes(network, from, to);
    const auto route = FirstRouteBetweenPipes(network, from, to);
    ASSERT_EQ(route.has_value(), !all.empty());
    if (all.empty()) continue;
    ++compared;
    ASSERT_EQ(Found(route).edges, all.front().edges) << "round " << round;
    ASSERT_EQ(Found(route).nodes, all.front().nodes) << "round " << round;
    ASSERT_EQ(Found(route).length, all.front().length);
  }
  EXPECT_GT(compared, 3000);
}

TEST(FirstSight, OfRandomNetworksEqualsThatOfTheSortedListing) {
  std::mt19937 random(13);
  for (int round = 0; round < 8000; ++round) {
    const RouteNetwork network = RandomNetwork(random, 9, 8, 1 + round % 7);
    const auto nodes = static_cast<unsigned>(network.NodeCount());
    const std::int32_t from = static_cast<std::int32_t>(random() % nodes);
    const std::int32_t to = static_cast<std::int32_t>(random() % nodes);
    const std::vector<Route> all = AllRoutes(network, from, to);
    const std::vector<Route> shown = RoutesOfFirstSight(network, from, to);
    ASSERT_EQ(FirstSight(shown), FirstSight(all)) << "round " << round;
  }
}

TEST(FirstSight, IsExactlyTheRoutesThatAreFirstToUseAnEdge) {
  std::mt19937 random(14);
  for (int round = 0; round < 1500; ++round) {
    const RouteNetwork network = RandomNetwork(random, 8, 7, 1 + round % 4);
    const std::int32_t to = network.NodeCount() - 1;
    std::vector<Route> firstToUse;
    std::set<std::int32_t> used;
    for (const Route& route : AllRoutes(network, 0, to)) {
      bool isNew = false;
      for (const std::int32_t edge : route.edges) isNew = used.insert(edge).second || isNew;
      if (isNew || network.NodeCount() == 1) firstToUse.push_back(route);
    }
    ASSERT_EQ(EdgesOf(RoutesOfFirstSight(network, 0, to)), EdgesOf(firstToUse)) << "round " << round;
  }
}

TEST(FirstSight, OfBundlesOfParallelPipesEqualsThatOfTheSortedListing) {
  // Few routes for so many chains: the digits of their costs need several words.
  std::mt19937 random(15);
  for (int round = 0; round < 40; ++round) {
    const RouteNetwork thin = RandomNetwork(random, 4, 2, 3);
    std::vector<RouteEdge> edges;
    for (std::int32_t edge = 0; edge < thin.EdgeCount(); ++edge) {
      for (int strand = 0; strand < 26; ++strand) {
        edges.push_back(thin.Edge(edge));
        edges.back().length = 1 + static_cast<std::int64_t>(random() % 2);
      }
    }
    std::shuffle(edges.begin(), edges.end(), random);
    const RouteNetwork network(thin.NodeCount(), std::move(edges));
    const std::int32_t to = network.NodeCount() - 1;
    ASSERT_EQ(FirstSight(RoutesOfFirstSight(network, 0, to)), FirstSight(AllRoutes(network, 0, to))) << round;
  }
}

TEST(FirstSight, OfEvenLaddersEqualsThatOfTheSortedListing) {
  for (std::int32_t risers = 2; risers <= 8; ++risers) {
    for (const std::int32_t storeys : {1, 2, 3}) {
      const RouteNetwork network = Ladder(risers, storeys, 3000000);
      const std::int32_t last = network.NodeCount() - 1;
      ASSERT_EQ(FirstSight(RoutesOfFirstSight(network, last, 0)), FirstSight(AllRoutes(network, last, 0)));
    }
  }
}

TEST(FirstSight, OfALadderBeyondListingShowsEveryNodeAndEdgeInOrder) {
  const RouteNetwork network = Ladder(100, 19, 3000000);  // 2,000 nodes, 2^99 routes
  const std::vector<Route> routes = RoutesOfFirstSight(network, network.NodeCount() - 1, 0);
  const Sight sight = FirstSight(routes);
  EXPECT_EQ(sight.nodes.size(), 2000U);
  EXPECT_EQ(sight.edges.size(), static_cast<std::size_t>(network.EdgeCount()));
  for (std::size_t i = 1; i < routes.size(); ++i) {
    EXPECT_TRUE(testing_routes::ComesBefore(routes[i - 1], routes[i]));
  }
}

TEST(RouteNetwork, HasALoopWhereAnEdgeCanBeTakenAway) {
  EXPECT_FALSE(RouteNetwork(3, {{0, 1, 1, 0}, {1, 2, 1, 0}}).HasLoop());
  EXPECT_TRUE(RouteNetwork(3, {{0, 1, 1, 0}, {1, 2, 1, 0}, {2, 0, 1, 0}}).HasLoop());
  EXPECT_TRUE(RouteNetwork(2, {{0, 1, 1, 0}, {1, 0, 1, 0}}).HasLoop());
  EXPECT_TRUE(RouteNetwork(1, {{0, 0, 1, 0}}).HasLoop());
  EXPECT_FALSE(RouteNetwork(4, {{0, 1, 1, 0}, {2, 3, 1, 0}}).HasLoop());
}

TEST(RouteNetwork, LengthsNeverOverflowAndNeverVanish) {
  const std::int64_t longest = std::numeric_limits<std::int64_t>::max();
  const RouteNetwork network(3, {{0, 1, longest, 0}, {1, 2, longest, 0}, {0, 2, -5, 1}});
  EXPECT_EQ(Found(FirstRouteBetweenNodes(network, 0, 2)).length, 1);
  EXPECT_GT(AllRoutes(network, 0, 2).back().length, 0);
}

TEST(RouteNetwork, WithoutNodesIsEmpty) {
  const RouteNetwork network;
  EXPECT_EQ(network.NodeCount(), 0);
  EXPECT_FALSE(network.HasLoop());
}

}  // namespace
}  // namespace zwt
