// An empty drawing.
#include "desktop/drawing_area.h"

#include <QPainter>

namespace zwt {

DrawingArea::DrawingArea(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(0x21, 0x28, 0x30));
}

}  // namespace zwt
