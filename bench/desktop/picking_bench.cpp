// Picking in a drawing of 100,000 entities: one pointer movement, one rectangle over everything, and making
// the index anew after a change.
#include <cmath>

#include <benchmark/benchmark.h>

#include "desktop/drawing_picker.h"
#include "pipe_field.h"

namespace {

using pipe_field::Field;
using pipe_field::kSide;

bool IsRiser(std::int32_t entity) {
  CString role;
  Field().GetField(entity, L"ELS_TYPE", role);
  return role == L"立管";
}

void PickUnderThePointer(benchmark::State& state) {
  const zwt::DrawingPicker picker(Field());
  double at = 0;
  for ([[maybe_unused]] auto _ : state) {
    at += 7919;
    // Zoomed out to the whole field six pixels reach over dozens of pipes.
    benchmark::DoNotOptimize(
        picker.Nearest({std::fmod(at, kSide), std::fmod(at * 3, kSide)}, kSide / 150, IsRiser));
  }
}
BENCHMARK(PickUnderThePointer)->Unit(benchmark::kMicrosecond);

void CrossingOverEverything(benchmark::State& state) {
  const zwt::DrawingPicker picker(Field());
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(picker.Touching(QRectF(-1, -1, kSide + 2, kSide + 2), IsRiser));
  }
}
BENCHMARK(CrossingOverEverything)->Unit(benchmark::kMillisecond);

void IndexAfterAChange(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(zwt::DrawingPicker(Field()));
}
BENCHMARK(IndexAfterAChange)->Unit(benchmark::kMillisecond);

}  // namespace
