#include "host/drawing/sketch.h"

#include <algorithm>
#include <cmath>

namespace zwt {

AcGePoint3d Placement::operator()(const AcGePoint3d& point) const {
  return origin + (*this)(Vector{point.x, point.y, point.z});
}

Vector Placement::operator()(const Vector& way) const {
  return {x.x * way.x + y.x * way.y + z.x * way.z, x.y * way.x + y.y * way.y + z.y * way.z,
          x.z * way.x + y.z * way.y + z.z * way.z};
}

void Sketch::Clear() {
  points.clear();
  paths.clear();
  texts.clear();
  marks.clear();
}

std::int64_t Sketch::Cost() const {
  std::size_t cost = points.size() + paths.size() + marks.size();
  for (const SketchText& text : texts) cost += 10 + text.text.size();
  return static_cast<std::int64_t>(cost);
}

void Sketch::AddPath(const SketchStyle& style, std::span<const AcGePoint3d> path, bool closed) {
  if (path.size() < 2) return;
  paths.push_back({style, points.size(), path.size(), closed, false});
  points.insert(points.end(), path.begin(), path.end());
}

void Sketch::TakeBack(const Extent& extent) {
  points.resize(extent.points);
  paths.resize(extent.paths);
  texts.resize(extent.texts);
  marks.resize(extent.marks);
}

void Sketch::AddArea(const SketchStyle& style, std::span<const AcGePoint3d> edge) {
  if (edge.size() < 3) return;
  paths.push_back({style, points.size(), edge.size(), true, true});
  points.insert(points.end(), edge.begin(), edge.end());
}

namespace {

SketchStyle InInsert(SketchStyle style, const InsertStyle& insert) {
  if (style.layer == kLayerOfInsert || insert.hidesAll) style.layer = insert.own.layer;
  if (style.color == kColorOfInsertLayer) {
    style.color = insert.layerColor;
  } else if (style.color == kColorOfInsert) {
    style.color = insert.own.color;
  }
  return style;
}

}  // namespace

void Sketch::AddBlock(const Sketch& block, const Placement& place, const InsertStyle& insert) {
  const std::size_t offset = points.size();
  for (const AcGePoint3d& point : block.points) points.push_back(place(point));
  for (SketchPath path : block.paths) {
    path.style = InInsert(path.style, insert);
    path.first += offset;
    paths.push_back(path);
  }
  for (SketchText text : block.texts) {
    text.style = InInsert(text.style, insert);
    text.position = place(text.position);
    text.along = place(text.along);
    text.up = place(text.up);
    texts.push_back(std::move(text));
  }
  for (SketchMark mark : block.marks) {
    marks.push_back({InInsert(mark.style, insert), place(mark.position)});
  }
}

namespace {

/// What no insert decided stands as it would outside of all blocks.
DisplayItem ItemOf(const SketchStyle& style, std::int32_t entity) {
  return {entity, std::max(style.layer, 0), std::max(style.color, kForegroundColor)};
}

/// Scales of nested inserts may lead anywhere.
bool IsNear(const AcGePoint3d& point) {
  constexpr double kFarthest = 1e15;
  return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest;
}

/// False where the text is seen from its edge.
bool SeenFromAbove(const SketchText& text, DisplayText& seen) {
  PlanePoint along{text.along.x, text.along.y};
  const double turn = along.x * text.up.y - along.y * text.up.x;
  const double length = std::hypot(along.x, along.y);
  seen.height = std::abs(turn) / length;
  if (!(length > 0) || !(seen.height > 0) || !std::isfinite(seen.height)) return false;
  const double lean = (along.x * text.up.x + along.y * text.up.y) / length;
  seen.widthFactor = length / seen.height;
  seen.slant = std::atan2(lean, seen.height);
  if (turn < 0) {  // mirrored: upright all the same, but read to the left
    along = {-along.x, -along.y};
    seen.widthFactor = -seen.widthFactor;
    seen.slant = -seen.slant;
  }
  seen.angle = std::atan2(along.y, along.x);
  seen.fitWidth = text.fitWidth * length;
  return true;
}

}  // namespace

void AppendToList(const Sketch& sketch, std::int32_t entity, DisplayList& list) {
  for (const SketchPath& path : sketch.paths) {
    const std::span<const AcGePoint3d> points = std::span(sketch.points).subspan(path.first, path.count);
    if (!std::all_of(points.begin(), points.end(), IsNear)) continue;
    DisplayPath seen;
    static_cast<DisplayItem&>(seen) = ItemOf(path.style, entity);
    seen.first = static_cast<std::uint32_t>(list.points.size() + path.first);
    seen.count = static_cast<std::uint32_t>(path.count);
    seen.closed = path.closed;
    (path.filled ? list.areas : list.strokes).push_back(seen);
  }
  for (const AcGePoint3d& point : sketch.points) list.points.push_back({point.x, point.y});
  for (const SketchText& text : sketch.texts) {
    DisplayText seen;
    static_cast<DisplayItem&>(seen) = ItemOf(text.style, entity);
    if (!SeenFromAbove(text, seen) || !IsNear(text.position)) continue;
    seen.text = text.text;
    seen.position = {text.position.x, text.position.y};
    seen.side = text.side;
    seen.level = text.level;
    list.texts.push_back(std::move(seen));
  }
  for (const SketchMark& mark : sketch.marks) {
    if (!IsNear(mark.position)) continue;
    DisplayMark seen;
    static_cast<DisplayItem&>(seen) = ItemOf(mark.style, entity);
    seen.position = {mark.position.x, mark.position.y};
    list.marks.push_back(seen);
  }
}

}  // namespace zwt
