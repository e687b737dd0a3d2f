// Reading and saving large drawings, beside what any program that touches their bytes must do: splitting them
// into lines, writing them out. The files lie on the disk's cache.
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

#include <benchmark/benchmark.h>

#include "host/drawing/connections.h"
#include "host/drawing/tags.h"
#include "host/dxf/dxf_file.h"
#include "host/dxf/new_drawing_file.h"
#include "host/platform/files.h"

namespace zwt {
namespace {

namespace fs = std::filesystem;

/// Lines with the extended data of a supply branch, about 300 bytes each.
std::string LinesFile(std::int64_t count) {
  TagWriter lines("\n");
  for (std::int64_t i = 0; i < count; ++i) {
    const double x = static_cast<double>(i % 1000) * 3000 + 0.125;
    const std::int64_t row = i / 1000;
    const double y = static_cast<double>(row) * 2900 + 0.5;
    lines.Text(0, "LINE").Handle(5, static_cast<std::uint64_t>(0x100 + i)).Text(330, "1F");
    lines.Text(100, "AcDbEntity").Text(8, "0").Text(100, "AcDbLine");
    lines.Point(10, x, y, 0).Point(11, x, y + 2900.25, 0).Text(1001, "ZWT_PIPE");
    for (const std::string_view text :
         {"WtSystem", "给水", "ELS_TYPE", "支管", "Material", "PP-R管(S5)", "Diameter", "32", "Equivalent",
          "4.5", "DoorNum", "2", "UserNum", "3.5"}) {
      lines.Text(1000, text);
    }
  }
  std::string bytes = NewDrawingFile();
  const std::string section = "ENTITIES\n";
  bytes.insert(bytes.find(section) + section.size(), lines.Bytes());
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
