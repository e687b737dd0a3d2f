// Colours of layers as the drawing's index means them.
#pragma once

#include <QColor>

#include "host/drawing/drawing_data.h"

namespace zwt {

/// The colour in which things of a layer are shown on a dark ground.
QColor ColourOfLayer(const Layer& layer);

}  // namespace zwt
