// Grids into reports.
#include "output/grid_report.h"

#include "host/runtime/command_line.h"
#include "host/runtime/main_directory.h"

namespace zwt {

namespace {

/// The grid counts rows and columns from 0, the table from 1.
void CopyCells(ZwtWordApplication& report, _Table table, const CGridCtrl& grid) {
  for (int row = 0; row < grid.GetRowCount(); ++row) {
    for (int column = 0; column < grid.GetColumnCount(); ++column) {
      report.SetItemText(table, row + 1, column + 1, grid.GetItemText(row, column));
    }
  }
  table.ReleaseDispatch();
}

}  // namespace

bool OpenReport(ZwtWordApplication& report, const wchar_t* templatePath, std::int32_t bookmarks) {
  if (report.InitWordApplication(1) == 0) {
    acutPrintf(L"\n启动Word失败.");
    return false;
  }
  if (report.LoadTemplate(GetMainDirectory() + templatePath, bookmarks) == 0) {
    acutPrintf(L"\n无法加载计算书模板.");
    return false;
  }
  return true;
}

void WriteGridAtBookmark(ZwtWordApplication& report, std::int16_t bookmark, const CGridCtrl& grid) {
  CopyCells(report, report.AddTable(VARIANT{VT_I2, bookmark}, grid.GetRowCount(), grid.GetColumnCount()),
            grid);
}

void WriteGridAtEnd(ZwtWordApplication& report, const CGridCtrl& grid) {
  report.GoToTheEnd();
  CopyCells(report, report.AddTable(grid.GetRowCount(), grid.GetColumnCount()), grid);
}

void WriteAtBookmark(ZwtWordApplication& report, std::int16_t bookmark, const CString& text) {
  report.WriteBookMarks(VARIANT{VT_I2, bookmark}, text);
}

}  // namespace zwt
