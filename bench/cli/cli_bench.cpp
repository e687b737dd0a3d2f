// Time of the whole program, from the start of its process to its exit, from a warm disk.
#include <benchmark/benchmark.h>

#include "support/child_process.h"

namespace {

void RunProgram(benchmark::State& state, const std::vector<std::string>& arguments) {
  for (auto _ : state) {
    const zwt::test::ChildResult result = zwt::test::RunChild(ZWT_PROGRAM, arguments);
    if (result.status != 0) state.SkipWithError(result.errors.c_str());
    benchmark::DoNotOptimize(result.output);
  }
}

/// The smallest run: no table is read.
void BM_ListCommands(benchmark::State& state) {
  RunProgram(state, {"commands"});
}
BENCHMARK(BM_ListCommands)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_CalculateMaximumDay(benchmark::State& state) {
  RunProgram(state, {"calc", "ZWTGRGS", "quota=200", "users=100", "hourlyFactor=2.5", "hours=24"});
}
BENCHMARK(BM_CalculateMaximumDay)->UseRealTime()->Unit(benchmark::kMillisecond);

/// With the quota picked from the tables.
void BM_PlayMaximumDayScript(benchmark::State& state) {
  RunProgram(state, {"run", ZWT_SOURCE_DIR "/tests/scenarios/maximum-day-dwellings.json"});
}
BENCHMARK(BM_PlayMaximumDayScript)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
