// The window on the drawing: shows it, pans with the middle button or the held space bar, zooms with the
// wheel at the pointer (a double click of the middle button shows all), and gives the left button and the
// keys to the tool in use. The right button is Enter where a tool has taken the place of the standing one.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/drawing_overlay.h"
#include "desktop/drawing_scene.h"
#include "desktop/drawing_tool.h"
#include "desktop/picture_cache.h"
#include "desktop/view_transform.h"

namespace zwt {

class DrawingArea : public QWidget {
 public:
  /// The scene outlives the window.
  DrawingArea(DrawingScene& scene, QWidget* parent);

  const ViewTransform& View() const { return view_; }
  /// Shows a part of the drawing as large as fits, and all of it.
  void ZoomTo(const QRectF& part);
  void ZoomToExtents();
  /// Moves the drawing so far that the middle of a part is in the window; one that is there stays.
  void BringIntoView(const QRectF& part);

  /// What is painted over the drawing; null: nothing. Who sets it keeps it alive.
  void SetOverlay(const DrawingOverlay* overlay) { overlay_ = overlay; }

  /// Puts a tool to use in place of the standing one; null takes it away. Who puts it keeps it alive.
  void Use(DrawingTool* tool);
  /// The tool in use while no other one is; null: none.
  void SetStandingTool(DrawingTool* tool);
  DrawingTool* Tool() const { return tool_ != nullptr ? tool_ : standing_; }

  /// Called with what is typed while the drawing has the keys: it belongs on the command line.
  std::function<void(const QString&)> onTyped;
  /// Called for the delete key.
  std::function<void()> onDelete;
  /// Called with the place under the pointer.
  std::function<void(const QPointF&)> onPointed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  PointerPlace PlaceOf(const QPointF& pixel, Qt::KeyboardModifiers keys) const;
  void ViewChanged();
  void FollowCursor();

  DrawingScene& scene_;
  const DrawingOverlay* overlay_ = nullptr;
  ViewTransform view_;
  PictureCache picture_;
  bool pictureIsOld_ = true;
  DrawingTool* tool_ = nullptr;
  DrawingTool* standing_ = nullptr;
  QPointF pointer_;
  std::optional<QPointF> panFrom_;  // while the drawing is being moved: where the pointer was
  bool spaceHeld_ = false;
  bool spaceMoved_ = false;  // the drawing was moved with the space bar held
};

}  // namespace zwt
