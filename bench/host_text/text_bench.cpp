// What reading and writing a drawing costs per number and per text.
#include <stdexcept>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

#include "host/text/code_page.h"
#include "host/text/number_text.h"

namespace {

zwt::CodePage Gbk() {
  auto page = zwt::CodePage::Open("ANSI_936");
  if (!page) throw std::runtime_error("no code page ANSI_936");
  return std::move(*page);
}

void CountBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void DecodeAscii(benchmark::State& state) {
  zwt::CodePage page = Gbk();
  const std::string bytes = "WATER_PIPE_LAYER";
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(page.Decode(bytes));
  CountBytes(state, bytes.size());
}
BENCHMARK(DecodeAscii);

void DecodeChinese(benchmark::State& state) {
  zwt::CodePage page = Gbk();
  const std::string bytes = "\xB8\xF8\xCB\xAE\xB9\xDC DN50 \xC1\xA2\xB9\xDC";
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(page.Decode(bytes));
  CountBytes(state, bytes.size());
}
BENCHMARK(DecodeChinese);

void EncodeChinese(benchmark::State& state) {
  zwt::CodePage page = Gbk();
  const std::wstring text = L"给水管 DN50 立管";
  for ([[maybe_unused]] auto _ : state) {
    std::string bytes;
    benchmark::DoNotOptimize(page.Encode(text, bytes));
    benchmark::DoNotOptimize(bytes.data());
  }
}
BENCHMARK(EncodeChinese);

void DecodeUtf8(benchmark::State& state) {
  const std::string bytes = zwt::Utf8FromWide(L"给水管 DN50 立管");
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(zwt::WideFromUtf8(bytes));
  CountBytes(state, bytes.size());
}
BENCHMARK(DecodeUtf8);

void ReadNumber(benchmark::State& state) {
  const CString text = L"12345.678901234";
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(_wtof(text));
}
BENCHMARK(ReadNumber);

void WriteShortestNumber(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(ZwtNum2Str(12345.678901234, -1));
}
BENCHMARK(WriteShortestNumber);

void WriteFixedNumber(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(ZwtNum2Str(12345.678901234, 3));
}
BENCHMARK(WriteFixedNumber);

}  // namespace
