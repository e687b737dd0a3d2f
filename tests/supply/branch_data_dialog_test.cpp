// The command ZWTGSCS and its panels.
#include "supply/branch_data_dialog.h"

#include <gmock/gmock.h>

#include "supply/equivalents_dialog.h"
#include "supply/riser_fixture.h"
#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BranchDataTest : public RiserTest {
 protected:
  static void Press(PanelUser& hands, const wchar_t* button) { hands.Click(hands.Find(button)); }
  void Open(const std::vector<AcDbObjectId>& branches, const PanelRun::UserFunction& act) {
    user.selections.push_back(branches);
    run.User(act);
    RunBranchDataCommand();
  }
  MainDirectory directory;
  PanelRun run;
};

TEST_F(BranchDataTest, CancelledSelectionOpensNoPanel) {
  RunBranchDataCommand();
  EXPECT_THAT(run.opened, IsEmpty());
  EXPECT_THAT(user.prompts, ElementsAre(L"\n请选择要修改的支管: "));
}

TEST_F(BranchDataTest, ShowsTheFirstBranchAndMakesAllEqual) {
  Branch second;
  second.equivalent = L"9";
  const std::vector<AcDbObjectId> branches = {AddBranch(0, 0), AddBranch(0, 1, second),
                                              AddBranch(0, 2, second)};
  Open(branches, [](PanelUser& hands, CDialog& panel) {
    EXPECT_EQ(panel.GetDlgItemText(2144), L"4");
    EXPECT_EQ(panel.GetDlgItemText(2007), L"250");
    EXPECT_EQ(panel.GetDlgItemText(2143), L"2.8");
    EXPECT_EQ(panel.GetDlgItemText(2120), L"2");
    EXPECT_EQ(panel.GetDlgItemText(2121), L"3.5");
    EXPECT_EQ(panel.GetDlgItemText(2003), L"24");
    hands.Set(hands.Find(L"可供户数："), L"2.5");
    Press(hands, L"确定");
  });
  for (const AcDbObjectId branch : branches) {
    EXPECT_EQ(Field(branch, L"Equivalent"), L"4");
    EXPECT_EQ(Field(branch, L"DoorNum"), L"2.5");
    EXPECT_EQ(ReadBranchFields(branch).doorNum, 2.5);
    EXPECT_EQ(Field(branch, L"Time"), L"24");
  }
}

TEST_F(BranchDataTest, CancellingLeavesEveryBranchUnchanged) {
  const AcDbObjectId branch = AddBranch(0, 0);
  Open({branch}, [](PanelUser& hands, CDialog&) {
    hands.Set(hands.Find(L"equivalent"), L"8");
    Press(hands, L"取消");
  });
  EXPECT_EQ(Field(branch, L"Equivalent"), L"4");
}

TEST_F(BranchDataTest, EmptyAttributesShowAsZeroNotAsDefaults) {
  const AcDbObjectId bare =
      WorkingDrawing().AddPipe({0, 0, 0}, {1000, 0, 0}, {{L"WtSystem", L"热水"}, {L"ELS_TYPE", L"支管"}});
  Open({bare}, [](PanelUser&, CDialog& panel) {
    for (const int id : {2007, 2143, 2144, 2120, 2121, 2003}) EXPECT_EQ(panel.GetDlgItemText(id), L"0");
  });
}

TEST_F(BranchDataTest, ValueOutOfRangeKeepsThePanelOpenWithoutAMessage) {
  const AcDbObjectId branch = AddBranch(0, 0);
  Open({branch}, [](PanelUser& hands, CDialog& panel) {
    for (const wchar_t* text : {L"-1", L"65535.5", L"abc", L""}) {
      hands.Set(hands.Find(L"kh"), text);
      Press(hands, L"确定");
      EXPECT_FALSE(panel.HasEnded());
    }
    hands.Set(hands.Find(L"kh"), L"65535");
    Press(hands, L"确定");
    EXPECT_TRUE(panel.HasEnded());
  });
  EXPECT_THAT(run.messages, IsEmpty());
  EXPECT_THAT(run.focuses, testing::SizeIs(4));
  EXPECT_EQ(run.focuses.front(), (PanelRun::Focus{2024, 2143, true}));
  EXPECT_EQ(Field(branch, L"Kh"), L"65535");
}

TEST_F(BranchDataTest, FractionalHoursAreRefused) {
  const AcDbObjectId branch = AddBranch(0, 0);
  Open({branch}, [](PanelUser& hands, CDialog& panel) {
    hands.Set(hands.Find(L"time"), L"12.5");
    Press(hands, L"确定");
    EXPECT_FALSE(panel.HasEnded());
  });
  EXPECT_EQ(Field(branch, L"Time"), L"24");
}

TEST_F(BranchDataTest, QuotaButtonTakesQuotaFactorAndHours) {
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"2000"));
    EXPECT_EQ(panel.GetDlgItemText(2007), L"275");
    EXPECT_EQ(panel.GetDlgItemText(2143), L"2.05");
    EXPECT_EQ(panel.GetDlgItemText(2003), L"24");
    EXPECT_EQ(panel.GetDlgItemText(2144), L"4");
  });
  run.User([](PanelUser& hands, CDialog& panel) { hands.DoubleClickCell(panel.Grid(2012), 4, 3); });
  user.selections.push_back({AddBranch(0, 0)});
  RunBranchDataCommand();
}

TEST_F(BranchDataTest, AllBranchesOfACommandAreOneUndoStep) {
  const AcDbObjectId first = AddBranch(0, 0);
  const AcDbObjectId second = AddBranch(0, 1);
  WorkingDrawing().BeginStep();
  Open({first, second}, [](PanelUser& hands, CDialog&) {
    hands.Set(hands.Find(L"equivalent"), L"8");
    Press(hands, L"确定");
  });
  WorkingDrawing().EndStep();
  WorkingDrawing().Undo();
  EXPECT_EQ(Field(first, L"Equivalent"), L"4");
  EXPECT_EQ(Field(second, L"Equivalent"), L"4");
}

constexpr std::string_view kFittings = R"(<DataTables edition="x"><Table Name="TABLE07">
  <Group Name="洗脸盆"><Row Name="单阀水嘴" L="0.15" Q="0.75" DN="15" MPa="0.050"/></Group>
  <Row Name="浴盆" L="0.20" Q="1.0" DN="15" MPa="0.050"/>
  <Row Name="水嘴" L="0.20" Q="0.75～1.00" DN="15" MPa="0.050"/>
</Table></DataTables>)";

class EquivalentsTest : public testing::Test {
 protected:
  EquivalentsTest() { directory.UseDataFile(kFittings); }
  /// Types quantities into rows and confirms; gives the total.
  double Sum(const std::vector<std::pair<int, CString>>& quantities, double seed = 0) {
    ZcUiGEquivalentDialog panel;
    panel.total = seed;
    run.User([&](PanelUser& hands, CDialog&) {
      for (const auto& [row, quantity] : quantities) hands.EditCell(panel.Grid(2012), row, 6, quantity);
      hands.Click(hands.Find(L"确定"));
    });
    panel.DoModal();
    return panel.total;
  }
  /// The quantity that a row shows on opening.
  CString Shown(double seed, int row) {
    CString shown;
    ZcUiGEquivalentDialog panel;
    panel.total = seed;
    run.User([&](PanelUser&, CDialog&) { shown = panel.Grid(2012).GetItemText(row, 6); });
    panel.DoModal();
    return shown;
  }
  MainDirectory directory;
  PanelRun run;
};

TEST_F(EquivalentsTest, AddsQuantitiesTimesEquivalents) {
  EXPECT_EQ(Sum({{2, L"2"}, {3, L"3"}}), 4.5);
}

TEST_F(EquivalentsTest, FractionalQuantityCountsItsWholePart) {
  EXPECT_EQ(Sum({{3, L"1.5"}}), 1.0);
}

TEST_F(EquivalentsTest, RangeCountsItsFirstNumber) {
  EXPECT_EQ(Sum({{4, L"2"}}), 1.5);
}

TEST_F(EquivalentsTest, QuantityThatIsNoNumberCountsAsZeroAndForgetsTheRow) {
  Sum({{2, L"2"}});
  EXPECT_EQ(Shown(1, 2), L"2");
  EXPECT_EQ(Sum({{2, L"viele"}}, 1), 0);
  EXPECT_EQ(Shown(1, 2), L"");
}

TEST_F(EquivalentsTest, RememberedQuantitiesShowOnlyWithASeed) {
  Sum({{2, L"2"}, {3, L"0"}});
  EXPECT_EQ(Shown(0, 2), L"");
  EXPECT_EQ(Shown(1.5, 2), L"2");
  EXPECT_EQ(Shown(1.5, 3), L"");
}

TEST_F(EquivalentsTest, ConfirmingWithoutASeedForgetsWhatIsNotTypedAgain) {
  Sum({{2, L"2"}});
  Sum({{3, L"1"}});
  EXPECT_EQ(Shown(1, 2), L"");
  EXPECT_EQ(Shown(1, 3), L"1");
}

TEST_F(EquivalentsTest, ClearingEmptiesTheColumnButRemembersUntilConfirmed) {
  Sum({{2, L"2"}});
  ZcUiGEquivalentDialog panel;
  panel.total = 1;
  run.User([&](PanelUser& hands, CDialog&) {
    hands.Click(hands.Find(L"清零"));
    EXPECT_EQ(panel.Grid(2012).GetItemText(2, 6), L"");
  });
  panel.DoModal();
  EXPECT_EQ(panel.total, 1);
  EXPECT_EQ(Shown(1, 2), L"2");
}

TEST_F(EquivalentsTest, TableStandsAsTheFileSays) {
  ZcUiGEquivalentDialog panel;
  run.User([&](PanelUser&, CDialog&) {
    const CGridCtrl& grid = panel.Grid(2012);
    ASSERT_EQ(grid.GetRowCount(), 5);
    EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{1, 0, 2, 1}));
    EXPECT_EQ(grid.GetItemText(1, 1), L"洗脸盆");
    EXPECT_EQ(grid.GetItemText(2, 1), L"    单阀水嘴");
    EXPECT_EQ(grid.GetItemText(3, 0), L"2");
    EXPECT_EQ(grid.GetItemText(3, 5), L"0.050");
    EXPECT_EQ(grid.GetItemBkColour(1, 6), kFaceColour);
    EXPECT_EQ(grid.GetItemFgColour(2, 3), kRed);
    EXPECT_EQ(grid.GetItemFgColour(2, 6), kBlue);
    EXPECT_FALSE(grid.TakesText(1, 6));
    EXPECT_FALSE(grid.TakesText(2, 5));
    EXPECT_TRUE(grid.TakesText(2, 6));
    EXPECT_EQ(grid.GetItemFormat(0, 1), CellAlign::kLeft);
    EXPECT_EQ(grid.GetItemFormat(0, 2), CellAlign::kCenter);
  });
  panel.DoModal();
}

TEST_F(EquivalentsTest, MissingDataFileLeavesTheGridEmpty) {
  directory.UseNone();
  ZcUiGEquivalentDialog panel;
  panel.total = 3;
  run.User([&](PanelUser& hands, CDialog&) {
    EXPECT_EQ(panel.Grid(2012).GetRowCount(), 1);
    hands.Click(hands.Find(L"确定"));
  });
  EXPECT_EQ(panel.DoModal(), IDOK);
  EXPECT_EQ(panel.total, 0);
}

}  // namespace
}  // namespace zwt::test
