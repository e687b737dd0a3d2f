// The four reference panels on small tables: what they show, and what a click or double click gives back.
#include <gmock/gmock.h>

#include "hotwater/cold_water_dialog.h"
#include "hotwater/fixture_counts.h"
#include "hotwater/hot_water_fixtures_dialog.h"
#include "hotwater/hot_water_quota_dialog.h"
#include "hotwater/hourly_variation_dialog.h"
#include "hotwater/sample_tables.h"
#include "support/data_folder.h"
#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<CString>;

Texts RowOf(const CGridCtrl& grid, int row) {
  Texts texts;
  for (int column = 0; column < grid.GetColumnCount(); ++column)
    texts.push_back(grid.GetItemText(row, column));
  return texts;
}

std::vector<Texts> RowsOf(const CGridCtrl& grid) {
  std::vector<Texts> rows;
  for (int row = 0; row < grid.GetRowCount(); ++row) rows.push_back(RowOf(grid, row));
  return rows;
}

std::vector<int> WidthsOf(const CGridCtrl& grid) {
  std::vector<int> widths;
  for (int column = 0; column < grid.GetColumnCount(); ++column)
    widths.push_back(grid.GetColumnWidth(column));
  return widths;
}

// Cells of a column that stand out against their row's normal look.
std::vector<int> RowsWithColour(const CGridCtrl& grid, int column, COLORREF colour) {
  std::vector<int> rows;
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    if (grid.GetItemFgColour(row, column) == colour) rows.push_back(row);
  }
  return rows;
}

class HotWaterReferenceTest : public testing::Test {
 protected:
  HotWaterReferenceTest() { folder.Write("ZwtDataTable.xml", kSampleTables); }

  int Play(CDialog& panel, PanelRun::UserFunction user = {}) {
    if (user) run.User(std::move(user));
    return panel.DoModal();
  }

  DataFolder folder;
  PanelRun run;
};

using HotWaterQuotaTest = HotWaterReferenceTest;

TEST_F(HotWaterQuotaTest, ShowsGroupsAndItems) {
  ZcUiComputeRsParamDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    const CGridCtrl& grid = shown.Grid(2012);
    EXPECT_THAT(RowsOf(grid),
                ElementsAre(Texts{L"序", L"建筑物名称", L"单位", L"用水定额(L)", L"使用时间(h)"},
                            Texts{L"1", L"住宅", L"", L"", L""},
                            Texts{L"", L"    自备", L"每人每日", L"40～80", L"24"},
                            Texts{L"", L"    集中", L"每人每日", L"60～100", L"10～12"},
                            Texts{L"2", L"别墅", L"每人每日", L"70～110", L""},
                            Texts{L"3", L"浴室", L"每顾客每次", L"40~60", L"0"},
                            Texts{L"4", L"空组", L"", L"", L""}));
    EXPECT_THAT(WidthsOf(grid), ElementsAre(23, 165, 70, 75, 75));
    EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{1, 0, 3, 1}));
    EXPECT_EQ(grid.GetFixedRowCount(), 1);
    EXPECT_EQ(grid.GetFixedColumnCount(), 1);
    EXPECT_FALSE(grid.IsEditable());
  });
  EXPECT_THAT(run.opened, ElementsAre(L"热水用水定额"));
}

TEST_F(HotWaterQuotaTest, ColoursAndAlignsItsCells) {
  ZcUiComputeRsParamDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    const CGridCtrl& grid = shown.Grid(2012);
    EXPECT_THAT(RowsWithColour(grid, 3, kRed), ElementsAre(2, 3, 4, 5));
    EXPECT_FALSE(grid.GetItemBkColour(1, 0));
    for (int column = 1; column < 5; ++column) EXPECT_EQ(grid.GetItemBkColour(1, column), kFaceColour);
    EXPECT_FALSE(grid.GetItemBkColour(2, 1));
    EXPECT_EQ(grid.GetItemFormat(2, 1), CellAlign::kLeft);
    EXPECT_EQ(grid.GetItemFormat(2, 2), CellAlign::kCenter);
    EXPECT_EQ(grid.GetItemFormat(2, 0), CellAlign::kCenter);
    EXPECT_EQ(grid.GetItemData(2, 4), L"住宅");
    EXPECT_EQ(grid.GetItemData(4, 4), L"");
  });
}

TEST_F(HotWaterQuotaTest, DoubleClickTakesTheRowAndCloses) {
  ZcUiComputeRsParamDialog panel;
  const int code =
      Play(panel, [](PanelUser& user, CDialog&) { user.DoubleClickCell(user.Find(L"2012"), 3, 1); });
  EXPECT_EQ(code, IDOK);
  EXPECT_EQ(panel.quota, 80.0);
  EXPECT_EQ(panel.hours, 11.0);
  EXPECT_EQ(panel.buildingText, L"    集中") << "the group's name is never taken";
}

TEST_F(HotWaterQuotaTest, ClickTakesTheRowAndStaysOpen) {
  ZcUiComputeRsParamDialog panel;
  const int code = Play(panel, [](PanelUser& user, CDialog& shown) {
    user.ClickCell(user.Find(L"2012"), 4, 4);
    EXPECT_FALSE(shown.HasEnded());
    user.Click(user.Find(L"确定"));
  });
  EXPECT_EQ(code, IDOK);
  EXPECT_EQ(panel.quota, 90.0);
  EXPECT_EQ(panel.hours, 24.0) << "an empty time is a whole day";
  EXPECT_EQ(panel.buildingText, L"别墅");
}

TEST_F(HotWaterQuotaTest, NarrowTildeIsNoRangeAndZeroHoursAreAWholeDay) {
  ZcUiComputeRsParamDialog panel;
  Play(panel, [](PanelUser& user, CDialog&) { user.DoubleClickCell(user.Find(L"2012"), 5, 2); });
  EXPECT_EQ(panel.quota, 40.0);
  EXPECT_EQ(panel.hours, 24.0);
}

TEST_F(HotWaterQuotaTest, HeadingHeaderAndNumberColumnTakeNothing) {
  ZcUiComputeRsParamDialog panel;
  Play(panel, [](PanelUser& user, CDialog& shown) {
    CWnd& grid = user.Find(L"2012");
    user.ClickCell(grid, 2, 1);
    for (const auto& [row, column] : {std::pair{1, 1}, {1, 3}, {0, 3}, {3, 0}, {6, 1}}) {
      user.ClickCell(grid, row, column);
      user.DoubleClickCell(grid, row, column);
      EXPECT_FALSE(shown.HasEnded());
    }
  });
  EXPECT_EQ(panel.quota, 60.0);
  EXPECT_EQ(panel.buildingText, L"    自备");
}

TEST_F(HotWaterQuotaTest, ConfirmedWithoutAClickGivesZeroAndAWholeDay) {
  ZcUiComputeRsParamDialog panel;
  EXPECT_EQ(Play(panel, [](PanelUser& user, CDialog&) { user.Click(user.Find(L"确定")); }), IDOK);
  EXPECT_EQ(panel.quota, 0.0);
  EXPECT_EQ(panel.hours, 24.0);
  EXPECT_EQ(panel.buildingText, L"");
}

TEST_F(HotWaterQuotaTest, ExitAndCloseBoxChooseNothing) {
  ZcUiComputeRsParamDialog panel;
  EXPECT_EQ(Play(panel, [](PanelUser& user, CDialog&) { user.Click(user.Find(L"退出")); }), IDCANCEL);
  EXPECT_EQ(Play(panel, [](PanelUser& user, CDialog&) { user.Close(); }), IDCANCEL);
}

TEST_F(HotWaterQuotaTest, UnreadableFileLeavesTheHeaderRow) {
  folder.Write("ZwtDataTable.xml", "<DataTables");
  ZcUiComputeRsParamDialog panel;
  Play(panel, [](PanelUser& user, CDialog& shown) {
    EXPECT_EQ(shown.Grid(2012).GetRowCount(), 1);
    EXPECT_EQ(shown.Grid(2012).GetItemText(0, 4), L"使用时间(h)");
    user.DoubleClickCell(user.Find(L"2012"), 0, 1);
    EXPECT_FALSE(shown.HasEnded());
  });
}

class HotWaterFixturesTest : public HotWaterReferenceTest {
 protected:
  HotWaterFixturesTest() { RememberedFixtureCounts() = {}; }
  ~HotWaterFixturesTest() override { RememberedFixtureCounts() = {}; }

  static Texts Counts(const CDialog& panel) {
    Texts counts;
    const CGridCtrl& grid = panel.Grid(2012);
    for (int row = 1; row < grid.GetRowCount(); ++row) counts.push_back(grid.GetItemText(row, 6));
    return counts;
  }
  static void Count(PanelUser& user, int row, const CString& count) {
    user.EditCell(user.Find(L"2012"), row, 6, count);
  }
};

TEST_F(HotWaterFixturesTest, ShowsGroupsAndItems) {
  ZcUiComputeRsWareDialog panel(0);
  Play(panel, [](PanelUser&, CDialog& shown) {
    const CGridCtrl& grid = shown.Grid(2012);
    EXPECT_THAT(WidthsOf(grid), ElementsAre(23, 145, 55, 85, 0, 65, 50));
    EXPECT_EQ(RowOf(grid, 0), (Texts{L"序号", L"卫生器具名称", L"一次用水量(L)", L"小时用水量(L)",
                                     L"使用水温(℃)", L"百分比(%)", L"数量"}));
    EXPECT_EQ(RowOf(grid, 1), (Texts{L"1", L"住宅", L"", L"", L"", L"", L""}));
    EXPECT_EQ(RowOf(grid, 2), (Texts{L"", L"    浴盆", L"150", L"300", L"40", L"70～100", L""}));
    EXPECT_EQ(RowOf(grid, 4), (Texts{L"2", L"洗涤盆", L"-", L"-", L"50", L"-", L""}));
    EXPECT_EQ(grid.GetRowCount(), 14);
    EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{1, 0, 3, 1}));
    EXPECT_EQ(grid.GetItemFgColour(2, 3), kRed);
    EXPECT_EQ(grid.GetItemFgColour(2, 6), kBlue);
    EXPECT_EQ(grid.GetItemBkColour(1, 6), kFaceColour);
    EXPECT_EQ(grid.GetItemData(2, 4), L"");
  });
  EXPECT_THAT(run.opened, ElementsAre(L"卫生器具的一次和小时热水用水量和水温"));
}

TEST_F(HotWaterFixturesTest, OnlyTheCountsOfItemsAreTyped) {
  ZcUiComputeRsWareDialog panel(0);
  Play(panel, [](PanelUser& user, CDialog& shown) {
    const CGridCtrl& grid = shown.Grid(2012);
    for (int column = 0; column < 7; ++column) {
      EXPECT_FALSE(grid.TakesText(0, column));
      EXPECT_FALSE(grid.TakesText(1, column));
      EXPECT_EQ(grid.TakesText(2, column), column == 6);
      EXPECT_TRUE(grid.IsReadOnly(1, column));
    }
    EXPECT_THROW(Count(user, 1, L"3"), PanelRefusal);
  });
}

TEST_F(HotWaterFixturesTest, ConfirmingAddsUpAndRemembers) {
  ZcUiComputeRsWareDialog panel(0);
  const int code = Play(panel, [](PanelUser& user, CDialog&) {
    Count(user, 2, L"10");
    Count(user, 3, L"2");
    Count(user, 4, L"7");
    user.Click(user.Find(L"确定"));
  });
  EXPECT_EQ(code, IDOK);
  EXPECT_EQ(panel.hourlyQuota, 3340.0);
  EXPECT_EQ(RememberedFixtureCounts().Get(1), 10);
  EXPECT_EQ(RememberedFixtureCounts().Get(2), 2);
  EXPECT_EQ(RememberedFixtureCounts().Get(3), 7);
}

TEST_F(HotWaterFixturesTest, CountsComeBackWithANonZeroQuotaOnly) {
  RememberedFixtureCounts().Set(1, 10);
  ZcUiComputeRsWareDialog without(0);
  Play(without, [](PanelUser&, CDialog& shown) { EXPECT_EQ(Counts(shown)[1], L""); });
  ZcUiComputeRsWareDialog with(3000);
  Play(with, [](PanelUser&, CDialog& shown) { EXPECT_EQ(Counts(shown)[1], L"10"); });
}

TEST_F(HotWaterFixturesTest, LeavingKeepsMemoryAndResult) {
  RememberedFixtureCounts().Set(1, 10);
  ZcUiComputeRsWareDialog panel(3000);
  const int code = Play(panel, [](PanelUser& user, CDialog&) {
    Count(user, 2, L"99");
    user.Click(user.Find(L"退出"));
  });
  EXPECT_EQ(code, IDCANCEL);
  EXPECT_EQ(panel.hourlyQuota, 3000.0);
  EXPECT_EQ(RememberedFixtureCounts().Get(1), 10);
}

TEST_F(HotWaterFixturesTest, EmptyingTouchesTheGridAndNotTheMemory) {
  RememberedFixtureCounts().Set(1, 10);
  ZcUiComputeRsWareDialog panel(3000);
  Play(panel, [](PanelUser& user, CDialog& shown) {
    user.Click(user.Find(L"归零"));
    EXPECT_EQ(Counts(shown)[1], L"");
    EXPECT_EQ(RememberedFixtureCounts().Get(1), 10);
    user.Click(user.Find(L"确定"));
  });
  EXPECT_EQ(panel.hourlyQuota, 0.0);
  EXPECT_EQ(RememberedFixtureCounts().Get(1), 0);
}

TEST_F(HotWaterFixturesTest, ClearingLeavesTheCountsFromTheNinthRowOn) {
  ZcUiComputeRsWareDialog first(0);
  Play(first, [](PanelUser& user, CDialog&) {
    for (int row = 2; row <= 12; ++row) Count(user, row, std::to_wstring(row));
    user.Click(user.Find(L"确定"));
  });
  RememberedFixtureCounts().Clear();
  ZcUiComputeRsWareDialog second(first.hourlyQuota);
  Play(second, [](PanelUser&, CDialog& shown) {
    EXPECT_THAT(Counts(shown),
                ElementsAre(L"", L"", L"", L"", L"", L"", L"", L"", L"9", L"10", L"11", L"12", L""));
  });
  ZcUiComputeRsWareDialog withoutQuota(0);
  Play(withoutQuota,
       [](PanelUser&, CDialog& shown) { EXPECT_THAT(Counts(shown), testing::Each(CString())); });
}

TEST_F(HotWaterFixturesTest, MissingFileLeavesTheHeaderRowAndAZeroSum) {
  std::filesystem::remove(folder.File("ZwtDataTable.xml"));
  ZcUiComputeRsWareDialog panel(500);
  Play(panel, [](PanelUser& user, CDialog& shown) {
    EXPECT_EQ(shown.Grid(2012).GetRowCount(), 1);
    user.Click(user.Find(L"确定"));
  });
  EXPECT_EQ(panel.hourlyQuota, 0.0);
}

class ColdWaterTest : public HotWaterReferenceTest {
 protected:
  // The temperature after a double click, and whether the panel closed by it.
  std::pair<double, bool> DoubleClick(const CString& grid, int row, int column) {
    ZcUiComputeRsColdDialog panel;
    const int code =
        Play(panel, [&](PanelUser& user, CDialog&) { user.DoubleClickCell(user.Find(grid), row, column); });
    return {panel.temperature, code == IDOK};
  }
};

TEST_F(ColdWaterTest, ShowsRegionsProvincesAndParts) {
  ZcUiComputeRsColdDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    const CGridCtrl& grid = shown.Grid(2043);
    EXPECT_THAT(
        RowsOf(grid),
        ElementsAre(Texts{L"区域", L"省、市、自治区、行政区", L"", L"地面水", L"地下水"},
                    Texts{L"东北", L"黑龙江", L"", L"4", L"6～10"},
                    Texts{L"", L"辽宁", L"大部", L"4", L"6～10"}, Texts{L"", L"", L"南部", L"-", L"10～15"},
                    Texts{L"华北", L"北京", L"", L"4", L"10～15"}));
    EXPECT_THAT(
        grid.MergedAreas(),
        testing::UnorderedElementsAre(MergedArea{0, 1, 1, 2}, MergedArea{1, 0, 3, 1}, MergedArea{1, 1, 1, 2},
                                      MergedArea{2, 1, 2, 1}, MergedArea{4, 1, 1, 2}));
    EXPECT_THAT(WidthsOf(grid), ElementsAre(40, 70, 65, 55, 60));
    EXPECT_EQ(grid.GetFixedColumnCount(), 3);
    EXPECT_EQ(grid.GetRowHeight(0), 32);
    EXPECT_EQ(grid.GetItemFormat(1, 1), CellAlign::kCenter);
    EXPECT_EQ(shown.Grid(2044).GetItemText(1, 1), L"江西大部");
    EXPECT_EQ(shown.Controls().size(), 2U) << "the panel has no buttons";
  });
  EXPECT_THAT(run.opened, ElementsAre(L"冷水的计算温度"));
}

TEST_F(ColdWaterTest, DoubleClickTakesTheTemperature) {
  EXPECT_EQ(DoubleClick(L"2043", 1, 3), (std::pair{4.0, true}));
  EXPECT_EQ(DoubleClick(L"2043", 3, 4), (std::pair{12.5, true}));
  EXPECT_EQ(DoubleClick(L"2043", 3, 3), (std::pair{0.0, true})) << "a dash gives 0";
  EXPECT_EQ(DoubleClick(L"2044", 1, 4), (std::pair{17.5, true}));
}

TEST_F(ColdWaterTest, DoubleClickOnANameClosesWithZero) {
  EXPECT_EQ(DoubleClick(L"2043", 1, 0), (std::pair{0.0, true}));
  EXPECT_EQ(DoubleClick(L"2043", 2, 1), (std::pair{0.0, true}));
}

TEST_F(ColdWaterTest, DoubleClickOnTheHeadingsOfTheTemperaturesClosesWithZero) {
  EXPECT_EQ(DoubleClick(L"2043", 0, 3), (std::pair{0.0, true}));
  EXPECT_EQ(DoubleClick(L"2044", 0, 4), (std::pair{0.0, true}));
}

TEST_F(ColdWaterTest, DoubleClickOnTheOtherHeadingsDoesNothing) {
  for (const int column : {0, 1, 2}) EXPECT_EQ(DoubleClick(L"2043", 0, column), (std::pair{0.0, false}));
}

TEST_F(ColdWaterTest, UnreadableFileLeavesTheHeaderRows) {
  folder.Write("ZwtDataTable.xml", "");
  ZcUiComputeRsColdDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    EXPECT_EQ(shown.Grid(2043).GetRowCount(), 1);
    EXPECT_EQ(shown.Grid(2044).GetRowCount(), 1);
  });
}

TEST_F(ColdWaterTest, RegionWithoutRowsShowsItsNameAlone) {
  folder.Write(
      "ZwtDataTable.xml",
      R"(<DataTables><Table Name="TABLE06"><Group Name="空"/><Group Name="南"><Group Name="省"/></Group></Table>)"
      "</DataTables>");
  ZcUiComputeRsColdDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    EXPECT_EQ(RowOf(shown.Grid(2043), 1), (Texts{L"空", L"", L"", L"", L""}));
    EXPECT_EQ(RowOf(shown.Grid(2043), 2), (Texts{L"南", L"省", L"", L"", L""}));
  });
}

class HourlyVariationTest : public HotWaterReferenceTest {
 protected:
  std::pair<double, bool> DoubleClick(const CString& grid, int row, int column) {
    ZcUiComputeRsCoeffDialog panel;
    const int code =
        Play(panel, [&](PanelUser& user, CDialog&) { user.DoubleClickCell(user.Find(grid), row, column); });
    return {panel.hourlyVariation, code == IDOK};
  }
};

TEST_F(HourlyVariationTest, ShowsCaptionsTablesAndNote) {
  ZcUiComputeRsCoeffDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    EXPECT_THAT(
        Describe(shown),
        ElementsAre(L"- static 表1：住宅、别墅的热水小时变化系数Kh值", L"2043 grid ",
                    L"- static 表2：旅馆的热水小时变化系数Kh值", L"2044 grid ",
                    L"- static 表3：医院的热水小时变化系数Kh值", L"2045 grid ",
                    L"- static 注：招待所、培训中心、宾馆的客房（不含员工）、养老院、幼儿园、托儿所（有住宿）"
                    L"等建筑的Kh可参照表2选用。",
                    L"2 button 退出"));
    const CGridCtrl& dwellings = shown.Grid(2043);
    EXPECT_THAT(WidthsOf(dwellings), ElementsAre(65, 42, 42, 42, 42, 42, 42, 42, 42, 42));
    EXPECT_EQ(dwellings.GetItemText(0, 0), L"居住人数");
    EXPECT_EQ(dwellings.GetItemText(0, 1), L"100");
    EXPECT_EQ(dwellings.GetItemText(1, 0), L"Kh");
    EXPECT_EQ(dwellings.GetItemText(1, 1), L"5.12");
    EXPECT_EQ(dwellings.GetItemText(1, 3), L"");
    EXPECT_EQ(dwellings.GetFixedRowCount(), 1);
    EXPECT_EQ(dwellings.GetFixedColumnCount(), 1);
    EXPECT_THAT(WidthsOf(shown.Grid(2044)), ElementsAre(65, 63, 63, 63, 63, 63, 63));
    EXPECT_THAT(WidthsOf(shown.Grid(2045)), ElementsAre(65, 54, 54, 54, 54, 54, 54, 54));
    EXPECT_EQ(shown.Grid(2045).GetItemText(0, 0), L"床位数");
    EXPECT_EQ(shown.Grid(2045).GetItemText(1, 1), L"4.55");
  });
  EXPECT_THAT(run.opened, ElementsAre(L"热水小时变化系数"));
}

TEST_F(HourlyVariationTest, MissingClassKeepsItsHeadings) {
  ZcUiComputeRsCoeffDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    EXPECT_THAT(RowsOf(shown.Grid(2044)), ElementsAre(Texts{L"床位数", L"", L"", L"", L"", L"", L""},
                                                      Texts{L"Kh", L"", L"", L"", L"", L"", L""}));
  });
}

TEST_F(HourlyVariationTest, MissingTableKeepsTheHeadings) {
  folder.Write("ZwtDataTable.xml", "<DataTables></DataTables>");
  ZcUiComputeRsCoeffDialog panel;
  Play(panel, [](PanelUser&, CDialog& shown) {
    for (const int grid : {2043, 2044, 2045}) EXPECT_EQ(shown.Grid(grid).GetItemText(1, 0), L"Kh");
    EXPECT_EQ(shown.Grid(2043).GetItemText(1, 1), L"");
  });
}

TEST_F(HourlyVariationTest, DoubleClickTakesTheValue) {
  EXPECT_EQ(DoubleClick(L"2043", 1, 1), (std::pair{5.12, true}));
  EXPECT_EQ(DoubleClick(L"2045", 1, 1), (std::pair{4.55, true}));
}

TEST_F(HourlyVariationTest, RangeGivesItsFirstNumber) {
  EXPECT_EQ(DoubleClick(L"2043", 1, 2), (std::pair{4.49, true}));
}

TEST_F(HourlyVariationTest, EmptyCellOfTheRowClosesWithZero) {
  EXPECT_EQ(DoubleClick(L"2043", 1, 9), (std::pair{0.0, true}));
}

TEST_F(HourlyVariationTest, DoubleClickElsewhereDoesNothing) {
  for (const auto& [row, column] : {std::pair{0, 0}, {0, 1}, {1, 0}}) {
    EXPECT_EQ(DoubleClick(L"2043", row, column), (std::pair{0.0, false}));
  }
}

}  // namespace
}  // namespace zwt::test
