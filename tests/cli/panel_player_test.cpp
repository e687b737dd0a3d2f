// Scripts played on a panel with one control of each kind, and the events that this gives.
#include "cli/panel_player.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/script_error.h"
#include "host_dialog/sample_panel.h"

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;
using test::SamplePanel;

/// One run of a script whose only command opens one sample panel, or does what open says.
class PanelPlayerTest : public testing::Test {
 protected:
  Json Play(const std::string& steps) {
    return Play(steps, [&] { panel.DoModal(); });
  }

  Json Play(const std::string& steps, const std::function<void()>& open) {
    const RunScript script =
        ReadRunScript(R"({"steps": [{"command": "ZWTSAMPLE", "panel": )" + steps + "}]}");
    PanelPlayer player(log);
    const PresenterInForce inForce(player);
    nextPoint = [&] { return player.NextPoint(); };
    player.Play(script.steps[0].panel, "/steps/0/panel", open);
    return Json::parse(log.Result())["events"];
  }

  std::string Problem(const std::string& steps) {
    return Problem(steps, [&] { panel.DoModal(); });
  }

  std::string Problem(const std::string& steps, const std::function<void()>& open) {
    try {
      Play(steps, open);
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  /// The state of one control after some steps.
  Json State(const std::string& steps, const std::string& control) {
    const std::string read = R"({"read": [")" + control + "\"]}";
    const Json events = Play("[" + steps + (steps.empty() ? "" : ", ") + read + "]");
    return events[events.size() - 2]["values"].front();
  }

  EventLog log;
  SamplePanel panel;
  std::function<PointAnswer()> nextPoint;
};

constexpr const char* kOpen = R"({"event": "open", "panel": 2999, "class": "SamplePanel", "title": "样板"})";
constexpr const char* kCancelled = R"({"event": "close", "panel": 2999, "code": 2})";

TEST_F(PanelPlayerTest, APanelWithoutStepsIsClosedByItsCloseBox) {
  EXPECT_EQ(Play("[]"), Json::array({Json::parse(kOpen), Json::parse(kCancelled)}));
}

TEST_F(PanelPlayerTest, TheStepsArePlayedInOrder) {
  std::string order;
  panel.OnLeave(2001, [&] { order += "1"; });
  panel.OnLeave(2002, [&] { order += "2"; });
  panel.OnClick(2030, [&] { order += panel.UpdateData(true) ? "c" : "r"; });
  Play(R"([{"set": {"2002": "3", "users": "12.5"}}, {"click": 2030}])");
  EXPECT_EQ(order, "21c");
  EXPECT_EQ(panel.users, 12.5);
  EXPECT_EQ(panel.count, 3);
}

TEST_F(PanelPlayerTest, ARefusedFieldGivesAFocusEventAndThePanelStaysOpen) {
  const Json events = Play(R"([{"set": {"2001": "x"}}, {"click": 1}, {"set": {"2001": "2"}}, {"click": 1}])");
  ASSERT_EQ(events.size(), 3U);
  EXPECT_EQ(events[1],
            Json::parse(R"({"event": "focus", "panel": 2999, "control": 2001, "selected": true})"));
  EXPECT_EQ(events[2], Json::parse(R"({"event": "close", "panel": 2999, "code": 1})"));
}

TEST_F(PanelPlayerTest, FocusWithoutSelectionIsToldAsSuch) {
  panel.OnClick(2030, [&] { panel.GetDlgItem(2003).SetFocus(); });
  EXPECT_EQ(Play(R"([{"click": 2030}])")[1],
            Json::parse(R"({"event": "focus", "panel": 2999, "control": 2003, "selected": false})"));
}

TEST_F(PanelPlayerTest, MessagesAreRecordedAndAnswered) {
  panel.OnClick(2030, [&] {
    panel.MessageBoxW(L"参数不足！", L"错误", MB_ICONSTOP);
    AfxMessageBox(L"完成");
  });
  const Json events = Play(R"([{"click": 2030}])");
  EXPECT_EQ(events[1],
            Json::parse(R"({"event": "message", "text": "参数不足！", "caption": "错误", "icon": "stop"})"));
  EXPECT_EQ(events[2], Json::parse(R"({"event": "message", "text": "完成", "caption": "", "icon": "none"})"));
}

TEST_F(PanelPlayerTest, TheCloseStepTakesTheCancelPath) {
  EXPECT_EQ(Play(R"([{"close": true}])").back(), Json::parse(kCancelled));
}

TEST_F(PanelPlayerTest, ANestedPanelPlaysItsOwnSteps) {
  SamplePanel inner;
  int code = 0;
  panel.OnClick(2030, [&] {
    code = inner.DoModal();
    panel.SetDlgItemText(2003, L"zurück");
  });
  const Json events = Play(
      R"([{"click": 2030, "panel": [{"set": {"2001": "5"}}, {"click": 1}]}, {"read": [2003]}, {"close": true}])");
  ASSERT_EQ(events.size(), 5U);
  EXPECT_EQ(events[1], Json::parse(kOpen));
  EXPECT_EQ(events[2]["code"], 1);
  EXPECT_EQ(events[3]["values"]["2003"]["text"], "zurück");
  EXPECT_EQ(code, 1);
  EXPECT_EQ(inner.users, 5);
}

TEST_F(PanelPlayerTest, ANestedPanelWithoutStepsIsClosed) {
  SamplePanel inner;
  panel.OnClick(2030, [&] { inner.DoModal(); });
  const Json events = Play(R"([{"click": 2030}, {"set": {"2003": "weiter"}}])");
  EXPECT_EQ(events.size(), 4U);
  EXPECT_EQ(events[2], Json::parse(kCancelled));
}

TEST_F(PanelPlayerTest, OnlyTheFirstPanelOfAnActionTakesTheSteps) {
  SamplePanel first;
  SamplePanel second;
  panel.OnClick(2030, [&] {
    first.DoModal();
    second.DoModal();
  });
  const Json events = Play(R"([{"click": 2030, "panel": [{"click": 1}]}])");
  EXPECT_EQ(events[2]["code"], 1);
  EXPECT_EQ(events[4]["code"], 2);
}

TEST_F(PanelPlayerTest, APanelOpensFromADoubleClick) {
  SamplePanel inner;
  panel.Grid(2040).SetColumnCount(1);
  panel.Grid(2040).SetRowCount(1);
  panel.OnCell(2040, CellNotice::kDoubleClick, [&](int, int) { inner.DoModal(); });
  const Json events = Play(R"([{"cell": [2040, 0, 0], "do": "double-click", "panel": [{"click": 1}]}])");
  EXPECT_EQ(events[2]["code"], 1);
}

TEST_F(PanelPlayerTest, PointPromptsAreAnsweredInOrderThenCancelled) {
  std::vector<PointAnswer> answers;
  panel.OnClick(2030, [&] {
    for (int i = 0; i < 4; ++i) answers.push_back(nextPoint());
  });
  Play(R"([{"click": 2030, "points": ["point", "none"]}])");
  EXPECT_EQ(answers, (std::vector<PointAnswer>{PointAnswer::kPoint, PointAnswer::kNone, PointAnswer::kCancel,
                                               PointAnswer::kCancel}));
}

TEST_F(PanelPlayerTest, PointsOfOneClickDoNotReachTheNext) {
  std::vector<PointAnswer> answers;
  panel.OnClick(2030, [&] { answers.push_back(nextPoint()); });
  Play(R"([{"click": 2030, "points": ["point", "point"]}, {"click": 2030}])");
  EXPECT_EQ(answers, (std::vector<PointAnswer>{PointAnswer::kPoint, PointAnswer::kCancel}));
}

TEST_F(PanelPlayerTest, AProgressPanelIsOneEventWithItsText) {
  SamplePanel progress;
  panel.OnClick(2030, [&] {
    progress.ShowModeless();
    progress.CloseModeless();
  });
  EXPECT_EQ(Play(R"([{"click": 2030}])")[1], Json::parse(R"j({"event": "progress", "text": "高度(m):"})j"));
}

TEST_F(PanelPlayerTest, EditsShowTheirState) {
  EXPECT_EQ(
      State(R"({"set": {"2003": "新"}})", "note"),
      Json::parse(R"({"kind": "edit", "text": "新", "enabled": true, "visible": true, "readonly": false})"));
  EXPECT_EQ(
      State("", "2004"),
      Json::parse(R"({"kind": "edit", "text": "", "enabled": true, "visible": true, "readonly": true})"));
}

TEST_F(PanelPlayerTest, CombosShowItemsAndIndex) {
  EXPECT_EQ(State(R"({"index": {"2010": 2}})", "2010"),
            Json::parse(R"({"kind": "combo", "text": "蓝", "enabled": true, "visible": true, "index": 2,
                            "items": ["红", "绿", "蓝"]})"));
  EXPECT_EQ(State(R"({"set": {"2011": "1.8"}})", "2011"),
            Json::parse(R"({"kind": "combo", "text": "1.8", "enabled": true, "visible": true, "index": -1,
                            "items": ["1.5", "2.0"]})"));
}

TEST_F(PanelPlayerTest, ButtonsShowWhetherTheyAreChecked) {
  EXPECT_EQ(
      State(R"({"click": 2021})", "2021"),
      Json::parse(R"({"kind": "radio", "text": "乙", "enabled": true, "visible": true, "checked": true})"));
  EXPECT_EQ(State(R"({"click": 2021})", "2020")["checked"], false);
  EXPECT_EQ(
      State(R"j({"click": "计入(A)"})j", "2023"),
      Json::parse(
          R"j({"kind": "check", "text": "计入(&A)", "enabled": true, "visible": true, "checked": true})j"));
  EXPECT_EQ(State("", "2031"),
            Json::parse(R"({"kind": "button", "text": "..", "enabled": false, "visible": true})"));
  EXPECT_EQ(State("", "2060"),
            Json::parse(R"({"kind": "button", "text": "藏", "enabled": true, "visible": false})"));
}

TEST_F(PanelPlayerTest, StaticsShowTheirText) {
  EXPECT_EQ(State("", "3005"),
            Json::parse(R"j({"kind": "static", "text": "高度(m):", "enabled": true, "visible": true})j"));
}

TEST_F(PanelPlayerTest, ListsShowCellsAndSelection) {
  CListCtrl& list = panel.List(2050);
  list.InsertColumn(L"名称", 80);
  list.InsertColumn(L"数量", 40);
  list.InsertItem(L"洗脸盆");
  list.SetItemText(list.InsertItem(L"浴盆"), 1, L"2");
  EXPECT_EQ(State(R"({"cell": [2050, 1, 0], "do": "click"})", "2050"),
            Json::parse(R"({"kind": "list", "text": "", "enabled": true, "visible": true,
                            "cells": [["洗脸盆", ""], ["浴盆", "2"]], "selected": [1]})"));
}

TEST_F(PanelPlayerTest, GridsShowAllThatACellCarries) {
  CGridCtrl& grid = panel.Grid(2040);
  grid.SetColumnCount(3);
  grid.SetRowCount(2);
  grid.SetFixedRowCount(1);
  grid.SetColumnWidth(0, 55);
  grid.SetColumnWidth(1, 0);
  grid.SetColumnWidth(2, 70);
  grid.SetItemText(0, 0, L"编号");
  grid.SetItemText(1, 2, L"25");
  grid.SetReadOnly(1, 0);
  grid.SetModified(1, 2, true);
  grid.SetItemBkColour(1, 2, kRed);
  grid.SetCombo(1, 2, {{L"20", L"25"}, 2});
  grid.SetCellCombine(0, 0, 0, 1);
  grid.SetCellCombine(1, 1, 0, 0);
  grid.SetEditable(true);
  EXPECT_EQ(
      State(R"({"cells": [2040, 1, 2, 0, 1]})", "2040"),
      Json::parse(R"({"kind": "grid", "text": "", "enabled": true, "visible": true, "rows": 2, "columns": 3,
                            "cells": [["编号", "", ""], ["", "", "25"]], "widths": [55, 0, 70],
                            "readonly": [[1, 0]], "modified": [[1, 2]], "background": [[1, 2, 255]],
                            "choices": [[1, 2, ["20", "25"]]], "merged": [[0, 0, 1, 2]],
                            "selected": [0, 1, 1, 2]})"));
}

TEST_F(PanelPlayerTest, AGridWithoutSelectionShowsNull) {
  panel.Grid(2040).SetColumnCount(1);
  panel.Grid(2040).SetRowCount(1);
  EXPECT_TRUE(State("", "2040")["selected"].is_null());
  EXPECT_TRUE(State(R"({"cell": [2040, 0, 0], "do": "click"}, {"cell": [2040, -1, -1], "do": "select"})",
                    "2040")["selected"]
                  .is_null());
}

TEST_F(PanelPlayerTest, ReadAllShowsEveryControlInTheOrderOfThePanel) {
  const Json values = Play(R"([{"read": "all"}])")[1]["values"];
  std::string keys;
  for (const auto& item : values.items()) keys += item.key() + " ";
  EXPECT_EQ(keys, "2001 2002 2003 2004 2005 2010 2011 2020 2021 2022 2023 2030 2031 2040 2041 2050 2060 1 ");
}

TEST_F(PanelPlayerTest, ReadingByNameOrLabelShowsTheNumber) {
  const Json values = Play(R"([{"read": ["users", "件数(N)：", "高度(m):", 2001]}])")[1]["values"];
  EXPECT_EQ(values.size(), 3U);
  EXPECT_TRUE(values.contains("2001") && values.contains("2002") && values.contains("2005"));
}

struct Refusal {
  const char* name;
  const char* steps;
  const char* problem;
};

void PrintTo(const Refusal& row, std::ostream* out) {
  *out << row.name;
}

class RefusedStep : public PanelPlayerTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedStep, EndsTheRunWithItsPlace) {
  EXPECT_EQ(Problem(GetParam().steps), GetParam().problem);
}

constexpr Refusal kRefusals[] = {
    {"UnknownNumber", R"([{"read": [2001]}, {"read": [1, 2998]}])",
     "/steps/0/panel/1: no control 2998 in panel 2999"},
    {"UnknownName", R"([{"set": {"2001": "1", "quota": "1"}}])",
     "/steps/0/panel/0: no control \"quota\" in panel 2999"},
    {"SharedLabel", R"([{"click": ".."}])",
     "/steps/0/panel/0: several controls of panel 2999 bear the label \"..\": 2030, 2031"},
    {"Disabled", R"([{"click": 2031}])", "/steps/0/panel/0: control 2031 is disabled"},
    {"Hidden", R"([{"click": 2060}])", "/steps/0/panel/0: control 2060 is hidden"},
    {"ReadOnly", R"([{"set": {"2004": "1"}}])", "/steps/0/panel/0: control 2004 is read-only"},
    {"NoSuchItem", R"([{"set": {"2010": "黄"}}])", "/steps/0/panel/0: control 2010 has no item \"黄\""},
    {"NoSuchIndex", R"([{"index": {"2010": 3}}])", "/steps/0/panel/0: control 2010 has no item 3"},
    {"NoSuchCell", R"([{"cell": [2040, 0, 0], "do": "click"}])",
     "/steps/0/panel/0: no control 2040 cell [0, 0]"},
    {"NoPanelFromClick", R"([{"click": 2030, "panel": [{"close": true}]}])",
     "/steps/0/panel/0/panel: no panel has opened"},
    {"ClosedTooSoon", R"([{"click": 1}, {"set": {}}])",
     "/steps/0/panel/1: panel 2999 has closed before this step"},
};

INSTANTIATE_TEST_SUITE_P(Rows, RefusedStep, testing::ValuesIn(kRefusals),
                         [](const auto& row) { return row.param.name; });

TEST_F(PanelPlayerTest, AnErrorInANestedPanelNamesTheNestedPlace) {
  SamplePanel inner;
  panel.OnClick(2030, [&] { inner.DoModal(); });
  EXPECT_EQ(Problem(R"([{"close": true}])", [] {}), "/steps/0/panel: no panel has opened");
  EXPECT_EQ(Problem(R"([{"click": 2030, "panel": [{"read": "all"}, {"click": 2998}]}])"),
            "/steps/0/panel/0/panel/1: no control 2998 in panel 2999");
}

TEST_F(PanelPlayerTest, AnEmptyListOfStepsNeedsNoPanel) {
  EXPECT_EQ(Play("[]", [] {}), Json::array());
  EXPECT_EQ(Play(R"([{"click": 2030, "panel": []}])").size(), 2U);
}

TEST_F(PanelPlayerTest, APanelThatStaysOpenAfterItsCloseBoxIsAnError) {
  panel.OnClick(2, [] {});
  EXPECT_EQ(Problem(R"([{"set": {"2001": "1"}}])"),
            "/steps/0/panel: panel 2999 stays open after its close box");
}

TEST_F(PanelPlayerTest, ACloseBoxThatIsRefusedOnceMayBePressedAgain) {
  int presses = 0;
  panel.OnClick(2, [&] {
    if (++presses == 2) panel.EndDialog(IDCANCEL);
  });
  EXPECT_EQ(Play(R"([{"close": true}])").back(), Json::parse(kCancelled));
}

TEST_F(PanelPlayerTest, AnErrorLeavesNoPanelOpenAndNoListenerBehind) {
  EXPECT_NE(Problem(R"([{"click": 2998}])"), "");
  EXPECT_EQ(OpenPanelCount(), 0);
  const std::string before = log.Result();
  panel.Edit(2001).FocusAndSelect();
  EXPECT_EQ(log.Result(), before);
}

}  // namespace
}  // namespace zwt
