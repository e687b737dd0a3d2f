// Diameters and annotations in the drawing.
#include "output/pipe_write_back.h"

#include <gmock/gmock.h>

#include "support/drawing_fixture.h"
#include "support/main_directory_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What went into and out of the drawing.
class Watch : public DrawingObserver {
 public:
  Watch() { WorkingDrawing().AddObserver(this); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch() override { WorkingDrawing().RemoveObserver(this); }
  void OnChange(const DrawingChange& change) override {
    if (change.kind == DrawingChange::Kind::Add) added.push_back(change);
    if (change.kind == DrawingChange::Kind::Erase) erased.push_back(change);
  }
  std::vector<DrawingChange> added;
  std::vector<DrawingChange> erased;
};

class WriteBackTest : public DrawingTest {
 protected:
  static AcDbObjectId AddPipe(const wchar_t* system = L"给水", const wchar_t* material = L"PP-R管(S5)",
                              const wchar_t* diameter = L"25") {
    return WorkingDrawing().AddPipe(
        {0, 0, 0}, {0, 3000, 0}, {{L"WtSystem", system}, {L"Material", material}, {L"Diameter", diameter}});
  }
  MainDirectory directory;
};

TEST_F(WriteBackTest, DiameterGoesIntoThePipe) {
  const AcDbObjectId pipe = AddPipe();
  SetSectionDiameter(pipe, 40);
  EXPECT_EQ(DiameterOf(pipe), 40);
}

TEST_F(WriteBackTest, PipeThatCannotBeOpenedIsPassedOver) {
  const Watch watch;
  SetSectionDiameter(AcDbObjectId{}, 40);
  AnnotatePipeDiameter(AcDbObjectId{});
  EXPECT_THAT(watch.added, IsEmpty());
}

TEST_F(WriteBackTest, UnattachedPipeGetsOneAnnotationAtItsMidpoint) {
  const AcDbObjectId pipe = AddPipe();
  const Watch watch;
  AnnotatePipeDiameter(pipe);
  ASSERT_EQ(watch.added.size(), 1U);
  EXPECT_EQ(watch.added[0].type, L"TEXT");
  EXPECT_EQ(watch.added[0].text, L"dn25");
  EXPECT_EQ(watch.added[0].layer, GetZwtLayer(L"标注", L"管径", L"给水"));
  EXPECT_EQ(WorkingDrawing().AttachedTo(WorkingDrawing().IndexOf(pipe)).size(), 1U);
}

TEST_F(WriteBackTest, SecondAnnotationReplacesTheFirst) {
  const AcDbObjectId pipe = AddPipe();
  const Watch watch;
  AnnotatePipeDiameter(pipe);
  SetSectionDiameter(pipe, 32);
  AnnotatePipeDiameter(pipe);
  ASSERT_EQ(watch.erased.size(), 1U);
  EXPECT_EQ(watch.erased[0].text, L"dn25");
  EXPECT_EQ(watch.added.back().text, L"dn32");
  EXPECT_EQ(WorkingDrawing().AttachedTo(WorkingDrawing().IndexOf(pipe)).size(), 1U);
}

TEST_F(WriteBackTest, AnnotationOfHotWaterLiesOnItsOwnLayer) {
  const Watch watch;
  AnnotatePipeDiameter(AddPipe(L"热水"));
  EXPECT_EQ(watch.added.back().layer, GetZwtLayer(L"标注", L"管径", L"热水"));
}

TEST_F(WriteBackTest, PipeWithoutADiameterShowsZero) {
  const Watch watch;
  AnnotatePipeDiameter(AddPipe(L"给水", L"", L""));
  EXPECT_EQ(watch.added.back().text, L"0");
}

TEST_F(WriteBackTest, FractionalDiameterShowsItsDecimals) {
  const Watch watch;
  AnnotatePipeDiameter(AddPipe(L"给水", L"镀锌钢管", L"22.5"));
  EXPECT_EQ(watch.added.back().text, L"DN22.5");
}

}  // namespace
}  // namespace zwt::test
