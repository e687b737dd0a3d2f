// What touches what: a spatial index over the pipes of a drawing as they are at one moment. It answers for
// one pipe or place at a time; listing all pairs at once would not fit in memory where many pipes meet in one
// point.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/drawing/box_tree.h"
#include "host/drawing/geometry.h"

namespace zwt {

class Drawing;

/// Pipes touch within this distance, mm.
constexpr double kTouch = 1.0;
/// Added to it for the last digits of coordinates, which are worth 1e-7 mm at 1e9 mm.
constexpr double kTouchRounding = 1e-6;

/// One end of a pipe.
struct PipeEnd {
  std::int32_t pipe = 0;  // index of its entity
  bool atStart = true;
  AcGePoint3d point;
};

class Connections {
 public:
  /// Takes in the living pipes of a drawing; n log n in their number.
  explicit Connections(const Drawing& drawing);

  /// The pipes connected to one: an end of one lies on the other. In drawing order, each once, without
  /// itself.
  std::vector<std::int32_t> ConnectedTo(std::int32_t pipe) const;

  /// Pipes whose line passes a point within a distance, in drawing order.
  std::vector<std::int32_t> PipesAt(const AcGePoint3d& point,
                                    double distance = kTouch + kTouchRounding) const;

  /// Ends that lie on a pipe within a distance, its own included; in drawing order, the start before the end.
  std::vector<PipeEnd> EndsOn(std::int32_t pipe, double distance = kTouch + kTouchRounding) const;

  /// Pipes whose midpoint a point is, in drawing order.
  std::vector<std::int32_t> PipesWithMidPoint(const AcGePoint3d& point) const;

  /// Pipes that may meet a box, in drawing order; of slanting ones and arcs some that do not.
  std::vector<std::int32_t> PipesNear(const Box& box) const;

  /// The way along a pipe; nothing where the index does not have it.
  std::span<const CurvePart> CurveOf(std::int32_t pipe) const;

 private:
  std::int32_t SlotOf(std::int32_t pipe) const;
  std::span<const CurvePart> CurveIn(std::int32_t slot) const;
  AcGePoint3d EndPoint(std::int32_t end) const;
  double MeanSlant() const;
  void BuildBodies();
  void BuildPoints();

  // A slot is the place of a pipe among the living ones.
  std::vector<std::int32_t> pipes_;      // by slot: index of the entity
  std::vector<std::int32_t> slots_;      // by index of the entity: slot, or -1
  std::vector<CurvePart> parts_;         // of all pipes
  std::vector<std::size_t> firstParts_;  // by slot, and one more at the end
  BoxTree ends_;                         // number: twice the slot, and one more for the end
  BoxTree middles_;                      // number: slot
  BoxTree bodies_;                       // number: index into bodyParts_
  std::vector<std::int32_t> bodySlots_;  // by number in bodies_: slot
};

}  // namespace zwt
