// The roads that work on drawings, from the open file to the saved one, inside this process: the supply by
// risers, a drainage stack, a hydrant network. What a new process costs on top is measured beside.
#include <sstream>

#include <benchmark/benchmark.h>

#include "cli/program.h"
#include "support/child_process.h"

namespace {

using Arguments = std::vector<std::string>;

std::string Run(const Arguments& arguments) {
  std::istringstream input;
  std::ostringstream output;
  std::ostringstream errors;
  if (zwt::RunProgram(arguments, {input, output, errors}) != 0) throw std::runtime_error(errors.str());
  return output.str();
}

/// A drawing made by `zwtcal new` with a file beside it for what is saved.
struct Road {
  explicit Road(Arguments kind) {
    kind.insert(kind.begin(), "new");
    kind.insert(kind.end(), {"-o", drawing});
    const std::string told = Run(kind);
    entry = told.substr(0, told.size() - 1);
    entry = entry.substr(entry.rfind(' ') + 1);
  }

  zwt::test::TemporaryFolder folder;
  std::string drawing = (folder.Path() / "in.dxf").string();
  std::string saved = (folder.Path() / "out.dxf").string();
  std::string entry;  // the handle that `new hydrants` names last
};

void Supply(benchmark::State& state) {
  const Road road(
      {"supply", "--risers", std::to_string(state.range(0)), "--storeys", std::to_string(state.range(1))});
  for (auto _ : state) {
    benchmark::DoNotOptimize(Run({"calc", "ZWTGSJS", road.drawing, "--annotate", "--save", road.saved}));
  }
  state.counters["ms_per_riser"] =
      benchmark::Counter(1e-3 * static_cast<double>(state.iterations() * state.range(0)),
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(Supply)
    ->ArgNames({"risers", "storeys"})
    ->Args({1, 30})
    ->Args({10, 30})
    ->Args({100, 30})
    ->Args({1000, 30})
    ->Args({40, 60})
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

void Drainage(benchmark::State& state) {
  const Road road({"drainage", "--storeys", std::to_string(state.range(0))});
  for (auto _ : state) {
    benchmark::DoNotOptimize(Run({"calc", "ZWTPSJS", road.drawing, "--annotate", "--save", road.saved}));
  }
}
BENCHMARK(Drainage)->ArgName("storeys")->Arg(100)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

void Hydrants(benchmark::State& state) {
  const Road road(
      {"hydrants", "--risers", std::to_string(state.range(0)), "--storeys", std::to_string(state.range(1))});
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        Run({"calc", "ZWTXFJS", road.drawing, "--select", road.entry, "--annotate", "--save", road.saved}));
  }
}
BENCHMARK(Hydrants)
    ->ArgNames({"risers", "storeys"})
    ->Args({6, 18})
    ->Args({24, 15})
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

/// What explaining every step adds, and that nothing is added where it is not asked for.
void ExplainedSupply(benchmark::State& state) {
  const Road road({"supply", "--risers", "40", "--storeys", "60"});
  Arguments arguments = {"calc", "ZWTGSJS", road.drawing};
  if (state.range(0) != 0) arguments.emplace_back("--explain");
  for (auto _ : state) benchmark::DoNotOptimize(Run(arguments));
}
BENCHMARK(ExplainedSupply)
    ->ArgName("explain")
    ->Arg(0)
    ->Arg(1)
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
