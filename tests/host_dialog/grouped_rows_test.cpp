// Reference tables in a grid.
#include "host/dialog/grouped_rows.h"

#include <gmock/gmock.h>

#include "host_dialog/sample_panel.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GroupedRowsTest : public testing::Test {
 protected:
  GroupedRowsTest() { SetUpColumns(grid, {{L"序", 23}, {L"名称", 120}, {L"当量", 70}}, 1); }
  SamplePanel panel;
  CGridCtrl& grid = panel.Grid(2040);
};

TEST_F(GroupedRowsTest, HeadingSharesItsNumberCellWithItsItems) {
  const int heading = AddGroupHeading(grid, L"1", L"洗脸盆");
  AddReferenceRow(grid, L"", NameBelowHeading(L"单阀水嘴"), {L"0.75"});
  AddReferenceRow(grid, L"", NameBelowHeading(L"混合水嘴"), {L"0.75"});
  CloseGroup(grid, heading);
  EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{1, 0, 3, 1}));
  EXPECT_EQ(grid.GetItemText(2, 1), L"    单阀水嘴");
  EXPECT_EQ(grid.GetItemBkColour(1, 0), std::nullopt);
  EXPECT_EQ(grid.GetItemBkColour(1, 2), kFaceColour);
}

TEST_F(GroupedRowsTest, GroupWithoutItemsShowsItsHeadingAlone) {
  CloseGroup(grid, AddGroupHeading(grid, L"1", L"空"));
  EXPECT_EQ(grid.GetRowCount(), 2);
  EXPECT_THAT(grid.MergedAreas(), IsEmpty());
}

TEST_F(GroupedRowsTest, SettingUpAgainDropsAllRows) {
  AddReferenceRow(grid, L"1", L"a", {L"b"});
  SetUpColumns(grid, {{L"x", 10}}, 0);
  EXPECT_EQ(grid.GetRowCount(), 1);
  EXPECT_EQ(grid.GetColumnCount(), 1);
  EXPECT_EQ(grid.GetItemText(0, 0), L"x");
}

}  // namespace
}  // namespace zwt::test
