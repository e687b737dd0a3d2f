// Reading and saving large drawings, beside what any program that touches their bytes must do: splitting them
// into lines, writing them out. The files lie on the disk's cache.
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

#include <benchmark/benchmark.h>

#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"
#include "host/dxf/new_drawing_file.h"
#include "host/platform/files.h"

namespace zwt {
namespace {

namespace fs = std::filesystem;

/// Lines with the extended data of a supply branch, about 300 bytes each.
std::string LinesFile(std::int64_t count) {
  std::string lines;
  lines.reserve(static_cast<std::size_t>(count) * 320);
  for (std::int64_t i = 0; i < count; ++i) {
    const std::string x = std::to_string(i % 1000 * 3000) + ".125";
    const std::string y = std::to_string(i / 1000 * 2900) + ".5";
    lines +=
        "  0\nLINE\n  5\n" + HandleText(static_cast<std::uint64_t>(0x100 + i)) +
        "\n330\n1F\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n" + x + "\n 20\n" + y + "\n 30\n0.0\n 11\n" +
        x + "\n 21\n" + y +
        "25\n 31\n0.0\n1001\nZWT_PIPE\n1000\nWtSystem\n1000\n给水\n1000\nELS_TYPE\n1000\n" +
        "支管\n1000\nMaterial\n1000\nPP-R管(S5)\n1000\nDiameter\n1000\n32\n1000\nEquivalent\n1000\n4.5\n" +
        "1000\nDoorNum\n1000\n2\n1000\nUserNum\n1000\n3.5\n";
  }
  std::string bytes = NewDrawingFile();
  const std::string section = "ENTITIES\n";
  bytes.insert(bytes.find(section) + section.size(), lines);
  return bytes;
}

/// A file of so many lines, made on first use and gone with the program.
class Files {
 public:
  ~Files() {
    std::error_code ignored;
    for (const auto& [count, path] : paths_) fs::remove(path, ignored);
  }
  const fs::path& Of(std::int64_t count) {
    fs::path& path = paths_[count];
    if (!path.empty()) return path;
    path = fs::temp_directory_path() / ("zwt_bench_" + std::to_string(count) + ".dxf");
    WriteFileAtomically(path, LinesFile(count));
    return path;
  }

 private:
  std::map<std::int64_t, fs::path> paths_;
};

Files& TheFiles() {
  static Files files;
  return files;
}

/// The most memory that the process had, MiB; -1 where the system does not tell.
double PeakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    double kilobytes = -1;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return -1;
}

void SetBytes(benchmark::State& state, const fs::path& path) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(fs::file_size(path)));
}

/// What a reader cannot do without: every line end of the bytes in memory.
void SplitIntoLines(benchmark::State& state) {
  const fs::path& path = TheFiles().Of(state.range(0));
  const std::string bytes = ReadWholeFile(path);
  for (auto _ : state) {
    std::size_t sum = 0;
    const char* end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end;) {
      const auto* next = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
      if (next == nullptr) break;
      sum += static_cast<std::size_t>(next - at);
      at = next + 1;
    }
    benchmark::DoNotOptimize(sum);
  }
  SetBytes(state, path);
}
BENCHMARK(SplitIntoLines)->Arg(100000)->Unit(benchmark::kMillisecond);

void ReadBytes(benchmark::State& state) {
  const fs::path& path = TheFiles().Of(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(ReadWholeFile(path));
  SetBytes(state, path);
}
BENCHMARK(ReadBytes)->Arg(100000)->Unit(benchmark::kMillisecond);

/// From the file to the model and away again.
void Read(benchmark::State& state) {
  const fs::path& path = TheFiles().Of(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(ReadDrawing(path));
  SetBytes(state, path);
  state.counters["MiB"] = PeakMemory();
}
BENCHMARK(Read)->Arg(100000)->Unit(benchmark::kMillisecond);

void WritePlainly(benchmark::State& state) {
  const fs::path& path = TheFiles().Of(state.range(0));
  const std::string bytes = ReadWholeFile(path);
  const fs::path target = path.string() + ".out";
  for (auto _ : state) WriteFileAtomically(target, bytes);
  fs::remove(target);
  SetBytes(state, path);
}
BENCHMARK(WritePlainly)->Arg(100000)->Unit(benchmark::kMillisecond);

/// changed: of so many pipes every one has got another diameter.
void Save(benchmark::State& state) {
  const fs::path& path = TheFiles().Of(state.range(0));
  const std::unique_ptr<Drawing> drawing = ReadDrawing(path);
  for (std::int64_t i = 0; i < state.range(1); ++i) drawing->SetDiameter(static_cast<std::int32_t>(i), 40);
  const fs::path target = path.string() + ".out";
  for (auto _ : state) SaveDrawing(*drawing, target);
  fs::remove(target);
  SetBytes(state, path);
}
BENCHMARK(Save)
    ->ArgNames({"lines", "changed"})
    ->Args({100000, 0})
    ->Args({100000, 1000})
    ->Args({100000, 100000})
    ->Unit(benchmark::kMillisecond);

/// All pipes of the drawing and what each connects to.
void Connect(benchmark::State& state) {
  const std::unique_ptr<Drawing> drawing = ReadDrawing(TheFiles().Of(state.range(0)));
  for (auto _ : state) {
    const Connections connections(*drawing);
    std::size_t count = 0;
    for (const std::int32_t pipe : drawing->Pipes()) count += connections.ConnectedTo(pipe).size();
    benchmark::DoNotOptimize(count);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(Connect)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond)->Complexity();

// The large one comes last: the peak of memory is then its own.
BENCHMARK(Read)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zwt
