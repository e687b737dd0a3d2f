// How the looped calculation tells what its last pass did.
#include <gmock/gmock.h>

#include "fire/hydrant_drawing.h"
#include "fire/hydrant_network_dialog.h"
#include "fire/ring_network.h"
#include "host/text/number_text.h"
#include "support/drawing_fixture.h"
#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::IsEmpty;
using testing_rings::DrawHydrants;
using testing_rings::MakeRings;
using testing_rings::RingNetwork;
using testing_rings::UseHydrants;

TEST(LoopedNetworkTrace, LastStepIsTheFlowThatThePassLeft) {
  HydrantCalcInput input;
  input.jetFlow = L"5.153";
  for (const std::int32_t risers : {2, 3, 5}) {
    for (const std::int64_t bay : {2000, 5000, 8000}) {
      RingNetwork network = MakeRings({risers, 4, 3000, bay, 5000, risers == 3});
      UseHydrants(network, input, 2, 1);
      SolveLoopedNetwork(network.looped, input);
      for (std::size_t i = 0; i < network.looped.sections.size(); ++i) {
        const LoopedSection& section = network.looped.sections[i];
        const Trace trace = ExplainSection(network.looped, i);
        ASSERT_EQ(trace.size(), 6U);
        ASSERT_EQ(trace.front().result, ZwtNum2Str(ToInt(section.diameter)) + L" mm");
        ASSERT_EQ(trace[4].result, TraceNumber(section.conductance) + L" (L/s)/mH2O");
        ASSERT_EQ(trace.back().result, ZwtNum2Str(section.flow, 3) + L" L/s");
      }
      for (std::size_t i = 0; i < network.looped.nodes.size(); ++i) {
        const LoopedNode& node = network.looped.nodes[i];
        const Trace trace = ExplainNode(network.looped, input, i);
        ASSERT_EQ(trace.size(), 2U);
        ASSERT_EQ(trace.front().result, ZwtNum2Str(node.flow, 2) + L" L/s");
        ASSERT_EQ(trace.back().result, ZwtNum2Str(node.pressure, 2) + L" mH2O");
      }
    }
  }
}

TEST(LoopedNetworkTrace, SourceGivesTheSumAndOtherNodesNothing) {
  HydrantCalcInput input;
  input.jetFlow = L"5.153";
  RingNetwork network = MakeRings({2, 3, 3000, 8000, 5000, false});
  UseHydrants(network, input, 1, 0);
  SolveLoopedNetwork(network.looped, input);
  const auto source = static_cast<std::size_t>(network.looped.sourceNumber) - 1;
  EXPECT_EQ(ExplainNode(network.looped, input, source)[0].substitution, L"各使用消火栓流量之和");
}

class HydrantExplanationTest : public DrawingTest {
 protected:
  MainDirectory directory;
  PanelRun run;
};

TEST_F(HydrantExplanationTest, RowsTellWhatTheTablesShow) {
  user.selections.push_back({DrawHydrants({}).mainEnd});
  run.User([](PanelUser& hands, CDialog& panel) {
    const auto& sections = dynamic_cast<CGridCtrl&>(hands.Find(L"sectionTable"));
    const auto& nodes = dynamic_cast<CGridCtrl&>(hands.Find(L"nodeTable"));
    EXPECT_THAT(panel.Explain(sections.Shape().id, 1), IsEmpty());
    hands.Click(hands.Find(L"水枪射流量(L/s)"));
    hands.Click(hands.Find(L"计算"));
    for (int row = 1; row < sections.GetRowCount(); ++row) {
      const Trace trace = panel.Explain(sections.Shape().id, row);
      ASSERT_EQ(trace.size(), 6U);
      EXPECT_EQ(trace.front().result, sections.GetItemText(row, 2) + L" mm");
      EXPECT_EQ(trace.back().result, sections.GetItemText(row, 3) + L" L/s");
    }
    for (int row = 1; row < nodes.GetRowCount(); ++row) {
      const Trace trace = panel.Explain(nodes.Shape().id, row);
      ASSERT_EQ(trace.size(), 2U);
      EXPECT_EQ(trace.front().result, nodes.GetItemText(row, 1) + L" L/s");
      EXPECT_EQ(trace.back().result, nodes.GetItemText(row, 2) + L" mH2O");
    }
    EXPECT_THAT(panel.Explain(sections.Shape().id, sections.GetRowCount()), IsEmpty());
    EXPECT_THAT(panel.Explain(nodes.Shape().id, 0), IsEmpty());
  });
  RunHydrantNetworkCommand();
}

}  // namespace
}  // namespace zwt::test
