// Painting and editing of grid cells.
#include "desktop/grid_delegate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <utility>

#include "desktop/grid_measure.h"
#include "desktop/grid_model.h"
#include "desktop/qt_text.h"

namespace zwt {

namespace {

QColor GroundOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
  const QVariant own = index.data(Qt::BackgroundRole);
  if (own.isValid()) return own.value<QColor>();
  return index.data(kFixedCellRole).toBool() ? option.palette.color(QPalette::Button)
                                             : option.palette.color(QPalette::Base);
}

/// Black or white text, whichever can be read on the ground, where the cell has no colour of its own.
QColor InkOf(const QModelIndex& index, const QColor& ground) {
  const QVariant own = index.data(Qt::ForegroundRole);
  if (own.isValid()) return own.value<QColor>();
  constexpr int kMiddle = 128;
  return qGray(ground.rgb()) < kMiddle ? QColor(Qt::white) : QColor(Qt::black);
}

void PaintArrow(QPainter& painter, const QRect& box, const QColor& ink) {
  const double half = box.height() * 0.14;
  const QPointF middle = QRectF(box).center();
  QPainterPath arrow;
  arrow.moveTo(middle.x() - 2 * half, middle.y() - half);
  arrow.lineTo(middle.x(), middle.y() + half);
  arrow.lineTo(middle.x() + 2 * half, middle.y() - half);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 1.4));
  painter.drawPath(arrow);
}

}  // namespace

GridDelegate::GridDelegate(const CGridCtrl& grid, const PanelMetrics& metrics, Edits edits, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid), metrics_(metrics), edits_(std::move(edits)) {}

QRect GridDelegate::ArrowOf(const QRect& cell) const {
  const int side = metrics_.LineHeight();
  return QRect(cell.right() - side, cell.center().y() - side / 2, side, side);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  painter->save();
  const QColor ground = GroundOf(option, index);
  painter->fillRect(option.rect, ground);
  if ((option.state & QStyle::State_Selected) != 0) {
    constexpr int kAlpha = 70;
    QColor veil = option.palette.color(QPalette::Highlight);
    veil.setAlpha(kAlpha);
    painter->fillRect(option.rect, veil);
  }
  const int padding = CellPadding(metrics_) / 2;
  QRect textBox = option.rect.adjusted(padding, 0, -padding, 0);
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  const QColor ink =
      enabled ? InkOf(index, ground) : option.palette.color(QPalette::Disabled, QPalette::Text);
  if (index.data(kComboCellRole).toBool()) {
    PaintArrow(*painter, ArrowOf(option.rect), ink);
    textBox.setRight(ArrowOf(option.rect).left());
  }
  painter->setPen(ink);
  // Line feeds around a text pushed it to the middle of a cell where texts began at the top; here they stand
  // there anyway.
  QString text = index.data(Qt::DisplayRole).toString();
  while (text.startsWith(QLatin1Char('\n'))) text.remove(0, 1);
  painter->drawText(textBox, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextWordWrap, text);
  painter->restore();
}

QWidget* GridDelegate::MakeComboEditor(QWidget* parent, const CGridBtnCellCombo& combo) const {
  constexpr int kListStyle = 3;
  auto* box = new QComboBox(parent);
  box->setEditable(combo.style != kListStyle);
  if (box->isEditable()) box->setCompleter(nullptr);
  box->setInsertPolicy(QComboBox::NoInsert);
  for (const CString& choice : combo.choices) box->addItem(ToQt(choice));
  auto* self = const_cast<GridDelegate*>(this);
  connect(box, &QComboBox::activated, self, [self, box] {
    emit self->commitData(box);
    emit self->closeEditor(box);
  });
  return box;
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  editing_ = {index.row(), index.column()};
  edits_.begun(index.row(), index.column());
  if (const CGridBtnCellCombo* combo = grid_.GetCombo(index.row(), index.column())) {
    return MakeComboEditor(parent, *combo);
  }
  auto* line = new QLineEdit(parent);
  line->setFrame(false);
  line->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
  return line;
}

void GridDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  if (const auto cell = std::exchange(editing_, std::nullopt)) edits_.givenUp(cell->first, cell->second);
  QStyledItemDelegate::destroyEditor(editor, index);
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* box = qobject_cast<QComboBox*>(editor)) {
    box->setCurrentIndex(box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (box->isEditable()) box->setEditText(text);
  } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
    line->setText(text);
  }
}

void GridDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex&) const {
  const auto cell = std::exchange(editing_, std::nullopt);
  if (!cell) return;
  const auto* box = qobject_cast<QComboBox*>(editor);
  const auto* line = qobject_cast<QLineEdit*>(editor);
  const bool nothingChosen = box != nullptr && !box->isEditable() && box->currentIndex() < 0;
  if (nothingChosen) {
    edits_.givenUp(cell->first, cell->second);
    return;
  }
  const QString text = box != nullptr ? box->currentText() : line->text();
  edits_.entered(cell->first, cell->second, FromQt(text));
}

}  // namespace zwt
