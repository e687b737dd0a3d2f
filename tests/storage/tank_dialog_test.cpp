// The tank panel as a user sees it, in each use and mode.
#include "storage/tank_dialog.h"

#include <gmock/gmock.h>

#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;

class TankDialogTest : public testing::Test {
 protected:
  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunTankCommand();
  }
  static void Set(PanelUser& user, const CString& control, const CString& text) {
    user.Set(user.Find(control), text);
  }
  static void Click(PanelUser& user, const CString& control) { user.Click(user.Find(control)); }
  static CString Text(const PanelUser& user, const CString& control) {
    return user.Find(control).GetWindowText();
  }

  static std::vector<CString> Domestic(const PanelUser& user) {
    return Describe(user, {L"2010", L"2077", L"2093", L"2078", L"2094", L"2079", L"2080", L"2081", L"2083"});
  }
  static std::vector<CString> Fire(const PanelUser& user) {
    return Describe(user, {L"2074", L"2075", L"2076", L"2090", L"2092", L"2082"});
  }

  PanelRun run;
};

TEST_F(TankDialogTest, OpensForDomesticUse) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(L"2086 radio 消防", L"2009 radio 生活 checked", L"2011 radio 合用",
                    L"2010 radio 单设水箱 checked", L"2077 radio 水泵、水箱联合工作",
                    L"2093 static 平均每小时用水量(立方米)：", L"2078 edit 平均每小时用水量(立方米)： = ",
                    L"2094 static 最大连续出水时间(h)：", L"2079 edit 最大连续出水时间(h)： = ",
                    L"2080 edit 设计秒流量持续时间(h)： = 0.5", L"2081 edit 水泵最短运行时间(h)： = 0.25",
                    L"2074 edit 消防用水量(L/s)： =  disabled", L"2075 edit 用水时间(min)： = 10 disabled",
                    L"2076 combo 建筑等级： = 一类建筑(住宅除外) of [一类建筑(住宅除外)] "
                    L"[二类建筑(住宅除外)、一类建筑(住宅)] [二类建筑(住宅)] disabled",
                    L"2090 static 注:选以上建筑,消防水箱容积不小于18m3 disabled",
                    L"2092 static 另注:(无) disabled",
                    L"2082 edit 消防水箱最小容积(立方米)： =  readonly disabled",
                    L"2083 edit 生活水箱容积(立方米)： =  readonly",
                    L"2084 edit 总容积(立方米)： =  readonly disabled", L"2085 button 计算 default",
                    L"1 button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"水箱容积计算"));
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST_F(TankDialogTest, FireUseEnablesItsGroupAndDisablesTheDomesticOne) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"消防");
    EXPECT_THAT(Domestic(user), Each(EndsWith(L" disabled")));
    EXPECT_THAT(Fire(user), Each(Not(EndsWith(L" disabled"))));
    EXPECT_FALSE(user.Find(L"2084").IsWindowEnabled());
    Click(user, L"生活");
    EXPECT_THAT(Domestic(user), Each(Not(EndsWith(L" disabled"))));
    EXPECT_THAT(Fire(user), Each(EndsWith(L" disabled")));
    EXPECT_FALSE(user.Find(L"2084").IsWindowEnabled());
  });
}

TEST_F(TankDialogTest, SharedUseEnablesEverything) {
  Play([](PanelUser& user, CDialog& panel) {
    Click(user, L"合用");
    EXPECT_THAT(Describe(panel), Each(Not(EndsWith(L" disabled"))));
  });
}

TEST_F(TankDialogTest, WorkingModeSetsLabelsAndShowsThePumpFields) {
  Play([](PanelUser& user, CDialog&) {
    EXPECT_TRUE(user.Find(L"2080").IsWindowVisible());
    Click(user, L"单设水箱");
    EXPECT_EQ(user.Find(L"2078").Label(), L"平均每小时用水量(立方米):");
    EXPECT_EQ(user.Find(L"2079").Label(), L"最大连续出水时间(h):");
    EXPECT_FALSE(user.Find(L"2080").IsWindowVisible());
    EXPECT_FALSE(user.Find(L"2081").IsWindowVisible());
    Click(user, L"水泵、水箱联合工作");
    EXPECT_EQ(user.Find(L"2078").Label(), L"设计秒流量(L/s):");
    EXPECT_EQ(user.Find(L"2079").Label(), L"水泵出水量(L/s):");
    EXPECT_TRUE(user.Find(L"2080").IsWindowVisible());
    EXPECT_TRUE(user.Find(L"2081").IsWindowVisible());
  });
}

TEST_F(TankDialogTest, BuildingClassSetsTheNote) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"消防");
    user.Pick(user.Find(L"2076"), 1);
    EXPECT_EQ(Text(user, L"2090"), L"注:选以上建筑,消防水箱容积不小于12m3");
    user.Pick(user.Find(L"2076"), 2);
    EXPECT_EQ(Text(user, L"2090"), L"注:选以上建筑,消防水箱容积不小于6m3");
    user.Pick(user.Find(L"2076"), 0);
    EXPECT_EQ(Text(user, L"2090"), L"注:选以上建筑,消防水箱容积不小于18m3");
  });
}

TEST_F(TankDialogTest, FireTankOfTheLargeClass) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"消防");
    Set(user, L"2074", L"40");
    user.Pick(user.Find(L"2076"), 1);
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2082"), L"24.00");
    EXPECT_EQ(Text(user, L"2090"), L"注:算得结果大于最小值12m3(正常情况)");
    EXPECT_EQ(Text(user, L"2092"), L"另注:消防用水量超过25L/s且算得的消防容积大于18m3时，也可取18m3");
    EXPECT_EQ(Text(user, L"2083"), L"");
  });
}

TEST_F(TankDialogTest, ChangeOfUseResetsTheSecondNoteOnly) {
  for (const CString use : {L"消防", L"生活", L"合用"}) {
    Play([&](PanelUser& user, CDialog&) {
      Click(user, L"消防");
      Set(user, L"2074", L"40");
      Click(user, L"计算");
      Click(user, use);
      EXPECT_EQ(Text(user, L"2092"), L"另注:(无)");
      EXPECT_EQ(Text(user, L"2090"), L"注:算得结果大于最小值18m3(正常情况)");
      EXPECT_EQ(Text(user, L"2082"), L"24.00");
    });
  }
}

TEST_F(TankDialogTest, PumpAndTankTogether) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"水泵、水箱联合工作");
    Set(user, L"2078", L"10");
    Set(user, L"2079", L"4");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2083"), L"14.40");
    EXPECT_EQ(Text(user, L"2090"), L"注:(无)");
  });
}

TEST_F(TankDialogTest, SharedTankThenDomesticKeepsTheOldTotal) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"合用");
    Set(user, L"2078", L"4");
    Set(user, L"2079", L"2.5");
    Set(user, L"2074", L"5");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2082"), L"18.00");
    EXPECT_EQ(Text(user, L"2083"), L"10.00");
    EXPECT_EQ(Text(user, L"2084"), L"28.00");
    EXPECT_EQ(Text(user, L"2090"), L"注:算得结果3.0小于18取18");
    Click(user, L"生活");
    Set(user, L"2078", L"8");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2083"), L"20.00");
    EXPECT_EQ(Text(user, L"2082"), L"18.00");
    EXPECT_EQ(Text(user, L"2084"), L"28.00");
  });
}

TEST_F(TankDialogTest, ExitReturnsOneAndTheCloseBoxTwo) {
  Play([](PanelUser& user, CDialog&) { Click(user, L"退出"); });
  Play([](PanelUser& user, CDialog&) { user.Close(); });
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2015, 1}, PanelRun::Closed{2015, 2}));
}

}  // namespace
}  // namespace zwt::test
