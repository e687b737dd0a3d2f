// Opening, exchange, focus, ending of panels.
#include "host/dialog/dialog.h"

#include <gmock/gmock.h>

#include "host_dialog/sample_panel.h"
#include "support/panel_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(UpdateData, RefreshWritesTheShortestFormOfFifteenDigits) {
  SamplePanel panel;
  panel.users = 0.1 + 0.2;
  panel.UpdateData(false);
  EXPECT_EQ(panel.GetDlgItemText(2001), L"0.3");
  EXPECT_EQ(panel.GetDlgItemText(2002), L"7");
}

TEST(UpdateData, FieldsBeforeARefusedOneAreTakenIn) {
  PanelRun run;
  run.User([](PanelUser& user, CDialog& panel) {
    user.Set(user.Find(L"users"), L" 12.5 ");
    user.Set(user.Find(L"count"), L"2.5");
    user.Set(user.Find(L"note"), L"新");
    EXPECT_FALSE(panel.UpdateData(true));
  });
  SamplePanel panel;
  panel.DoModal();
  EXPECT_EQ(panel.users, 12.5);
  EXPECT_EQ(panel.count, 7);
  EXPECT_EQ(panel.note, L"无");
  EXPECT_THAT(run.focuses, ElementsAre(PanelRun::Focus{2999, 2002, true}));
  EXPECT_THAT(run.messages, IsEmpty());
}

TEST(UpdateData, EmptyTextIsNoNumber) {
  SamplePanel panel;
  panel.UpdateData(false);
  panel.SetDlgItemText(2001, L"");
  EXPECT_FALSE(panel.UpdateData(true));
  EXPECT_EQ(panel.FocusedControl(), &panel.GetDlgItem(2001));
}

TEST(TakeReadableValues, PassesOverRefusedFieldsInSilence) {
  PanelRun run;
  run.User([](PanelUser&, CDialog& panel) {
    panel.SetDlgItemText(2001, L"x");
    panel.SetDlgItemText(2003, L"后");
    panel.Button(2021).SetCheck(true);
    panel.Button(2020).SetCheck(false);
    panel.TakeReadableValues();
  });
  SamplePanel panel;
  panel.users = 3;
  panel.DoModal();
  EXPECT_EQ(panel.users, 3);
  EXPECT_EQ(panel.note, L"后");
  EXPECT_EQ(panel.choice, 1);
  EXPECT_THAT(run.focuses, IsEmpty());
}

TEST(DoModal, ButtonOneTakesValuesInAndEndsWithOne) {
  PanelRun run;
  run.User([](PanelUser& user, CDialog&) {
    user.Set(user.Find(L"2001"), L"4");
    user.Click(user.Find(L"确定"));
  });
  SamplePanel panel;
  EXPECT_EQ(panel.DoModal(), IDOK);
  EXPECT_EQ(panel.users, 4);
}

TEST(DoModal, ButtonOneWithARefusedFieldKeepsThePanelOpen) {
  PanelRun run;
  run.User([](PanelUser& user, CDialog& panel) {
    user.Set(user.Find(L"2001"), L"vier");
    user.Click(user.Find(L"确定"));
    EXPECT_FALSE(panel.HasEnded());
  });
  SamplePanel panel;
  EXPECT_EQ(panel.DoModal(), IDCANCEL);
}

TEST(DoModal, CloseBoxDoesWhatButtonTwoDoes) {
  PanelRun run;
  SamplePanel panel;
  int left = 0;
  panel.OnClick(2, [&] {
    ++left;
    panel.EndDialog(7);
  });
  EXPECT_EQ(panel.DoModal(), 7);
  EXPECT_EQ(left, 1);
}

TEST(DoModal, WithoutAPresenterEndsAsCancelled) {
  SamplePanel panel;
  EXPECT_EQ(panel.DoModal(), IDCANCEL);
}

TEST(DoModal, CountsAsOpenWhileItRunsAlsoThroughAnException) {
  PanelRun run;
  run.User([](PanelUser&, CDialog&) {
    EXPECT_EQ(OpenPanelCount(), 1);
    throw std::runtime_error("left");
  });
  {
    SamplePanel panel;
    EXPECT_THROW(panel.DoModal(), std::runtime_error);
  }
  EXPECT_EQ(OpenPanelCount(), 0);
}

TEST(DoModal, NestedPanelTakesTheNextUser) {
  PanelRun run;
  SamplePanel outer;
  outer.OnClick(2030, [&] {
    SamplePanel inner;
    inner.DoModal();
  });
  run.User([](PanelUser& user, CDialog&) { user.Click(user.Find(L"2030")); });
  run.User([](PanelUser& user, CDialog&) { user.Click(user.Find(L"1")); });
  outer.DoModal();
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2999, 1}, PanelRun::Closed{2999, 2}));
}

TEST(Radio, CheckingOneClearsOnlyItsOwnGroup) {
  SamplePanel panel;
  panel.Button(2022).SetCheck(true);
  panel.CheckRadioButton(2020);
  panel.CheckRadioButton(2021);
  EXPECT_FALSE(panel.Button(2020).GetCheck());
  EXPECT_TRUE(panel.Button(2021).GetCheck());
  EXPECT_TRUE(panel.Button(2022).GetCheck());
}

TEST(Message, GoesToThePresenterWithCaptionAndIcon) {
  PanelRun run;
  SamplePanel panel;
  panel.MessageBoxW(L"参数不足！", L"错误", MB_ICONSTOP);
  AfxMessageBox(L"平");
  EXPECT_THAT(run.messages, ElementsAre(PanelRun::Message{L"参数不足！", L"错误", MessageIcon::kStop},
                                        PanelRun::Message{L"平", L"", MessageIcon::kNone}));
}

TEST(Range, BoundsBelongToIt) {
  SamplePanel panel;
  panel.UpdateData(false);
  const auto accepts = [&](double value) {
    CDataExchange exchange(panel, CDataExchange::Direction::kTake);
    DDV_MinMaxDouble(&exchange, 2001, value, 0, 65535);
    return exchange.Refused() == nullptr;
  };
  EXPECT_TRUE(accepts(0));
  EXPECT_TRUE(accepts(65535));
  EXPECT_FALSE(accepts(65535.1));
  EXPECT_FALSE(accepts(-0.001));
}

TEST(EditorCommand, HidesThePanelWithoutEndingIt) {
  PanelRun run;
  run.User([](PanelUser&, CDialog& panel) {
    auto& sample = dynamic_cast<SamplePanel&>(panel);
    sample.BeginEditorCommand();
    EXPECT_FALSE(panel.HasEnded());
    sample.CompleteEditorCommand(true);
  });
  SamplePanel panel;
  panel.DoModal();
  EXPECT_EQ(run.gaveWay, 1);
  EXPECT_EQ(run.returned, 1);
}

TEST(PanelList, HoldsWhatIsRegistered) {
  RegisterPanel(kSamplePanel);
  EXPECT_EQ(FindPanelOfCommand(L"ZWTSAMPLE"), &kSamplePanel);
  UnregisterPanel(kSamplePanel);
  EXPECT_EQ(FindPanelOfCommand(L"ZWTSAMPLE"), nullptr);
}

TEST(GetDlgItem, UnknownNumberOrKindIsAnErrorOfTheCode) {
  SamplePanel panel;
  EXPECT_THROW(panel.GetDlgItem(4711), std::logic_error);
  EXPECT_THROW(panel.Grid(2001), std::logic_error);
}

}  // namespace
}  // namespace zwt::test
