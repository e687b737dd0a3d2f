// The pressure tank panel as a user sees it.
#include "storage/pressure_tank_dialog.h"

#include <gmock/gmock.h>

#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PressureTankDialogTest : public testing::Test {
 protected:
  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunPressureTankCommand();
  }
  static void FillIn(PanelUser& user) {
    const std::pair<const wchar_t*, const wchar_t*> fields[] = {
        {L"2069", L"10"}, {L"2073", L"20"}, {L"2074", L"5"}, {L"2075", L"5"}};
    for (const auto& [control, text] : fields) user.Set(user.Find(control), text);
  }
  static std::vector<CString> Results(const PanelUser& user) {
    std::vector<CString> texts;
    for (const wchar_t* control : {L"2071", L"2072", L"2076", L"2077"}) {
      texts.push_back(user.Find(control).GetWindowText());
    }
    return texts;
  }
  static void Calculate(PanelUser& user) { user.Click(user.Find(L"2065")); }

  PanelRun run;
};

TEST_F(PressureTankDialogTest, OpensWithItsDefaults) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(L"2066 edit 最小压力/最大压力比： = 0.7", L"2067 edit 水泵开启最大频率(/h)： = 6",
                    L"2068 edit 安全系数： = 1.0", L"2069 edit 水泵总出水量(L/s)： = ",
                    L"2070 edit 容积系数： = 1.25", L"2073 edit 最低水位与最不利配水点的高程差(m)： = ",
                    L"2074 edit 管网沿程水头损失与局部水头损失之和(m)： = ",
                    L"2075 edit 最不利点流出水头(m)： = ", L"2071 edit 调节容积(立方米)： =  readonly",
                    L"2072 edit 总容积(立方米)： =  readonly", L"2076 edit 最低工作压力(MPa)： =  readonly",
                    L"2077 edit 最高工作压力(MPa)： =  readonly", L"2065 button 计算 default",
                    L"2 button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"气压水罐计算"));
}

TEST_F(PressureTankDialogTest, CalculatesBothHalves) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Calculate(user);
    EXPECT_THAT(Results(user), ElementsAre(L"1.500", L"6.250", L"0.30", L"0.47"));
  });
  EXPECT_THAT(run.focuses, IsEmpty());
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2014, 2}));
}

TEST_F(PressureTankDialogTest, BadRatioStopsAllAndEmptiesTheResults) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Calculate(user);
    user.Set(user.Find(L"2066"), L"1");
    Calculate(user);
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L"", L""));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2014, 2066, true}));
}

TEST_F(PressureTankDialogTest, EmptyFlowLeavesTheVolumesEmpty) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Calculate(user);
    user.Set(user.Find(L"2069"), L"");
    Calculate(user);
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L"0.30", L"0.47"));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2014, 2069, true}));
}

TEST_F(PressureTankDialogTest, NegativeHeadLossLeavesThePressuresEmpty) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    user.Set(user.Find(L"2074"), L"-1");
    Calculate(user);
    EXPECT_THAT(Results(user), ElementsAre(L"1.500", L"6.250", L"", L""));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2014, 2074, true}));
}

TEST_F(PressureTankDialogTest, EachBadFieldTakesTheFocus) {
  for (const int field : {2066, 2067, 2068, 2069, 2070, 2073, 2074, 2075}) {
    run.focuses.clear();
    Play([&](PanelUser& user, CDialog&) {
      FillIn(user);
      user.Set(user.Find(std::to_wstring(field)), L"-1");
      Calculate(user);
    });
    EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2014, field, true}));
  }
}

TEST_F(PressureTankDialogTest, BothHalvesMoveTheFocusTheVolumesFirst) {
  Play([](PanelUser& user, CDialog& panel) {
    Calculate(user);
    EXPECT_EQ(panel.FocusedControl(), &user.Find(L"2073"));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2014, 2069, true}, PanelRun::Focus{2014, 2073, true}));
}

TEST_F(PressureTankDialogTest, NoPumpStartsShowAnInfiniteVolume) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    user.Set(user.Find(L"2067"), L"0");
    Calculate(user);
    EXPECT_THAT(Results(user), ElementsAre(L"inf", L"inf", L"0.30", L"0.47"));
  });
}

}  // namespace
}  // namespace zwt::test
