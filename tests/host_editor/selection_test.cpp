#include "host/editor/selection.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>

#include "host/drawing/drawing.h"
#include "host/editor/front_end.h"
#include "host/editor/pipe_selection.h"
#include "host/editor/result_buffer.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zwt::Drawing;

class Player : public zwt::EditorFrontEnd {
 public:
  Player() : before_(zwt::InstallFrontEnd(this)) {}
  ~Player() override { zwt::InstallFrontEnd(before_); }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString& asked,
                                                          const zwt::EntityFilter& filter,
                                                          bool onlyOne) override {
    prompt = asked;
    single = onlyOne;
    for (const AcDbObjectId id : *answer) fits.push_back(filter(id));
    return answer;
  }
  std::int32_t GetPoint(const CString& asked, AcGePoint3d& point) override {
    prompt = asked;
    point = {1, 2, 3};
    return pointAnswer;
  }

  std::optional<std::vector<AcDbObjectId>> answer = std::vector<AcDbObjectId>{};
  std::int32_t pointAnswer = RTNORM;
  CString prompt;
  bool single = false;
  std::vector<bool> fits;

 private:
  zwt::EditorFrontEnd* before_;
};

class Selection : public testing::Test {
 protected:
  void SetUp() override { before_ = zwt::ReplaceWorkingDrawing(std::make_unique<Drawing>()); }
  void TearDown() override { zwt::ReplaceWorkingDrawing(std::move(before_)); }

  static AcDbObjectId Pipe(const CString& system, const CString& role, const CString& kind = L"0") {
    return zwt::WorkingDrawing().AddPipe({0, 0, 0}, {1, 0, 0},
                                         {{L"WtSystem", system}, {L"ELS_TYPE", role}, {L"Kind", kind}});
  }
  static std::vector<AcDbObjectId> Items(const ZcDbObjectIdList& list) {
    std::vector<AcDbObjectId> items;
    for (std::int32_t i = 0; i < list.GetLength(); ++i) items.push_back(list.GetAt(i));
    return items;
  }

 private:
  std::unique_ptr<Drawing> before_;
};

TEST_F(Selection, TheFilterOfTheSupplyCommandTakesItsEntryRisersOnly) {
  const AcDbObjectId cold = Pipe(L"给水", L"入口立管");
  const AcDbObjectId hot = Pipe(L"热水", L"入口立管");
  const AcDbObjectId riser = Pipe(L"给水", L"立管");
  const AcDbObjectId waste = Pipe(L"污水", L"入口立管");
  const AcDbObjectId other = Pipe(L"给水", L"入口立管", L"1");
  zwt::TextValues values;
  const AcDbObjectId text = zwt::WorkingDrawing().AddText(values);
  Player player;
  player.answer = {hot, riser, waste, other, text, cold, hot};
  resbuf* filter = acutBuildList(5020, L"ZWT_PIPE", 70, 0, 300, L"给水,热水", 301, L"入口立管", 0);
  ZwtSelSet set;
  EXPECT_EQ(set.userSelect(L"\n请选择要计算的原理图干管末端: ", nullptr, filter), Acad::eOk);
  acutRelRb(filter);
  EXPECT_EQ(player.prompt, L"\n请选择要计算的原理图干管末端: ");
  EXPECT_FALSE(player.single);
  EXPECT_THAT(player.fits, ElementsAre(true, false, false, false, false, true, true));
  EXPECT_THAT(Items(set.asList()), ElementsAre(hot, cold));
  EXPECT_EQ(set.asEnt(), hot);
}

TEST_F(Selection, AMissingKindCountsAsZeroAndAMissingSystemAsEmpty) {
  const AcDbObjectId bare = zwt::WorkingDrawing().AddPipe({0, 0, 0}, {1, 0, 0});
  const zwt::Drawing& drawing = zwt::WorkingDrawing();
  const std::int32_t index = drawing.IndexOf(bare);
  resbuf* kind = acutBuildList(70, 0, 0);
  resbuf* system = acutBuildList(300, L"给水", 0);
  EXPECT_TRUE(PassesFilter(drawing, index, kind));
  EXPECT_FALSE(PassesFilter(drawing, index, system));
  acutRelRb(kind);
  acutRelRb(system);
}

TEST_F(Selection, WordsOfTheFilterMustMatchWhole) {
  const AcDbObjectId pipe = Pipe(L"热", L"立管");
  resbuf* filter = acutBuildList(300, L"给水,热水", 0);
  EXPECT_FALSE(PassesFilter(zwt::WorkingDrawing(), zwt::WorkingDrawing().IndexOf(pipe), filter));
  acutRelRb(filter);
}

TEST_F(Selection, ATypeThatIsUnknownFitsNothing) {
  const AcDbObjectId pipe = Pipe(L"给水", L"立管");
  resbuf* filter = acutBuildList(62, 1, 0);
  EXPECT_FALSE(PassesFilter(zwt::WorkingDrawing(), zwt::WorkingDrawing().IndexOf(pipe), filter));
  acutRelRb(filter);
}

TEST_F(Selection, CancellingOrPickingNothingLeavesTheSetEmpty) {
  const AcDbObjectId pipe = Pipe(L"给水", L"立管");
  Player player;
  player.answer = {pipe};
  ZwtSelSet set;
  EXPECT_EQ(set.userSelect(L"?", nullptr, nullptr), Acad::eOk);
  player.answer = std::vector<AcDbObjectId>{};
  EXPECT_NE(set.userSelect(L"?", nullptr, nullptr), Acad::eOk);
  EXPECT_THAT(Items(set.asList()), IsEmpty());
  EXPECT_TRUE(set.asEnt().isNull());
}

TEST_F(Selection, SingleOnlyTakesOnePick) {
  const AcDbObjectId first = Pipe(L"给水", L"立管");
  const AcDbObjectId second = Pipe(L"给水", L"立管");
  Player player;
  player.answer = {second, first};
  ZwtSelSet set;
  set.setAllowSingleOnly(true, true);
  EXPECT_EQ(set.userSelect(L"?", nullptr, nullptr), Acad::eOk);
  EXPECT_TRUE(player.single);
  EXPECT_THAT(Items(set.asList()), ElementsAre(second));
}

TEST_F(Selection, WithoutAFrontEndEveryQuestionIsCancelled) {
  zwt::EditorFrontEnd* before = zwt::InstallFrontEnd(nullptr);
  ZwtSelSet set;
  EXPECT_EQ(set.userSelect(L"?", nullptr, nullptr), Acad::eUserBreak);
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, nullptr), RTCAN);
  zwt::InstallFrontEnd(before);
}

/// A front end that gives a question up.
class GivingUp : public zwt::EditorFrontEnd {
 public:
  std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString&, const zwt::EntityFilter&,
                                                          bool) override {
    throw std::runtime_error("no such handle");
  }
  std::int32_t GetPoint(const CString&, AcGePoint3d&) override { return RTCAN; }
};

// A handle that no pipe has ends a headless selection by an exception; the filter used to leak then.
TEST_F(Selection, AQuestionThatIsGivenUpComesThroughAndReleasesItsFilter) {
  GivingUp user;
  zwt::EditorFrontEnd* before = zwt::InstallFrontEnd(&user);
  ZcDbObjectIdList picked;
  EXPECT_THROW(zwt::SelectPipes({L"\n请选择管道: ", L"给水", L"入口立管"}, picked), std::runtime_error);
  EXPECT_TRUE(picked.IsEmpty());
  zwt::InstallFrontEnd(before);
}

TEST_F(Selection, PointsComeFromTheFrontEnd) {
  Player player;
  AcGePoint3d point;
  EXPECT_EQ(acedGetPoint(nullptr, L"\n点: ", &point), 5100);
  EXPECT_EQ(point, (AcGePoint3d{1, 2, 3}));
  EXPECT_EQ(player.prompt, L"\n点: ");
  player.pointAnswer = RTNONE;
  point = {};
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, &point), 5000);
  EXPECT_EQ(point, AcGePoint3d{});
  player.pointAnswer = RTCAN;
  EXPECT_EQ(acedGetPoint(nullptr, nullptr, nullptr), -5002);
}

}  // namespace
