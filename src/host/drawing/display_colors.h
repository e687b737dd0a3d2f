// The numbered colours of drawings.
#pragma once

#include <cstdint>

namespace zwt {

/// Colour 0xRRGGBB of a number from 1 to 255, as the usual programs show it; 7, and numbers that are none,
/// are kForegroundColor.
std::int32_t ColorOfIndex(std::int64_t index);

/// What a colour of a display list is on a ground: kForegroundColor, and white on a light ground or black on
/// a dark one, take the foreground's.
std::int32_t ColorOnGround(std::int32_t color, bool groundIsLight);

}  // namespace zwt
