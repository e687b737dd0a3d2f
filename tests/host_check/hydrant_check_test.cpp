// Findings about looped hydrant networks: each in a drawing with it and in one without.
#include "host_check/checked_drawing.h"

namespace zwt::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Two risers of three storeys between a lower and an upper main, 8 m apart.
class HydrantCheck : public CheckedDrawing {
 protected:
  static constexpr double kStorey = 3000;
  static constexpr double kBay = 8000;

  HydrantCheck() {
    mains.push_back(Main({-5000, 0, 0}, {0, 0, 0}));
    for (int riser = 0; riser < 2; ++riser) {
      const double x = riser * kBay;
      for (int storey = 0; storey <= 3; ++storey) {
        risers[riser].push_back(Riser({x, storey * kStorey, 0}, {x, (storey + 1) * kStorey, 0}));
        if (storey > 0) branches[riser].push_back(Branch(x, storey * kStorey));
      }
      Set(branches[riser].back(), L"IsTopHydrant", L"TRUE");
      Set(branches[riser].back(), L"LayerNum", L"3");
    }
    mains.push_back(Main({0, 0, 0}, {kBay, 0, 0}));
    mains.push_back(Main({0, 4 * kStorey, 0}, {kBay, 4 * kStorey, 0}));
  }

  std::uint64_t Main(const AcGePoint3d& start, const AcGePoint3d& end) {
    return Pipe(start, end, {{L"WtSystem", L"消防"}, {L"ELS_TYPE", L"干管"}});
  }
  std::uint64_t Riser(const AcGePoint3d& start, const AcGePoint3d& end) {
    return Pipe(start, end, {{L"WtSystem", L"消防"}, {L"ELS_TYPE", L"立管"}});
  }
  std::uint64_t Branch(double x, double y) {
    return Pipe({x, y, 0}, {x + 600, y, 0}, {{L"WtSystem", L"消防"}, {L"ELS_TYPE", L"支管"}});
  }

  std::vector<std::uint64_t> mains;
  std::vector<std::uint64_t> risers[2];
  std::vector<std::uint64_t> branches[2];
};

TEST_F(HydrantCheck, AWholeNetworkIsQuiet) {
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(HydrantCheck, ATopHydrantOnACornerDropsOut) {
  Erase(risers[1].back());
  ExpectFinding(
      Only("hydrant-at-corner"),
      L"顶层消火栓支管 " + Name(branches[1].back()) + L" 接在转角处，那里没有三通，不成为节点，不参加计算",
      {8000, 9000, 0}, {branches[1].back(), risers[1][2]});
}

TEST_F(HydrantCheck, ATeeBetweenTwoHydrantsCountsAsOne) {
  // A main at half the height of the second storey cuts both risers.
  for (int riser = 0; riser < 2; ++riser) {
    const double x = riser * kBay;
    Erase(risers[riser][1]);
    Riser({x, kStorey, 0}, {x, 1.5 * kStorey, 0});
    Riser({x, 1.5 * kStorey, 0}, {x, 2 * kStorey, 0});
  }
  EXPECT_THAT(Kinds(), IsEmpty());
  const auto middle = Main({0, 1.5 * kStorey, 0}, {kBay, 1.5 * kStorey, 0});
  const std::vector<Finding> found = Found("tee-without-hydrant");
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(Utf8FromWide(found[0].text), "立管上的三通没有消火栓支管，计算会把它算作一个消火栓");
  EXPECT_EQ(found[0].place, (AcGePoint3d{0, 4500, 0}));
  EXPECT_THAT(found[0].handles, Contains(middle));
}

TEST_F(HydrantCheck, ATeeBelowAllHydrantsOfARiserIsNone) {
  Riser({0, -kStorey, 0}, {0, 0, 0});
  EXPECT_THAT(Found("tee-without-hydrant"), IsEmpty());
}

TEST_F(HydrantCheck, ASectionLongerThanTheWayRoundIsTakenShorter) {
  // From the first riser to the second over a detour of 20 m, with a tee on the way that goes straight.
  Erase(mains[2]);
  const double top = 4 * kStorey;
  Main({0, top, 0}, {4000, top, 0});
  Main({4000, top, 0}, {kBay, top, 0});
  Main({4000, top, 0}, {4000, top + 1000, 0});
  const auto up = Main({0, top, 0}, {0, top + 10000, 0});
  const auto across = Main({0, top + 10000, 0}, {kBay, top + 10000, 0});
  const auto down = Main({kBay, top + 10000, 0}, {kBay, top, 0});
  const Finding finding = Only("way-round");
  EXPECT_EQ(Utf8FromWide(finding.text), "管段 55～57 长 28000 mm，绕行只有 8000 mm，计算取绕行的长度");
  EXPECT_EQ(finding.handles, (std::vector<std::uint64_t>{up, across, down}));
}

TEST_F(HydrantCheck, TwoPipesBetweenTheSameNodesAreOneSection) {
  const double top = 4 * kStorey;
  Main({0, top, 0}, {-2000, top, 0});  // makes tees of both corners
  Main({kBay, top, 0}, {kBay + 2000, top, 0});
  EXPECT_THAT(Found("double-section"), IsEmpty());
  const auto first = Main({0, top, 0}, {4000, top + 900, 0});
  const auto second = Main({4000, top + 900, 0}, {kBay, top, 0});
  ExpectFinding(Only("double-section"),
                L"管段 " + Name(first) + L"～" + Name(second) + L" 与 " + Name(mains[2]) +
                    L" 连接同样两个节点，计算只取一段",
                {2000, top + 450, 0}, {first, second, mains[2]});
  EXPECT_THAT(Found("way-round"), IsEmpty());
}

TEST_F(HydrantCheck, ARiserDrawnAsOnePipeCountsItsWholeHeight) {
  for (const std::uint64_t section : risers[0]) Erase(section);
  const auto whole = Riser({0, 0, 0}, {0, 4 * kStorey, 0});
  ExpectFinding(
      Only("tall-riser"),
      L"立管 " + Name(whole) + L" 为一整根管，跨越多层，中间接有 3 处支管，其上每个消火栓都按全长计高差",
      {0, 6000, 0}, {whole});
}

TEST_F(HydrantCheck, AnUprightMainHasNoHeight) {
  const auto entry = Main({-5000, -4000, 0}, {-5000, 0, 0});
  ExpectFinding(Only("upright-main"), L"竖管 " + Name(entry) + L" 的类型不是“立管”，计算不计其高差",
                {-5000, -2000, 0}, {entry});
  Set(entry, L"ELS_TYPE", L"立管");
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(HydrantCheck, InSpaceUprightIsAlongZ) {
  Main({-5000, -4000, 0}, {-5000, 0, 0});
  EXPECT_THAT(Kinds(), ElementsAre("upright-main"));
  const auto drop = Main({-5000, -4000, 0}, {-5000, -4000, -3000});
  EXPECT_EQ(Only("upright-main").handles, std::vector{drop});
}

TEST_F(HydrantCheck, RisersThatDifferInTheirNumberOfHydrantsAreAllNamed) {
  Set(branches[1].back(), L"LayerNum", L"4");
  ExpectFinding(Only("layer-num"), L"各立管所连接消火栓数量（LayerNum）不同：48 为 3，4F 为 4",
                {300, 9000, 0}, {branches[0].back(), branches[1].back()});
}

TEST_F(HydrantCheck, NetworksOfTheirOwnMayDiffer) {
  Riser({50000, 0, 0}, {50000, kStorey, 0});
  Riser({50000, kStorey, 0}, {50000, 2 * kStorey, 0});
  const auto top = Branch(50000, kStorey);
  Set(top, L"IsTopHydrant", L"TRUE");
  Set(top, L"LayerNum", L"1");
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(HydrantCheck, TheSecondRiserNeedsAsManyHydrantsAsGunsAreLeft) {
  settings.guns = 5;
  EXPECT_THAT(Kinds(), IsEmpty());  // three on the second riser
  settings.guns = 6;
  // The farther riser is the one at x = 8 m: its neighbour is the first.
  ExpectFinding(Only("few-joints"), L"第二根立管（顶层支管 48）只有 3 个消火栓接点，少于所需的 4 支水枪",
                {0, 9000, 0}, {branches[0].back()});
}

TEST_F(HydrantCheck, RisersAreCountedFromTheMainAlsoWhereOneEndsInAnAirValve) {
  Riser({0, 4 * kStorey, 0}, {0, 4 * kStorey + 500, 0});
  // The main comes last in drawing order, behind the free end of the riser.
  Erase(mains[0]);
  Main({-5000, 0, 0}, {0, 0, 0});
  settings.guns = 5;
  EXPECT_THAT(Found("few-joints"), IsEmpty());  // from the valve only one hydrant would be seen
  settings.guns = 6;
  EXPECT_EQ(Only("few-joints").handles, std::vector{branches[0].back()});
}

TEST_F(HydrantCheck, WithoutATopHydrantNothingIsSaid) {
  for (const auto& branch : {branches[0].back(), branches[1].back()}) Set(branch, L"IsTopHydrant", L"true");
  Main({-5000, -4000, 0}, {-5000, 0, 0});
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(HydrantCheck, ATopHydrantThatTouchesNothingIsNoNetwork) {
  const auto lone = Branch(90000, 0);
  Set(lone, L"IsTopHydrant", L"TRUE");
  EXPECT_THAT(Kinds(), IsEmpty());
}

}  // namespace
}  // namespace zwt::test
