// Picking by distance and by rectangle.
#include "desktop/drawing_picker.h"

#include <gtest/gtest.h>

#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

bool All(std::int32_t) {
  return true;
}

TEST(DrawingPicker, NearestWithinReachIsFound) {
  Drawing drawing;
  drawing.AddLine({0, 0, 0}, {1000, 0, 0});
  drawing.AddPipe({0, 100, 0}, {1000, 100, 0});
  const DrawingPicker picker(drawing);
  EXPECT_EQ(picker.Nearest({500, 20}, 30, All), 0);
  EXPECT_EQ(picker.Nearest({500, 85}, 30, All), 1);
  EXPECT_EQ(picker.Nearest({500, 50}, 30, All), -1);
  EXPECT_EQ(picker.Nearest({1020, 0}, 30, All), 0);
  EXPECT_EQ(picker.Nearest({1040, 0}, 30, All), -1);
}

TEST(DrawingPicker, OfSeveralAtTheSameDistanceTheFirstInDrawingOrder) {
  Drawing drawing;
  drawing.AddLine({0, 0, 0}, {1000, 0, 0});
  drawing.AddLine({0, 0, 0}, {1000, 0, 0});
  const DrawingPicker picker(drawing);
  EXPECT_EQ(picker.Nearest({500, 0}, 5, All), 0);
  EXPECT_EQ(picker.Nearest({500, 0}, 5, [](std::int32_t entity) { return entity == 1; }), 1);
}

TEST(DrawingPicker, SlantingLineIsTouchedOnlyWhereItPasses) {
  Drawing drawing;
  drawing.AddLine({0, 0, 0}, {1000, 1000, 0});
  const DrawingPicker picker(drawing);
  EXPECT_EQ(picker.Touching(QRectF(600, 0, 100, 100), All), std::vector<std::int32_t>{});
  EXPECT_EQ(picker.Touching(QRectF(450, 450, 100, 100), All), std::vector<std::int32_t>{0});
  EXPECT_EQ(picker.Inside(QRectF(450, 450, 100, 100), All), std::vector<std::int32_t>{});
  EXPECT_EQ(picker.Inside(QRectF(0, 0, 1000, 1000), All), std::vector<std::int32_t>{0});
}

TEST(DrawingPicker, ErasedEntitiesAndTextsAreNotPicked) {
  Drawing drawing;
  drawing.AddLine({0, 0, 0}, {1000, 0, 0});
  TextValues text;
  text.content = L"DN50";
  drawing.AddText(text);
  drawing.Erase(0);
  const DrawingPicker picker(drawing);
  EXPECT_TRUE(picker.Touching(QRectF(-1e6, -1e6, 2e6, 2e6), All).empty());
  EXPECT_TRUE(picker.ShapeOf(1).empty());
}

TEST(DrawingPicker, UprightPipeIsAPointSeenFromAbove) {
  Drawing drawing;
  drawing.AddPipe({50, 60, 0}, {50, 60, 3000});
  const DrawingPicker picker(drawing);
  EXPECT_EQ(picker.Nearest({52, 60}, 3, All), 0);
  EXPECT_EQ(picker.Inside(QRectF(0, 0, 100, 100), All), std::vector<std::int32_t>{0});
}

TEST(DrawingPicker, ArcOfAPolylineIsHitOnTheArc) {
  // A half circle of radius 500 from (0, 0) to (1000, 0), turning left: it passes below.
  const auto drawing = ParseDrawing(
      "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n5\nA\n100\nAcDbEntity\n8\n0\n100\nAcDbPolyline\n90\n2\n70\n0\n"
      "10\n0\n20\n0\n42\n1\n10\n1000\n20\n0\n0\nENDSEC\n0\nEOF\n");
  const DrawingPicker picker(*drawing);
  EXPECT_EQ(picker.Nearest({500, -500}, 2, All), 0);
  EXPECT_EQ(picker.Nearest({500, 0}, 100, All), -1);
  EXPECT_NEAR(picker.BoundsOf(0).top(), -500, 1);
}

}  // namespace
}  // namespace zwt::test
