// Notices of grids.
#include "desktop/grid_view.h"

#include <QScopedValueRollback>

namespace zwt {

GridView::GridView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent)
    : ControlView(control, actions),
      table_(new GridTable(Model(), metrics, parent)),
      delegate_(new GridDelegate(Model(), metrics, Edits(), table_)),
      takeOver_([this] {
        const QScopedValueRollback following(following_, true);
        table_->TakeOver();
      }) {
  table_->SetDelegate(*delegate_);
  table_->TakeOver();
  table_->ShowSelection(Model().GetSelectedCellRange());
  FollowState();
  for (QTableView* view : table_->Views()) {
    QObject::connect(view, &QTableView::clicked, table_, [this](const QModelIndex& cell) {
      Notify(CellNotice::kClick, cell.row(), cell.column());
    });
    QObject::connect(view, &QTableView::doubleClicked, table_, [this](const QModelIndex& cell) {
      Notify(CellNotice::kDoubleClick, cell.row(), cell.column());
    });
  }
  QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, table_,
                   [this] { UserSelected(); });
}

CGridCtrl& GridView::Model() const {
  return dynamic_cast<CGridCtrl&>(Control());
}

GridDelegate::Edits GridView::Edits() {
  return {.begun = [this](int row, int column) { Notify(CellNotice::kBeginEdit, row, column); },
          .entered = [this](int row, int column, const CString& text) { Enter(row, column, text); },
          .givenUp = [this](int row, int column) { Notify(CellNotice::kEndEdit, row, column); }};
}

void GridView::Enter(int row, int column, const CString& text) {
  Actions().Act([&] {
    CDialog& panel = Control().Panel();
    const int id = Control().GetDlgCtrlID();
    const bool changes = Model().GetItemText(row, column) != text;
    const bool reported = (Control().Shape().style & kReportsWrites) != 0;
    Model().SetItemText(row, column, text);
    panel.NotifyCell(id, CellNotice::kEndEdit, row, column);
    if (changes && !reported) panel.NotifyCell(id, CellNotice::kChanged, row, column);
  });
}

void GridView::UserSelected() {
  if (following_) return;
  const QScopedValueRollback following(following_, true);
  Actions().Act([this] { Model().SetSelectedRange(table_->SelectedRange()); });
}

void GridView::Notify(CellNotice notice, int row, int column) {
  if (row < 0 || column < 0) return;
  Actions().Act([&] { Control().Panel().NotifyCell(Control().GetDlgCtrlID(), notice, row, column); });
}

void GridView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kCells || aspect == ControlAspect::kReadOnly) takeOver_.Ask();
  if (aspect == ControlAspect::kSelection && !following_) {
    takeOver_.DoNow();
    const QScopedValueRollback following(following_, true);
    table_->ShowSelection(Model().GetSelectedCellRange());
  }
  ControlView::Follow(aspect);
}

}  // namespace zwt
