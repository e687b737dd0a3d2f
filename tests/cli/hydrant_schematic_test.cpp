// The hydrant network to start from: what stands in it, the model that it gives, and the laws that its
// calculation obeys.
#include "cli/hydrant_schematic.h"

#include <cmath>

#include <gmock/gmock.h>

#include "cli/program_call.h"
#include "fire/hydrant_calculation.h"
#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"
#include "host/dxf/dxf_file.h"
#include "support/child_process.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;

std::int64_t CountOf(const Drawing& drawing, const wchar_t* key, const CString& wanted) {
  const std::vector<std::int32_t> pipes = drawing.Pipes();
  return std::count_if(pipes.begin(), pipes.end(), [&](std::int32_t pipe) {
    CString text;
    drawing.GetField(pipe, key, text);
    return text == wanted;
  });
}

TEST(HydrantSchematic, HasAHydrantOnEveryStoreyOfEveryRiser) {
  HydrantSchematic schematic;
  schematic.storeys = 18;
  schematic.risers = 6;
  const auto drawing = DrawHydrantSchematic(schematic);
  EXPECT_EQ(CountOf(*drawing, L"ELS_TYPE", L"支管"), 108);
  EXPECT_EQ(CountOf(*drawing, L"ELS_TYPE", L"立管"), 6 * 19);
  EXPECT_EQ(CountOf(*drawing, L"ELS_TYPE", L"干管"), 1 + 2 * 5);
  EXPECT_EQ(CountOf(*drawing, L"IsTopHydrant", L"TRUE"), 6);
  EXPECT_EQ(CountOf(*drawing, L"LayerNum", L"18"), 6);
  EXPECT_EQ(CountOf(*drawing, L"WtSystem", L"消防"), 233);
}

TEST(HydrantSchematic, BranchesTouchTheirOwnRiserAlone) {
  HydrantSchematic schematic;
  schematic.storeys = 1;
  schematic.risers = 2;
  schematic.storeyHeight = 500;
  schematic.bay = 500;
  const auto drawing = DrawHydrantSchematic(schematic);
  const std::vector<std::int32_t> pipes = drawing->Pipes();
  // entry; riser below, branch, riser above; two mains; riser below, branch, riser above
  ASSERT_EQ(pipes.size(), 9U);
  const Connections& connections = drawing->GetConnections();
  EXPECT_THAT(connections.ConnectedTo(pipes[2]), ElementsAre(pipes[1], pipes[3]));
  EXPECT_THAT(connections.ConnectedTo(pipes[7]), ElementsAre(pipes[6], pipes[8]));
  EXPECT_THAT(connections.ConnectedTo(pipes[0]), ElementsAre(pipes[1], pipes[4]));
}

/// The model of a schematic in the working drawing, calculated.
class CalculatedSchematic {
 public:
  explicit CalculatedSchematic(const HydrantSchematic& schematic)
      : before_(ReplaceWorkingDrawing(DrawHydrantSchematic(schematic))) {
    built = model.BuildHydrantModel(WorkingDrawing().IdOf(WorkingDrawing().Pipes().front()));
    HydrantCalcInput input;
    input.jetFlow = L"5.153";
    result = CalculateHydrantNetwork(input, model);
  }
  CalculatedSchematic(const CalculatedSchematic&) = delete;
  CalculatedSchematic& operator=(const CalculatedSchematic&) = delete;
  ~CalculatedSchematic() { ReplaceWorkingDrawing(std::move(before_)); }

  ZwtHydrantGraph model;
  bool built = false;
  HydrantCalcResult result;

 private:
  std::unique_ptr<Drawing> before_;
};

HydrantSchematic Example() {
  HydrantSchematic schematic;
  schematic.storeys = 18;
  schematic.risers = 6;
  return schematic;
}

TEST(HydrantSchematic, GivesALoopedModelOfAllItsJoints) {
  CalculatedSchematic calculated(Example());
  ASSERT_TRUE(calculated.built);
  EXPECT_TRUE(calculated.model.HasLoop());
  EXPECT_EQ(calculated.model.layerNum, 18);
  EXPECT_EQ(calculated.model.risers.GetLength(), 6);
  // 18 hydrants on each of 6 risers, five joints on the lower main and four on the upper, which ends in
  // corners, and the entry.
  EXPECT_EQ(calculated.model.nodes.GetLength(), 108 + 5 + 4 + 1);
  EXPECT_EQ(calculated.result.messages, std::vector<CString>{});
  EXPECT_TRUE(calculated.result.isSolved);
  EXPECT_EQ(calculated.result.passes.outcome, LoopedOutcome::Converged);
}

double HeadAt(const LoopedNetwork& network, std::int32_t number) {
  const LoopedNode& node = network.nodes[static_cast<std::size_t>(number - 1)];
  return node.pressure + node.riserLength * 0.001;
}

TEST(HydrantSchematic, WhatComesToANodeLeavesIt) {
  CalculatedSchematic calculated(Example());
  const LoopedNetwork network = DescribeLoopedNetwork(calculated.model);
  std::vector<double> balance(network.nodes.size(), 0.0);
  for (std::size_t i = 0; i < balance.size(); ++i) {
    const bool isSource = static_cast<std::int32_t>(i) + 1 == network.sourceNumber;
    if (network.nodes[i].isActive) balance[i] -= network.nodes[i].flow;
    if (isSource) balance[i] += network.nodes[i].flow;
  }
  for (const LoopedSection& section : network.sections) {
    const bool toStart = HeadAt(network, section.endNumber) > HeadAt(network, section.startNumber);
    const double flow = toStart ? section.flow : -section.flow;
    balance[static_cast<std::size_t>(section.startNumber - 1)] += flow;
    balance[static_cast<std::size_t>(section.endNumber - 1)] -= flow;
  }
  for (const double left : balance) EXPECT_NEAR(left, 0.0, 0.005);
}

TEST(HydrantSchematic, TheHeadDifferenceIsTheLossOfTheFlow) {
  CalculatedSchematic calculated(Example());
  const LoopedNetwork network = DescribeLoopedNetwork(calculated.model);
  for (const LoopedSection& section : network.sections) {
    const double d = section.diameter / 1000;
    const double fast = 1.736e-9 * section.length * 0.001 / std::pow(d, 5.3);
    const double velocity = 4 * section.flow / (d * d * 3.141592653589793 * 1000);
    const double s = velocity < 1.2 ? fast * 0.852 * std::pow(1 + 0.867 / velocity, 0.3) : fast;
    EXPECT_NEAR(std::fabs(HeadAt(network, section.startNumber) - HeadAt(network, section.endNumber)),
                s * section.flow * section.flow, s * kLoopedConvergenceLimit);
  }
}

TEST(HydrantSchematic, TheProgramWritesItAndNamesThePipeToSelect) {
  const TemporaryFolder folder;
  const std::string file = (folder.Path() / "h.dxf").string();
  const Outcome written = Call({"new", "hydrants", "--risers", "3", "--storeys", "4", "-o", file});
  EXPECT_EQ(written.output,
            file + ": 32 pipes\nentered by pipe 4D: zwtcal calc ZWTXFJS " + file + " --select 4D\n");
  const std::string saved = (folder.Path() / "out.dxf").string();
  const Outcome calculated = Call({"calc", "ZWTXFJS", file, "--select", "4D", "--annotate", "--save", saved});
  EXPECT_EQ(calculated.errors, "");
  EXPECT_EQ(calculated.output.substr(0, calculated.output.find('\n')), "管段编号  管长(m)  管径  流量(L/s)");
  // The entry, five pipes on each riser, four mains; branches belong to no section.
  EXPECT_EQ(CountOf(*ReadDrawing(saved), L"Diameter", L"100"), 1 + 3 * 5 + 4);
  EXPECT_EQ(Failure({"new", "hydrants", "--risers", "1", "-o", file}).substr(0, 9), "--risers:");
  EXPECT_EQ(Failure({"calc", "ZWTXFJS", file}),
            "--select: one pipe is asked for, 32 fit: 4D, 4F, 50, 51, 52, 53, 54, 55, 56, 57, ...\n");
}

}  // namespace
}  // namespace zwt::test
