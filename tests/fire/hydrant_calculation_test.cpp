// The whole calculation on drawn networks: what stops it, which hydrants it uses, what it leaves behind.
#include "fire/hydrant_calculation.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "fire/hydrant_drawing.h"
#include "fire/plain_looped_solver.h"
#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

using testing_rings::DrawHydrants;
using testing_rings::FreshDrawing;
using testing_rings::HydrantDrawing;
using testing_rings::HydrantSizes;

using Messages = std::vector<CString>;

/// The panel's defaults after the jet flow has been worked out.
HydrantCalcInput ReadyInput() {
  HydrantCalcInput input;
  input.jetFlow =
      ZwtNum2Str(ZwtHydrantFormula().JetFlow(input.waterColumn, input.nozzleDiameter, input.gunMinFlow), 3);
  return input;
}

class HydrantCalculation : public testing::Test {
 protected:
  void Build(const HydrantSizes& sizes) { ASSERT_TRUE(model.BuildHydrantModel(DrawHydrants(sizes).mainEnd)); }

  /// Numbers of the nodes in use.
  std::vector<std::int32_t> InUse() {
    std::vector<std::int32_t> numbers;
    for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
      const ZwtHydrantNode& node = model.nodes.GetCurData();
      if (node.HasFlag(HYDRANT_NODE_ACTIVE)) numbers.push_back(node.number);
    }
    return numbers;
  }

  ZwtHydrantNode& NodeAt(double x, double y) {
    ZwtHydrantNode* node = model.FindNodeByGraphNode(model.FindPipeGraphNode({x, y, 0}));
    EXPECT_NE(node, nullptr);
    return *node;
  }

  bool IsInUse(double x, double y) { return NodeAt(x, y).HasFlag(HYDRANT_NODE_ACTIVE); }

  FreshDrawing fresh;
  ZwtHydrantGraph model;
};

TEST_F(HydrantCalculation, AtTheDefaultsTheTwoTopHydrantsOfTheFarthestRiserAreInUse) {
  Build({3, 5});
  const HydrantCalcResult result = CalculateHydrantNetwork(ReadyInput(), model);
  EXPECT_TRUE(result.messages.empty());
  EXPECT_TRUE(result.isSolved);
  EXPECT_EQ(result.passes.outcome, LoopedOutcome::Converged);
  EXPECT_EQ(InUse(), (std::vector<std::int32_t>{1, 2}));
  EXPECT_TRUE(IsInUse(16000, 15000));
  EXPECT_TRUE(IsInUse(16000, 12000));
  EXPECT_EQ(ZwtNum2Str(NodeAt(16000, 15000).pressure, 2), L"23.33");
  EXPECT_EQ(ZwtNum2Str(NodeAt(16000, 15000).flow, 3), L"5.153");
  EXPECT_GT(NodeAt(16000, 12000).flow, NodeAt(16000, 15000).flow) << "a storey lower there is more head";
  EXPECT_DOUBLE_EQ(model.FindSourceNode()->flow, NodeAt(16000, 15000).flow + NodeAt(16000, 12000).flow);
}

TEST_F(HydrantCalculation, WithTheJetFlowLeftAtZeroItStops) {
  Build({2, 3});
  const HydrantCalcResult result = CalculateHydrantNetwork(HydrantCalcInput(), model);
  EXPECT_EQ(result.messages, Messages{L"参数不足！"});
  EXPECT_FALSE(result.isSolved);
  EXPECT_TRUE(InUse().empty());
}

TEST_F(HydrantCalculation, AnyZeroAmongTheRequiredValuesStopsIt) {
  Build({2, 3});
  std::vector<HydrantCalcInput> inputs(5, ReadyInput());
  inputs[0].hydrantFlow = 0;
  inputs[1].gunCount = 0;
  inputs[2].gunMinFlow = 0;
  inputs[3].riserMinFlow = 0;
  inputs[4].jetFlow = L"五";
  for (const HydrantCalcInput& input : inputs) {
    EXPECT_EQ(CalculateHydrantNetwork(input, model).messages, Messages{L"参数不足！"});
  }
  EXPECT_TRUE(InUse().empty());
}

TEST_F(HydrantCalculation, HydrantsLeftOverWithoutAnyRiserStopIt) {
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 3;
  EXPECT_EQ(CalculateHydrantNetwork(input, model).messages, Messages{L"立管数量不足."});
}

TEST_F(HydrantCalculation, HydrantsLeftOverWithASingleRiserStopIt) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  ZwtSetEntityFields(drawing.topBranches[0], L"IsTopHydrant", L"");
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 3;
  EXPECT_EQ(CalculateHydrantNetwork(input, model).messages, Messages{L"立管数量不足."});
  EXPECT_TRUE(InUse().empty());
  input.gunCount = 2;
  EXPECT_TRUE(CalculateHydrantNetwork(input, model).messages.empty());
}

TEST_F(HydrantCalculation, MoreHydrantsOnTheFirstRiserThanItHasStopIt) {
  Build({2, 3});
  HydrantCalcInput input = ReadyInput();
  input.riserMinFlow = 20;
  EXPECT_EQ(CalculateHydrantNetwork(input, model).messages, Messages{L"立管连接消火栓数量不足."});
  EXPECT_TRUE(InUse().empty());
  input.riserMinFlow = 19.99;
  EXPECT_TRUE(CalculateHydrantNetwork(input, model).isSolved);
}

TEST_F(HydrantCalculation, TheRestOfTheHydrantsLiesOnTheSecondRiser) {
  Build({3, 5});
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 3;
  CalculateHydrantNetwork(input, model);
  EXPECT_EQ(InUse().size(), 3U);
  EXPECT_TRUE(IsInUse(16000, 15000));
  EXPECT_TRUE(IsInUse(16000, 12000));
  EXPECT_TRUE(IsInUse(8000, 15000));
}

TEST_F(HydrantCalculation, TheFirstRiserMayTakeMoreThanAreAskedFor) {
  Build({3, 5});
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 1;
  input.riserMinFlow = 15;
  CalculateHydrantNetwork(input, model);
  EXPECT_EQ(InUse().size(), 3U);
  EXPECT_TRUE(IsInUse(16000, 9000));
  EXPECT_FALSE(IsInUse(8000, 15000));
}

TEST_F(HydrantCalculation, ASmallRiserFlowPutsAllHydrantsOnTheSecondRiser) {
  Build({2, 3});
  HydrantCalcInput input = ReadyInput();
  input.riserMinFlow = 4;
  const HydrantCalcResult result = CalculateHydrantNetwork(input, model);
  EXPECT_FALSE(IsInUse(8000, 9000));
  EXPECT_TRUE(IsInUse(0, 9000));
  EXPECT_TRUE(IsInUse(0, 6000));
  // Sections that leave node 1 are seeded with its flow, which is none.
  EXPECT_EQ(result.messages, (Messages{L"解方程失败！", L"计算失败！"}));
  EXPECT_EQ(result.passes.outcome, LoopedOutcome::NoSolution);
  EXPECT_TRUE(result.isSolved) << "the tables are filled all the same";
}

TEST_F(HydrantCalculation, AtTheLimitOfPassesItFailsAndKeepsTheLastFlows) {
  Build({2, 3, 2800, 100, 5000, true, true});
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 4;  // short mains, and little to fade the swinging
  const HydrantCalcResult result = CalculateHydrantNetwork(input, model);
  EXPECT_EQ(result.passes.outcome, LoopedOutcome::NotConverged);
  EXPECT_EQ(result.passes.passes, 4999);
  EXPECT_EQ(result.messages, Messages{L"计算失败！"});
  EXPECT_GT(model.FindSourceNode()->flow, 20);
}

TEST_F(HydrantCalculation, HydrantsOfAnEarlierRunStayInUse) {
  Build({3, 5});
  HydrantCalcInput input = ReadyInput();
  input.gunCount = 4;
  CalculateHydrantNetwork(input, model);
  EXPECT_EQ(InUse().size(), 4U);
  input.gunCount = 2;
  CalculateHydrantNetwork(input, model);
  EXPECT_EQ(InUse().size(), 4U);
  input.riserMinFlow = 15;
  CalculateHydrantNetwork(input, model);
  EXPECT_EQ(InUse().size(), 5U);
}

TEST_F(HydrantCalculation, AccumulatedFlowsOfNodesThatAreNotSeededAgainCarryOver) {
  Build({2, 3});
  CalculateHydrantNetwork(ReadyInput(), model);
  const double once = model.FindSourceNode()->accumulatedFlow;
  CalculateHydrantNetwork(ReadyInput(), model);
  EXPECT_GT(model.FindSourceNode()->accumulatedFlow, 1.9 * once);
}

TEST_F(HydrantCalculation, ARunStartsFromSeededFlowsWhateverTheLastOneLeft) {
  Build({2, 3});
  CalculateHydrantNetwork(ReadyInput(), model);
  SeedHydrantFlows(ReadyInput(), model);
  EXPECT_EQ(ZwtNum2Str(NodeAt(8000, 9000).flow, 3), L"5.153");
  const ZwtHydrantFormula formula;
  const double top = NodeAt(8000, 9000).pressure;
  EXPECT_EQ(NodeAt(8000, 6000).pressure, top + 3000 * 0.001);
  const double loss = 1 / formula.NozzleCoefficient(19) + formula.HoseResistance(1, 50) * 25;
  EXPECT_EQ(NodeAt(8000, 6000).flow, std::sqrt((NodeAt(8000, 6000).pressure - 2.0) / loss));
  EXPECT_EQ(NodeAt(8000, 6000).accumulatedFlow, NodeAt(8000, 6000).flow);
}

TEST_F(HydrantCalculation, SeedingOfARiserEndsAtTheFirstNodeThatIsNotInUse) {
  Build({2, 4});
  NodeAt(8000, 12000).SetFlag(HYDRANT_NODE_ACTIVE);
  NodeAt(8000, 6000).SetFlag(HYDRANT_NODE_ACTIVE);
  SeedHydrantFlows(ReadyInput(), model);
  EXPECT_GT(NodeAt(8000, 12000).flow, 0);
  EXPECT_EQ(NodeAt(8000, 6000).flow, 0);
}

TEST_F(HydrantCalculation, ASeedBelowAMissingSectionGetsNoHeightForIt) {
  // On the second riser the sections run upward, against the walk from the top, so none is found there.
  Build({2, 3});
  NodeAt(0, 9000).SetFlag(HYDRANT_NODE_ACTIVE);
  NodeAt(0, 6000).SetFlag(HYDRANT_NODE_ACTIVE);
  const bool isFound = model.FindEdgePath(NodeAt(0, 9000).number, NodeAt(0, 6000).number) != nullptr;
  SeedHydrantFlows(ReadyInput(), model);
  EXPECT_EQ(NodeAt(0, 6000).pressure, NodeAt(0, 9000).pressure + (isFound ? 3.0 : 0.0));
}

TEST_F(HydrantCalculation, ARootOfANegativeNumberIsLeftAsItComes) {
  Build({2, 3});
  NodeAt(8000, 9000).SetFlag(HYDRANT_NODE_ACTIVE);
  NodeAt(8000, 6000).SetFlag(HYDRANT_NODE_ACTIVE);
  HydrantCalcInput input = ReadyInput();
  input.waterColumn = -40;
  SeedHydrantFlows(input, model);
  EXPECT_LT(NodeAt(8000, 6000).pressure, 2.0);
  EXPECT_TRUE(std::isnan(NodeAt(8000, 6000).flow));
}

TEST_F(HydrantCalculation, RowsOfTheSectionTableSkipSectionsWithoutAPath) {
  Build({2, 3});
  CalculateHydrantNetwork(ReadyInput(), model);
  const std::vector<SectionResultTexts> all = SectionResults(model);
  ASSERT_EQ(static_cast<std::int32_t>(all.size()), model.edges.GetLength());
  model.edges.MoveTo(1);
  delete model.edges.GetCurData().path;
  model.edges.GetCurData().path = nullptr;
  const std::vector<SectionResultTexts> rows = SectionResults(model);
  ASSERT_EQ(rows.size(), all.size() - 1);
  EXPECT_EQ(rows[0].flow, all[0].flow);
  EXPECT_EQ(rows[1].flow, all[2].flow) << "a row too high from here on";
}

TEST_F(HydrantCalculation, ResultsPrintWholeDiametersThreeAndTwoDecimals) {
  Build({2, 3});
  CalculateHydrantNetwork(ReadyInput(), model);
  EXPECT_EQ(SectionResults(model)[0].diameter, L"100");
  EXPECT_EQ(NodeResults(model)[0].flow, L"5.15");
  EXPECT_EQ(NodeResults(model)[0].pressure, L"23.33");
  EXPECT_EQ(static_cast<std::int32_t>(NodeResults(model).size()), model.nodes.GetLength());
}

TEST_F(HydrantCalculation, EventsEncloseThePasses) {
  Build({2, 3});
  std::vector<CString> log;
  HydrantCalcEvents events;
  events.solvingStarts = [&log] { log.emplace_back(L"start"); };
  events.solvingEnds = [&log] { log.emplace_back(L"end"); };
  events.passDone = [&log](const LoopedPass& pass) { log.push_back(ZwtNum2Str(pass.pass)); };
  const HydrantCalcResult result = CalculateHydrantNetwork(ReadyInput(), model, events);
  ASSERT_EQ(static_cast<std::int32_t>(log.size()), result.passes.passes + 2);
  EXPECT_EQ(log.front(), L"start");
  EXPECT_EQ(log[1], L"1");
  EXPECT_EQ(log.back(), L"end");
  log.clear();
  CalculateHydrantNetwork(HydrantCalcInput(), model, events);
  EXPECT_TRUE(log.empty()) << "nothing is shown where nothing is calculated";
}

/// Length between two nodes by a search of its own, pipe by pipe read from the drawing.
double PlainLength(ZwtHydrantGraph& model, std::int32_t first, std::int32_t second, bool riserOnly) {
  const std::unique_ptr<ZcDbPipeGraphPath> path(ZwtHydrantGraph::ShortestPathBetween(
      model.FindNodeByNumber(first)->graphNode, model.FindNodeByNumber(second)->graphNode));
  if (path == nullptr) return 0.0;
  if (!riserOnly) return path->Length();
  ZcDbObjectIdList pipes;
  path->GetPathPipeId(pipes);
  double length = 0.0;
  for (pipes.MoveToFirst(); !pipes.IsOut(); pipes.MoveToNext()) {
    CString role;
    ZcDbWtPipe* pipe = nullptr;
    ZwtGetEntityFields(pipes.GetCurData(), L"ELS_TYPE", role);
    if (role != L"立管" || acdbOpenAcDbObject(pipe, pipes.GetCurData(), AcDb::kForRead) != Acad::eOk)
      continue;
    length += pipe->GetPipeLength();
    pipe->close();
  }
  return length;
}

TEST_F(HydrantCalculation, EveryLengthIsThatOfAFreshSearch) {
  Build({4, 4, 3123.4567, 7777.7777, 5000});
  const LoopedNetwork network = DescribeLoopedNetwork(model);
  for (const LoopedSection& section : network.sections) {
    EXPECT_EQ(section.length, PlainLength(model, section.startNumber, section.endNumber, false));
  }
  for (std::int32_t number = 1; number <= model.nodes.GetLength(); ++number) {
    EXPECT_EQ(network.nodes[static_cast<std::size_t>(number - 1)].riserLength,
              PlainLength(model, network.sourceNumber, number, true));
  }
}

}  // namespace
}  // namespace zwt
