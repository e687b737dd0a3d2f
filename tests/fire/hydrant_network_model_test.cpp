// The model of drawn hydrant networks: risers and their order, numbers, sections, labels.
#include "fire/hydrant_network_model.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fire/hydrant_drawing.h"
#include "host/drawing/entities.h"
#include "host_graph/all_routes.h"
#include "support/recorded_command_line.h"

namespace zwt {
namespace {

using testing::HasSubstr;
using testing_rings::DrawFirePipe;
using testing_rings::DrawHydrants;
using testing_rings::FreshDrawing;
using testing_rings::HydrantDrawing;
using testing_rings::TopFields;

class HydrantModel : public testing::Test {
 protected:
  struct NodeRow {
    std::int32_t number;
    std::uint32_t flags;
    double x, y;
    bool operator==(const NodeRow&) const = default;
  };

  std::vector<NodeRow> Nodes() {
    std::vector<NodeRow> rows;
    for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
      const ZwtHydrantNode& node = model.nodes.GetCurData();
      rows.push_back({node.number, node.flags, node.graphNode->GetPoint().x, node.graphNode->GetPoint().y});
    }
    return rows;
  }

  std::vector<std::string> Sections() {
    std::vector<std::string> sections;
    for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
      const ZwtHydrantEdge& edge = model.edges.GetCurData();
      sections.push_back(std::to_string(edge.startNumber) + "-" + std::to_string(edge.endNumber));
    }
    return sections;
  }

  AcDbObjectId LastPipeOfRiser(std::int32_t riser) {
    ZcDbObjectIdList pipes;
    model.risers(riser).GetPathPipeId(pipes);
    return pipes.GetAt(pipes.GetMaxIndex());
  }

  std::vector<AcDbObjectId> RiserOrder() {
    std::vector<AcDbObjectId> order;
    for (std::int32_t riser = 0; riser < model.risers.GetLength(); ++riser)
      order.push_back(LastPipeOfRiser(riser));
    return order;
  }

  static void SetField(AcDbObjectId pipe, const wchar_t* key, const CString& text) {
    ASSERT_EQ(ZwtSetEntityFields(pipe, key, text), Acad::eOk);
  }

  FreshDrawing fresh;
  test::RecordedCommandLine line;
  ZwtHydrantGraph model;
};

using Ids = std::vector<AcDbObjectId>;
using Texts = std::vector<std::string>;

TEST_F(HydrantModel, NumbersRunFromTheFarthestTopHydrantToTheRoot) {
  const HydrantDrawing drawing = DrawHydrants({2, 1, 3000, 8000, 5000});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  // The way down the far riser and along the lower main comes first, then the one by the upper main.
  const std::vector<NodeRow> expected = {
      {1, HYDRANT_NODE_FIRST, 8000, 3000}, {2, 0, 0, 0}, {3, HYDRANT_NODE_END, -5000, 0}, {4, 0, 0, 3000}};
  EXPECT_EQ(Nodes(), expected);
  EXPECT_EQ(Sections(), (Texts{"1-2", "2-3", "1-4", "4-2"}));
  EXPECT_EQ(model.layerNum, 1);
  EXPECT_EQ(model.farthestTopPipe, drawing.topBranches[1]);
  EXPECT_EQ(model.FindSourceNode()->number, 3);
  EXPECT_TRUE(model.HasLoop());
}

TEST_F(HydrantModel, NodesBetweenTwoPipesAreLeftOut) {
  // The corner of the lower main and the far riser joins two pipes only.
  const HydrantDrawing drawing = DrawHydrants({2, 1, 3000, 8000, 5000});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(model.FindPipeGraphNode({8000, 0, 0})->GetKind(), 2);
  EXPECT_EQ(model.FindNodeByGraphNode(model.FindPipeGraphNode({8000, 0, 0})), nullptr);
  EXPECT_EQ(model.FindEdgePath(1, 2)->Length(), 11000);
}

TEST_F(HydrantModel, ASectionOfTwoRoutesStandsOnceInTheDirectionOfTheFirst) {
  const HydrantDrawing drawing = DrawHydrants({3, 2, 3000, 8000, 5000});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  std::set<std::pair<std::int32_t, std::int32_t>> pairs;
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const ZwtHydrantEdge& edge = model.edges.GetCurData();
    EXPECT_TRUE(pairs.insert(std::minmax(edge.startNumber, edge.endNumber)).second);
    EXPECT_EQ(model.FindEdgePath(edge.endNumber, edge.startNumber), nullptr);
  }
}

TEST_F(HydrantModel, EveryNewRecordStartsWithoutValues) {
  const HydrantDrawing drawing = DrawHydrants({2, 2});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    const ZwtHydrantNode& node = model.nodes.GetCurData();
    EXPECT_EQ(std::tie(node.flow, node.pressure, node.accumulatedFlow), std::make_tuple(0.0, 0.0, 0.0));
  }
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const ZwtHydrantEdge& edge = model.edges.GetCurData();
    EXPECT_EQ(std::tie(edge.flow, edge.diameter, edge.conductance), std::make_tuple(0.0, 0.0, 0.0));
  }
}

TEST_F(HydrantModel, RisersStandFromTheFarthestToTheNearest) {
  const HydrantDrawing drawing = DrawHydrants({3, 2});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(RiserOrder(), (Ids{drawing.topBranches[2], drawing.topBranches[1], drawing.topBranches[0]}));
  // Entry, two bays, two storeys and the branch, both end pipes in full.
  EXPECT_EQ(model.risers(0).Length(), 5000 + 16000 + 6000 + 600);
}

TEST_F(HydrantModel, ANeighbourThatStandsSecondStaysThere) {
  const HydrantDrawing drawing = DrawHydrants({4, 2});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(RiserOrder(), (Ids{drawing.topBranches[3], drawing.topBranches[2], drawing.topBranches[1],
                               drawing.topBranches[0]}));
}

TEST_F(HydrantModel, TheNearestRiserToTheFarthestIsExchangedWithTheSecond) {
  // Three risers from one main: the first far to the right, its neighbour 10 m before it, and one to the left
  // that is longer than the neighbour.
  const AcDbObjectId entry = DrawFirePipe({0, -1000, 0}, {0, 0, 0}, L"干管");
  DrawFirePipe({-35000, 0, 0}, {0, 0, 0}, L"干管");
  DrawFirePipe({0, 0, 0}, {30000, 0, 0}, L"干管");
  DrawFirePipe({30000, 0, 0}, {40000, 0, 0}, L"干管");
  Ids tops;
  for (const double x : {-35000.0, 30000.0, 40000.0}) {
    DrawFirePipe({x, 0, 0}, {x, 3000, 0}, L"立管");
    tops.push_back(DrawFirePipe({x, 3000, 0}, {x + 600, 3000, 0}, L"支管", TopFields(1)));
  }
  ASSERT_TRUE(model.BuildHydrantModel(entry));
  EXPECT_EQ(RiserOrder(), (Ids{tops[2], tops[1], tops[0]}));
}

TEST_F(HydrantModel, OfEquallyLongRisersTheFirstDrawnIsTheFarthest) {
  const AcDbObjectId entry = DrawFirePipe({0, -1000, 0}, {0, 0, 0}, L"干管");
  Ids tops;
  for (const double x : {5000.0, -5000.0}) {
    DrawFirePipe({0, 0, 0}, {x, 0, 0}, L"干管");
    DrawFirePipe({x, 0, 0}, {x, 3000, 0}, L"立管");
    tops.push_back(DrawFirePipe({x, 3000, 0}, {x, 3000, 600}, L"支管", TopFields(1)));
    DrawFirePipe({x, 3000, 0}, {0, 6000, 0}, L"干管");
  }
  ASSERT_TRUE(model.BuildHydrantModel(entry));
  EXPECT_EQ(model.farthestTopPipe, tops[0]);
  EXPECT_EQ(RiserOrder(), tops);
}

TEST_F(HydrantModel, RisersWithDifferentNumbersOfHydrantsAreRefusedWithAMessage) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  SetField(drawing.topBranches[1], L"LayerNum", L"4");
  EXPECT_FALSE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(line.printed, L"\n每根立管所连接消火栓数量不同.");
}

TEST_F(HydrantModel, TrueInSmallLettersIsNoTopHydrant) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  SetField(drawing.topBranches[0], L"IsTopHydrant", L"true");
  SetField(drawing.topBranches[0], L"LayerNum", L"17");
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(model.risers.GetLength(), 1);
  SetField(drawing.topBranches[1], L"IsTopHydrant", L"True");
  EXPECT_FALSE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_TRUE(line.printed.empty());
}

TEST_F(HydrantModel, ATopHydrantOnAnythingButABranchIsNone) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  SetField(drawing.topBranches[0], L"ELS_TYPE", L"立管");
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(model.risers.GetLength(), 1);
}

TEST_F(HydrantModel, ANumberOfHydrantsThatIsNoNumberCountsAsNone) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  for (const AcDbObjectId branch : drawing.topBranches) SetField(branch, L"LayerNum", L"三");
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(model.layerNum, 0);
}

TEST_F(HydrantModel, ATopBranchOfSeveralEdgesIsOneRiser) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  DrawFirePipe({300, 9000, 0}, {300, 9400, 0}, L"");
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(model.risers.GetLength(), 2);
}

TEST_F(HydrantModel, WithoutATopHydrantThereIsNoModelAndNoMessage) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  for (const AcDbObjectId branch : drawing.topBranches) SetField(branch, L"IsTopHydrant", L"");
  EXPECT_FALSE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_TRUE(line.printed.empty());
}

TEST_F(HydrantModel, APickedPipeWithoutAFreeEndGivesNoModel) {
  DrawHydrants({2, 3});
  const AcDbObjectId inside = WorkingDrawing().IdOf(WorkingDrawing().Pipes()[2]);
  EXPECT_FALSE(model.BuildHydrantModel(inside));
}

TEST_F(HydrantModel, ATopPipeWithoutAJointGivesNoModel) {
  const AcDbObjectId alone = DrawFirePipe({0, 0, 0}, {600, 0, 0}, L"支管", TopFields(1));
  EXPECT_FALSE(model.BuildHydrantModel(alone));
}

TEST_F(HydrantModel, AnErasedPipeGivesNoModel) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  WorkingDrawing().Erase(WorkingDrawing().IndexOf(drawing.mainEnd));
  EXPECT_FALSE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_FALSE(model.BuildHydrantModel(AcDbObjectId{}));
}

TEST_F(HydrantModel, APipeThatIsOpenForWriteGivesNoModel) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  ZcDbWtPipe* pipe = nullptr;
  ASSERT_EQ(acdbOpenAcDbObject(pipe, drawing.mainEnd, AcDb::kForWrite), Acad::eOk);
  EXPECT_FALSE(model.BuildHydrantModel(drawing.mainEnd));
  pipe->close();
  EXPECT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
}

TEST_F(HydrantModel, ANetworkOfBranchesIsBuiltAndHasNoLoop) {
  const HydrantDrawing drawing = DrawHydrants({3, 3, 3000, 8000, 5000, false});
  EXPECT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_FALSE(model.HasLoop());
  EXPECT_EQ(model.nodes.GetLength(), model.edges.GetLength() + 1);
}

TEST_F(HydrantModel, BuildingAgainGivesTheSameModel) {
  const HydrantDrawing drawing = DrawHydrants({3, 3});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  const std::vector<NodeRow> nodes = Nodes();
  const std::vector<std::string> sections = Sections();
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  EXPECT_EQ(Nodes(), nodes);
  EXPECT_EQ(Sections(), sections);
  EXPECT_EQ(model.risers.GetLength(), 3);
}

TEST_F(HydrantModel, TopNodesOfARiserComeFromTheTopDown) {
  const HydrantDrawing drawing = DrawHydrants({3, 3});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  ZcDList<ZcDbPipeGraphNode*> top;
  ZwtHydrantGraph::TopNodesOfRiser(model.risers(1), 2, top);
  ASSERT_EQ(top.GetLength(), 2);
  EXPECT_EQ(top.GetAt(0)->GetPoint(), (AcGePoint3d{8000, 9000, 0}));
  EXPECT_EQ(top.GetAt(1)->GetPoint(), (AcGePoint3d{8000, 6000, 0}));
}

TEST_F(HydrantModel, ARiserWithFewerKeyNodesThanAskedGivesWhatItHas) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  ZcDList<ZcDbPipeGraphNode*> top;
  ZwtHydrantGraph::TopNodesOfRiser(model.risers(1), 100, top);
  EXPECT_EQ(top.GetLength(), 4) << "three hydrants and the joint with the main";
  ZwtHydrantGraph::TopNodesOfRiser(model.risers(1), -3, top);
  EXPECT_EQ(top.GetLength(), 4);
}

TEST_F(HydrantModel, WhatIsNotThereIsNull) {
  EXPECT_EQ(model.FindNodeByNumber(1), nullptr);
  EXPECT_EQ(model.FindSourceNode(), nullptr);
  EXPECT_EQ(model.FindEdgePath(1, 2), nullptr);
  EXPECT_EQ(model.FindNodeByGraphNode(nullptr), nullptr);
  EXPECT_EQ(ZwtHydrantGraph::ShortestPathBetween(nullptr, nullptr), nullptr);
  EXPECT_TRUE(model.RiserLengths().empty());
}

TEST_F(HydrantModel, RiserLengthsCountTheRiserPipesOnTheWayFromTheSource) {
  const HydrantDrawing drawing = DrawHydrants({2, 2, 3000, 8000, 5000});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  const std::vector<double>& lengths = model.RiserLengths();
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    EXPECT_EQ(lengths[static_cast<std::size_t>(model.nodes.GetCur())],
              model.nodes.GetCurData().graphNode->GetPoint().y);
  }
}

TEST_F(HydrantModel, RiserLengthsAreThoseOfTheMomentOfTheFirstCalculation) {
  const HydrantDrawing drawing = DrawHydrants({2, 2});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  const std::vector<double> lengths = model.RiserLengths();
  for (const std::int32_t pipe : WorkingDrawing().Pipes()) {
    ZwtSetEntityFields(WorkingDrawing().IdOf(pipe), L"ELS_TYPE", L"");
  }
  EXPECT_EQ(model.RiserLengths(), lengths);
}

TEST_F(HydrantModel, LabelsStandBesideTheNodesUntilTheyAreErased) {
  const HydrantDrawing drawing = DrawHydrants({2, 1, 3000, 8000, 5000});
  ASSERT_TRUE(model.BuildHydrantModel(drawing.mainEnd));
  const std::int32_t before = WorkingDrawing().EntityCount();
  model.CreateNumberTexts();
  ASSERT_EQ(WorkingDrawing().EntityCount(), before + 4);
  EXPECT_EQ(model.numberTexts.GetLength(), 4);
  const std::string first(WorkingDrawing().Entity(before).tags);
  EXPECT_THAT(first, HasSubstr("\n  1\n1\n"));
  EXPECT_THAT(first, HasSubstr("\n  8\n平面-管道-消防\n"));
  EXPECT_THAT(first, HasSubstr("\n  7\nWT_TEXT\n"));
  EXPECT_THAT(first, HasSubstr("\n 62\n3\n"));
  EXPECT_THAT(first, HasSubstr("\n 40\n350.0\n"));
  EXPECT_THAT(first, HasSubstr("\n 11\n8010.0\n 21\n3010.0\n 31\n0.0\n"));
  EXPECT_THAT(first, HasSubstr("\n 73\n2\n")) << "the middle of the left edge";
  model.EraseNumberTexts();
  for (model.numberTexts.MoveToFirst(); !model.numberTexts.IsOut(); model.numberTexts.MoveToNext()) {
    ZcDbEntity* text = nullptr;
    EXPECT_NE(acdbOpenAcDbObject(text, model.numberTexts.GetCurData(), AcDb::kForRead), Acad::eOk);
  }
  model.EraseNumberTexts();  // nothing left to erase, nothing said
  EXPECT_TRUE(line.printed.empty());
}

// The plain reading: numbers and sections from the full list of sorted routes.

struct PlainModel {
  std::vector<std::int32_t> nodes;                              // graph nodes by number - 1
  std::vector<std::pair<std::int32_t, std::int32_t>> sections;  // numbers
};

RouteNetwork NetworkOf(ZcDbPipeGraph& graph) {
  std::vector<RouteEdge> edges;
  std::map<AcDbObjectId, std::int32_t> pipes;
  for (graph.MoveToFirst(); !graph.IsOut(); graph.MoveToNext()) {
    const ZcDbPipeGraphEdge& edge = *graph.GetCurData();
    const auto pipe = pipes.emplace(edge.GetPipeId(), static_cast<std::int32_t>(pipes.size())).first;
    edges.push_back({edge.GetStartNode()->GetIndex(), edge.GetEndNode()->GetIndex(),
                     static_cast<std::int64_t>(edge.Length() * 1000 + 0.5), pipe->second});
  }
  return {graph.Nodes().GetLength(), std::move(edges)};
}

PlainModel BuildPlainly(ZcDbPipeGraph& graph, std::int32_t root, std::int32_t far) {
  const RouteNetwork network = NetworkOf(graph);
  PlainModel plain;
  std::map<std::int32_t, std::int32_t> numbers;
  std::set<std::pair<std::int32_t, std::int32_t>> made;
  std::vector<std::vector<std::int32_t>> routes;
  for (const Route& route : testing_routes::AllRoutes(network, root, far)) {
    std::vector<std::int32_t> keyNodes;
    for (auto node = route.nodes.rbegin(); node != route.nodes.rend(); ++node) {
      if (graph.Nodes().GetPData(*node)->GetKind() != 2) keyNodes.push_back(*node);
    }
    for (const std::int32_t node : keyNodes) {
      if (!numbers.emplace(node, static_cast<std::int32_t>(plain.nodes.size()) + 1).second) continue;
      plain.nodes.push_back(node);
    }
    routes.push_back(keyNodes);
  }
  for (const std::vector<std::int32_t>& keyNodes : routes) {
    for (std::size_t i = 1; i < keyNodes.size(); ++i) {
      const std::pair<std::int32_t, std::int32_t> section(numbers[keyNodes[i - 1]], numbers[keyNodes[i]]);
      const bool isNewForth = made.insert(section).second;
      const bool isNewBack = made.emplace(section.second, section.first).second;
      if (isNewForth && isNewBack) plain.sections.push_back(section);
    }
  }
  return plain;
}

/// Pipes along the lines of a small grid, most of them there, with two risers' top branches and a way in.
AcDbObjectId DrawRandomGrid(std::mt19937& random) {
  const auto pick = [&random](unsigned count) { return static_cast<std::int32_t>(random() % count); };
  const std::int32_t columns = 2 + pick(3);
  const std::int32_t rows = 2 + pick(2);
  const double bay = pick(2) == 0 ? 3000 : 4000;
  const AcDbObjectId entry = DrawFirePipe({-2000, 0, 0}, {0, 0, 0}, L"干管");
  for (std::int32_t i = 0; i < columns; ++i) {
    for (std::int32_t j = 0; j < rows; ++j) {
      const AcGePoint3d at{i * bay, j * 3000.0, 0};
      if (i + 1 < columns && pick(8) != 0) DrawFirePipe(at, {at.x + bay, at.y, 0}, L"干管");
      if (j + 1 < rows && pick(8) != 0) DrawFirePipe({at.x, at.y + 3000, 0}, at, L"立管");
    }
  }
  DrawFirePipe({(columns - 1) * bay, (rows - 1) * 3000.0, 0}, {columns * bay, rows * 3000.0, 0}, L"支管",
               TopFields(1));
  DrawFirePipe({0, (rows - 1) * 3000.0, 0}, {-500, rows * 3000.0, 0}, L"支管", TopFields(1));
  return entry;
}

TEST(HydrantModelLaw, NumbersAndSectionsAreThoseOfTheFullListOfRoutes) {
  std::mt19937 random(41);
  int built = 0;
  for (int round = 0; round < 300; ++round) {
    const FreshDrawing fresh;
    ZwtHydrantGraph model;
    if (!model.BuildHydrantModel(DrawRandomGrid(random))) continue;
    ++built;
    const std::int32_t root = model.FindPipeGraphNode({-2000, 0, 0})->GetIndex();
    ZcDbWtPipe* top = nullptr;
    ASSERT_EQ(acdbOpenAcDbObject(top, model.farthestTopPipe, AcDb::kForRead), Acad::eOk);
    const std::int32_t far = model.FindPipeGraphNode(top->GetStartPoint())->GetIndex();
    top->close();
    const PlainModel plain = BuildPlainly(model, root, far);
    std::vector<std::int32_t> nodes;
    for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
      nodes.push_back(model.nodes.GetCurData().graphNode->GetIndex());
    }
    std::vector<std::pair<std::int32_t, std::int32_t>> sections;
    for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
      sections.emplace_back(model.edges.GetCurData().startNumber, model.edges.GetCurData().endNumber);
    }
    ASSERT_EQ(nodes, plain.nodes) << "round " << round;
    ASSERT_EQ(sections, plain.sections) << "round " << round;
  }
  EXPECT_GT(built, 200);
}

}  // namespace
}  // namespace zwt
