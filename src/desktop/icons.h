// Icons drawn from lines on a square of 24, sharp at every size and scale. A drawing is a piece of SVG in
// which lines are stroked in the icon's colour; class "full" is filled with it, class "paper" with the
// background.
#pragma once

#include <QColor>
#include <QIcon>

namespace zwt {

/// An icon from such a drawing; disabled, it is grey.
QIcon MakeIcon(const char* drawing, QColor colour);

/// The program's own icon.
QIcon ProgramIcon();

}  // namespace zwt
