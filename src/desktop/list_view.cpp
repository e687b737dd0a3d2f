// Report lists on a table view.
#include "desktop/list_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "desktop/qt_text.h"
#include "desktop/table_copy.h"

namespace zwt {

namespace {

class ListTable : public QTableView {
 public:
  using QTableView::QTableView;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) {
      CopySelection(*this);
    } else {
      QTableView::keyPressEvent(event);
    }
  }
};

}  // namespace

ListModel::ListModel(const CListCtrl& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

void ListModel::TakeOver() {
  beginResetModel();
  rows_ = list_.GetItemCount();
  columns_ = static_cast<int>(list_.Columns().size());
  endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return ToQt(list_.GetItemText(index.row(), index.column()));
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= columns_) return {};
  return ToQt(list_.Columns()[static_cast<std::size_t>(section)].title);
}

ListView::ListView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent)
    : ControlView(control, actions),
      metrics_(metrics),
      table_(new ListTable(parent)),
      model_(new ListModel(Model(), table_)),
      takeOver_([this] { TakeOver(); }) {
  table_->setModel(model_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setTabKeyNavigation(false);
  table_->setShowGrid(false);
  table_->setAlternatingRowColors(true);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(metrics.LineHeight() + metrics.Vertical(4));
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  TakeOver();
  FollowState();
  QObject::connect(table_, &QTableView::clicked, table_,
                   [this](const QModelIndex& cell) { Notify(CellNotice::kClick, cell); });
  QObject::connect(table_, &QTableView::doubleClicked, table_,
                   [this](const QModelIndex& cell) { Notify(CellNotice::kDoubleClick, cell); });
  QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, table_,
                   [this] { UserSelected(); });
}

CListCtrl& ListView::Model() const {
  return dynamic_cast<CListCtrl&>(Control());
}

void ListView::TakeOver() {
  const QScopedValueRollback following(following_, true);
  model_->TakeOver();
  constexpr int kUsualHeight = 80;
  const ControlTemplate& shape = Control().Shape();
  int total = table_->verticalScrollBar()->sizeHint().width() + 2 * table_->frameWidth();
  for (int column = 0; column < model_->columnCount({}); ++column) {
    int width = metrics_.GridPixels(Model().Columns()[static_cast<std::size_t>(column)].width);
    width = std::max(width, table_->horizontalHeader()->sectionSizeHint(column));
    for (int row = 0; row < model_->rowCount({}); ++row) {
      const QString text = ToQt(Model().GetItemText(row, column));
      width = std::max(width, metrics_.TextWidth(text) + metrics_.Horizontal(6));
    }
    table_->setColumnWidth(column, width);
    total += width;
  }
  table_->setMinimumWidth(std::max(total, metrics_.Horizontal(shape.width)));
  table_->setMinimumHeight(metrics_.Vertical(shape.height > 0 ? shape.height : kUsualHeight));
  FollowSelection();
}

void ListView::FollowSelection() {
  const QScopedValueRollback following(following_, true);
  const int row = Model().GetFirstSelectedItem();
  if (row < 0) {
    table_->clearSelection();
  } else {
    table_->selectRow(row);
  }
}

void ListView::UserSelected() {
  if (following_) return;
  const QScopedValueRollback following(following_, true);
  const QModelIndexList rows = table_->selectionModel()->selectedRows();
  Actions().Act([&] { Model().SelectItem(rows.isEmpty() ? -1 : rows.first().row()); });
}

void ListView::Notify(CellNotice notice, const QModelIndex& cell) {
  if (!cell.isValid()) return;
  Actions().Act(
      [&] { Control().Panel().NotifyCell(Control().GetDlgCtrlID(), notice, cell.row(), cell.column()); });
}

void ListView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kCells) takeOver_.Ask();
  if (aspect == ControlAspect::kSelection && !following_) {
    takeOver_.DoNow();
    FollowSelection();
  }
  ControlView::Follow(aspect);
}

}  // namespace zwt
