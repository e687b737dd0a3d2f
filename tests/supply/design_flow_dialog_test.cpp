// The panel of ZWTJDGS.
#include "supply/design_flow_dialog.h"

#include <gmock/gmock.h>

#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DesignFlowPanelTest : public testing::Test {
 protected:
  static void Calculate(PanelUser& hands, const wchar_t* site, const wchar_t* persons,
                        const wchar_t* equivalents) {
    hands.Set(hands.Find(L"场所："), site);
    hands.Set(hands.Find(L"每户用水人数："), persons);
    hands.Set(hands.Find(L"器具当量总数："), equivalents);
    hands.Click(hands.Find(L"计算"));
  }
  MainDirectory directory;
  PanelRun run;
};

TEST_F(DesignFlowPanelTest, OpensOnTheFirstSiteAndPlastic) {
  run.User([](PanelUser&, CDialog& panel) {
    EXPECT_EQ(panel.Combo(2018).GetWindowText(), L"普通住宅Ⅰ");
    EXPECT_EQ(panel.Combo(2018).GetCount(), 14);
    EXPECT_EQ(panel.Combo(2014).Items(), (std::vector<CString>{L"塑料管", L"金属管"}));
    EXPECT_EQ(panel.Combo(2014).GetWindowText(), L"塑料管");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"");
  });
  RunDesignFlowCommand();
}

TEST_F(DesignFlowPanelTest, DwellingBySimultaneousUse) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Calculate(hands, L"普通住宅Ⅱ", L"3.5", L"4");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"0.413");
  });
  RunDesignFlowCommand();
}

TEST_F(DesignFlowPanelTest, SchoolByTheSquareRoot) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Calculate(hands, L"学校", L"0", L"9");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"1.080");
    Calculate(hands, L"学校", L"0", L"0.5");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"0.255");
  });
  RunDesignFlowCommand();
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST_F(DesignFlowPanelTest, DwellingRefusesSmallValuesAndKeepsTheResults) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Calculate(hands, L"别墅", L"3.5", L"1");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"0.200");
    Calculate(hands, L"别墅", L"3.5", L"0.5");
    Calculate(hands, L"别墅", L"0.5", L"4");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"0.200");
  });
  RunDesignFlowCommand();
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2005, 2016, true}, PanelRun::Focus{2005, 2020, true}));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(DesignFlowPanelTest, PublicSiteRefusesZeroEquivalents) {
  run.User([](PanelUser& hands, CDialog&) { Calculate(hands, L"学校", L"0", L"0"); });
  RunDesignFlowCommand();
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2005, 2016, true}));
}

TEST_F(DesignFlowPanelTest, EmptyPersonsAreRefusedByTheExchangeAlsoForPublicSites) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Calculate(hands, L"学校", L"", L"9");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"");
  });
  RunDesignFlowCommand();
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2005, 2020, true}));
}

TEST_F(DesignFlowPanelTest, FlowTooLargeForAnySizeLeavesTheOldDiameter) {
  run.User([](PanelUser& hands, CDialog& panel) {
    Calculate(hands, L"学校", L"0", L"9");
    const CString diameter = panel.GetDlgItemText(2025);
    EXPECT_NE(diameter, L"");
    Calculate(hands, L"学校", L"0", L"100000000");
    EXPECT_EQ(panel.GetDlgItemText(2024), L"3600.000");
    EXPECT_EQ(panel.GetDlgItemText(2025), diameter);
  });
  RunDesignFlowCommand();
}

TEST_F(DesignFlowPanelTest, FixturePanelGivesTheEquivalents) {
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L".."));
    EXPECT_NE(panel.GetDlgItemText(2016), L"0");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    hands.EditCell(panel.Grid(2012), 2, 6, L"2");
    hands.Click(hands.Find(L"确定"));
  });
  RunDesignFlowCommand();
}

}  // namespace
}  // namespace zwt::test
