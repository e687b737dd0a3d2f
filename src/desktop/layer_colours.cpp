#include "desktop/layer_colours.h"

#include "host/drawing/display_colors.h"

namespace zwt {

QColor ColourOfLayer(const Layer& layer) {
  const std::int32_t colour = layer.trueColor >= 0 ? layer.trueColor : ColorOfIndex(layer.color);
  return QColor::fromRgb(static_cast<QRgb>(ColorOnGround(colour, false)));
}

}  // namespace zwt
