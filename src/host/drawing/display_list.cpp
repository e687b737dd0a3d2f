#include "host/drawing/display_list.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/block_sketches.h"

namespace zwt {
namespace {

/// Widths in heights of a capital, of common fonts.
constexpr double kIdeographWidth = 1.35;
constexpr double kLetterWidth = 0.75;

/// Below the base line and above the capitals, in heights of a capital.
constexpr double kDescent = 0.3;
constexpr double kAscent = 1.2;

bool IsInSpace(const EntityRecord& entity, DisplaySpace space) {
  return entity.alive && entity.inPaperSpace == (space == DisplaySpace::Paper);
}

}  // namespace

void PlaneBox::Add(const PlanePoint& point) {
  if (IsEmpty()) {
    low = high = point;
    return;
  }
  low = {std::min(low.x, point.x), std::min(low.y, point.y)};
  high = {std::max(high.x, point.x), std::max(high.y, point.y)};
}

void PlaneBox::Add(const PlaneBox& box) {
  if (box.IsEmpty()) return;
  Add(box.low);
  Add(box.high);
}

bool PlaneBox::Touches(const PlaneBox& other) const {
  return low.x <= other.high.x && high.x >= other.low.x && low.y <= other.high.y && high.y >= other.low.y;
}

PlaneBox BoxOf(std::span<const PlanePoint> path) {
  PlaneBox box;
  for (const PlanePoint& point : path) box.Add(point);
  return box;
}

double BaselineBelow(TextLevel level) {
  switch (level) {
    case TextLevel::Bottom:
      return -kDescent;
    case TextLevel::Middle:
      return 0.5;
    case TextLevel::Top:
      return 1;
    case TextLevel::Baseline:
      break;
  }
  return 0;
}

double EstimatedWidth(std::wstring_view text) {
  const auto wide = std::count_if(text.begin(), text.end(), [](wchar_t letter) { return letter >= 0x2E80; });
  return static_cast<double>(wide) * kIdeographWidth +
         static_cast<double>(static_cast<std::ptrdiff_t>(text.size()) - wide) * kLetterWidth;
}

PlaneBox BoxOf(const DisplayText& text) {
  const double natural = EstimatedWidth(text.text) * text.height * std::abs(text.widthFactor);
  const double width = text.fitWidth > 0 ? text.fitWidth : natural;
  const double left = -width * static_cast<double>(text.side) / 2;
  const double direction = text.widthFactor < 0 ? -1 : 1;
  const double bottom = -kDescent - BaselineBelow(text.level);
  const double c = std::cos(text.angle);
  const double s = std::sin(text.angle);
  PlaneBox box;
  for (const double y : {bottom * text.height, (bottom + kDescent + kAscent) * text.height}) {
    for (const double x : {left, left + width}) {
      const double along = direction * x + y * std::tan(text.slant);
      box.Add(PlanePoint{text.position.x + along * c - y * s, text.position.y + along * s + y * c});
    }
  }
  return box;
}

PlaneBox DisplayList::Extents() const {
  std::vector<bool> isShown;
  isShown.reserve(layers.size());
  for (const DisplayLayer& layer : layers) isShown.push_back(layer.shown);
  return Extents(isShown);
}

PlaneBox DisplayList::Extents(const std::vector<bool>& isShown) const {
  const auto shows = [&isShown](const DisplayItem& item) {
    const auto layer = static_cast<std::size_t>(item.layer);
    return layer >= isShown.size() || isShown[layer];
  };
  PlaneBox box;
  for (const std::vector<DisplayPath>* paths : {&strokes, &areas}) {
    for (const DisplayPath& path : *paths) {
      if (shows(path)) box.Add(BoxOf(PointsOf(path)));
    }
  }
  for (const DisplayText& text : texts) {
    if (shows(text)) box.Add(BoxOf(text));
  }
  for (const DisplayMark& mark : marks) {
    if (shows(mark)) box.Add(mark.position);
  }
  return box;
}

DisplayList MakeDisplayList(const AcDbDatabase& drawing, DisplaySpace space) {
  DisplayList list;
  for (const Layer& layer : drawing.Data().layers) {
    list.layers.push_back({layer.name, !layer.isOff && !layer.isFrozen});
  }
  BlockSketches blocks(drawing.Data(), list);
  Sketch sketch;
  for (std::int32_t index = 0; index < drawing.EntityCount(); ++index) {
    const EntityRecord& entity = drawing.Entity(index);
    if (!IsInSpace(entity, space)) continue;
    if (!blocks.AddEntity(entity.tags, sketch)) ++list.leftOut;
    AppendToList(sketch, index, list);
    sketch.Clear();
  }
  return list;
}

}  // namespace zwt
