// JSON text as a plain tree, for input from outside. It is bounded in depth, size and number of values and
// reads in linear time, so that no text, however odd, costs more than its length; the members of an object
// keep their order, and a key that stands twice is refused.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/script_error.h"

namespace zwt {

struct JsonNode {
  /// A number without a fraction is whole, however it is written (2, 2.0, 2e0).
  enum class Kind : std::uint8_t { kNull, kBoolean, kWhole, kFraction, kText, kArray, kObject };

  Kind kind = Kind::kNull;
  bool boolean = false;
  std::int64_t whole = 0;
  std::string text = {};
  std::vector<JsonNode> items = {};                            // of an array
  std::vector<std::pair<std::string, JsonNode>> members = {};  // of an object, in their order

  /// Null if the object has no such member.
  const JsonNode* Find(std::string_view key) const;
};

inline constexpr int kMaxJsonDepth = 64;
inline constexpr std::size_t kMaxJsonBytes = std::size_t{32} << 20;
inline constexpr std::size_t kMaxJsonValues = 1'000'000;

/// Reads one JSON value. Throws ScriptError: with line and column where the text is not JSON, with the
/// pointer of the value where it exceeds a bound or repeats a key.
JsonNode ReadJson(std::string_view bytes);

}  // namespace zwt
