// Doubles for the laws of number and text: every bit pattern alike, and figures of the size that a designer
// writes.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>

namespace zwt::test {

/// A finite double of any sign and exponent.
inline double AnyDouble(std::mt19937_64& random) {
  for (;;) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) return value;
  }
}

/// A figure with up to six decimals between minus and plus ten million.
inline double EverydayDouble(std::mt19937_64& random) {
  const auto digits = static_cast<double>(static_cast<std::int64_t>(random() % 20'000'000) - 10'000'000);
  return digits / std::pow(10.0, static_cast<double>(random() % 7));
}

}  // namespace zwt::test
