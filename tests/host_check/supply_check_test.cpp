// Findings about supply risers: each in a drawing with it and in one without.
#include "host_check/checked_drawing.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A riser of storeys of 3 m with a branch at half the height of each.
class SupplyCheck : public CheckedDrawing {
 protected:
  static constexpr double kStorey = 3000;

  std::uint64_t Section(double x, int floor, const CString& role = L"立管") {
    return Pipe({x, floor * kStorey, 0}, {x, (floor + 1) * kStorey, 0},
                {{L"WtSystem", L"给水"}, {L"ELS_TYPE", role}, {L"Material", L"镀锌钢管"}});
  }
  std::uint64_t Branch(double x, double height, const CString& material = L"铜管") {
    return Pipe(
        {x, height, 0}, {x + 900, height, 0},
        {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"支管"}, {L"Material", material}, {L"Equivalent", L"4"}});
  }
  void DrawRiser(double x = 0, int storeys = 3) {
    for (int floor = 0; floor < storeys; ++floor) {
      sections.push_back(Section(x, floor, floor == 0 ? L"入口立管" : L"立管"));
      branches.push_back(Branch(x, (floor + 0.5) * kStorey));
    }
  }

  std::vector<std::uint64_t> sections;
  std::vector<std::uint64_t> branches;
};

TEST_F(SupplyCheck, AWholeRiserIsQuiet) {
  settings.materials = {L"镀锌钢管", L"铜管"};
  DrawRiser(0);
  DrawRiser(9000);
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(SupplyCheck, OfTwoBranchesOnASectionTheLastCounts) {
  DrawRiser();
  const auto second = Branch(0, 1.2 * kStorey);
  ExpectFinding(Only("two-branches"), L"立管 43 上接有 2 根支管，计算只取最后一根 47", {0, 4500, 0},
                {sections[1], branches[1], second});
  EXPECT_THAT(Found("tall-riser"), IsEmpty());
}

TEST_F(SupplyCheck, ARiserDrawnAsOnePipeIsSaidToBeTall) {
  const auto riser = Pipe({0, 0, 0}, {0, 9000, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"入口立管"}});
  const auto first = Branch(0, 1000);
  const auto second = Branch(0, 4000);
  const auto third = Branch(0, 7000);
  ExpectFinding(Only("tall-riser"), L"立管 40 为一整根管，跨越多层，接有 3 根支管，计算只取最后一根 44",
                {0, 4500, 0}, {riser, first, second, third});
  EXPECT_THAT(Found("two-branches"), IsEmpty());
}

TEST_F(SupplyCheck, ARiserThatForksIsOneLineToTheCalculation) {
  DrawRiser(0, 2);
  const auto aside = Pipe({0, 3000, 0}, {4000, 3000, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  const Finding fork = Only("riser-fork");
  ExpectFinding(fork, L"立管 40 分为 2 根立管，计算仍按一根立管依次排列各段", {0, 1500, 0},
                {sections[0], sections[1], aside});
  Erase(aside);
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(SupplyCheck, ASectionWithoutABranchHasNoData) {
  DrawRiser();
  Erase(branches[1]);
  ExpectFinding(Only("no-branch"), L"立管 43 未接支管，该段没有管材和用水数据，均按 0 计", {0, 4500, 0},
                {sections[1]});
  EXPECT_THAT(Kinds(), ElementsAre("no-branch"));
}

TEST_F(SupplyCheck, ABranchWithoutMaterialLeavesItsSectionWithoutDiameter) {
  DrawRiser();
  Set(branches[1], L"Material", L"");
  ExpectFinding(Only("no-material"), L"支管 44 未填管材，该段选不出管径", {450, 4500, 0},
                {branches[1], sections[1]});
}

TEST_F(SupplyCheck, AMaterialThatTheFileDoesNotListIsNamed) {
  DrawRiser();
  settings.materials = {L"镀锌钢管"};
  const std::vector<Finding> found = Found("unknown-material");
  ASSERT_EQ(found.size(), 3U);
  ExpectFinding(found[1], L"管道 44 的管材“铜管”不在管材数据文件中", {450, 4500, 0}, {branches[1]});
  settings.materials->push_back(L"铜管");
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(SupplyCheck, MaterialsAreNotJudgedWhereTheListIsNotKnown) {
  DrawRiser();
  Set(branches[0], L"Material", L"竹管");
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(SupplyCheck, EquivalentsOfZeroUpToTheTopGiveNoFlow) {
  DrawRiser();
  Set(branches[1], L"Equivalent", L"0");
  EXPECT_THAT(Kinds(), IsEmpty());  // the storey above has some
  Set(branches[2], L"Equivalent", L"");
  ExpectFinding(Only("zero-equivalent"), L"自入口起第 2 段立管 43 起当量总数为 0，设计秒流量算不出",
                {0, 4500, 0}, {sections[1], sections[2]});
}

TEST_F(SupplyCheck, ASecondEntryEndsTheWalk) {
  DrawRiser(0, 2);
  const auto other = Section(0, 2, L"入口立管");
  Branch(0, 2.5 * kStorey);
  const std::vector<Finding> found = Found("second-entry");
  ASSERT_EQ(found.size(), 1U);
  ExpectFinding(found[0], L"立管 43 又接到入口立管 45，计算到此为止，不再往前走", {0, 4500, 0},
                {sections[1], other});
}

TEST_F(SupplyCheck, OtherSystemsAndOtherKindsAreNotWalked) {
  const auto entry = Section(0, 0, L"入口立管");
  EXPECT_THAT(Kinds(), ElementsAre("no-branch", "zero-equivalent"));
  Set(entry, L"Kind", L"1");
  EXPECT_THAT(Kinds(), IsEmpty());
  Set(entry, L"Kind", L"0");
  Set(entry, L"WtSystem", L"热水");
  EXPECT_THAT(Kinds(), ElementsAre("no-branch", "zero-equivalent"));
  Set(entry, L"WtSystem", L"雨水");
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(SupplyCheck, FindingsComeInDrawingOrder) {
  DrawRiser(0, 2);
  DrawRiser(9000, 2);
  Set(branches[3], L"Material", L"");
  Set(branches[0], L"Material", L"");
  const std::vector<Finding> found = CheckDrawing(drawing);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].handles[0], branches[0]);
  EXPECT_EQ(found[1].handles[0], branches[3]);
}

}  // namespace
}  // namespace zwt::test
