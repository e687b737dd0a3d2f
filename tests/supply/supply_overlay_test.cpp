// What the supply panel shows over the drawing.
#include "supply/supply_overlay.h"

#include <gmock/gmock.h>

#include "host/text/number_text.h"
#include "supply/riser_fixture.h"
#include "supply/supply_results_dialog.h"
#include "support/overlay_watch.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum SupplyColumn { kFlow = 4, kVelocity, kHeadLoss, kDiameter };

class SupplyOverlayTest : public RiserTest {
 protected:
  void Open(const std::vector<AcDbObjectId>& entries, const PanelRun::UserFunction& act) {
    user.selections.push_back(entries);
    run.User(act);
    RunSupplyCommand();
  }
  static CString Cell(const CDialog& panel, int row, SupplyColumn column) {
    return panel.Grid(2012).GetItemText(row, column);
  }
  PanelRun run;
};

TEST_F(SupplyOverlayTest, WithoutAWatcherNothingIsPublished) {
  Open({AddLine(0, 2)}, [](PanelUser& hands, CDialog&) { hands.Click(hands.Find(L"计    算")); });
  EXPECT_EQ(CurrentOverlay(), nullptr);
}

TEST_F(SupplyOverlayTest, OpeningTellsWhichPipeARowMeans) {
  const OverlayWatch watch;
  const AcDbObjectId entry = AddLine(0, 2);
  Open({entry}, [&](PanelUser&, CDialog&) {
    const Overlay* overlay = CurrentOverlay();
    ASSERT_NE(overlay, nullptr);
    EXPECT_EQ(overlay->sectionTable, 2012);
    ASSERT_EQ(overlay->sections.size(), 2U);
    EXPECT_EQ(overlay->sections[0].row, 1);
    EXPECT_THAT(overlay->sections[0].pipes, ElementsAre(entry));
    EXPECT_THAT(overlay->sections[0].course, ElementsAre(AcGePoint3d{0, 0, 0}, AcGePoint3d{0, 3000, 0}));
    EXPECT_FALSE(overlay->sections[0].value.has_value());
    EXPECT_EQ(overlay->sections[0].label, L"");
    EXPECT_EQ(overlay->sections[1].row, 2);
    EXPECT_THAT(overlay->profiles, IsEmpty());
  });
}

TEST_F(SupplyOverlayTest, SectionsBearWhatTheGridShows) {
  const OverlayWatch watch;
  Open({AddLine(0, 3)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    const Overlay* overlay = CurrentOverlay();
    ASSERT_NE(overlay, nullptr);
    ASSERT_EQ(overlay->sections.size(), 3U);
    for (int row = 1; row <= 3; ++row) {
      const OverlaySection& section = overlay->sections[static_cast<std::size_t>(row) - 1];
      EXPECT_EQ(section.label, L"DN" + Cell(panel, row, kDiameter));
      EXPECT_EQ(section.value, _wtof(Cell(panel, row, kVelocity)));
    }
  });
}

TEST_F(SupplyOverlayTest, ProfileSumsTheHeadLossFromTheEntry) {
  const OverlayWatch watch;
  Open({AddLine(0, 3), AddLine(9000, 1)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    const std::vector<OverlayProfile>& profiles = CurrentOverlay()->profiles;
    ASSERT_EQ(profiles.size(), 2U);
    EXPECT_EQ(profiles[0].title, L"1#立管");
    EXPECT_THAT(profiles[0].steps, ElementsAre(L"1#-1层", L"1#-2层", L"1#-3层"));
    EXPECT_THAT(profiles[1].steps, ElementsAre(L"2#-1层"));
    const double first = _wtof(Cell(panel, 1, kHeadLoss));
    const double second = _wtof(Cell(panel, 2, kHeadLoss));
    const double third = _wtof(Cell(panel, 3, kHeadLoss));
    EXPECT_THAT(profiles[0].curves[1].values, ElementsAre(first, first + second, first + second + third));
    EXPECT_GT(third, 0);
    EXPECT_EQ(profiles[0].curves[0].values[2], _wtof(Cell(panel, 3, kFlow)));
  });
}

TEST_F(SupplyOverlayTest, RecalculationShowsTheOverruledDiameter) {
  const OverlayWatch watch;
  Open({AddLine(0, 2)}, [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    const std::optional<double> before = CurrentOverlay()->sections[0].value;
    hands.EditCell(panel.Grid(2012), 1, kDiameter, L"100");
    hands.Click(hands.Find(L"复    算"));
    EXPECT_EQ(CurrentOverlay()->sections[0].label, L"DN100");
    EXPECT_LT(CurrentOverlay()->sections[0].value, before);
  });
}

}  // namespace
}  // namespace zwt::test
