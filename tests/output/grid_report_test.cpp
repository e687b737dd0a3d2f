// Grids into reports, with the messages of the two failures.
#include "output/grid_report.h"

#include <gmock/gmock.h>

#include "host/dialog/dialog.h"
#include "support/main_directory_fixture.h"
#include "support/report_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr ControlTemplate kControls[] = {{.id = 2012, .kind = ControlKind::kGrid}};
constexpr PanelTemplate kPanel = {.resource = 2990, .controls = kControls};

class GridReportTest : public testing::Test {
 protected:
  GridReportTest() : panel(kPanel), grid(panel.Grid(2012)) {
    grid.SetColumnCount(3);
    grid.SetRowCount(2);
    for (int row = 0; row < 2; ++row) {
      for (int column = 0; column < 3; ++column) {
        grid.SetItemText(row, column, L"r" + std::to_wstring(row) + L"c" + std::to_wstring(column));
      }
    }
  }
  CDialog panel;
  CGridCtrl& grid;
  MainDirectory directory;
  Printed printed;
  Desk desk;
};

TEST_F(GridReportTest, HasExactlyTheCellsOfTheGrid) {
  {
    ZwtWordApplication report;
    ASSERT_TRUE(OpenReport(report, L"Template\\ZWT-GSJS-ZZ.doc", 0));
    WriteGridAtEnd(report, grid);
  }
  ASSERT_EQ(desk.bodies.size(), 1U);
  std::size_t at = 0;
  for (const char* cell : {"r0c0", "r0c1", "r0c2", "r1c0", "r1c1", "r1c2"}) {
    const std::size_t found = desk.bodies[0].find(cell, at);
    ASSERT_NE(found, std::string::npos) << cell;
    at = found;
  }
  EXPECT_THAT(desk.templates[0], testing::EndsWith(L"Template\\ZWT-GSJS-ZZ.doc"));
  EXPECT_THAT(printed.lines, IsEmpty());
}

TEST_F(GridReportTest, HiddenColumnIsReportedToo) {
  grid.SetColumnWidth(1, 0);
  {
    ZwtWordApplication report;
    ASSERT_TRUE(OpenReport(report, L"Template\\ZWT-GSJS-ZZ.doc", 0));
    WriteGridAtEnd(report, grid);
  }
  EXPECT_THAT(desk.bodies[0], HasSubstr("r1c1"));
}

TEST_F(GridReportTest, FolderThatCannotBeWrittenIsTold) {
  desk.writable = false;
  ZwtWordApplication report;
  EXPECT_FALSE(OpenReport(report, L"Template\\ZWT-GSJS-ZZ.doc", 0));
  EXPECT_THAT(printed.lines, ElementsAre(L"\n启动Word失败."));
}

TEST_F(GridReportTest, MissingTemplateAndTooFewBookmarksAreTold) {
  {
    ZwtWordApplication report;
    EXPECT_FALSE(OpenReport(report, L"Template\\none.doc", 0));
    EXPECT_FALSE(OpenReport(report, L"Template\\ZWT-GSJS-ZZ.doc", 6));
  }
  EXPECT_THAT(printed.lines, ElementsAre(L"\n无法加载计算书模板.", L"\n无法加载计算书模板."));
  EXPECT_THAT(desk.bodies, IsEmpty());
}

TEST_F(GridReportTest, BookmarksTakeTextsAndTables) {
  {
    ZwtWordApplication report;
    ASSERT_TRUE(OpenReport(report, L"Template\\ZWT-XHSJS.doc", 6));
    WriteAtBookmark(report, 2, L"两支");
    WriteGridAtBookmark(report, 6, grid);
  }
  const std::string& body = desk.bodies[0];
  EXPECT_LT(body.find("同时使用水枪数量"), body.find("两支"));
  EXPECT_LT(body.find("节点计算结果"), body.find("r0c0"));
}

}  // namespace
}  // namespace zwt::test
