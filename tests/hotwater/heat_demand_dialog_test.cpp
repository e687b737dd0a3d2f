// The hot water panel as a user sees it, together with the panels that it opens.
#include "hotwater/heat_demand_dialog.h"

#include <gmock/gmock.h>

#include "hotwater/fixture_counts.h"
#include "hotwater/sample_tables.h"
#include "support/data_folder.h"
#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HeatDemandDialogTest : public testing::Test {
 protected:
  HeatDemandDialogTest() {
    RememberedFixtureCounts() = {};
    folder.Write("ZwtDataTable.xml", kSampleTables);
  }
  ~HeatDemandDialogTest() override { RememberedFixtureCounts() = {}; }

  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunHeatDemandCommand();
  }
  // Presses a button and plays the panel that it opens.
  void Open(PanelUser& user, const CString& button, PanelRun::UserFunction inside) {
    run.User(std::move(inside));
    user.Click(user.Find(button));
  }
  static PanelRun::UserFunction DoubleClick(const CString& grid, int row, int column) {
    return [=](PanelUser& user, CDialog&) { user.DoubleClickCell(user.Find(grid), row, column); };
  }
  static void Set(PanelUser& user, const CString& control, const CString& text) {
    user.Set(user.Find(control), text);
  }
  static void Click(PanelUser& user, const CString& control) { user.Click(user.Find(control)); }
  static CString Text(const PanelUser& user, const CString& control) {
    return user.Find(control).GetWindowText();
  }
  static std::vector<CString> Results(const PanelUser& user) {
    return {Text(user, L"2035"), Text(user, L"2036")};
  }
  static void FillIn(PanelUser& user) {
    Set(user, L"2007", L"200");
    Set(user, L"2020", L"100");
    Set(user, L"2002", L"2");
    Set(user, L"2034", L"10");
  }

  DataFolder folder;
  PanelRun run;
};

TEST_F(HeatDemandDialogTest, OpensForAllDaySupply) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(L"2024 radio 全天供应 checked", L"2025 radio 定时供应", L"2000 button 热水用水定额",
                    L"2007 edit  = 0", L"2008 static ", L"2020 edit 用水计算单位数： = 0",
                    L"2029 button 小时变化系数", L"2002 edit  = 0", L"2032 button 小时用水定额 disabled",
                    L"2031 edit  = 0 disabled", L"2033 button 冷水温度(℃)", L"2034 edit  = 0",
                    L"2035 edit 小时耗热量(kJ/h)： =  readonly", L"2036 edit 小时热水量(L/h)： =  readonly",
                    L"1 button 计算 default", L"2 button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"热水计算"));
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2007, 2}));
}

TEST_F(HeatDemandDialogTest, AllDaySupplyOfAHundredUnits) {
  Play([](PanelUser& user, CDialog& panel) {
    FillIn(user);
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"343068.823", L"1666.667"));
    EXPECT_FALSE(panel.HasEnded());
  });
}

TEST_F(HeatDemandDialogTest, ColdTemperatureZeroEmptiesTheResults) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"计算");
    Set(user, L"2034", L"0");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"", L""));
    Set(user, L"2034", L"60");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"0.000", L""));
  });
}

TEST_F(HeatDemandDialogTest, SupplySwitchesWhatIsEnabled) {
  const auto supply = [](const PanelUser& user) {
    std::vector<bool> enabled;
    for (const wchar_t* control : {L"2000", L"2007", L"2020", L"2029", L"2002", L"2032", L"2031"}) {
      enabled.push_back(user.Find(control).IsWindowEnabled());
    }
    return enabled;
  };
  Play([&](PanelUser& user, CDialog&) {
    Click(user, L"定时供应");
    EXPECT_THAT(supply(user), ElementsAre(false, false, false, false, false, true, true));
    Click(user, L"全天供应");
    EXPECT_THAT(supply(user), ElementsAre(true, true, true, true, true, false, false));
  });
}

TEST_F(HeatDemandDialogTest, GoingToTimedSupplyAndBackZeroesTheHourlyQuotaOnly) {
  Play([&](PanelUser& user, CDialog&) {
    FillIn(user);
    Open(user, L"热水用水定额", DoubleClick(L"2012", 2, 1));
    EXPECT_EQ(Text(user, L"2008"), L"    自备");
    Click(user, L"定时供应");
    EXPECT_EQ(Text(user, L"2008"), L"");
    Set(user, L"2031", L"500");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"102920.647", L"500.000"));
    Click(user, L"全天供应");
    EXPECT_EQ(Text(user, L"2031"), L"0");
    EXPECT_EQ(Text(user, L"2007"), L"60");
    EXPECT_EQ(Text(user, L"2020"), L"100");
    EXPECT_EQ(Text(user, L"2002"), L"2");
    EXPECT_EQ(Text(user, L"2034"), L"10");
  });
}

TEST_F(HeatDemandDialogTest, QuotaRowBringsQuotaBuildingAndHours) {
  Play([&](PanelUser& user, CDialog&) {
    FillIn(user);
    Open(user, L"热水用水定额", DoubleClick(L"2012", 3, 3));
    EXPECT_EQ(Text(user, L"2007"), L"80");
    EXPECT_EQ(Text(user, L"2008"), L"    集中");
    Set(user, L"2007", L"11");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2036"), L"200.000") << "2 * 100 * 11 / 11 hours";
    Click(user, L"定时供应");
    Click(user, L"全天供应");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2036"), L"200.000") << "the hours stay in force";
    Open(user, L"热水用水定额", DoubleClick(L"2012", 4, 3));
    Set(user, L"2007", L"24");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2036"), L"200.000") << "a row without hours is a whole day";
  });
}

TEST_F(HeatDemandDialogTest, QuotaConfirmedWithoutARowGivesZero) {
  Play([&](PanelUser& user, CDialog&) {
    FillIn(user);
    Open(user, L"热水用水定额", [](PanelUser& inside, CDialog&) { inside.Click(inside.Find(L"确定")); });
    EXPECT_EQ(Text(user, L"2007"), L"0");
    EXPECT_EQ(Text(user, L"2008"), L"");
  });
}

TEST_F(HeatDemandDialogTest, PanelsLeftWithoutAChoiceChangeNothing) {
  Play([&](PanelUser& user, CDialog&) {
    FillIn(user);
    for (const wchar_t* button : {L"热水用水定额", L"小时变化系数", L"冷水温度(℃)"}) {
      Open(user, button, [](PanelUser& inside, CDialog&) { inside.Close(); });
    }
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"343068.823", L"1666.667"));
  });
}

TEST_F(HeatDemandDialogTest, CoefficientAndTemperatureComeFromTheirPanels) {
  Play([&](PanelUser& user, CDialog&) {
    Open(user, L"小时变化系数", DoubleClick(L"2043", 1, 1));
    EXPECT_EQ(Text(user, L"2002"), L"5.12");
    Open(user, L"冷水温度(℃)", DoubleClick(L"2044", 1, 4));
    EXPECT_EQ(Text(user, L"2034"), L"17.5");
  });
}

TEST_F(HeatDemandDialogTest, FixturePanelGetsTheQuotaThatIsHeld) {
  RememberedFixtureCounts().Set(11, 4);
  Play([&](PanelUser& user, CDialog&) {
    Click(user, L"定时供应");
    Set(user, L"2031", L"500");
    Open(user, L"小时用水定额", [](PanelUser&, CDialog& inside) {
      EXPECT_EQ(inside.Grid(2012).GetItemText(12, 6), L"") << "the typed quota is not taken in yet";
    });
    Click(user, L"计算");
    Open(user, L"小时用水定额",
         [](PanelUser&, CDialog& inside) { EXPECT_EQ(inside.Grid(2012).GetItemText(12, 6), L"4"); });
  });
}

TEST_F(HeatDemandDialogTest, CalculatingForgetsTheCountsOfTheFirstEightRows) {
  Play([&](PanelUser& user, CDialog&) {
    Click(user, L"定时供应");
    Open(user, L"小时用水定额", [](PanelUser& inside, CDialog&) {
      for (int row = 2; row <= 12; ++row) inside.EditCell(inside.Find(L"2012"), row, 6, L"1");
      inside.Click(inside.Find(L"确定"));
    });
    EXPECT_EQ(Text(user, L"2031"), L"530");  // 300 + 170 + 4 + 5 + ... + 11
    Click(user, L"计算");
    Open(user, L"小时用水定额", [](PanelUser&, CDialog& inside) {
      for (int row = 1; row <= 8; ++row) EXPECT_EQ(inside.Grid(2012).GetItemText(row, 6), L"") << row;
      for (int row = 9; row <= 12; ++row) EXPECT_EQ(inside.Grid(2012).GetItemText(row, 6), L"1") << row;
    });
  });
}

TEST_F(HeatDemandDialogTest, LeavingForgetsTheCountsOfTheFirstEightRows) {
  for (const bool byButton : {true, false}) {
    RememberedFixtureCounts().Set(7, 3);
    RememberedFixtureCounts().Set(8, 5);
    Play([&](PanelUser& user, CDialog&) {
      if (byButton) Click(user, L"退出");
    });
    EXPECT_EQ(RememberedFixtureCounts().Get(7), 0);
    EXPECT_EQ(RememberedFixtureCounts().Get(8), 5);
  }
}

TEST_F(HeatDemandDialogTest, FieldWithoutANumberTakesTheFocusAndStops) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"计算");
    Set(user, L"2020", L"");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"343068.823", L"1666.667"));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2007, 2020, true}));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(HeatDemandDialogTest, RefusedFieldStopsTheChoiceFromComingIn) {
  Play([&](PanelUser& user, CDialog&) {
    Set(user, L"2034", L"abc");
    Open(user, L"小时变化系数", DoubleClick(L"2043", 1, 1));
    EXPECT_EQ(Text(user, L"2002"), L"0");
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2007, 2034, true}));
}

}  // namespace
}  // namespace zwt::test
