// What the pointer and the keys do in the drawing: one tool is in use at a time. The window pans and zooms on
// its own; a tool gets the rest.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>

#include "desktop/view_transform.h"

namespace zwt {

/// Where the pointer is.
struct PointerPlace {
  QPointF pixel;
  QPointF place;     // in the drawing
  double reach = 0;  // how far from it something still counts as hit, mm
  bool shift = false;
};

class DrawingTool {
 public:
  virtual ~DrawingTool() = default;

  /// The left button, and the pointer with or without it. Move is also called when the view changes under the
  /// pointer.
  virtual void Press(const PointerPlace& at) = 0;
  virtual void Move(const PointerPlace& at) = 0;
  virtual void Release(const PointerPlace& at) = 0;
  /// The pointer has left the drawing.
  virtual void Leave() {}
  /// Enter, the space bar, or the right button.
  virtual void Enter() = 0;
  virtual void Escape() = 0;
  /// A word that was typed on the command line; false where it means nothing here.
  virtual bool Take(const QString& /*word*/) { return false; }

  /// Paints what belongs over the drawing.
  virtual void Paint(QPainter& painter, const ViewTransform& view) const = 0;
};

}  // namespace zwt
