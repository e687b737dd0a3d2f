#include "host/check/hydrant_network.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zwt {
namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

/// Branch pipes of top hydrants, as the hydrant model tells them.
std::vector<std::int32_t> TopPipes(const CheckedPipes& pipes) {
  std::vector<std::int32_t> tops;
  for (const std::int32_t pipe : pipes.Pipes()) {
    const bool isTop =
        pipes.RoleOf(pipe) == PipeRole::kBranch && pipes.Text(pipe, L"IsTopHydrant") == L"TRUE";
    if (isTop) tops.push_back(pipe);
  }
  return tops;
}

}  // namespace

HydrantNetwork::HydrantNetwork(const CheckedPipes& pipes) : pipes_(pipes) {
  const std::vector<std::int32_t> tops = TopPipes(pipes);
  if (tops.empty()) return;
  layout_ = MakePipeLayout(pipes.GetDrawing(), tops);
  FindTops(tops);
  FindParts();
}

void HydrantNetwork::FindTops(const std::vector<std::int32_t>& tops) {
  for (std::int32_t edge = 0; edge < Network().EdgeCount(); ++edge) {
    const RouteEdge& stretch = Network().Edge(edge);
    if (!std::binary_search(tops.begin(), tops.end(), EntityOf(stretch.pipe))) continue;
    const bool isFirst = tops_.empty() || tops_.back().pipe != stretch.pipe;
    if (isFirst) tops_.push_back({stretch.pipe, -1});
    for (const std::int32_t node : {stretch.start, stretch.end}) {
      if (tops_.back().joint < 0 && Network().EdgesAt(node).size() > 1) tops_.back().joint = node;
    }
  }
}

void HydrantNetwork::FindParts() {
  parts_.assign(layout_.nodes.size(), -1);
  for (std::int32_t first = 0; first < Network().NodeCount(); ++first) {
    if (parts_[At(first)] >= 0) continue;
    double lowest = PointOf(first).z;
    double highest = lowest;
    std::vector<std::int32_t> waiting = {first};
    parts_[At(first)] = partCount_;
    for (std::size_t next = 0; next < waiting.size(); ++next) {
      const std::int32_t node = waiting[next];
      lowest = std::min(lowest, PointOf(node).z);
      highest = std::max(highest, PointOf(node).z);
      for (const std::int32_t edge : Network().EdgesAt(node)) {
        const std::int32_t other = Network().Opposite(edge, node);
        if (std::exchange(parts_[At(other)], partCount_) < 0) waiting.push_back(other);
      }
    }
    isSpatial_.push_back(highest - lowest > kTouch ? 1 : 0);
    ++partCount_;
  }
}

std::int32_t HydrantNetwork::EdgesOfRole(std::int32_t node, PipeRole role) const {
  std::int32_t count = 0;
  for (const std::int32_t edge : Network().EdgesAt(node)) count += RoleOfEdge(edge) == role ? 1 : 0;
  return count;
}

}  // namespace zwt
