// Font-dependent sizes.
#include "desktop/panel_metrics.h"

#include <algorithm>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

int Scaled(int units, int numerator, int denominator) {
  return (units * numerator + denominator / 2) / denominator;
}

}  // namespace

int PanelMetrics::Horizontal(int dialogUnits) const {
  static const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  return Scaled(dialogUnits, font_.horizontalAdvance(letters), 4 * 52);
}

int PanelMetrics::Vertical(int dialogUnits) const {
  return Scaled(dialogUnits, font_.ascent() + font_.descent(), 8);
}

int PanelMetrics::GridPixels(int atTwelvePixels) const {
  const int em = font_.horizontalAdvance(QStringLiteral("国"));
  return Scaled(atTwelvePixels, em, 12);
}

int PanelMetrics::FieldWidth(const ControlTemplate& control) const {
  constexpr int kUsualUnits = 56;
  const int frame = Horizontal(8);
  int width = Horizontal(control.width > 0 ? control.width : kUsualUnits);
  width = std::max(width, font_.horizontalAdvance(ToQt(control.text)) + frame);
  return width;
}

}  // namespace zwt
