// Table to clipboard.
#include "desktop/table_copy.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>
#include <algorithm>

namespace zwt {

namespace {

struct CellRect {
  int top;
  int left;
  int bottom;
  int right;
};

QString Quoted(QString cell) {
  static const QString special = QStringLiteral("\t\n\"");
  const bool plain = std::none_of(cell.cbegin(), cell.cend(), [](QChar c) { return special.contains(c); });
  if (plain) return cell;
  cell.replace(QLatin1Char('"'), QStringLiteral("\"\""));
  return QLatin1Char('"') + cell + QLatin1Char('"');
}

QString AsTable(const QTableView& table, const CellRect& area) {
  const QAbstractItemModel& model = *table.model();
  QString text;
  for (int row = area.top; row <= area.bottom; ++row) {
    QStringList cells;
    for (int column = area.left; column <= area.right; ++column) {
      if (model.headerData(column, Qt::Horizontal, kHiddenColumnRole).toBool()) continue;
      cells.append(Quoted(model.index(row, column).data(Qt::DisplayRole).toString()));
    }
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

}  // namespace

QString SelectionAsTable(const QTableView& table) {
  const QItemSelection selection = table.selectionModel()->selection();
  if (selection.isEmpty()) return {};
  CellRect area{selection.first().top(), selection.first().left(), selection.first().bottom(),
                selection.first().right()};
  for (const QItemSelectionRange& range : selection) {
    area = {std::min(area.top, range.top()), std::min(area.left, range.left()),
            std::max(area.bottom, range.bottom()), std::max(area.right, range.right())};
  }
  return AsTable(table, area);
}

void CopySelection(const QTableView& table) {
  const QString text = SelectionAsTable(table);
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void CopyAll(const QTableView& table) {
  const QAbstractItemModel& model = *table.model();
  if (model.rowCount() == 0) return;
  const QString text = AsTable(table, {0, 0, model.rowCount() - 1, model.columnCount() - 1});
  QGuiApplication::clipboard()->setText(text);
}

}  // namespace zwt
