#include <random>

#include <gtest/gtest.h>

#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"

namespace {

using zwt::Drawing;

/// All that a user sees of a drawing, as one text.
std::wstring Snapshot(const Drawing& drawing) {
  std::wstring all;
  for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) {
    if (!drawing.Entity(i).alive) continue;
    const std::string_view tags = drawing.Entity(i).tags;
    all += std::wstring(tags.begin(), tags.end());
    for (const std::int32_t pipe : drawing.GetConnections().ConnectedTo(i))
      all += L" " + std::to_wstring(pipe);
  }
  for (const zwt::Layer& layer : drawing.Data().layers) {
    if (layer.inTable) all += layer.name + L"\n";
  }
  for (const zwt::NamedRecord& record : drawing.Data().applications) {
    if (record.inTable) all += record.name + L"\n";
  }
  return all;
}

TEST(Undo, TakesBackAWholeStepAndGivesItAgain) {
  Drawing drawing;
  const std::wstring empty = Snapshot(drawing);
  drawing.BeginStep();
  const std::int32_t pipe = drawing.IndexOf(drawing.AddPipe({0, 0, 0}, {5, 0, 0}));
  drawing.SetDiameter(pipe, 50);
  drawing.InitLayer(L"新层");
  drawing.EndStep();
  const std::wstring full = Snapshot(drawing);
  EXPECT_TRUE(drawing.IsModified());
  drawing.Undo();
  EXPECT_EQ(Snapshot(drawing), empty);
  EXPECT_FALSE(drawing.IsModified());
  EXPECT_FALSE(drawing.CanUndo());
  drawing.Redo();
  EXPECT_EQ(Snapshot(drawing), full);
  EXPECT_FALSE(drawing.CanRedo());
}

TEST(Undo, NestedStepsAreOne) {
  Drawing drawing;
  drawing.BeginStep();
  drawing.AddPipe({0, 0, 0}, {1, 0, 0});
  drawing.BeginStep();
  drawing.AddPipe({0, 0, 0}, {2, 0, 0});
  drawing.EndStep();
  drawing.EndStep();
  drawing.Undo();
  EXPECT_TRUE(drawing.Pipes().empty());
}

TEST(Undo, AChangeAfterAnUndoDropsWhatWasUndone) {
  Drawing drawing;
  drawing.AddPipe({0, 0, 0}, {1, 0, 0});
  drawing.MarkSaved();
  drawing.Undo();
  EXPECT_TRUE(drawing.IsModified());
  drawing.AddPipe({0, 0, 0}, {2, 0, 0});
  EXPECT_FALSE(drawing.CanRedo());
  drawing.Undo();
  EXPECT_TRUE(drawing.IsModified()) << "the saved state cannot be reached any more";
  EXPECT_TRUE(drawing.Pipes().empty());
}

TEST(Undo, AStepThatChangesNothingIsNone) {
  Drawing drawing;
  const std::int32_t pipe = drawing.IndexOf(drawing.AddPipe({0, 0, 0}, {1, 0, 0}, {{L"Kh", L"2"}}));
  drawing.MarkSaved();
  drawing.SetFields(pipe, {{L"Kh", L"2"}});
  EXPECT_FALSE(drawing.IsModified());
}

TEST(Undo, AnyRunOfChangesGoesBackAndForthThroughEveryState) {
  std::mt19937 random(20240501);
  const auto pick = [&random](std::int32_t below) {
    return static_cast<std::int32_t>(random() % static_cast<unsigned>(below));
  };
  Drawing drawing;
  std::vector<std::wstring> states = {Snapshot(drawing)};
  for (int step = 0; step < 60; ++step) {
    drawing.BeginStep();
    drawing.AddPipe({0, 0, 0}, {static_cast<double>(step) + 1, 0, 0});
    for (int i = pick(4); i > 0; --i) {
      const std::int32_t entity = pick(drawing.EntityCount());
      if (pick(3) == 0) drawing.Erase(entity);
      if (pick(2) == 0) drawing.SetDiameter(entity, pick(500));
      if (pick(2) == 0) drawing.SetFields(entity, {{L"Kh", std::to_wstring(pick(9))}});
      if (pick(4) == 0) drawing.SetLayer(entity, drawing.InitLayer(L"L" + std::to_wstring(pick(5))), false);
    }
    drawing.EndStep();
    states.push_back(Snapshot(drawing));
  }
  for (std::size_t i = states.size() - 1; i-- > 0;) {
    drawing.Undo();
    ASSERT_EQ(Snapshot(drawing), states[i]) << i;
  }
  EXPECT_FALSE(drawing.IsModified());
  for (std::size_t i = 1; i < states.size(); ++i) {
    drawing.Redo();
    ASSERT_EQ(Snapshot(drawing), states[i]) << i;
  }
}

}  // namespace
