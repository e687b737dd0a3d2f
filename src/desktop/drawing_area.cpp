// Pan, zoom and who gets the pointer.
#include "desktop/drawing_area.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace zwt {

namespace {

const QColor kGround(0x21, 0x28, 0x30);
/// Pixels around the pointer that count as hit.
constexpr double kReach = 6;
/// Angle of one notch of a wheel, in the toolkit's unit, and how much larger it makes the drawing.
constexpr double kNotch = 120;
constexpr double kZoomOfNotch = 1.25;

}  // namespace

DrawingArea::DrawingArea(DrawingScene& scene, QWidget* parent)
    : QWidget(parent), scene_(scene), picture_(kGround) {
  setObjectName(QStringLiteral("drawingArea"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  constexpr int kSmallest = 200;
  setMinimumSize(kSmallest, kSmallest);
  scene_.onChanged = [this] {
    pictureIsOld_ = true;
    update();
  };
  picture_.onSharp = [this] { update(); };
  FollowCursor();
}

void DrawingArea::ZoomTo(const QRectF& part) {
  view_.Fit(part);
  ViewChanged();
}

void DrawingArea::ZoomToExtents() {
  if (const auto extents = scene_.Extents()) ZoomTo(*extents);
}

void DrawingArea::BringIntoView(const QRectF& part) {
  const QRectF shown = view_.Shown();
  if (shown.contains(part.center())) return;
  view_.Pan(view_.ToPixel(shown.center()) - view_.ToPixel(part.center()));
  ViewChanged();
}

void DrawingArea::Use(DrawingTool* tool) {
  if (Tool() != nullptr) Tool()->Leave();
  tool_ = tool;
  FollowCursor();
  update();
}

void DrawingArea::SetStandingTool(DrawingTool* tool) {
  standing_ = tool;
  update();
}

void DrawingArea::FollowCursor() {
  Qt::CursorShape shape = Qt::CrossCursor;
  if (spaceHeld_) shape = Qt::OpenHandCursor;
  if (panFrom_) shape = Qt::ClosedHandCursor;
  setCursor(shape);
}

void DrawingArea::ViewChanged() {
  if (Tool() != nullptr && underMouse()) Tool()->Move(PlaceOf(pointer_, Qt::NoModifier));
  update();
}

PointerPlace DrawingArea::PlaceOf(const QPointF& pixel, Qt::KeyboardModifiers keys) const {
  return {.pixel = pixel,
          .place = view_.ToPlace(pixel),
          .reach = view_.LengthOf(kReach),
          .shift = keys.testFlag(Qt::ShiftModifier)};
}

void DrawingArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), kGround);
  if (pictureIsOld_) picture_.SetContent(scene_.Picture(), scene_.ShownInPicture());
  pictureIsOld_ = false;
  picture_.Paint(painter, view_);
  painter.setRenderHint(QPainter::Antialiasing);
  if (overlay_ != nullptr) overlay_->Paint(painter, view_, kGround);
  if (Tool() != nullptr) Tool()->Paint(painter, view_);
}

void DrawingArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  view_.SetSize(size());
}

void DrawingArea::wheelEvent(QWheelEvent* event) {
  pointer_ = event->position();
  view_.ZoomAt(pointer_, std::pow(kZoomOfNotch, event->angleDelta().y() / kNotch));
  ViewChanged();
  event->accept();
}

void DrawingArea::mousePressEvent(QMouseEvent* event) {
  pointer_ = event->position();
  const bool panning =
      event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && spaceHeld_);
  if (panning) {
    panFrom_ = pointer_;
    spaceMoved_ = spaceHeld_;
    FollowCursor();
    return;
  }
  if (Tool() == nullptr) return;
  if (event->button() == Qt::LeftButton) Tool()->Press(PlaceOf(pointer_, event->modifiers()));
  if (event->button() == Qt::RightButton && tool_ != nullptr) tool_->Enter();
  update();
}

void DrawingArea::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->position();
  if (panFrom_) {
    view_.Pan(pointer_ - *panFrom_);
    panFrom_ = pointer_;
  } else if (Tool() != nullptr) {
    Tool()->Move(PlaceOf(pointer_, event->modifiers()));
  }
  if (onPointed) onPointed(view_.ToPlace(pointer_));
  update();
}

void DrawingArea::mouseReleaseEvent(QMouseEvent* event) {
  pointer_ = event->position();
  if (panFrom_ && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
    panFrom_.reset();
    FollowCursor();
    return;
  }
  if (Tool() != nullptr && event->button() == Qt::LeftButton) {
    Tool()->Release(PlaceOf(pointer_, event->modifiers()));
  }
  update();
}

void DrawingArea::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    ZoomToExtents();
  } else {
    mousePressEvent(event);
  }
}

void DrawingArea::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  if (Tool() != nullptr) Tool()->Leave();
  update();
}

void DrawingArea::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
      if (event->isAutoRepeat()) return;
      spaceHeld_ = true;
      spaceMoved_ = false;
      FollowCursor();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (Tool() != nullptr) Tool()->Enter();
      break;
    case Qt::Key_Delete:
      if (onDelete) onDelete();
      break;
    case Qt::Key_Escape:
      if (Tool() != nullptr) Tool()->Escape();
      break;
    default:
      if (event->text().isEmpty() || !event->text().at(0).isPrint()) {
        QWidget::keyPressEvent(event);
      } else if (onTyped) {
        onTyped(event->text());
      }
  }
  update();
}

void DrawingArea::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space || event->isAutoRepeat() || !spaceHeld_) {
    QWidget::keyReleaseEvent(event);
    return;
  }
  spaceHeld_ = false;
  panFrom_.reset();
  FollowCursor();
  // Tapped, the space bar ends an input as it does on the command line.
  if (!spaceMoved_ && Tool() != nullptr) Tool()->Enter();
  update();
}

void DrawingArea::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  spaceHeld_ = false;
  FollowCursor();
}

}  // namespace zwt
