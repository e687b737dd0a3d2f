// Whole jobs from the drawing to the saved file, by mouse and keys: supply, drainage, hydrants, branch data.
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

#include "desktop/grid_table.h"
#include "drawing_desk.h"
#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

enum Button {
  kCalculate = 2148,
  kRecalculate = 2149,
  kView = 2150,
  kEdit = 2151,
  kReport = 2152,
  kAnnotate = 2156
};
constexpr int kTable = 2012;
constexpr int kSupplyDiameter = 7;  // column

class WaterRoadsTest : public testing::Test {
 protected:
  static QString CellText(PanelWindow& panel, int row, int column) {
    const QTableView& view = WidgetOf<GridTable>(panel, kTable).ViewOf(row, column);
    return view.model()->index(row, column).data().toString();
  }

  /// Double click into a cell that offers a list, pick the text with the keys, Enter.
  static void ChooseInCell(PanelWindow& panel, int row, int column, const QString& text) {
    QCoreApplication::processEvents();
    QTableView& view = WidgetOf<GridTable>(panel, kTable).ViewOf(row, column);
    ClickCell(panel, kTable, row, column, true);
    auto* list = view.viewport()->findChild<QComboBox*>();
    ASSERT_NE(list, nullptr);
    if (list->isEditable()) {
      QTest::keyClick(list->lineEdit(), Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(list->lineEdit(), text);
    } else {
      while (list->currentText() != text && list->currentIndex() + 1 < list->count()) {
        QTest::keyClick(list, Qt::Key_Down);
      }
    }
    QTest::keyClick(list, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }

  static std::int32_t CountTexts(const Drawing& drawing, const CString& content) {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) {
      const EntityRecord& entity = drawing.Entity(i);
      if (!entity.alive || entity.type != EntityType::Text) continue;
      if (WideFromUtf8(FirstValue(entity.tags, 1)) == content) ++count;
    }
    return count;
  }

  static std::int32_t CountAnnotations(const Drawing& drawing) {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) {
      const EntityRecord& entity = drawing.Entity(i);
      if (entity.alive && HasExtendedData(entity.tags, kDiameterApplication)) ++count;
    }
    return count;
  }

  static double DiameterOf(const Drawing& drawing, std::uint64_t handle) {
    return drawing.Diameter(drawing.FindHandle(handle));
  }

  void Save() { desk.Window().findChild<QAction*>(QStringLiteral("fileSave"))->trigger(); }

  DrawingDesk desk;
};

constexpr std::uint64_t kEntryA = 0x69;
constexpr std::uint64_t kEntryB = 0x8F;

TEST_F(WaterRoadsTest, SupplyFromTheMenuToTheSavedDrawing) {
  const std::filesystem::path file = desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    EXPECT_EQ(desk.Window().CommandLineOf().Prompt(), QStringLiteral("请选择要计算的原理图干管末端:"));
    desk.ClickAt(0, 4500);  // a riser of an upper storey: not an entry
    desk.ClickAt(6000, 1500);
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& panel) {
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("给水水力计算"));
    EXPECT_EQ(CellText(panel, 36, 0), QStringLiteral("2#-18层"));
    ClickOn(panel, kCalculate);
    const QString calculated = CellText(panel, 1, kSupplyDiameter);
    EXPECT_EQ(DiameterOf(desk.Contents(), kEntryA), calculated.toDouble());
    EXPECT_GT(calculated.toInt(), 0);
    const QString velocity = CellText(panel, 1, 5);

    ChooseInCell(panel, 1, kSupplyDiameter, QStringLiteral("70"));
    EXPECT_EQ(CellText(panel, 1, kSupplyDiameter), QStringLiteral("70"));
    ClickOn(panel, kRecalculate);
    EXPECT_NE(CellText(panel, 1, 5), velocity);
    EXPECT_EQ(DiameterOf(desk.Contents(), kEntryA), 70);

    desk.AtQuestion([&] {
      EXPECT_FALSE(panel.isVisible());
      const double scale = desk.Area().View().Scale();
      desk.Wheel({300, 200}, 2);
      EXPECT_GT(desk.Area().View().Scale(), scale);
      desk.ClickAt(0, 1500);
    });
    desk.AtQuestion([&] { desk.Press(Qt::Key_Escape); });
    ClickOn(panel, kView);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(panel.Panel().HasEnded());

    ClickOn(panel, kAnnotate);
    EXPECT_EQ(CountAnnotations(desk.Contents()), 36);
    ClickOn(panel, 2);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(desk.AllDone());
  EXPECT_FALSE(desk.Window().Session().IsRunning());
  QCoreApplication::processEvents();
  EXPECT_TRUE(desk.Window().isWindowModified());
  Save();
  const auto saved = ReadDrawing(file);
  EXPECT_EQ(DiameterOf(*saved, kEntryA), 70);
  EXPECT_GT(DiameterOf(*saved, kEntryB), 0);
  EXPECT_EQ(CountAnnotations(*saved), 36);
  EXPECT_EQ(CountTexts(*saved, L"dn70"), 1);
}

TEST_F(WaterRoadsTest, EditedBranchIsWrittenAndTheTableFollows) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    const double equivalents = CellText(panel, 1, 2).toDouble();
    ClickCell(panel, kTable, 18, 0);
    ClickOn(panel, kEdit);
    EXPECT_EQ(CellText(panel, 1, 2).toDouble(), equivalents + 2);
    ClickOn(panel, 2);
  });
  desk.InPanel([&](PanelWindow& branch) {
    TypeInto(branch, 2144, "6");
    ClickOn(branch, 1);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(desk.AllDone());
  CString equivalent;
  desk.Contents().GetField(desk.Contents().FindHandle(0x8D), L"Equivalent", equivalent);
  EXPECT_EQ(equivalent, L"6");
}

TEST_F(WaterRoadsTest, WholeCommandIsOneUndoStep) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    desk.TypeLine("ALL");
    desk.TypeLine("");
  });
  desk.InPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    ClickOn(panel, kAnnotate);
    ClickOn(panel, 2);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_GT(DiameterOf(desk.Contents(), kEntryA), 0);
  desk.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&desk.Window()));
  QTest::keyClick(&desk.Area(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(DiameterOf(desk.Contents(), kEntryA), 0);
  EXPECT_EQ(CountAnnotations(desk.Contents()), 0);
  EXPECT_FALSE(desk.Contents().CanUndo());
  EXPECT_FALSE(desk.Contents().IsModified());
  QCoreApplication::processEvents();
  QTest::keyClick(&desk.Area(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(CountAnnotations(desk.Contents()), 36);
}

TEST_F(WaterRoadsTest, CancelledSelectionOpensNoPanelAndChangesNothing) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Escape);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(desk.AllDone());
  EXPECT_FALSE(desk.Contents().IsModified());
  EXPECT_TRUE(desk.Window().ActionOf(L"ZWTGSJS")->isEnabled());
}

TEST_F(WaterRoadsTest, SupplyReportIsWrittenBesideTheDrawingAndOpened) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  std::vector<std::filesystem::path> opened;
  desk.Window().Reports().open = [&](const std::filesystem::path& report) { opened.push_back(report); };
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    ClickOn(panel, kReport);
    ClickOn(panel, kReport);
    ClickOn(panel, 2);
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_EQ(opened,
            (std::vector<std::filesystem::path>{desk.Folder() / "dwelling-18-storeys-ZWT-GSJS-ZZ.docx",
                                                desk.Folder() / "dwelling-18-storeys-ZWT-GSJS-ZZ-2.docx"}));
  for (const std::filesystem::path& report : opened) EXPECT_GT(std::filesystem::file_size(report), 1000U);
}

TEST_F(WaterRoadsTest, ReportOfADrawingWithoutAFileGoesIntoTheDocuments) {
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", QByteArray::fromStdString(desk.Folder().string()));
  std::vector<std::filesystem::path> opened;
  desk.Window().Reports().open = [&](const std::filesystem::path& report) { opened.push_back(report); };
  desk.Contents().AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"入口立管"}});
  desk.AtQuestion([&] {
    desk.TypeLine("ALL");
    desk.TypeLine("");
  });
  desk.InPanel([&](PanelWindow& panel) { ClickOn(panel, kReport); });
  desk.ChooseCommand(L"ZWTGSJS");
  qputenv("HOME", home);
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0], desk.Folder() / "Documents" / "ZWT-GSJS-ZZ.docx");
  EXPECT_TRUE(std::filesystem::exists(opened[0]));
}

TEST_F(WaterRoadsTest, ReportThatCannotBeOpenedIsToldWithItsPlace) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.Window().Reports().open = [](const std::filesystem::path& report) {
    throw FileError("open", report, "no program for it");
  };
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& panel) { ClickOn(panel, kReport); });
  desk.ChooseCommand(L"ZWTGSJS");
  ASSERT_EQ(desk.messages.size(), 1U);
  EXPECT_TRUE(desk.messages[0].find(L"dwelling-18-storeys-ZWT-GSJS-ZZ.docx") != CString::npos);
  EXPECT_TRUE(desk.messages[0].find(L"no program for it") != CString::npos);
}

TEST_F(WaterRoadsTest, DrainageFromTheMenuToTheSavedDrawing) {
  const std::filesystem::path file = desk.Open("examples/drainage-stack.dxf");
  desk.AtQuestion([&] { desk.ClickAt(0, 1500); });
  desk.InPanel([&](PanelWindow& panel) {
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("排水水力计算"));
    ClickOn(panel, kCalculate);
    ClickCell(panel, kTable, 2, 0);
    ClickOn(panel, kEdit);
    desk.AtQuestion([&] {
      EXPECT_FALSE(panel.isVisible());
      desk.Press(Qt::Key_Return);
    });
    ClickOn(panel, kView);
    EXPECT_TRUE(panel.isVisible());
    ClickOn(panel, kAnnotate);
    ClickOn(panel, 2);
  });
  desk.InPanel([&](PanelWindow& branch) {
    ClickCell(branch, 2200, 9, 0, true);
    ClickOn(branch, 1);
  });
  desk.ChooseCommand(L"ZWTPSJS");
  EXPECT_TRUE(desk.AllDone());
  Save();
  const auto saved = ReadDrawing(file);
  EXPECT_GT(DiameterOf(*saved, 0x69), 0);
  EXPECT_GT(CountAnnotations(*saved), 0);
}

TEST_F(WaterRoadsTest, BranchDataOfSeveralBranchesAtOnce) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    EXPECT_EQ(desk.Window().CommandLineOf().Prompt(), QStringLiteral("请选择要修改的支管:"));
    desk.Drag(-1500, 5000, 3500, 500);
    desk.Press(Qt::Key_Return);
  });
  desk.InPanel([&](PanelWindow& branch) {
    TypeInto(branch, 2144, "7.5");
    ClickOn(branch, 1);
  });
  desk.ChooseCommand(L"ZWTGSCS");
  const Drawing& drawing = desk.Contents();
  CString text;
  for (const std::uint64_t handle : {0x6BU, 0x6DU}) {
    drawing.GetField(drawing.FindHandle(handle), L"Equivalent", text);
    EXPECT_EQ(text, L"7.5") << handle;
  }
  drawing.GetField(drawing.FindHandle(0x6F), L"Equivalent", text);
  EXPECT_EQ(text, L"4");
}

TEST_F(WaterRoadsTest, HydrantsFromTheMenuToTheSavedDrawing) {
  const std::filesystem::path file = desk.Open("examples/hydrants-6-risers.dxf");
  desk.AtQuestion([&] { desk.ClickAt(-3000, -1000); });
  int progressShown = 0;
  desk.Window().Panels().onProgressShown = [&](PanelWindow&) { ++progressShown; };
  desk.InPanel([&](PanelWindow& panel) {
    EXPECT_EQ(panel.windowTitle(), QStringLiteral("消火栓环状管网水力计算"));
    const auto number = [&](const wchar_t* name) {
      for (const auto& control : panel.Panel().Controls()) {
        if (CString(control->Shape().name) == name || CString(control->Shape().label) == name)
          return control->GetDlgCtrlID();
      }
      ADD_FAILURE() << "no control";
      return 0;
    };
    TypeInto(panel, number(L"hydrantFlow"), "10");
    TypeInto(panel, number(L"gunCount"), "2");
    TypeInto(panel, number(L"gunMinFlow"), "5");
    TypeInto(panel, number(L"riserMinFlow"), "10");
    ClickOn(panel, number(L"水枪射流量(L/s)"));
    ClickOn(panel, number(L"计算"));
    EXPECT_EQ(progressShown, 1);
    desk.AtQuestion([&] { desk.Press(Qt::Key_Escape); });
    ClickOn(panel, number(L"查看图面"));
    EXPECT_TRUE(panel.isVisible());
    ClickOn(panel, number(L"赋回图中"));
    ClickOn(panel, number(L"退出"));
  });
  desk.ChooseCommand(L"ZWTXFJS");
  EXPECT_TRUE(desk.AllDone());
  for (const CString& message : desk.messages) ADD_FAILURE() << Utf8FromWide(message);
  Save();
  const auto saved = ReadDrawing(file);
  std::int32_t sized = 0;
  for (const std::int32_t pipe : saved->Pipes()) sized += saved->Diameter(pipe) > 0 ? 1 : 0;
  EXPECT_GT(sized, 0);
}

TEST_F(WaterRoadsTest, ClosingTheWindowDuringASelectionCancelsItAndCloses) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.ClickAt(-300, 3200);  // a rectangle has begun
    desk.Window().close();
    EXPECT_TRUE(desk.Window().isVisible());
  });
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(desk.AllDone());
  EXPECT_FALSE(desk.Window().isVisible());
  EXPECT_TRUE(desk.messages.empty());
}

TEST_F(WaterRoadsTest, ClosingWhileThePanelGivesWayCancelsTheLookThenThePanelThenAsksForTheChanges) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  desk.AtQuestion([&] {
    desk.ClickAt(0, 1500);
    desk.Press(Qt::Key_Return);
  });
  desk.LeavePanelsOpen();
  bool returned = false;
  desk.InPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    desk.AtQuestion([&] { desk.Window().close(); });
    ClickOn(panel, kView);
    returned = true;
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(desk.Window().isVisible());
  });
  desk.Answer("不保存");
  desk.ChooseCommand(L"ZWTGSJS");
  EXPECT_TRUE(returned);
  EXPECT_TRUE(desk.AllDone());
  EXPECT_FALSE(desk.Window().isVisible());
  EXPECT_EQ(desk.messages, std::vector<CString>{L"图纸“dwelling-18-storeys.dxf”有未保存的修改。要保存吗？"});
}

TEST_F(WaterRoadsTest, DrawingChangedBetweenTwoRunsIsReadAnew) {
  const std::filesystem::path file = desk.Open("examples/dwelling-18-storeys.dxf");
  const auto run = [&](QString& equivalents) {
    desk.AtQuestion([&] {
      desk.ClickAt(0, 1500);
      desk.Press(Qt::Key_Return);
    });
    desk.InPanel([&](PanelWindow& panel) { equivalents = CellText(panel, 1, 2); });
    desk.ChooseCommand(L"ZWTGSJS");
  };
  QString first;
  QString second;
  run(first);
  const auto other = ReadDrawing(file);
  other->SetFields(other->FindHandle(0x6B), {{L"Equivalent", L"14"}});
  SaveDrawing(*other, file);
  run(second);
  EXPECT_EQ(first, QStringLiteral("72.00"));
  EXPECT_EQ(second, QStringLiteral("82.00"));
}

}  // namespace
}  // namespace zwt::test
