// The two extinguisher panels as a user sees them.
#include <gmock/gmock.h>

#include "fire/extinguisher_choice_dialog.h"
#include "fire/extinguisher_sizing_dialog.h"
#include "support/panel_description.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const wchar_t* kDangers = L" of [严重危险级] [中危险级] [轻危险级]";

std::vector<CString> ListedModels(CDialog& panel) {
  std::vector<CString> models;
  const CListCtrl& list = panel.List(2122);
  for (int row = 0; row < list.GetItemCount(); ++row) models.push_back(list.GetItemText(row, 2));
  return models;
}

class ExtinguisherDialogTest : public testing::Test {
 protected:
  // Opens the choice for an area, and plays a user there and afterwards in the first panel.
  void Choose(PanelRun::UserFunction choice, PanelRun::UserFunction afterwards = {}) {
    run.User([&](PanelUser& user, CDialog& panel) {
      user.Set(user.Find(L"area"), area);
      user.Pick(user.Find(L"fireClass"), fireClass);
      user.Pick(user.Find(L"danger"), danger);
      user.Click(user.Find(L"2116"));
      if (afterwards) afterwards(user, panel);
    });
    run.User(std::move(choice));
    RunExtinguisherCommand();
  }
  static CString Text(const PanelUser& user, const CString& control) {
    return user.Find(control).GetWindowText();
  }

  PanelRun run;
  CString area = L"1000";
  int fireClass = 0;
  int danger = 0;
};

TEST_F(ExtinguisherDialogTest, SizingOpensWithTheFirstItems) {
  run.User([](PanelUser& user, CDialog& panel) {
    EXPECT_THAT(
        Describe(panel),
        ElementsAre(L"2111 edit 保护面积(㎡)： = ", L"2112 combo 火灾类别： = A类火灾 of [A类火灾] [B类火灾]",
                    L"2113 combo 建筑类别： = 地上建筑 of [地上建筑] [地下建筑] [歌舞娱乐放映游艺场所] "
                    L"[网吧、商场、寺庙]",
                    CString(L"2114 combo 危险类别： = 严重危险级") + kDangers,
                    L"2115 combo 灭火设施类别： = 只设有室内消火栓系统 of [只设有室内消火栓系统] "
                    L"[未设室内消火栓系统和灭火系统] [只设有灭火系统] [设有室内消火栓系统和灭火系统] "
                    L"[可燃物露天堆垛/甲乙丙类液体贮罐/可燃气体贮罐]",
                    L"2116 button 计算并配置 default", L"2 button 退出"));
    EXPECT_TRUE(panel.Combo(2113).HasAutoWidth());
    EXPECT_TRUE(panel.Combo(2115).HasAutoWidth());
    EXPECT_FALSE(panel.Combo(2112).HasAutoWidth());
    user.Click(user.Find(L"退出"));
  });
  RunExtinguisherCommand();
  EXPECT_THAT(run.opened, ElementsAre(L"灭火器计算"));
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2019, IDCANCEL}));
}

TEST_F(ExtinguisherDialogTest, ChoiceOpensWithRatingMinimumAndModels) {
  Choose([](PanelUser& user, CDialog& panel) {
    EXPECT_THAT(Describe(panel),
                ElementsAre(L"2118 edit 总配置： = 18.00A", L"2119 edit 最小配置： = 3A readonly",
                            CString(L"2121 combo 危险级别： = 严重危险级") + kDangers,
                            L"2120 edit 配置点数： = ", L"kind radio 手提式灭火器 checked",
                            L"- radio 推车式灭火器", L"2122 list ", L"2117 edit  =  readonly",
                            L"2125 button 配置 default", L"2 button 上一步", L"1 button 退出"));
    EXPECT_THAT(ListedModels(panel), ElementsAre(L"MF/ABC5", L"MF/ABC6", L"MF/ABC8", L"MF/ABC10"));
    EXPECT_THAT(panel.List(2122).SelectedRows(), ElementsAre(0));
    EXPECT_EQ(panel.FocusedControl(), &user.Find(L"2120"));
  });
  EXPECT_THAT(run.opened, ElementsAre(L"灭火器计算", L"灭火器配置"));
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST_F(ExtinguisherDialogTest, ListShowsFourColumns) {
  Choose([](PanelUser&, CDialog& panel) {
    const CListCtrl& list = panel.List(2122);
    const std::pair<CString, int> columns[] = {{L"类型", 100}, {L"规格", 50}, {L"型号", 130}, {L"类别", 50}};
    ASSERT_EQ(list.Columns().size(), 4U);
    for (std::size_t column = 0; column < 4; ++column) {
      EXPECT_EQ(list.Columns()[column].title, columns[column].first);
      EXPECT_EQ(list.Columns()[column].width, columns[column].second);
    }
    EXPECT_EQ(list.GetItemText(3, 0), L"干粉(磷酸铵盐)");
    EXPECT_EQ(list.GetItemText(3, 1), L"10kg");
    EXPECT_EQ(list.GetItemText(3, 2), L"MF/ABC10");
    EXPECT_EQ(list.GetItemText(3, 3), L"6A");
  });
}

TEST_F(ExtinguisherDialogTest, TrolleyKindShowsTwelveModels) {
  Choose([](PanelUser& user, CDialog& panel) {
    user.Click(user.Find(L"推车式灭火器"));
    EXPECT_EQ(ListedModels(panel).size(), 12U);
    EXPECT_EQ(ListedModels(panel).front(), L"MFT/ABC20");
    EXPECT_THAT(panel.List(2122).SelectedRows(), ElementsAre(0));
    user.Click(user.Find(L"手提式灭火器"));
    EXPECT_EQ(ListedModels(panel).size(), 4U);
  });
}

TEST_F(ExtinguisherDialogTest, DangerChangesMinimumAndList) {
  Choose([](PanelUser& user, CDialog& panel) {
    user.Set(user.Find(L"2121"), L"中危险级");
    EXPECT_EQ(Text(user, L"2119"), L"2A");
    EXPECT_EQ(ListedModels(panel).size(), 9U);
    user.Set(user.Find(L"2121"), L"轻危险级");
    EXPECT_EQ(Text(user, L"2119"), L"1A");
    EXPECT_EQ(ListedModels(panel).size(), 20U);
  });
}

TEST_F(ExtinguisherDialogTest, TypedTotalOfClassBChangesMinimumAndList) {
  Choose([](PanelUser& user, CDialog& panel) {
    user.Set(user.Find(L"2118"), L"12b");
    EXPECT_EQ(Text(user, L"2118"), L"12B");
    EXPECT_EQ(Text(user, L"2119"), L"89B");
    EXPECT_EQ(ListedModels(panel).size(), 10U);
    EXPECT_EQ(panel.List(2122).GetItemText(0, 3), L"89B");
  });
}

TEST_F(ExtinguisherDialogTest, BareTotalGetsTheLetter) {
  Choose([](PanelUser& user, CDialog&) {
    user.Set(user.Find(L"2118"), L"12");
    EXPECT_EQ(Text(user, L"2118"), L"12.00A");
    user.Set(user.Find(L"2118"), L"A");
    EXPECT_EQ(Text(user, L"2118"), L"A");
  });
}

TEST_F(ExtinguisherDialogTest, PlacesTheSelectedModel) {
  Choose([](PanelUser& user, CDialog&) {
    user.Set(user.Find(L"2120"), L"2");
    user.ClickCell(user.Find(L"2122"), 3, 0);
    user.Click(user.Find(L"配置"));
    EXPECT_EQ(Text(user, L"2117"),
              L"  每个配置点的配置量为\t9.00A\r\n  所选的灭火器型号为\t\tMF/ABC10\r\n  "
              L"每个配置点的灭火器数量为\t2\r\n"
              L"  (根据:一个计算单元内的配置的灭火器数量不得少于 2 具)");
  });
}

TEST_F(ExtinguisherDialogTest, WithoutASelectionTheFirstModelIsTakenAndSelected) {
  Choose([](PanelUser& user, CDialog& panel) {
    user.SelectCell(user.Find(L"2122"), -1, 0);
    user.Set(user.Find(L"2120"), L"1");
    user.Click(user.Find(L"配置"));
    EXPECT_EQ(Text(user, L"2117"),
              L"  每个配置点的配置量为\t18.00A\r\n  所选的灭火器型号为\t\tMF/ABC5(取第一种灭火器)\r\n"
              L"  每个配置点的灭火器数量为\t6\r\n  (注:每个设置点的灭火数量不宜多于 5 具)");
    EXPECT_THAT(panel.List(2122).SelectedRows(), ElementsAre(0));
  });
}

TEST_F(ExtinguisherDialogTest, BadNumberOfPointsGivesTheMessageAndSelectsTheEdit) {
  Choose([](PanelUser& user, CDialog&) {
    for (const CString points : {L"0", L""}) {
      user.Set(user.Find(L"2120"), points);
      user.Click(user.Find(L"配置"));
      EXPECT_EQ(Text(user, L"2117"), L"请正确输入配置点的个数");
    }
  });
  const PanelRun::Focus points{2021, 2120, true};
  EXPECT_THAT(run.focuses, ElementsAre(points, points));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(ExtinguisherDialogTest, ExitClosesBothPanels) {
  bool ended = false;
  Choose([](PanelUser& user, CDialog&) { user.Click(user.Find(L"退出")); },
         [&](PanelUser&, CDialog& panel) { ended = panel.HasEnded(); });
  EXPECT_TRUE(ended);
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2021, 1}, PanelRun::Closed{2019, 1}));
}

TEST_F(ExtinguisherDialogTest, BackTakesDangerAndClassAlong) {
  Choose(
      [](PanelUser& user, CDialog&) {
        user.Set(user.Find(L"2118"), L"12b");
        user.Set(user.Find(L"2121"), L"轻危险级");
        user.Click(user.Find(L"上一步"));
      },
      [&](PanelUser& user, CDialog& panel) {
        EXPECT_FALSE(panel.HasEnded());
        EXPECT_EQ(Text(user, L"danger"), L"轻危险级");
        EXPECT_EQ(Text(user, L"fireClass"), L"B类火灾");
        EXPECT_EQ(Text(user, L"area"), L"1000");
      });
}

TEST_F(ExtinguisherDialogTest, BackWithAnARatingGoesToClassA) {
  fireClass = 1;
  Choose(
      [](PanelUser& user, CDialog&) {
        user.Set(user.Find(L"2118"), L"12a");
        user.Close();
      },
      [&](PanelUser& user, CDialog& panel) {
        EXPECT_FALSE(panel.HasEnded());
        EXPECT_EQ(Text(user, L"fireClass"), L"A类火灾");
      });
  EXPECT_EQ(run.closed.front(), (PanelRun::Closed{2021, 2}));
}

TEST_F(ExtinguisherDialogTest, OpeningTheChoiceAgainTakesTheNewClass) {
  run.User([](PanelUser& user, CDialog&) {
    user.Set(user.Find(L"area"), L"20");
    user.Click(user.Find(L"2116"));
    user.Pick(user.Find(L"fireClass"), 1);
    user.Pick(user.Find(L"danger"), 2);
    user.Pick(user.Find(L"facility"), 4);
    user.Click(user.Find(L"2116"));
  });
  run.User([](PanelUser& user, CDialog&) { EXPECT_EQ(Text(user, L"2118"), L"0.36A"); });
  run.User([](PanelUser& user, CDialog&) {
    EXPECT_EQ(Text(user, L"2118"), L"4.00B");
    EXPECT_EQ(Text(user, L"2119"), L"21B");
  });
  RunExtinguisherCommand();
}

TEST_F(ExtinguisherDialogTest, ClickInTheListIsRemembered) {
  Choose([](PanelUser& user, CDialog& panel) {
    const auto& choice = dynamic_cast<const ZcUiFireChildDialog&>(panel);
    EXPECT_FALSE(choice.ListWasClicked());
    user.ClickCell(user.Find(L"2122"), 1, 0);
    EXPECT_TRUE(choice.ListWasClicked());
  });
}

}  // namespace
}  // namespace zwt::test
