#include "host/drawing/connections.h"

#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "host/drawing/drawing.h"
#include "host/dxf/dxf_file.h"

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

/// A drawing of polylines (their groups) and straight pipes from point to point.
std::unique_ptr<Drawing> Polylines(const std::vector<std::string>& polylines) {
  std::string entities;
  for (const std::string& groups : polylines) {
    entities += "0\nLWPOLYLINE\n8\n0\n" + groups + "1001\nZWT_PIPE\n1000\nKind\n1000\n0\n";
  }
  return zwt::ParseDrawing("0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n");
}

TEST(Connections, APolylineInATiltedPlaneConnectsWhereItLiesInSpace) {
  // Extruded along -Y: its X is the world's X, its Y the world's Z, and it lies 70 mm towards -Y.
  const auto drawing = Polylines(
      {"70\n0\n38\n70\n210\n0\n220\n-1\n230\n0\n10\n0\n20\n0\n10\n0\n20\n3000\n10\n500\n20\n3000\n"});
  EXPECT_EQ(drawing->PipeOf(0).end, (AcGePoint3d{500, -70, 3000}));
  const std::int32_t atEnd = drawing->IndexOf(drawing->AddPipe({500, -71, 3000}, {500, -900, 3000}));
  const std::int32_t between = drawing->IndexOf(drawing->AddPipe({-800, -70, 1500}, {0, -70, 1500}));
  drawing->AddPipe({500, 70, 3000}, {500, 900, 3000});        // on the other side of the plane
  drawing->AddPipe({500, -71.001, 3000}, {500, -900, 3900});  // a thousandth too far
  EXPECT_THAT(drawing->GetConnections().ConnectedTo(0), ElementsAre(atEnd, between));
}

TEST(Connections, AnArcInATiltedPlaneConnectsAnywhereAlongIt) {
  // A half circle of radius 100 in the plane at 45 degrees: its top is at 100 along the slope.
  const auto drawing =
      Polylines({"70\n0\n210\n0\n220\n-1\n230\n1\n10\n100\n20\n0\n42\n1\n10\n-100\n20\n0\n"});
  const double slope = 100 / std::sqrt(2.0);
  const std::int32_t atTop = drawing->IndexOf(drawing->AddPipe({0, slope, slope}, {0, 900, 900}));
  drawing->AddPipe({0, slope + 1.5, slope}, {0, 900, 0});
  drawing->AddPipe({0, 0, 0}, {0, 50, 0});  // the centre
  EXPECT_THAT(drawing->GetConnections().ConnectedTo(0), ElementsAre(atTop));
}

TEST(Connections, AMillimetreIsOneOnPolylinesToo) {
  for (const double far : {0.0, 1e9, -1e9}) {
    const std::string x = std::to_string(far);
    const std::string corner = std::to_string(far + 1000);
    const auto drawing = Polylines({"70\n0\n10\n" + x + "\n20\n" + x + "\n10\n" + corner + "\n20\n" + x +
                                    "\n10\n" + corner + "\n20\n" + corner + "\n"});
    const std::int32_t atCorner =
        drawing->IndexOf(drawing->AddPipe({far + 1001, far, 0}, {far + 1900, far, 0}));
    drawing->AddPipe({far + 1001.001, far + 500, 0}, {far + 1900, far + 500, 0});
    const std::int32_t between =
        drawing->IndexOf(drawing->AddPipe({far + 999, far + 700, 0}, {far + 100, far + 700, 0}));
    EXPECT_THAT(drawing->GetConnections().ConnectedTo(0), ElementsAre(atCorner, between)) << far;
  }
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
