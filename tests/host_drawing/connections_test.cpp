#include "host/drawing/connections.h"

#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "host/drawing/drawing.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zwt::Drawing;

/// A drawing of straight pipes; entity i is line i.
struct Lines {
  Drawing drawing;

  std::int32_t Add(const AcGePoint3d& start, const AcGePoint3d& end) {
    return drawing.IndexOf(drawing.AddPipe(start, end));
  }
  std::vector<std::int32_t> ConnectedTo(std::int32_t pipe) const {
    return drawing.GetConnections().ConnectedTo(pipe);
  }
};

TEST(Connections, EndsConnectWithinOneMillimetreAndNotBeyond) {
  Lines lines;
  lines.Add({0, 0, 0}, {100, 0, 0});
  lines.Add({101, 0, 0}, {200, 0, 0});
  lines.Add({0, 1.001, 0}, {0, 50, 0});
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1));
  EXPECT_THAT(lines.ConnectedTo(1), ElementsAre(0));
  EXPECT_THAT(lines.ConnectedTo(2), IsEmpty());
}

TEST(Connections, HeightCountsAsMuchAsPlan) {
  Lines lines;
  lines.Add({0, 0, 0}, {100, 0, 0});
  lines.Add({100, 0, 2}, {200, 0, 2});
  lines.Add({0, 0.7, 0.7}, {0, 100, 0});
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(2));
}

TEST(Connections, ATeeInTheMiddleConnectsBothWays) {
  Lines lines;
  lines.Add({0, 0, 0}, {0, 9000, 0});
  lines.Add({1, 3000, 0}, {500, 3000, 0});
  lines.Add({1.001, 4000, 0}, {500, 4000, 0});
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1));
  EXPECT_THAT(lines.ConnectedTo(1), ElementsAre(0));
}

TEST(Connections, PipesThatMerelyCrossDoNotConnect) {
  Lines lines;
  lines.Add({-10, 0, 0}, {10, 0, 0});
  lines.Add({0, -10, 0}, {0, 10, 0});
  EXPECT_THAT(lines.ConnectedTo(0), IsEmpty());
}

TEST(Connections, ManyPipesInOnePointAllConnect) {
  Lines lines;
  for (int i = 0; i < 50; ++i) lines.Add({0, 0, 0}, {std::cos(i) * 100, std::sin(i) * 100, 0});
  for (int i = 0; i < 50; ++i) EXPECT_EQ(lines.ConnectedTo(i).size(), 49U);
}

TEST(Connections, APipeWithoutLengthConnectsWhereItLies) {
  Lines lines;
  lines.Add({0, 0, 0}, {100, 0, 0});
  lines.Add({50, 0.5, 0}, {50, 0.5, 0});
  lines.Add({50, 1.2, 0}, {50, 90, 0});
  EXPECT_THAT(lines.ConnectedTo(1), ElementsAre(0, 2));
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1));
}

TEST(Connections, FarFromTheOriginTheMillimetreIsStillOne) {
  for (const double far : {1e6, 1e9, -1e9}) {
    Lines lines;
    lines.Add({far, far, far}, {far + 1000, far, far});
    lines.Add({far + 500, far + 1, far}, {far + 500, far + 900, far});
    lines.Add({far + 700, far + 1.001, far}, {far + 700, far + 900, far});
    EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1)) << far;
  }
}

TEST(Connections, LongSlantingPipesConnectAnywhereAlongThem) {
  Lines lines;
  lines.Add({0, 0, 0}, {1e6, 1e6, 5e5});
  std::vector<std::int32_t> tees;
  for (int i = 1; i < 100; ++i) {
    const double t = i * 1e4;
    tees.push_back(lines.Add({t, t, t / 2}, {t + 800, t, t / 2}));
  }
  EXPECT_EQ(lines.ConnectedTo(0), tees);
}

TEST(Connections, ErasedPipesDropOutAndUndoBringsThemBack) {
  Lines lines;
  lines.Add({0, 0, 0}, {100, 0, 0});
  lines.Add({100, 0, 0}, {200, 0, 0});
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1));
  lines.drawing.Erase(1);
  EXPECT_THAT(lines.ConnectedTo(0), IsEmpty());
  lines.drawing.Undo();
  EXPECT_THAT(lines.ConnectedTo(0), ElementsAre(1));
}

TEST(Connections, AgreeWithTheScanOfAllPairs) {
  std::mt19937 random(3);
  const auto coordinate = [&random] { return static_cast<double>(random() % 40) * 0.75; };
  for (int round = 0; round < 40; ++round) {
    Lines lines;
    for (int i = 0; i < 60; ++i) {
      const AcGePoint3d start{coordinate(), coordinate(), round % 2 == 0 ? 0 : coordinate() / 10};
      lines.Add(start, random() % 3 == 0 ? AcGePoint3d{start.x, coordinate(), start.z}
                                         : AcGePoint3d{coordinate(), coordinate(), coordinate() / 10});
    }
    const auto touches = [&lines](std::int32_t a, std::int32_t b) {
      const zwt::PipeCurve curve = lines.drawing.CurveOf(b);
      return DistanceTo(curve, lines.drawing.PipeOf(a).start) <= zwt::kTouch + zwt::kTouchRounding ||
             DistanceTo(curve, lines.drawing.PipeOf(a).end) <= zwt::kTouch + zwt::kTouchRounding;
    };
    for (std::int32_t a = 0; a < 60; ++a) {
      std::vector<std::int32_t> expected;
      for (std::int32_t b = 0; b < 60; ++b) {
        if (a != b && (touches(a, b) || touches(b, a))) expected.push_back(b);
      }
      ASSERT_EQ(lines.ConnectedTo(a), expected) << round << " " << a;
    }
  }
}

TEST(Connections, FindsTheEndsOnAPipeAndThePipesAtAPoint) {
  Lines lines;
  lines.Add({0, 0, 0}, {100, 0, 0});
  lines.Add({50, 20, 0}, {50, 0, 0});
  const std::vector<zwt::PipeEnd> ends = lines.drawing.GetConnections().EndsOn(0);
  ASSERT_EQ(ends.size(), 3U);
  EXPECT_EQ(ends[2].pipe, 1);
  EXPECT_FALSE(ends[2].atStart);
  EXPECT_THAT(lines.drawing.GetConnections().PipesAt({50, 0, 0}), ElementsAre(0, 1));
  EXPECT_THAT(lines.drawing.GetConnections().PipesWithMidPoint({50, 10, 0}), ElementsAre(1));
}

}  // namespace
