// The panel of the supply calculation.
#include "supply/supply_results_dialog.h"

#include <gmock/gmock.h>

#include "host/text/number_text.h"
#include "supply/riser_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum Column { kLabel, kLength, kEquivalents, kRatio, kFlow, kVelocity, kHeadLoss, kDiameter };

class SupplyResultsTest : public RiserTest {
 protected:
  /// Opens the command's panel on these entries; act is its user.
  void Open(const std::vector<AcDbObjectId>& entries, const PanelRun::UserFunction& act) {
    user.selections.push_back(entries);
    run.User(act);
    RunSupplyCommand();
  }
  static std::vector<CString> ColumnOf(const CDialog& panel, int column) {
    const CGridCtrl& grid = panel.Grid(2012);
    std::vector<CString> texts;
    for (int row = 1; row < grid.GetRowCount(); ++row) texts.push_back(grid.GetItemText(row, column));
    return texts;
  }
  static void Change(PanelUser& hands, CDialog& panel, int row, const CString& diameter) {
    hands.EditCell(panel.Grid(2012), row, kDiameter, diameter);
  }
  static void Press(PanelUser& hands, const wchar_t* button) { hands.Click(hands.Find(button)); }

  PanelRun run;
};

TEST_F(SupplyResultsTest, CancelledSelectionOpensNoPanel) {
  RunSupplyCommand();
  EXPECT_THAT(run.opened, IsEmpty());
  EXPECT_THAT(user.prompts, ElementsAre(L"\n请选择要计算的原理图干管末端: "));
  EXPECT_FALSE(user.askedForOne);
}

TEST_F(SupplyResultsTest, SelectionTakesOnlyEntriesOfSupplyAndHotWater) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  const AcDbObjectId riser = AddRiser(1000, 0);
  const AcDbObjectId drain = AddRiser(2000, 0, L"入口立管", L"污水");
  const AcDbObjectId hot = AddRiser(3000, 0, L"入口立管", L"热水");
  Open({entry, riser, drain, hot}, [](PanelUser&, CDialog& panel) {
    EXPECT_THAT(ColumnOf(panel, kLabel), ElementsAre(L"1#-1层", L"2#-1层"));
  });
}

TEST_F(SupplyResultsTest, OpensWithTheModelAndEmptyResults) {
  Open({AddLine(0, 2)}, [](PanelUser&, CDialog& panel) {
    EXPECT_THAT(ColumnOf(panel, kLabel), ElementsAre(L"1#-1层", L"1#-2层"));
    EXPECT_THAT(ColumnOf(panel, kLength), ElementsAre(L"3.00", L"3.00"));
    EXPECT_THAT(ColumnOf(panel, kEquivalents), ElementsAre(L"8.00", L"4.00"));
    EXPECT_THAT(ColumnOf(panel, kFlow), ElementsAre(L"", L""));
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_EQ(grid.GetItemFormat(0, kRatio), CellAlign::kCenter);
    EXPECT_TRUE(grid.IsReadOnly(1, kHeadLoss));
    EXPECT_TRUE(grid.TakesText(1, kDiameter));
    EXPECT_EQ(grid.GetCombo(1, kDiameter)->style, 2);
    EXPECT_FALSE(panel.Combo(2122).IsWindowEnabled());
    EXPECT_TRUE(panel.Combo(2122).HasAutoWidth());
    EXPECT_EQ(panel.Combo(2147).GetWindowText(), L"住宅别墅");
  });
}

TEST_F(SupplyResultsTest, RowsFollowTheRisersFromTheLeft) {
  const AcDbObjectId right = AddLine(9000, 1);
  const AcDbObjectId left = AddLine(0, 2);
  Open({right, left}, [](PanelUser&, CDialog& panel) {
    EXPECT_THAT(ColumnOf(panel, kLabel), ElementsAre(L"1#-1层", L"1#-2层", L"2#-1层"));
    EXPECT_THAT(ColumnOf(panel, kEquivalents), ElementsAre(L"8.00", L"4.00", L"4.00"));
  });
}

TEST_F(SupplyResultsTest, CalculatingFillsTheRowsAndWritesTheDiameters) {
  const AcDbObjectId entry = AddLine(0, 1);
  Open({entry}, [&](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    // U0 = 250 * 7 * 2.8 / (0.2 * 4 * 24 * 3600) * 100 = 7.09 %, so αc 0.05555 and U 0.5476.
    EXPECT_THAT(ColumnOf(panel, kRatio), ElementsAre(L"0.55"));
    EXPECT_THAT(ColumnOf(panel, kFlow), ElementsAre(L"0.44"));
    const std::int32_t diameter = _wtoi(panel.Grid(2012).GetItemText(1, kDiameter));
    EXPECT_GT(diameter, 0);
    EXPECT_EQ(DiameterOf(entry), diameter);
  });
}

TEST_F(SupplyResultsTest, SectionWithoutADiameterShowsZero) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  AddRiser(0, 1);
  AddBranch(0, 1);
  Open({entry}, [&](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    EXPECT_EQ(panel.Grid(2012).GetItemText(1, kDiameter), L"0");
    EXPECT_EQ(panel.Grid(2012).GetItemText(1, kHeadLoss), L"0.000");
    EXPECT_EQ(DiameterOf(entry), 0);
  });
}

TEST_F(SupplyResultsTest, PublicBuildingHidesTheRatioButStillWritesIt) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    hands.Set(hands.Find(L"建筑类别："), L"公共建筑");
    EXPECT_EQ(panel.Grid(2012).GetColumnWidth(kRatio), 0);
    EXPECT_TRUE(panel.Combo(2122).IsWindowEnabled());
    hands.Set(hands.Find(L"用水场所："), L"学校");
    Press(hands, L"计    算");
    EXPECT_THAT(ColumnOf(panel, kRatio), ElementsAre(L"0.55"));
    EXPECT_THAT(ColumnOf(panel, kFlow), ElementsAre(L"0.72"));
    hands.Set(hands.Find(L"建筑类别："), L"住宅别墅");
    EXPECT_EQ(panel.Grid(2012).GetColumnWidth(kRatio), 70);
    EXPECT_FALSE(panel.Combo(2122).IsWindowEnabled());
    EXPECT_THAT(ColumnOf(panel, kFlow), ElementsAre(L"0.72"));
  });
}

TEST_F(SupplyResultsTest, ChangedDiameterTurnsRedAndStaysSoUntilTheNextCalculation) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    const CGridCtrl& grid = panel.Grid(2012);
    Press(hands, L"计    算");
    Change(hands, panel, 1, grid.GetItemText(1, kDiameter));
    EXPECT_FALSE(grid.IsModified(1, kDiameter));
    Change(hands, panel, 1, L"63");
    EXPECT_TRUE(grid.IsModified(1, kDiameter));
    EXPECT_EQ(grid.GetItemBkColour(1, kDiameter), kRed);
    Press(hands, L"复    算");
    EXPECT_EQ(grid.GetItemBkColour(1, kDiameter), kRed);
    Press(hands, L"计    算");
    EXPECT_FALSE(grid.IsModified(1, kDiameter));
    EXPECT_EQ(grid.GetItemBkColour(1, kDiameter), std::nullopt);
  });
}

TEST_F(SupplyResultsTest, SettingACellBackMarksItAgain) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    const CString chosen = panel.Grid(2012).GetItemText(1, kDiameter);
    Change(hands, panel, 1, L"63");
    Change(hands, panel, 1, chosen);
    EXPECT_TRUE(panel.Grid(2012).IsModified(1, kDiameter));
  });
}

TEST_F(SupplyResultsTest, RecalculationTakesTheRoundedFlowAndTheNewDiameter) {
  const AcDbObjectId entry = AddLine(0, 1);
  Open({entry}, [&](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    Change(hands, panel, 1, L"63");
    Press(hands, L"复    算");
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_EQ(grid.GetItemText(1, kFlow), L"0.44");
    EXPECT_EQ(DiameterOf(entry), 63);
    EXPECT_LT(_wtof(grid.GetItemText(1, kVelocity)), 0.3);
  });
}

TEST_F(SupplyResultsTest, RecalculatingRowsOneAndTwoChangesBoth) {
  Open({AddLine(0, 3)}, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    const auto before = ColumnOf(panel, kVelocity);
    Change(hands, panel, 1, L"110");
    Change(hands, panel, 2, L"110");
    Press(hands, L"复    算");
    const auto after = ColumnOf(panel, kVelocity);
    EXPECT_NE(after[0], before[0]);
    EXPECT_NE(after[1], before[1]);
    EXPECT_EQ(after[2], before[2]);
  });
}

TEST_F(SupplyResultsTest, RecalculationStopsAtTheFirstUnchangedRow) {
  Open({AddLine(0, 3)}, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    const auto before = ColumnOf(panel, kVelocity);
    Change(hands, panel, 1, L"110");
    Change(hands, panel, 3, L"110");
    Press(hands, L"复    算");
    const auto after = ColumnOf(panel, kVelocity);
    EXPECT_NE(after[0], before[0]);
    EXPECT_EQ(after[2], before[2]);
  });
}

TEST_F(SupplyResultsTest, RecalculationWithTheFirstRowUnchangedDoesNothing) {
  Open({AddLine(0, 3)}, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    const auto before = ColumnOf(panel, kVelocity);
    Change(hands, panel, 2, L"110");
    Press(hands, L"复    算");
    EXPECT_EQ(ColumnOf(panel, kVelocity), before);
  });
}

TEST_F(SupplyResultsTest, RecalculationBeforeAnyCalculationDoesNothing) {
  const AcDbObjectId entry = AddLine(0, 1);
  Open({entry}, [&](PanelUser& hands, CDialog& panel) {
    Change(hands, panel, 1, L"110");
    Press(hands, L"复    算");
    EXPECT_THAT(ColumnOf(panel, kVelocity), ElementsAre(L""));
    EXPECT_EQ(DiameterOf(entry), 0);
  });
}

TEST_F(SupplyResultsTest, EveryRowOffersTheDiametersOfTheFirstMaterial) {
  const AcDbObjectId entry = AddLine(0, 1);
  AddRiser(0, 1);
  Branch steel;
  steel.material = L"镀锌钢管";
  AddBranch(0, 1, steel);
  Open({entry}, [](PanelUser&, CDialog& panel) {
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_FALSE(grid.GetCombo(1, kDiameter)->choices.empty());
    EXPECT_EQ(grid.GetCombo(1, kDiameter)->choices, grid.GetCombo(2, kDiameter)->choices);
  });
}

TEST_F(SupplyResultsTest, EditWithNothingSelectedShowsTheMessage) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog&) { Press(hands, L"修改数据"); });
  EXPECT_THAT(run.messages,
              ElementsAre(PanelRun::Message{L"请先在表格中选择要修改的管段！", L"错误", MessageIcon::kStop}));
}

TEST_F(SupplyResultsTest, EditOnTheHeaderDoesNothingAtAll) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    hands.SelectCell(panel.Grid(2012), 0, 0);
    Press(hands, L"修改数据");
  });
  EXPECT_THAT(run.messages, IsEmpty());
  EXPECT_THAT(run.opened, ElementsAre(L"给水水力计算"));
}

TEST_F(SupplyResultsTest, EditedBranchGoesToTheDrawingAndRecalculatesAllRows) {
  const AcDbObjectId entry = AddLine(0, 1);
  user.selections.push_back({entry});
  run.User([](PanelUser& hands, CDialog& panel) {
    Press(hands, L"计    算");
    Change(hands, panel, 1, L"110");
    hands.SelectCell(panel.Grid(2012), 1, 2);
    Press(hands, L"修改数据");
    EXPECT_THAT(ColumnOf(panel, kEquivalents), ElementsAre(L"6.00"));
    EXPECT_NE(panel.Grid(2012).GetItemText(1, kDiameter), L"110");
    EXPECT_FALSE(panel.Grid(2012).IsModified(1, kDiameter));
  });
  run.User([](PanelUser& hands, CDialog&) {
    EXPECT_EQ(hands.Find(L"equivalent").GetWindowText(), L"4");
    hands.Set(hands.Find(L"equivalent"), L"6");
    Press(hands, L"确定");
  });
  RunSupplyCommand();
  ZcDList<ZwtVPipeData> risers;
  BuildRiserData(risers, entry);
  EXPECT_EQ(risers.GetAt(0).SumEquivalent(0), 6);
}

TEST_F(SupplyResultsTest, EditOfASectionWithoutABranchStaysInThePanel) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  user.selections.push_back({entry});
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.SelectCell(panel.Grid(2012), 1, 0);
    Press(hands, L"修改数据");
    EXPECT_THAT(ColumnOf(panel, kEquivalents), ElementsAre(L"3.00"));
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    for (const int id : {2007, 2143, 2144, 2120, 2121, 2003}) EXPECT_EQ(panel.GetDlgItemText(id), L"0");
    hands.Set(hands.Find(L"2144"), L"3");
    Press(hands, L"确定");
  });
  RunSupplyCommand();
  EXPECT_EQ(Field(entry, L"Equivalent"), L"");
}

TEST_F(SupplyResultsTest, ViewingTheDrawingGoesOnUntilNoPointIsGiven) {
  user.points = {RTNORM, RTERROR, RTNORM, RTNONE};
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    Press(hands, L"查看图面");
    EXPECT_FALSE(panel.HasEnded());
  });
  EXPECT_EQ(user.pointsAsked, 4);
  EXPECT_EQ(run.gaveWay, 1);
  EXPECT_EQ(run.returned, 1);
}

TEST_F(SupplyResultsTest, AnnotatesAllRisersAndNoBranch) {
  const AcDbObjectId entry = AddLine(0, 2);
  const int before = WorkingDrawing().EntityCount();
  Open({entry}, [](PanelUser& hands, CDialog&) {
    Press(hands, L"计    算");
    Press(hands, L"标    注");
    Press(hands, L"标    注");
  });
  int living = 0;
  for (int index = before; index < WorkingDrawing().EntityCount(); ++index) {
    if (WorkingDrawing().Entity(index).alive) ++living;
  }
  EXPECT_EQ(living, 2);
}

TEST_F(SupplyResultsTest, ModelWithoutEdgesDoesNoHarm) {
  ZcUiElementsGsDialog panel;
  run.User([](PanelUser& hands, CDialog&) {
    for (const wchar_t* button : {L"计    算", L"复    算", L"标    注"}) Press(hands, button);
  });
  panel.DoModal();
  EXPECT_EQ(panel.Grid(2012).GetRowCount(), 1);
}

}  // namespace
}  // namespace zwt::test
