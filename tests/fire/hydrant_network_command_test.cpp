// The command from the pick to the labels, and what it says when it can't go on.
#include <vector>

#include <gtest/gtest.h>

#include "fire/hydrant_drawing.h"
#include "fire/hydrant_network_dialog.h"
#include "host/drawing/entities.h"
#include "support/drawing_fixture.h"
#include "support/recorded_command_line.h"

namespace zwt {
namespace {

using testing_rings::DrawHydrants;
using testing_rings::HydrantDrawing;

/// Counts the texts that come and go.
class TextCounter : public DrawingObserver {
 public:
  TextCounter() { WorkingDrawing().AddObserver(this); }
  ~TextCounter() override { WorkingDrawing().RemoveObserver(this); }
  TextCounter(const TextCounter&) = delete;
  TextCounter& operator=(const TextCounter&) = delete;

  void OnChange(const DrawingChange& change) override {
    if (change.kind == DrawingChange::Kind::Add && change.hasText) added.push_back(change.text);
    if (change.kind == DrawingChange::Kind::Erase && change.hasText) erased.push_back(change.text);
    if (change.kind == DrawingChange::Kind::Graphics) addedWhenDrawn = added.size();
  }

  std::vector<CString> added;
  std::vector<CString> erased;
  std::size_t addedWhenDrawn = 0;
};

class HydrantCommand : public test::DrawingTest {
 protected:
  void Run(AcDbObjectId pick) {
    user.selections.push_back({pick});
    RunHydrantNetworkCommand();
  }

  TextCounter texts;
  test::RecordedCommandLine line;
};

TEST_F(HydrantCommand, AsksForOneFirePipe) {
  const HydrantDrawing drawing = DrawHydrants({2, 2});
  ZwtSetEntityFields(drawing.mainEnd, L"WtSystem", L"给水");
  Run(drawing.mainEnd);
  EXPECT_EQ(user.prompts, std::vector<CString>{L"\n请选择要计算的消防原理图干管末端: "});
  EXPECT_TRUE(user.askedForOne);
  EXPECT_TRUE(line.printed.empty()) << "a pipe of another system is not picked";
}

TEST_F(HydrantCommand, ACancelledPickEndsItWithoutAWord) {
  DrawHydrants({2, 2});
  RunHydrantNetworkCommand();
  EXPECT_TRUE(line.printed.empty());
  EXPECT_TRUE(texts.added.empty());
}

TEST_F(HydrantCommand, LabelsEveryNodeAndTakesTheLabelsBack) {
  Run(DrawHydrants({2, 1}).mainEnd);
  EXPECT_EQ(texts.added, (std::vector<CString>{L"1", L"2", L"3", L"4"}));
  EXPECT_EQ(texts.erased, texts.added);
  EXPECT_EQ(texts.addedWhenDrawn, 4U);
  EXPECT_TRUE(line.printed.empty());
}

TEST_F(HydrantCommand, DifferentNumbersOfHydrantsGiveBothMessagesTheSpecificOneFirst) {
  const HydrantDrawing drawing = DrawHydrants({2, 3});
  ZwtSetEntityFields(drawing.topBranches[0], L"LayerNum", L"2");
  Run(drawing.mainEnd);
  EXPECT_EQ(line.printed, L"\n每根立管所连接消火栓数量不同.\n创建管网数据失败.");
  EXPECT_TRUE(texts.added.empty());
}

TEST_F(HydrantCommand, ANetworkOfBranchesIsRefusedAndNoLabelsAreLeft) {
  Run(DrawHydrants({2, 3, 3000, 8000, 5000, false}).mainEnd);
  EXPECT_EQ(line.printed, L"\n无法计算枝状消火栓系统.");
  EXPECT_TRUE(texts.added.empty());
}

TEST_F(HydrantCommand, APickThatIsNoEndOfTheNetworkIsRefused) {
  DrawHydrants({2, 3});
  Run(WorkingDrawing().IdOf(WorkingDrawing().Pipes()[2]));
  EXPECT_EQ(line.printed, L"\n创建管网数据失败.");
}

}  // namespace
}  // namespace zwt
