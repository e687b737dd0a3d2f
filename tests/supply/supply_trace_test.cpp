// How the supply calculation tells what it did.
#include <random>

#include <gmock/gmock.h>

#include "host/text/number_text.h"
#include "supply/riser_fixture.h"
#include "supply/supply_hydraulics.h"
#include "supply/supply_results_dialog.h"
#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<CString> Results(const Trace& trace) {
  std::vector<CString> results;
  for (const TraceStep& step : trace) results.push_back(step.result);
  return results;
}

class SupplyTraceTest : public RiserTest {
 protected:
  MainDirectory directory;
};

TEST_F(SupplyTraceTest, DwellingSectionStepByStep) {
  const SupplySectionInput section = {.equivalents = 4,
                                      .persons = 7,
                                      .quota = 250,
                                      .hourlyFactor = 2.8,
                                      .hours = 24,
                                      .length = 3000,
                                      .material = L"PP-R管(S5)"};
  Trace trace;
  const SupplySectionResult result = CalculateSection(section, kDwellingClass, L"", &trace);
  ASSERT_EQ(trace.size(), 8U);
  EXPECT_EQ(
      TraceLine(trace[0]),
      L"最大用水时平均出流概率 U0：100·q0·m·Kh / (0.2·Ng·T·3600) = 100 × 250 × 7 × 2.8 / (0.2 × 4 × 24 × "
      L"3600) = 7.089 %  [GB 50015-2003 第3.6.4条]");
  EXPECT_EQ(TraceLine(trace[1]),
            L"系数 αc：按最接近 U0 = 7.08912 % 的一行取值 = 0.05555  [GB 50015-2003 附录C]");
  EXPECT_EQ(trace[2].result, L"0.55");
  EXPECT_EQ(trace[3].formula, L"0.2·U·Ng");
  EXPECT_EQ(trace[3].result, L"0.44 L/s");
  EXPECT_EQ(trace[4].result, ZwtNum2Str(result.diameter) + L" mm");
  EXPECT_EQ(trace[5].result, ZwtNum2Str(result.velocity, 3) + L" m/s");
  EXPECT_EQ(trace[7].result, ZwtNum2Str(result.headLoss * 0.1, 3) + L" mH2O");
}

TEST_F(SupplyTraceTest, PublicBuildingUsesTheRootFormula) {
  const SupplySectionInput section = {.equivalents = 16, .material = L"PP-R管(S5)"};
  Trace trace;
  CalculateSection(section, kPublicClass, L"办公楼、商场", &trace);
  EXPECT_EQ(TraceLine(trace[3]),
            L"设计秒流量 qg：0.2·α·√Ng = 0.2 × 1.5 × √16 = 1.20 L/s  [GB 50015-2003 第3.6.5条]");
}

TEST_F(SupplyTraceTest, UnknownMaterialHasNoDiameterAndNoLoss) {
  Trace trace;
  CalculateSection({.equivalents = 4, .material = L""}, kPublicClass, L"学校", &trace);
  EXPECT_THAT(Results(trace), ElementsAre(L"0.000 %", L"0.00323", L"0.50", L"0.72 L/s", L"0 mm", L"0.000 m/s",
                                          L"0.000 mH2O"));
}

TEST_F(SupplyTraceTest, ATraceChangesNoBitOfTheResult) {
  std::mt19937 random(20031);
  std::uniform_real_distribution<double> any(1, 300);
  for (int round = 0; round < 2000; ++round) {
    const SupplySectionInput section = {.equivalents = any(random),
                                        .persons = any(random),
                                        .quota = any(random),
                                        .hourlyFactor = any(random) / 100,
                                        .hours = 24,
                                        .length = any(random) * 100,
                                        .material = L"PP-R管(S5)"};
    const CString buildingClass = round % 2 == 0 ? kDwellingClass : kPublicClass;
    Trace trace;
    const SupplySectionResult plain = CalculateSection(section, buildingClass, L"学校");
    const SupplySectionResult traced = CalculateSection(section, buildingClass, L"学校", &trace);
    ASSERT_EQ(plain.flow, traced.flow);
    ASSERT_EQ(plain.velocity, traced.velocity);
    ASSERT_EQ(plain.headLoss, traced.headLoss);
    ASSERT_EQ(trace.back().result, ZwtNum2Str(plain.headLoss * 0.1, 3) + L" mH2O");
    ASSERT_EQ(trace[3].result, ZwtNum2Str(plain.flow, 2) + L" L/s");
  }
}

class SupplyExplanationTest : public SupplyTraceTest {
 protected:
  void Open(const std::vector<AcDbObjectId>& entries, const PanelRun::UserFunction& act) {
    user.selections.push_back(entries);
    run.User(act);
    RunSupplyCommand();
  }
  /// Flow, diameter, velocity and head loss of a row as the grid shows them.
  static std::vector<CString> Shown(const CDialog& panel, int row) {
    const CGridCtrl& grid = panel.Grid(2012);
    return {grid.GetItemText(row, 4) + L" L/s", grid.GetItemText(row, 7) + L" mm",
            grid.GetItemText(row, 5) + L" m/s", grid.GetItemText(row, 6) + L" mH2O"};
  }
  PanelRun run;
};

TEST_F(SupplyExplanationTest, NothingIsToldBeforeTheCalculation) {
  Open({AddLine(0, 2)}, [](PanelUser&, CDialog& panel) {
    EXPECT_TRUE(panel.CanExplain(2012));
    EXPECT_FALSE(panel.CanExplain(2147));
    EXPECT_THAT(panel.Explain(2012, 1), IsEmpty());
  });
}

TEST_F(SupplyExplanationTest, EachRowTellsWhatItShows) {
  Open({AddLine(0, 3)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    for (int row = 1; row <= 3; ++row) {
      const Trace trace = panel.Explain(2012, row);
      ASSERT_EQ(trace.size(), 8U);
      EXPECT_THAT(Shown(panel, row),
                  ElementsAre(trace[3].result, trace[4].result, trace[5].result, trace[7].result));
    }
    EXPECT_THAT(panel.Explain(2012, 0), IsEmpty());
    EXPECT_THAT(panel.Explain(2012, 4), IsEmpty());
  });
}

TEST_F(SupplyExplanationTest, OverruledRowTellsItsRecalculationUntilTheNextCalculation) {
  Open({AddLine(0, 2)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    hands.EditCell(panel.Grid(2012), 1, 7, L"110");
    hands.Click(hands.Find(L"复    算"));
    const Trace trace = panel.Explain(2012, 1);
    ASSERT_EQ(trace.size(), 3U);
    EXPECT_EQ(trace[0].result, Shown(panel, 1)[2]);
    EXPECT_EQ(trace[2].result, Shown(panel, 1)[3]);
    EXPECT_EQ(panel.Explain(2012, 2).size(), 8U);
    hands.Click(hands.Find(L"计    算"));
    EXPECT_EQ(panel.Explain(2012, 1).size(), 8U);
  });
}

TEST_F(SupplyExplanationTest, LaterChoicesOfTheClassDoNotReachWhatIsShown) {
  Open({AddLine(0, 1)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    hands.Set(hands.Find(L"建筑类别："), L"公共建筑");
    EXPECT_EQ(panel.Explain(2012, 1)[3].formula, L"0.2·U·Ng");
  });
}

}  // namespace
}  // namespace zwt::test
