// The model of drawn risers.
#include "supply/supply_network.h"

#include <gmock/gmock.h>

#include "supply/riser_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;

class SupplyNetworkTest : public RiserTest {
 protected:
  ZcDList<ZwtVPipeData> risers;

  ZwtVPipeData& Build(AcDbObjectId entry) {
    BuildRiserData(risers, entry);
    return risers[risers.GetMaxIndex()];
  }
};

ZwtVPipeEdge Edge(double equivalent, double doorNum = 0, double userNum = 0) {
  ZwtVPipeEdge edge;
  edge.equivalent = equivalent;
  edge.doorNum = doorNum;
  edge.userNum = userNum;
  return edge;
}

TEST_F(SupplyNetworkTest, EntryWithNothingConnectedGivesOneEdgeOfZeros) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  const ZwtVPipeData& riser = Build(entry);
  ASSERT_EQ(riser.GetLength(), 1);
  const ZwtVPipeEdge& edge = riser.GetAt(0);
  EXPECT_EQ(edge.pipeId, entry);
  EXPECT_TRUE(edge.branchId.isNull());
  EXPECT_EQ(edge.length, 3000);
  EXPECT_EQ(edge.material, L"");
  EXPECT_EQ(edge.equivalent + edge.doorNum + edge.userNum + edge.ration + edge.kh + edge.time, 0);
  EXPECT_EQ(FormatSectionLabel(0, 0), L"1#-1层");
}

TEST_F(SupplyNetworkTest, SectionsTakeTheirBranchesInWalkingOrder) {
  const AcDbObjectId entry = AddLine(0, 3);
  const ZwtVPipeData& riser = Build(entry);
  ASSERT_EQ(riser.GetLength(), 3);
  for (int position = 0; position < 3; ++position) {
    const ZwtVPipeEdge& edge = riser.GetAt(position);
    EXPECT_EQ(edge.material, L"PP-R管(S5)");
    EXPECT_EQ(edge.doorNum, 2);
    EXPECT_EQ(edge.userNum, 3.5);
    EXPECT_EQ(edge.equivalent, 4);
    EXPECT_EQ(edge.ration, 250);
    EXPECT_EQ(edge.kh, 2.8);
    EXPECT_EQ(edge.time, 24);
  }
}

TEST_F(SupplyNetworkTest, SectionWithoutABranchStillGetsAnEdge) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  AddRiser(0, 1);
  AddBranch(0, 1);
  const ZwtVPipeData& riser = Build(entry);
  ASSERT_EQ(riser.GetLength(), 2);
  EXPECT_EQ(riser.GetAt(0).material, L"");
  EXPECT_EQ(riser.GetAt(0).equivalent, 0);
  EXPECT_EQ(riser.GetAt(1).equivalent, 4);
}

TEST_F(SupplyNetworkTest, OfTwoBranchesTheLastInConnectionOrderCounts) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  AddBranch(0, 0);
  Branch second;
  second.equivalent = L"9";
  second.doorNum = L"1";
  second.material = L"铜管";
  const AcDbObjectId last = AddBranch(0, 0, second);
  const ZwtVPipeEdge& edge = Build(entry).GetAt(0);
  EXPECT_EQ(edge.branchId, last);
  EXPECT_EQ(edge.equivalent, 9);
  EXPECT_EQ(edge.doorNum, 1);
  EXPECT_EQ(edge.material, L"铜管");
}

TEST_F(SupplyNetworkTest, MissingAttributeReadsAsZeroNeverAsTheOneBefore) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  WorkingDrawing().AddPipe({0, 1000, 0}, {500, 1000, 0},
                           {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"支管"}, {L"DoorNum", L"7"}});
  const ZwtVPipeEdge& edge = Build(entry).GetAt(0);
  EXPECT_EQ(edge.doorNum, 7);
  EXPECT_EQ(edge.userNum, 0);
  EXPECT_EQ(edge.equivalent, 0);
  EXPECT_EQ(edge.time, 0);
}

TEST_F(SupplyNetworkTest, ForkGivesEdgesOfBothArmsInOneList) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  const AcDbObjectId left = AddRiser(0, 1);
  const AcDbObjectId right = WorkingDrawing().AddPipe({0, 3000, 0}, {1000, 6000, 0},
                                                      {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  const AcDbObjectId leftTop = AddRiser(0, 2);
  const ZwtVPipeData& riser = Build(entry);
  ASSERT_EQ(riser.GetLength(), 4);
  EXPECT_EQ(riser.GetAt(1).pipeId, left);
  EXPECT_EQ(riser.GetAt(2).pipeId, right);
  EXPECT_EQ(riser.GetAt(3).pipeId, leftTop);
}

TEST_F(SupplyNetworkTest, FurtherEntryEndsTheWalkOnThatSide) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  AddRiser(0, 1, L"入口立管");
  AddRiser(0, 2);
  EXPECT_EQ(Build(entry).GetLength(), 1);
}

TEST_F(SupplyNetworkTest, ClosedCircuitOfRisersEnds) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  AddRiser(0, 1);
  WorkingDrawing().AddPipe({0, 6000, 0}, {0, 3000, 1000}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  WorkingDrawing().AddPipe({0, 3000, 1000}, {0, 3000, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  EXPECT_EQ(Build(entry).GetLength(), 4);
}

TEST_F(SupplyNetworkTest, ErasedEntryAddsAnEmptyRiser) {
  const AcDbObjectId entry = AddRiser(0, 0, L"入口立管");
  WorkingDrawing().Erase(WorkingDrawing().IndexOf(entry));
  EXPECT_EQ(Build(entry).GetLength(), 0);
}

TEST_F(SupplyNetworkTest, EntriesSortByTheXOfTheirEndPoint) {
  ZcDbObjectIdList entries;
  const AcDbObjectId at30 = AddRiser(30, 0, L"入口立管");
  const AcDbObjectId at10 = AddRiser(10, 0, L"入口立管");
  const AcDbObjectId at20 = AddRiser(20, 0, L"入口立管");
  entries.Append(at30);
  entries.Append(at10);
  entries.Append(at20);
  entries.Sort(CompareEndPointX);
  EXPECT_EQ(entries.GetAt(0), at10);
  EXPECT_EQ(entries.GetAt(1), at20);
  EXPECT_EQ(entries.GetAt(2), at30);
}

TEST_F(SupplyNetworkTest, EntriesOfTheSameXKeepTheirOrderOfSelection) {
  ZcDbObjectIdList entries;
  const AcDbObjectId upper = AddRiser(10, 5, L"入口立管");
  const AcDbObjectId lower = AddRiser(10, 0, L"入口立管");
  entries.Append(upper);
  entries.Append(lower);
  entries.Sort(CompareEndPointX);
  EXPECT_EQ(entries.GetAt(0), upper);
  EXPECT_EQ(entries.GetAt(1), lower);
  EXPECT_EQ(CompareEndPointX(upper, lower), -1);
  EXPECT_EQ(CompareEndPointX(AcDbObjectId{}, AcDbObjectId{}), -1);
}

TEST(VPipeData, SumsEquivalentsWhateverTheHouseholds) {
  ZwtVPipeData riser;
  for (const double equivalent : {2.0, 3.0, 4.0}) riser.Append(Edge(equivalent, 5));
  riser.MoveTo(1);
  EXPECT_EQ(riser.SumEquivalent(0), 9);
  EXPECT_EQ(riser.SumEquivalent(2), 4);
  EXPECT_EQ(riser.SumEquivalent(3), 0);
  EXPECT_EQ(riser.GetCur(), 1);
}

TEST(VPipeData, SumsPersonsAsHouseholdsTimesPersons) {
  ZwtVPipeData riser;
  riser.Append(Edge(0, 2, 3.5));
  riser.Append(Edge(0, 3, 3));
  EXPECT_EQ(riser.SumUsers(0), 16);
}

TEST(VPipeData, AddsForwardFromThePosition) {
  ZwtVPipeData riser;
  for (const double equivalent : {0.1, 0.2, 0.3, 0.7}) riser.Append(Edge(equivalent));
  EXPECT_EQ(riser.SumEquivalent(0), ((0.1 + 0.2) + 0.3) + 0.7);
  EXPECT_EQ(riser.SumEquivalent(1), (0.2 + 0.3) + 0.7);
}

TEST(SectionLabel, ReadsBack) {
  std::int32_t riser = -1;
  std::int32_t position = -1;
  EXPECT_EQ(FormatSectionLabel(1, 2), L"2#-3层");
  EXPECT_TRUE(ParseSectionLabel(L"2#-3层", riser, position));
  EXPECT_EQ(riser, 1);
  EXPECT_EQ(position, 2);
}

TEST(SectionLabel, WithoutOneOfItsMarksIsNone) {
  std::int32_t riser = -1;
  std::int32_t position = -1;
  for (const wchar_t* text : {L"编号", L"2#3层", L"2-3层", L"2#-3", L""}) {
    EXPECT_FALSE(ParseSectionLabel(text, riser, position));
  }
}

}  // namespace
}  // namespace zwt::test
