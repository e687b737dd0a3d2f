// What it costs that a calculation can tell how it went: nothing where nobody asks. Each pair is the same
// work without and with a listener.
#include <vector>

#include <benchmark/benchmark.h>

#include "fire/ring_network.h"
#include "supply/supply_hydraulics.h"

namespace {

void BM_SupplySection(benchmark::State& state) {
  const bool told = state.range(0) != 0;
  const zwt::SupplySectionInput section = {.equivalents = 72,
                                           .persons = 63,
                                           .quota = 250,
                                           .hourlyFactor = 2.5,
                                           .hours = 24,
                                           .length = 2900,
                                           .material = L"PP-R管(S4)"};
  for (auto _ : state) {
    zwt::Trace trace;
    benchmark::DoNotOptimize(
        zwt::CalculateSection(section, zwt::kDwellingClass, L"", told ? &trace : nullptr));
    benchmark::DoNotOptimize(trace);
  }
}
BENCHMARK(BM_SupplySection)->ArgName("told")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_LoopedPasses(benchmark::State& state) {
  const bool watched = state.range(0) != 0;
  zwt::HydrantCalcInput input;
  input.jetFlow = L"5.153";
  zwt::testing_rings::RingSizes sizes;
  sizes.risers = 10;
  sizes.storeys = 8;
  zwt::testing_rings::RingNetwork rings = zwt::testing_rings::MakeRings(sizes);
  zwt::testing_rings::UseHydrants(rings, input, 2, 0);
  for (auto _ : state) {
    zwt::LoopedNetwork network = rings.looped;
    std::vector<zwt::LoopedPass> history;
    zwt::LoopedPassObserver observer;
    if (watched) observer = [&history](const zwt::LoopedPass& pass) { history.push_back(pass); };
    zwt::SolveLoopedNetwork(network, input, observer);
    benchmark::DoNotOptimize(network);
  }
}
BENCHMARK(BM_LoopedPasses)->ArgName("watched")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
