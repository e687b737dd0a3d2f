// Geometry: ends that nearly meet, pipes on top of each other, pipes without length, pipes that the model
// does not have. Every place at which a pipe ends or bends is asked for the pipes through it, once.
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <span>
#include <tuple>
#include <utility>

#include "host/check/checked_pipes.h"
#include "host/check/overlap.h"

namespace zwt {
namespace {

constexpr double kReach = kTouch + kTouchRounding;
/// A free end that comes nearer than this was meant to meet, mm.
constexpr double kMostGap = 50;

/// A place where a pipe ends or bends.
struct Corner {
  AcGePoint3d point;
  std::int32_t pipe = 0;
  bool isEnd = false;

  auto Place() const { return std::tie(point.x, point.y, point.z); }
};

/// What a free end misses.
struct Miss {
  std::int32_t pipe = 0;
  double distance = std::numeric_limits<double>::infinity();
};

/// Distance of a point from a part in plan, and the height between the two there.
struct PlanDistance {
  double inPlan = 0;
  double height = 0;
};

PlanDistance PlanDistanceTo(const CurvePart& part, const AcGePoint3d& point) {
  if (part.radius > 0) {
    const AcGePoint3d level{point.x, point.y, part.center.z};
    return {part.DistanceTo(level), std::abs(part.center.z - point.z)};
  }
  const Vector way = part.end - part.start;
  const double square = way.x * way.x + way.y * way.y;
  const Vector to = point - part.start;
  double share = square > 0 ? std::clamp((to.x * way.x + to.y * way.y) / square, 0.0, 1.0) : 0.0;
  // An upright part: the end that is nearer in height.
  if (square == 0 && std::abs(part.end.z - point.z) < std::abs(part.start.z - point.z)) share = 1;
  const AcGePoint3d at = part.PointAt(share);
  return {std::hypot(at.x - point.x, at.y - point.y), std::abs(at.z - point.z)};
}

class GeometryCheck {
 public:
  explicit GeometryCheck(CheckedPipes& pipes)
      : pipes_(pipes),
        connections_(pipes.GetConnections()),
        network_(static_cast<std::size_t>(pipes.GetDrawing().EntityCount())) {
    std::iota(network_.begin(), network_.end(), 0);
  }

  void Run() {
    ReportStrayPipes();
    ReportShortPipes();
    CollectCorners();
    for (std::size_t at = 0; at < corners_.size();) {
      std::size_t next = at + 1;
      while (next < corners_.size() && corners_[next].Place() == corners_[at].Place()) ++next;
      LookAt(std::span(corners_).subspan(at, next - at));
      at = next;
    }
    for (const auto& [pipe, overlap] : overlaps_) ReportOverlap(pipe, overlap);
    std::sort(freeEnds_.begin(), freeEnds_.end(), [](const Corner& a, const Corner& b) {
      return std::tuple(a.pipe, a.Place()) < std::tuple(b.pipe, b.Place());
    });
    for (const Corner& end : freeEnds_) LookAround(end);
  }

 private:
  struct FoundOverlap {
    std::int32_t other = 0;
    Overlap overlap;
  };

  double LengthOfPipe(std::int32_t pipe) const { return pipes_.GetDrawing().PipeOf(pipe).length; }

  void ReportStrayPipes() {
    const Drawing& drawing = pipes_.GetDrawing();
    for (const StrayPipe& stray : drawing.Data().strayPipes) {
      if (stray.block >= 0) {
        const CString& block = drawing.Data().blocks[static_cast<std::size_t>(stray.block)].name;
        pipes_.ReportStray("in-block", L"管道画在图块“" + block + L"”内，不参加计算", stray.start,
                           stray.handle);
        continue;
      }
      const CString text = L"管道画在图纸空间，不参加计算";
      const std::int32_t entity = drawing.FindHandle(stray.handle);
      if (entity >= 0) {
        pipes_.Report("in-paper-space", text, stray.start, {entity});
      } else if (stray.handle == 0) {
        pipes_.ReportStray("in-paper-space", text, stray.start, 0);
      }
    }
  }

  void ReportShortPipes() {
    for (const std::int32_t pipe : pipes_.Pipes()) {
      const double length = LengthOfPipe(pipe);
      if (length > kReach) continue;
      const CString text =
          length == 0 ? CString(L"管道长度为 0") : L"管道长度仅 " + LengthText(length) + L"，不成管段";
      pipes_.Report("zero-length", text, pipes_.GetDrawing().PipeOf(pipe).start, {pipe});
    }
  }

  void CollectCorners() {
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -lowest;
    for (const std::int32_t pipe : pipes_.Pipes()) {
      if (LengthOfPipe(pipe) <= kReach) continue;
      const std::span<const CurvePart> curve = connections_.CurveOf(pipe);
      corners_.push_back({curve.front().start, pipe, true});
      for (const CurvePart& part : curve) corners_.push_back({part.end, pipe, &part == &curve.back()});
      for (const CurvePart& part : curve) {
        lowest = std::min({lowest, part.start.z, part.end.z});
        highest = std::max({highest, part.start.z, part.end.z});
      }
    }
    isFlat_ = !(highest - lowest > kReach);
    std::sort(corners_.begin(), corners_.end(), [](const Corner& a, const Corner& b) {
      return std::tuple(a.Place(), a.pipe) < std::tuple(b.Place(), b.pipe);
    });
  }

  /// Looks at the corners in one point.
  void LookAt(std::span<const Corner> corners) {
    const std::vector<std::int32_t> through = connections_.PipesAt(corners.front().point);
    for (const std::int32_t pipe : through) Join(through.front(), pipe);
    for (const Corner& corner : corners) {
      if (through.size() > 1) SeekOverlap(corner, through);
      if (through.size() == 1 && corner.isEnd && !IsClosed(corner.pipe)) freeEnds_.push_back(corner);
    }
  }

  bool IsClosed(std::int32_t pipe) const {
    const std::span<const CurvePart> curve = connections_.CurveOf(pipe);
    return Distance(curve.front().start, curve.back().end) <= kReach;
  }

  /// Compares a pipe with others through one of its corners. The later of two in drawing order is the one
  /// that lies on the other; for each only the first that it lies on is kept.
  void SeekOverlap(const Corner& corner, std::span<const std::int32_t> through) {
    // Where hundreds meet in one point the first of them have to do.
    constexpr std::size_t kMostCompared = 256;
    for (const std::int32_t other : through.first(std::min(through.size(), kMostCompared))) {
      if (other == corner.pipe || LengthOfPipe(other) <= kReach) continue;
      const std::int32_t upper = std::max(corner.pipe, other);
      const std::int32_t lower = std::min(corner.pipe, other);
      const auto held = overlaps_.find(upper);
      if (held != overlaps_.end() && held->second.other < lower) continue;
      const auto overlap =
          FindOverlap(connections_.CurveOf(upper), connections_.CurveOf(lower), corner.point);
      if (!overlap) continue;
      const bool isBetter = held == overlaps_.end() || lower < held->second.other ||
                            overlap->length > held->second.overlap.length;
      if (isBetter) overlaps_[upper] = {lower, *overlap};
    }
  }

  void ReportOverlap(std::int32_t pipe, const FoundOverlap& found) {
    pipes_.Report("overlap",
                  L"与管道 " + pipes_.NameOf(found.other) + L" 重叠 " + LengthText(found.overlap.length),
                  found.overlap.middle, {pipe, found.other});
  }

  void LookAround(const Corner& end) {
    if (!isFlat_ && ReportPlanOnly(end)) return;
    const Miss miss = NearestMiss(end);
    if (!(miss.distance <= kMostGap + kTouchRounding)) return;
    if (IsReported(end, miss.pipe)) return;
    pipes_.Report(
        "gap",
        L"管端与管道 " + pipes_.NameOf(miss.pipe) + L" 相距 " + LengthText(miss.distance) + L"，未连接",
        end.point, {end.pipe, miss.pipe});
  }

  /// Two ends that face each other are one finding: whether the other one has been told of, else notes this.
  bool IsReported(const Corner& end, std::int32_t other) {
    const std::pair<std::int32_t, std::int32_t> pair = std::minmax(end.pipe, other);
    const auto [from, to] = reported_.equal_range(pair);
    for (auto at = from; at != to; ++at) {
      const AcGePoint3d& held = at->second;
      if (std::hypot(held.x - end.point.x, held.y - end.point.y) <= kMostGap + kTouchRounding) return true;
    }
    reported_.emplace(pair, end.point);
    return false;
  }

  /// Pipes of two systems pass each other on purpose; one without a system may be of any.
  bool MayBelongTogether(std::int32_t pipe, std::int32_t other) const {
    const CString system = pipes_.Text(pipe, L"WtSystem");
    const CString otherSystem = pipes_.Text(other, L"WtSystem");
    return system.empty() || otherSystem.empty() || system == otherSystem;
  }

  Miss NearestMiss(const Corner& end) const {
    Miss nearest;
    std::optional<std::vector<std::int32_t>> connected;
    for (const std::int32_t other : connections_.PipesAt(end.point, kMostGap + kTouchRounding)) {
      if (other == end.pipe || !MayBelongTogether(end.pipe, other)) continue;
      if (!connected) connected = connections_.ConnectedTo(end.pipe);
      // The free end of a short branch from that very pipe.
      if (std::binary_search(connected->begin(), connected->end(), other)) continue;
      const double distance = DistanceTo(connections_.CurveOf(other), end.point);
      if (distance < nearest.distance) nearest = {other, distance};
    }
    return nearest;
  }

  bool ReportPlanOnly(const Corner& end) {
    constexpr double kFarAway = 1e300;
    Box column = BoxAround(end.point, end.point, kReach);
    column.low.z = -kFarAway;
    column.high.z = kFarAway;
    Miss nearest;
    for (const std::int32_t other : connections_.PipesNear(column)) {
      if (NetworkOf(other) == NetworkOf(end.pipe) || !MayBelongTogether(end.pipe, other)) continue;
      for (const CurvePart& part : connections_.CurveOf(other)) {
        const PlanDistance distance = PlanDistanceTo(part, end.point);
        if (distance.inPlan <= kReach && distance.height < nearest.distance)
          nearest = {other, distance.height};
      }
    }
    if (!std::isfinite(nearest.distance)) return false;
    if (IsReported(end, nearest.pipe)) return true;
    pipes_.Report("plan-only",
                  L"管端与管道 " + pipes_.NameOf(nearest.pipe) + L" 仅在平面上相接，标高相差 " +
                      LengthText(nearest.distance),
                  end.point, {end.pipe, nearest.pipe});
    return true;
  }

  std::int32_t NetworkOf(std::int32_t pipe) {
    auto at = static_cast<std::size_t>(pipe);
    while (network_[at] != static_cast<std::int32_t>(at)) {
      network_[at] = network_[static_cast<std::size_t>(network_[at])];
      at = static_cast<std::size_t>(network_[at]);
    }
    return static_cast<std::int32_t>(at);
  }

  void Join(std::int32_t pipe, std::int32_t other) {
    network_[static_cast<std::size_t>(NetworkOf(other))] = NetworkOf(pipe);
  }

  CheckedPipes& pipes_;
  const Connections& connections_;
  std::vector<std::int32_t> network_;  // by entity: another pipe of its network, or itself
  std::vector<Corner> corners_;        // by place
  std::vector<Corner> freeEnds_;
  bool isFlat_ = true;
  std::map<std::int32_t, FoundOverlap> overlaps_;  // by the upper pipe
  std::multimap<std::pair<std::int32_t, std::int32_t>, AcGePoint3d> reported_;
};

}  // namespace

void CheckGeometry(CheckedPipes& pipes) {
  GeometryCheck(pipes).Run();
}

}  // namespace zwt
