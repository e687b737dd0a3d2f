// Selecting, properties, drawing pipes, checking: with mouse and keys.
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include "drawing_desk.h"
#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

class DrawingEditsTest : public testing::Test {
 protected:
  template <typename Widget>
  Widget& Find(const char* name) {
    auto* widget = desk.Window().findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) throw std::logic_error(name);
    return *widget;
  }
  void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
  void Raise(const char* dock) { Find<QDockWidget>(dock).raise(); }

  /// Clicks into a field of the property view, types over it, Enter.
  void Enter(const wchar_t* key, const char* text) {
    QLineEdit* field = desk.Window().Edits().Properties().FieldOf(key)->lineEdit();
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QInputMethodEvent typed;  // as Chinese is typed
    typed.setCommitString(QString::fromUtf8(text));
    QCoreApplication::sendEvent(field, &typed);
    QTest::keyClick(field, Qt::Key_Return);
    QCoreApplication::processEvents();
  }
  QString Shown(const wchar_t* key) { return desk.Window().Edits().Properties().FieldOf(key)->currentText(); }
  CString Field(std::int32_t pipe, const wchar_t* key) {
    CString text;
    desk.Contents().GetField(pipe, key, text);
    return text;
  }
  void Fit() {
    QCoreApplication::processEvents();
    desk.Area().ZoomToExtents();
  }

  /// A file of bare lines: a riser of two storeys with a branch on each, as designers draw it.
  std::filesystem::path WriteBareLines(const wchar_t* layerName) {
    Drawing drawing;
    const AcDbObjectId layer = drawing.InitLayer(layerName);
    for (int storey = 0; storey < 2; ++storey) {
      const double y = storey * 2900.0;
      drawing.AddLine({0, y, 0}, {0, y + 2900, 0}, layer);
      drawing.AddLine({0, y + 1000, 0}, {2500, y + 1000, 0}, layer);
    }
    const std::filesystem::path file = desk.Folder() / "bare.dxf";
    SaveDrawing(drawing, file);
    return file;
  }

  DrawingDesk desk;
};

TEST_F(DrawingEditsTest, ClickSelectsAndThePropertiesShowIt) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"WtSystem", L"给水"}, {L"Material", L"铜管"}});
  desk.Contents().AddPipe({2000, 0, 0}, {2000, 3000, 0}, {{L"WtSystem", L"给水"}, {L"Material", L"钢管"}});
  Fit();
  desk.ClickAt(0, 1500);
  EXPECT_EQ(desk.Window().Edits().Selected(), std::vector<std::int32_t>{0});
  EXPECT_EQ(Shown(L"Material"), QStringLiteral("铜管"));
  desk.ClickAt(2000, 1500);
  EXPECT_EQ(Shown(L"WtSystem"), QStringLiteral("给水"));
  EXPECT_EQ(Shown(L"Material"), QString());
  EXPECT_EQ(desk.Window().Edits().Properties().FieldOf(L"Material")->lineEdit()->placeholderText(),
            QStringLiteral("（多种）"));
  desk.Press(Qt::Key_Escape);
  EXPECT_TRUE(desk.Window().Edits().Selected().empty());
}

TEST_F(DrawingEditsTest, FieldIsSetForAllSelectedPipesInOneStep) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"Material", L"铜管"}});
  desk.Contents().AddPipe({2000, 0, 0}, {2000, 3000, 0}, {{L"Material", L"钢管"}});
  desk.Contents().MarkSaved();
  Fit();
  desk.Drag(2500, 3200, -500, -200);
  Enter(L"Material", "衬塑钢管");
  EXPECT_EQ(Field(0, L"Material"), L"衬塑钢管");
  EXPECT_EQ(Field(1, L"Material"), L"衬塑钢管");
  desk.Contents().Undo();
  EXPECT_EQ(Field(0, L"Material"), L"铜管");
  EXPECT_EQ(Field(1, L"Material"), L"钢管");
  EXPECT_FALSE(desk.Contents().IsModified());
}

TEST_F(DrawingEditsTest, FieldThatIsOnlyVisitedChangesNothing) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"Kh", L"2"}});
  desk.Contents().AddPipe({2000, 0, 0}, {2000, 3000, 0}, {{L"Kh", L"3"}});
  desk.Contents().MarkSaved();
  Fit();
  desk.Drag(2500, 3200, -500, -200);
  QLineEdit* field = desk.Window().Edits().Properties().FieldOf(L"Kh")->lineEdit();
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_FALSE(desk.Contents().IsModified());
}

TEST_F(DrawingEditsTest, FromBareLinesToACalculatedRiserByMouseAndKeysAlone) {
  const std::filesystem::path file = WriteBareLines(L"W-给水");
  ASSERT_TRUE(desk.Window().Files().OpenFile(ToQt(TextFromPath(file))));
  desk.Drag(-500, 6200, 3000, -300);
  EXPECT_EQ(desk.Window().Edits().Selected().size(), 4U);
  Click("makePipes");
  EXPECT_EQ(Shown(L"WtSystem"), QStringLiteral("给水"));
  EXPECT_EQ(Field(0, L"ELS_TYPE"), L"入口立管");
  EXPECT_EQ(Field(1, L"ELS_TYPE"), L"支管");
  EXPECT_EQ(Field(2, L"ELS_TYPE"), L"立管");
  EXPECT_EQ(Field(3, L"ELS_TYPE"), L"支管");
  Enter(L"Material", "PP-R管(S4)");
  desk.Press(Qt::Key_Escape);
  desk.ClickAt(1500, 1000);
  desk.ClickAt(1500, 3900);
  Enter(L"Equivalent", "4");
  Enter(L"Ration", "250");
  Enter(L"Kh", "2.5");
  Enter(L"DoorNum", "1");
  Enter(L"UserNum", "3.5");
  Enter(L"Time", "24");
  EXPECT_EQ(Field(3, L"UserNum"), L"3.5");
  desk.AtQuestion([&] {
    desk.ClickAt(0, 2000);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& panel) {
    ClickOn(panel, 2148);
    ClickOn(panel, 2);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(desk.AllDone());
  desk.Window().findChild<QAction*>(QStringLiteral("fileSave"))->trigger();
  const auto saved = ReadDrawing(file);
  EXPECT_EQ(saved->Diameter(0), 40);  // 0.59 L/s
  EXPECT_EQ(saved->Diameter(2), 32);  // 0.41 L/s
}

TEST_F(DrawingEditsTest, MakingPipesIsOneStep) {
  ASSERT_TRUE(desk.Window().Files().OpenFile(ToQt(TextFromPath(WriteBareLines(L"W-给水")))));
  desk.Drag(-500, 6200, 3000, -300);
  Click("makePipes");
  EXPECT_EQ(desk.Contents().Pipes().size(), 4U);
  EXPECT_FALSE(Find<QPushButton>("makePipes").isEnabled());
  desk.Contents().Undo();
  EXPECT_TRUE(desk.Contents().Pipes().empty());
  EXPECT_FALSE(desk.Contents().IsModified());
}

TEST_F(DrawingEditsTest, StoreyIsCopiedUpwardFromTheButton) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"ELS_TYPE", L"入口立管"}});
  Fit();
  desk.ClickAt(0, 1500);
  auto& height = Find<QDoubleSpinBox>("storeyHeight");
  QTest::mouseDClick(height.findChild<QLineEdit*>(), Qt::LeftButton);
  QTest::keyClick(&height, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&height, QStringLiteral("3000"));
  auto& storeys = Find<QSpinBox>("storeys");
  QTest::keyClick(&storeys, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&storeys, QStringLiteral("5"));
  Click("copyUpward");
  ASSERT_EQ(desk.Contents().Pipes().size(), 6U);
  EXPECT_EQ(desk.Contents().PipeOf(5).end, (AcGePoint3d{0, 18000, 0}));
}

TEST_F(DrawingEditsTest, PipesAreDrawnFromClickToClickWithSnapping) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0},
                          {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}, {L"Material", L"铜管"}});
  Fit();
  desk.ClickAt(0, 2000);  // what the new pipes take over
  Find<QAction>("drawPipe").trigger();
  EXPECT_EQ(desk.Window().CommandLineOf().Prompt(),
            QStringLiteral("管道起点、下一点，Esc 断开，Enter 结束："));
  const double pixel = desk.Area().View().LengthOf(1);
  desk.ClickAt(2 * pixel, 3000 - 3 * pixel);  // snaps to the end
  desk.ClickAt(500, 4000);
  desk.Press(Qt::Key_Escape);
  desk.ClickAt(800, 1000);
  desk.ClickAt(2 * pixel, 1000 + 2 * pixel);  // snaps to the perpendicular
  QCoreApplication::processEvents();
  desk.Press(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_FALSE(desk.Window().Edits().IsDrawing());
  ASSERT_EQ(desk.Contents().Pipes().size(), 3U);
  EXPECT_EQ(desk.Contents().PipeOf(1).start, (AcGePoint3d{0, 3000, 0}));
  EXPECT_EQ(desk.Contents().PipeOf(2).end.x, 0);
  EXPECT_EQ(desk.Contents().PipeOf(2).end.y, desk.Contents().PipeOf(2).start.y);
  EXPECT_EQ(Field(1, L"Material"), L"铜管");
  EXPECT_EQ(Field(1, L"ELS_TYPE"), L"");
  EXPECT_EQ(desk.Window().Edits().Selected(), (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(desk.Window().CommandLineOf().Prompt(), QStringLiteral("命令："));
}

TEST_F(DrawingEditsTest, DeleteKeyErasesTheSelection) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0});
  desk.Contents().AddPipe({2000, 0, 0}, {2000, 3000, 0});
  Fit();
  desk.ClickAt(0, 1500);
  desk.Press(Qt::Key_Delete);
  EXPECT_EQ(desk.Contents().Pipes(), std::vector<std::int32_t>{1});
}

TEST_F(DrawingEditsTest, FindingIsShownByAClickAndGapsAreClosed) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 2900, 0}, {{L"WtSystem", L"消防"}, {L"ELS_TYPE", L"立管"}});
  desk.Contents().AddPipe({0, 2905, 0}, {0, 5800, 0}, {{L"WtSystem", L"消防"}, {L"ELS_TYPE", L"立管"}});
  Fit();
  Raise("findings");
  Click("checkDrawing");
  QListWidget& list = desk.Window().Edits().Findings().List();
  ASSERT_EQ(list.count(), 1);
  EXPECT_TRUE(list.item(0)->text().contains(QStringLiteral("相距 5")));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                    list.visualItemRect(list.item(0)).center());
  EXPECT_EQ(desk.Window().Edits().Selected(), (std::vector<std::int32_t>{0, 1}));
  const QPointF middle = desk.Area().View().ToPlace(QRectF(desk.Area().rect()).center());
  EXPECT_NEAR(middle.y(), 2900, 10);
  EXPECT_LT(desk.Area().View().Shown().height(), 1000);
  Click("closeGaps");
  QCoreApplication::processEvents();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(desk.Contents().PipeOf(0).end, desk.Contents().PipeOf(1).start);
  desk.Contents().Undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(list.count(), 1);
}

TEST_F(DrawingEditsTest, EnterInTheDrawingRepeatsTheLastCommandAndTheRightButtonDoesNot) {
  int opened = 0;
  for (int i = 0; i < 2; ++i) desk.InPanel([&](PanelWindow&) { ++opened; });
  desk.Window().Enter(QStringLiteral("ZWTGRGS"));
  QTest::mouseClick(&desk.Area(), Qt::RightButton, Qt::NoModifier, {5, 5});
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, 1);
  desk.Press(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, 2);
}

TEST_F(DrawingEditsTest, NothingCanBeEditedWhileACommandRuns) {
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0});
  Fit();
  desk.ClickAt(0, 1500);
  bool seen = false;
  desk.InPanel([&](PanelWindow&) {
    seen = true;
    EXPECT_FALSE(desk.Window().Edits().Properties().isEnabled());
    EXPECT_FALSE(Find<QAction>("drawPipe").isEnabled());
    desk.Area().onDelete();
    EXPECT_EQ(desk.Contents().Pipes().size(), 1U);
  });
  desk.Window().Enter(QStringLiteral("ZWTGRGS"));
  EXPECT_TRUE(seen);
  EXPECT_TRUE(desk.Window().Edits().Properties().isEnabled());
}

}  // namespace
}  // namespace zwt::test
