// The grid model.
#include "host/dialog/grid_control.h"

#include <gmock/gmock.h>

#include "host_dialog/sample_panel.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid.SetColumnCount(3);
    grid.SetRowCount(1);
    grid.SetFixedRowCount(1);
    grid.SetFixedColumnCount(1);
  }
  SamplePanel panel;
  CGridCtrl& grid = panel.Grid(2040);
};

TEST_F(GridTest, InsertRowPutsTheTitleIntoTheFirstColumn) {
  EXPECT_EQ(grid.InsertRow(L"1#-1层", -1), 1);
  EXPECT_EQ(grid.GetItemText(1, 0), L"1#-1层");
  EXPECT_EQ(grid.GetItemText(1, 2), L"");
}

TEST_F(GridTest, PlacesOutsideReadAsEmptyAndTakeNothing) {
  EXPECT_FALSE(grid.SetItemText(5, 0, L"x"));
  EXPECT_EQ(grid.GetItemText(-1, 0), L"");
  grid.SetItemData(0, 7, L"x");
  EXPECT_EQ(grid.GetItemData(0, 7), L"");
}

TEST_F(GridTest, CombineCoversFurtherRowsAndColumns) {
  grid.InsertRow(L"a");
  grid.InsertRow(L"b");
  grid.SetFixedCellCombine(1, 0, 1, 0);
  grid.SetCellCombine(0, 0, 0, 2);
  EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{1, 0, 2, 1}, MergedArea{0, 0, 1, 3}));
}

TEST_F(GridTest, CombiningOneCellAloneIsNoArea) {
  grid.InsertRow(L"a");
  grid.SetFixedCellCombine(1, 0, 0, 0);
  EXPECT_THAT(grid.MergedAreas(), IsEmpty());
}

TEST_F(GridTest, AreasMoveWithInsertedAndDeletedRows) {
  grid.InsertRow(L"a");
  grid.InsertRow(L"b");
  grid.SetCellCombine(2, 0, 0, 2);
  grid.InsertRow(L"new", 1);
  EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{3, 0, 1, 3}));
  grid.DeleteRow(1);
  EXPECT_THAT(grid.MergedAreas(), ElementsAre(MergedArea{2, 0, 1, 3}));
  grid.DeleteRow(2);
  EXPECT_THAT(grid.MergedAreas(), IsEmpty());
}

TEST_F(GridTest, DeletingNonFixedRowsKeepsTheHeader) {
  grid.SetItemText(0, 1, L"管长(m)");
  grid.InsertRow(L"a");
  grid.SetSelectedRange({1, 0, 1, 0});
  grid.DeleteNonFixedRows();
  EXPECT_EQ(grid.GetRowCount(), 1);
  EXPECT_EQ(grid.GetItemText(0, 1), L"管长(m)");
  EXPECT_FALSE(grid.GetSelectedCellRange().IsValid());
}

TEST_F(GridTest, MarksAndColoursBelongToCells) {
  grid.InsertRow(L"a");
  grid.SetReadOnly(1, 1);
  grid.SetModified(1, 1, true);
  grid.SetItemBkColour(1, 2, kRed);
  EXPECT_TRUE(grid.IsReadOnly(1, 1));
  EXPECT_TRUE(grid.IsModified(1, 1));
  grid.SetModified(1, 1, false);
  EXPECT_TRUE(grid.IsReadOnly(1, 1));
  EXPECT_FALSE(grid.IsModified(1, 1));
  EXPECT_EQ(grid.GetItemBkColour(1, 2), kRed);
  EXPECT_EQ(grid.GetItemBkColour(1, 1), std::nullopt);
}

TEST_F(GridTest, TakesTextOnlyWhereOpenForIt) {
  grid.InsertRow(L"a");
  EXPECT_FALSE(grid.TakesText(1, 1));
  grid.SetEditable(true);
  EXPECT_TRUE(grid.TakesText(1, 1));
  EXPECT_FALSE(grid.TakesText(0, 1));
  EXPECT_FALSE(grid.TakesText(1, 0));
  grid.SetReadOnly(1, 1);
  EXPECT_FALSE(grid.TakesText(1, 1));
}

TEST_F(GridTest, SelectionOutsideSelectsNothing) {
  grid.SetSelectedRange({0, 0, 0, 2});
  EXPECT_EQ(grid.GetSelectedCellRange(), (CCellRange{0, 0, 0, 2}));
  grid.SetSelectedRange({-1, 0, -1, 0});
  EXPECT_EQ(grid.GetSelectedCellRange(), CCellRange());
}

TEST(WtGrid, ReportsCellsThatTheProgramWrites) {
  SamplePanel panel;
  ZcUiWtGridCtrl& grid = panel.WtGrid(2041);
  grid.SetColumnCount(2);
  grid.SetRowCount(1);
  std::vector<std::pair<int, int>> changed;
  panel.OnCell(2041, CellNotice::kChanged, [&](int row, int column) { changed.emplace_back(row, column); });
  grid.SetItemText(0, 1, L"2");
  grid.SetItemText(0, 1, L"2");
  EXPECT_THAT(changed, ElementsAre(std::pair(0, 1)));
}

TEST(WtGrid, RowsTakeTheAlignmentOfTheirColumns) {
  SamplePanel panel;
  ZcUiWtGridCtrl& grid = panel.WtGrid(2041);
  grid.SetColumnCount(2);
  grid.SetColumnAlign(2);
  grid.SetColumnAlign(0, 0);
  const int row = grid.AddRow({L"浴盆", L"1.0"});
  EXPECT_EQ(grid.GetItemFormat(row, 0), CellAlign::kLeft);
  EXPECT_EQ(grid.GetItemFormat(row, 1), CellAlign::kCenter);
  EXPECT_EQ(grid.GetItemText(row, 1), L"1.0");
}

}  // namespace
}  // namespace zwt::test
