// The looped network solver on two-ring networks of 20 to 1,000 nodes: passes, and the time of one.
#include <benchmark/benchmark.h>

#include "fire/ring_network.h"

namespace {

void BM_SolveLoopedNetwork(benchmark::State& state) {
  zwt::testing_rings::RingSizes sizes;
  sizes.risers = static_cast<std::int32_t>(state.range(1));
  sizes.storeys = static_cast<std::int32_t>(state.range(0)) / sizes.risers - 2;
  zwt::HydrantCalcInput input;
  input.jetFlow = L"5.153";
  zwt::testing_rings::RingNetwork rings = zwt::testing_rings::MakeRings(sizes);
  zwt::testing_rings::UseHydrants(rings, input, 2, 0);
  zwt::LoopedResult result;
  for (auto _ : state) {
    zwt::LoopedNetwork network = rings.looped;
    result = zwt::SolveLoopedNetwork(network, input);
    benchmark::DoNotOptimize(network);
  }
  state.counters["nodes"] = static_cast<double>(rings.looped.nodes.size());
  state.counters["passes"] = result.passes;
  state.counters["outcome"] = static_cast<double>(result.outcome);
  state.counters["pass_us"] =
      benchmark::Counter(1e-6 * static_cast<double>(state.iterations()) * result.passes,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_SolveLoopedNetwork)
    ->Args({20, 4})
    ->Args({50, 5})
    ->Args({100, 10})
    ->Args({200, 12})
    ->Args({400, 24})
    ->Args({1000, 20})
    ->Unit(benchmark::kMillisecond);

}  // namespace
