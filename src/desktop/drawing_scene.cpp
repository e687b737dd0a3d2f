// The scene of the working drawing.
#include "desktop/drawing_scene.h"

#include "host/drawing/drawing.h"

namespace zwt {

namespace {

const Layer& LayerOf(std::int32_t layer) {
  return WorkingDrawing().Data().layers[static_cast<std::size_t>(layer)];
}

}  // namespace

void DrawingScene::Forget() {
  picker_.reset();
  picture_.reset();
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

std::shared_ptr<const DisplayList> DrawingScene::Picture() const {
  if (picture_ == nullptr) picture_ = std::make_shared<DisplayList>(MakeDisplayList(WorkingDrawing()));
  return picture_;
}

std::vector<bool> DrawingScene::ShownInPicture() const {
  const auto layers = static_cast<std::int32_t>(WorkingDrawing().Data().layers.size());
  std::vector<bool> isShown;
  isShown.reserve(static_cast<std::size_t>(layers));
  for (std::int32_t i = 0; i < layers; ++i) isShown.push_back(IsLayerShown(i));
  return isShown;
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
  const PlaneBox box = Picture()->Extents(ShownInPicture());
  if (box.IsEmpty()) return std::nullopt;
  return QRectF(box.low.x, box.low.y, box.Width(), box.Height());
}

}  // namespace zwt
