// Prompts for pipes and points answered by a script, and the drawing's changes as events.
#include "cli/editor_player.h"

#include <memory>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/script_error.h"
#include "host/drawing/tags.h"
#include "host/editor/result_buffer.h"

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;
using Kind = PipePick::Kind;

/// A drawing of three supply pipes and one fire main.
class EditorPlayerTest : public testing::Test {
 protected:
  EditorPlayerTest() {
    for (const double x : {0.0, 1000.0, 2000.0}) AddPipe(x, L"给水");
    AddPipe(3000, L"消防");
    player = std::make_unique<EditorPlayer>(drawing, log, [this] { return nextPoint; });
  }

  void AddPipe(double x, const wchar_t* system) {
    drawing.AddPipe({x, 0, 0}, {x, 0, 3000}, {{L"WtSystem", system}});
  }

  std::string HandleOf(std::int32_t pipe) const { return HandleText(drawing.Entity(pipe).handle); }

  /// Picks pipes of a system; gives their indices, "cancelled", or the problem.
  std::string Pick(Kind kind, const std::vector<std::string>& handles = {}, bool single = false,
                   const CString& system = L"给水") {
    player->Answer({"/steps/0/select", kind, handles});
    const auto filter = [&](AcDbObjectId id) {
      CString text;
      return drawing.GetField(drawing.IndexOf(id), L"WtSystem", text) && text == system;
    };
    try {
      const auto picked = player->SelectEntities(L"\n请选择: ", filter, single);
      if (!picked) return "cancelled";
      std::string indices;
      for (const AcDbObjectId id : *picked) indices += std::to_string(drawing.IndexOf(id));
      return indices;
    } catch (const ScriptError& error) {
      return error.what();
    }
  }

  Json Events() const { return Json::parse(log.Result())["events"]; }

  Drawing drawing;
  EventLog log;
  PointAnswer nextPoint = PointAnswer::kCancel;
  std::unique_ptr<EditorPlayer> player;
};

TEST_F(EditorPlayerTest, HandlesArePickedInTheirOrder) {
  EXPECT_EQ(Pick(Kind::kHandles, {HandleOf(2), HandleOf(0)}), "20");
}

TEST_F(EditorPlayerTest, HandlesCompareWithoutCaseAndLeadingZeros) {
  while (HandleOf(drawing.EntityCount() - 1).find_first_of("ABCDEF") == std::string::npos)
    AddPipe(0, L"热水");
  AddPipe(0, L"给水");
  std::int32_t lettered = drawing.EntityCount() - 1;
  while (HandleOf(lettered).find_first_of("ABCDEF") == std::string::npos) {
    AddPipe(0, L"给水");
    lettered = drawing.EntityCount() - 1;
  }
  std::string small = "00" + HandleOf(lettered);
  for (char& c : small) c = static_cast<char>(std::tolower(c));
  EXPECT_NE(small.substr(2), HandleOf(lettered));
  EXPECT_EQ(Pick(Kind::kHandles, {small}), std::to_string(lettered));
}

TEST_F(EditorPlayerTest, AllPicksWhatPassesTheFilterInDrawingOrder) {
  EXPECT_EQ(Pick(Kind::kAll), "012");
  EXPECT_EQ(Pick(Kind::kAll, {}, false, L"消防"), "3");
  EXPECT_EQ(Pick(Kind::kAll, {}, false, L"热水"), "");
}

TEST_F(EditorPlayerTest, AllLeavesErasedPipesOut) {
  drawing.Erase(1);
  EXPECT_EQ(Pick(Kind::kHandles, {"FFFFFF"}), "/steps/0/select: no entity has the handle \"FFFFFF\"");
  const std::string erased = HandleOf(1);
  EXPECT_EQ(Pick(Kind::kHandles, {erased}), "/steps/0/select: no entity has the handle \"" + erased + "\"");
}

TEST_F(EditorPlayerTest, CancellingIsNoAnswer) {
  EXPECT_EQ(Pick(Kind::kCancel), "cancelled");
}

TEST_F(EditorPlayerTest, AHandleThatThePromptDoesNotTakeIsAnError) {
  EXPECT_EQ(Pick(Kind::kHandles, {HandleOf(0), HandleOf(3)}),
            "/steps/0/select: the prompt does not take the entity \"" + HandleOf(3) + "\"");
}

TEST_F(EditorPlayerTest, WhatIsNoHandleIsAnError) {
  for (const char* text : {"", "0", "xyz", "-1", "12345678123456781", "1G"}) {
    EXPECT_EQ(Pick(Kind::kHandles, {text}),
              "/steps/0/select: no entity has the handle \"" + std::string(text) + "\"");
  }
}

TEST_F(EditorPlayerTest, APromptForOneTakesOne) {
  EXPECT_EQ(Pick(Kind::kHandles, {HandleOf(1)}, true), "1");
  EXPECT_EQ(Pick(Kind::kHandles, {HandleOf(1), HandleOf(2)}, true),
            "/steps/0/select: one pipe is asked for, 2 are given");
  EXPECT_EQ(Pick(Kind::kAll, {}, true, L"消防"), "3");
  EXPECT_EQ(Pick(Kind::kAll, {}, true), "/steps/0/select: one pipe is asked for, 3 fit: " + HandleOf(0) +
                                            ", " + HandleOf(1) + ", " + HandleOf(2));
  EXPECT_EQ(Pick(Kind::kAll, {}, true, L"热水"), "/steps/0/select: one pipe is asked for, none fits");
}

TEST_F(EditorPlayerTest, PromptsArePrintedLikeAnyText) {
  Pick(Kind::kAll);
  AcGePoint3d point;
  player->GetPoint(L"", point);
  player->GetPoint(L"\n点: ", point);
  acutPrintf(L"\n完成 %d.", 3);
  EXPECT_EQ(Events(), Json::parse(R"([{"event": "print", "text": "\n请选择: "},
                                      {"event": "print", "text": "\n点: "},
                                      {"event": "print", "text": "\n完成 3."}])"));
}

TEST_F(EditorPlayerTest, PointsAnswerAsTheUserDoes) {
  AcGePoint3d point;
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), RTCAN);
  nextPoint = PointAnswer::kNone;
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), RTNONE);
  nextPoint = PointAnswer::kPoint;
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), RTNORM);
}

TEST_F(EditorPlayerTest, ChangesOfTheDrawingAreEvents) {
  const std::string handle = HandleOf(0);
  drawing.SetDiameter(0, 25);
  drawing.SetDiameter(0, 25);
  drawing.SetFields(0, {{L"Kh", L"2.8"}});
  TextValues text;
  text.content = L"DN25";
  text.layer = drawing.InitLayer(L"标注");
  const AcDbObjectId added = drawing.AddText(text);
  const std::string textHandle = HandleOf(drawing.IndexOf(added));
  drawing.Erase(drawing.IndexOf(added));
  drawing.Erase(0);
  const Json diameter = {{"event", "set-diameter"}, {"handle", handle}, {"diameter", 25}};
  EXPECT_EQ(
      Events(),
      Json::array(
          {diameter,
           diameter,
           {{"event", "set-field"}, {"handle", handle}, {"key", "Kh"}, {"text", "2.8"}},
           {{"event", "add"}, {"handle", textHandle}, {"type", "TEXT"}, {"layer", "标注"}, {"text", "DN25"}},
           {{"event", "erase"},
            {"handle", textHandle},
            {"type", "TEXT"},
            {"layer", "标注"},
            {"text", "DN25"}},
           {{"event", "erase"}, {"handle", handle}, {"type", "LINE"}, {"layer", "0"}}}));
}

TEST_F(EditorPlayerTest, ARefusedChangeIsAMessage) {
  drawing.SetFields(0, {{L"Kh", CString(300, L'9')}});
  const Json events = Events();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]["event"], "message");
  EXPECT_NE(events[0]["text"], "");
}

TEST_F(EditorPlayerTest, NothingIsHeardAfterItsEnd) {
  player.reset();
  drawing.SetDiameter(0, 25);
  acutPrintf(L"\n完成.");
  EXPECT_EQ(Events(), Json::array());
  EXPECT_EQ(CurrentFrontEnd(), nullptr);
}

}  // namespace
}  // namespace zwt
