#include "host/drawing/display_curves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace zwt {
namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;

int LinesOfArc(double sweep) {
  // A sweep of exactly a part of the circle must not take one more for its last digit.
  const double lines = std::ceil(std::abs(sweep) / kFullTurn * kLinesOfCircle - 1e-6);
  return std::max(kFewestLinesOfArc, static_cast<int>(std::min(lines, double{kLinesOfCircle})));
}

}  // namespace

void AppendArc(const AcGePoint3d& center, const Vector& x, const Vector& y, double start, double sweep,
               std::vector<AcGePoint3d>& points) {
  const int lines = LinesOfArc(sweep);
  for (int i = 0; i <= lines; ++i) {
    const double angle = start + sweep * i / lines;
    points.push_back(center + x * std::cos(angle) + y * std::sin(angle));
  }
}

void AppendPart(const CurvePart& part, std::vector<AcGePoint3d>& points) {
  if (part.radius > 0) {
    const int lines = LinesOfArc(part.sweep);
    for (int i = 1; i < lines; ++i) points.push_back(part.PointAt(static_cast<double>(i) / lines));
  }
  points.push_back(part.end);
}

double SweepBetween(double start, double end) {
  double sweep = std::fmod(end - start, kFullTurn);
  if (sweep <= 0) sweep += kFullTurn;
  return sweep;
}

namespace {

/// Higher degrees than this occur in broken files alone, and their cost grows with the square.
constexpr int kHighestDegree = 25;
constexpr int kLeastHalvings = 2;
constexpr int kMostHalvings = 7;
/// How far a line may be off the curve, as a part of the curve's size.
constexpr double kTolerance = 0.0005;

struct WeightedPoint {
  double x = 0;
  double y = 0;
  double z = 0;
  double w = 1;
};

WeightedPoint Mix(const WeightedPoint& a, const WeightedPoint& b, double share) {
  const auto mixed = [share](double from, double to) { return from * (1 - share) + to * share; };
  return {mixed(a.x, b.x), mixed(a.y, b.y), mixed(a.z, b.z), mixed(a.w, b.w)};
}

bool IsSound(const Spline& spline) {
  const std::size_t count = spline.controls.size();
  if (spline.degree < 1 || spline.degree > kHighestDegree) return false;
  const auto degree = static_cast<std::size_t>(spline.degree);
  if (count <= degree || spline.knots.size() != count + degree + 1) return false;
  if (!spline.weights.empty() && spline.weights.size() != count) return false;
  const auto isPositive = [](double weight) { return weight > 0; };
  return std::is_sorted(spline.knots.begin(), spline.knots.end()) &&
         std::all_of(spline.weights.begin(), spline.weights.end(), isPositive) &&
         spline.knots[count] > spline.knots[degree];
}

double SizeOf(std::span<const AcGePoint3d> points) {
  AcGePoint3d low = points[0];
  AcGePoint3d high = points[0];
  for (const AcGePoint3d& point : points) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
  }
  return Distance(low, high);
}

/// Makes points of one spline, one span of its knots after another.
class SplineWalk {
 public:
  SplineWalk(const Spline& spline, std::vector<AcGePoint3d>& points)
      : spline_(spline), points_(points), tolerance_(SizeOf(spline.controls) * kTolerance) {}

  void Walk() {
    const auto degree = static_cast<std::size_t>(spline_.degree);
    points_.push_back(PointAt(degree, spline_.knots[degree]));
    for (span_ = degree; span_ < spline_.controls.size(); ++span_) {
      const double from = spline_.knots[span_];
      const double to = spline_.knots[span_ + 1];
      if (to > from) Divide(from, points_.back(), to, PointAt(span_, to), 0);
    }
  }

 private:
  /// By de Boor's scheme; the span must be one of the knots around the parameter.
  AcGePoint3d PointAt(std::size_t span, double parameter) const {
    const auto degree = static_cast<std::size_t>(spline_.degree);
    std::array<WeightedPoint, kHighestDegree + 1> near;
    for (std::size_t i = 0; i <= degree; ++i) {
      const AcGePoint3d& point = spline_.controls[span - degree + i];
      const double w = spline_.weights.empty() ? 1 : spline_.weights[span - degree + i];
      near[i] = {point.x * w, point.y * w, point.z * w, w};
    }
    for (std::size_t level = 1; level <= degree; ++level) {
      for (std::size_t i = degree; i >= level; --i) {
        const double low = spline_.knots[span - degree + i];
        const double wide = spline_.knots[span + 1 + i - level] - low;
        near[i] = Mix(near[i - 1], near[i], wide > 0 ? (parameter - low) / wide : 0);
      }
    }
    const WeightedPoint& found = near[degree];
    return {found.x / found.w, found.y / found.w, found.z / found.w};
  }

  void Divide(double from, const AcGePoint3d& start, double to, const AcGePoint3d& end, int halvings) {
    const double middle = from + (to - from) / 2;
    const AcGePoint3d between = PointAt(span_, middle);
    const bool flat = StraightPart(start, end).DistanceTo(between) <= tolerance_;
    if (halvings < kMostHalvings && (halvings < kLeastHalvings || !flat)) {
      Divide(from, start, middle, between, halvings + 1);
      Divide(middle, between, to, end, halvings + 1);
    } else {
      points_.push_back(end);
    }
  }

  const Spline& spline_;
  std::vector<AcGePoint3d>& points_;
  double tolerance_;
  std::size_t span_ = 0;
};

/// Point between b and c of the curve that passes a, b, c and d, its direction at each being that of its
/// neighbours.
AcGePoint3d SmoothPoint(const std::array<AcGePoint3d, 4>& near, double share) {
  const auto mixed = [share](double a, double b, double c, double d) {
    return b + share / 2 * ((c - a) + share * ((2 * a - 5 * b + 4 * c - d) + share * (3 * (b - c) + d - a)));
  };
  const auto& [a, b, c, d] = near;
  return {mixed(a.x, b.x, c.x, d.x), mixed(a.y, b.y, c.y, d.y), mixed(a.z, b.z, c.z, d.z)};
}

}  // namespace

bool AppendSpline(const Spline& spline, std::vector<AcGePoint3d>& points) {
  if (!IsSound(spline)) return false;
  SplineWalk(spline, points).Walk();
  return true;
}

void AppendSmoothCurve(std::span<const AcGePoint3d> through, bool closed, std::vector<AcGePoint3d>& points) {
  constexpr int kLines = 12;
  if (through.empty()) return;
  points.push_back(through[0]);
  const std::size_t count = through.size();
  if (count == 1) return;
  if (count == 2) {
    points.push_back(through[1]);
    return;
  }
  const auto at = [&](std::size_t i,
                      std::size_t step) {  // through[i + step - 1]; ends stand for what lies beyond
    if (closed) return through[(i + count + step - 1) % count];
    return through[std::clamp<std::size_t>(i + step, 1, count) - 1];
  };
  for (std::size_t i = 0; i < (closed ? count : count - 1); ++i) {
    for (int line = 1; line <= kLines; ++line) {
      points.push_back(
          SmoothPoint({at(i, 0), at(i, 1), at(i, 2), at(i, 3)}, static_cast<double>(line) / kLines));
    }
  }
}

}  // namespace zwt
