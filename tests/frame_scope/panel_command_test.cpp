// The order in which a command opens, runs and leaves its panel.
#include "frame/scope/panel_command.h"

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "frame/scope/module_state.h"
#include "host/dialog/dialog.h"
#include "support/panel_fixture.h"

namespace {

enum class Failing { kNever, kMaking, kShowing };

Failing failing = Failing::kNever;
std::string steps;

void Note(const std::string& step) {
  const bool inScope = AfxGetResourceHandle() == zwt::ThisModule().handle;
  steps += step + (inScope ? " inside, " : " outside, ");
}

constexpr zwt::PanelTemplate kPanel = {.resource = 2000, .className = L"Panel", .title = L"面板"};

/// Notes the steps of its life.
class NotingPanel : public ZcUiDialog {
 public:
  NotingPanel() : ZcUiDialog(kPanel) {
    if (failing == Failing::kMaking) throw std::runtime_error("making");
    EXPECT_EQ(GetParent(), nullptr);
    Note("made");
  }
  NotingPanel(const NotingPanel&) = delete;
  NotingPanel& operator=(const NotingPanel&) = delete;
  ~NotingPanel() override { Note("destroyed"); }

 protected:
  void OnInitDialog() override {
    Note("shown");
    if (failing == Failing::kShowing) throw std::runtime_error("showing");
    ZcUiDialog::OnInitDialog();
  }
};

class PanelCommands : public testing::Test {
 protected:
  void SetUp() override {
    failing = Failing::kNever;
    steps.clear();
    zwt::EnterModule(module_);
    zwt::ThisModule().handle = &module_;
  }
  void TearDown() override {
    zwt::ForgetModule(module_);
    zwt::ThisModule() = {};
  }

  zwt::LoadedModule module_{L"C:\\Zwt\\ZwtCalModel.arx"};
  zwt::test::PanelRun run_;
};

TEST_F(PanelCommands, PanelLivesInsideTheScope) {
  zwt::RunPanel<NotingPanel>();
  Note("then");
  EXPECT_EQ(steps, "made inside, shown inside, destroyed inside, then outside, ");
  EXPECT_EQ(run_.opened, std::vector<CString>{L"面板"});
}

TEST_F(PanelCommands, CodeOfThePanelIsIgnored) {
  run_.User([](zwt::PanelUser&, CDialog& panel) { panel.EndDialog(77); });
  zwt::RunPanel<NotingPanel>();
  EXPECT_EQ(run_.closed, (std::vector<zwt::test::PanelRun::Closed>{{2000, 77}}));
}

TEST_F(PanelCommands, ExceptionWhileThePanelIsMadeClosesTheScope) {
  failing = Failing::kMaking;
  EXPECT_THROW(zwt::RunPanel<NotingPanel>(), std::runtime_error);
  Note("then");
  EXPECT_EQ(steps, "then outside, ");
}

TEST_F(PanelCommands, ExceptionFromTheShownPanelDestroysItInsideTheScope) {
  failing = Failing::kShowing;
  EXPECT_THROW(zwt::RunPanel<NotingPanel>(), std::runtime_error);
  Note("then");
  EXPECT_EQ(steps, "made inside, shown inside, destroyed inside, then outside, ");
}

TEST_F(PanelCommands, ExceptionOfThePanelsUserDestroysItInsideTheScope) {
  run_.User([](zwt::PanelUser&, CDialog&) { throw std::runtime_error("no such control"); });
  EXPECT_THROW(zwt::RunPanel<NotingPanel>(), std::runtime_error);
  Note("then");
  EXPECT_EQ(steps, "made inside, shown inside, destroyed inside, then outside, ");
  EXPECT_FALSE(zwt::KeepModulesLoaded::Any());
}

TEST_F(PanelCommands, NothingIsKeptBetweenCommands) {
  zwt::RunPanel<NotingPanel>();
  zwt::RunPanel<NotingPanel>();
  EXPECT_EQ(zwt::OpenPanelCount(), 0);
  EXPECT_FALSE(zwt::KeepModulesLoaded::Any());
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

}  // namespace
