// What lies where: the lines and polylines of model space as they are seen from above, in a spatial index.
// It describes the drawing at one moment; after a change it is made anew.
#pragma once

#include <QPointF>
#include <QRectF>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "host/drawing/box_tree.h"
#include "host/drawing/drawing.h"

namespace zwt {

class DrawingPicker {
 public:
  /// Whether an entity, by its index, may be picked.
  using Accept = std::function<bool(std::int32_t entity)>;

  /// Takes in what lives in the drawing; n log n. Entities whose numbers cannot be read are passed over.
  explicit DrawingPicker(const Drawing& drawing);

  /// The accepted entity nearest to a place, not farther than reach; -1 for none. Of several at the same
  /// distance the first in drawing order.
  std::int32_t Nearest(const QPointF& place, double reach, const Accept& accept) const;

  /// The accepted entities that lie wholly in a rectangle, in drawing order.
  std::vector<std::int32_t> Inside(const QRectF& area, const Accept& accept) const;
  /// The accepted entities of which something lies in a rectangle, in drawing order.
  std::vector<std::int32_t> Touching(const QRectF& area, const Accept& accept) const;

  /// Corners of an entity's line, arcs in short chords; empty where it has none here.
  std::span<const QPointF> ShapeOf(std::int32_t entity) const;
  /// The box around an entity's line.
  QRectF BoundsOf(std::int32_t entity) const;

 private:
  void TakeIn(const Drawing& drawing, std::int32_t entity);
  std::vector<std::int32_t> Near(const QRectF& area) const;

  std::vector<QPointF> corners_;          // of all entities
  std::vector<std::size_t> firstCorner_;  // by entity, and one more at the end
  std::vector<std::int32_t> owners_;      // by number of a stretch: its entity
  std::vector<std::size_t> stretches_;    // by number of a stretch: the corner at which it begins
  BoxTree tree_;
};

/// The place on the stretch from a to b nearest to another.
QPointF NearestOnStretch(const QPointF& a, const QPointF& b, const QPointF& place);
double DistanceBetween(const QPointF& a, const QPointF& b);

}  // namespace zwt
