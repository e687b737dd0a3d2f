#include "host/drawing/connections.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/drawing/drawing.h"

namespace zwt {
namespace {

/// A midpoint is computed anew for each annotation, by the same steps: only last digits may differ.
constexpr double kSamePoint = 1e-6;

/// Box of the points of a part between two shares of its way, and so far around.
Box BoxOfPart(const CurvePart& part, double from, double to, double distance) {
  // An arc of angle w rises at most r(1 - cos(w/2)) above its chord.
  const double rise = part.radius > 0 ? part.radius * (1 - std::cos(part.sweep * (to - from) / 2)) : 0;
  return BoxAround(part.PointAt(from), part.PointAt(to), distance + rise);
}

/// How far a part runs across the axes: the second longest side of its box. A box is a bad picture of such a
/// part.
double Slant(const CurvePart& part) {
  if (part.radius > 0) return part.GetLength();
  std::array<double, 3> sides = {std::abs(part.end.x - part.start.x), std::abs(part.end.y - part.start.y),
                                 std::abs(part.end.z - part.start.z)};
  std::sort(sides.begin(), sides.end());
  return sides[1];
}

/// Into how many boxes a part is cut, so that slanting mains do not have boxes as large as the sheet.
int PieceCount(const CurvePart& part, double pieceSlant) {
  constexpr double kMostPieces = 64;
  constexpr double kMostTurn = 0.4;
  const double byTurn = part.radius > 0 ? std::ceil(part.sweep / kMostTurn) : 1;
  const double bySlant = pieceSlant > 0 ? std::min(std::ceil(Slant(part) / pieceSlant), kMostPieces) : 1;
  return static_cast<int>(std::max({1.0, byTurn, bySlant}));
}

/// Calls visit(box) for the boxes of a part.
template <class Visit>
void ForEachPiece(const CurvePart& part, double pieceSlant, double distance, Visit visit) {
  const int pieces = PieceCount(part, pieceSlant);
  for (int i = 0; i < pieces; ++i) {
    visit(BoxOfPart(part, static_cast<double>(i) / pieces, static_cast<double>(i + 1) / pieces, distance));
  }
}

void PutInOrder(std::vector<std::int32_t>& numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

}  // namespace

Connections::Connections(const Drawing& drawing)
    : pipes_(drawing.Pipes()), slots_(static_cast<std::size_t>(drawing.EntityCount()), -1) {
  for (const std::int32_t pipe : pipes_) {
    slots_[static_cast<std::size_t>(pipe)] = static_cast<std::int32_t>(firstParts_.size());
    firstParts_.push_back(parts_.size());
    if (drawing.Entity(pipe).type == EntityType::Line) {
      parts_.push_back(StraightPart(drawing.PipeOf(pipe).start, drawing.PipeOf(pipe).end));
    } else {
      const PipeCurve curve = drawing.CurveOf(pipe);
      parts_.insert(parts_.end(), curve.begin(), curve.end());
    }
  }
  firstParts_.push_back(parts_.size());
  BuildPoints();
  BuildBodies();
}

void Connections::BuildPoints() {
  std::vector<Box> ends;
  std::vector<Box> middles;
  for (std::int32_t slot = 0; slot < static_cast<std::int32_t>(pipes_.size()); ++slot) {
    for (const std::int32_t end : {2 * slot, 2 * slot + 1}) ends.push_back({EndPoint(end), EndPoint(end)});
    const AcGePoint3d middle = MidPointOf(CurveIn(slot));
    middles.push_back({middle, middle});
  }
  ends_ = BoxTree(ends);
  middles_ = BoxTree(middles);
}

double Connections::MeanSlant() const {
  double sum = 0;
  std::size_t count = 0;
  for (const CurvePart& part : parts_) {
    const double slant = Slant(part);
    sum += slant;
    count += slant > 0 ? 1 : 0;
  }
  return count == 0 ? 0 : sum / static_cast<double>(count);
}

void Connections::BuildBodies() {
  // A quarter of the mean slant: about four pieces for each slanting part, whatever the mix of lengths.
  const double pieceSlant = MeanSlant() / 4;
  std::vector<Box> boxes;
  for (std::int32_t slot = 0; slot < static_cast<std::int32_t>(pipes_.size()); ++slot) {
    for (const CurvePart& part : CurveIn(slot)) {
      ForEachPiece(part, pieceSlant, kTouchRounding, [&](const Box& box) {
        boxes.push_back(box);
        bodySlots_.push_back(slot);
      });
    }
  }
  bodies_ = BoxTree(boxes);
}

std::int32_t Connections::SlotOf(std::int32_t pipe) const {
  return pipe >= 0 && static_cast<std::size_t>(pipe) < slots_.size() ? slots_[static_cast<std::size_t>(pipe)]
                                                                     : -1;
}

std::span<const CurvePart> Connections::CurveIn(std::int32_t slot) const {
  const std::size_t first = firstParts_[static_cast<std::size_t>(slot)];
  return std::span(parts_).subspan(first, firstParts_[static_cast<std::size_t>(slot) + 1] - first);
}

std::span<const CurvePart> Connections::CurveOf(std::int32_t pipe) const {
  const std::int32_t slot = SlotOf(pipe);
  return slot < 0 ? std::span<const CurvePart>() : CurveIn(slot);
}

AcGePoint3d Connections::EndPoint(std::int32_t end) const {
  const std::span<const CurvePart> curve = CurveIn(end / 2);
  return end % 2 == 0 ? curve.front().start : curve.back().end;
}

std::vector<std::int32_t> Connections::ConnectedTo(std::int32_t pipe) const {
  const std::span<const CurvePart> curve = CurveOf(pipe);
  if (curve.empty()) return {};
  std::vector<std::int32_t> connected = PipesAt(curve.front().start);
  const std::vector<std::int32_t> atEnd = PipesAt(curve.back().end);
  connected.insert(connected.end(), atEnd.begin(), atEnd.end());
  for (const PipeEnd& end : EndsOn(pipe)) connected.push_back(end.pipe);
  PutInOrder(connected);
  connected.erase(std::remove(connected.begin(), connected.end(), pipe), connected.end());
  return connected;
}

std::vector<std::int32_t> Connections::PipesAt(const AcGePoint3d& point, double distance) const {
  std::vector<std::int32_t> found;
  for (const std::int32_t body : bodies_.Find(BoxAround(point, point, distance))) {
    const std::int32_t slot = bodySlots_[static_cast<std::size_t>(body)];
    const std::int32_t pipe = pipes_[static_cast<std::size_t>(slot)];
    const bool seen = !found.empty() && found.back() == pipe;
    if (!seen && DistanceTo(CurveIn(slot), point) <= distance) found.push_back(pipe);
  }
  PutInOrder(found);
  return found;
}

std::vector<PipeEnd> Connections::EndsOn(std::int32_t pipe, double distance) const {
  constexpr double kPiecesOfASlant = 8;
  std::vector<std::int32_t> found;
  for (const CurvePart& part : CurveOf(pipe)) {
    ForEachPiece(part, Slant(part) / kPiecesOfASlant, distance, [&](const Box& box) {
      for (const std::int32_t end : ends_.Find(box)) {
        if (part.DistanceTo(EndPoint(end)) <= distance) found.push_back(end);
      }
    });
  }
  PutInOrder(found);
  std::vector<PipeEnd> ends;
  ends.reserve(found.size());
  for (const std::int32_t end : found) {
    ends.push_back({pipes_[static_cast<std::size_t>(end / 2)], end % 2 == 0, EndPoint(end)});
  }
  return ends;
}

std::vector<std::int32_t> Connections::PipesWithMidPoint(const AcGePoint3d& point) const {
  std::vector<std::int32_t> found;
  for (const std::int32_t slot : middles_.Find(BoxAround(point, point, kSamePoint))) {
    found.push_back(pipes_[static_cast<std::size_t>(slot)]);
  }
  PutInOrder(found);
  return found;
}

std::vector<std::int32_t> Connections::PipesNear(const Box& box) const {
  std::vector<std::int32_t> found;
  for (const std::int32_t body : bodies_.Find(box)) {
    found.push_back(pipes_[static_cast<std::size_t>(bodySlots_[static_cast<std::size_t>(body)])]);
  }
  PutInOrder(found);
  return found;
}

}  // namespace zwt
