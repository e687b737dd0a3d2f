// The civil air defence panel as a user sees it.
#include "storage/air_defence_dialog.h"

#include <gmock/gmock.h>

#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;

class AirDefenceDialogTest : public testing::Test {
 protected:
  void Play(PanelRun::UserFunction user) {
    run.User(std::move(user));
    RunAirDefenceCommand();
  }
  static void Set(PanelUser& user, const CString& control, const CString& text) {
    user.Set(user.Find(control), text);
  }
  static void Click(PanelUser& user, const CString& control) { user.Click(user.Find(control)); }
  static CString Text(const PanelUser& user, const CString& control) {
    return user.Find(control).GetWindowText();
  }
  static std::vector<CString> OneColumn(const PanelUser& user) {
    return Describe(user, {L"2066", L"2067", L"2068"});
  }
  static std::vector<CString> TwoColumns(const PanelUser& user) {
    return Describe(user, {L"2062", L"2063", L"2052", L"2049", L"2053", L"2050", L"2054", L"2051"});
  }
  static std::vector<CString> Times(const PanelUser& user) {
    return Describe(user, {L"2057", L"2059", L"2058"});
  }

  PanelRun run;
};

TEST_F(AirDefenceDialogTest, OpensForAShelterWithAReliableSource) {
  Play([](PanelUser&, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(
            L"2048 combo 选择工程类别： = 人员掩蔽工程 of [人员掩蔽工程] [专业队队员掩蔽部] [配套工程] "
            L"[救护站] "
            L"[中心医院、急救医院]",
            L"2055 radio 有可靠内水源 checked", L"2056 radio 无可靠内水源",
            L"2058 check 有防护外水源 disabled", L"- static 人数：", L"2066 edit 人数： = ",
            L"2062 static 伤病员 hidden", L"2052 edit 伤病员 =  hidden", L"2063 static 工作人员 hidden",
            L"2049 edit 工作人员 =  hidden", L"- static 饮用水(L/pd)：", L"2067 edit 饮用水(L/pd)： = 6",
            L"2053 edit  =  hidden", L"2050 edit  =  hidden", L"- static 生活用水(L/pd)：",
            L"2068 edit 生活用水(L/pd)： = 4", L"2054 edit  =  hidden", L"2051 edit  =  hidden",
            L"2057 edit 饮用水贮水时间(d)： = 3", L"2064 static 生活用水贮水时间(h):",
            L"2059 edit 生活用水贮水时间(h): = 0 readonly", L"2060 edit 饮用水总量(立方米)： =  readonly",
            L"2061 edit 生活用水总量(立方米)： =  readonly", L"2065 button 计算 default", L"1 button 退出"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"人防用水量计算"));
}

TEST_F(AirDefenceDialogTest, HundredPeopleWithTheDefaults) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2066", L"100");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2060"), L"1.800");
    EXPECT_EQ(Text(user, L"2061"), L"0.000");
  });
}

TEST_F(AirDefenceDialogTest, SpecialUnitGetsEightHours) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2048", L"专业队队员掩蔽部");
    Set(user, L"2066", L"100");
    EXPECT_THAT(OneColumn(user), ElementsAre(L"2066 edit 人数： = 100", L"2067 edit 饮用水(L/pd)： = 6",
                                             L"2068 edit 生活用水(L/pd)： = 9"));
    EXPECT_THAT(Times(user),
                ElementsAre(L"2057 edit 饮用水贮水时间(d)： = 3", L"2059 edit 生活用水贮水时间(h): = 8",
                            L"2058 check 有防护外水源 disabled"));
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2061"), L"0.300");
  });
}

TEST_F(AirDefenceDialogTest, HospitalShowsTwoColumns) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2048", L"中心医院、急救医院");
    EXPECT_THAT(OneColumn(user), Each(EndsWith(L" hidden")));
    EXPECT_THAT(TwoColumns(user),
                ElementsAre(L"2062 static 伤病员", L"2063 static 工作人员", L"2052 edit 伤病员 = ",
                            L"2049 edit 工作人员 = ", L"2053 edit  = 5", L"2050 edit  = 6",
                            L"2054 edit  = 80", L"2051 edit  = 40"));
    Set(user, L"2052", L"20");
    Set(user, L"2049", L"30");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2060"), L"0.840");
    EXPECT_EQ(Text(user, L"2061"), L"1.400");
    Set(user, L"2048", L"配套工程");
    EXPECT_THAT(OneColumn(user), Each(Not(EndsWith(L" hidden"))));
    EXPECT_THAT(TwoColumns(user), Each(EndsWith(L" hidden")));
    EXPECT_THAT(Describe(user, {L"2059"}), ElementsAre(L"2059 edit 生活用水贮水时间(h): =  readonly"));
  });
}

TEST_F(AirDefenceDialogTest, FirstAidStationSetsItsDailyUse) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2048", L"救护站");
    EXPECT_EQ(Text(user, L"2054"), L"50");
    EXPECT_EQ(Text(user, L"2051"), L"35");
    EXPECT_THAT(Describe(user, {L"2059"}), ElementsAre(L"2059 edit 生活用水贮水时间(h): = 12"));
  });
}

TEST_F(AirDefenceDialogTest, NoReliableSourceGoesByDays) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2066", L"100");
    Click(user, L"无可靠内水源");
    EXPECT_THAT(Times(user), ElementsAre(L"2057 edit 饮用水贮水时间(d)： = 15 readonly",
                                         L"2059 edit 生活用水贮水时间(d): = 14", L"2058 check 有防护外水源"));
    EXPECT_EQ(Text(user, L"2066"), L"100");
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2061"), L"5.600");
    Click(user, L"有防护外水源");
    EXPECT_THAT(Times(user),
                ElementsAre(L"2057 edit 饮用水贮水时间(d)： = 15 readonly",
                            L"2059 edit 生活用水贮水时间(d): = 7", L"2058 check 有防护外水源 checked"));
    Click(user, L"计算");
    EXPECT_EQ(Text(user, L"2061"), L"2.800");
    Click(user, L"有防护外水源");
    EXPECT_EQ(Text(user, L"2059"), L"14");
    EXPECT_FALSE(dynamic_cast<const CButton&>(user.Find(L"2058")).GetCheck());
  });
}

TEST_F(AirDefenceDialogTest, BackToTheReliableSourceReadsZeroHours) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"无可靠内水源");
    Click(user, L"有防护外水源");
    Click(user, L"有可靠内水源");
    EXPECT_THAT(Times(user), ElementsAre(L"2057 edit 饮用水贮水时间(d)： = 3",
                                         L"2059 edit 生活用水贮水时间(h): = 0 readonly",
                                         L"2058 check 有防护外水源 disabled"));
  });
}

TEST_F(AirDefenceDialogTest, ChangeOfWorkWithoutAReliableSourceLeavesTheTimesAlone) {
  Play([](PanelUser& user, CDialog&) {
    Click(user, L"无可靠内水源");
    Set(user, L"2059", L"11");
    Set(user, L"2048", L"救护站");
    EXPECT_THAT(Times(user), ElementsAre(L"2057 edit 饮用水贮水时间(d)： = 15 readonly",
                                         L"2059 edit 生活用水贮水时间(d): = 11", L"2058 check 有防护外水源"));
    EXPECT_EQ(Text(user, L"2054"), L"50");
  });
}

TEST_F(AirDefenceDialogTest, PressingTheSourceInForceChangesNothing) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2057", L"5");
    Click(user, L"有可靠内水源");
    EXPECT_EQ(Text(user, L"2057"), L"5");
  });
}

TEST_F(AirDefenceDialogTest, NegativeFieldTakesTheFocusAndLeavesTheResults) {
  for (const int field : {2057, 2066, 2067, 2068}) {
    run.focuses.clear();
    Play([&](PanelUser& user, CDialog&) {
      Set(user, L"2066", L"100");
      Click(user, L"计算");
      Set(user, std::to_wstring(field), L"-1");
      Click(user, L"计算");
      EXPECT_EQ(Text(user, L"2060"), L"1.800");
      EXPECT_EQ(Text(user, L"2061"), L"0.000");
    });
    EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2012, field, true}));
  }
}

TEST_F(AirDefenceDialogTest, NegativeFieldOfTwoColumnsTakesTheFocus) {
  for (const int field : {2057, 2059, 2052, 2049, 2053, 2050, 2054}) {
    run.focuses.clear();
    Play([&](PanelUser& user, CDialog&) {
      Set(user, L"2048", L"救护站");
      Set(user, std::to_wstring(field), L"-1");
      Click(user, L"计算");
    });
    EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2012, field, true}));
  }
}

TEST_F(AirDefenceDialogTest, NegativeDomesticUseOfTheStaffFocusesThatOfTheWounded) {
  Play([](PanelUser& user, CDialog&) {
    Set(user, L"2048", L"救护站");
    Set(user, L"2051", L"-1");
    Click(user, L"计算");
  });
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2012, 2054, true}));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(AirDefenceDialogTest, ExitReturnsOne) {
  Play([](PanelUser& user, CDialog&) { Click(user, L"退出"); });
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2012, 1}));
}

}  // namespace
}  // namespace zwt::test
