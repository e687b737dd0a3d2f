// Clicks, rectangles and what lights up.
#include "desktop/select_tool.h"

#include <algorithm>
#include <utility>

#include "host/drawing/drawing.h"

namespace zwt {

namespace {

const QColor kHoverColour(0xff, 0xd5, 0x4f);
const QColor kPickedColour(0x4f, 0xc3, 0xf7);
constexpr double kLitWidth = 3;
constexpr qsizetype kMostThickLines = 5000;
/// A pointer that moved so few pixels between press and release has clicked.
constexpr double kClickSlack = 4;

bool IsCrossing(const QPointF& from, const QPointF& to) {
  return to.x() < from.x();
}

}  // namespace

SelectTool::SelectTool(const DrawingScene& scene, Filter filter, bool single)
    : scene_(scene), filter_(std::move(filter)), single_(single) {}

void SelectTool::Forget() {
  known_.clear();
  hovered_ = -1;
  frame_.reset();
  const std::int32_t count = WorkingDrawing().EntityCount();
  std::erase_if(picked_, [&](std::int32_t entity) { return entity >= count || !MayPick(entity); });
}

bool SelectTool::MayPick(std::int32_t entity) const {
  if (!scene_.IsShown(entity)) return false;
  const auto [at, isNew] = known_.try_emplace(entity, false);
  if (isNew) at->second = filter_(entity);
  return at->second;
}

std::int32_t SelectTool::Under(const PointerPlace& at) const {
  return scene_.Picker().Nearest(at.place, at.reach, [this](std::int32_t entity) { return MayPick(entity); });
}

bool SelectTool::IsOtherUnder(const PointerPlace& at) const {
  const auto isShown = [this](std::int32_t entity) { return scene_.IsShown(entity); };
  return scene_.Picker().Nearest(at.place, at.reach, isShown) >= 0;
}

bool SelectTool::Change(std::int32_t entity, bool takeOut) {
  const auto held = std::find(picked_.begin(), picked_.end(), entity);
  if (takeOut == (held == picked_.end())) return false;
  if (takeOut) {
    picked_.erase(held);
  } else {
    picked_.push_back(entity);
  }
  return true;
}

void SelectTool::PickOne(std::int32_t entity, bool takeOut) {
  if (!Change(entity, takeOut)) return;
  if (onPicked) onPicked();
  if (single_ && onEnded) onEnded(true);
}

void SelectTool::PickFrame(const QPointF& from, const QPointF& to, bool takeOut) {
  frame_.reset();
  const QRectF area = QRectF(from, to).normalized();
  const auto mayPick = [this](std::int32_t entity) { return MayPick(entity); };
  const DrawingPicker& picker = scene_.Picker();
  const std::vector<std::int32_t> found =
      IsCrossing(from, to) ? picker.Touching(area, mayPick) : picker.Inside(area, mayPick);
  const std::vector<std::int32_t> before = picked_;
  if (takeOut) {
    std::erase_if(
        picked_, [&](std::int32_t entity) { return std::binary_search(found.begin(), found.end(), entity); });
  } else {
    std::vector<std::int32_t> held = picked_;
    std::sort(held.begin(), held.end());
    std::set_difference(found.begin(), found.end(), held.begin(), held.end(), std::back_inserter(picked_));
  }
  if (picked_ != before && onPicked) onPicked();
}

void SelectTool::PickAll() {
  std::vector<std::int32_t> all;
  for (std::int32_t i = 0; i < WorkingDrawing().EntityCount(); ++i) {
    if (MayPick(i)) all.push_back(i);
  }
  if (single_ && all.size() != 1) return;
  picked_ = std::move(all);
  if (onPicked) onPicked();
  if (single_ && onEnded) onEnded(true);
}

void SelectTool::Press(const PointerPlace& at) {
  if (frame_) {
    PickFrame(QPointF(frame_->from), at.place, at.shift);
    return;
  }
  const std::int32_t hit = Under(at);
  if (hit >= 0) {
    PickOne(hit, at.shift);
  } else if (!single_) {
    frame_ = Frame{at.place, at.place, at.pixel, IsOtherUnder(at)};
  } else if (IsOtherUnder(at) && onRefused) {
    onRefused();
  }
}

void SelectTool::Move(const PointerPlace& at) {
  if (frame_) {
    frame_->to = at.place;
    hovered_ = -1;
  } else {
    hovered_ = Under(at);
  }
}

void SelectTool::Release(const PointerPlace& at) {
  if (!frame_) return;
  const QPointF moved = at.pixel - frame_->pressedAt;
  if (moved.manhattanLength() <= kClickSlack) {
    if (!frame_->onOther) return;
    frame_.reset();
    if (onRefused) onRefused();
    return;
  }
  PickFrame(QPointF(frame_->from), at.place, at.shift);
}

void SelectTool::Leave() {
  hovered_ = -1;
}

void SelectTool::Enter() {
  frame_.reset();
  if (onEnded) onEnded(true);
}

void SelectTool::Escape() {
  if (frame_) {
    frame_.reset();
    return;
  }
  if (onEnded) onEnded(false);
}

bool SelectTool::Take(const QString& word) {
  if (word.compare(QLatin1String("ALL"), Qt::CaseInsensitive) != 0) return false;
  PickAll();
  return true;
}

void SelectTool::PaintShapes(QPainter& painter, const ViewTransform& view,
                             std::span<const std::int32_t> entities, const QColor& colour) const {
  const DrawingPicker& picker = scene_.Picker();
  const QRectF shown = view.Shown();
  QList<QLineF> lines;
  for (const std::int32_t entity : entities) {
    const QRectF bounds = picker.BoundsOf(entity);
    const bool seen = bounds.left() <= shown.right() && bounds.right() >= shown.left() &&
                      bounds.top() <= shown.bottom() && bounds.bottom() >= shown.top();
    if (!seen) continue;
    const std::span<const QPointF> shape = picker.ShapeOf(entity);
    for (std::size_t i = 1; i < shape.size(); ++i) {
      lines.append(QLineF(view.ToPixel(shape[i - 1]), view.ToPixel(shape[i])));
    }
  }
  // Thick smooth lines take long: where there are very many they are thin ones.
  const bool many = lines.size() > kMostThickLines;
  const QPainter::RenderHints hints = painter.renderHints();
  painter.setRenderHint(QPainter::Antialiasing, !many);
  painter.setPen(QPen(colour, many ? 1 : kLitWidth, Qt::SolidLine, Qt::RoundCap));
  painter.drawLines(lines);
  painter.setRenderHint(QPainter::Antialiasing, hints.testFlag(QPainter::Antialiasing));
}

void SelectTool::PaintFrame(QPainter& painter, const ViewTransform& view, const Frame& frame) {
  const QRectF area = QRectF(view.ToPixel(frame.from), view.ToPixel(frame.to)).normalized();
  const bool crossing = IsCrossing(frame.from, frame.to);
  QColor colour = crossing ? QColor(0x66, 0xbb, 0x6a) : kPickedColour;
  painter.setPen(QPen(colour, 1, crossing ? Qt::DashLine : Qt::SolidLine));
  constexpr int kFaint = 40;
  colour.setAlpha(kFaint);
  painter.setBrush(colour);
  painter.drawRect(area);
}

void SelectTool::Paint(QPainter& painter, const ViewTransform& view) const {
  painter.setBrush(Qt::NoBrush);
  PaintShapes(painter, view, picked_, kPickedColour);
  if (hovered_ >= 0) PaintShapes(painter, view, std::span(&hovered_, 1), kHoverColour);
  if (frame_) PaintFrame(painter, view, *frame_);
}

}  // namespace zwt
