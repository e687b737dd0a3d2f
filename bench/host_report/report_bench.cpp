// A report with a long table, from the template to the bytes of the document.
#include <string>

#include <benchmark/benchmark.h>

#include "host/platform/files.h"
#include "host/report/word_document.h"

namespace {

void BM_WriteReport(benchmark::State& state) {
  const std::string bytes = zwt::ReadWholeFile(ZWT_SOURCE_DIR "/share/zwtcal/Template/ZWT-GSJS-ZZ.doc");
  const int rows = static_cast<int>(state.range(0));
  constexpr int kColumns = 8;
  std::size_t size = 0;
  for (auto _ : state) {
    zwt::WordDocument report(bytes);
    const zwt::WordTable table = report.AddTableAtEnd(rows, kColumns);
    for (int row = 1; row <= rows; ++row) {
      for (int column = 1; column <= kColumns; ++column) {
        report.SetCell(table, row, column, column == 1 ? std::to_string(row) + "层" : "1.234");
      }
    }
    size = report.Bytes().size();
  }
  state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(BM_WriteReport)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
