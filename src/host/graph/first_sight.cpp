// The first route through a chain is two ways at least cost from the chain's ends to the two ends of the
// route that share no node: a flow of two. Its first half is a way that is known from one search for all
// chains; the second half may push the first one aside, so it is searched in what the first one leaves. Costs
// are exact whole numbers.
#include "host/graph/first_sight.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "host/graph/cost_queue.h"
#include "host/graph/first_route.h"
#include "host/graph/route_cost.h"
#include "host/graph/route_skeleton.h"

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

constexpr std::int32_t kNone = -1;

/// A route as chains in order from its start, with what sorts it.
struct ChainRoute {
  std::int64_t length = 0;
  std::vector<std::int32_t>
      latestFirst;  ///< its chains, the latest first: the earlier list is the earlier route
  std::vector<std::int32_t> chains;

  bool operator<(const ChainRoute& other) const {
    return std::tie(length, latestFirst) < std::tie(other.length, other.latestFirst);
  }
  bool operator==(const ChainRoute& other) const { return latestFirst == other.latestFirst; }
};

/// Finds the first route through each chain of a skeleton.
class ChainRouteFinder {
 public:
  explicit ChainRouteFinder(const RouteSkeleton& skeleton)
      : skeleton_(skeleton),
        width_(RouteCosts::WidthFor(skeleton.chains.size())),
        toEnd_(skeleton.nodes.size(), width_),
        wayOut_(skeleton.nodes.size(), kNone),
        detour_(2 * skeleton.chains.size(), width_),
        cost_(2 * skeleton.nodes.size(), width_),
        arrival_(2 * skeleton.nodes.size()),
        queue_(cost_, 2 * skeleton.nodes.size()),
        trial_(1, width_),
        entry_(skeleton.nodes.size(), kNone),
        exit_(skeleton.nodes.size(), kNone),
        occupied_(skeleton.nodes.size(), 0) {
    FindWaysOut();
    FindDetours();
  }

  ChainRoute Through(std::int32_t chain) {
    const RouteChain& ends = skeleton_.chains[At(chain)];
    const std::int32_t firstEnd = Occupy(ends.start);
    const std::int32_t otherEnd = SearchBeside(ends.start, ends.end, firstEnd);
    PushAside(ends.end, otherEnd);
    ChainRoute route = Join(chain);
    Release();
    return route;
  }

 private:
  // The second way passes a node from the side where it enters to the side where it leaves.
  static std::int32_t EntrySide(std::int32_t node) { return 2 * node; }
  static std::int32_t ExitSide(std::int32_t node) { return 2 * node + 1; }

  struct Arrival {
    std::int32_t from = kNone;   ///< side of a node
    std::int32_t chain = kNone;  ///< none within a node
    bool seen = false;
    bool settled = false;
  };

  bool IsEnd(std::int32_t node) const { return node == skeleton_.from || node == skeleton_.to; }

  /// Cost of the first way from every node to the nearer end of the routes.
  void FindWaysOut() {
    CostQueue queue(toEnd_, skeleton_.nodes.size());
    std::vector<char> settled(skeleton_.nodes.size(), 0);
    queue.PutOrRaise(skeleton_.from);
    queue.PutOrRaise(skeleton_.to);
    while (!queue.IsEmpty()) {
      const std::int32_t node = queue.TakeLeast();
      settled[At(node)] = 1;
      for (const std::int32_t chain : skeleton_.chainsAt[At(node)]) {
        const std::int32_t other = skeleton_.Opposite(chain, node);
        if (settled[At(other)] != 0 || IsEnd(other)) continue;
        Assign(trial_[0], toEnd_[At(node)]);
        AddChain(trial_[0], skeleton_.chains[At(chain)].length, At(chain));
        if (wayOut_[At(other)] != kNone && !IsLess(trial_[0], toEnd_[At(other)])) continue;
        Assign(toEnd_[At(other)], trial_[0]);
        wayOut_[At(other)] = chain;
        queue.PutOrRaise(other);
      }
    }
  }

  /// What it costs more to leave a node by a chain than by its first way out; by chain and direction.
  void FindDetours() {
    for (std::int32_t chain = 0; chain < skeleton_.ChainCount(); ++chain) {
      const RouteChain& ends = skeleton_.chains[At(chain)];
      for (const bool backward : {false, true}) {
        const RouteCost detour = detour_[2 * At(chain) + (backward ? 1 : 0)];
        Assign(detour, toEnd_[At(backward ? ends.start : ends.end)]);
        AddChain(detour, ends.length, At(chain));
        Subtract(detour, toEnd_[At(backward ? ends.end : ends.start)]);
      }
    }
  }

  ConstRouteCost Detour(std::int32_t chain, std::int32_t leaving) const {
    return detour_[2 * At(chain) + (skeleton_.chains[At(chain)].start == leaving ? 0 : 1)];
  }

  /// Lays the first way out from a node and gives the end that it takes.
  std::int32_t Occupy(std::int32_t node) {
    occupied_[At(node)] = 1;
    while (!IsEnd(node)) {
      const std::int32_t chain = wayOut_[At(node)];
      exit_[At(node)] = chain;
      node = skeleton_.Opposite(chain, node);
      entry_[At(node)] = chain;
      occupied_[At(node)] = 1;
    }
    return node;
  }

  /// Searches the way of least cost from `start` to the end that is not taken, beside the way laid from
  /// `laidFrom`.
  std::int32_t SearchBeside(std::int32_t laidFrom, std::int32_t start, std::int32_t takenEnd) {
    const std::int32_t freeEnd = takenEnd == skeleton_.from ? skeleton_.to : skeleton_.from;
    std::fill(arrival_.begin(), arrival_.end(), Arrival{});
    queue_.Clear();
    std::fill(cost_[At(EntrySide(start))].begin(), cost_[At(EntrySide(start))].end(), 0U);
    arrival_[At(EntrySide(start))].seen = true;
    queue_.PutOrRaise(EntrySide(start));
    while (!queue_.IsEmpty()) {
      const std::int32_t side = queue_.TakeLeast();
      if (side == ExitSide(freeEnd)) break;
      arrival_[At(side)].settled = true;
      if (side % 2 == 0) {
        LeaveEntrySide(side / 2, laidFrom);
      } else {
        LeaveExitSide(side / 2);
      }
    }
    return freeEnd;
  }

  void LeaveEntrySide(std::int32_t node, std::int32_t laidFrom) {
    if (occupied_[At(node)] == 0) {
      Reach(ExitSide(node), EntrySide(node), kNone, {});
    } else if (node != laidFrom) {
      // The node is taken: push the laid way back to where it came from. Its chains cost no detour.
      const std::int32_t chain = entry_[At(node)];
      Reach(ExitSide(skeleton_.Opposite(chain, node)), EntrySide(node), chain, {});
    }
  }

  void LeaveExitSide(std::int32_t node) {
    if (occupied_[At(node)] != 0) Reach(EntrySide(node), ExitSide(node), kNone, {});
    for (const std::int32_t chain : skeleton_.chainsAt[At(node)]) {
      if (exit_[At(node)] == chain) continue;
      Reach(EntrySide(skeleton_.Opposite(chain, node)), ExitSide(node), chain, Detour(chain, node));
    }
  }

  void Reach(std::int32_t side, std::int32_t from, std::int32_t chain, ConstRouteCost detour) {
    Arrival& arrival = arrival_[At(side)];
    if (arrival.settled) return;
    Assign(trial_[0], cost_[At(from)]);
    if (!detour.empty()) Add(trial_[0], detour);
    if (arrival.seen && !IsLess(trial_[0], cost_[At(side)])) return;
    Assign(cost_[At(side)], trial_[0]);
    arrival = {from, chain, true, false};
    queue_.PutOrRaise(side);
  }

  /// Changes the laid way by the one that was found, so that the exits of the nodes describe both.
  void PushAside(std::int32_t start, std::int32_t freeEnd) {
    std::vector<std::int32_t> sides = {ExitSide(freeEnd)};
    while (sides.back() != EntrySide(start)) sides.push_back(arrival_[At(sides.back())].from);
    std::reverse(sides.begin(), sides.end());
    for (std::size_t step = 1; step < sides.size(); ++step) {
      const std::int32_t chain = arrival_[At(sides[step])].chain;
      if (chain == kNone) continue;
      if (sides[step] % 2 == 0) {
        exit_[At(sides[step - 1] / 2)] = chain;
      } else {
        exit_[At(sides[step] / 2)] = kNone;
      }
    }
  }

  /// The chains from a node to the end that its way leads to.
  std::vector<std::int32_t> Follow(std::int32_t node, std::int32_t& end) const {
    std::vector<std::int32_t> chains;
    while (exit_[At(node)] != kNone) {
      chains.push_back(exit_[At(node)]);
      node = skeleton_.Opposite(chains.back(), node);
    }
    end = node;
    return chains;
  }

  ChainRoute Join(std::int32_t chain) const {
    std::int32_t endOfStart = kNone;
    std::int32_t endOfEnd = kNone;
    std::vector<std::int32_t> front = Follow(skeleton_.chains[At(chain)].start, endOfStart);
    std::vector<std::int32_t> back = Follow(skeleton_.chains[At(chain)].end, endOfEnd);
    if (endOfStart != skeleton_.from) std::swap(front, back);
    ChainRoute route;
    route.chains.assign(front.rbegin(), front.rend());
    route.chains.push_back(chain);
    route.chains.insert(route.chains.end(), back.begin(), back.end());
    for (const std::int32_t part : route.chains) route.length += skeleton_.chains[At(part)].length;
    route.latestFirst = route.chains;
    std::sort(route.latestFirst.rbegin(), route.latestFirst.rend());
    return route;
  }

  void Release() {
    std::fill(entry_.begin(), entry_.end(), kNone);
    std::fill(exit_.begin(), exit_.end(), kNone);
    std::fill(occupied_.begin(), occupied_.end(), static_cast<char>(0));
  }

  const RouteSkeleton& skeleton_;
  std::size_t width_;
  RouteCosts toEnd_;                  // by node
  std::vector<std::int32_t> wayOut_;  // by node: the chain to leave by
  RouteCosts detour_;
  RouteCosts cost_;  // by side of a node
  std::vector<Arrival> arrival_;
  CostQueue queue_;
  RouteCosts trial_;
  std::vector<std::int32_t> entry_;  // by node: the chain by which the laid way comes
  std::vector<std::int32_t> exit_;
  std::vector<char> occupied_;
};

Route Expand(const RouteNetwork& network, const RouteSkeleton& skeleton, const ChainRoute& route) {
  std::vector<std::int32_t> edges;
  std::int32_t node = skeleton.from;
  for (const std::int32_t index : route.chains) {
    const RouteChain& chain = skeleton.chains[At(index)];
    if (chain.start == node) {
      edges.insert(edges.end(), chain.edges.begin(), chain.edges.end());
    } else {
      edges.insert(edges.end(), chain.edges.rbegin(), chain.edges.rend());
    }
    node = skeleton.Opposite(index, node);
  }
  return RouteAlong(network, skeleton.nodes[At(skeleton.from)], std::move(edges));
}

}  // namespace

std::vector<Route> RoutesOfFirstSight(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  if (from == to) return {RouteAlong(network, from, {})};
  const RouteSkeleton skeleton = MakeRouteSkeleton(network, from, to);
  ChainRouteFinder finder(skeleton);
  std::vector<ChainRoute> found;
  found.reserve(skeleton.chains.size());
  for (std::int32_t chain = 0; chain < skeleton.ChainCount(); ++chain) found.push_back(finder.Through(chain));
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  std::vector<Route> routes;
  routes.reserve(found.size());
  for (const ChainRoute& route : found) routes.push_back(Expand(network, skeleton, route));
  return routes;
}

}  // namespace zwt
