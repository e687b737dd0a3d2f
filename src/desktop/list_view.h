// Report lists: titled columns and whole rows to pick.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "desktop/control_view.h"
#include "desktop/later_once.h"

namespace zwt {

/// The rows of a list control for the toolkit.
class ListModel : public QAbstractTableModel {
 public:
  ListModel(const CListCtrl& list, QObject* parent);

  /// Takes over rows and columns as they are now.
  void TakeOver();

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const CListCtrl& list_;
  int rows_ = 0;
  int columns_ = 0;
};

class ListView : public ControlView {
 public:
  ListView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return table_; }
  void Follow(ControlAspect aspect) override;

 private:
  CListCtrl& Model() const;
  void TakeOver();
  void FollowSelection();
  void UserSelected();
  void Notify(CellNotice notice, const QModelIndex& cell);

  PanelMetrics metrics_;
  QTableView* table_;
  ListModel* model_;
  LaterOnce takeOver_;
  bool following_ = false;
};

}  // namespace zwt
