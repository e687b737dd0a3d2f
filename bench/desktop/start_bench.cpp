// From starting the process to the main window on the screen. Without a screen at hand the window opens in
// memory; set DISPLAY and QT_QPA_PLATFORM=xcb to measure a real one.
#include <cstdlib>

#include <benchmark/benchmark.h>

namespace {

void StartToWindow(benchmark::State& state) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  for ([[maybe_unused]] auto _ : state) {
    if (std::system(ZWT_PROGRAM " --check 2>/dev/null") != 0) state.SkipWithError("the program failed");
  }
}
BENCHMARK(StartToWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
