// The main road of each command that needs no drawing, worked with mouse and keyboard in real windows.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

#include <gmock/gmock.h>

#include "host/dialog/panel_user.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/module_runtime.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A window worked by the names of controls: number, name of the value, or label.
class WindowUser {
 public:
  explicit WindowUser(PanelWindow& window) : window_(window) {}

  void Type(const wchar_t* control, const char* text) { TypeInto(window_, NumberOf(control), text); }
  void Click(const wchar_t* control) {
    QWidget* widget = window_.WidgetOf(NumberOf(control));
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
  }
  /// Picks an item with the keyboard.
  void Pick(const wchar_t* control, int item) {
    auto& box = WidgetOf<QComboBox>(window_, NumberOf(control));
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int step = 0; step < item; ++step) QTest::keyClick(&box, Qt::Key_Down);
  }
  void DoubleClickCell(const wchar_t* control, int row, int column) {
    ClickCell(window_, NumberOf(control), row, column, true);
  }
  void TypeIntoCell(const wchar_t* control, int row, int column, const char* text) {
    ClickCell(window_, NumberOf(control), row, column);
    // The first key opens the editor of the cell, which takes the others.
    for (const QChar key : QString::fromUtf8(text)) QTest::keyClicks(QApplication::focusWidget(), key);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  }
  /// What the fields show on the screen.
  std::vector<CString> Shown(std::initializer_list<const wchar_t*> controls) {
    std::vector<CString> texts;
    for (const wchar_t* control : controls) {
      texts.push_back(FromQt(WidgetOf<QLineEdit>(window_, NumberOf(control)).text()));
    }
    return texts;
  }
  /// Which control of the window takes the keys when the window is the active one.
  bool HasFocus(const wchar_t* control) {
    return window_.focusWidget() == window_.WidgetOf(NumberOf(control));
  }
  bool IsSeen(const wchar_t* control) { return window_.WidgetOf(NumberOf(control))->isVisible(); }

 private:
  int NumberOf(const wchar_t* control) { return PanelUser(window_.Panel()).Find(control).GetDlgCtrlID(); }

  PanelWindow& window_;
};

class StandalonePanelsTest : public testing::Test {
 protected:
  StandalonePanelsTest() { module_.Load(); }

  void User(std::function<void(WindowUser&)> user) {
    desk.User([this, work = std::move(user)](PanelWindow& window) {
      ++worked;
      WindowUser hands(window);
      work(hands);
    });
  }

  ModuleRuntime module_;
  PanelDesk desk;
  int worked = 0;
};

// Its fields can be explained, but there is no row for the sheet of computed steps to follow.
TEST_F(StandalonePanelsTest, MaximumDayOffersNoSheet) {
  desk.User([this](PanelWindow& window) {
    ++worked;
    EXPECT_TRUE(window.Panel().CanExplain(2005));
    EXPECT_EQ(window.findChild<QAbstractButton*>(QStringLiteral("sheetButton")), nullptr);
    WindowUser user(window);
    user.Type(L"quota", "200");
    user.Type(L"users", "100");
    user.Click(L"1");
    EXPECT_THAT(user.Shown({L"maxDayText"}), ElementsAre(L"22.000"));
  });
  RunCommand(L"ZWTGRGS");
  EXPECT_EQ(worked, 1);
}

TEST_F(StandalonePanelsTest, HydrantJet) {
  User([](WindowUser& user) {
    user.Type(L"inputText", "5");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"resultText", L"pressureText", L"radiusText"}),
                ElementsAre(L"11.3", L"18.93", L"28.05"));
    user.Click(L"已知充实水柱长度");
    EXPECT_THAT(user.Shown({L"inputText", L"resultText"}), ElementsAre(L"11.3", L""));
    user.Type(L"inputText", "12");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"resultText", L"pressureText", L"radiusText"}),
                ElementsAre(L"5.20", L"20.31", L"28.52"));
    user.Click(L"已知出口水流量");
    user.Pick(L"nozzleIndex", 4);
    user.Click(L"计算");
    EXPECT_TRUE(user.HasFocus(L"inputText"));
  });
  RunCommand(L"ZWTXHS");
  EXPECT_EQ(worked, 1);
  EXPECT_EQ(desk.messages.size(), 1U);
  EXPECT_NE(desk.messages.front().find(L"流量必须在5.9至15.2之间"), CString::npos);
}

TEST_F(StandalonePanelsTest, Extinguishers) {
  User([](WindowUser& user) {
    user.Type(L"2111", "1000");
    user.Pick(L"2114", 1);
    user.Click(L"计算并配置");
  });
  User([](WindowUser& user) {
    EXPECT_THAT(user.Shown({L"2118", L"2119"}), ElementsAre(L"12.00A", L"2A"));
    EXPECT_TRUE(user.HasFocus(L"2120"));
    user.Type(L"2118", "120b");
    user.Type(L"2120", "2");
    EXPECT_THAT(user.Shown({L"2118", L"2119"}), ElementsAre(L"120B", L"55B"));
    user.Click(L"退出");
  });
  RunCommand(L"ZWTMHQ");
  EXPECT_EQ(worked, 2);
}

TEST_F(StandalonePanelsTest, HotWater) {
  User([](WindowUser& user) {
    user.Click(L"2000");
    EXPECT_THAT(user.Shown({L"2007"}), ElementsAre(L"60"));
    user.Type(L"2020", "100");
    user.Click(L"2029");
    user.Click(L"2033");
    EXPECT_THAT(user.Shown({L"2002", L"2034"}), ElementsAre(L"5.12", L"4"));
    user.Type(L"2007", "200");
    user.Type(L"2002", "2");
    user.Type(L"2034", "10");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2035", L"2036"}), ElementsAre(L"343068.823", L"1666.667"));
    user.Click(L"定时供应");
    user.Click(L"2032");
    EXPECT_THAT(user.Shown({L"2031"}), ElementsAre(L"3000"));
  });
  User([](WindowUser& user) { user.DoubleClickCell(L"2012", 2, 3); });
  User([](WindowUser& user) { user.DoubleClickCell(L"2043", 1, 1); });
  User([](WindowUser& user) { user.DoubleClickCell(L"2043", 1, 3); });
  User([](WindowUser& user) {
    user.TypeIntoCell(L"2012", 2, 6, "10");
    user.Click(L"确定");
  });
  RunCommand(L"ZWTRSJS");
  EXPECT_EQ(worked, 5);
}

TEST_F(StandalonePanelsTest, Tank) {
  User([](WindowUser& user) {
    user.Click(L"水泵、水箱联合工作");
    user.Type(L"2078", "10");
    user.Type(L"2079", "4");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2083"}), ElementsAre(L"14.40"));
    user.Click(L"合用");
    user.Click(L"单设水箱");
    EXPECT_FALSE(user.IsSeen(L"2080"));
    user.Type(L"2079", "1");
    user.Type(L"2074", "5");
    user.Pick(L"2076", 0);
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2082", L"2083", L"2084"}), ElementsAre(L"18.00", L"10.00", L"28.00"));
  });
  RunCommand(L"ZWTSXJS");
  EXPECT_EQ(worked, 1);
}

TEST_F(StandalonePanelsTest, PressureTank) {
  User([](WindowUser& user) {
    user.Type(L"2069", "10");
    user.Click(L"计算");
    EXPECT_TRUE(user.HasFocus(L"2073"));
    user.Type(L"2073", "20");
    user.Type(L"2074", "5");
    user.Type(L"2075", "5");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2071", L"2072", L"2076", L"2077"}),
                ElementsAre(L"1.500", L"6.250", L"0.30", L"0.47"));
  });
  RunCommand(L"ZWTQYSG");
  EXPECT_EQ(worked, 1);
  EXPECT_THAT(desk.messages, IsEmpty());
}

TEST_F(StandalonePanelsTest, StoragePool) {
  User([](WindowUser& user) {
    user.Type(L"2131", "100");
    user.Type(L"2135", "2");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2133", L"2136", L"2121", L"2138", L"2125", L"2137"}),
                ElementsAre(L"10.00", L"6.00", L"864.00", L"42.41", L"127.23", L"752.77"));
    user.Click(L"2128");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2125", L"2137"}), ElementsAre(L"0.00", L"16.00"));
  });
  RunCommand(L"ZWTZSC");
  EXPECT_EQ(worked, 1);
}

TEST_F(StandalonePanelsTest, AirDefenceWater) {
  User([](WindowUser& user) {
    EXPECT_FALSE(user.IsSeen(L"2052"));
    user.Pick(L"2048", 4);
    EXPECT_FALSE(user.IsSeen(L"2066"));
    user.Type(L"2052", "20");
    user.Type(L"2049", "30");
    user.Click(L"计算");
    EXPECT_THAT(user.Shown({L"2060", L"2061"}), ElementsAre(L"0.840", L"1.400"));
    user.Click(L"无可靠内水源");
    user.Click(L"有防护外水源");
    EXPECT_THAT(user.Shown({L"2057", L"2059"}), ElementsAre(L"15", L"7"));
    user.Type(L"2051", "-1");
    user.Click(L"计算");
    EXPECT_TRUE(user.HasFocus(L"2054"));
  });
  RunCommand(L"ZWTRFSL");
  EXPECT_EQ(worked, 1);
}

}  // namespace
}  // namespace zwt::test
