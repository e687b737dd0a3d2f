#include "host/drawing/display_colors.h"

#include <algorithm>
#include <array>

#include "host/drawing/display_list.h"

namespace zwt {
namespace {

constexpr std::array<std::int32_t, 10> kFirstColors = {kForegroundColor, 0xFF0000, 0xFFFF00, 0x00FF00,
                                                       0x00FFFF,         0x0000FF, 0xFF00FF, kForegroundColor,
                                                       0x808080,         0xC0C0C0};
constexpr std::array<std::int32_t, 6> kGreys = {0x333333, 0x505050, 0x696969, 0x828282, 0xBEBEBE, 0xFFFFFF};

/// The colour circle in 24 steps, ten numbers each: five levels of brightness, of each the full colour and
/// one half way to grey.
std::int32_t ColorOfCircle(std::int32_t index) {
  constexpr std::array<std::int32_t, 5> kLevels = {255, 165, 127, 76, 38};
  const std::int32_t step = (index - 10) / 10;
  const std::int32_t level = kLevels[static_cast<std::size_t>(index % 10 / 2)];
  std::int32_t color = 0;
  for (const std::int32_t shift : {0, 8, 16}) {  // red has its peak at step 0, green at 8, blue at 16
    const std::int32_t away = (step - shift + 24) % 24;
    const std::int32_t quarters = std::clamp(8 - std::min(away, 24 - away), 0, 4);
    std::int32_t part = level * quarters / 4;
    if (index % 2 == 1) part = (level + part) / 2;
    color = color << 8 | part;
  }
  return color;
}

}  // namespace

std::int32_t ColorOfIndex(std::int64_t index) {
  if (index < 0 || index > 255) return kForegroundColor;
  if (index < 10) return kFirstColors[static_cast<std::size_t>(index)];
  if (index >= 250) return kGreys[static_cast<std::size_t>(index - 250)];
  return ColorOfCircle(static_cast<std::int32_t>(index));
}

std::int32_t ColorOnGround(std::int32_t color, bool groundIsLight) {
  const std::int32_t ground = groundIsLight ? 0xFFFFFF : 0x000000;
  return color == kForegroundColor || color == ground ? 0xFFFFFF - ground : color;
}

}  // namespace zwt
