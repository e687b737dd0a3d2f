// A display list as an SVG document: dark on a light ground, texts as texts.
#pragma once

#include <string>

#include "host/drawing/display_list.h"

namespace zwt {

/// The document, UTF-8. It shows all that the list shows, with a margin around it; an empty list gives an
/// empty picture. Coordinates are millimetres from the upper left corner, rounded to a millionth of the
/// picture.
std::string SvgPicture(const DisplayList& list);

}  // namespace zwt
