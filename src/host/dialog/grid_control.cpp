// Cells of the grid and what they carry.
#include "host/dialog/grid_control.h"

#include <algorithm>

#include "host/dialog/dialog.h"

namespace {

CellAlign AlignOf(int align) {
  if (align == 1) return CellAlign::kRight;
  return align == 2 ? CellAlign::kCenter : CellAlign::kLeft;
}

}  // namespace

bool CGridCtrl::IsValid(int row, int column) const {
  return row >= 0 && row < GetRowCount() && column >= 0 && column < GetColumnCount();
}

CGridCtrl::Cell* CGridCtrl::At(int row, int column) {
  if (!IsValid(row, column)) return nullptr;
  return &rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
}

const CGridCtrl::Cell* CGridCtrl::At(int row, int column) const {
  if (!IsValid(row, column)) return nullptr;
  return &rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
}

void CGridCtrl::SetRowCount(int count) {
  rows_.resize(static_cast<std::size_t>(std::max(count, 0)));
  for (Row& row : rows_) row.cells.resize(widths_.size());
  std::erase_if(merged_, [&](const MergedArea& area) { return area.row + area.rows > GetRowCount(); });
  if (selection_.maxRow >= GetRowCount()) selection_ = {};
  Changed(ControlAspect::kCells);
}

void CGridCtrl::SetColumnCount(int count) {
  constexpr int kUsualWidth = 60;
  widths_.resize(static_cast<std::size_t>(std::max(count, 0)), kUsualWidth);
  for (Row& row : rows_) row.cells.resize(widths_.size());
  std::erase_if(merged_,
                [&](const MergedArea& area) { return area.column + area.columns > GetColumnCount(); });
  if (selection_.maxColumn >= GetColumnCount()) selection_ = {};
  Changed(ControlAspect::kCells);
}

void CGridCtrl::SetFixedRowCount(int count) {
  fixedRows_ = count;
  Changed(ControlAspect::kCells);
}

void CGridCtrl::SetFixedColumnCount(int count) {
  fixedColumns_ = count;
  Changed(ControlAspect::kCells);
}

int CGridCtrl::InsertRow(const CString& text, int position) {
  const int row = position < 0 || position > GetRowCount() ? GetRowCount() : position;
  Row added;
  added.cells.resize(widths_.size());
  if (!added.cells.empty()) added.cells.front().text = text;
  rows_.insert(rows_.begin() + row, std::move(added));
  for (MergedArea& area : merged_) {
    if (area.row >= row) ++area.row;
  }
  Changed(ControlAspect::kCells);
  return row;
}

void CGridCtrl::DeleteRow(int row) {
  if (row < 0 || row >= GetRowCount()) return;
  rows_.erase(rows_.begin() + row);
  std::erase_if(merged_,
                [&](const MergedArea& area) { return area.row <= row && row < area.row + area.rows; });
  for (MergedArea& area : merged_) {
    if (area.row > row) --area.row;
  }
  if (selection_.maxRow >= GetRowCount()) selection_ = {};
  Changed(ControlAspect::kCells);
}

void CGridCtrl::DeleteNonFixedRows() {
  selection_ = {};
  SetRowCount(fixedRows_);
}

bool CGridCtrl::SetItemText(int row, int column, const CString& text) {
  Cell* cell = At(row, column);
  if (cell == nullptr) return false;
  const bool differs = cell->text != text;
  cell->text = text;
  if (differs) Changed(ControlAspect::kCells);
  if (differs && (Shape().style & zwt::kReportsWrites) != 0) {
    Panel().NotifyCell(GetDlgCtrlID(), CellNotice::kChanged, row, column);
  }
  return true;
}

const CString& CGridCtrl::GetItemText(int row, int column) const {
  static const CString empty;
  const Cell* cell = At(row, column);
  return cell == nullptr ? empty : cell->text;
}

void CGridCtrl::SetItemFormat(int row, int column, CellAlign align) {
  if (Cell* cell = At(row, column)) {
    cell->align = align;
    Changed(ControlAspect::kCells);
  }
}

CellAlign CGridCtrl::GetItemFormat(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell == nullptr ? CellAlign::kLeft : cell->align;
}

void CGridCtrl::SetItemState(int row, int column, unsigned state) {
  if (Cell* cell = At(row, column)) {
    cell->state = state;
    Changed(ControlAspect::kCells);
  }
}

unsigned CGridCtrl::GetItemState(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell == nullptr ? 0 : cell->state;
}

void CGridCtrl::SetReadOnly(int row, int column, bool readOnly) {
  const unsigned state = GetItemState(row, column);
  SetItemState(row, column, readOnly ? state | kCellReadOnly : state & ~unsigned{kCellReadOnly});
}

void CGridCtrl::SetModified(int row, int column, bool modified) {
  const unsigned state = GetItemState(row, column);
  SetItemState(row, column, modified ? state | kCellModified : state & ~unsigned{kCellModified});
}

void CGridCtrl::SetItemBkColour(int row, int column, std::optional<COLORREF> colour) {
  if (Cell* cell = At(row, column)) {
    cell->background = colour;
    Changed(ControlAspect::kCells);
  }
}

std::optional<COLORREF> CGridCtrl::GetItemBkColour(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell == nullptr ? std::nullopt : cell->background;
}

void CGridCtrl::SetItemFgColour(int row, int column, std::optional<COLORREF> colour) {
  if (Cell* cell = At(row, column)) {
    cell->foreground = colour;
    Changed(ControlAspect::kCells);
  }
}

std::optional<COLORREF> CGridCtrl::GetItemFgColour(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell == nullptr ? std::nullopt : cell->foreground;
}

void CGridCtrl::SetItemData(int row, int column, const CString& data) {
  if (Cell* cell = At(row, column)) cell->data = data;
}

CString CGridCtrl::GetItemData(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell == nullptr ? CString() : cell->data;
}

void CGridCtrl::SetCombo(int row, int column, CGridBtnCellCombo combo) {
  if (Cell* cell = At(row, column)) {
    cell->combo = std::move(combo);
    Changed(ControlAspect::kCells);
  }
}

const CGridBtnCellCombo* CGridCtrl::GetCombo(int row, int column) const {
  const Cell* cell = At(row, column);
  return cell != nullptr && cell->combo ? &*cell->combo : nullptr;
}

void CGridCtrl::SetCellCombine(int row, int column, int furtherRows, int furtherColumns, bool combined) {
  std::erase_if(merged_, [&](const MergedArea& area) { return area.row == row && area.column == column; });
  const bool inside = IsValid(row, column) && IsValid(row + furtherRows, column + furtherColumns);
  const bool several = furtherRows > 0 || furtherColumns > 0;
  if (combined && inside && several) merged_.push_back({row, column, furtherRows + 1, furtherColumns + 1});
  Changed(ControlAspect::kCells);
}

void CGridCtrl::SetFixedCellCombine(int row, int column, int furtherRows, int furtherColumns) {
  SetCellCombine(row, column, furtherRows, furtherColumns);
}

void CGridCtrl::SetColumnWidth(int column, int width) {
  if (column < 0 || column >= GetColumnCount()) return;
  widths_[static_cast<std::size_t>(column)] = width;
  Changed(ControlAspect::kCells);
}

int CGridCtrl::GetColumnWidth(int column) const {
  if (column < 0 || column >= GetColumnCount()) return 0;
  return widths_[static_cast<std::size_t>(column)];
}

void CGridCtrl::SetRowHeight(int row, int height) {
  if (row < 0 || row >= GetRowCount()) return;
  rows_[static_cast<std::size_t>(row)].height = height;
  Changed(ControlAspect::kCells);
}

int CGridCtrl::GetRowHeight(int row) const {
  if (row < 0 || row >= GetRowCount()) return 0;
  return rows_[static_cast<std::size_t>(row)].height;
}

void CGridCtrl::SetEditable(bool editable) {
  editable_ = editable;
  Changed(ControlAspect::kReadOnly);
}

void CGridCtrl::SetSelectedRange(const CCellRange& range) {
  const bool inside = IsValid(range.minRow, range.minColumn) && IsValid(range.maxRow, range.maxColumn);
  selection_ = inside ? range : CCellRange();
  Changed(ControlAspect::kSelection);
}

bool CGridCtrl::TakesText(int row, int column) const {
  return editable_ && IsValid(row, column) && row >= fixedRows_ && column >= fixedColumns_ &&
         !IsReadOnly(row, column);
}

void CGridCtrl::Refresh() {
  Changed(ControlAspect::kCells);
}

void ZcUiWtGridCtrl::SetHeaderAlign(int align) {
  for (int row = 0; row < GetFixedRowCount(); ++row) {
    for (int column = 0; column < GetColumnCount(); ++column) SetItemFormat(row, column, AlignOf(align));
  }
}

void ZcUiWtGridCtrl::SetColumnAlign(int align) {
  columnAlign_ = align;
  ownAlign_.clear();
}

void ZcUiWtGridCtrl::SetColumnAlign(int column, int align) {
  ownAlign_[column] = align;
}

void ZcUiWtGridCtrl::SetItemAllowEdit(int row, int column, bool allowed) {
  SetReadOnly(row, column, !allowed);
}

int ZcUiWtGridCtrl::AddRow(const std::vector<CString>& texts) {
  const int row = InsertRow(texts.empty() ? CString() : texts.front());
  for (int column = 0; column < GetColumnCount(); ++column) {
    const auto own = ownAlign_.find(column);
    SetItemFormat(row, column, AlignOf(own == ownAlign_.end() ? columnAlign_ : own->second));
    if (column > 0 && column < static_cast<int>(texts.size())) {
      SetItemText(row, column, texts[static_cast<std::size_t>(column)]);
    }
  }
  return row;
}
