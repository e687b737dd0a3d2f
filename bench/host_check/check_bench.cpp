// The checks of large drawings: risers with branches, a wide hydrant network, pipes across the sheet. Each
// run starts with the drawing alone: finding the connections is part of it.
#include <benchmark/benchmark.h>

#include "host/check/drawing_check.h"
#include "host/drawing/drawing.h"

namespace zwt {
namespace {

/// Supply risers of 30 storeys, a section and a branch on each.
std::unique_ptr<Drawing> Risers(std::int64_t pipes) {
  auto drawing = std::make_unique<Drawing>();
  for (std::int64_t i = 0; i < pipes / 2; ++i) {
    const std::int64_t riser = i / 30;
    const auto x = static_cast<double>(riser) * 3000;
    const auto y = static_cast<double>(i % 30) * 2900;
    drawing->AddPipe({x, y, 0}, {x, y + 2900, 0},
                     {{L"WtSystem", L"给水"}, {L"ELS_TYPE", i % 30 == 0 ? L"入口立管" : L"立管"}});
    drawing->AddPipe({x, y + 1000, 0}, {x + 900, y + 1000, 0},
                     {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"支管"}, {L"Equivalent", L"4"}});
  }
  return drawing;
}

/// Hydrant risers of 30 storeys between two mains.
std::unique_ptr<Drawing> HydrantRisers(std::int64_t pipes) {
  auto drawing = std::make_unique<Drawing>();
  const auto add = [&](const AcGePoint3d& start, const AcGePoint3d& end, const wchar_t* role, bool isTop) {
    FieldList fields = {{L"WtSystem", L"消防"}, {L"ELS_TYPE", role}};
    if (isTop) fields.insert(fields.end(), {{L"IsTopHydrant", L"TRUE"}, {L"LayerNum", L"30"}});
    drawing->AddPipe(start, end, fields);
  };
  add({-5000, 0, 0}, {0, 0, 0}, L"干管", false);
  for (std::int64_t riser = 0; riser < pipes / 63; ++riser) {
    const auto x = static_cast<double>(riser) * 8000;
    for (int storey = 0; storey <= 30; ++storey) {
      const double y = storey * 3000.0;
      add({x, y, 0}, {x, y + 3000, 0}, L"立管", false);
      if (storey > 0) add({x, y, 0}, {x + 600, y, 0}, L"支管", storey == 30);
    }
    if (riser == 0) continue;
    add({x - 8000, 0, 0}, {x, 0, 0}, L"干管", false);
    add({x - 8000, 93000, 0}, {x, 93000, 0}, L"干管", false);
  }
  return drawing;
}

/// A plan in space: pipes along both axes at many heights, most of them with free ends.
std::unique_ptr<Drawing> Sheet(std::int64_t pipes) {
  auto drawing = std::make_unique<Drawing>();
  for (std::int64_t i = 0; i < pipes; ++i) {
    const auto x = static_cast<double>(i * 7919 % 400000);
    const auto y = static_cast<double>(i * 104729 % 400000);
    const auto z = static_cast<double>(i % 20) * 3000;
    const double length = 500 + static_cast<double>(i * 31 % 4000);
    const AcGePoint3d end = i % 2 == 0 ? AcGePoint3d{x + length, y, z} : AcGePoint3d{x, y + length, z};
    drawing->AddPipe({x, y, z}, end, {{L"WtSystem", L"给水"}});
  }
  return drawing;
}

void Check(benchmark::State& state, std::unique_ptr<Drawing> (*make)(std::int64_t)) {
  const std::unique_ptr<Drawing> drawing = make(state.range(0));
  CheckSettings settings;
  settings.guns = 4;
  for (auto _ : state) {
    state.PauseTiming();
    // A pipe that comes and goes leaves the connections to be found anew.
    drawing->Erase(drawing->IndexOf(drawing->AddPipe({-1e6, 0, 0}, {-1e6, 900, 0})));
    state.ResumeTiming();
    benchmark::DoNotOptimize(CheckDrawing(*drawing, settings));
  }
  state.SetComplexityN(state.range(0));
}

BENCHMARK_CAPTURE(Check, SupplyRisers, Risers)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Check, HydrantRisers, HydrantRisers)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Check, Sheet, Sheet)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zwt
