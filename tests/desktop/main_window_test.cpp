// The main window: commands from menu, tool bar and command line, and the way out.
#include "desktop/main_window.h"

#include <QCompleter>
#include <QDir>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include <gtest/gtest.h>

#include "desktop/code_edition.h"
#include "desktop/qt_text.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/module_runtime.h"
#include "host_dialog/sample_panel.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

/// Commands of the tests' own.
struct Commands {
  static inline std::function<void()> run;
  static void Run() {
    if (run) run();
  }
};

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    const std::string folder = testing::TempDir() + "/desktop-settings-" +
                               testing::UnitTest::GetInstance()->current_test_info()->name();
    QDir(QString::fromStdString(folder)).removeRecursively();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(folder));
  }
  ~MainWindowTest() override {
    CommandStack().removeGroup(L"Tests");
    Commands::run = nullptr;
  }

  static void Offer(const wchar_t* name, std::function<void()> run) {
    Commands::run = std::move(run);
    CommandStack().addCommand(L"Tests", name, &Commands::Run, 0);
  }

  static void Show(MainWindow& window) {
    window.TakeOverCommands();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  static void Type(MainWindow& window, const char* text) {
    QTest::keyClicks(&window.CommandLineOf().Input(), QString::fromUtf8(text));
    QTest::keyClick(&window.CommandLineOf().Input(), Qt::Key_Return);
  }

  /// Opens the menu that holds the action and clicks it there with the mouse.
  static void ClickInMenu(MainWindow& window, QAction* action) {
    for (QAction* title : window.menuBar()->actions()) {
      if (!title->menu()->actions().contains(action)) continue;
      QTest::mouseClick(window.menuBar(), Qt::LeftButton, Qt::NoModifier,
                        window.menuBar()->actionGeometry(title).center());
      QTest::mouseClick(title->menu(), Qt::LeftButton, Qt::NoModifier,
                        title->menu()->actionGeometry(action).center());
      return;
    }
    FAIL() << "no menu holds the action";
  }
};

TEST_F(MainWindowTest, TypedCommandRunsInAnyCaseAndAnEmptyLineRepeatsIt) {
  MainWindow window;
  int runs = 0;
  Offer(L"ZWTGRGS", [&] { ++runs; });
  Show(window);
  Type(window, "zwtgrgs");
  EXPECT_EQ(runs, 1);
  Type(window, "");
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(window.CommandLineOf().PrintedText(), QStringLiteral("命令：ZWTGRGS\n命令：ZWTGRGS"));
}

TEST_F(MainWindowTest, SpaceBarEndsAnInputToo) {
  MainWindow window;
  int runs = 0;
  Offer(L"ZWTGRGS", [&] { ++runs; });
  Show(window);
  QTest::keyClicks(&window.CommandLineOf().Input(), QStringLiteral("ZWTGRGS "));
  EXPECT_EQ(runs, 1);
}

TEST_F(MainWindowTest, UnknownCommandIsNamed) {
  MainWindow window;
  Show(window);
  Type(window, "nonsense");
  EXPECT_EQ(window.CommandLineOf().PrintedText(), QStringLiteral("命令：NONSENSE\n未知命令“NONSENSE”。"));
}

TEST_F(MainWindowTest, ArrowKeysGoThroughWhatWasTyped) {
  MainWindow window;
  Show(window);
  CommandInput& input = window.CommandLineOf().Input();
  Type(window, "first");
  Type(window, "second");
  QTest::keyClick(&input, Qt::Key_Up);
  EXPECT_EQ(input.text(), QStringLiteral("second"));
  QTest::keyClick(&input, Qt::Key_Up);
  EXPECT_EQ(input.text(), QStringLiteral("first"));
  QTest::keyClick(&input, Qt::Key_Up);
  EXPECT_EQ(input.text(), QStringLiteral("first"));
  QTest::keyClick(&input, Qt::Key_Down);
  QTest::keyClick(&input, Qt::Key_Down);
  EXPECT_TRUE(input.text().isEmpty());
}

TEST_F(MainWindowTest, NamesAreCompletedByAnyPartOfThem) {
  MainWindow window;
  Offer(L"ZWTGRGS", [] {});
  Show(window);
  CommandInput& input = window.CommandLineOf().Input();
  QTest::keyClicks(&input, QStringLiteral("grg"));
  EXPECT_EQ(input.completer()->completionCount(), 1);
  EXPECT_EQ(input.completer()->currentCompletion(), QStringLiteral("ZWTGRGS"));
}

TEST_F(MainWindowTest, CommandsOfTheModuleStandByDisciplineUnderTheirPanelsTitles) {
  ModuleRuntime module;
  module.Load();
  MainWindow window;
  Show(window);
  QStringList titles;
  for (QAction* title : window.menuBar()->actions()) titles.append(title->text());
  EXPECT_EQ(titles.mid(3, 5),
            (QStringList{QStringLiteral("给水"), QStringLiteral("排水"), QStringLiteral("消防"),
                         QStringLiteral("热水"), QStringLiteral("水箱水池")}));
  for (const AcEdCommand& command : CommandStack().commands()) {
    QAction* action = window.ActionOf(command.name);
    ASSERT_NE(action, nullptr) << Utf8FromWide(command.name);
    EXPECT_TRUE(action->isEnabled());
    EXPECT_FALSE(action->icon().isNull());
  }
  EXPECT_EQ(window.ActionOf(L"ZWTXHS")->text(), QStringLiteral("消火栓计算"));
}

TEST_F(MainWindowTest, CommandThatIsNotThereIsGreyed) {
  MainWindow window;
  Show(window);
  EXPECT_FALSE(window.ActionOf(L"ZWTGRGS")->isEnabled());
}

TEST_F(MainWindowTest, CommandsAreBlockedWhileOneRuns) {
  MainWindow window;
  int runs = 0;
  Offer(L"ZWTGRGS", [&] {
    ++runs;
    EXPECT_FALSE(window.ActionOf(L"ZWTGRGS")->isEnabled());
    window.Enter(QStringLiteral("ZWTGRGS"));
  });
  Show(window);
  window.ActionOf(L"ZWTGRGS")->trigger();
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(window.ActionOf(L"ZWTGRGS")->isEnabled());
}

TEST_F(MainWindowTest, FailingCommandIsToldOnTheCommandLine) {
  MainWindow window;
  Offer(L"ZWTGRGS", [] { throw std::runtime_error("broken"); });
  Show(window);
  Type(window, "ZWTGRGS");
  EXPECT_TRUE(window.CommandLineOf().PrintedText().contains(QStringLiteral("命令未能完成：")));
  EXPECT_TRUE(window.CommandLineOf().PrintedText().contains(QStringLiteral("broken")));
  EXPECT_FALSE(window.Session().IsRunning());
}

TEST_F(MainWindowTest, ClosingCancelsOpenPanelsFromTheInnermostOutAndThenCloses) {
  MainWindow window;
  std::vector<std::string> order;
  Offer(L"ZWTGRGS", [&] {
    SamplePanel outer;
    SamplePanel inner;
    outer.OnClick(2030, [&] { inner.DoModal(); });
    outer.OnClick(2, [&] {
      order.emplace_back("outer");
      outer.EndDialog(2);
    });
    inner.OnClick(2, [&] {
      order.emplace_back("inner");
      inner.EndDialog(2);
    });
    outer.DoModal();
    order.emplace_back("command ends");
    EXPECT_TRUE(window.isVisible());
  });
  Show(window);
  int shown = 0;
  window.Panels().onPanelShown = [&](PanelWindow& panel) {
    if (++shown == 1) {
      QTest::mouseClick(panel.WidgetOf(2030), Qt::LeftButton);
    } else {
      window.close();
    }
  };
  Type(window, "ZWTGRGS");
  EXPECT_EQ(order, (std::vector<std::string>{"inner", "outer", "command ends"}));
  EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, WindowComesBackAsItWasLeft) {
  QSize size;
  {
    MainWindow window;
    Show(window);
    window.resize(900, 640);
    size = window.size();
    window.close();
  }
  MainWindow window;
  EXPECT_EQ(window.size(), size);
}

TEST_F(MainWindowTest, StatusBarNamesTheCodesInForce) {
  MainWindow window;
  Show(window);
  const auto* codes = window.findChild<QLabel*>(QStringLiteral("codeEdition"));
  ASSERT_NE(codes, nullptr);
  EXPECT_FALSE(EditionOfCodes().isEmpty());
  EXPECT_TRUE(codes->text().contains(EditionOfCodes()));
}

TEST_F(MainWindowTest, RecentFilesAreKeptLatestFirstAndTenAtMost) {
  Settings settings;
  for (int i = 0; i < 12; ++i) settings.AddRecentFile(QStringLiteral("/tmp/%1.dxf").arg(i));
  settings.AddRecentFile(QStringLiteral("/tmp/5.dxf"));
  const QStringList files = Settings().RecentFiles();
  ASSERT_EQ(files.size(), 10);
  EXPECT_EQ(files.at(0), QStringLiteral("/tmp/5.dxf"));
  EXPECT_EQ(files.at(1), QStringLiteral("/tmp/11.dxf"));
  EXPECT_EQ(files.count(QStringLiteral("/tmp/5.dxf")), 1);
}

/// Types over the content of a field that was clicked with the mouse.
void Fill(PanelWindow& panel, int id, const char* text) {
  auto* field = dynamic_cast<QLineEdit*>(panel.WidgetOf(id));
  ASSERT_NE(field, nullptr);
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(field, QString::fromUtf8(text));
}

QString TextOf(PanelWindow& panel, int id) {
  return dynamic_cast<QLineEdit&>(*panel.WidgetOf(id)).text();
}

TEST_F(MainWindowTest, MaximumDayAndHourFromTheMenuToTheResults) {
  ModuleRuntime module;
  module.Load();
  MainWindow window;
  Show(window);
  std::vector<QString> titles;
  window.Panels().onPanelShown = [&](PanelWindow& panel) {
    titles.push_back(panel.windowTitle());
    Fill(panel, 2007, "200");
    Fill(panel, 2001, "100");
    Fill(panel, 2002, "2.5");
    Fill(panel, 2003, "24");
    QTest::mouseClick(panel.WidgetOf(1), Qt::LeftButton);
    EXPECT_EQ(TextOf(panel, 2005), QStringLiteral("22.000"));
    EXPECT_EQ(TextOf(panel, 2006), QStringLiteral("2.521"));
    Fill(panel, 2001, "50");
    QTest::keyClick(panel.WidgetOf(2001), Qt::Key_Return);
    EXPECT_EQ(TextOf(panel, 2005), QStringLiteral("11.000"));
    QTest::mouseClick(panel.WidgetOf(2), Qt::LeftButton);
  };
  ClickInMenu(window, window.ActionOf(L"ZWTGRGS"));
  EXPECT_EQ(titles, std::vector<QString>{QStringLiteral("最高日最高时计算")});
  EXPECT_FALSE(window.Session().IsRunning());
}

TEST_F(MainWindowTest, QuotaIsTakenFromTheTableByADoubleClick) {
  ModuleRuntime module;
  module.Load();
  MainWindow window;
  Show(window);
  int shown = 0;
  window.Panels().onPanelShown = [&](PanelWindow& panel) {
    if (++shown == 1) {
      QTest::mouseClick(panel.WidgetOf(2000), Qt::LeftButton);
      EXPECT_EQ(TextOf(panel, 2007), QStringLiteral("215"));
      EXPECT_EQ(TextOf(panel, 2002), QStringLiteral("2.55"));
      EXPECT_EQ(TextOf(panel, 2003), QStringLiteral("24"));
      EXPECT_EQ(dynamic_cast<QLabel&>(*panel.WidgetOf(2008)).text(), QStringLiteral("普通住宅Ⅱ"));
      panel.close();
      return;
    }
    ClickCell(panel, 2012, 2, 3, true);
    EXPECT_TRUE(panel.Panel().HasEnded());
  };
  QTest::mouseClick(window.findChild<QToolBar*>()->widgetForAction(window.ActionOf(L"ZWTGRGS")),
                    Qt::LeftButton);
  EXPECT_EQ(shown, 2);
}

}  // namespace
}  // namespace zwt::test
