// Looking at the drawing and picking in it, with mouse and keys.
#include <gtest/gtest.h>

#include "desktop/select_tool.h"
#include "drawing_desk.h"
#include "host/editor/front_end.h"
#include "host/editor/pipe_selection.h"
#include "host/editor/result_buffer.h"

namespace zwt::test {
namespace {

/// Three pipes and a line: two supply risers at x 0 and 2000, a waste stack at 4000, a bare line at 6000.
class DrawingAreaTest : public testing::Test {
 protected:
  DrawingAreaTest() {
    riserA = Add(0, L"给水");
    riserB = Add(2000, L"给水");
    stack = Add(4000, L"污水");
    desk.Contents().AddLine({6000, 0, 0}, {6000, 3000, 0});
    QCoreApplication::processEvents();
    desk.Area().ZoomToExtents();
  }

  AcDbObjectId Add(double x, const wchar_t* system) {
    return desk.Contents().AddPipe({x, 0, 0}, {x, 3000, 0}, {{L"WtSystem", system}, {L"ELS_TYPE", L"立管"}});
  }

  /// Asks for supply pipes as a command does.
  std::vector<AcDbObjectId> Ask(bool single = false) {
    const PipeQuestion question = {L"\n请选择立管: ", L"给水", L"立管", single};
    ZcDbObjectIdList picked;
    answered = SelectPipes(question, picked);
    std::vector<AcDbObjectId> ids;
    for (picked.MoveToFirst(); !picked.IsOut(); picked.MoveToNext()) ids.push_back(picked.GetCurData());
    return ids;
  }

  using Ids = std::vector<AcDbObjectId>;

  DrawingDesk desk;
  AcDbObjectId riserA;
  AcDbObjectId riserB;
  AcDbObjectId stack;
  bool answered = false;
};

TEST_F(DrawingAreaTest, WheelZoomsAtThePointer) {
  const QPoint pixel(100, 80);
  const QPointF place = desk.Area().View().ToPlace(pixel);
  const double scale = desk.Area().View().Scale();
  desk.Wheel(pixel, 1);
  EXPECT_NEAR(desk.Area().View().Scale(), scale * 1.25, scale * 1e-9);
  EXPECT_NEAR(desk.Area().View().ToPlace(pixel).x(), place.x(), 1e-6);
  desk.Wheel(pixel, -1);
  EXPECT_NEAR(desk.Area().View().Scale(), scale, scale * 1e-9);
}

TEST_F(DrawingAreaTest, MiddleButtonMovesTheDrawing) {
  const QPointF place = desk.Area().View().ToPlace({100, 100});
  QTest::mousePress(&desk.Area(), Qt::MiddleButton, Qt::NoModifier, {100, 100});
  QTest::mouseMove(&desk.Area(), {160, 130});
  QTest::mouseRelease(&desk.Area(), Qt::MiddleButton, Qt::NoModifier, {160, 130});
  EXPECT_NEAR(desk.Area().View().ToPlace({160, 130}).x(), place.x(), 1e-6);
  EXPECT_NEAR(desk.Area().View().ToPlace({160, 130}).y(), place.y(), 1e-6);
}

TEST_F(DrawingAreaTest, DoubleClickOfTheMiddleButtonShowsAll) {
  const QRectF all = desk.Area().View().Shown();
  desk.Wheel({10, 10}, 5);
  EXPECT_NE(desk.Area().View().Shown(), all);
  QTest::mouseDClick(&desk.Area(), Qt::MiddleButton, Qt::NoModifier, {50, 50});
  QTest::mouseRelease(&desk.Area(), Qt::MiddleButton, Qt::NoModifier, {50, 50});
  EXPECT_EQ(desk.Area().View().Shown(), all);
}

TEST_F(DrawingAreaTest, HeldSpaceBarMovesTheDrawingWithTheLeftButton) {
  const QPointF place = desk.Area().View().ToPlace({100, 100});
  desk.AtQuestion([&] {
    QTest::keyPress(&desk.Area(), Qt::Key_Space);
    QTest::mousePress(&desk.Area(), Qt::LeftButton, Qt::NoModifier, {100, 100});
    QTest::mouseMove(&desk.Area(), {40, 70});
    QTest::mouseRelease(&desk.Area(), Qt::LeftButton, Qt::NoModifier, {40, 70});
    QTest::keyRelease(&desk.Area(), Qt::Key_Space);
    EXPECT_TRUE(desk.Window().Editor().IsAsking());
    desk.Press(Qt::Key_Escape);
  });
  Ask();
  EXPECT_NEAR(desk.Area().View().ToPlace({40, 70}).x(), place.x(), 1e-6);
}

TEST_F(DrawingAreaTest, TappedSpaceBarEndsASelection) {
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Space);
  });
  EXPECT_EQ(Ask(), Ids{riserA});
}

TEST_F(DrawingAreaTest, PromptStandsOnTheCommandLineWhileItIsAsked) {
  desk.AtQuestion([&] {
    EXPECT_EQ(desk.Window().CommandLineOf().Prompt(), QStringLiteral("请选择立管:"));
    desk.Press(Qt::Key_Escape);
  });
  EXPECT_TRUE(Ask().empty());
  EXPECT_FALSE(answered);
  EXPECT_EQ(desk.Window().CommandLineOf().Prompt(), QStringLiteral("命令："));
  EXPECT_EQ(desk.Printed(), QStringLiteral("请选择立管: \n*取消*"));
}

TEST_F(DrawingAreaTest, OnlyWhatPassesTheFilterLightsUpAndIsPicked) {
  desk.AtQuestion([&] {
    const auto& tool = dynamic_cast<const SelectTool&>(*desk.Area().Tool());
    desk.MoveTo(0, 1500);
    EXPECT_EQ(tool.Hovered(), 0);
    desk.MoveTo(1000, 1500);
    EXPECT_EQ(tool.Hovered(), -1);
    desk.MoveTo(4000, 1500);
    EXPECT_EQ(tool.Hovered(), -1);
    desk.MoveTo(6000, 1500);
    EXPECT_EQ(tool.Hovered(), -1);
    desk.ClickAt(2000, 1500);
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), (Ids{riserB, riserA}));
  EXPECT_EQ(desk.Printed(), QStringLiteral("请选择立管: \n已选择 1 个。\n已选择 2 个。"));
}

TEST_F(DrawingAreaTest, WhatLightsUpIsSeen) {
  desk.AtQuestion([&] {
    const QPoint pixel = desk.PixelOf(0, 1500);
    const QRgb before = desk.Area().grab().toImage().pixel(pixel);
    desk.MoveTo(0, 1500);
    const QRgb lit = desk.Area().grab().toImage().pixel(pixel);
    EXPECT_NE(lit, before);
    EXPECT_EQ(QColor(lit), QColor(0xff, 0xd5, 0x4f));
    desk.Press(Qt::Key_Escape);
  });
  Ask();
}

TEST_F(DrawingAreaTest, WindowFromLeftToRightTakesWhatLiesWhollyInIt) {
  desk.AtQuestion([&] {
    desk.Drag(-300, 3200, 1000, -200);
    desk.Drag(1500, 2000, 3000, -200);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), Ids{riserA});
}

TEST_F(DrawingAreaTest, CrossingFromRightToLeftTakesWhatItTouches) {
  desk.AtQuestion([&] {
    desk.Drag(5000, 1000, -300, 500);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), (Ids{riserA, riserB}));
}

TEST_F(DrawingAreaTest, WindowByTwoClicksWorksToo) {
  desk.AtQuestion([&] {
    desk.ClickAt(-300, 3200);
    desk.MoveTo(3000, -200);
    desk.ClickAt(3000, -200);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), (Ids{riserA, riserB}));
}

TEST_F(DrawingAreaTest, ClickOnWhatDoesNotPassTheFilterIsToldAndBeginsNoRectangle) {
  desk.AtQuestion([&] {
    desk.ClickAt(4000, 1500);
    desk.ClickAt(0, 1500);
    desk.Drag(4000, 1500, 1500, 1000);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), (Ids{riserA, riserB}));
  EXPECT_EQ(desk.Printed(),
            QStringLiteral("请选择立管: \n这个对象不在可选范围内。\n已选择 1 个。\n已选择 2 个。"));
}

TEST_F(DrawingAreaTest, ShiftTakesOutAgain) {
  desk.AtQuestion([&] {
    desk.Drag(5000, 1000, -300, 500);
    desk.ClickAt(0, 1500, Qt::ShiftModifier);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), Ids{riserB});
  desk.AtQuestion([&] {
    desk.Drag(5000, 1000, -300, 500);
    desk.Drag(3000, 1000, 1000, 500, Qt::ShiftModifier);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), Ids{riserA});
}

TEST_F(DrawingAreaTest, EscapeFirstGivesUpTheRectangle) {
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.ClickAt(-300, 3200);
    desk.Press(Qt::Key_Escape);
    EXPECT_TRUE(desk.Window().Editor().IsAsking());
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), Ids{riserA});
}

TEST_F(DrawingAreaTest, EnterWithoutAPickSelectsNothing) {
  desk.AtQuestion([&] { desk.Press(Qt::Key_Return); });
  EXPECT_TRUE(Ask().empty());
  EXPECT_FALSE(answered);
}

TEST_F(DrawingAreaTest, RightButtonEndsASelection) {
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    QTest::mouseClick(&desk.Area(), Qt::RightButton, Qt::NoModifier, {5, 5});
  });
  EXPECT_EQ(Ask(), Ids{riserA});
}

TEST_F(DrawingAreaTest, SinglePickEndsAtOnce) {
  desk.AtQuestion([&] {
    desk.ClickAt(1000, 1500);
    EXPECT_TRUE(desk.Window().Editor().IsAsking());
    desk.ClickAt(2000, 1500);
  });
  EXPECT_EQ(Ask(true), Ids{riserB});
}

TEST_F(DrawingAreaTest, CommandLineAnswersToo) {
  desk.AtQuestion([&] {
    desk.TypeLine("what");
    desk.TypeLine("all");
    desk.TypeLine("");
  });
  EXPECT_EQ(Ask(), (Ids{riserA, riserB}));
  EXPECT_TRUE(desk.Printed().contains(QStringLiteral("请在图中点取，Enter 结束，Esc 取消。")));
  desk.AtQuestion([&] { QTest::keyClick(&desk.Window().CommandLineOf().Input(), Qt::Key_Escape); });
  Ask();
  EXPECT_FALSE(answered);
}

TEST_F(DrawingAreaTest, WhatIsTypedOverTheDrawingGoesToTheCommandLine) {
  desk.Area().setFocus();
  QTest::keyClick(&desk.Area(), Qt::Key_Z, Qt::NoModifier);
  EXPECT_EQ(desk.Window().CommandLineOf().Input().text(), QStringLiteral("z"));
}

TEST_F(DrawingAreaTest, LayerThatIsOffIsNeitherSeenNorPicked) {
  const AcDbObjectId layer = desk.Contents().InitLayer(L"给水");
  desk.Contents().SetLayer(0, layer, true);
  QCoreApplication::processEvents();
  QListWidgetItem* item = desk.Window().Layers().findItems(QStringLiteral("给水"), Qt::MatchExactly).value(0);
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(item->checkState(), Qt::Checked);
  const QPoint pixel = desk.PixelOf(0, 1500);
  const QRgb drawn = desk.Area().grab().toImage().pixel(pixel);
  const QRect place = desk.Window().Layers().visualItemRect(item);
  QTest::mouseClick(desk.Window().Layers().viewport(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(place.left() + 10, place.center().y()));
  EXPECT_EQ(item->checkState(), Qt::Unchecked);
  EXPECT_NE(desk.Area().grab().toImage().pixel(pixel), drawn);
  EXPECT_FALSE(desk.Contents().Data().layers[1].isOff) << "the drawing itself is not changed";
  desk.AtQuestion([&] {
    desk.Drag(5000, 1000, -300, 500);
    desk.Press(Qt::Key_Return);
  });
  EXPECT_EQ(Ask(), Ids{riserB});
}

TEST_F(DrawingAreaTest, PointPromptGivesThePlaceOfTheClick) {
  desk.AtQuestion([&] { desk.ClickAt(1000, 1500); });
  AcGePoint3d point;
  EXPECT_EQ(acedGetPoint(nullptr, L"\n点: ", &point), RTNORM);
  EXPECT_NEAR(point.x, 1000, desk.Area().View().LengthOf(1));
  EXPECT_NEAR(point.y, 1500, desk.Area().View().LengthOf(1));
  desk.AtQuestion([&] { desk.Press(Qt::Key_Return); });
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), RTNONE);
  desk.AtQuestion([&] { desk.Press(Qt::Key_Escape); });
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), RTCAN);
}

}  // namespace
}  // namespace zwt::test
