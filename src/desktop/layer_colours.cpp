// The colour index: nine named colours, 24 hues in ten shades each, six greys.
#include "desktop/layer_colours.h"

namespace zwt {

namespace {

constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr int kLast = 255;
constexpr int kShades = 10;
constexpr int kDegreesOfHue = 15;
constexpr int kHalfSaturation = 127;

constexpr QRgb kNamed[] = {0xffffffff, 0xffff0000, 0xffffff00, 0xff00ff00, 0xff00ffff,
                           0xff0000ff, 0xffff00ff, 0xffffffff, 0xff808080, 0xffc0c0c0};
constexpr int kBrightness[] = {255, 165, 127, 76, 38};
constexpr int kGreys[] = {51, 91, 132, 173, 214, 255};

QColor ColourOfIndex(int index) {
  if (index < 0 || index > kLast) return Qt::white;
  if (index < kFirstHue) return QColor::fromRgb(kNamed[index]);
  if (index >= kFirstGrey) {
    const int grey = kGreys[index - kFirstGrey];
    return {grey, grey, grey};
  }
  const int shade = index % kShades;
  const int hue = (index / kShades - 1) * kDegreesOfHue;
  return QColor::fromHsv(hue, shade % 2 == 0 ? kLast : kHalfSaturation, kBrightness[shade / 2]);
}

}  // namespace

QColor ColourOfLayer(const Layer& layer) {
  if (layer.trueColor >= 0) return QColor::fromRgb(static_cast<QRgb>(layer.trueColor));
  return ColourOfIndex(layer.color);
}

}  // namespace zwt
