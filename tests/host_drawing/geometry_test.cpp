#include "host/drawing/geometry.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "host/drawing/entity_tags.h"

namespace {

using std::numbers::pi;
using zwt::CurvePart;
using zwt::ObjectFrame;
using zwt::PipeCurve;

void ExpectNear(const AcGePoint3d& a, const AcGePoint3d& b, double tolerance = 1e-9) {
  EXPECT_NEAR(a.x, b.x, tolerance);
  EXPECT_NEAR(a.y, b.y, tolerance);
  EXPECT_NEAR(a.z, b.z, tolerance);
}

PipeCurve Read(const std::string& entity) {
  return zwt::ReadPipeCurve(zwt::SplitTags(entity), 1);
}

std::string ErrorOf(const std::string& entity) {
  try {
    Read(entity);
  } catch (const zwt::DrawingError& error) {
    return error.what();
  }
  return "";
}

TEST(Geometry, AHalfCircleTurnsLeftWithABulgeAboveZero) {
  const CurvePart arc = zwt::BulgePart({0, 0, 0}, {2, 0, 0}, 1, ObjectFrame({0, 0, 1}));
  EXPECT_NEAR(arc.GetLength(), pi, 1e-12);
  ExpectNear(arc.PointAt(0.5), {1, -1, 0});
  const CurvePart other = zwt::BulgePart({0, 0, 0}, {2, 0, 0}, -1, ObjectFrame({0, 0, 1}));
  ExpectNear(other.PointAt(0.5), {1, 1, 0});
}

TEST(Geometry, ArcsBeyondAHalfCircle) {
  const double bulge = std::tan(1.5 * pi / 4);
  const CurvePart arc = zwt::BulgePart({1, 0, 0}, {0, -1, 0}, bulge, ObjectFrame({0, 0, 1}));
  EXPECT_NEAR(arc.radius, 1, 1e-12);
  EXPECT_NEAR(arc.sweep, 1.5 * pi, 1e-12);
  ExpectNear(arc.center, {0, 0, 0});
  ExpectNear(arc.PointAt(1), {0, -1, 0});
  EXPECT_NEAR(arc.DistanceTo({-3, 0, 0}), 2, 1e-12);
  EXPECT_NEAR(arc.DistanceTo({std::sqrt(0.5), -std::sqrt(0.5), 0}), std::sqrt(2 - std::sqrt(2.0)), 1e-12);
}

TEST(Geometry, ABulgeThatCannotBeAnArcIsAStraightLine) {
  for (const double bulge : {0.0, 1e-300, 1e300, -1e-13}) {
    const CurvePart part = zwt::BulgePart({0, 0, 0}, {1e9, 0, 0}, bulge, ObjectFrame({0, 0, 1}));
    EXPECT_EQ(part.radius, 0) << bulge;
  }
  EXPECT_EQ(zwt::BulgePart({5, 5, 0}, {5, 5, 0}, 1, ObjectFrame({0, 0, 1})).GetLength(), 0);
}

TEST(Geometry, ObjectFramesFollowTheArbitraryAxisRule) {
  ExpectNear(ObjectFrame({0, 0, -1}).ToWorld({1, 2, 3}), {-1, 2, -3});
  ExpectNear(ObjectFrame({1, 0, 0}).ToWorld({1, 2, 3}), {3, 1, 2});
  ExpectNear(ObjectFrame({0, 0, 0}).ToWorld({1, 2, 3}), {1, 2, 3});
  const ObjectFrame tilted({0.01, 0, 1});
  EXPECT_NEAR(Dot(tilted.X(), tilted.Y()), 0, 1e-15);
  EXPECT_NEAR(tilted.X().x, 1, 1e-3);
}

TEST(Geometry, LightPolylinesGoThroughElevationAndExtrusion) {
  const PipeCurve curve = Read(
      "0\nLWPOLYLINE\n90\n3\n70\n0\n38\n5\n10\n0\n20\n0\n10\n3\n20\n0\n42\n1\n10\n3\n20\n2\n210\n1\n220\n0\n2"
      "30\n0\n");
  ASSERT_EQ(curve.size(), 2U);
  ExpectNear(curve.front().start, {5, 0, 0});
  ExpectNear(curve.back().end, {5, 3, 2});
  EXPECT_NEAR(zwt::LengthOf(curve), 3 + pi, 1e-12);
  ExpectNear(curve[1].PointAt(0.5), {5, 4, 1});
}

TEST(Geometry, AClosedPolylineEndsWhereItBegins) {
  const PipeCurve curve = Read("0\nLWPOLYLINE\n70\n1\n10\n0\n20\n0\n10\n3\n20\n0\n10\n3\n20\n4\n");
  EXPECT_EQ(zwt::LengthOf(curve), 12);
  EXPECT_EQ(curve.front().start, curve.back().end);
}

TEST(Geometry, HeavyPolylinesSkipControlVertices) {
  const std::string vertex = "0\nVERTEX\n10\n";
  const PipeCurve curve = Read("0\nPOLYLINE\n66\n1\n70\n4\n30\n7\n" + vertex + "0\n20\n0\n30\n99\n70\n8\n" +
                               vertex + "50\n20\n50\n70\n16\n" + vertex + "0\n20\n10\n70\n8\n0\nSEQEND\n");
  ASSERT_EQ(curve.size(), 1U);
  EXPECT_EQ(curve[0].start, (AcGePoint3d{0, 0, 7}));
  EXPECT_EQ(curve[0].end, (AcGePoint3d{0, 10, 7}));
}

TEST(Geometry, PolylinesInSpaceTakeTheirVerticesAsTheyAre) {
  const PipeCurve curve = Read(
      "0\nPOLYLINE\n70\n8\n210\n1\n220\n0\n230\n0\n0\nVERTEX\n10\n1\n20\n2\n30\n3\n42\n1\n0\nVERTEX\n10\n1\n2"
      "0\n2\n"
      "30\n9\n0\nSEQEND\n");
  ASSERT_EQ(curve.size(), 1U);
  EXPECT_EQ(curve[0].start, (AcGePoint3d{1, 2, 3}));
  EXPECT_EQ(zwt::LengthOf(curve), 6);
}

TEST(Geometry, WhatAPipeNeedsIsNamedWithItsLine) {
  EXPECT_EQ(ErrorOf("0\nLINE\n10\nabc\n20\n0\n11\n0\n21\n0\n"),
            "line 4: expected a number for a pipe, found \"abc\"");
  EXPECT_EQ(ErrorOf("0\nLINE\n10\n0\n20\n0\n11\n0\n"), "line 1: expected a group 21 in the pipe's LINE");
  EXPECT_EQ(ErrorOf("0\nLINE\n10\n2e15\n20\n0\n11\n0\n21\n0\n"),
            "line 4: expected a number for a pipe, found \"2e15\"");
  EXPECT_EQ(ErrorOf("0\nLWPOLYLINE\n10\n0\n"), "line 5: expected a group 20 behind the group 10");
  EXPECT_EQ(ErrorOf("0\nLWPOLYLINE\n70\n0\n"), "line 1: expected a vertex in the pipe's LWPOLYLINE");
  EXPECT_EQ(ErrorOf("0\nPOLYLINE\n70\n0\n0\nSEQEND\n"), "line 1: expected a vertex in the pipe's POLYLINE");
  EXPECT_EQ(ErrorOf("0\nPOLYLINE\n70\n0\n0\nVERTEX\n10\n0\n20\nx\n0\nSEQEND\n"),
            "line 10: expected a number for a pipe, found \"x\"");
}

TEST(Geometry, TheMidpointLiesHalfwayAlong) {
  const PipeCurve curve =
      Read("0\nLWPOLYLINE\n70\n0\n10\n0\n20\n0\n10\n0\n20\n0\n10\n4\n20\n0\n10\n4\n20\n2\n");
  zwt::Vector direction;
  EXPECT_EQ(zwt::MidPointOf(curve, &direction), (AcGePoint3d{3, 0, 0}));
  EXPECT_EQ(direction.x, 1);
  const PipeCurve point = Read("0\nLINE\n10\n7\n20\n8\n11\n7\n21\n8\n");
  EXPECT_EQ(zwt::MidPointOf(point), (AcGePoint3d{7, 8, 0}));
}

}  // namespace
