// The grid of texts in which tables and results are shown: fixed rows and columns, merged areas, per-cell
// alignment, colours, marks, item data and combo cells. It knows nothing of painting.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "host/dialog/controls.h"

/// A rectangle of cells, all bounds included; all -1 for none.
struct CCellRange {
  int minRow = -1;
  int minColumn = -1;
  int maxRow = -1;
  int maxColumn = -1;

  bool IsValid() const { return minRow >= 0; }
  bool operator==(const CCellRange&) const = default;
};

/// How a cell's text stands.
enum class CellAlign : std::uint8_t { kLeft, kCenter, kRight };

/// Marks of a cell, as bits.
enum CellState : unsigned { kCellReadOnly = 1, kCellModified = 2 };

/// Colours as 0x00BBGGRR.
using COLORREF = std::uint32_t;
inline constexpr COLORREF kRed = 255;
inline constexpr COLORREF kBlue = 0xff0000;
/// The system's face colour of dialogs and buttons, under which headings of groups lie.
inline constexpr COLORREF kFaceColour = 0xf0f0f0;

/// A cell that offers texts to choose from. Style 2 is a drop-down that takes typed text too, 3 a plain list.
struct CGridBtnCellCombo {
  std::vector<CString> choices;
  int style = 2;
};

/// An area shown as one cell; its text stands in the first cell.
struct MergedArea {
  int row;
  int column;
  int rows;
  int columns;

  bool operator==(const MergedArea&) const = default;
};

class CGridCtrl : public CWnd {
 public:
  using CWnd::CWnd;

  int GetRowCount() const { return static_cast<int>(rows_.size()); }
  int GetColumnCount() const { return static_cast<int>(widths_.size()); }
  /// Growing adds empty cells, shrinking drops cells with all that they carry.
  void SetRowCount(int count);
  void SetColumnCount(int count);
  int GetFixedRowCount() const { return fixedRows_; }
  int GetFixedColumnCount() const { return fixedColumns_; }
  void SetFixedRowCount(int count);
  void SetFixedColumnCount(int count);

  /// Adds a row before position, at the end for -1, with text in its first column; gives its index.
  int InsertRow(const CString& text, int position = -1);
  void DeleteRow(int row);
  /// Leaves the fixed rows alone; selection, merged areas and marks of the others go.
  void DeleteNonFixedRows();

  /// False for a place outside the grid. Empty text is read from such a place.
  bool SetItemText(int row, int column, const CString& text);
  const CString& GetItemText(int row, int column) const;

  void SetItemFormat(int row, int column, CellAlign align);
  CellAlign GetItemFormat(int row, int column) const;
  void SetItemState(int row, int column, unsigned state);
  unsigned GetItemState(int row, int column) const;
  void SetReadOnly(int row, int column, bool readOnly = true);
  bool IsReadOnly(int row, int column) const { return (GetItemState(row, column) & kCellReadOnly) != 0; }
  void SetModified(int row, int column, bool modified);
  bool IsModified(int row, int column) const { return (GetItemState(row, column) & kCellModified) != 0; }
  /// No value is the default colour.
  void SetItemBkColour(int row, int column, std::optional<COLORREF> colour);
  std::optional<COLORREF> GetItemBkColour(int row, int column) const;
  void SetItemFgColour(int row, int column, std::optional<COLORREF> colour);
  std::optional<COLORREF> GetItemFgColour(int row, int column) const;
  /// A text that the cell carries unseen. Data of a cell outside the grid is not kept and reads as empty.
  void SetItemData(int row, int column, const CString& data);
  CString GetItemData(int row, int column) const;
  /// Makes the cell a combo cell; its text stays.
  void SetCombo(int row, int column, CGridBtnCellCombo combo);
  /// Null for a plain cell.
  const CGridBtnCellCombo* GetCombo(int row, int column) const;

  /// Merges the cell with so many further rows and columns; combined false takes the area apart again.
  void SetCellCombine(int row, int column, int furtherRows, int furtherColumns, bool combined = true);
  /// The same among fixed cells.
  void SetFixedCellCombine(int row, int column, int furtherRows, int furtherColumns);
  const std::vector<MergedArea>& MergedAreas() const { return merged_; }

  /// Width 0 hides a column.
  void SetColumnWidth(int column, int width);
  int GetColumnWidth(int column) const;
  void SetRowHeight(int row, int height);
  /// 0 for the usual height.
  int GetRowHeight(int row) const;

  /// Whether cells without a read-only mark take the user's text; grids that are only for picking do not.
  void SetEditable(bool editable);
  bool IsEditable() const { return editable_; }

  CCellRange GetSelectedCellRange() const { return selection_; }
  /// An invalid range selects nothing.
  void SetSelectedRange(const CCellRange& range);

  /// Whether the user may type into the cell.
  bool TakesText(int row, int column) const;
  bool IsValid(int row, int column) const;

  /// Has presenters draw anew; the texts themselves are reported as they change.
  void Refresh();

 private:
  struct Cell {
    CString text;
    CellAlign align = CellAlign::kLeft;
    unsigned state = 0;
    std::optional<COLORREF> background;
    std::optional<COLORREF> foreground;
    CString data;
    std::optional<CGridBtnCellCombo> combo;
  };
  struct Row {
    std::vector<Cell> cells;
    int height = 0;
  };

  Cell* At(int row, int column);
  const Cell* At(int row, int column) const;

  std::vector<Row> rows_;
  std::vector<int> widths_;
  std::vector<MergedArea> merged_;
  int fixedRows_ = 0;
  int fixedColumns_ = 0;
  bool editable_ = false;
  CCellRange selection_;
};

/// The grid of the fixture panels: it tells the panel of every changed cell, also of those that the program
/// writes (its template says so with kReportsWrites), and its columns are set up at once.
class ZcUiWtGridCtrl : public CGridCtrl {
 public:
  using CGridCtrl::CGridCtrl;

  /// 0 left, 1 right, 2 centred, as the platform counts.
  void SetHeaderAlign(int align);
  void SetColumnAlign(int align);
  void SetColumnAlign(int column, int align);
  void SetItemAllowEdit(int row, int column, bool allowed);

  /// Adds a row in the columns' alignment; gives its index.
  int AddRow(const std::vector<CString>& texts);

 private:
  int columnAlign_ = 0;
  std::map<int, int> ownAlign_;
};
