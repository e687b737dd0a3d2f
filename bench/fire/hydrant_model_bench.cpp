// Building the model of drawn hydrant networks, and the whole calculation with it, by nodes and risers.
#include <benchmark/benchmark.h>

#include "fire/hydrant_calculation.h"
#include "fire/hydrant_drawing.h"

namespace {

zwt::testing_rings::HydrantSizes Sizes(const benchmark::State& state) {
  zwt::testing_rings::HydrantSizes sizes;
  sizes.risers = static_cast<std::int32_t>(state.range(1));
  sizes.storeys = static_cast<std::int32_t>(state.range(0)) / sizes.risers - 2;
  sizes.middleMain = state.range(2) != 0;
  return sizes;
}

void BM_BuildHydrantModel(benchmark::State& state) {
  const zwt::testing_rings::FreshDrawing fresh;
  const zwt::testing_rings::HydrantDrawing drawing = zwt::testing_rings::DrawHydrants(Sizes(state));
  std::int32_t nodes = 0;
  for (auto _ : state) {
    zwt::ZwtHydrantGraph model;
    if (!model.BuildHydrantModel(drawing.mainEnd)) state.SkipWithError("no model");
    nodes = model.nodes.GetLength();
  }
  state.counters["nodes"] = nodes;
}

void BM_WholeCalculation(benchmark::State& state) {
  const zwt::testing_rings::FreshDrawing fresh;
  const zwt::testing_rings::HydrantDrawing drawing = zwt::testing_rings::DrawHydrants(Sizes(state));
  zwt::HydrantCalcInput input;
  input.jetFlow = L"5.153";
  zwt::HydrantCalcResult result;
  for (auto _ : state) {
    zwt::ZwtHydrantGraph model;
    model.BuildHydrantModel(drawing.mainEnd);
    result = zwt::CalculateHydrantNetwork(input, model);
  }
  state.counters["passes"] = result.passes.passes;
  state.counters["outcome"] = static_cast<double>(result.passes.outcome);
}

void NodesAndRisers(benchmark::internal::Benchmark* sizes) {
  sizes->ArgNames({"nodes", "risers", "middle"})->Unit(benchmark::kMillisecond);
  for (const bool middle : {false, true}) {
    for (const auto& [nodes, risers] : {std::pair{20, 4}, {100, 10}, {400, 24}, {1000, 50}, {2000, 100}}) {
      sizes->Args({nodes, risers, middle ? 1 : 0});
    }
  }
}
BENCHMARK(BM_BuildHydrantModel)->Apply(NodesAndRisers);
BENCHMARK(BM_WholeCalculation)
    ->Args({400, 24, 0})
    ->ArgNames({"nodes", "risers", "middle"})
    ->Unit(benchmark::kMillisecond);

}  // namespace
