// What the hydrant panel shows over the drawing.
#include "fire/hydrant_overlay.h"

#include <gmock/gmock.h>

#include "fire/hydrant_drawing.h"
#include "fire/hydrant_network_dialog.h"
#include "host/text/number_text.h"
#include "support/drawing_fixture.h"
#include "support/main_directory_fixture.h"
#include "support/overlay_watch.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_rings::DrawHydrants;
using testing_rings::HydrantSizes;

class HydrantOverlayTest : public DrawingTest {
 protected:
  void Calculate(const HydrantSizes& sizes, const PanelRun::UserFunction& look) {
    user.selections.push_back({DrawHydrants(sizes).mainEnd});
    run.User([&](PanelUser& hands, CDialog& panel) {
      hands.Click(hands.Find(L"水枪射流量(L/s)"));
      hands.Click(hands.Find(L"计算"));
      look(hands, panel);
    });
    RunHydrantNetworkCommand();
  }
  static const CGridCtrl& Table(PanelUser& hands, const wchar_t* name) {
    return dynamic_cast<CGridCtrl&>(hands.Find(name));
  }
  MainDirectory directory;
  PanelRun run;
};

TEST_F(HydrantOverlayTest, OpeningTellsWhichPipesARowMeans) {
  const OverlayWatch watch;
  user.selections.push_back({DrawHydrants({}).mainEnd});
  run.User([](PanelUser& hands, CDialog&) {
    const Overlay* overlay = CurrentOverlay();
    ASSERT_NE(overlay, nullptr);
    const CGridCtrl& table = Table(hands, L"sectionTable");
    ASSERT_EQ(static_cast<int>(overlay->sections.size()), table.GetRowCount() - 1);
    for (const OverlaySection& section : overlay->sections) {
      EXPECT_FALSE(section.value.has_value());
      EXPECT_FALSE(section.pipes.empty());
      EXPECT_GE(section.course.size(), 2U);
    }
    EXPECT_EQ(overlay->points.front().label, L"");
  });
  RunHydrantNetworkCommand();
}

TEST_F(HydrantOverlayTest, SectionsAndNodesBearWhatTheTablesShow) {
  const OverlayWatch watch;
  Calculate({}, [](PanelUser& hands, CDialog&) {
    const Overlay* overlay = CurrentOverlay();
    const CGridCtrl& sections = Table(hands, L"sectionTable");
    for (const OverlaySection& section : overlay->sections) {
      EXPECT_EQ(section.label, L"DN" + sections.GetItemText(section.row, 2));
      EXPECT_EQ(ZwtNum2Str(*section.value, 3), sections.GetItemText(section.row, 3));
    }
    const CGridCtrl& nodes = Table(hands, L"nodeTable");
    for (const OverlayPoint& point : overlay->points) {
      EXPECT_EQ(point.label, nodes.GetItemText(point.row, 2));
    }
  });
}

TEST_F(HydrantOverlayTest, WaterLeavesTheSourceAndComesToTheHydrantsInUse) {
  const OverlayWatch watch;
  Calculate({}, [](PanelUser&, CDialog&) {
    const AcGePoint3d source = {-5000, 0, 0};
    const Overlay& overlay = *CurrentOverlay();
    int leaving = 0;
    for (const OverlaySection& section : overlay.sections) {
      EXPECT_NE(section.course.back(), source);
      if (section.course.front() == source) ++leaving;
    }
    EXPECT_EQ(leaving, 1);
    for (const OverlayPoint& point : overlay.points) {
      if (!point.marked) continue;
      double balance = 0;
      for (const OverlaySection& section : overlay.sections) {
        if (section.course.back() == point.place) balance += *section.value;
        if (section.course.front() == point.place) balance -= *section.value;
      }
      EXPECT_GT(balance, 4.9);
    }
  });
}

TEST_F(HydrantOverlayTest, HydrantsInUseAreMarked) {
  const OverlayWatch watch;
  Calculate({}, [](PanelUser&, CDialog&) {
    int marked = 0;
    for (const OverlayPoint& point : CurrentOverlay()->points) marked += point.marked ? 1 : 0;
    EXPECT_EQ(marked, 2);
  });
}

TEST_F(HydrantOverlayTest, ConvergedPassesLeaveNoHistory) {
  const OverlayWatch watch;
  Calculate({}, [](PanelUser&, CDialog&) {
    EXPECT_THAT(CurrentOverlay()->notes, IsEmpty());
    EXPECT_THAT(CurrentOverlay()->profiles, IsEmpty());
  });
}

TEST(PassHistoryTest, GivingUpTellsHowFarAndWhere) {
  ZwtHydrantGraph model;
  model.edges.Append({.startNumber = 3, .endNumber = 4});
  PassHistory history;
  history.Add({.pass = 1, .largestChange = 9.0, .section = 0});
  history.Add({.pass = 2, .largestChange = 0.25, .section = 0});
  Overlay overlay;
  history.Describe({.outcome = LoopedOutcome::NotConverged, .passes = 3}, model, overlay);
  EXPECT_THAT(overlay.notes,
              ElementsAre(L"第 2 次迭代后流量平方的最大变化为 0.250 (L/s)²（管段 3-4），限值 0.1 (L/s)²"));
  ASSERT_EQ(overlay.profiles.size(), 1U);
  EXPECT_TRUE(overlay.profiles[0].logarithmic);
  EXPECT_THAT(overlay.profiles[0].steps, ElementsAre(L"1", L"2"));
  EXPECT_THAT(overlay.profiles[0].curves[0].values, ElementsAre(9.0, 0.25));
}

TEST(PassHistoryTest, NothingOfPassesThatConverged) {
  ZwtHydrantGraph model;
  PassHistory history;
  history.Add({.pass = 1, .largestChange = 0.01});
  Overlay overlay;
  history.Describe({.outcome = LoopedOutcome::Converged, .passes = 1}, model, overlay);
  EXPECT_THAT(overlay.notes, IsEmpty());
}

}  // namespace
}  // namespace zwt::test
