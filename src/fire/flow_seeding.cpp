// The walk keeps its own stack, so that a long riser can't exhaust the program's.
#include "fire/flow_seeding.h"

#include <cstddef>
#include <vector>

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

/// By node index: how many sections start there.
std::vector<std::int32_t> CountStarts(const LoopedNetwork& network) {
  std::vector<std::int32_t> starts(network.nodes.size(), 0);
  for (const LoopedSection& section : network.sections) ++starts[At(section.startNumber - 1)];
  return starts;
}

/// By node index: the start nodes of the sections that end there, in the order of the sections.
std::vector<std::vector<std::int32_t>> ListSources(const LoopedNetwork& network) {
  std::vector<std::vector<std::int32_t>> sources(network.nodes.size());
  for (const LoopedSection& section : network.sections) {
    sources[At(section.endNumber - 1)].push_back(section.startNumber - 1);
  }
  return sources;
}

struct NodeWork {
  std::int32_t node;
  std::size_t next = 0;  // of its sources
};

}  // namespace

void AccumulateFlows(LoopedNetwork& network, std::int32_t number) {
  if (number < 1 || At(number) > network.nodes.size()) return;
  const std::vector<std::int32_t> starts = CountStarts(network);
  const std::vector<std::vector<std::int32_t>> sources = ListSources(network);
  std::vector<char> entered(network.nodes.size(), 0);
  if (!entered.empty()) entered.front() = 1;  // node 1 has what it has
  std::vector<NodeWork> work = {{number - 1}};
  entered[At(number - 1)] = 1;
  while (!work.empty()) {
    NodeWork& current = work.back();
    if (current.next == sources[At(current.node)].size()) {
      work.pop_back();
      continue;
    }
    const std::int32_t source = sources[At(current.node)][current.next];
    if (entered[At(source)] == 0) {
      entered[At(source)] = 1;
      work.push_back({source});
      continue;  // and back to this section once the source is done
    }
    network.nodes[At(current.node)].accumulatedFlow +=
        network.nodes[At(source)].accumulatedFlow / starts[At(source)];
    ++current.next;
  }
}

void SeedSectionFlows(LoopedNetwork& network) {
  const std::vector<std::int32_t> starts = CountStarts(network);
  for (LoopedSection& section : network.sections) {
    const std::size_t start = At(section.startNumber - 1);
    section.flow = network.nodes[start].accumulatedFlow / starts[start];
  }
}

}  // namespace zwt
