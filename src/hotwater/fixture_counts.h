// The fixture counts that the hot water fixture panel remembers between its openings, by table row.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace zwt {

/// 32 counts; rows beyond them are not remembered.
class FixtureCounts {
 public:
  static constexpr std::int32_t kRows = 32;

  /// The count of a row from 0; 0 for a row that is not remembered.
  std::int32_t Get(std::int32_t row) const { return IsRemembered(row) ? counts_[Index(row)] : 0; }

  void Set(std::int32_t row, std::int32_t count) {
    if (IsRemembered(row)) counts_[Index(row)] = count;
  }

  /// Forgets the counts of the first eight rows; the others come back at the next opening.
  void Clear() { std::fill_n(counts_.begin(), kClearedRows, 0); }

 private:
  static constexpr std::size_t kClearedRows = 8;

  static bool IsRemembered(std::int32_t row) { return row >= 0 && row < kRows; }
  static std::size_t Index(std::int32_t row) { return static_cast<std::size_t>(row); }

  std::array<std::int32_t, kRows> counts_{};
};

/// The one memory of the process, kept as long as the module is loaded.
inline FixtureCounts& RememberedFixtureCounts() {
  static FixtureCounts counts;
  return counts;
}

}  // namespace zwt
