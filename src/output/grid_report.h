// Reports as the panels write them: a template is opened, and a grid is copied into a table cell by cell.
#pragma once

#include "host/dialog/grid_control.h"
#include "host/report/word_application.h"

namespace zwt {

/// Opens a template below the main directory that must hold so many bookmarks. Failures are told on the
/// command line, and the result is false.
bool OpenReport(ZwtWordApplication& report, const wchar_t* templatePath, std::int32_t bookmarks);

/// Puts a grid, fixed cells included, into a new table at a bookmark, or at the end of the report.
void WriteGridAtBookmark(ZwtWordApplication& report, std::int16_t bookmark, const CGridCtrl& grid);
void WriteGridAtEnd(ZwtWordApplication& report, const CGridCtrl& grid);

/// Puts a text at a bookmark.
void WriteAtBookmark(ZwtWordApplication& report, std::int16_t bookmark, const CString& text);

}  // namespace zwt
