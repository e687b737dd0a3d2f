// What each kind of entity shows.
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "host/drawing/display_curves.h"
#include "host_drawing/seen.h"

namespace zwt {
namespace {

using test::DrawingOf;
using test::PointText;
using test::Seen;

/// Points of the only stroke of these entities.
std::vector<PlanePoint> Stroke(std::string_view entities) {
  const DisplayList list = MakeDisplayList(*DrawingOf(entities));
  EXPECT_EQ(list.strokes.size(), 1U);
  if (list.strokes.size() != 1) return {{}, {}};
  const auto points = list.PointsOf(list.strokes[0]);
  return {points.begin(), points.end()};
}

std::string Ends(const std::vector<PlanePoint>& path) {
  return PointText(path.front()) + " to " + PointText(path.back());
}

std::string Box(std::string_view entities) {
  const PlaneBox box = BoxOf(Stroke(entities));
  return PointText(box.low) + " to " + PointText(box.high);
}

TEST(EntityKinds, ACircleIsClosedAndHasNinetySixLines) {
  const DisplayList list = MakeDisplayList(*DrawingOf("0 CIRCLE|8 0|10 5|20 6|40 2"));
  ASSERT_EQ(list.strokes.size(), 1U);
  EXPECT_TRUE(list.strokes[0].closed);
  EXPECT_EQ(list.strokes[0].count, 96U);
  EXPECT_EQ(Box("0 CIRCLE|8 0|10 5|20 6|40 2"), "3,4 to 7,8");
}

TEST(EntityKinds, CurvesAreFlattenedByTheirOwnSize) {
  for (const char* radius : {"0.001", "1", "1000000000"}) {
    const std::vector<PlanePoint> path = Stroke("0 CIRCLE|8 0|10 0|20 0|40 " + std::string(radius));
    const double size = std::stod(radius);
    EXPECT_EQ(path.size(), 96U);
    const double middle = std::hypot(path[0].x + path[1].x, path[0].y + path[1].y) / 2;
    EXPECT_GT(middle, size * 0.999);
  }
  // A flat arc of a large circle is seen as a curve all the same.
  EXPECT_EQ(Stroke("0 ARC|8 0|10 0|20 0|40 1000000|50 89|51 91").size(), 9U);
}

TEST(EntityKinds, AnArcRunsCounterClockwise) {
  const std::vector<PlanePoint> path = Stroke("0 ARC|8 0|10 0|20 0|40 10|50 270|51 90");
  EXPECT_EQ(Ends(path), "0,-10 to 0,10");
  EXPECT_EQ(path.size(), 49U);
  EXPECT_EQ(PointText(path[24]), "10,0");
}

TEST(EntityKinds, AnArcThatEndsWhereItBeginsIsAWholeTurn) {
  EXPECT_EQ(Stroke("0 ARC|8 0|10 0|20 0|40 10|50 30|51 30").size(), 97U);
}

TEST(EntityKinds, AnEllipseHasItsAxesAndItsParameters) {
  EXPECT_EQ(Box("0 ELLIPSE|8 0|10 0|20 0|11 0|21 10|40 0.5|41 0|42 6.283185307179586"), "-5,-10 to 5,10");
  const std::vector<PlanePoint> half =
      Stroke("0 ELLIPSE|8 0|10 0|20 0|11 10|21 0|40 0.5|41 0|42 3.141592653589793");
  EXPECT_EQ(Ends(half), "10,0 to -10,0");
  EXPECT_EQ(PointText(half[half.size() / 2]), "0,5");
}

constexpr std::string_view kCurve =
    "0 SPLINE|8 0|70 8|71 3|72 8|73 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|";

TEST(EntityKinds, ASplineFollowsItsControlPoints) {
  const std::vector<PlanePoint> path =
      Stroke(std::string(kCurve) + "10 0|20 0|30 0|10 0|20 10|30 0|10 10|20 10|30 0|10 10|20 0|30 0");
  EXPECT_EQ(Ends(path), "0,0 to 10,0");
  EXPECT_EQ(PointText(path[path.size() / 2]), "5,7.5");
}

TEST(EntityKinds, AWeightedSplineIsAQuarterOfACircle) {
  const std::vector<PlanePoint> path = Stroke(
      "0 SPLINE|8 0|70 12|71 2|72 6|73 3|40 0|40 0|40 0|40 1|40 1|40 1|41 1|41 0.7071067811865476|41 1|"
      "10 10|20 0|10 10|20 10|10 0|20 10");
  EXPECT_EQ(Ends(path), "10,0 to 0,10");
  for (const PlanePoint& point : path) EXPECT_NEAR(std::hypot(point.x, point.y), 10, 1e-9);
}

TEST(EntityKinds, ASplineOfSeveralSpansPassesTheirJoints) {
  // Of degree 1 the curve is the polygon itself.
  const std::vector<PlanePoint> path =
      Stroke("0 SPLINE|8 0|71 1|40 0|40 0|40 1|40 2|40 2|10 0|20 0|10 5|20 5|10 10|20 0");
  bool passes = false;
  for (const PlanePoint& point : path) passes = passes || point == PlanePoint{5, 5};
  EXPECT_TRUE(passes);
  EXPECT_EQ(Ends(path), "0,0 to 10,0");
}

TEST(EntityKinds, ASplineWithoutControlPointsPassesItsFitPoints) {
  const std::vector<PlanePoint> path = Stroke("0 SPLINE|8 0|71 3|74 3|11 0|21 0|11 5|21 5|11 10|21 0");
  EXPECT_EQ(Ends(path), "0,0 to 10,0");
  EXPECT_EQ(PointText(path[12]), "5,5");
}

TEST(EntityKinds, ASplineWhoseKnotsDoNotFitIsLeftOut) {
  EXPECT_EQ(Seen("0 SPLINE|8 0|71 3|40 0|40 1|10 0|20 0|10 1|20 1"), "");
  EXPECT_EQ(Seen("0 SPLINE|8 0|71 1|40 0|40 0|40 nan|40 1|10 0|20 0|10 1|20 1"), "");
  EXPECT_EQ(Seen("0 SPLINE|8 0|71 1|40 1|40 1|40 0|40 0|10 0|20 0|10 1|20 1"), "");
}

TEST(EntityKinds, PolylinesInSpaceKeepTheirHeightsOutOfThePicture) {
  EXPECT_EQ(
      Seen("0 POLYLINE|8 0|66 1|70 8|0 VERTEX|8 0|70 32|10 0|20 0|30 0|0 VERTEX|8 0|70 32|10 5|20 1|30 900|"
           "0 SEQEND|8 0"),
      "line 0,0 5,1\n");
}

TEST(EntityKinds, ControlVerticesAndMeshesAreNotDrawn) {
  EXPECT_EQ(Seen("0 POLYLINE|8 0|66 1|70 4|0 VERTEX|8 0|70 16|10 9|20 9|0 VERTEX|8 0|70 8|10 0|20 0|"
                 "0 VERTEX|8 0|70 8|10 5|20 1|0 SEQEND|8 0"),
            "line 0,0 5,1\n");
  EXPECT_EQ(
      Seen("0 POLYLINE|8 0|66 1|70 64|0 VERTEX|8 0|70 192|10 9|20 9|0 VERTEX|8 0|70 192|10 0|20 0|0 SEQEND"),
      "");
}

TEST(EntityKinds, PointsAreMarks) {
  EXPECT_EQ(Seen("0 POINT|8 0|10 3|20 4"), "point 3,4\n");
}

TEST(EntityKinds, SolidsAndTracesAreAreasWithTheirLastCornersSwapped) {
  EXPECT_EQ(Seen("0 SOLID|8 0|10 0|20 0|11 5|21 0|12 0|22 5|13 5|23 5"), "area 0,0 5,0 5,5 0,5 closed\n");
  EXPECT_EQ(Seen("0 TRACE|8 0|10 0|20 0|11 5|21 0|12 0|22 5|13 5|23 5"), "area 0,0 5,0 5,5 0,5 closed\n");
  EXPECT_EQ(Seen("0 SOLID|8 0|10 0|20 0|11 5|21 0|12 0|22 5|13 0|23 5"), "area 0,0 5,0 0,5 closed\n");
  EXPECT_EQ(Seen("0 SOLID|8 0|10 0|20 0|11 5|21 0|12 0|22 5"), "area 0,0 5,0 0,5 closed\n");
}

TEST(EntityKinds, FacesAndLeadersAreLines) {
  EXPECT_EQ(Seen("0 3DFACE|8 0|10 0|20 0|11 5|21 0|12 5|22 5|13 0|23 5"), "line 0,0 5,0 5,5 0,5 closed\n");
  EXPECT_EQ(Seen("0 LEADER|8 0|76 2|10 0|20 0|30 0|10 5|20 5|30 0"), "line 0,0 5,5\n");
}

TEST(EntityKinds, AnExtrusionDownwardMirrors) {
  constexpr std::string_view kDown = "|210 0|220 0|230 -1";
  EXPECT_EQ(Seen("0 LWPOLYLINE|8 0|90 2|10 1|20 2|10 3|20 4" + std::string(kDown)), "line -1,2 -3,4\n");
  const std::vector<PlanePoint> arc = Stroke("0 ARC|8 0|10 0|20 0|40 10|50 0|51 90" + std::string(kDown));
  EXPECT_EQ(Ends(arc), "-10,0 to 0,10");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|40 2.5|1 A" + std::string(kDown)),
            "text A at -1,2 height 2.5 width -1\n");
}

TEST(EntityKinds, AnUprightPlaneIsSeenFromItsEdge) {
  EXPECT_EQ(Seen("0 LWPOLYLINE|8 0|90 2|38 7|10 1|20 2|10 3|20 4|210 0|220 -1|230 0"), "line 1,-7 3,-7\n");
  EXPECT_EQ(Seen("0 TEXT|8 0|10 1|20 2|40 2.5|1 A|210 0|220 -1|230 0"), "");
}

TEST(EntityKinds, WhatAnEntityHidesIsNotSeen) {
  EXPECT_EQ(Seen("0 LINE|8 0|60 1|10 0|20 0|11 1|21 1"), "");
}

TEST(EntityKinds, TheTwoSpacesAreSeenApart) {
  const auto drawing = DrawingOf("0 LINE|8 0|10 0|20 0|11 1|21 1|0 LINE|8 0|67 1|10 0|20 0|11 2|21 2");
  EXPECT_EQ(test::ListText(MakeDisplayList(*drawing)), "line 0,0 1,1\n");
  EXPECT_EQ(test::ListText(MakeDisplayList(*drawing, DisplaySpace::Paper)), "line 0,0 2,2\n");
}

constexpr std::string_view kHatch = "0 HATCH|8 0|10 0|20 0|30 0|230 1|2 SOLID|70 1|71 0|";

TEST(EntityKinds, AHatchShowsItsPolylines) {
  EXPECT_EQ(
      Seen(std::string(kHatch) + "91 2|92 2|72 0|73 1|93 3|10 0|20 0|10 5|20 0|10 5|20 5|97 1|330 1F|"
                                 "92 18|72 0|73 0|93 2|10 1|20 1|10 2|20 2|97 0|75 0|76 1|98 1|10 9|20 9"),
      "line 0,0 5,0 5,5 closed\nline 1,1 2,2\n");
}

TEST(EntityKinds, AHatchShowsEveryKindOfEdge) {
  const auto drawing = DrawingOf(std::string(kHatch) +
                                 "91 1|92 1|93 4|72 1|10 0|20 0|11 5|21 0|"
                                 "72 2|10 0|20 0|40 5|50 0|51 90|73 1|"
                                 "72 3|10 0|20 0|11 10|21 0|40 0.5|50 0|51 90|73 0|"
                                 "72 4|94 1|73 0|74 0|95 4|96 2|40 0|40 0|40 1|40 1|10 1|20 1|10 2|20 3|97 0|"
                                 "97 0|75 0|76 1|98 0");
  const DisplayList list = MakeDisplayList(*drawing);
  ASSERT_EQ(list.strokes.size(), 4U);
  std::string ends;
  for (const DisplayPath& edge : list.strokes) {
    const auto points = list.PointsOf(edge);
    ends += Ends({points.begin(), points.end()}) + "\n";
  }
  EXPECT_EQ(ends, "0,0 to 5,0\n5,0 to 0,5\n10,0 to 0,-5\n1,1 to 2,3\n");
}

TEST(EntityKinds, AHatchThatIsCutIsLeftOutAsAWhole) {
  const auto drawing = DrawingOf(std::string(kHatch) +
                                 "91 2|92 2|72 0|73 1|93 3|10 0|20 0|10 5|20 0|10 5|20 5|97 0|92 2|72 0");
  const DisplayList list = MakeDisplayList(*drawing);
  EXPECT_EQ(list.strokes.size(), 0U);
  EXPECT_EQ(list.leftOut, 1);
}

TEST(EntityKinds, CountsBeyondTheHatchDoNotHang) {
  EXPECT_EQ(Seen(std::string(kHatch) + "91 2000000000|92 2|72 0|73 1|93 2000000000|10 0|20 0"), "");
}

}  // namespace
}  // namespace zwt
