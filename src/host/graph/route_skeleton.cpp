// An edge lies on a route between two nodes exactly if it shares a ring with an imagined edge that joins the
// two. Those edges are found by one walk into the depth that notes how far back each part of it can return.
#include "host/graph/route_skeleton.h"

#include <algorithm>
#include <utility>

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

/// Finds the edges that share a ring with an imagined edge from one node to another: the walk starts at
/// `from` with the imagined edge to `to`, and closes a group of edges wherever no way leads back above it.
class RingWalk {
 public:
  RingWalk(const RouteNetwork& network, std::int32_t from, std::int32_t to)
      : network_(network), from_(from), to_(to), entered_(At(network.NodeCount()), -1), back_(entered_) {}

  /// By edge, 1 if it lies on a route.
  std::vector<char> UsefulEdges() {
    std::vector<char> useful(At(network_.EdgeCount()), 0);
    Enter(from_, kNone);
    Enter(to_, kImagined);
    while (visits_.size() > 1) Step();
    // All that is left on the stack was never cut off from the imagined edge.
    for (const std::int32_t edge : pending_) useful[At(edge)] = 1;
    return useful;
  }

 private:
  static constexpr std::int32_t kNone = -1;
  static constexpr std::int32_t kImagined = -2;

  struct Visit {
    std::int32_t node;
    std::int32_t byEdge;
    std::size_t next = 0;           // of the edges at the node
    std::size_t pendingBefore = 0;  // edges on the stack before the one that led here
  };

  void Enter(std::int32_t node, std::int32_t byEdge) {
    entered_[At(node)] = back_[At(node)] = clock_++;
    const std::size_t pendingBefore = pending_.size();
    if (byEdge >= 0) pending_.push_back(byEdge);
    visits_.push_back({node, byEdge, 0, pendingBefore});
  }

  void Step() {
    Visit& visit = visits_.back();
    const auto edges = network_.EdgesAt(visit.node);
    if (visit.next == edges.size()) {
      Leave();
      return;
    }
    const std::int32_t edge = edges[visit.next++];
    const std::int32_t node = visit.node;
    const std::int32_t other = network_.Opposite(edge, node);
    if (edge == visit.byEdge || other == node) return;
    if (entered_[At(other)] < 0) {
      Enter(other, edge);
    } else if (entered_[At(other)] < entered_[At(node)]) {
      pending_.push_back(edge);
      back_[At(node)] = std::min(back_[At(node)], entered_[At(other)]);
    }
  }

  void Leave() {
    const Visit visit = visits_.back();
    visits_.pop_back();
    const std::int32_t above = visits_.back().node;
    const std::int32_t back = back_[At(visit.node)];
    if (visit.byEdge == kImagined) {
      if (back > entered_[At(from_)]) pending_.clear();  // nothing leads from `to` to `from`
      return;
    }
    if (back >= entered_[At(above)]) {
      pending_.resize(visit.pendingBefore);  // a group of its own: a route that enters it can't come back
    } else {
      back_[At(above)] = std::min(back_[At(above)], back);
    }
  }

  const RouteNetwork& network_;
  std::int32_t from_;
  std::int32_t to_;
  std::vector<std::int32_t> entered_;
  std::vector<std::int32_t> back_;
  std::vector<Visit> visits_;
  std::vector<std::int32_t> pending_;
  std::int32_t clock_ = 0;
};

/// Draws runs of useful edges into chains.
class ChainBuilder {
 public:
  ChainBuilder(const RouteNetwork& network, std::int32_t from, std::int32_t to, std::vector<char> useful)
      : network_(network), useful_(std::move(useful)), place_(At(network.NodeCount()), -1) {
    skeleton_.from = AddNode(from);
    skeleton_.to = AddNode(to);
    for (std::int32_t node = 0; node < network.NodeCount(); ++node) {
      if (place_[At(node)] < 0 && UsefulAt(node) > 2) AddNode(node);
    }
  }

  RouteSkeleton Build() {
    for (std::int32_t start = 0; start < skeleton_.NodeCount(); ++start) {
      for (const std::int32_t edge : network_.EdgesAt(skeleton_.nodes[At(start)])) {
        if (useful_[At(edge)] != 0) AddChain(start, edge);
      }
    }
    std::sort(skeleton_.chains.begin(), skeleton_.chains.end(), [](const RouteChain& a, const RouteChain& b) {
      return *std::max_element(a.edges.begin(), a.edges.end()) <
             *std::max_element(b.edges.begin(), b.edges.end());
    });
    skeleton_.chainsAt.resize(skeleton_.nodes.size());
    for (std::int32_t chain = 0; chain < skeleton_.ChainCount(); ++chain) {
      skeleton_.chainsAt[At(skeleton_.chains[At(chain)].start)].push_back(chain);
      skeleton_.chainsAt[At(skeleton_.chains[At(chain)].end)].push_back(chain);
    }
    return std::move(skeleton_);
  }

 private:
  std::int32_t AddNode(std::int32_t node) {
    place_[At(node)] = skeleton_.NodeCount();
    skeleton_.nodes.push_back(node);
    return place_[At(node)];
  }

  std::int32_t UsefulAt(std::int32_t node) const {
    std::int32_t count = 0;
    for (const std::int32_t edge : network_.EdgesAt(node)) count += useful_[At(edge)];
    return count;
  }

  /// Follows the run that begins with `edge` to the next node of the skeleton. Its edges are used up by this.
  void AddChain(std::int32_t start, std::int32_t edge) {
    RouteChain chain;
    chain.start = start;
    std::int32_t node = skeleton_.nodes[At(start)];
    while (true) {
      useful_[At(edge)] = 0;
      chain.edges.push_back(edge);
      chain.length += network_.Edge(edge).length;
      node = network_.Opposite(edge, node);
      if (place_[At(node)] >= 0) break;
      for (const std::int32_t next : network_.EdgesAt(node)) {
        if (useful_[At(next)] != 0) edge = next;
      }
    }
    chain.end = place_[At(node)];
    skeleton_.chains.push_back(std::move(chain));
  }

  const RouteNetwork& network_;
  std::vector<char> useful_;
  std::vector<std::int32_t> place_;  // by network node: its skeleton node, or -1
  RouteSkeleton skeleton_;
};

}  // namespace

RouteSkeleton MakeRouteSkeleton(const RouteNetwork& network, std::int32_t from, std::int32_t to) {
  return ChainBuilder(network, from, to, RingWalk(network, from, to).UsefulEdges()).Build();
}

}  // namespace zwt
