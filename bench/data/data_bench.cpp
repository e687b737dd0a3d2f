// What a panel waits for when it opens a design table, and a calculation when it asks for a material.
#include <benchmark/benchmark.h>

#include "data/design_tables.h"
#include "data/materials.h"
#include "host/runtime/main_directory.h"

namespace {

void UseOwnFiles() {
  zwt::SetMainDirectory(zwt::WideFromUtf8(ZWT_SOURCE_DIR "/share/zwtcal/"));
}

void ReadDesignTables(benchmark::State& state) {
  UseOwnFiles();
  for ([[maybe_unused]] auto _ : state) {
    ZcDtDictionary dictionary(nullptr, nullptr);
    if (!zwt::ReadDesignTables(dictionary)) state.SkipWithError("the design tables cannot be read");
    benchmark::DoNotOptimize(dictionary.FindItem(L"TABLE02"));
  }
}
BENCHMARK(ReadDesignTables)->Unit(benchmark::kMicrosecond);

/// The three questions that one section asks.
void AskForMaterial(benchmark::State& state) {
  UseOwnFiles();
  const CString material = L"PP-R管(S4)";
  for ([[maybe_unused]] auto _ : state) {
    ZcList<int> diameters;
    ZcList<double> inner;
    ZcList<double> outer;
    double coefficient = 0;
    double oneInner = 0;
    double oneOuter = 0;
    const int status = ZwtGetMaterialParam(material, diameters, inner, outer) +
                       ZwtGetMaterialCoeff(material, coefficient) +
                       ZwtGetMaterialParam(material, 25.0, oneInner, oneOuter);
    if (status != 0) state.SkipWithError("the materials cannot be read");
    benchmark::DoNotOptimize(oneInner);
  }
}
BENCHMARK(AskForMaterial)->Unit(benchmark::kMicrosecond);

}  // namespace
