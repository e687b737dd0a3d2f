// The storage pool panel as a user sees it.
#include "storage/storage_pool_dialog.h"

#include <gmock/gmock.h>

#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StoragePoolDialogTest : public testing::Test {
 protected:
  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunStoragePoolCommand();
  }
  static void FillIn(PanelUser& user) {
    user.Set(user.Find(L"2131"), L"100");
    user.Set(user.Find(L"2135"), L"2");
  }
  static void Click(PanelUser& user, const CString& control) { user.Click(user.Find(control)); }
  static CString Text(const PanelUser& user, const CString& control) {
    return user.Find(control).GetWindowText();
  }
  // Regulating part, domestic reserve, fire reserve, inlet flow, supply and total.
  static std::vector<CString> Results(const PanelUser& user) {
    std::vector<CString> texts;
    for (const wchar_t* control : {L"2133", L"2136", L"2121", L"2138", L"2125", L"2137"}) {
      texts.push_back(Text(user, control));
    }
    return texts;
  }

  PanelRun run;
};

TEST_F(StoragePoolDialogTest, OpensWithEverythingCheckedAndNoInletFlow) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(L"2127 check 调节容积(&A) checked", L"2129 check 生活储备(&B) checked",
                    L"2128 check 消防用水量(&C) checked", L"2130 check 进水管补充水量(&D) checked",
                    L"2131 edit 最高日用水量(m3)： = 0", L"2132 edit 百分比系数(%)： = 10",
                    L"- static 估算：Q1=8%～12%全日用水量", L"2133 edit 调节容积(m3)： =  readonly",
                    L"2134 edit 储备时间(h)： = 3", L"2135 edit 小时水量(m3/h)： = 0",
                    L"2136 edit 生活储备用水量(m3)： =  readonly", L"2140 edit 火灾延续时间(h)： = 3",
                    L"2141 edit 室内消火栓水量(L/s)： = 40", L"2142 edit 室外消火栓水量(L/s)： = 30",
                    L"2120 edit 自动喷洒用水量(L/s)： = 30", L"2121 edit 消防用水量(m3)： =  readonly",
                    L"2123 edit 管径(mm)： = 100", L"2124 edit 流速(m/s)： = 1.5",
                    L"2139 button 进水管补充水量Qg(m3/h)", L"2138 edit  = 0.00",
                    L"2125 edit 补充水量Qg(m3)： =  readonly", L"2137 edit 水池总容积(m3)： =  readonly",
                    L"1 button 计算 default", L"2 button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"贮水池容积计算"));
}

TEST_F(StoragePoolDialogTest, DefaultsWithDayAndHour) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"10.00", L"6.00", L"864.00", L"42.41", L"127.23", L"752.77"));
  });
}

TEST_F(StoragePoolDialogTest, WithoutSprinklersTheTotalIsZero) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    user.Set(user.Find(L"2120"), L"0");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"10.00", L"6.00", L"0.00", L"42.41", L"127.23", L"0.00"));
  });
}

TEST_F(StoragePoolDialogTest, FireReserveUncheckedDisablesTheInletAndKeepsItsCheck) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"消防用水量(&C)");
    EXPECT_THAT(Describe(user, {L"2130"}), ElementsAre(L"2130 check 进水管补充水量(&D) checked disabled"));
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"10.00", L"6.00", L"", L"0.00", L"0.00", L"16.00"));
    Click(user, L"消防用水量(&C)");
    EXPECT_THAT(Describe(user, {L"2130"}), ElementsAre(L"2130 check 进水管补充水量(&D) checked"));
  });
}

TEST_F(StoragePoolDialogTest, FireReserveUncheckedKeepsTheInletFlowShown) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"计算");
    Click(user, L"2128");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"10.00", L"6.00", L"864.00", L"42.41", L"0.00", L"16.00"));
  });
}

TEST_F(StoragePoolDialogTest, InletUncheckedGivesThePlainSum) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    Click(user, L"2130");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"10.00", L"6.00", L"864.00", L"0.00", L"0.00", L"880.00"));
  });
}

TEST_F(StoragePoolDialogTest, InletButtonShowsTheFlowAlone) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"进水管补充水量Qg(m3/h)");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L"", L"42.41", L"", L""));
    Click(user, L"2130");
    Click(user, L"2139");
    EXPECT_EQ(Text(user, L"2138"), L"0.00");
  });
}

TEST_F(StoragePoolDialogTest, FieldWithoutANumberTakesTheFocusAndStops) {
  Play([](PanelUser& user, CDialog&) {
    FillIn(user);
    user.Set(user.Find(L"2141"), L"");
    Click(user, L"计算");
    EXPECT_THAT(Results(user), ElementsAre(L"", L"", L"", L"0.00", L"", L""));
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2023, 2141, true}));
}

TEST_F(StoragePoolDialogTest, ExitClosesWithTwo) {
  Play([](PanelUser& user, CDialog&) { Click(user, L"退出"); });
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2023, 2}));
}

}  // namespace
}  // namespace zwt::test
