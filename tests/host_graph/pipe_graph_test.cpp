// The graph of drawn pipes: where nodes stand, what their kinds are, and routes between nodes and pipes.
#include "host/graph/pipe_graph.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "host/drawing/drawing.h"

namespace zwt {
namespace {

class PipeGraph : public testing::Test {
 protected:
  PipeGraph() : former_(ReplaceWorkingDrawing(std::make_unique<Drawing>())) {}
  ~PipeGraph() override { ReplaceWorkingDrawing(std::move(former_)); }

  static AcDbObjectId Pipe(const AcGePoint3d& start, const AcGePoint3d& end) {
    return WorkingDrawing().AddPipe(start, end);
  }

  ZcDbPipeGraphNode* NodeAt(double x, double y) { return graph.FindPipeGraphNode({x, y, 0}); }

  std::vector<AcDbObjectId> EdgePipes() {
    std::vector<AcDbObjectId> pipes;
    for (graph.MoveToFirst(); !graph.IsOut(); graph.MoveToNext())
      pipes.push_back(graph.GetCurData()->GetPipeId());
    return pipes;
  }

  const ZcDbPipeGraphPath& FirstFound() { return graph.FoundPaths()(0); }

  static std::vector<AcDbObjectId> PipesOf(const ZcDbPipeGraphPath& path) {
    ZcDbObjectIdList list;
    path.GetPathPipeId(list);
    std::vector<AcDbObjectId> pipes;
    for (list.MoveToFirst(); !list.IsOut(); list.MoveToNext()) pipes.push_back(list.GetCurData());
    return pipes;
  }

  static std::vector<ZcDbPipeGraphNode*> NodesOf(const ZcDbPipeGraphPath& path) {
    ZcDList<ZcDbPipeGraphNode*> list;
    path.GetPathNode(list);
    std::vector<ZcDbPipeGraphNode*> nodes;
    for (list.MoveToFirst(); !list.IsOut(); list.MoveToNext()) nodes.push_back(list.GetCurData());
    return nodes;
  }

  ZcDbPipeGraph graph;

 private:
  std::unique_ptr<Drawing> former_;
};

using Ids = std::vector<AcDbObjectId>;

TEST_F(PipeGraph, APipeAloneHasTwoFreeEnds) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {3000, 4000, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(graph.GetLength(), 1);
  EXPECT_EQ(graph.Nodes().GetLength(), 2);
  EXPECT_EQ(NodeAt(0, 0)->GetKind(), 1);
  EXPECT_EQ(NodeAt(3000, 4000)->GetKind(), 1);
  EXPECT_EQ(graph.GetFirst()[0]->Length(), 5000);
  EXPECT_FALSE(graph.HasLoop());
}

TEST_F(PipeGraph, KindsCountTheEdgesUpToThree) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  Pipe({1000, 0, 0}, {2000, 0, 0});
  for (const double y : {1000.0, 2000.0}) Pipe({2000, 0, 0}, {3000, y, 0});
  Pipe({2000, 0, 0}, {3000, -1000, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(NodeAt(0, 0)->GetKind(), 1);
  EXPECT_EQ(NodeAt(1000, 0)->GetKind(), 2);
  EXPECT_EQ(NodeAt(2000, 0)->GetKind(), 3);
}

TEST_F(PipeGraph, ATeeSplitsAPipeIntoEdgesFromItsStart) {
  const AcDbObjectId main = Pipe({0, 0, 0}, {9000, 0, 0});
  const AcDbObjectId second = Pipe({6000, 0, 0}, {6000, 1000, 0});
  const AcDbObjectId first = Pipe({2000, 1000, 0}, {2000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(first));
  EXPECT_EQ(EdgePipes(), (Ids{main, main, main, second, first}));
  std::vector<double> lengths;
  for (graph.MoveToFirst(); !graph.IsOut(); graph.MoveToNext())
    lengths.push_back(graph.GetCurData()->Length());
  EXPECT_EQ(lengths, (std::vector<double>{2000, 4000, 3000, 1000, 1000}));
  EXPECT_EQ(NodeAt(2000, 0)->GetKind(), 3);
  EXPECT_EQ(NodeAt(6000, 0)->GetIndex(), 2);
}

TEST_F(PipeGraph, PipesThatCrossDoNotConnect) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {2000, 0, 0});
  Pipe({1000, -1000, 0}, {1000, 1000, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(graph.GetLength(), 1);
  EXPECT_EQ(NodeAt(1000, 0), nullptr);
}

TEST_F(PipeGraph, EndsOnOppositeSidesOfAPipeMeetInOneNode) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {2000, 0, 0});
  Pipe({1000, 0.7, 0}, {1000, 1000, 0});
  Pipe({1000, -0.7, 0}, {1000, -1000, 0});  // 1.4 mm from the other, in one chain through the pipe
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(graph.Nodes().GetLength(), 5);
  EXPECT_EQ(graph.GetLength(), 4);
  EXPECT_EQ(NodeAt(1000, 0)->GetPoint(), (AcGePoint3d{1000, 0, 0}));
  EXPECT_EQ(NodeAt(1000, 0.7), NodeAt(1000, -0.7));
}

TEST_F(PipeGraph, AChainOfNearEndsIsOneNodeAtThePointOfTheFirstPipe) {
  const AcDbObjectId third = Pipe({1.8, 0, 0}, {1000, 0, 0});
  Pipe({0.9, 0, 0}, {0, 1000, 0});
  Pipe({0, 0, 0}, {-1000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(third));
  EXPECT_EQ(graph.Nodes().GetLength(), 4);
  ZcDbPipeGraphNode* node = NodeAt(0, 0);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->GetKind(), 3);
  EXPECT_EQ(node->GetPoint(), (AcGePoint3d{1.8, 0, 0}));
  EXPECT_EQ(NodeAt(1.8, 0), node);
}

TEST_F(PipeGraph, ANodeIsFoundWithinAMillimetre) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_NE(NodeAt(-1, 0), nullptr);
  EXPECT_EQ(NodeAt(-1.01, 0), nullptr);
  EXPECT_EQ(graph.FindPipeGraphNode({0, 0, 1.5}), nullptr);
}

TEST_F(PipeGraph, HoldsWhatIsConnectedAndNothingElse) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  Pipe({5000, 0, 0}, {6000, 0, 0});
  const AcDbObjectId other = Pipe({1000, 0, 0}, {1000, 0, 500});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(EdgePipes(), (Ids{pipe, other}));
}

TEST_F(PipeGraph, AnIdentifierOfNoPipeGivesAnEmptyGraph) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  WorkingDrawing().Erase(WorkingDrawing().IndexOf(pipe));
  EXPECT_FALSE(graph.CreateRelateGraph(pipe));
  EXPECT_TRUE(graph.IsEmpty());
  EXPECT_FALSE(graph.CreateRelateGraph(AcDbObjectId{}));
  EXPECT_EQ(graph.FindPath(pipe, pipe), 0);
  EXPECT_EQ(graph.FindPath(nullptr, nullptr), 0);
}

TEST_F(PipeGraph, APipeWithinOneJointIsNoEdgeAndNoLoop) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  Pipe({1000, 0, 0}, {1000.5, 0, 0});
  Pipe({1000.5, 0, 0}, {2000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_EQ(graph.GetLength(), 2);
  EXPECT_EQ(graph.Nodes().GetLength(), 3);
  EXPECT_FALSE(graph.HasLoop());
}

TEST_F(PipeGraph, TwoPipesBetweenTheSameJointsAreALoop) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  Pipe({1000, 0, 0}, {0, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_TRUE(graph.HasLoop());
}

TEST_F(PipeGraph, IdentifiersTellTheNodesApart) {
  const AcDbObjectId pipe = Pipe({0, 0, 0}, {1000, 0, 0});
  ASSERT_TRUE(graph.CreateRelateGraph(pipe));
  EXPECT_NE(NodeAt(0, 0)->GetObjectId(), NodeAt(1000, 0)->GetObjectId());
  EXPECT_EQ(WorkingDrawing().IndexOf(NodeAt(0, 0)->GetObjectId()), -1);
}

/// A square of two ways from (0, 0) to (2000, 1000), each of two pipes.
class SquareOfPipes : public PipeGraph {
 protected:
  SquareOfPipes() {
    entry = Pipe({-500, 0, 0}, {0, 0, 0});
    upFirst = Pipe({0, 0, 0}, {0, 1000, 0});
    rightFirst = Pipe({0, 0, 0}, {2000, 0, 0});
    upLast = Pipe({2000, 0, 0}, {2000, 1000, 0});
    rightLast = Pipe({0, 1000, 0}, {2000, 1000, 0});
    branch = Pipe({2000, 1000, 0}, {2300, 1000, 0});
    graph.CreateRelateGraph(entry);
  }

  AcDbObjectId entry, upFirst, rightFirst, upLast, rightLast, branch;
};

TEST_F(SquareOfPipes, FindPathKeepsTheFirstRouteAlone) {
  EXPECT_EQ(graph.FindPath(NodeAt(0, 0), NodeAt(2000, 1000)), 1);
  ASSERT_EQ(graph.FoundPaths().GetLength(), 1);
  // Of the two equal ways the one without the latest edge, the upper main.
  EXPECT_EQ(PipesOf(FirstFound()), (Ids{rightFirst, upLast}));
  EXPECT_EQ(FirstFound().Length(), 3000);
}

TEST_F(SquareOfPipes, FindPathBetweenPipesCountsBothAndPassesTheJoints) {
  EXPECT_EQ(graph.FindPath(entry, branch), 1);
  EXPECT_EQ(FirstFound().Length(), 3800);
  EXPECT_EQ(PipesOf(FirstFound()), (Ids{entry, rightFirst, upLast, branch}));
  EXPECT_EQ(NodesOf(FirstFound()), (std::vector{NodeAt(0, 0), NodeAt(2000, 0), NodeAt(2000, 1000)}));
}

TEST_F(SquareOfPipes, FindPathToGoesFromTheNodeToTheOther) {
  ZcPDList<ZcDbPipeGraphPath> paths;
  EXPECT_EQ(NodeAt(2000, 1000)->FindPathTo(NodeAt(-500, 0), paths), 1);
  EXPECT_EQ(NodesOf(paths(0)).front(), NodeAt(2000, 1000));
  EXPECT_EQ(NodesOf(paths(0)).back(), NodeAt(-500, 0));
  EXPECT_EQ(NodeAt(0, 0)->FindPathTo(nullptr, paths), 0);
  EXPECT_EQ(NodeAt(0, 0)->FindPathTo(NodeAt(0, 0), paths), 1);
  EXPECT_EQ(paths(1).Length(), 0);
}

TEST_F(SquareOfPipes, FirstPathsAreThoseOfSingleSearches) {
  ZcPDList<ZcDbPipeGraphPath> paths;
  graph.FindFirstPaths(NodeAt(-500, 0), paths);
  ASSERT_EQ(paths.GetLength(), graph.Nodes().GetLength());
  for (std::int32_t i = 0; i < paths.GetLength(); ++i) {
    ZcPDList<ZcDbPipeGraphPath> single;
    NodeAt(-500, 0)->FindPathTo(graph.Nodes().GetPData(i), single);
    EXPECT_EQ(NodesOf(paths(i)), NodesOf(single(0)));
  }
}

TEST_F(SquareOfPipes, RoutesOfFirstSightComeInSortOrder) {
  EXPECT_EQ(graph.FindPathOfFirstSight(NodeAt(-500, 0), NodeAt(2000, 1000)), 2);
  EXPECT_EQ(PipesOf(graph.FoundPaths()(0)), (Ids{entry, rightFirst, upLast}));
  EXPECT_EQ(PipesOf(graph.FoundPaths()(1)), (Ids{entry, upFirst, rightLast}));
}

TEST_F(SquareOfPipes, SortPathPutsTheShorterAndThenTheEarlierFirst) {
  graph.FindPathOfFirstSight(NodeAt(-500, 0), NodeAt(2000, 1000));
  graph.FindPath(NodeAt(0, 0), NodeAt(2000, 0));
  graph.FoundPaths().Move(0, 2);
  graph.SortPath();
  EXPECT_EQ(FirstFound().Length(), 2000);
  EXPECT_EQ(PipesOf(graph.FoundPaths()(1)), (Ids{entry, rightFirst, upLast}));
}

TEST_F(SquareOfPipes, AFoundPathCanBeTakenOff) {
  graph.FindPath(entry, branch);
  const std::unique_ptr<ZcDbPipeGraphPath> path(graph.FoundPaths().TakeOffHead());
  ASSERT_NE(path, nullptr);
  graph.FoundPaths().Reset();
  EXPECT_EQ(path->Length(), 3800);
}

TEST_F(SquareOfPipes, APipeOfSeveralEdgesIsNamedOnce) {
  Pipe({1000, 0, 0}, {1000, -500, 0});
  graph.CreateRelateGraph(entry);
  EXPECT_EQ(graph.FindPath(entry, branch), 1);
  EXPECT_EQ(PipesOf(FirstFound()), (Ids{entry, rightFirst, upLast, branch}));
  EXPECT_EQ(NodesOf(FirstFound()).size(), 4U);
}

TEST_F(SquareOfPipes, NodesOfAnotherGraphHaveNoRoute) {
  ZcDbPipeGraph other;
  other.CreateRelateGraph(entry);
  EXPECT_EQ(graph.FindPath(NodeAt(0, 0), other.FindPipeGraphNode({2000, 0, 0})), 0);
}

}  // namespace
}  // namespace zwt
