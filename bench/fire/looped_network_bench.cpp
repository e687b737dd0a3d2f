// The looped network solver on two-ring networks of 20 to 1,000 nodes: passes, and the time of one.
#include <benchmark/benchmark.h>

#include "fire/plain_looped_solver.h"
#include "fire/ring_network.h"

namespace {

zwt::HydrantCalcInput Input() {
  zwt::HydrantCalcInput input;
  input.jetFlow = L"5.153";
  return input;
}

/// So many nodes on so many risers, two hydrants in use.
zwt::testing_rings::RingNetwork Rings(const benchmark::State& state) {
  zwt::testing_rings::RingSizes sizes;
  sizes.risers = static_cast<std::int32_t>(state.range(1));
  sizes.storeys = static_cast<std::int32_t>(state.range(0)) / sizes.risers - 2;
  zwt::testing_rings::RingNetwork rings = zwt::testing_rings::MakeRings(sizes);
  zwt::testing_rings::UseHydrants(rings, Input(), 2, 0);
  return rings;
}

/// The same arithmetic with a matrix for every section and every length searched anew.
void BM_PlainReading(benchmark::State& state) {
  const zwt::HydrantCalcInput input = Input();
  const zwt::testing_rings::RingNetwork rings = Rings(state);
  zwt::LoopedResult result;
  for (auto _ : state) {
    zwt::testing_rings::RingNetwork network = rings;
    result = zwt::testing_rings::PlainSolveLoopedNetwork(network, input);
    benchmark::DoNotOptimize(network);
  }
  state.counters["passes"] = result.passes;
}
BENCHMARK(BM_PlainReading)->Args({20, 4})->Args({50, 5})->Args({100, 10})->Unit(benchmark::kMillisecond);

void BM_SolveLoopedNetwork(benchmark::State& state) {
  const zwt::HydrantCalcInput input = Input();
  const zwt::testing_rings::RingNetwork rings = Rings(state);
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
