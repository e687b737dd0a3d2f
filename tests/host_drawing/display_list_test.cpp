// What of a drawing there is to see.
#include "host/drawing/display_list.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

using test::DrawingOf;
using test::Seen;

TEST(DisplayList, LinesAreSeenFromAbove) {
  EXPECT_EQ(Seen("0 LINE|8 0|10 1|20 2|30 5|11 3|21 4.5|31 9"), "line 1,2 3,4.5\n");
}

TEST(DisplayList, AnUprightLineIsADot) {
  EXPECT_EQ(Seen("0 LINE|8 0|10 1|20 2|11 1|21 2|31 3000"), "line 1,2 1,2\n");
}

TEST(DisplayList, PolylinesOpenAndClosed) {
  EXPECT_EQ(Seen("0 LWPOLYLINE|8 0|90 3|70 0|10 0|20 0|10 5|20 0|10 5|20 5"), "line 0,0 5,0 5,5\n");
  EXPECT_EQ(Seen("0 LWPOLYLINE|8 0|90 3|70 1|10 0|20 0|10 5|20 0|10 5|20 5"), "line 0,0 5,0 5,5 closed\n");
  EXPECT_EQ(Seen("0 POLYLINE|8 0|66 1|70 1|0 VERTEX|8 0|10 0|20 0|0 VERTEX|8 0|10 5|20 0|0 SEQEND|8 0"),
            "line 0,0 5,0 closed\n");
}

TEST(DisplayList, ABulgeOfOneIsAHalfCircle) {
  const DisplayList list =
      MakeDisplayList(*DrawingOf("0 LWPOLYLINE|8 0|90 2|70 0|10 0|20 0|42 1|10 10|20 0"));
  ASSERT_EQ(list.strokes.size(), 1U);
  const auto points = list.PointsOf(list.strokes[0]);
  ASSERT_EQ(points.size(), 49U);  // half of a circle's 96 lines
  EXPECT_EQ(points.front(), (PlanePoint{0, 0}));
  EXPECT_EQ(points.back(), (PlanePoint{10, 0}));
  EXPECT_NEAR(points[24].x, 5, 1e-9);
  EXPECT_NEAR(points[24].y, -5, 1e-9);  // it turns left: below the chord
  for (const PlanePoint& point : points) EXPECT_NEAR(std::hypot(point.x - 5, point.y), 5, 1e-9);
}

TEST(DisplayList, LayersAreKnownWithTheirColours) {
  const char* layers =
      "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|0 LAYER|2 给水|70 0|62 3|0 LAYER|2 关|70 0|62 -1|"
      "0 LAYER|2 冻结|70 1|62 5|0 ENDTAB";
  const DisplayList list =
      MakeDisplayList(*DrawingOf("0 LINE|8 给水|10 0|20 0|11 1|21 0|"
                                 "0 LINE|8 关|10 0|20 0|11 2|21 0|"
                                 "0 LINE|8 冻结|10 0|20 0|11 3|21 0|"
                                 "0 LINE|8 新|10 0|20 0|11 4|21 0",
                                 "", layers));
  EXPECT_EQ(
      test::ListText(list),
      "line 0,0 1,0 给水 #00ff00\nline 0,0 2,0 关 #ff0000\nline 0,0 3,0 冻结 #0000ff\nline 0,0 4,0 新\n");
  ASSERT_EQ(list.layers.size(), 5U);
  EXPECT_TRUE(list.layers[1].shown);
  EXPECT_FALSE(list.layers[2].shown);
  EXPECT_FALSE(list.layers[3].shown);
  EXPECT_TRUE(list.layers[4].shown);
  EXPECT_EQ(list.Extents().high, (PlanePoint{4, 0}));
  EXPECT_EQ(list.strokes[3].entity, 3);
}

TEST(DisplayList, AnEntityHasItsOwnColourOrThatOfItsLayer) {
  const char* line = "0 LINE|8 A|10 0|20 0|11 1|21 0|";
  const auto seen = [line](std::string_view color) {
    return Seen(std::string(line) + std::string(color), "",
                "0 TABLE|2 LAYER|0 LAYER|2 A|62 1|420 65793|0 ENDTAB");
  };
  EXPECT_EQ(seen("62 256"), "line 0,0 1,0 #010101\n");
  EXPECT_EQ(seen("62 2"), "line 0,0 1,0 #ffff00\n");
  EXPECT_EQ(seen("62 7"), "line 0,0 1,0\n");
  EXPECT_EQ(seen("62 0"), "line 0,0 1,0\n");
  EXPECT_EQ(seen("62 2|420 16711935"), "line 0,0 1,0 #ff00ff\n");
}

TEST(DisplayList, ABrokenEntityIsLeftOutAndCounted) {
  const DisplayList list = MakeDisplayList(
      *DrawingOf("0 LINE|8 0|10 x|20 0|11 1|21 0|0 LINE|8 0|10 0|20 0|0 LINE|8 0|10 1e300|20 0|11 "
                 "1|21 0|0 LINE|8 0|10 0|20 0|11 1|21 0"));
  EXPECT_EQ(test::ListText(list), "line 0,0 1,0\n");
  EXPECT_EQ(list.leftOut, 3);
}

}  // namespace
}  // namespace zwt
