// A grid control as an item model.
#include "desktop/grid_model.h"

#include <QColor>

#include "desktop/qt_text.h"
#include "desktop/table_copy.h"

namespace zwt {

namespace {

QColor ToColour(COLORREF colour) {
  return QColor(static_cast<int>(colour & 0xff), static_cast<int>((colour >> 8) & 0xff),
                static_cast<int>((colour >> 16) & 0xff));
}

int ToAlignment(CellAlign align) {
  const auto vertical = Qt::AlignVCenter;
  if (align == CellAlign::kCenter) return (vertical | Qt::AlignHCenter).toInt();
  if (align == CellAlign::kRight) return (vertical | Qt::AlignRight).toInt();
  return (vertical | Qt::AlignLeft).toInt();
}

QVariant ColourOrNone(std::optional<COLORREF> colour) {
  return colour ? QVariant(ToColour(*colour)) : QVariant();
}

}  // namespace

GridModel::GridModel(const CGridCtrl& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

void GridModel::TakeOver() {
  if (rows_ != grid_.GetRowCount() || columns_ != grid_.GetColumnCount()) {
    beginResetModel();
    rows_ = grid_.GetRowCount();
    columns_ = grid_.GetColumnCount();
    endResetModel();
  } else if (rows_ > 0 && columns_ > 0) {
    emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  }
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

bool GridModel::IsFixed(const QModelIndex& index) const {
  return index.row() < grid_.GetFixedRowCount() || index.column() < grid_.GetFixedColumnCount();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const int column = index.column();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return ToQt(grid_.GetItemText(row, column));
    case Qt::TextAlignmentRole:
      return ToAlignment(grid_.GetItemFormat(row, column));
    case Qt::BackgroundRole:
      return ColourOrNone(grid_.GetItemBkColour(row, column));
    case Qt::ForegroundRole:
      return ColourOrNone(grid_.GetItemFgColour(row, column));
    case kFixedCellRole:
      return IsFixed(index);
    case kComboCellRole:
      return grid_.GetCombo(row, column) != nullptr;
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == kHiddenColumnRole) return grid_.GetColumnWidth(section) == 0;
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return grid_.TakesText(index.row(), index.column()) ? usual | Qt::ItemIsEditable : usual;
}

}  // namespace zwt
