// Pipes from click to click.
#include "desktop/draw_pipe_tool.h"

#include <utility>

namespace zwt {

namespace {

const QColor kRubberColour(0x4f, 0xc3, 0xf7);
const QColor kSnapColour(0xff, 0xd5, 0x4f);

void PaintSnap(QPainter& painter, const SnapPoint& snap, const QPointF& at) {
  constexpr double kHalf = 6;
  painter.setPen(QPen(kSnapColour, 2));
  switch (snap.kind) {
    case SnapKind::kEnd:
      painter.drawRect(QRectF(at - QPointF(kHalf, kHalf), at + QPointF(kHalf, kHalf)));
      return;
    case SnapKind::kMiddle:
      painter.drawPolygon(
          QPolygonF({at + QPointF(-kHalf, kHalf), at + QPointF(kHalf, kHalf), at - QPointF(0, kHalf)}));
      return;
    case SnapKind::kPerpendicular:
      painter.drawPolyline(
          QPolygonF({at + QPointF(-kHalf, -kHalf), at + QPointF(-kHalf, kHalf), at + QPointF(kHalf, kHalf)}));
      painter.drawPolyline(QPolygonF({at + QPointF(-kHalf, 0), at, at + QPointF(0, kHalf)}));
      return;
  }
}

}  // namespace

DrawPipeTool::DrawPipeTool(const DrawingScene& scene, FieldList fields, AcDbObjectId layer)
    : scene_(scene), fields_(std::move(fields)), layer_(layer) {}

QPointF DrawPipeTool::Aim(const PointerPlace& at) {
  const auto isShown = [this](std::int32_t entity) { return scene_.IsShown(entity); };
  snap_ = FindSnapPoint(scene_.Picker(), at.place, at.reach, from_, isShown);
  return snap_ ? snap_->place : at.place;
}

void DrawPipeTool::Press(const PointerPlace& at) {
  const QPointF point = Aim(at);
  if (from_ && *from_ == point) return;
  if (from_) {
    const AcDbObjectId pipe =
        WorkingDrawing().AddPipe({from_->x(), from_->y(), 0}, {point.x(), point.y(), 0}, fields_, layer_);
    if (!pipe.isNull()) drawn_.push_back(WorkingDrawing().IndexOf(pipe));
  }
  from_ = point;
  to_ = point;
}

void DrawPipeTool::Move(const PointerPlace& at) {
  to_ = Aim(at);
}

void DrawPipeTool::Escape() {
  if (from_) {
    from_.reset();
  } else {
    End();
  }
}

void DrawPipeTool::End() {
  if (onEnded) onEnded();
}

void DrawPipeTool::Paint(QPainter& painter, const ViewTransform& view) const {
  painter.setBrush(Qt::NoBrush);
  if (from_) {
    painter.setPen(QPen(kRubberColour, 1.5));
    painter.drawLine(view.ToPixel(*from_), view.ToPixel(to_));
  }
  if (snap_) PaintSnap(painter, *snap_, view.ToPixel(snap_->place));
}

}  // namespace zwt
