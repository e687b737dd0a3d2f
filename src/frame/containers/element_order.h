// The order that every Sort of the container family keeps: when an element goes behind an earlier one, and
// the stable insertion sort of elements that lie side by side. Lists sort their nodes themselves (zc_list.h).
#pragma once

#include <cstdint>
#include <stdexcept>
#include <utility>

namespace zwt {

/// A comparison of two elements: only the sign of its result counts.
template <class T>
using CompareFunction = int (*)(const T&, const T&);

/// True if T can be ordered by `<`.
template <class T>
concept Ordered = requires(const T& left, const T& right) { static_cast<bool>(left < right); };

/// The rule "element goes behind earlier" under a comparison: it gives 0 or less for (earlier, element).
template <class T>
auto GoesBehind(CompareFunction<T> compare) {
  return [compare](const T& earlier, const T& element) { return compare(earlier, element) <= 0; };
}

/// The same rule under `<`, or against it. Sorting elements that have no `<` throws std::logic_error: a
/// virtual Sort has to exist for every element type, and doing nothing would pass for sorted.
template <class T>
auto GoesBehind(bool ascending) {
  return [ascending](const T& earlier, const T& element) {
    if constexpr (Ordered<T>) {
      return ascending ? !(element < earlier) : !(earlier < element);
    } else {
      (void)earlier, (void)element, (void)ascending;
      throw std::logic_error("Sort: the element type has no operator <");
      return true;
    }
  };
}

/// Stable insertion sort: each element goes right behind the last earlier one that `goesBehind` accepts, or
/// first. All comparisons of an element come before it moves, so that a comparison that throws loses nothing.
template <class T, class Rule>
void InsertionSort(T* elements, std::int32_t count, Rule goesBehind) {
  for (std::int32_t next = 1; next < count; ++next) {
    std::int32_t place = next;
    while (place > 0 && !goesBehind(elements[place - 1], elements[next])) --place;
    if (place == next) continue;
    T moving(std::move(elements[next]));
    for (std::int32_t slot = next; slot > place; --slot) elements[slot] = std::move(elements[slot - 1]);
    elements[place] = std::move(moving);
  }
}

/// Index from `low` to `high` of an element that is neither below nor above the value, by bisection of
/// ascending elements; -1 if there is none or the range is empty.
template <class At, class T, class Order>
std::int32_t Bisect(At elementAt, const T& value, std::int32_t low, std::int32_t high, Order below) {
  if (low > high || below(value, elementAt(low)) || below(elementAt(high), value)) return -1;
  while (low <= high) {
    const std::int32_t middle = low + (high - low) / 2;
    const T& element = elementAt(middle);
    if (below(value, element)) {
      high = middle - 1;
    } else if (below(element, value)) {
      low = middle + 1;
    } else {
      return middle;
    }
  }
  return -1;
}

}  // namespace zwt
