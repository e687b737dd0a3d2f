// The panel of ZWTPSJS.
#include "drainage/drainage_results_dialog.h"

#include <gmock/gmock.h>

#include "drainage/stack_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum Column { kFloor, kEquivalent, kLargestFlow, kRatedFlow, kFlow, kDiameter, kGrade, kVelocity, kFullness };

class DrainageResultsTest : public StackTest {
 protected:
  void Open(AcDbObjectId end, const PanelRun::UserFunction& act) {
    user.selections.push_back({end});
    run.User(act);
    RunDrainageCommand();
  }
  static void Press(PanelUser& hands, const wchar_t* button) { hands.Click(hands.Find(button)); }
  static CString Cell(const CDialog& panel, int row, int column) {
    return panel.Grid(2012).GetItemText(row, column);
  }
  PanelRun run;
};

TEST_F(DrainageResultsTest, AsksForOneEndOfADrain) {
  RunDrainageCommand();
  EXPECT_THAT(user.prompts, ElementsAre(L"\n请选择要计算的排水原理图干管末端: "));
  EXPECT_TRUE(user.askedForOne);
  EXPECT_THAT(run.opened, IsEmpty());
}

TEST_F(DrainageResultsTest, OpensWithFloorsAndAnEmptyResultLine) {
  Open(AddStack(2), [](PanelUser&, CDialog& panel) {
    const CGridCtrl& grid = panel.Grid(2012);
    ASSERT_EQ(grid.GetRowCount(), 4);
    EXPECT_EQ(Cell(panel, 1, kFloor), L"1层");
    EXPECT_EQ(Cell(panel, 2, kFloor), L"2层");
    EXPECT_EQ(Cell(panel, 1, kEquivalent), L"4.5");
    EXPECT_EQ(Cell(panel, 1, kLargestFlow), L"1.5");
    EXPECT_EQ(Cell(panel, 1, kRatedFlow), L"1.5");
    EXPECT_EQ(Cell(panel, 3, 0), L"");
    EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{3, 0, 1, 9}));
    EXPECT_FALSE(grid.TakesText(1, kRatedFlow));
    EXPECT_TRUE(grid.TakesText(1, kFlow));
    EXPECT_FALSE(grid.GetCombo(2, kDiameter)->choices.empty());
    EXPECT_TRUE(panel.Combo(2155).IsWindowEnabled());
  });
}

TEST_F(DrainageResultsTest, FormIsClosedForOtherVents) {
  Open(AddStack(1, L"专用通气"),
       [](PanelUser&, CDialog& panel) { EXPECT_FALSE(panel.Combo(2155).IsWindowEnabled()); });
}

TEST_F(DrainageResultsTest, CalculatesBranchesAndRiserIntoTheDrawing) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  const AcDbObjectId branch = AddBranch(0);
  Open(end, [&](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    // q = 1.5 * 0.12 * sqrt(4.5) + 1.5 = 1.882 L/s, nearest to 1.79 (75), raised to 110 by the largest
    // fixture drain.
    EXPECT_EQ(Cell(panel, 1, kFlow), L"1.882");
    EXPECT_EQ(Cell(panel, 1, kDiameter), L"110");
    EXPECT_EQ(Cell(panel, 1, kGrade), L"0.004");
    EXPECT_EQ(Cell(panel, 1, kFullness), L"0.5");
    EXPECT_EQ(Cell(panel, 2, 0), L"立管设计秒流量为：1.882，管径为：110。");
  });
  EXPECT_EQ(DiameterOf(branch), 110);
  EXPECT_EQ(DiameterOf(end), 110);
}

TEST_F(DrainageResultsTest, TypedCoefficientCounts) {
  Open(AddStack(1), [](PanelUser& hands, CDialog& panel) {
    hands.Set(hands.Find(L"建筑物用途系数："), L"3");
    Press(hands, L"计    算");
    EXPECT_EQ(Cell(panel, 1, kFlow), L"2.264");
    hands.Set(hands.Find(L"建筑物用途系数："), L"keine");
    Press(hands, L"计    算");
    EXPECT_EQ(Cell(panel, 1, kFlow), L"1.500");
  });
}

TEST_F(DrainageResultsTest, SegmentWithoutABranchKeepsItsDiameter) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"专用通气");
  AddBranch(0);
  const AcDbObjectId bare = AddRiser(1);
  Open(end, [](PanelUser& hands, CDialog&) { Press(hands, L"计    算"); });
  EXPECT_EQ(DiameterOf(end), 110);
  EXPECT_EQ(DiameterOf(bare), 0);
}

TEST_F(DrainageResultsTest, UnknownVentGivesRisersOfZero) {
  const AcDbObjectId end = AddStack(1, L"");
  Open(end, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    EXPECT_EQ(Cell(panel, 2, 0), L"立管设计秒流量为：1.882，管径为：0。");
  });
  EXPECT_EQ(DiameterOf(end), 0);
}

TEST_F(DrainageResultsTest, NoRowsGiveTheResultLineAlone) {
  Open(AddRiser(0, L"入口立管", L"伸顶通气"), [](PanelUser& hands, CDialog& panel) {
    EXPECT_EQ(panel.Grid(2012).GetRowCount(), 2);
    Press(hands, L"计    算");
    EXPECT_EQ(Cell(panel, 1, 0), L"立管设计秒流量为：0.000，管径为：50。");
  });
}

TEST_F(DrainageResultsTest, PickedDiameterChangesNeitherCalculationNorDrawing) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  const AcDbObjectId branch = AddBranch(0);
  Open(end, [&](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    hands.EditCell(panel.Grid(2012), 1, kDiameter, L"200");
  });
  EXPECT_EQ(DiameterOf(branch), 110);
}

TEST_F(DrainageResultsTest, EditOutsideTheRowsShowsTheMessage) {
  Open(AddStack(1), [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"修改数据");
    for (const int row : {0, 2}) {
      hands.SelectCell(panel.Grid(2012), row, 0);
      Press(hands, L"修改数据");
    }
  });
  const PanelRun::Message message{L"请先在表格中选择要修改的管段！", L"错误", MessageIcon::kStop};
  EXPECT_THAT(run.messages, ElementsAre(message, message, message));
}

TEST_F(DrainageResultsTest, ComposedBranchGoesToTheDrawingAndIsCalculatedAgain) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  const AcDbObjectId branch = AddBranch(0);
  user.selections.push_back({end});
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    hands.SelectCell(panel.Grid(2012), 1, 3);
    Press(hands, L"修改数据");
    EXPECT_EQ(Cell(panel, 1, kEquivalent), L"0.75");
    EXPECT_EQ(Cell(panel, 1, kFlow), L"0.406");
    EXPECT_EQ(Cell(panel, 1, kDiameter), L"50");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    EXPECT_EQ(panel.GetDlgItemText(2144), L"0");
    hands.DoubleClickCell(panel.Grid(2200), 6, 0);
    Press(hands, L"确定");
  });
  RunDrainageCommand();
  EXPECT_EQ(Field(branch, L"Equivalent"), L"0.75");
  EXPECT_EQ(Field(branch, L"Flux"), L"0.25");
  EXPECT_EQ(Field(branch, L"Qmax"), L"0.25");
  EXPECT_EQ(Field(branch, L"MaxDN"), L"50");
}

TEST_F(DrainageResultsTest, NothingChosenWritesFourZeros) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  const AcDbObjectId branch = AddBranch(0);
  user.selections.push_back({end});
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.SelectCell(panel.Grid(2012), 1, 0);
    Press(hands, L"修改数据");
    EXPECT_EQ(Cell(panel, 1, kFlow), L"");
  });
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"确定"); });
  RunDrainageCommand();
  for (const wchar_t* key : {L"Equivalent", L"Flux", L"Qmax", L"MaxDN"}) EXPECT_EQ(Field(branch, key), L"0");
}

TEST_F(DrainageResultsTest, CancelledCompositionChangesNothing) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  const AcDbObjectId branch = AddBranch(0);
  user.selections.push_back({end});
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.SelectCell(panel.Grid(2012), 1, 0);
    Press(hands, L"修改数据");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.DoubleClickCell(panel.Grid(2200), 6, 0);
    Press(hands, L"取消");
  });
  RunDrainageCommand();
  EXPECT_EQ(Field(branch, L"Equivalent"), L"4.5");
}

TEST_F(DrainageResultsTest, AnnotatesRiserAndBranchWithWhatTheDrawingHolds) {
  const AcDbObjectId end = AddStack(2);
  const int before = WorkingDrawing().EntityCount();
  Open(end, [](PanelUser& hands, CDialog&) { Press(hands, L"标    注"); });
  EXPECT_EQ(WorkingDrawing().EntityCount() - before, 4);
}

TEST_F(DrainageResultsTest, ViewingTheDrawingComesBack) {
  user.points = {RTNORM, RTCAN};
  Open(AddStack(1), [](PanelUser& hands, CDialog&) { Press(hands, L"查看图面"); });
  EXPECT_EQ(user.pointsAsked, 2);
  EXPECT_EQ(run.returned, 1);
}

}  // namespace
}  // namespace zwt::test
