// What a user can do to controls, and what they refuse.
#include "host/dialog/panel_user.h"

#include <gmock/gmock.h>

#include "host_dialog/sample_panel.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class PanelUserTest : public testing::Test {
 protected:
  std::string Refusal(const std::function<void()>& act) {
    try {
      act();
    } catch (const PanelRefusal& refusal) {
      return refusal.what();
    }
    return "taken";
  }
  SamplePanel panel;
  PanelUser user{panel};
};

TEST_F(PanelUserTest, FindsByNumberNameAndLabelWithOrWithoutShortcut) {
  EXPECT_EQ(user.Find(L"2001").GetDlgCtrlID(), 2001);
  EXPECT_EQ(user.Find(L"users").GetDlgCtrlID(), 2001);
  EXPECT_EQ(user.Find(L"用水单位数：").GetDlgCtrlID(), 2001);
  EXPECT_EQ(user.Find(L"件数(&N)：").GetDlgCtrlID(), 2002);
  EXPECT_EQ(user.Find(L"件数(N)：").GetDlgCtrlID(), 2002);
  EXPECT_EQ(user.Find(L"高度(m):").GetDlgCtrlID(), 2005);
}

TEST_F(PanelUserTest, NamesThePanelOfAnUnknownControl) {
  EXPECT_EQ(Refusal([&] { user.Find(L"2998"); }), "no control 2998 in panel 2999");
}

TEST_F(PanelUserTest, LabelOfSeveralControlsNamesTheirNumbers) {
  EXPECT_EQ(Refusal([&] { user.Find(L".."); }),
            "several controls of panel 2999 bear the label \"..\": 2030, 2031");
}

TEST_F(PanelUserTest, DisabledHiddenAndReadOnlyControlsRefuse) {
  EXPECT_EQ(Refusal([&] { user.Click(user.Find(L"2031")); }), "control 2031 is disabled");
  EXPECT_EQ(Refusal([&] { user.Click(user.Find(L"2060")); }), "control 2060 is hidden");
  EXPECT_EQ(Refusal([&] { user.Set(user.Find(L"2004"), L"1"); }), "control 2004 is read-only");
  EXPECT_EQ(Refusal([&] { user.Set(user.Find(L"2010"), L"黄"); }), "control 2010 has no item \"黄\"");
  EXPECT_EQ(Refusal([&] { user.Pick(user.Find(L"2010"), 3); }), "control 2010 has no item 3");
  EXPECT_EQ(Refusal([&] { user.Click(user.Find(L"2001")); }), "control 2001 cannot be pressed");
}

TEST_F(PanelUserTest, PickingTheItemShownIsNoChange) {
  std::vector<std::string> heard;
  panel.OnSelectionChange(2010, [&] { heard.emplace_back("change"); });
  panel.OnDropDownClosed(2010, [&] { heard.emplace_back("closed"); });
  user.Set(user.Find(L"2010"), L"红");
  user.Pick(user.Find(L"2010"), 2);
  EXPECT_THAT(heard, ElementsAre("closed", "change", "closed"));
}

TEST_F(PanelUserTest, PressingAChosenRadioButtonRunsItsHandler) {
  int pressed = 0;
  panel.OnClick(2021, [&] { ++pressed; });
  user.Click(user.Find(L"乙"));
  user.Click(user.Find(L"乙"));
  EXPECT_EQ(pressed, 2);
  EXPECT_TRUE(panel.Button(2021).GetCheck());
}

TEST_F(PanelUserTest, CheckBoxHasTurnedWhenItsHandlerRuns) {
  bool seen = false;
  panel.OnClick(2023, [&] { seen = panel.Button(2023).GetCheck(); });
  user.Click(user.Find(L"计入(A)"));
  EXPECT_TRUE(seen);
  user.Click(user.Find(L"计入(A)"));
  EXPECT_FALSE(seen);
}

TEST_F(PanelUserTest, LeavingAFieldRunsItsHandlerOnce) {
  int left = 0;
  panel.OnLeave(2003, [&] { ++left; });
  user.Set(user.Find(L"2003"), L"a");
  EXPECT_EQ(left, 1);
  user.Click(user.Find(L"2030"));
  EXPECT_EQ(left, 1);
}

TEST_F(PanelUserTest, EditingACellReportsBeginEndAndChange) {
  CGridCtrl& grid = panel.Grid(2040);
  grid.SetColumnCount(2);
  grid.SetRowCount(2);
  grid.SetEditable(true);
  std::vector<std::string> heard;
  panel.OnCell(2040, CellNotice::kBeginEdit, [&](int, int) { heard.emplace_back("begin"); });
  panel.OnCell(2040, CellNotice::kEndEdit, [&](int, int) { heard.emplace_back("end"); });
  panel.OnCell(2040, CellNotice::kChanged, [&](int, int) { heard.emplace_back("changed"); });
  user.EditCell(grid, 1, 1, L"50");
  user.EditCell(grid, 1, 1, L"50");
  EXPECT_THAT(heard, ElementsAre("begin", "end", "changed", "begin", "end"));
  EXPECT_EQ(grid.GetSelectedCellRange(), (CCellRange{1, 1, 1, 1}));
}

TEST_F(PanelUserTest, ReportingGridTellsOfAnEditedCellOnce) {
  ZcUiWtGridCtrl& grid = panel.WtGrid(2041);
  grid.SetColumnCount(1);
  grid.SetRowCount(1);
  grid.SetEditable(true);
  int changed = 0;
  panel.OnCell(2041, CellNotice::kChanged, [&](int, int) { ++changed; });
  user.EditCell(grid, 0, 0, L"3");
  EXPECT_EQ(changed, 1);
}

TEST_F(PanelUserTest, ListComboCellTakesOnlyItsChoices) {
  CGridCtrl& grid = panel.Grid(2040);
  grid.SetColumnCount(1);
  grid.SetRowCount(2);
  grid.SetEditable(true);
  grid.SetCombo(0, 0, {{L"15", L"20"}, 3});
  grid.SetCombo(1, 0, {{L"15", L"20"}, 2});
  EXPECT_THAT(Refusal([&] { user.EditCell(grid, 0, 0, L"25"); }), HasSubstr("has no choice \"25\""));
  user.EditCell(grid, 1, 0, L"25");
  EXPECT_EQ(grid.GetItemText(1, 0), L"25");
}

TEST_F(PanelUserTest, RowMinusOneSelectsNothing) {
  CGridCtrl& grid = panel.Grid(2040);
  grid.SetColumnCount(1);
  grid.SetRowCount(1);
  user.ClickCell(grid, 0, 0);
  user.SelectCell(grid, -1, 0);
  EXPECT_FALSE(grid.GetSelectedCellRange().IsValid());
}

TEST_F(PanelUserTest, CellOutsideTheGridIsRefused) {
  EXPECT_EQ(Refusal([&] { user.ClickCell(panel.Grid(2040), 3, 0); }), "no control 2040 cell [3, 0]");
}

}  // namespace
}  // namespace zwt::test
