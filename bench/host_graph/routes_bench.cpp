// Time of route searches on two-ring networks of up to 100 risers, the number of whose routes can't be
// counted.
#include <benchmark/benchmark.h>

#include "host/graph/first_route.h"
#include "host/graph/first_sight.h"

namespace {

/// Risers of `storeys` equal storeys between two mains, as RouteEdge list; node = riser * (storeys + 1) +
/// storey.
zwt::RouteNetwork TwoRings(std::int32_t risers, std::int32_t storeys) {
  std::vector<zwt::RouteEdge> edges;
  const auto node = [storeys](std::int32_t riser, std::int32_t storey) {
    return riser * (storeys + 1) + storey;
  };
  std::int32_t pipe = 0;
  for (std::int32_t riser = 0; riser < risers; ++riser) {
    for (std::int32_t storey = 0; storey < storeys; ++storey) {
      edges.push_back({node(riser, storey), node(riser, storey + 1), 3000000, pipe++});
    }
    if (riser == 0) continue;
    edges.push_back({node(riser - 1, 0), node(riser, 0), 8000000, pipe++});
    edges.push_back({node(riser - 1, storeys), node(riser, storeys), 8000000, pipe++});
  }
  return {risers * (storeys + 1), std::move(edges)};
}

void BM_FirstSight(benchmark::State& state) {
  const auto risers = static_cast<std::int32_t>(state.range(1));
  const zwt::RouteNetwork network = TwoRings(risers, static_cast<std::int32_t>(state.range(0)) / risers - 1);
  for (auto _ : state) benchmark::DoNotOptimize(zwt::RoutesOfFirstSight(network, network.NodeCount() - 1, 0));
}
BENCHMARK(BM_FirstSight)
    ->Args({20, 4})
    ->Args({100, 10})
    ->Args({400, 24})
    ->Args({1000, 50})
    ->Args({2000, 100})
    ->Unit(benchmark::kMillisecond);

void BM_FirstRoute(benchmark::State& state) {
  const auto risers = static_cast<std::int32_t>(state.range(1));
  const zwt::RouteNetwork network = TwoRings(risers, static_cast<std::int32_t>(state.range(0)) / risers - 1);
  for (auto _ : state)
    benchmark::DoNotOptimize(zwt::FirstRouteBetweenNodes(network, network.NodeCount() - 1, 0));
}
BENCHMARK(BM_FirstRoute)->Args({20, 4})->Args({400, 24})->Args({2000, 100})->Unit(benchmark::kMicrosecond);

}  // namespace
