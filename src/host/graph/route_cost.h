// Exact costs of routes: the length, and below it one binary digit per chain, so that the greater cost is the
// route that comes later. Sums and differences are those of one long whole number.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zwt {

/// A row of words, the most significant first.
using RouteCost = std::span<std::uint64_t>;
using ConstRouteCost = std::span<const std::uint64_t>;

/// Rows of costs of equal width, one after the other, all zero at first.
class RouteCosts {
 public:
  RouteCosts(std::size_t rows, std::size_t width) : width_(width), words_(rows * width, 0) {}

  /// Words for a length and one digit per chain, with room for the carry of a few sums.
  static std::size_t WidthFor(std::size_t chains) { return 1 + (chains + 8) / 64 + 1; }

  RouteCost operator[](std::size_t row) { return std::span(words_).subspan(row * width_, width_); }
  ConstRouteCost operator[](std::size_t row) const { return std::span(words_).subspan(row * width_, width_); }

 private:
  std::size_t width_;
  std::vector<std::uint64_t> words_;
};

/// target = source.
inline void Assign(RouteCost target, ConstRouteCost source) {
  std::copy(source.begin(), source.end(), target.begin());
}

/// target += source.
inline void Add(RouteCost target, ConstRouteCost source) {
  std::uint64_t carry = 0;
  for (std::size_t word = target.size(); word-- > 0;) {
    const std::uint64_t sum = target[word] + source[word];
    const std::uint64_t total = sum + carry;
    carry = (sum < source[word] || total < carry) ? 1U : 0U;
    target[word] = total;
  }
}

/// target -= source, which must not be greater than target.
inline void Subtract(RouteCost target, ConstRouteCost source) {
  std::uint64_t borrow = 0;
  for (std::size_t word = target.size(); word-- > 0;) {
    const std::uint64_t difference = target[word] - source[word];
    const std::uint64_t total = difference - borrow;
    borrow = (target[word] < source[word] || difference < borrow) ? 1U : 0U;
    target[word] = total;
  }
}

inline bool IsLess(ConstRouteCost first, ConstRouteCost second) {
  return std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end());
}

/// Adds the cost of one chain: its length and its digit.
inline void AddChain(RouteCost target, std::int64_t length, std::size_t chain) {
  std::size_t word = target.size() - 1 - chain / 64;
  const std::uint64_t digit = std::uint64_t{1} << (chain % 64);
  target[word] += digit;
  if (target[word] < digit) {
    while (++target[--word] == 0) {
    }
  }
  target[0] += static_cast<std::uint64_t>(length);
}

}  // namespace zwt
