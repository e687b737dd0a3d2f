// Copying cells of a table view as text that spreadsheets take: tabs between cells, line feeds between rows.
#pragma once

#include <Qt>

class QString;
class QTableView;

namespace zwt {

/// Role of a horizontal header: whether the column is hidden, so that it is not copied.
inline constexpr int kHiddenColumnRole = Qt::UserRole + 100;

/// The bounding rectangle of the selection as a table. Hidden columns are left out; a cell with tabs, line
/// feeds or quotation marks stands in quotation marks. Empty without a selection.
QString SelectionAsTable(const QTableView& table);

/// Puts SelectionAsTable into the clipboard; without a selection the clipboard stays as it is.
void CopySelection(const QTableView& table);

/// Puts the whole table, headers that are cells included, into the clipboard.
void CopyAll(const QTableView& table);

}  // namespace zwt
