// Arrangement of controls.
#include "desktop/panel_plan.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

/// Numbers of a box's controls, row by row.
std::vector<std::vector<int>> Rows(const PanelBox& box) {
  std::vector<std::vector<int>> rows;
  for (const PanelRow& row : box.rows) {
    rows.emplace_back();
    for (const ControlTemplate* control : row) rows.back().push_back(control->id);
  }
  return rows;
}

using Numbers = std::vector<std::vector<int>>;

TEST(PanelPlan, BesidePutsAControlIntoTheRowBefore) {
  constexpr ControlTemplate controls[] = {{.id = 1}, {.id = 2, .place = Placement::kBeside}, {.id = 3}};
  const PanelPlan plan = PlanPanel({.controls = controls});
  EXPECT_EQ(Rows(plan.bands.at(0).columns.at(0).at(0)), (Numbers{{1, 2}, {3}}));
}

TEST(PanelPlan, ButtonRowStandsApart) {
  constexpr ControlTemplate controls[] = {{.id = 1},
                                          {.id = 2, .place = Placement::kButtonRow},
                                          {.id = 3},
                                          {.id = 4, .place = Placement::kButtonRow}};
  const PanelPlan plan = PlanPanel({.controls = controls});
  EXPECT_EQ(Rows(plan.bands.at(0).columns.at(0).at(0)), (Numbers{{1}, {3}}));
  ASSERT_EQ(plan.buttonRow.size(), 2U);
  EXPECT_EQ(plan.buttonRow[1]->id, 4);
}

TEST(PanelPlan, NeighboursOfOneGroupShareABoxAndAGroupThatComesAgainIsAnother) {
  constexpr ControlTemplate controls[] = {{.id = 1, .group = L"甲"},
                                          {.id = 2, .group = L"甲"},
                                          {.id = 3, .group = L"乙"},
                                          {.id = 4, .group = L"甲"}};
  const PanelPlan plan = PlanPanel({.controls = controls});
  const auto& boxes = plan.bands.at(0).columns.at(0);
  ASSERT_EQ(boxes.size(), 3U);
  EXPECT_EQ(Rows(boxes[0]), (Numbers{{1}, {2}}));
  EXPECT_STREQ(boxes[2].title, L"甲");
}

TEST(PanelPlan, ColumnsStandSideBySideUntilOneGoesBackToTheLeft) {
  constexpr ControlTemplate controls[] = {{.id = 1, .group = L"甲"},
                                          {.id = 2, .group = L"乙", .column = 1},
                                          {.id = 3, .group = L"丙", .column = 1},
                                          {.id = 4, .group = L"丁"}};
  const PanelPlan plan = PlanPanel({.controls = controls});
  ASSERT_EQ(plan.bands.size(), 2U);
  ASSERT_EQ(plan.bands[0].columns.size(), 2U);
  EXPECT_EQ(plan.bands[0].columns[1].size(), 2U);
  EXPECT_EQ(Rows(plan.bands[1].columns.at(0).at(0)), (Numbers{{4}}));
}

TEST(PanelPlan, LabelControlGoesWithItsFieldAndGivesItItsPlace) {
  constexpr ControlTemplate controls[] = {{.id = 1},
                                          {.id = 3001, .labelOf = 2},
                                          {.id = 2, .place = Placement::kBeside},
                                          {.id = 3},
                                          {.id = 3002, .labelOf = 3}};
  const PanelPlan plan = PlanPanel({.controls = controls});
  EXPECT_EQ(Rows(plan.bands.at(0).columns.at(0).at(0)), (Numbers{{1}, {2}, {3}}));
}

TEST(PanelPlan, PanelWithoutControlsIsEmpty) {
  const PanelPlan plan = PlanPanel({});
  EXPECT_TRUE(plan.bands.empty());
  EXPECT_TRUE(plan.buttonRow.empty());
}

}  // namespace
}  // namespace zwt::test
