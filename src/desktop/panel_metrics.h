// Sizes of a panel's parts in the pixels of the font in use, so that nothing is cut off whatever the font,
// the screen or its scale.
#pragma once

#include <QFontMetrics>

#include "host/dialog/panel_template.h"

namespace zwt {

class PanelMetrics {
 public:
  explicit PanelMetrics(const QFont& font) : font_(font) {}

  /// Dialog units: a quarter of the mean width and an eighth of the height of the font's characters.
  int Horizontal(int dialogUnits) const;
  int Vertical(int dialogUnits) const;

  /// Widths and heights of grids, which panels give for a font of 12 pixels.
  int GridPixels(int atTwelvePixels) const;

  /// Width of an edit or combo box: the wish of its template, else the usual one, but at least wide enough
  /// for the text that it opens with.
  int FieldWidth(const ControlTemplate& control) const;

  int LineHeight() const { return font_.height(); }
  int TextWidth(const QString& text) const { return font_.horizontalAdvance(text); }
  const QFontMetrics& Font() const { return font_; }

 private:
  QFontMetrics font_;
};

}  // namespace zwt
