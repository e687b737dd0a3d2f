// The cells of a grid control for the toolkit's views. Texts and marks are read from the control as they are
// drawn; the number of rows and columns is the one last taken over.
#pragma once

#include <QAbstractTableModel>

#include "host/dialog/grid_control.h"

namespace zwt {

/// Roles beside the toolkit's own.
enum GridRole : int {
  kFixedCellRole = Qt::UserRole,  // bool: a heading
  kComboCellRole,                 // bool: offers choices
};

class GridModel : public QAbstractTableModel {
 public:
  GridModel(const CGridCtrl& grid, QObject* parent);

  const CGridCtrl& Grid() const { return grid_; }

  /// Takes over the number of rows and columns, and announces all cells as changed.
  void TakeOver();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  bool IsFixed(const QModelIndex& index) const;

  const CGridCtrl& grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace zwt
