// How the drainage calculation tells what it did.
#include <random>

#include <gmock/gmock.h>

#include "drainage/drainage_hydraulics.h"
#include "drainage/drainage_results_dialog.h"
#include "drainage/stack_fixture.h"
#include "host/text/number_text.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DrainageTraceTest : public StackTest {
 protected:
  void Open(AcDbObjectId end, const PanelRun::UserFunction& act) {
    user.selections.push_back({end});
    run.User(act);
    RunDrainageCommand();
  }
  PanelRun run;
};

std::vector<CString> Results(const Trace& trace) {
  std::vector<CString> results;
  for (const TraceStep& step : trace) results.push_back(step.result);
  return results;
}

TEST_F(DrainageTraceTest, FlowNamesItsNumbersAndItsClause) {
  Trace trace;
  DrainageFlow(1.5, 4, 1.5, &trace);
  ASSERT_EQ(trace.size(), 1U);
  EXPECT_EQ(
      TraceLine(trace[0]),
      L"设计秒流量 qp：0.12·α·√Np + qmax = 0.12 × 1.5 × √4 + 1.5 = 1.860 L/s  [GB 50015-2003 第4.4.5条]");
}

TEST_F(DrainageTraceTest, NothingIsToldBeforeTheCalculation) {
  Open(AddStack(1), [](PanelUser&, CDialog& panel) { EXPECT_THAT(panel.Explain(2012, 1), IsEmpty()); });
}

TEST_F(DrainageTraceTest, EachRowTellsWhatItShowsAndTheLastOneTheRiser) {
  Open(AddStack(3), [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    const CGridCtrl& grid = panel.Grid(2012);
    for (int row = 1; row <= 3; ++row) {
      EXPECT_THAT(Results(panel.Explain(2012, row)),
                  ElementsAre(grid.GetItemText(row, 4) + L" L/s", grid.GetItemText(row, 5) + L" mm",
                              grid.GetItemText(row, 6), grid.GetItemText(row, 7) + L" m/s",
                              grid.GetItemText(row, 8)));
    }
    const Trace riser = panel.Explain(2012, 4);
    ASSERT_EQ(riser.size(), 2U);
    EXPECT_EQ(L"立管设计秒流量为：" + riser[0].result.substr(0, 5) + L"，管径为：" +
                  riser[1].result.substr(0, 3) + L"。",
              grid.GetItemText(4, 0));
  });
}

TEST_F(DrainageTraceTest, ATraceChangesNoBitOfTheResult) {
  std::mt19937 random(50015);
  std::uniform_real_distribution<double> any(0, 40);
  for (int round = 0; round < 50; ++round) {
    std::vector<DrainageBranch> branches;
    for (int floor = 0; floor < 4; ++floor) {
      branches.push_back(
          {any(random), any(random) / 10, 50, floor % 2 == 0 ? L"PVC-U排水管" : L"柔性铸铁管"});
    }
    const DrainageSettings settings = {1.5, 0, L"伸顶通气"};
    DrainageStackTrace trace;
    const DrainageStackResult plain = CalculateStack(branches, settings);
    const DrainageStackResult traced = CalculateStack(branches, settings, &trace);
    ASSERT_EQ(trace.branches.size(), branches.size());
    for (std::size_t i = 0; i < branches.size(); ++i) {
      ASSERT_EQ(plain.branches[i].velocity, traced.branches[i].velocity);
      ASSERT_EQ(trace.branches[i][3].result, ZwtNum2Str(plain.branches[i].velocity, 3) + L" m/s");
      ASSERT_EQ(trace.branches[i].back().result, ZwtNum2Str(plain.branches[i].fullness, 1));
    }
    ASSERT_EQ(trace.riser.back().result, ZwtNum2Str(plain.riserDiameter) + L" mm");
  }
}

}  // namespace
}  // namespace zwt::test
