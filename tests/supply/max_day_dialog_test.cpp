// The panels of ZWTGRGS.
#include "supply/max_day_dialog.h"

#include <gmock/gmock.h>

#include "supply/equivalents_dialog.h"
#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class MaxDayPanelTest : public testing::Test {
 protected:
  static void Fill(PanelUser& hands, const wchar_t* quota, const wchar_t* users, const wchar_t* factor,
                   const wchar_t* hours) {
    hands.Set(hands.Find(L"quota"), quota);
    hands.Set(hands.Find(L"users"), users);
    hands.Set(hands.Find(L"hourlyFactor"), factor);
    hands.Set(hands.Find(L"hours"), hours);
  }
  static void Press(PanelUser& hands, const wchar_t* button) { hands.Click(hands.Find(button)); }
  static CString Text(const CDialog& panel, int id) { return panel.GetDlgItemText(id); }

  MainDirectory directory;
  PanelRun run;
};

TEST_F(MaxDayPanelTest, OpensWithItsDefaults) {
  run.User([](PanelUser&, CDialog& panel) {
    for (const int id : {2007, 2001, 2002, 2003}) EXPECT_EQ(Text(panel, id), L"0");
    EXPECT_EQ(Text(panel, 2004), L"10");
    for (const int id : {2005, 2006, 2008}) EXPECT_EQ(Text(panel, id), L"");
    EXPECT_TRUE(panel.Button(2013).IsWindowEnabled());
  });
  RunMaxDayCommand();
  EXPECT_THAT(run.opened, ElementsAre(L"最高日最高时计算"));
}

TEST_F(MaxDayPanelTest, CalculatesDayAndHourWithTheSecondAllowance) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Fill(hands, L"200", L"100", L"2.5", L"24");
    Press(hands, L"计算");
    EXPECT_EQ(Text(panel, 2005), L"22.000");
    EXPECT_EQ(Text(panel, 2006), L"2.521");
    EXPECT_FALSE(panel.HasEnded());
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, ZeroHoursGiveADayAndNoHour) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Fill(hands, L"200", L"100", L"2.5", L"0");
    Press(hands, L"计算");
    EXPECT_EQ(Text(panel, 2005), L"22.000");
    EXPECT_EQ(Text(panel, 2006), L"0.000");
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, FieldWithoutANumberStopsTheCalculation) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Fill(hands, L"200", L"viele", L"2.5", L"24");
    Press(hands, L"计算");
    EXPECT_EQ(Text(panel, 2005), L"");
  });
  RunMaxDayCommand();
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2000, 2001, true}));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(MaxDayPanelTest, TakesAQuotaPickedByDoubleClick) {
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.Set(hands.Find(L"users"), L"120");
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2007), L"215");
    EXPECT_EQ(Text(panel, 2002), L"2.55");
    EXPECT_EQ(Text(panel, 2003), L"24");
    EXPECT_EQ(Text(panel, 2008), L"普通住宅Ⅱ");
    EXPECT_EQ(Text(panel, 2001), L"120");
    EXPECT_TRUE(panel.Button(2013).IsWindowEnabled());
  });
  run.User([](PanelUser& hands, CDialog& panel) { hands.DoubleClickCell(panel.Grid(2012), 2, 3); });
  RunMaxDayCommand();
  EXPECT_THAT(run.closed, Contains(PanelRun::Closed{2001, 1}));
}

TEST_F(MaxDayPanelTest, PublicBuildingClosesTheInletEstimate) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"用水定额");
    EXPECT_FALSE(panel.Button(2013).IsWindowEnabled());
    EXPECT_NE(Text(panel, 2008), L"");
    Press(hands, L"用水定额");
    EXPECT_TRUE(panel.Button(2013).IsWindowEnabled());
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"宿舍、旅馆、公共建筑");
    hands.ClickCell(panel.Grid(2012), 2, 1);
    Press(hands, L"确定");
  });
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"确定"); });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, PickingNothingAndConfirmingTakesZeros) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Fill(hands, L"200", L"100", L"2.5", L"24");
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2007), L"0");
    EXPECT_EQ(Text(panel, 2002), L"0");
    EXPECT_EQ(Text(panel, 2003), L"0");
    EXPECT_EQ(Text(panel, 2001), L"100");
  });
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"确定"); });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, CancelledPickingChangesNothing) {
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.Set(hands.Find(L"quota"), L"200");
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2007), L"200");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.ClickCell(panel.Grid(2012), 1, 3);
    Press(hands, L"取消");
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, DwellingsTableHasItsMergedLabels) {
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"用水定额"); });
  run.User([](PanelUser&, CDialog& panel) {
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_THAT(grid.MergedAreas(),
                ElementsAre(MergedArea{0, 0, 1, 2}, MergedArea{1, 0, 3, 1}, MergedArea{4, 0, 1, 2}));
    EXPECT_EQ(grid.GetItemText(1, 0), L"\n\n普\n通\n住\n宅");
    EXPECT_EQ(grid.GetItemText(4, 0), L"别墅");
    EXPECT_EQ(grid.GetItemText(3, 1), L"Ⅲ");
    EXPECT_EQ(grid.GetItemText(0, 3), L"用水定额(L)");
    EXPECT_EQ(grid.GetItemText(2, 3), L"130～300");
    EXPECT_EQ(grid.GetItemFormat(1, 2), CellAlign::kLeft);
    EXPECT_EQ(grid.GetItemFormat(0, 2), CellAlign::kCenter);
    EXPECT_EQ(grid.GetRowHeight(0), 35);
    EXPECT_EQ(grid.GetRowHeight(1), 30);
    EXPECT_TRUE(panel.Button(2009).GetCheck());
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, LabelColumnsOfTheDwellingsPickNothing) {
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"用水定额"); });
  run.User([](PanelUser& hands, CDialog& panel) {
    for (const int column : {0, 1}) hands.DoubleClickCell(panel.Grid(2012), 1, column);
    hands.DoubleClickCell(panel.Grid(2012), 0, 3);
    EXPECT_FALSE(panel.HasEnded());
  });
  RunMaxDayCommand();
}

constexpr std::string_view kGroupedTable = R"(<DataTables edition="x">
  <Table Name="TABLE01"/>
  <Table Name="TABLE02">
    <Row Name="酒店式公寓" Unit="每人每日" L="200～300" h="24" Kh="2.5～2.0"/>
    <Group Name="办公楼"><Row Name="坐班" Unit="每人每班" L="30～50" h="8～10" Kh="1.5～1.2"/></Group>
    <Group Name="空"/>
    <Row Name="无数" Unit="每次"/>
  </Table>
</DataTables>)";

TEST_F(MaxDayPanelTest, PublicBuildingsStandUnderTheirGroups) {
  directory.UseDataFile(kGroupedTable);
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"用水定额"); });
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"宿舍、旅馆、公共建筑");
    const CGridCtrl& grid = panel.Grid(2012);
    ASSERT_EQ(grid.GetRowCount(), 6);
    EXPECT_EQ(grid.GetItemText(1, 0), L"1");
    EXPECT_EQ(grid.GetItemText(2, 0), L"2");
    EXPECT_EQ(grid.GetItemText(3, 0), L"");
    EXPECT_EQ(grid.GetItemText(3, 1), L"    坐班");
    EXPECT_EQ(grid.GetItemText(4, 1), L"空");
    EXPECT_EQ(grid.GetItemText(5, 0), L"4");
    EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{2, 0, 2, 1}));
    EXPECT_EQ(grid.GetItemBkColour(2, 1), kFaceColour);
    EXPECT_EQ(grid.GetItemBkColour(2, 0), std::nullopt);
    EXPECT_EQ(grid.GetItemFormat(3, 1), CellAlign::kLeft);
    EXPECT_EQ(grid.GetItemFormat(3, 2), CellAlign::kCenter);
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, HeadingOfAGroupIsNoRowOfValues) {
  directory.UseDataFile(kGroupedTable);
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"用水定额"); });
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"宿舍、旅馆、公共建筑");
    hands.DoubleClickCell(panel.Grid(2012), 2, 1);
    hands.DoubleClickCell(panel.Grid(2012), 3, 0);
    EXPECT_FALSE(panel.HasEnded());
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, RowBelowAHeadingTakesTheNameOfItsGroup) {
  directory.UseDataFile(kGroupedTable);
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2008), L"办公楼");
    EXPECT_EQ(Text(panel, 2007), L"40");
    EXPECT_EQ(Text(panel, 2003), L"9");
    EXPECT_EQ(Text(panel, 2002), L"1.35");
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2008), L"酒店式公寓");
  });
  for (const int row : {3, 1}) {
    run.User([row](PanelUser& hands, CDialog& panel) {
      Press(hands, L"宿舍、旅馆、公共建筑");
      hands.DoubleClickCell(panel.Grid(2012), row, 2);
    });
  }
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, SwitchingTablesKeepsWhatWasPicked) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"用水定额");
    EXPECT_EQ(Text(panel, 2008), L"别墅");
    EXPECT_FALSE(panel.Button(2013).IsWindowEnabled());
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.ClickCell(panel.Grid(2012), 4, 2);
    Press(hands, L"宿舍、旅馆、公共建筑");
    Press(hands, L"确定");
  });
  RunMaxDayCommand();
}

TEST_F(MaxDayPanelTest, MissingDataFileLeavesLabelsAndHeader) {
  directory.UseNone();
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"用水定额"); });
  run.User([](PanelUser& hands, CDialog& panel) {
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_EQ(grid.GetRowCount(), 5);
    EXPECT_EQ(grid.GetItemText(1, 1), L"Ⅰ");
    EXPECT_EQ(grid.GetItemText(1, 3), L"");
    Press(hands, L"宿舍、旅馆、公共建筑");
    EXPECT_EQ(grid.GetRowCount(), 1);
    EXPECT_EQ(grid.GetItemText(0, 1), L"建筑物名称");
  });
  RunMaxDayCommand();
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(MaxDayPanelTest, InletEstimateNeedsAllFourValues) {
  run.User([](PanelUser& hands, CDialog&) {
    Fill(hands, L"200", L"0", L"2.5", L"24");
    Press(hands, L"估算住宅入户管管径");
  });
  RunMaxDayCommand();
  EXPECT_THAT(run.opened, ElementsAre(L"最高日最高时计算"));
}

TEST_F(MaxDayPanelTest, EstimatesTheInletPipe) {
  run.User([](PanelUser& hands, CDialog&) {
    Fill(hands, L"250", L"3.5", L"2.8", L"24");
    Press(hands, L"估算住宅入户管管径");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    EXPECT_EQ(panel.Combo(2014).GetWindowText(), L"金属管");
    Press(hands, L"估算");
    hands.Set(hands.Find(L"每户器具当量总数："), L"1");
    Press(hands, L"估算");
    EXPECT_EQ(Text(panel, 2017), L"20");
    EXPECT_EQ(Text(panel, 2018), L"0.62");
    hands.Set(hands.Find(L"每户器具当量总数："), L"0.5");
    Press(hands, L"估算");
    EXPECT_EQ(Text(panel, 2017), L"20");
  });
  RunMaxDayCommand();
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2002, 2016, true}));
}

TEST_F(MaxDayPanelTest, LeavingTheInletPanelForgetsTheFirstEightQuantities) {
  run.User([](PanelUser& hands, CDialog&) {
    Fill(hands, L"250", L"3.5", L"2.8", L"24");
    Press(hands, L"估算住宅入户管管径");
    Press(hands, L"估算住宅入户管管径");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"..");
    EXPECT_NE(Text(panel, 2016), L"0");
    Press(hands, L"..");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    for (const int row : {2, 12}) hands.EditCell(panel.Grid(2012), row, 6, L"3");
    Press(hands, L"确定");
  });
  run.User([](PanelUser&, CDialog& panel) {
    EXPECT_EQ(panel.Grid(2012).GetItemText(2, 6), L"3");
    EXPECT_EQ(panel.Grid(2012).GetItemText(12, 6), L"3");
  });
  run.User([](PanelUser& hands, CDialog&) {
    hands.Set(hands.Find(L"2016"), L"1");
    Press(hands, L"..");
  });
  run.User([](PanelUser&, CDialog& panel) {
    EXPECT_EQ(panel.Grid(2012).GetItemText(2, 6), L"");
    EXPECT_EQ(panel.Grid(2012).GetItemText(12, 6), L"3");
  });
  RunMaxDayCommand();
}

}  // namespace
}  // namespace zwt::test
