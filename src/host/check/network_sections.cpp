#include "host/check/network_sections.h"

#include <algorithm>
#include <functional>

namespace zwt {
namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

bool IsKeyNode(const RouteNetwork& network, std::int32_t node) {
  return network.EdgesAt(node).size() != 2;
}

/// Follows a chain from one of its edges to the next key node.
NetworkSection Follow(const RouteNetwork& network, std::int32_t start, std::int32_t edge,
                      std::vector<char>& taken) {
  NetworkSection section;
  section.start = start;
  std::int32_t node = start;
  while (true) {
    taken[At(edge)] = 1;
    section.length += network.Edge(edge).length;
    if (section.pipes.empty() || section.pipes.back() != network.Edge(edge).pipe) {
      section.pipes.push_back(network.Edge(edge).pipe);
    }
    node = network.Opposite(edge, node);
    if (IsKeyNode(network, node)) break;
    const auto edges = network.EdgesAt(node);
    edge = edges[0] == edge ? edges[1] : edges[0];
  }
  section.end = node;
  return section;
}

}  // namespace

std::vector<NetworkSection> SectionsOf(const RouteNetwork& network) {
  std::vector<NetworkSection> sections;
  std::vector<char> taken(At(network.EdgeCount()), 0);
  for (std::int32_t edge = 0; edge < network.EdgeCount(); ++edge) {
    for (const std::int32_t node : {network.Edge(edge).start, network.Edge(edge).end}) {
      if (taken[At(edge)] == 0 && IsKeyNode(network, node)) {
        sections.push_back(Follow(network, node, edge, taken));
      }
    }
  }
  return sections;
}

WayRound::WayRound(const RouteNetwork& network)
    : network_(network), metIn_(At(network.NodeCount()), 0), length_(At(network.NodeCount()), 0) {}

void WayRound::Improve(std::int32_t node, std::int64_t length) {
  if (metIn_[At(node)] == search_ && length_[At(node)] <= length) return;
  metIn_[At(node)] = search_;
  length_[At(node)] = length;
  open_.emplace_back(length, node);
  std::push_heap(open_.begin(), open_.end(), std::greater<>());
}

std::int64_t WayRound::Shortest(std::int32_t from, std::int32_t to, std::int64_t bound) {
  ++search_;
  open_.clear();
  Improve(from, 0);
  while (!open_.empty()) {
    std::pop_heap(open_.begin(), open_.end(), std::greater<>());
    const auto [length, node] = open_.back();
    open_.pop_back();
    if (node == to) return length;
    if (length != length_[At(node)]) continue;  // a shorter way came later
    for (const std::int32_t edge : network_.EdgesAt(node)) {
      const std::int64_t further = length + network_.Edge(edge).length;
      if (further < bound) Improve(network_.Opposite(edge, node), further);
    }
  }
  return bound;
}

}  // namespace zwt
