// Files from the user's side: menu, drag and drop, recent files, unsaved changes, other programs.
#include <QDropEvent>
#include <QMimeData>
#include <QToolBar>
#include <QUrl>
#include <fstream>

#include <gtest/gtest.h>

#include "drawing_desk.h"
#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

class FileActionsTest : public testing::Test {
 protected:
  std::filesystem::path File(const char* name) const { return desk.Folder() / name; }
  static QString Text(const std::filesystem::path& path) { return ToQt(TextFromPath(path)); }

  static void Write(const std::filesystem::path& path, int lines) {
    Drawing drawing;
    for (int i = 0; i < lines; ++i) drawing.AddLine({0, 0, 0}, {1000.0 + i, 500, 0});
    SaveDrawing(drawing, path);
  }
  void Change() {
    desk.Contents().AddLine({0, 0, 0}, {0, 700, 0});
    QCoreApplication::processEvents();
  }
  void Trigger(const char* name) { desk.Window().findChild<QAction*>(QLatin1String(name))->trigger(); }

  DrawingDesk desk;
};

TEST_F(FileActionsTest, OpenedDrawingIsNamedInTheTitleAndShownWhole) {
  desk.Open("examples/dwelling-18-storeys.dxf");
  EXPECT_EQ(desk.Window().windowTitle(), QStringLiteral("dwelling-18-storeys.dxf[*] - 建筑给水排水计算"));
  EXPECT_FALSE(desk.Window().isWindowModified());
  EXPECT_TRUE(QRectF(desk.Area().rect()).contains(desk.PixelOf(0, 0)));
  EXPECT_TRUE(QRectF(desk.Area().rect()).contains(desk.PixelOf(8500, 52200)));
  EXPECT_EQ(Settings().RecentFiles().value(0), Text(File("dwelling-18-storeys.dxf")));
}

TEST_F(FileActionsTest, ChangeShowsAsTheModifiedMarkAndUndoTakesItBack) {
  desk.Open("examples/drainage-stack.dxf");
  Change();
  EXPECT_TRUE(desk.Window().isWindowModified());
  QTest::keyClick(&desk.Window().CommandLineOf().Input(), Qt::Key_Z, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_FALSE(desk.Window().isWindowModified());
  EXPECT_EQ(desk.Contents().EntityCount(), 76);
  EXPECT_FALSE(desk.Contents().Entity(75).alive);
  QTest::keyClick(&desk.Window().CommandLineOf().Input(), Qt::Key_Y, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_TRUE(desk.Window().isWindowModified());
}

TEST_F(FileActionsTest, FileThatCannotBeReadIsToldWithItsNameAndLine) {
  std::ofstream(File("broken.dxf")) << "0\nSECTION\n2\nENTITIES\nx\nLINE\n";
  EXPECT_FALSE(desk.Window().Files().OpenFile(Text(File("broken.dxf"))));
  ASSERT_EQ(desk.messages.size(), 1U);
  EXPECT_TRUE(ToQt(desk.messages[0]).startsWith(QStringLiteral("图纸不能读入：") + Text(File("broken.dxf"))));
  EXPECT_TRUE(ToQt(desk.messages[0]).contains(QStringLiteral("第 5 行")));
  EXPECT_EQ(desk.Window().GetDocument().Name(), QStringLiteral("未命名图纸"));
}

TEST_F(FileActionsTest, UnsavedChangesAreAskedForBeforeAnotherFileIsOpened) {
  Write(File("other.dxf"), 2);
  Change();
  desk.Answer("取消");
  EXPECT_FALSE(desk.Window().Files().OpenFile(Text(File("other.dxf"))));
  EXPECT_EQ(desk.messages, std::vector<CString>{L"图纸“未命名图纸”有未保存的修改。要保存吗？"});
  EXPECT_EQ(desk.Contents().EntityCount(), 1);
  desk.Answer("不保存");
  EXPECT_TRUE(desk.Window().Files().OpenFile(Text(File("other.dxf"))));
  EXPECT_EQ(desk.Contents().EntityCount(), 2);
}

TEST_F(FileActionsTest, SavingFromTheQuestionAsksForANameWhereThereIsNone) {
  Change();
  QString proposed;
  desk.Window().Files().askWhereToSave = [&](const QString& name) {
    proposed = name;
    return Text(File("mine"));
  };
  desk.Answer("保存");
  Trigger("fileNew");
  EXPECT_EQ(proposed, QStringLiteral("未命名图纸.dxf"));
  EXPECT_EQ(ReadDrawing(File("mine.dxf"))->EntityCount(), 1);
  EXPECT_EQ(desk.Contents().EntityCount(), 0);
  EXPECT_FALSE(desk.Window().GetDocument().HasFile());
}

TEST_F(FileActionsTest, ClosingAsksAndStaysWhereTheUserWants) {
  Change();
  desk.Answer("取消");
  desk.Window().close();
  EXPECT_TRUE(desk.Window().isVisible());
  desk.Answer("不保存");
  desk.Window().close();
  EXPECT_FALSE(desk.Window().isVisible());
}

TEST_F(FileActionsTest, SaveWritesIntoTheFileAndSaveAsMovesThere) {
  const std::filesystem::path file = desk.Open("examples/drainage-stack.dxf");
  Change();
  Trigger("fileSave");
  QCoreApplication::processEvents();
  EXPECT_EQ(ReadDrawing(file)->EntityCount(), 76);
  EXPECT_FALSE(desk.Window().isWindowModified());
  desk.Window().Files().askWhereToSave = [&](const QString& name) {
    EXPECT_EQ(name, Text(file));
    return Text(File("copy.dxf"));
  };
  Trigger("fileSaveAs");
  EXPECT_EQ(desk.Window().GetDocument().Name(), QStringLiteral("copy.dxf"));
  EXPECT_EQ(ReadDrawing(File("copy.dxf"))->EntityCount(), 76);
}

TEST_F(FileActionsTest, ToolBarUndoesAndSaves) {
  const std::filesystem::path file = desk.Open("examples/drainage-stack.dxf");
  Change();
  const auto press = [&](const char* name) {
    auto* bar = desk.Window().findChild<QToolBar*>(QStringLiteral("fileBar"));
    QWidget* button = bar->widgetForAction(desk.Window().findChild<QAction*>(QLatin1String(name)));
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::processEvents();
  };
  press("editUndo");
  EXPECT_FALSE(desk.Window().isWindowModified());
  press("editRedo");
  EXPECT_TRUE(desk.Window().isWindowModified());
  press("fileSave");
  EXPECT_FALSE(desk.Window().isWindowModified());
  EXPECT_EQ(ReadDrawing(file)->EntityCount(), 76);
}

TEST_F(FileActionsTest, DrawingThatCannotBeWrittenIsTold) {
  Change();
  desk.Window().Files().askWhereToSave = [&](const QString&) { return Text(File("missing/one.dxf")); };
  EXPECT_FALSE(desk.Window().Files().Save());
  ASSERT_EQ(desk.messages.size(), 1U);
  EXPECT_TRUE(ToQt(desk.messages[0]).startsWith(QStringLiteral("图纸未能保存。")));
  EXPECT_TRUE(desk.Window().isWindowModified());
}

TEST_F(FileActionsTest, DroppedDrawingIsOpened) {
  Write(File("dropped.dxf"), 3);
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Text(File("dropped.dxf")))});
  QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&desk.Window(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&desk.Window(), &drop);
  EXPECT_EQ(desk.Contents().EntityCount(), 3);
}

TEST_F(FileActionsTest, OtherFilesAreNotTakenByDropping) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/picture.png"))});
  QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QCoreApplication::sendEvent(&desk.Window(), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST_F(FileActionsTest, RecentFileOpensFromItsMenu) {
  Write(File("one.dxf"), 1);
  Write(File("two.dxf"), 2);
  desk.Window().Files().OpenFile(Text(File("one.dxf")));
  desk.Window().Files().OpenFile(Text(File("two.dxf")));
  QAction* recent = nullptr;
  for (QAction* action : desk.Window().menuBar()->actions().front()->menu()->actions()) {
    if (action->menu() != nullptr) recent = action;
  }
  ASSERT_NE(recent, nullptr);
  emit recent->menu()->aboutToShow();
  ASSERT_EQ(recent->menu()->actions().size(), 2);
  EXPECT_EQ(recent->menu()->actions().at(1)->text(), Text(File("one.dxf")));
  recent->menu()->actions().at(1)->trigger();
  EXPECT_EQ(desk.Contents().EntityCount(), 1);
}

TEST_F(FileActionsTest, FileChangedByAnotherProgramIsReadAnewAndTold) {
  Write(File("one.dxf"), 1);
  desk.Window().Files().OpenFile(Text(File("one.dxf")));
  Write(File("one.dxf"), 4);
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.Contents().EntityCount() == 4; }));
  EXPECT_TRUE(desk.Printed().contains(QStringLiteral("图纸“one.dxf”已被另一个程序改动，现已重新读入。")));
  EXPECT_FALSE(desk.Window().isWindowModified());
}

TEST_F(FileActionsTest, WithUnsavedChangesTheUserDecidesWhatCounts) {
  Write(File("one.dxf"), 1);
  desk.Window().Files().OpenFile(Text(File("one.dxf")));
  Change();
  Write(File("one.dxf"), 4);
  desk.Answer("保留这里的内容");
  desk.Window().Files().CatchUp();
  EXPECT_EQ(desk.Contents().EntityCount(), 2);
  Write(File("one.dxf"), 5);
  desk.Answer("重新读入");
  desk.Window().Files().CatchUp();
  EXPECT_EQ(desk.Contents().EntityCount(), 5);
  EXPECT_EQ(desk.messages.size(), 2U);
}

TEST_F(FileActionsTest, CommandSeesTheFileAsItIsNow) {
  Write(File("one.dxf"), 1);
  desk.Window().Files().OpenFile(Text(File("one.dxf")));
  Write(File("one.dxf"), 7);
  int seen = 0;
  desk.InPanel([&](PanelWindow&) { seen = desk.Contents().EntityCount(); });
  desk.Window().Enter(QStringLiteral("ZWTGRGS"));
  EXPECT_EQ(seen, 7);
}

TEST_F(FileActionsTest, SavingOverAFileThatChangedIsAskedFor) {
  Write(File("one.dxf"), 1);
  desk.Window().Files().OpenFile(Text(File("one.dxf")));
  Change();
  Write(File("one.dxf"), 4);
  desk.Answer("取消");
  EXPECT_FALSE(desk.Window().Files().Save());
  EXPECT_EQ(ReadDrawing(File("one.dxf"))->EntityCount(), 4);
  desk.Answer("覆盖");
  EXPECT_TRUE(desk.Window().Files().Save());
  EXPECT_EQ(ReadDrawing(File("one.dxf"))->EntityCount(), 2);
}

TEST_F(FileActionsTest, FilesAndUndoAreBlockedWhileACommandRuns) {
  Change();
  bool blocked = false;
  desk.InPanel([&](PanelWindow&) {
    blocked = true;
    for (const char* name : {"fileNew", "fileOpen", "fileSave", "fileSaveAs", "editUndo", "editRedo"}) {
      EXPECT_FALSE(desk.Window().findChild<QAction*>(QLatin1String(name))->isEnabled()) << name;
    }
  });
  desk.Window().Enter(QStringLiteral("ZWTGRGS"));
  EXPECT_TRUE(blocked);
  EXPECT_TRUE(desk.Window().findChild<QAction*>(QStringLiteral("editUndo"))->isEnabled());
  EXPECT_TRUE(desk.Window().findChild<QAction*>(QStringLiteral("fileOpen"))->isEnabled());
}

}  // namespace
}  // namespace zwt::test
