// A scrolling table with fixed rows and columns.
#include "desktop/grid_table.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>
#include <numeric>

#include "desktop/grid_delegate.h"
#include "desktop/grid_measure.h"
#include "desktop/table_copy.h"

namespace zwt {

namespace {

int SumOf(const std::vector<int>& sizes, int count) {
  const auto end = sizes.begin() + std::clamp(count, 0, static_cast<int>(sizes.size()));
  return std::accumulate(sizes.begin(), end, 0);
}

}  // namespace

GridTable::GridTable(const CGridCtrl& grid, const PanelMetrics& metrics, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      metrics_(metrics),
      model_(new GridModel(grid, this)),
      top_(new QTableView(this)),
      left_(new QTableView(this)),
      corner_(new QTableView(this)) {
  setModel(model_);
  Prepare(*this);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  for (QTableView* part : {top_, left_, corner_}) {
    part->setModel(model_);
    QItemSelectionModel* own = part->selectionModel();
    part->setSelectionModel(selectionModel());
    delete own;
    Prepare(*part);
    part->setEditTriggers(NoEditTriggers);
    part->setFrameShape(NoFrame);
    part->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    part->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    part->setItemDelegate(new GridDelegate(grid, metrics, {}, part));
    part->setFocusProxy(this);
    part->viewport()->installEventFilter(this);
  }
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, top_->horizontalScrollBar(),
          &QScrollBar::setValue);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, left_->verticalScrollBar(), &QScrollBar::setValue);
}

void GridTable::Prepare(QTableView& part) const {
  part.horizontalHeader()->hide();
  part.verticalHeader()->hide();
  part.horizontalHeader()->setMinimumSectionSize(1);
  part.verticalHeader()->setMinimumSectionSize(1);
  part.setHorizontalScrollMode(ScrollPerPixel);
  part.setVerticalScrollMode(ScrollPerPixel);
  part.setSelectionMode(ContiguousSelection);
  part.setTabKeyNavigation(false);
  part.setCornerButtonEnabled(false);
}

void GridTable::SetDelegate(GridDelegate& delegate) {
  delegate_ = &delegate;
  setItemDelegate(&delegate);
}

std::array<QTableView*, 4> GridTable::Views() {
  return {this, top_, left_, corner_};
}

QTableView& GridTable::ViewOf(int row, int column) {
  const bool fixedRow = row < grid_.GetFixedRowCount();
  const bool fixedColumn = column < grid_.GetFixedColumnCount();
  if (fixedRow) return fixedColumn ? *corner_ : *top_;
  return fixedColumn ? *left_ : *this;
}

int GridTable::ScrollBarWidth() const {
  return verticalScrollBar()->sizeHint().width();
}

int GridTable::FixedWidth() const {
  return SumOf(widths_, grid_.GetFixedColumnCount());
}

int GridTable::FixedHeight() const {
  return SumOf(heights_, grid_.GetFixedRowCount());
}

void GridTable::TakeOver() {
  const bool sameShape =
      model_->rowCount() == grid_.GetRowCount() && model_->columnCount() == grid_.GetColumnCount();
  model_->TakeOver();
  Arrange();
  if (!sameShape) ShowSelection(grid_.GetSelectedCellRange());
  updateGeometry();
}

void GridTable::Arrange() {
  widths_ = ColumnWidths(grid_, metrics_);
  wantedWidth_ = SumOf(widths_, static_cast<int>(widths_.size()));
  heights_ = RowHeights(grid_, metrics_, widths_);
  const QSize room = maximumViewportSize() + QSize(viewportMargins().left(), viewportMargins().top());
  const bool scrolls = SumOf(heights_, static_cast<int>(heights_.size())) > room.height();
  FillWidth(widths_, room.width() - (scrolls ? ScrollBarWidth() : 0));
  heights_ = RowHeights(grid_, metrics_, widths_);
  ApplySizes(*this, false, false);
  ApplySizes(*top_, true, false);
  ApplySizes(*left_, false, true);
  ApplySizes(*corner_, true, true);
  PlaceParts();
}

void GridTable::ApplySizes(QTableView& view, bool fixedRows, bool fixedColumns) const {
  for (int column = 0; column < static_cast<int>(widths_.size()); ++column) {
    const int width = widths_[static_cast<std::size_t>(column)];
    const bool here = (column < grid_.GetFixedColumnCount()) == fixedColumns && width > 0;
    view.setColumnHidden(column, !here);
    if (here) view.setColumnWidth(column, width);
  }
  for (int row = 0; row < static_cast<int>(heights_.size()); ++row) {
    const bool here = (row < grid_.GetFixedRowCount()) == fixedRows;
    view.setRowHidden(row, !here);
    if (here) view.setRowHeight(row, heights_[static_cast<std::size_t>(row)]);
  }
  ApplySpans(view, fixedRows, fixedColumns);
}

void GridTable::ApplySpans(QTableView& view, bool fixedRows, bool fixedColumns) const {
  view.clearSpans();
  for (const MergedArea& area : grid_.MergedAreas()) {
    const bool here = (area.row < grid_.GetFixedRowCount()) == fixedRows &&
                      (area.column < grid_.GetFixedColumnCount()) == fixedColumns;
    const bool inside =
        area.row + area.rows <= model_->rowCount() && area.column + area.columns <= model_->columnCount();
    if (here && inside) view.setSpan(area.row, area.column, area.rows, area.columns);
  }
}

void GridTable::PlaceParts() {
  const int width = FixedWidth();
  const int height = FixedHeight();
  if (viewportMargins() != QMargins(width, height, 0, 0)) setViewportMargins(width, height, 0, 0);
  const QRect body = viewport()->geometry();
  const int left = body.left() - width;
  const int top = body.top() - height;
  corner_->setGeometry(left, top, width, height);
  top_->setGeometry(body.left(), top, body.width(), height);
  left_->setGeometry(left, body.top(), width, body.height());
  corner_->setVisible(width > 0 && height > 0);
  top_->setVisible(height > 0);
  left_->setVisible(width > 0);
  top_->horizontalScrollBar()->setValue(horizontalScrollBar()->value());
  left_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

QSize GridTable::sizeHint() const {
  constexpr int kUsualLines = 16;
  const int frame = 2 * frameWidth();
  constexpr int kFewestLines = 2;
  const int line = metrics_.LineHeight() + CellPadding(metrics_) / 2;
  const int all = SumOf(heights_, static_cast<int>(heights_.size()));
  const int wish = metrics_.Vertical(grid_.Shape().height);
  const int most = wish > 0 ? wish : kUsualLines * line;
  const int height = std::min(std::max(all, kFewestLines * line), most);
  const int width = std::max(wantedWidth_ + ScrollBarWidth(), metrics_.Horizontal(grid_.Shape().width));
  return QSize(width + frame, height + frame);
}

QSize GridTable::minimumSizeHint() const {
  constexpr int kWidestUnits = 560;
  const QSize wish = sizeHint();
  const int fewest = 6 * metrics_.LineHeight();
  return QSize(std::min(wish.width(), metrics_.Horizontal(kWidestUnits)), std::min(wish.height(), fewest));
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  Arrange();
}

void GridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && corner_ != nullptr) viewport()->update();
}

CCellRange GridTable::SelectedRange() const {
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) return {};
  CCellRange range{selection.first().top(), selection.first().left(), selection.first().bottom(),
                   selection.first().right()};
  for (const QItemSelectionRange& part : selection) {
    range = {std::min(range.minRow, part.top()), std::min(range.minColumn, part.left()),
             std::max(range.maxRow, part.bottom()), std::max(range.maxColumn, part.right())};
  }
  return range;
}

void GridTable::ShowSelection(const CCellRange& range) {
  if (range == SelectedRange()) return;
  if (!range.IsValid()) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex first = model_->index(range.minRow, range.minColumn);
  const QModelIndex last = model_->index(range.maxRow, range.maxColumn);
  selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopySelection(*this);
  } else if (delegate_->IsEditing() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    // Enter ends the edit; passed on it would press the panel's default button before the text is taken in.
    event->accept();
  } else {
    QTableView::keyPressEvent(event);
  }
}

void GridTable::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const QModelIndex cell = indexAt(event->position().toPoint());
  const bool onArrow = cell.isValid() && event->button() == Qt::LeftButton &&
                       cell.data(kComboCellRole).toBool() &&
                       delegate_->ArrowOf(visualRect(cell)).contains(event->position().toPoint());
  if (onArrow && (cell.flags() & Qt::ItemIsEditable) != 0 && state() != EditingState) edit(cell);
}

void GridTable::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* copy = menu.addAction(QStringLiteral("复制"), this, [this] { CopySelection(*this); });
  copy->setShortcut(QKeySequence::Copy);
  copy->setEnabled(selectionModel()->hasSelection());
  menu.addAction(QStringLiteral("复制整个表格"), this, [this] { CopyAll(*this); });
  menu.exec(event->globalPos());
}

bool GridTable::eventFilter(QObject* watched, QEvent* event) {
  const bool overParts =
      watched == top_->viewport() || watched == left_->viewport() || watched == corner_->viewport();
  if (overParts && event->type() == QEvent::Wheel) {
    QCoreApplication::sendEvent(viewport(), event);
    return true;
  }
  if (overParts && event->type() == QEvent::ContextMenu) {
    contextMenuEvent(static_cast<QContextMenuEvent*>(event));
    return true;
  }
  return QTableView::eventFilter(watched, event);
}

}  // namespace zwt
