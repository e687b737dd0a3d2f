// Where the pointer jumps to.
#include "desktop/snap_points.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

class SnapPointsTest : public testing::Test {
 protected:
  std::optional<SnapPoint> Find(QPointF place, std::optional<QPointF> from = std::nullopt) {
    const DrawingPicker picker(drawing);
    return FindSnapPoint(picker, place, 50, from, [](std::int32_t) { return true; });
  }

  Drawing drawing;
};

TEST_F(SnapPointsTest, EndsAndMiddlesWithinReach) {
  drawing.AddPipe({0, 0, 0}, {0, 1000, 0});
  ASSERT_TRUE(Find({10, 970}));
  EXPECT_EQ(Find({10, 970})->kind, SnapKind::kEnd);
  EXPECT_EQ(Find({10, 970})->place, QPointF(0, 1000));
  EXPECT_EQ(Find({20, 520})->kind, SnapKind::kMiddle);
  EXPECT_EQ(Find({20, 520})->place, QPointF(0, 500));
  EXPECT_FALSE(Find({10, 300}));
  EXPECT_FALSE(Find({60, 1000}));
}

TEST_F(SnapPointsTest, EndWinsOverANearerMiddle) {
  drawing.AddPipe({0, 0, 0}, {0, 60, 0});
  EXPECT_EQ(Find({0, 28})->kind, SnapKind::kEnd);
  EXPECT_EQ(Find({0, 28})->place, QPointF(0, 0));
}

TEST_F(SnapPointsTest, PerpendicularIsTheFootOfALineFromThePointBefore) {
  drawing.AddPipe({0, 0, 0}, {0, 3000, 0});
  const auto snap = Find({15, 1020}, QPointF(2000, 1000));
  ASSERT_TRUE(snap);
  EXPECT_EQ(snap->kind, SnapKind::kPerpendicular);
  EXPECT_EQ(snap->place, QPointF(0, 1000));
  EXPECT_FALSE(Find({15, 1020}));
}

}  // namespace
}  // namespace zwt::test
