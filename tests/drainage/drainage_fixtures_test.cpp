// Fixtures and their sums, and the panel that composes a branch.
#include "drainage/drainage_fixtures.h"

#include <fstream>

#include <gmock/gmock.h>

#include "drainage/drainage_fixture_dialog.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;

TEST(DrainageFixtures, EveryCellIsThatOfTheTypedTable) {
  std::ifstream rows(ZWT_SOURCE_DIR "/tests/drainage/fixture_rows.txt");
  std::vector<std::string> typed;
  for (std::string line; std::getline(rows, line);) typed.push_back(line);
  std::vector<std::string> held;
  for (const DrainageFixture& fixture : DrainageFixtures()) {
    const CString line =
        CString(fixture.name) + L"\t" + fixture.flow + L"\t" + fixture.equivalent + L"\t" + fixture.diameter;
    held.push_back(Utf8FromWide(line));
  }
  EXPECT_EQ(held.size(), 19U);
  EXPECT_EQ(held, typed);
}

TEST(SumFixtures, AddsCountsTimesFixtures) {
  const FixtureTotals totals = SumFixtures({{L"2", L"洗脸盆"}, {L"1", L"大便器（冲洗水箱）"}}, {});
  EXPECT_DOUBLE_EQ(totals.equivalent, 6.0);
  EXPECT_DOUBLE_EQ(totals.flux, 2.0);
  EXPECT_EQ(totals.qmax, 1.5);
  EXPECT_EQ(totals.maxDn, 100);
}

TEST(SumFixtures, CountOfZeroStillEntersTheLargestValues) {
  const FixtureTotals totals = SumFixtures({{L"0", L"浴盆"}}, {});
  EXPECT_EQ(totals.equivalent, 0);
  EXPECT_EQ(totals.flux, 0);
  EXPECT_EQ(totals.qmax, 1.0);
  EXPECT_EQ(totals.maxDn, 50);
}

TEST(SumFixtures, CountThatIsNoNumberCountsAsZero) {
  EXPECT_EQ(SumFixtures({{L"zwei", L"浴盆"}}, {}).equivalent, 0);
}

TEST(SumFixtures, UrinalTroughAloneHasNoDiameter) {
  EXPECT_EQ(SumFixtures({{L"3", L"小便槽（每米长）"}}, {}).maxDn, 0);
}

TEST(SumFixtures, LargestDiameterNeverSinks) {
  const FixtureTotals before = SumFixtures({{L"1", L"大便槽(>4个蹲位)"}}, {});
  const FixtureTotals after = SumFixtures({{L"1", L"洗手盆"}}, before);
  EXPECT_EQ(after.maxDn, 150);
  EXPECT_EQ(after.qmax, 0.1);
}

class FixturePanelTest : public testing::Test {
 protected:
  static constexpr int kTable = 2200;
  static constexpr int kChosen = 2012;
  void Open(const PanelRun::UserFunction& act) {
    run.User(act);
    code = panel.DoModal();
  }
  PanelRun run;
  ZcUiAddPsWareDialog panel;
  int code = 0;
};

TEST_F(FixturePanelTest, OpensEmptyWithTheWholeTable) {
  Open([&](PanelUser&, CDialog&) {
    const CGridCtrl& table = panel.Grid(kTable);
    ASSERT_EQ(table.GetRowCount(), 20);
    EXPECT_EQ(table.GetItemText(1, 0), L"洗涤盆、污水盆");
    EXPECT_EQ(table.GetItemText(1, 2), L"1.00");
    EXPECT_EQ(table.GetItemText(3, 1), L"1");
    EXPECT_EQ(table.GetItemText(19, 3), L"50");
    EXPECT_EQ(table.GetItemFormat(1, 0), CellAlign::kLeft);
    EXPECT_EQ(table.GetItemFormat(1, 1), CellAlign::kCenter);
    EXPECT_EQ(panel.Grid(kChosen).GetRowCount(), 1);
    EXPECT_EQ(panel.GetDlgItemText(2144), L"0");
  });
}

TEST_F(FixturePanelTest, DoubleClickChoosesAndCountsUp) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 9, 0);
    EXPECT_EQ(panel.Grid(kChosen).GetItemText(1, 0), L"1");
    EXPECT_EQ(panel.Grid(kChosen).GetItemText(1, 1), L"大便器（冲洗水箱）");
    EXPECT_FALSE(panel.Grid(kChosen).TakesText(1, 1));
    EXPECT_TRUE(panel.Grid(kChosen).TakesText(1, 0));
    hands.DoubleClickCell(panel.Grid(kTable), 9, 2);
    EXPECT_EQ(panel.Grid(kChosen).GetItemText(1, 0), L"2");
    EXPECT_EQ(panel.GetDlgItemText(2144), L"9");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"3");
    EXPECT_EQ(panel.GetDlgItemText(2199), L"1.5");
  });
}

TEST_F(FixturePanelTest, DoubleClickOnAHeaderOrAChosenRowDoesNothing) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 0, 0);
    hands.DoubleClickCell(panel.Grid(kTable), 1, 0);
    hands.DoubleClickCell(panel.Grid(kChosen), 1, 1);
    EXPECT_EQ(panel.Grid(kChosen).GetRowCount(), 2);
    EXPECT_EQ(panel.Grid(kChosen).GetItemText(1, 0), L"1");
  });
}

TEST_F(FixturePanelTest, EditedCountMovesTheTotals) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 7, 0);
    hands.EditCell(panel.Grid(kChosen), 1, 0, L"3");
    EXPECT_EQ(panel.GetDlgItemText(2144), L"9");
  });
}

TEST_F(FixturePanelTest, DeletingNeedsARowAndKeepsTheLargestDiameter) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 9, 0);
    hands.SelectCell(panel.Grid(kChosen), -1, 0);
    hands.Click(hands.Find(L"删除"));
    EXPECT_EQ(panel.Grid(kChosen).GetRowCount(), 2);
    hands.SelectCell(panel.Grid(kChosen), 1, 1);
    hands.Click(hands.Find(L"删除"));
    EXPECT_EQ(panel.Grid(kChosen).GetRowCount(), 1);
    EXPECT_EQ(panel.GetDlgItemText(2144), L"0");
    EXPECT_EQ(panel.totals.maxDn, 100);
  });
}

TEST_F(FixturePanelTest, ClearingKeepsTheLargestDiameterToo) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 14, 0);
    hands.Click(hands.Find(L"清空"));
    EXPECT_EQ(panel.Grid(kChosen).GetRowCount(), 1);
    EXPECT_EQ(panel.GetDlgItemText(2199), L"0");
    hands.Click(hands.Find(L"确定"));
  });
  EXPECT_EQ(code, IDOK);
  EXPECT_EQ(panel.totals.maxDn, 150);
  EXPECT_EQ(panel.totals.equivalent, 0);
}

TEST_F(FixturePanelTest, FiguresTypedByHandOverruleTheSums) {
  Open([&](PanelUser& hands, CDialog&) {
    hands.DoubleClickCell(panel.Grid(kTable), 9, 0);
    hands.Set(hands.Find(L"累计当量："), L"12.5");
    hands.Click(hands.Find(L"确定"));
  });
  EXPECT_EQ(panel.totals.equivalent, 12.5);
  EXPECT_EQ(panel.totals.flux, 1.5);
}

}  // namespace
}  // namespace zwt::test
