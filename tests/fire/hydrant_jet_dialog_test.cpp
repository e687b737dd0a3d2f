// The hydrant jet panel as a user sees it.
#include "fire/hydrant_jet_dialog.h"

#include <gmock/gmock.h>

#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HydrantJetDialogTest : public testing::Test {
 protected:
  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunHydrantJetCommand();
  }
  static std::vector<CString> Results(const PanelUser& user) {
    return {user.Find(L"resultText").GetWindowText(), user.Find(L"pressureText").GetWindowText(),
            user.Find(L"radiusText").GetWindowText()};
  }
  static void Set(PanelUser& user, const CString& control, const CString& text) {
    user.Set(user.Find(control), text);
  }
  static void Click(PanelUser& user, const CString& control) { user.Click(user.Find(control)); }

  PanelRun run;
};

TEST_F(HydrantJetDialogTest, OpensWithItsDefaults) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(
            L"hoseMaterialIndex combo 水龙带材料： = 衬胶 of [衬胶] [帆布、麻织]",
            L"hoseDiameterIndex combo 水龙带直径(mm)： = 65 of [50] [65]",
            L"hoseLengthText edit 水龙带长度(m)： = 25",
            L"nozzleIndex combo 水龙喷嘴直径(mm)： = 19 of [13] [16] [19] [22] [25]",
            L"knownMode radio 已知充实水柱长度", L"- radio 已知出口水流量 checked",
            L"inputLabel static 水枪喷嘴射出流量(L/s)：", L"inputText edit 水枪喷嘴射出流量(L/s)： = ",
            L"resultLabel static 充实水柱长度(m)：", L"resultText edit 充实水柱长度(m)： =  readonly",
            L"pressureText edit 消火栓栓口水压(mH2O)： =  readonly",
            L"radiusText edit 消火栓保护半径(m)： =  readonly", L"- button 计算 default", L"- button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"消火栓计算"));
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2017, IDCANCEL}));
}

TEST_F(HydrantJetDialogTest, KnownFlowGivesColumnPressureAndRadius) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"inputText", L"5");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"11.3", L"18.93", L"28.05"));
  });
  EXPECT_THAT(run.messages, IsEmpty());
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST_F(HydrantJetDialogTest, KnownColumnGivesFlowPressureAndRadius) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"已知充实水柱长度");
    Set(user, L"inputText", L"12");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"5.20", L"20.31", L"28.52"));
  });
}

TEST_F(HydrantJetDialogTest, CaptionsFollowTheDirection) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"已知充实水柱长度");
    EXPECT_EQ(user.Find(L"inputText").Label(), L"充实水柱长度(m)");
    EXPECT_EQ(user.Find(L"resultText").Label(), L"消火栓出口流量(L/s):");
    Click(user, L"已知出口水流量");
    EXPECT_EQ(user.Find(L"inputText").Label(), L"消火栓出口流量(L/s):");
    EXPECT_EQ(user.Find(L"resultText").Label(), L"充实水柱长度(m):");
  });
}

TEST_F(HydrantJetDialogTest, SwitchingTheDirectionMovesTheResultIntoTheInput) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"inputText", L"5");
    Click(user, L"计算");
    Click(user, L"已知充实水柱长度");
    EXPECT_EQ(user.Find(L"inputText").GetWindowText(), L"11.3");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"18.93", L"28.05"));
  });
}

TEST_F(HydrantJetDialogTest, SwitchingWithoutAResultLosesTheInput) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"inputText", L"5");
    Click(user, L"已知充实水柱长度");
    EXPECT_EQ(user.Find(L"inputText").GetWindowText(), L"");
  });
}

TEST_F(HydrantJetDialogTest, PressingTheChosenDirectionMovesTheResultToo) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"inputText", L"5");
    Click(user, L"计算");
    Click(user, L"已知出口水流量");
    EXPECT_EQ(user.Find(L"inputText").GetWindowText(), L"11.3");
    EXPECT_EQ(user.Find(L"resultText").GetWindowText(), L"");
  });
}

TEST_F(HydrantJetDialogTest, BadFlowGivesTheMessageAndKeepsTheRadius) {
  Play([](PanelUser& user, CDialog& panel) {
    Set(user, L"inputText", L"5");
    Click(user, L"计算");
    Set(user, L"inputText", L"50");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L"28.05"));
    EXPECT_EQ(panel.FocusedControl(), &user.Find(L"inputText"));
  });
  EXPECT_THAT(run.messages,
              ElementsAre(PanelRun::Message{L"流量必须在3.5至9.6之间", L"", MessageIcon::kNone}));
  ASSERT_EQ(run.focuses.size(), 1U);
  EXPECT_TRUE(run.focuses.front().selected);
}

TEST_F(HydrantJetDialogTest, BadColumnGivesTheMessageAndLeavesTheFocus) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"已知充实水柱长度");
    Set(user, L"inputText", L"20.1");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L""));
  });
  EXPECT_THAT(run.messages,
              ElementsAre(PanelRun::Message{L"充实水柱长度应在6.0米至20.0米之间", L"", MessageIcon::kNone}));
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST_F(HydrantJetDialogTest, BadHoseLengthTakesTheFocusInSilence) {
  Play([](PanelUser& user, CDialog& panel) {
    Set(user, L"inputText", L"5");
    Set(user, L"hoseLengthText", L"");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L""));
    EXPECT_EQ(panel.FocusedControl(), &user.Find(L"hoseLengthText"));
  });
  EXPECT_THAT(run.messages, IsEmpty());
  ASSERT_EQ(run.focuses.size(), 1U);
  EXPECT_TRUE(run.focuses.front().selected);
}

TEST_F(HydrantJetDialogTest, ChoicesCount) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"hoseMaterialIndex", L"帆布、麻织");
    Set(user, L"hoseDiameterIndex", L"50");
    Set(user, L"nozzleIndex", L"13");
    Set(user, L"inputText", L"1.7");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"6.0", L"11.44", L"24.26"));
  });
}

TEST_F(HydrantJetDialogTest, ExitCloses) {
  bool ended = false;
  Play([&](PanelUser& user, CDialog& panel) {
    Click(user, L"退出");
    ended = panel.HasEnded();
  });
  EXPECT_TRUE(ended);
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2017, IDCANCEL}));
}

}  // namespace
}  // namespace zwt::test
