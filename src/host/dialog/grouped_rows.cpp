// Grids of reference tables.
#include "host/dialog/grouped_rows.h"

int AddReferenceRow(CGridCtrl& grid, const CString& number, const CString& name,
                    const std::vector<CString>& texts) {
  const int row = grid.InsertRow(number);
  grid.SetItemText(row, 1, name);
  int column = 2;
  for (const CString& text : texts) grid.SetItemText(row, column++, text);
  return row;
}

int AddGroupHeading(CGridCtrl& grid, const CString& number, const CString& name) {
  const int row = grid.InsertRow(number);
  grid.SetItemText(row, 1, name);
  for (int column = 1; column < grid.GetColumnCount(); ++column)
    grid.SetItemBkColour(row, column, kFaceColour);
  return row;
}

void CloseGroup(CGridCtrl& grid, int headingRow) {
  grid.SetFixedCellCombine(headingRow, 0, grid.GetRowCount() - 1 - headingRow, 0);
}

CString NameBelowHeading(const CString& name) {
  return L"    " + name;
}

void AlignColumn(CGridCtrl& grid, int column, int firstRow, CellAlign align) {
  for (int row = firstRow; row < grid.GetRowCount(); ++row) grid.SetItemFormat(row, column, align);
}

void AlignAll(CGridCtrl& grid, CellAlign align) {
  for (int column = 0; column < grid.GetColumnCount(); ++column) AlignColumn(grid, column, 0, align);
}

void SetUpColumns(CGridCtrl& grid, std::initializer_list<GridColumn> columns, int fixedColumns) {
  grid.SetRowCount(0);
  grid.SetColumnCount(static_cast<int>(columns.size()));
  grid.SetRowCount(1);
  grid.SetFixedRowCount(1);
  grid.SetFixedColumnCount(fixedColumns);
  int column = 0;
  for (const GridColumn& shape : columns) {
    grid.SetItemText(0, column, shape.title);
    grid.SetColumnWidth(column, shape.width);
    ++column;
  }
}
