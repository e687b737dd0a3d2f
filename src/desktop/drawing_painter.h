// Paints a display list: in the window, in bitmaps and on pages alike.
#pragma once

#include <QColor>
#include <QPainter>
#include <vector>

#include "desktop/view_transform.h"
#include "host/drawing/display_list.h"

namespace zwt {

/// How a picture is to look.
struct PictureLook {
  QColor ground;
  double lineWidth = 1;   // pixels
  bool smooth = true;     // edges are smoothed, which takes several times as long
  bool readable = false;  // texts stay texts however small they are
};

/// Paints what a list shows into the part of the device that view is about; the ground is painted by others.
/// isShown: by layer of the list, whether it is to be seen. What lies outside costs little, what is smaller
/// than a pixel is a dot.
void PaintDrawing(QPainter& painter, const DisplayList& list, const std::vector<bool>& isShown,
                  const ViewTransform& view, const PictureLook& look);

/// The layers that the file of the drawing shows.
std::vector<bool> ShownLayers(const DisplayList& list);

QRectF RectOf(const PlaneBox& box);

}  // namespace zwt
