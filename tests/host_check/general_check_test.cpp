// Findings about geometry: each in a drawing with it and in one without.
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"
#include "host_check/checked_drawing.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GeneralCheck : public CheckedDrawing {};

TEST_F(GeneralCheck, AnEmptyDrawingAndOnePipeShowNothing) {
  EXPECT_THAT(Kinds(), IsEmpty());
  Pipe({0, 0, 0}, {1000, 0, 0});
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(GeneralCheck, AFreeEndThatMissesAPipeIsAGap) {
  const auto main = Pipe({0, 0, 0}, {5000, 0, 0});
  const auto branch = Pipe({1000, 12.5, 0}, {1000, 900, 0});
  EXPECT_EQ(main, 0x40U);
  ExpectFinding(Only("gap"), L"管端与管道 40 相距 12.5 mm，未连接", {1000, 12.5, 0}, {branch, main});
}

TEST_F(GeneralCheck, AGapIsMoreThanAMillimetreAndAtMostFifty) {
  Pipe({0, 0, 0}, {5000, 0, 0});
  Pipe({1000, 1, 0}, {1000, 900, 0});
  Pipe({2000, 50.1, 0}, {2000, 900, 0});
  EXPECT_THAT(Kinds(), IsEmpty());
  Pipe({3000, 1.001, 0}, {3000, 900, 0});
  Pipe({4000, 50, 0}, {4000, 900, 0});
  EXPECT_THAT(Kinds(), ElementsAre("gap", "gap"));
}

TEST_F(GeneralCheck, TwoEndsThatFaceEachOtherAreOneGap) {
  const auto left = Pipe({0, 0, 0}, {1000, 0, 0});
  const auto right = Pipe({1020, 0, 0}, {2000, 0, 0});
  ExpectFinding(Only("gap"), L"管端与管道 42 相距 20 mm，未连接", {1000, 0, 0}, {left, right});
}

TEST_F(GeneralCheck, BothEndsOfAPipeMayMissTheSameOne) {
  Pipe({0, 0, 0}, {5000, 0, 0});
  Pipe({1000, 10, 0}, {4000, 10, 0});
  EXPECT_THAT(Kinds(), ElementsAre("gap", "gap"));
}

TEST_F(GeneralCheck, PipesOfTwoSystemsMissEachOtherOnPurpose) {
  Pipe({0, 0, 0}, {5000, 0, 0}, {{L"WtSystem", L"给水"}});
  const auto drain = Pipe({1000, 20, 0}, {1000, 900, 0}, {{L"WtSystem", L"污水"}});
  EXPECT_THAT(Kinds(), IsEmpty());
  Set(drain, L"WtSystem", L"给水");
  EXPECT_THAT(Kinds(), ElementsAre("gap"));
}

TEST_F(GeneralCheck, TheFreeEndOfAShortStubIsNoGap) {
  Pipe({0, 0, 0}, {5000, 0, 0});
  Pipe({1000, 0, 0}, {1000, 30, 0});
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(GeneralCheck, PipesOnTopOfEachOtherOverlap) {
  const auto lower = Pipe({0, 0, 0}, {5000, 0, 0});
  const auto upper = Pipe({3000, 0, 0}, {8000, 0, 0});
  ExpectFinding(Only("overlap"), L"与管道 40 重叠 2000 mm", {4000, 0, 0}, {upper, lower});
}

TEST_F(GeneralCheck, ThreeCopiesOfAPipeAreTwoOverlaps) {
  const auto first = Pipe({0, 0, 0}, {500, 400, 0});
  const auto second = Pipe({500, 400, 0}, {0, 0, 0});
  const auto third = Pipe({0, 0, 0}, {500, 400, 0});
  const std::vector<Finding> found = Found("overlap");
  ASSERT_EQ(found.size(), 2U);
  ExpectFinding(found[0], L"与管道 40 重叠 640.3 mm", {250, 200, 0}, {second, first});
  ExpectFinding(found[1], L"与管道 40 重叠 640.3 mm", {250, 200, 0}, {third, first});
}

TEST_F(GeneralCheck, PipesInARowTeesAndCrossingsDoNotOverlap) {
  Pipe({0, 0, 0}, {1000, 0, 0});
  Pipe({999, 0, 0}, {2000, 0, 0});      // a millimetre too far
  Pipe({500, 0, 0}, {500, 800, 0});     // tee
  Pipe({1500, 0, 0}, {3500, 100, 0});   // a flat tee
  Pipe({200, -500, 0}, {200, 500, 0});  // crossing
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(GeneralCheck, AMillimetreIsNoLength) {
  const auto none = Pipe({10, 20, 0}, {10, 20, 0});
  const auto little = Pipe({500, 0, 0}, {500.44, 0, 0});
  Pipe({900, 0, 0}, {902, 0, 0});
  const std::vector<Finding> found = CheckDrawing(drawing);
  ASSERT_THAT(Kinds(), ElementsAre("zero-length", "zero-length"));
  ExpectFinding(found[0], L"管道长度为 0", {10, 20, 0}, {none});
  ExpectFinding(found[1], L"管道长度仅 0.4 mm，不成管段", {500, 0, 0}, {little});
}

TEST_F(GeneralCheck, AnEndAboveAPipeMeetsItOnlyInPlan) {
  const auto main = Pipe({0, 0, 0}, {5000, 0, 0});
  const auto above = Pipe({2000, 0, 2800}, {2000, 900, 2800});
  ExpectFinding(Only("plan-only"), L"管端与管道 40 仅在平面上相接，标高相差 2800 mm", {2000, 0, 2800},
                {above, main});
}

TEST_F(GeneralCheck, TwoEndsOneAboveTheOtherAreOneFinding) {
  const auto low = Pipe({0, 0, 0}, {1000, 0, 0});
  const auto high = Pipe({1000, 0, 30}, {2000, 0, 30});
  ExpectFinding(Only("plan-only"), L"管端与管道 42 仅在平面上相接，标高相差 30 mm", {1000, 0, 0},
                {low, high});
  EXPECT_THAT(Kinds(), ElementsAre("plan-only"));
}

TEST_F(GeneralCheck, TheTopOfARiserMeetsItsOwnSectionsInSpace) {
  Pipe({0, 0, 0}, {0, 0, 3000});
  Pipe({0, 0, 3000}, {0, 0, 6000});
  Pipe({0, 0, 1500}, {1000, 0, 1500});
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(GeneralCheck, AnErasedPipeIsNoneOfTheDrawing) {
  Pipe({0, 0, 0}, {5000, 0, 0});
  const auto copy = Pipe({0, 0, 0}, {5000, 0, 0});
  EXPECT_THAT(Kinds(), ElementsAre("overlap"));
  Erase(copy);
  EXPECT_THAT(Kinds(), IsEmpty());
}

/// Whether an end of a pipe is free and how far the nearest pipe is that it does not connect to, by looking
/// at all pipes; infinite where it is not free.
double MissByScan(const Drawing& drawing, std::int32_t pipe, const AcGePoint3d& end) {
  const std::vector<std::int32_t> connected = drawing.GetConnections().ConnectedTo(pipe);
  double nearest = std::numeric_limits<double>::infinity();
  for (const std::int32_t other : drawing.Pipes()) {
    if (other == pipe) continue;
    const double distance = DistanceTo(drawing.CurveOf(other), end);
    if (distance <= kTouch + kTouchRounding) return std::numeric_limits<double>::infinity();
    if (!testing::Value(connected, testing::Contains(other))) nearest = std::min(nearest, distance);
  }
  return nearest;
}

TEST_F(GeneralCheck, GapsAgreeWithTheScanOfAllPairs) {
  std::mt19937 random(5);
  const auto coordinate = [&random] { return static_cast<double>(random() % 60) * 13; };
  std::size_t gaps = 0;
  for (int round = 0; round < 60; ++round) {
    Drawing sheet;
    for (int i = 0; i < 25; ++i) {
      const AcGePoint3d start{coordinate(), coordinate(), 0};
      const AcGePoint3d end =
          random() % 2 == 0 ? AcGePoint3d{coordinate(), start.y, 0} : AcGePoint3d{start.x, coordinate(), 0};
      if (Distance(start, end) > 100) sheet.AddPipe(start, end);
    }
    std::set<std::pair<std::uint64_t, std::uint64_t>> pairs;
    for (const Finding& finding : CheckDrawing(sheet)) {
      if (finding.kind == "gap") pairs.insert(std::minmax(finding.handles.at(0), finding.handles.at(1)));
    }
    gaps += pairs.size();
    for (const std::int32_t pipe : sheet.Pipes()) {
      const std::uint64_t handle = sheet.Entity(pipe).handle;
      const auto isOfPipe = [handle](const auto& pair) {
        return pair.first == handle || pair.second == handle;
      };
      const double miss = std::min(MissByScan(sheet, pipe, sheet.PipeOf(pipe).start),
                                   MissByScan(sheet, pipe, sheet.PipeOf(pipe).end));
      const bool isFound = std::any_of(pairs.begin(), pairs.end(), isOfPipe);
      if (miss <= 50) {
        EXPECT_TRUE(isFound) << round << " " << handle;
      }
    }
    for (const auto& [first, second] : pairs) {
      double miss = std::numeric_limits<double>::infinity();
      for (const std::uint64_t handle : {first, second}) {
        const std::int32_t pipe = sheet.FindHandle(handle);
        miss = std::min({miss, MissByScan(sheet, pipe, sheet.PipeOf(pipe).start),
                         MissByScan(sheet, pipe, sheet.PipeOf(pipe).end)});
      }
      EXPECT_LE(miss, 50) << round << " " << first << " " << second;
    }
  }
  EXPECT_GT(gaps, 100U) << "too few to compare";
}

TEST_F(GeneralCheck, AThousandPipesInOnePointAreQuiet) {
  for (int i = 0; i < 1000; ++i) {
    const double angle = i * 0.006;
    Pipe({0, 0, 0}, {9000 * std::cos(angle), 9000 * std::sin(angle), 0});
  }
  EXPECT_THAT(Found("overlap"), IsEmpty());
}

std::string PolylineFile(const std::string& body) {
  return "0\nSECTION\n2\nENTITIES\n" + body + "0\nENDSEC\n0\nEOF\n";
}

std::string LightPipe(const std::string& handle, const std::string& points) {
  return "0\nLWPOLYLINE\n5\n" + handle + "\n8\n0\n70\n0\n" + points + "1001\nZWT_PIPE\n1000\nKind\n1000\n0\n";
}

TEST(GeneralCheckOfFiles, BentPipesOverlapBetweenTheirEnds) {
  const auto drawing = ParseDrawing(PolylineFile(
      LightPipe("A", "10\n0\n20\n0\n10\n1000\n20\n0\n10\n1000\n20\n2000\n10\n0\n20\n2000\n") +
      LightPipe("B", "10\n3000\n20\n0\n10\n1000\n20\n0\n10\n1000\n20\n500\n10\n3000\n20\n500\n")));
  const std::vector<Finding> found = CheckDrawing(*drawing);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].kind, "overlap");
  ExpectFinding(found[0], L"与管道 A 重叠 500 mm", {1000, 250, 0}, {0xB, 0xA});
}

TEST(GeneralCheckOfFiles, TheSameArcTwiceIsAnOverlap) {
  const std::string arc = "10\n0\n20\n0\n42\n1\n10\n1000\n20\n0\n";
  const std::string other = "10\n0\n20\n0\n42\n-1\n10\n1000\n20\n0\n";
  EXPECT_EQ(CheckDrawing(*ParseDrawing(PolylineFile(LightPipe("A", arc) + LightPipe("B", arc)))).size(), 1U);
  EXPECT_THAT(CheckDrawing(*ParseDrawing(PolylineFile(LightPipe("A", arc) + LightPipe("B", other)))),
              IsEmpty());
}

TEST(GeneralCheckOfFiles, PipesOutsideOfTheModelAreNamed) {
  const std::string pipe =
      "10\n5.0\n20\n6.0\n30\n0\n11\n7\n21\n8\n31\n0\n1001\nZWT_PIPE\n1000\nKind\n1000\n0\n";
  const auto drawing =
      ParseDrawing("0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\n卫生间\n0\nLINE\n5\n2A\n8\n0\n" + pipe +
                   "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nLINE\n5\n2B\n8\n0\n67\n1\n" + pipe +
                   "0\nENDSEC\n0\nEOF\n");
  const std::vector<Finding> found = CheckDrawing(*drawing);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].kind, "in-block");
  ExpectFinding(found[0], L"管道画在图块“卫生间”内，不参加计算", {5, 6, 0}, {0x2A});
  EXPECT_EQ(found[1].kind, "in-paper-space");
  ExpectFinding(found[1], L"管道画在图纸空间，不参加计算", {5, 6, 0}, {0x2B});
}

}  // namespace
}  // namespace zwt::test
