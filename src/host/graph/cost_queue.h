// Rows of a cost table in the order of their costs, for searches that lower costs as they go.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "host/graph/route_cost.h"

namespace zwt {

/// A heap of row numbers that knows where each row stands, so that a row can move up when its cost falls.
class CostQueue {
 public:
  /// `costs` is read whenever rows are compared and must stay.
  CostQueue(const RouteCosts& costs, std::size_t rows) : costs_(costs), place_(rows, kOutside) {}

  bool IsEmpty() const { return heap_.empty(); }

  /// Takes a row in, or moves it after its cost has fallen.
  void PutOrRaise(std::int32_t row) {
    std::size_t& place = place_[static_cast<std::size_t>(row)];
    if (place == kOutside) {
      place = heap_.size();
      heap_.push_back(row);
    }
    Raise(place);
  }

  /// Takes the row with the least cost out.
  std::int32_t TakeLeast() {
    const std::int32_t least = heap_.front();
    Swap(0, heap_.size() - 1);
    heap_.pop_back();
    place_[static_cast<std::size_t>(least)] = kOutside;
    Sink(0);
    return least;
  }

  void Clear() {
    for (const std::int32_t row : heap_) place_[static_cast<std::size_t>(row)] = kOutside;
    heap_.clear();
  }

 private:
  static constexpr std::size_t kOutside = static_cast<std::size_t>(-1);

  bool Less(std::size_t first, std::size_t second) const {
    return IsLess(costs_[static_cast<std::size_t>(heap_[first])],
                  costs_[static_cast<std::size_t>(heap_[second])]);
  }

  void Swap(std::size_t first, std::size_t second) {
    std::swap(heap_[first], heap_[second]);
    place_[static_cast<std::size_t>(heap_[first])] = first;
    place_[static_cast<std::size_t>(heap_[second])] = second;
  }

  void Raise(std::size_t place) {
    while (place > 0 && Less(place, (place - 1) / 2)) {
      Swap(place, (place - 1) / 2);
      place = (place - 1) / 2;
    }
  }

  void Sink(std::size_t place) {
    while (true) {
      std::size_t least = place;
      for (std::size_t child = 2 * place + 1; child <= 2 * place + 2 && child < heap_.size(); ++child) {
        if (Less(child, least)) least = child;
      }
      if (least == place) return;
      Swap(place, least);
      place = least;
    }
  }

  const RouteCosts& costs_;
  std::vector<std::size_t> place_;
  std::vector<std::int32_t> heap_;
};

}  // namespace zwt
