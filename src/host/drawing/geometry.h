// Points, directions and the curve along a pipe, in drawing units (millimetres). No entity, no file.
#pragma once

#include <span>
#include <vector>

/// A point of the drawing.
struct AcGePoint3d {
  double x = 0;
  double y = 0;
  double z = 0;

  /// The very same coordinates.
  bool operator==(const AcGePoint3d&) const = default;
};

namespace zwt {

/// A difference of points.
struct Vector {
  double x = 0;
  double y = 0;
  double z = 0;
};

Vector operator-(const AcGePoint3d& a, const AcGePoint3d& b);
AcGePoint3d operator+(const AcGePoint3d& point, const Vector& way);
Vector operator*(const Vector& way, double factor);
double Dot(const Vector& a, const Vector& b);
Vector Cross(const Vector& a, const Vector& b);
double Length(const Vector& way);
double Distance(const AcGePoint3d& a, const AcGePoint3d& b);

/// The coordinate system of an entity with an extrusion direction: its X axis is at right angles to the
/// world's Z axis, or to the Y axis where the direction is nearly that of Z (the rule of the drawing format).
class ObjectFrame {
 public:
  /// A direction of length 0 counts as (0, 0, 1).
  explicit ObjectFrame(const Vector& extrusion);

  AcGePoint3d ToWorld(const AcGePoint3d& point) const;
  const Vector& X() const { return x_; }
  const Vector& Y() const { return y_; }
  const Vector& Z() const { return z_; }

 private:
  Vector x_;
  Vector y_;
  Vector z_;
  bool isWorld_ = false;
};

/// A piece of a curve: a straight line, or an arc where radius is above 0.
struct CurvePart {
  AcGePoint3d start;
  AcGePoint3d end;
  AcGePoint3d center;
  Vector toStart;     // unit, from the center
  Vector across;      // unit, a quarter turn on in the sense of the arc
  double radius = 0;  // 0: straight
  double sweep = 0;   // angle of the arc, above 0

  double GetLength() const;
  /// Point at a share of the way, 0 to 1.
  AcGePoint3d PointAt(double share) const;
  /// Direction of travel there, of length 1; all zero where the part has no length.
  Vector DirectionAt(double share) const;
  /// Distance of a point from the nearest point of the part.
  double DistanceTo(const AcGePoint3d& point) const;
};

CurvePart StraightPart(const AcGePoint3d& start, const AcGePoint3d& end);

/// Arc of a polyline between two points of its object coordinates, in world coordinates. bulge is the tangent
/// of a quarter of the angle, above 0 turning left; 0, or points that coincide, give a straight part.
CurvePart BulgePart(const AcGePoint3d& start, const AcGePoint3d& end, double bulge, const ObjectFrame& frame);

/// The way along a pipe, from its start to its end; never without a part.
using PipeCurve = std::vector<CurvePart>;

double LengthOf(std::span<const CurvePart> curve);
/// Point halfway along, and the direction there.
AcGePoint3d MidPointOf(std::span<const CurvePart> curve, Vector* direction = nullptr);
double DistanceTo(std::span<const CurvePart> curve, const AcGePoint3d& point);

}  // namespace zwt

/// Curve of a pipe, as the pipe hands it out; the caller deletes it.
class ZcGeCurve3d {
 public:
  explicit ZcGeCurve3d(zwt::PipeCurve curve);
  virtual ~ZcGeCurve3d();
  ZcGeCurve3d(const ZcGeCurve3d&) = delete;
  ZcGeCurve3d& operator=(const ZcGeCurve3d&) = delete;

  /// The point halfway along.
  AcGePoint3d GetMidPoint() const;

 private:
  zwt::PipeCurve curve_;
};
