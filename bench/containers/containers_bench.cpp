// What the containers promise: the cursor loop costs a step an element, an indexed access to an anchored list
// a bounded walk, an insertion into the ordered set a logarithm. "per_item" is the time of one element,
// access or key.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <numeric>
#include <random>
#include <set>
#include <vector>

#include <benchmark/benchmark.h>

#include "frame/containers/zc_dyn_array.h"
#include "frame/containers/zc_find_tree.h"
#include "frame/containers/zc_pointer_containers.h"
#include "frame/containers/zc_xlist.h"

namespace {

constexpr std::int32_t kMillion = 1'000'000;

void ReportPerItem(benchmark::State& state, std::int64_t itemsPerRound) {
  state.counters["per_item"] =
      benchmark::Counter(static_cast<double>(itemsPerRound),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class Container>
double SumByCursor(Container& container) {
  double sum = 0;
  for (container.MoveToFirst(); !container.IsOut(); container.MoveToNext()) sum += container.GetCurData();
  return sum;
}

template <class Container>
void CursorLoop(benchmark::State& state) {
  Container container;
  container.SetLength(kMillion, false);
  for (auto round : state) benchmark::DoNotOptimize(SumByCursor(container));
  ReportPerItem(state, kMillion);
}
BENCHMARK(CursorLoop<ZcDynArray<double>>)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorLoop<ZcList<double>>)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorLoop<ZcDList<double>>)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorLoop<ZcXList<double>>)->Unit(benchmark::kMillisecond);

/// The same through the root, where every step is a virtual call.
template <class Container>
void CursorLoopThroughTheRoot(benchmark::State& state) {
  const std::unique_ptr<ZcDynArrayBase<double>> container = std::make_unique<Container>();
  container->SetLength(kMillion, false);
  for (auto round : state) benchmark::DoNotOptimize(SumByCursor(*container));
  ReportPerItem(state, kMillion);
}
BENCHMARK(CursorLoopThroughTheRoot<ZcDynArray<double>>)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorLoopThroughTheRoot<ZcList<double>>)->Unit(benchmark::kMillisecond);
BENCHMARK(CursorLoopThroughTheRoot<ZcDList<double>>)->Unit(benchmark::kMillisecond);

template <class List>
void IndexedAccess(benchmark::State& state) {
  constexpr std::size_t kAccesses = 256;
  const auto length = static_cast<std::int32_t>(state.range(0));
  List list;
  list.SetLength(length, false);
  std::mt19937 random(1);
  std::vector<std::int32_t> indices(kAccesses);
  for (std::int32_t& index : indices)
    index = std::uniform_int_distribution<std::int32_t>(0, length - 1)(random);
  for (auto round : state) {
    for (const std::int32_t index : indices) benchmark::DoNotOptimize(list[index]);
  }
  ReportPerItem(state, static_cast<std::int64_t>(kAccesses));
}
BENCHMARK(IndexedAccess<ZcXList<double>>)->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(IndexedAccess<ZcDList<double>>)->RangeMultiplier(10)->Range(1000, 100000);

enum class Keys { kSorted, kReversed, kRandom };

template <Keys kOrder>
std::vector<int> MakeKeys(std::int64_t count) {
  std::vector<int> keys(static_cast<std::size_t>(count));
  std::iota(keys.begin(), keys.end(), 0);
  if (kOrder == Keys::kReversed) std::reverse(keys.begin(), keys.end());
  if (kOrder == Keys::kRandom) std::shuffle(keys.begin(), keys.end(), std::mt19937(1));
  return keys;
}

template <Keys kOrder>
void FindTreeInsertion(benchmark::State& state) {
  const std::vector<int> keys = MakeKeys<kOrder>(state.range(0));
  for (auto round : state) {
    ZcBFindTree<int> tree;
    for (const int key : keys) tree.Insert(key);
    benchmark::DoNotOptimize(tree.GetRoot());
  }
  ReportPerItem(state, state.range(0));
}
BENCHMARK(FindTreeInsertion<Keys::kSorted>)
    ->RangeMultiplier(10)
    ->Range(1000, kMillion)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FindTreeInsertion<Keys::kReversed>)
    ->RangeMultiplier(10)
    ->Range(1000, kMillion)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FindTreeInsertion<Keys::kRandom>)
    ->RangeMultiplier(10)
    ->Range(1000, kMillion)
    ->Unit(benchmark::kMillisecond);

/// The measure: a set that stores its balance.
template <Keys kOrder>
void StandardSetInsertion(benchmark::State& state) {
  const std::vector<int> keys = MakeKeys<kOrder>(state.range(0));
  for (auto round : state) {
    std::set<int> set;
    for (const int key : keys) set.insert(key);
    benchmark::DoNotOptimize(set.size());
  }
  ReportPerItem(state, state.range(0));
}
BENCHMARK(StandardSetInsertion<Keys::kSorted>)
    ->RangeMultiplier(10)
    ->Range(1000, kMillion)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(StandardSetInsertion<Keys::kRandom>)
    ->RangeMultiplier(10)
    ->Range(1000, kMillion)
    ->Unit(benchmark::kMillisecond);

/// Asking for keys that are there already: a membership test without change.
void FindTreeMembership(benchmark::State& state) {
  const std::vector<int> keys = MakeKeys<Keys::kRandom>(state.range(0));
  ZcBFindTree<int> tree;
  for (const int key : keys) tree.Insert(key);
  for (auto round : state) {
    for (const int key : keys) benchmark::DoNotOptimize(tree.Insert(key));
  }
  ReportPerItem(state, state.range(0));
}
BENCHMARK(FindTreeMembership)->RangeMultiplier(10)->Range(1000, kMillion)->Unit(benchmark::kMillisecond);

/// Insertion sort against the merging sort of the pointer array.
template <bool kMerging>
void SortPointers(benchmark::State& state) {
  const std::vector<int> keys = MakeKeys<Keys::kRandom>(state.range(0));
  for (auto round : state) {
    state.PauseTiming();
    ZcDynPArray<int> array(static_cast<std::int32_t>(keys.size()));
    for (const int key : keys) array.Append(std::make_unique<int>(key).release());
    state.ResumeTiming();
    kMerging ? array.SortEx(true) : array.Sort(true);
  }
  ReportPerItem(state, state.range(0));
}
BENCHMARK(SortPointers<false>)->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);
BENCHMARK(SortPointers<true>)->RangeMultiplier(10)->Range(100, 10000)->Unit(benchmark::kMillisecond);

}  // namespace
