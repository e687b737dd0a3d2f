// What the drainage panel shows over the drawing.
#include "drainage/drainage_overlay.h"

#include <gmock/gmock.h>

#include "drainage/drainage_results_dialog.h"
#include "drainage/stack_fixture.h"
#include "host/text/number_text.h"
#include "support/overlay_watch.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;

enum DrainageColumn { kDiameter = 5, kVelocity = 7 };

class DrainageOverlayTest : public StackTest {
 protected:
  void Open(AcDbObjectId end, const PanelRun::UserFunction& act) {
    user.selections.push_back({end});
    run.User(act);
    RunDrainageCommand();
  }
  PanelRun run;
};

TEST_F(DrainageOverlayTest, EachFloorHasItsBranchAndItsRiser) {
  const OverlayWatch watch;
  const AcDbObjectId end = AddStack(2);
  Open(end, [&](PanelUser&, CDialog&) {
    const Overlay* overlay = CurrentOverlay();
    ASSERT_NE(overlay, nullptr);
    ASSERT_EQ(overlay->sections.size(), 4U);
    EXPECT_EQ(overlay->sections[0].row, 1);
    EXPECT_THAT(overlay->sections[0].course,
                ElementsAre(AcGePoint3d{0, 1500, 0}, AcGePoint3d{2000, 1500, 0}));
    EXPECT_THAT(overlay->sections[1].pipes, ElementsAre(end));
    EXPECT_EQ(overlay->sections[1].row, 1);
    EXPECT_EQ(overlay->sections[1].label, L"");
    EXPECT_EQ(overlay->sections[2].row, 2);
  });
}

TEST_F(DrainageOverlayTest, BranchesBearTheGridsNumbersAndTheStackItsDiameterOnce) {
  const OverlayWatch watch;
  Open(AddStack(2), [](PanelUser& hands, CDialog& panel) {
    hands.Click(hands.Find(L"计    算"));
    const Overlay* overlay = CurrentOverlay();
    const CGridCtrl& grid = panel.Grid(2012);
    EXPECT_EQ(overlay->sections[0].label, L"DN" + grid.GetItemText(1, kDiameter));
    EXPECT_EQ(overlay->sections[0].value, _wtof(grid.GetItemText(1, kVelocity)));
    EXPECT_EQ(overlay->sections[1].label, L"DN110");
    EXPECT_THAT(grid.GetItemText(3, 0), testing::EndsWith(L"管径为：110。"));
    EXPECT_FALSE(overlay->sections[1].value.has_value());
    EXPECT_EQ(overlay->sections[3].label, L"");
  });
}

}  // namespace
}  // namespace zwt::test
