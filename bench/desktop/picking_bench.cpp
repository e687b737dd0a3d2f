// Picking in a drawing of 100,000 entities: one pointer movement, one rectangle over everything, and making
// the index anew after a change.
#include <cmath>

#include <benchmark/benchmark.h>

#include "desktop/drawing_picker.h"

namespace {

constexpr int kRows = 316;
constexpr double kSpacing = 3000;  // mm

/// A square field of pipes, upright and level by turns.
void FillField(zwt::Drawing& drawing) {
  drawing.BeginStep();
  for (int i = 0; i < kRows * kRows; ++i) {
    const double x = (i % kRows) * kSpacing;
    const double y = (i / kRows) * kSpacing;
    const bool upright = i % 2 == 0;
    drawing.AddPipe({x, y, 0}, {x + (upright ? 0 : kSpacing), y + (upright ? kSpacing : 0), 0},
                    {{L"WtSystem", L"给水"}, {L"ELS_TYPE", upright ? L"立管" : L"支管"}});
  }
  drawing.EndStep();
}

const zwt::Drawing& Field() {
  static zwt::Drawing drawing;
  static const bool filled = (FillField(drawing), true);
  static_cast<void>(filled);
  return drawing;
}

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
    const double side = kRows * kSpacing;
    // Zoomed out to the whole field six pixels reach over dozens of pipes.
    benchmark::DoNotOptimize(
        picker.Nearest({std::fmod(at, side), std::fmod(at * 3, side)}, side / 150, IsRiser));
  }
}
BENCHMARK(PickUnderThePointer)->Unit(benchmark::kMicrosecond);

void CrossingOverEverything(benchmark::State& state) {
  const zwt::DrawingPicker picker(Field());
  const double side = kRows * kSpacing;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(picker.Touching(QRectF(-1, -1, side + 2, side + 2), IsRiser));
  }
}
BENCHMARK(CrossingOverEverything)->Unit(benchmark::kMillisecond);

void IndexAfterAChange(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(zwt::DrawingPicker(Field()));
}
BENCHMARK(IndexAfterAChange)->Unit(benchmark::kMillisecond);

}  // namespace
