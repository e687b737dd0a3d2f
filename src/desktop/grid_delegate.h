// Draws the cells of a grid and edits them: a field, or the choices of a combo cell.
#pragma once

#include <QStyledItemDelegate>
#include <functional>
#include <optional>
#include <utility>

#include "desktop/panel_metrics.h"
#include "host/dialog/grid_control.h"

namespace zwt {

class GridDelegate : public QStyledItemDelegate {
 public:
  /// What happens to an edit, in this order; a given-up edit ends without a text.
  struct Edits {
    std::function<void(int row, int column)> begun;
    std::function<void(int row, int column, const CString& text)> entered;
    std::function<void(int row, int column)> givenUp;
  };

  GridDelegate(const CGridCtrl& grid, const PanelMetrics& metrics, Edits edits, QObject* parent);

  /// The part of a combo cell that opens its choices.
  QRect ArrowOf(const QRect& cell) const;

  /// Whether an editor is open whose content was not taken in yet.
  bool IsEditing() const { return editing_.has_value(); }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 private:
  QWidget* MakeComboEditor(QWidget* parent, const CGridBtnCellCombo& combo) const;

  const CGridCtrl& grid_;
  PanelMetrics metrics_;
  Edits edits_;
  mutable std::optional<std::pair<int, int>> editing_;  // row and column under the editor
};

}  // namespace zwt
