// Curves as lines through points: fine enough for the size of the curve, whatever that is.
#pragma once

#include <span>
#include <vector>

#include "host/drawing/geometry.h"

namespace zwt {

/// Lines of a whole circle. The middle of each is off the circle by 0.00054 of its radius.
constexpr int kLinesOfCircle = 96;
/// Fewest lines of an arc: flat arcs of large radius are seen as curves, too.
constexpr int kFewestLinesOfArc = 8;

/// Appends the points center + x cos(a) + y sin(a), a from start on over sweep (radians, below 0 backward),
/// both ends included.
void AppendArc(const AcGePoint3d& center, const Vector& x, const Vector& y, double start, double sweep,
               std::vector<AcGePoint3d>& points);

/// Appends the end of a polyline's part, and where it is an arc the points before it.
void AppendPart(const CurvePart& part, std::vector<AcGePoint3d>& points);

/// Sweep of an arc counter-clockwise from one angle to another, above 0 and at most a full turn.
double SweepBetween(double start, double end);

/// A rational B-spline as drawing files hold it.
struct Spline {
  int degree = 0;
  std::vector<double> knots;
  std::vector<AcGePoint3d> controls;
  std::vector<double> weights;  // empty: all are 1
};

/// Appends the points of a spline. False, and nothing appended, where numbers and knots don't fit together.
bool AppendSpline(const Spline& spline, std::vector<AcGePoint3d>& points);

/// Appends points of a smooth curve through points; of two a line.
void AppendSmoothCurve(std::span<const AcGePoint3d> through, bool closed, std::vector<AcGePoint3d>& points);

}  // namespace zwt
