// The scene of the working drawing.
#include "desktop/drawing_scene.h"

#include <algorithm>

#include "host/drawing/drawing.h"

namespace zwt {

namespace {

const Layer& LayerOf(std::int32_t layer) {
  return WorkingDrawing().Data().layers[static_cast<std::size_t>(layer)];
}

/// Grows an area to hold another; lines have an area without width or height.
void Join(QRectF& area, const QRectF& other) {
  area.setCoords(std::min(area.left(), other.left()), std::min(area.top(), other.top()),
                 std::max(area.right(), other.right()), std::max(area.bottom(), other.bottom()));
}

}  // namespace

void DrawingScene::Forget() {
  picker_.reset();
  isHidden_.clear();
  if (onChanged) onChanged();
}

void DrawingScene::Reset() {
  switched_.clear();
  Forget();
}

const DrawingPicker& DrawingScene::Picker() const {
  if (picker_ == nullptr) picker_ = std::make_unique<DrawingPicker>(WorkingDrawing());
  return *picker_;
}

bool DrawingScene::IsLayerShown(std::int32_t layer) const {
  const auto at = static_cast<std::size_t>(layer);
  while (isHidden_.size() <= at) {
    const Layer& record = LayerOf(static_cast<std::int32_t>(isHidden_.size()));
    const auto found = switched_.find(record.name);
    isHidden_.push_back(found == switched_.end() ? record.isOff || record.isFrozen : !found->second);
  }
  return !isHidden_[at];
}

void DrawingScene::ShowLayer(std::int32_t layer, bool shown) {
  if (IsLayerShown(layer) == shown) return;
  switched_[LayerOf(layer).name] = shown;
  isHidden_.clear();
  if (onChanged) onChanged();
}

bool DrawingScene::IsShown(std::int32_t entity) const {
  const EntityRecord& record = WorkingDrawing().Entity(entity);
  return record.alive && IsLayerShown(record.layer);
}

std::optional<QRectF> DrawingScene::Extents() const {
  std::optional<QRectF> extents;
  const DrawingPicker& picker = Picker();
  for (std::int32_t i = 0; i < WorkingDrawing().EntityCount(); ++i) {
    if (picker.ShapeOf(i).empty() || !IsShown(i)) continue;
    const QRectF bounds = picker.BoundsOf(i);
    if (extents) {
      Join(*extents, bounds);
    } else {
      extents = bounds;
    }
  }
  return extents;
}

}  // namespace zwt
