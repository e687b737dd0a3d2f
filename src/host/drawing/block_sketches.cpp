#include "host/drawing/block_sketches.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/display_colors.h"
#include "host/drawing/entity_sketch.h"

namespace zwt {
namespace {

/// Deeper nests occur in broken drawings alone.
constexpr int kDeepestNest = 100;

constexpr std::int64_t kColorByBlock = 0;
constexpr std::int64_t kColorByLayer = 256;

}  // namespace

BlockSketches::BlockSketches(const DrawingData& drawing, DisplayList& list)
    : drawing_(drawing), list_(list), blocks_(drawing.blocks.size()) {
  for (std::size_t i = 0; i < drawing.blocks.size(); ++i) {
    blocksByName_.try_emplace(FoldedName(drawing.blocks[i].name), i);
  }
  for (std::size_t i = 0; i < drawing.layers.size(); ++i) {
    layersByName_.try_emplace(FoldedName(drawing.layers[i].name), static_cast<std::int32_t>(i));
  }
}

bool BlockSketches::AddEntity(std::string_view entity, Sketch& sketch) {
  const std::vector<Tag> tags = SplitTags(entity);
  return Add(tags, Within::Drawing, sketch);
}

bool BlockSketches::Add(std::span<const Tag> tags, Within within, Sketch& sketch) {
  EntityGroups groups(tags);
  constexpr std::int64_t kInvisible = 1;
  if (groups.Integer(60, 0) == kInvisible) return true;
  const SketchStyle style = StyleOf(groups, within);
  const std::string_view type = Trimmed(tags[0].value);
  if (type == "INSERT") return AddInsert(tags, style, within, sketch);
  if (type == "DIMENSION") return AddDimension(groups, style, sketch);
  return SketchEntity(tags, style, drawing_, sketch);
}

std::int32_t BlockSketches::LayerOf(std::string_view written) {
  const auto [known, isNew] = layersByBytes_.try_emplace(written, 0);
  if (!isNew) return known->second;
  const CString name = drawing_.dialect.encoding.Decode(written);
  const auto [found, isUnknown] =
      layersByName_.try_emplace(FoldedName(name), static_cast<std::int32_t>(list_.layers.size()));
  if (isUnknown) list_.layers.push_back({name, true});
  known->second = found->second;
  return known->second;
}

std::int32_t BlockSketches::ColorOfLayer(std::int32_t layer) const {
  const auto index = static_cast<std::size_t>(layer);
  if (layer < 0 || index >= drawing_.layers.size()) return kForegroundColor;
  const Layer& held = drawing_.layers[index];
  return held.trueColor >= 0 ? held.trueColor : ColorOfIndex(held.color);
}

bool BlockSketches::IsFrozen(std::int32_t layer) const {
  const auto index = static_cast<std::size_t>(layer);
  return layer >= 0 && index < drawing_.layers.size() && drawing_.layers[index].isFrozen;
}

SketchStyle BlockSketches::StyleOf(const EntityGroups& groups, Within within) {
  const Tag* layer = groups.Find(8);
  const std::string_view name = layer == nullptr ? "0" : Trimmed(layer->value);
  SketchStyle style;
  style.layer = within == Within::Block && name == "0" ? kLayerOfInsert : LayerOf(name);
  std::int64_t number = kColorByLayer;
  if (const Tag* color = groups.Find(62); color != nullptr) ParseInteger(color->value, number);
  std::int64_t rgb = -1;
  if (const Tag* color = groups.Find(420); color != nullptr) ParseInteger(color->value, rgb);
  if (rgb >= 0) {
    style.color = static_cast<std::int32_t>(rgb & 0xFFFFFF);
  } else if (number == kColorByBlock) {
    style.color = within == Within::Block ? kColorOfInsert : kForegroundColor;
  } else if (number == kColorByLayer) {
    style.color = style.layer == kLayerOfInsert ? kColorOfInsertLayer : ColorOfLayer(style.layer);
  } else {
    style.color = ColorOfIndex(std::abs(number % kColorByLayer));
  }
  return style;
}

const BlockSketches::BlockSketch* BlockSketches::SketchOf(std::string_view name) {
  const auto found = blocksByName_.find(FoldedName(drawing_.dialect.encoding.Decode(Trimmed(name))));
  if (found == blocksByName_.end()) return nullptr;
  BlockSketch& block = blocks_[found->second];
  if (block.state == State::Being || depth_ >= kDeepestNest) return nullptr;
  if (block.state == State::Unknown) MakeSketch(found->second);
  return &block;
}

void BlockSketches::MakeSketch(std::size_t number) {
  BlockSketch& block = blocks_[number];
  block.state = State::Being;
  ++depth_;
  for (const std::string_view entity : drawing_.blocks[number].entities) {
    const std::vector<Tag> tags = SplitTags(entity);
    if (!Add(tags, Within::Block, block.sketch)) ++list_.leftOut;
  }
  --depth_;
  block.base = drawing_.blocks[number].base;
  block.cost = block.sketch.Cost();
  block.state = State::Known;
}

bool BlockSketches::AddInsert(std::span<const Tag> tags, const SketchStyle& style, Within within,
                              Sketch& sketch) {
  AddAttributes(tags, within, sketch);
  EntityGroups insert(tags);
  const BlockSketch* block = SketchOf(insert.Text(2));
  if (block == nullptr) return false;
  const ObjectFrame frame = insert.Frame();
  const double angle = insert.Angle(50);
  const Vector along = frame.ToWorld({std::cos(angle), std::sin(angle), 0}) - AcGePoint3d{};
  const Vector across = Cross(frame.Z(), along);
  Placement place;
  place.x = along * insert.Real(41, 1);
  place.y = across * insert.Real(42, 1);
  place.z = frame.Z() * insert.Real(43, 1);
  place.origin = frame.ToWorld(insert.Point(10)) + place(AcGePoint3d{} - block->base);
  const Array array{insert.Integer(70, 1), insert.Integer(71, 1), along * insert.Real(44, 0),
                    across * insert.Real(45, 0)};
  return !insert.IsBroken() && AddCopies(*block, place, array, style, sketch);
}

bool BlockSketches::AddCopies(const BlockSketch& block, const Placement& place, const Array& array,
                              const SketchStyle& style, Sketch& sketch) {
  if (block.sketch.IsEmpty()) return true;
  const std::int64_t columns = std::max<std::int64_t>(array.columns, 1);
  const std::int64_t rows = std::max<std::int64_t>(array.rows, 1);
  if (columns > budget_ / block.cost / rows) return false;
  budget_ -= columns * rows * block.cost;
  const std::int32_t layerColor =
      style.layer == kLayerOfInsert ? kColorOfInsertLayer : ColorOfLayer(style.layer);
  for (std::int64_t row = 0; row < rows; ++row) {
    for (std::int64_t column = 0; column < columns; ++column) {
      Placement shifted = place;
      shifted.origin =
          place.origin + array.column * static_cast<double>(column) + array.row * static_cast<double>(row);
      sketch.AddBlock(block.sketch, shifted, {style, layerColor, IsFrozen(style.layer)});
    }
  }
  return true;
}

/// A dimension is drawn by a block of its own, which stands where it is.
bool BlockSketches::AddDimension(EntityGroups& dimension, const SketchStyle& style, Sketch& sketch) {
  const BlockSketch* block = SketchOf(dimension.Text(2));
  return block != nullptr && AddCopies(*block, {}, {}, style, sketch);
}

void BlockSketches::AddAttributes(std::span<const Tag> tags, Within within, Sketch& sketch) {
  for (std::size_t at = EntitySize(tags, 0); at < tags.size();) {
    const std::size_t size = EntitySize(tags, at);
    EntityGroups attribute(tags.subspan(at, size));
    at += size;
    if (Trimmed(attribute.Tags()[0].value) != "ATTRIB") continue;
    const SketchStyle style = StyleOf(attribute, within);
    SketchAttribute(attribute, style, drawing_, sketch);
    if (attribute.IsBroken()) ++list_.leftOut;
  }
}

}  // namespace zwt
