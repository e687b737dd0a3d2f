// A drawing of 100,000 pipes to measure with.
#pragma once

#include "host/drawing/drawing.h"

namespace pipe_field {

constexpr int kRows = 316;
constexpr double kSpacing = 3000;  // mm
constexpr double kSide = kRows * kSpacing;

/// Fills a square field with pipes, upright and level by turns.
inline void Fill(zwt::Drawing& drawing) {
  drawing.BeginStep();
  for (int i = 0; i < kRows * kRows; ++i) {
    const int row = i / kRows;
    const double x = (i % kRows) * kSpacing;
    const double y = row * kSpacing;
    const bool upright = i % 2 == 0;
    drawing.AddPipe({x, y, 0}, {x + (upright ? 0 : kSpacing), y + (upright ? kSpacing : 0), 0},
                    {{L"WtSystem", L"给水"}, {L"ELS_TYPE", upright ? L"立管" : L"支管"}});
  }
  drawing.EndStep();
}

inline const zwt::Drawing& Field() {
  static zwt::Drawing drawing;
  static const bool filled = (Fill(drawing), true);
  static_cast<void>(filled);
  return drawing;
}

}  // namespace pipe_field
