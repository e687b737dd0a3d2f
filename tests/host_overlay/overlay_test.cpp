// What panels put over the drawing.
#include "host/overlay/overlay.h"

#include <gmock/gmock.h>

#include "support/drawing_fixture.h"
#include "support/overlay_watch.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OverlayTest : public DrawingTest {};

TEST_F(OverlayTest, NobodyWatchesNothingIsKept) {
  EXPECT_FALSE(IsOverlayWatched());
  PublishOverlay({.title = L"给水"});
  EXPECT_EQ(CurrentOverlay(), nullptr);
}

TEST_F(OverlayTest, TheLastOverlayCounts) {
  OverlayWatch watch;
  PublishOverlay({.title = L"给水"});
  PublishOverlay({.title = L"排水"});
  ASSERT_NE(CurrentOverlay(), nullptr);
  EXPECT_EQ(CurrentOverlay()->title, L"排水");
  EXPECT_EQ(watch.changes, 2);
}

TEST_F(OverlayTest, ClearingTellsTheWatcherOnce) {
  OverlayWatch watch;
  PublishOverlay({.title = L"给水"});
  ClearOverlay();
  ClearOverlay();
  EXPECT_EQ(CurrentOverlay(), nullptr);
  EXPECT_EQ(watch.changes, 2);
}

TEST_F(OverlayTest, CourseOfALineIsItsEnds) {
  const AcDbObjectId pipe = WorkingDrawing().AddPipe({1, 2, 3}, {4, 5, 6});
  EXPECT_THAT(PipeCourse(pipe), ElementsAre(AcGePoint3d{1, 2, 3}, AcGePoint3d{4, 5, 6}));
}

TEST_F(OverlayTest, CourseOfWhatIsNoPipeIsEmpty) {
  EXPECT_THAT(PipeCourse({}), IsEmpty());
  EXPECT_THAT(PipeCourse(WorkingDrawing().AddLine({0, 0, 0}, {1, 0, 0})), IsEmpty());
}

}  // namespace
}  // namespace zwt::test
