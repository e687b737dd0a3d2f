// Combo boxes, lists and labels.
#include "host/dialog/controls.h"

#include <gmock/gmock.h>

#include "host_dialog/sample_panel.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Combo, OpensOnTheItemOfItsText) {
  SamplePanel panel;
  EXPECT_EQ(panel.Combo(2010).GetCurSel(), 0);
  EXPECT_EQ(panel.Combo(2011).GetCurSel(), -1);
}

TEST(Combo, ListShowsNothingForATextThatIsNoItem) {
  SamplePanel panel;
  EXPECT_FALSE(ZwtSetComboBoxCurString(panel.Combo(2010), L"黄"));
  EXPECT_EQ(panel.Combo(2010).GetCurSel(), -1);
  EXPECT_EQ(ZwtGetComboBoxCurString(panel.Combo(2010)), L"");
}

TEST(Combo, EditableTakesAnyText) {
  SamplePanel panel;
  EXPECT_TRUE(ZwtSetComboBoxCurString(panel.Combo(2011), L"1.75"));
  EXPECT_EQ(ZwtGetComboBoxCurString(panel.Combo(2011)), L"1.75");
  EXPECT_EQ(panel.Combo(2011).GetCurSel(), -1);
  EXPECT_TRUE(ZwtSetComboBoxCurString(panel.Combo(2011), L"2.0"));
  EXPECT_EQ(panel.Combo(2011).GetCurSel(), 1);
}

TEST(Combo, SelectionOutOfRangeShowsNothing) {
  SamplePanel panel;
  panel.Combo(2010).SetCurSel(3);
  EXPECT_EQ(panel.Combo(2010).GetCurSel(), -1);
  EXPECT_EQ(panel.Combo(2010).GetWindowText(), L"");
}

TEST(List, KeepsRowsAndSelection) {
  SamplePanel panel;
  CListCtrl& list = panel.List(2050);
  list.InsertColumn(L"类型", 100);
  list.InsertColumn(L"规格", 50);
  EXPECT_EQ(list.InsertItem(L"水型"), 0);
  list.SetItemText(0, 1, L"3L");
  EXPECT_EQ(list.GetItemText(0, 1), L"3L");
  list.SelectItem(0);
  EXPECT_THAT(list.SelectedRows(), ElementsAre(0));
  list.SelectItem(1);
  EXPECT_EQ(list.GetFirstSelectedItem(), -1);
  list.DeleteAllItems();
  EXPECT_EQ(list.GetItemCount(), 0);
  EXPECT_EQ(list.GetItemText(0, 0), L"");
}

TEST(Label, FollowsTheStaticThatBearsIt) {
  SamplePanel panel;
  EXPECT_EQ(panel.Edit(2005).Label(), L"高度(m):");
  panel.SetDlgItemText(3005, L"深度(m):");
  EXPECT_EQ(panel.Edit(2005).Label(), L"深度(m):");
  EXPECT_EQ(panel.Edit(2001).Label(), L"用水单位数：");
}

}  // namespace
}  // namespace zwt::test
