// Rows of reference tables in a grid: a running number, a name, then texts; groups head their items and share
// one number cell with them.
#pragma once

#include <vector>

#include "host/dialog/grid_control.h"

/// Appends the row of an item: number, name and texts from column 0 on. Gives its index.
int AddReferenceRow(CGridCtrl& grid, const CString& number, const CString& name,
                    const std::vector<CString>& texts);

/// Appends the heading row of a group of so many items, which the caller appends next with an empty number.
/// All cells but the first lie under the face colour; the number cell is merged over the items. Gives the
/// row's index.
int AddGroupHeading(CGridCtrl& grid, const CString& number, const CString& name);

/// Merges the number cell of a heading over the items appended behind it. A group without items stays as it
/// is.
void CloseGroup(CGridCtrl& grid, int headingRow);

/// The name of an item below a heading: four blanks before it.
CString NameBelowHeading(const CString& name);

/// Aligns a whole column from row firstRow on, and a whole row.
void AlignColumn(CGridCtrl& grid, int column, int firstRow, CellAlign align);
void AlignAll(CGridCtrl& grid, CellAlign align);

/// Header texts and widths of a grid's columns, which also sets the number of columns.
struct GridColumn {
  const wchar_t* title;
  int width;
};
void SetUpColumns(CGridCtrl& grid, std::initializer_list<GridColumn> columns, int fixedColumns);
