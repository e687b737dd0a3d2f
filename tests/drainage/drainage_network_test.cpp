// The model of a drawn stack.
#include "drainage/drainage_network.h"

#include <gmock/gmock.h>

#include "drainage/stack_fixture.h"

namespace zwt::test {
namespace {

class DrainageNetworkTest : public StackTest {
 protected:
  ZwtPsPipeNetwork network;
};

TEST_F(DrainageNetworkTest, ChainGivesARowForEachBranchFromTheSelectedEnd) {
  const AcDbObjectId end = AddStack(3);
  EXPECT_EQ(network.BuildFromEndPipe(end), 1);
  ASSERT_EQ(network.edges.GetLength(), 3);
  EXPECT_EQ(network.endPipeId, end);
  EXPECT_EQ(network.edges.GetAt(0).riserId, end);
  const ZwtPsPipeEdge& row = network.edges.GetAt(2);
  EXPECT_EQ(row.equivalent, 4.5);
  EXPECT_EQ(row.flux, 1.5);
  EXPECT_EQ(row.qmax, 1.5);
  EXPECT_EQ(row.maxDn, 100);
  EXPECT_EQ(row.material, L"PVC-U排水管");
}

TEST_F(DrainageNetworkTest, OfTwoBranchesOnASegmentTheLastCountsWhole) {
  const AcDbObjectId end = AddRiser(0, L"入口立管");
  AddBranch(0);
  DrainBranch second;
  second.equivalent = L"9";
  second.maxDn = L"50";
  second.material = L"铸铁管";
  const AcDbObjectId last = AddBranch(0, second);
  network.BuildFromEndPipe(end);
  ASSERT_EQ(network.edges.GetLength(), 1);
  EXPECT_EQ(network.edges.GetAt(0).branchId, last);
  EXPECT_EQ(network.edges.GetAt(0).equivalent, 9);
  EXPECT_EQ(network.edges.GetAt(0).maxDn, 50);
  EXPECT_EQ(network.edges.GetAt(0).material, L"铸铁管");
}

TEST_F(DrainageNetworkTest, SegmentWithoutABranchTakesNoRow) {
  const AcDbObjectId end = AddRiser(0, L"入口立管");
  const AcDbObjectId bare = AddRiser(1);
  AddRiser(2);
  AddBranch(0);
  AddBranch(2);
  network.BuildFromEndPipe(end);
  ASSERT_EQ(network.edges.GetLength(), 2);
  EXPECT_NE(network.edges.GetAt(0).riserId, bare);
  EXPECT_NE(network.edges.GetAt(1).riserId, bare);
}

TEST_F(DrainageNetworkTest, EndWithNothingConnectedGivesNoRow) {
  EXPECT_EQ(network.BuildFromEndPipe(AddRiser(0, L"入口立管")), 1);
  EXPECT_EQ(network.edges.GetLength(), 0);
}

TEST_F(DrainageNetworkTest, ArmsOfAForkInterleaveLevelByLevel) {
  const AcDbObjectId end = AddRiser(0, L"入口立管");
  const AcDbObjectId left = AddRiser(1);
  const AcDbObjectId right = WorkingDrawing().AddPipe({0, 3000, 0}, {-3000, 6000, 0},
                                                      {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  const AcDbObjectId leftTop = AddRiser(2);
  const AcDbObjectId rightTop = WorkingDrawing().AddPipe({-3000, 6000, 0}, {-3000, 9000, 0},
                                                         {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  AddBranch(1);
  AddBranch(2);
  for (const double y : {4500.0, 7500.0}) {
    const double x = y < 6000 ? -1500 : -3000;
    WorkingDrawing().AddPipe({x, y, 0}, {x - 2000, y, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"支管"}});
  }
  network.BuildFromEndPipe(end);
  ASSERT_EQ(network.edges.GetLength(), 4);
  EXPECT_EQ(network.edges.GetAt(0).riserId, left);
  EXPECT_EQ(network.edges.GetAt(1).riserId, right);
  EXPECT_EQ(network.edges.GetAt(2).riserId, leftTop);
  EXPECT_EQ(network.edges.GetAt(3).riserId, rightTop);
}

TEST_F(DrainageNetworkTest, ClosedCircuitOfRisersEnds) {
  const AcDbObjectId end = AddRiser(0, L"入口立管");
  AddRiser(1);
  WorkingDrawing().AddPipe({0, 6000, 0}, {900, 3000, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  WorkingDrawing().AddPipe({900, 3000, 0}, {0, 3000, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  EXPECT_EQ(network.BuildFromEndPipe(end), 1);
}

TEST_F(DrainageNetworkTest, VentTypeIsReadWhenItIsAsked) {
  const AcDbObjectId end = AddRiser(0, L"入口立管", L"伸顶通气");
  network.BuildFromEndPipe(end);
  EXPECT_EQ(network.GetVentType(), L"伸顶通气");
  ZwtSetEntityFields(end, L"TQType", L"专用通气");
  EXPECT_EQ(network.GetVentType(), L"专用通气");
  EXPECT_EQ(ZwtPsPipeNetwork().GetVentType(), L"");
}

}  // namespace
}  // namespace zwt::test
