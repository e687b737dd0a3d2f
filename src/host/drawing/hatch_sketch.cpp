// The edges of hatches. Their groups count by their order: lists of edges inside of lists of paths.
#include <algorithm>
#include <numbers>

#include "host/drawing/display_curves.h"
#include "host/drawing/entity_sketch.h"

namespace zwt {
namespace {

/// Takes groups one after another.
class HatchReader {
 public:
  HatchReader(EntityGroups& groups, const SketchStyle& style, Sketch& sketch)
      : groups_(groups), tags_(groups.Tags()), style_(style), frame_(groups.Frame()), sketch_(sketch) {}

  void Read() {
    elevation_ = groups_.Real(30, 0);
    while (at_ < tags_.size() && tags_[at_].code != 91) ++at_;
    for (std::int64_t left = Count(91); left > 0 && Sound(); --left) ReadPath();
  }

 private:
  bool Sound() const { return !groups_.IsBroken(); }
  bool IsNext(std::int32_t code) const { return at_ < tags_.size() && tags_[at_].code == code; }

  /// The next group, which must have this code.
  double Take(std::int32_t code) {
    if (IsNext(code)) return groups_.Number(tags_[at_++]);
    groups_.Break();
    return 0;
  }
  std::int64_t TakeFlag(std::int32_t code) { return static_cast<std::int64_t>(Take(code)); }
  /// A number of things to come; each takes a group at least.
  std::int64_t Count(std::int32_t code) {
    const double count = Take(code);
    if (count < 0 || count > static_cast<double>(tags_.size())) groups_.Break();
    return Sound() ? static_cast<std::int64_t>(count) : 0;
  }
  AcGePoint3d TakePoint(std::int32_t code) {
    const double x = Take(code);
    return {x, Take(code + 10), elevation_};
  }
  double TakeAngle(std::int32_t code) { return Take(code) * (std::numbers::pi / 180); }

  void ReadPath() {
    constexpr std::int64_t kPolyline = 2;
    if ((TakeFlag(92) & kPolyline) != 0) {
      ReadPolyline();
    } else {
      ReadEdges();
    }
    if (!IsNext(97)) return;
    for (std::int64_t left = Count(97); left > 0 && IsNext(330); --left) ++at_;
  }

  void ReadPolyline() {
    if (IsNext(72)) Take(72);
    const bool closed = !IsNext(73) || Take(73) != 0;
    struct Corner {
      AcGePoint3d point;
      double bulge;
    };
    std::vector<Corner> corners;
    for (std::int64_t left = Count(93); left > 0 && Sound(); --left) {
      const AcGePoint3d point = TakePoint(10);
      corners.push_back({point, IsNext(42) ? Take(42) : 0});
    }
    if (corners.empty()) return;
    std::vector<AcGePoint3d> path{frame_.ToWorld(corners[0].point)};
    for (std::size_t i = 0; i + (closed ? 0 : 1) < corners.size(); ++i) {
      const AcGePoint3d& next = corners[(i + 1) % corners.size()].point;
      AppendPart(BulgePart(corners[i].point, next, corners[i].bulge, frame_), path);
    }
    if (closed) path.pop_back();
    Draw(path, closed);
  }

  void ReadEdges() {
    for (std::int64_t left = Count(93); left > 0 && Sound(); --left) {
      std::vector<AcGePoint3d> path;
      switch (TakeFlag(72)) {
        case 1:
          path.push_back(TakePoint(10));
          path.push_back(TakePoint(11));
          break;
        case 2:
          ReadArc(path);
          break;
        case 3:
          ReadEllipse(path);
          break;
        case 4:
          ReadSpline(path);
          break;
        default:
          groups_.Break();
      }
      for (AcGePoint3d& point : path) point = frame_.ToWorld(point);
      Draw(path, false);
    }
  }

  void ReadArc(std::vector<AcGePoint3d>& path) {
    const AcGePoint3d center = TakePoint(10);
    const double radius = Take(40);
    AppendTurn(center, {radius, 0, 0}, {0, radius, 0}, path);
  }

  void ReadEllipse(std::vector<AcGePoint3d>& path) {
    const AcGePoint3d center = TakePoint(10);
    const AcGePoint3d major = TakePoint(11);
    const double ratio = Take(40);
    AppendTurn(center, {major.x, major.y, 0}, {-major.y * ratio, major.x * ratio, 0}, path);
  }

  /// The angles of a clockwise arc are those of its mirror image.
  void AppendTurn(const AcGePoint3d& center, const Vector& x, const Vector& y,
                  std::vector<AcGePoint3d>& path) {
    const double start = TakeAngle(50);
    const double sweep = SweepBetween(start, TakeAngle(51));
    const bool clockwise = Take(73) == 0;
    AppendArc(center, x, y * (clockwise ? -1 : 1), start, sweep, path);
  }

  void ReadSpline(std::vector<AcGePoint3d>& path) {
    Spline spline;
    spline.degree = static_cast<int>(std::clamp(Take(94), 0.0, 1000.0));
    Take(73);
    Take(74);
    const std::int64_t knots = Count(95);
    const std::int64_t controls = Count(96);
    for (std::int64_t i = 0; i < knots && Sound(); ++i) spline.knots.push_back(Take(40));
    for (std::int64_t i = 0; i < controls && Sound(); ++i) {
      spline.controls.push_back(TakePoint(10));
      if (IsNext(42)) spline.weights.push_back(Take(42));
    }
    std::vector<AcGePoint3d> fit;
    // Behind the last edge the same group counts the objects that the hatch was made from.
    if (IsNext(97) && at_ + 1 < tags_.size() && tags_[at_ + 1].code == 11) {
      for (std::int64_t left = Count(97); left > 0 && Sound(); --left) fit.push_back(TakePoint(11));
    } else if (IsNext(97) && at_ + 1 < tags_.size() && tags_[at_ + 1].code != 330 &&
               Trimmed(tags_[at_].value) == "0") {
      ++at_;
    }
    for (const std::int32_t tangent : {12, 13}) {
      if (IsNext(tangent)) TakePoint(tangent);
    }
    if (Sound() && !AppendSpline(spline, path)) AppendSmoothCurve(fit, false, path);
  }

  void Draw(const std::vector<AcGePoint3d>& path, bool closed) {
    if (Sound()) sketch_.AddPath(style_, path, closed);
  }

  EntityGroups& groups_;
  std::span<const Tag> tags_;
  SketchStyle style_;
  ObjectFrame frame_;
  Sketch& sketch_;
  std::size_t at_ = 0;
  double elevation_ = 0;
};

}  // namespace

void SketchHatch(EntityGroups& hatch, const SketchStyle& style, Sketch& sketch) {
  HatchReader(hatch, style, sketch).Read();
}

}  // namespace zwt
