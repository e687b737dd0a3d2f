// Edit fields of one line and of several.
#include "desktop/field_views.h"

#include <QRegularExpressionValidator>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/qt_text.h"

namespace zwt {

namespace {

bool IsReadOnlyField(const CWnd& control) {
  return dynamic_cast<const CEdit&>(control).IsReadOnly();
}

}  // namespace

EditView::EditView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent)
    : ControlView(control, actions), line_(new QLineEdit(parent)) {
  line_->setMinimumWidth(metrics.FieldWidth(control.Shape()));
  if ((control.Shape().style & kNumbersOnly) != 0) {
    static const QRegularExpression characters(QStringLiteral("[-+0-9.eE]*"));
    line_->setValidator(new QRegularExpressionValidator(characters, line_));
  }
  FollowText();
  FollowReadOnly();
  FollowState();
  QObject::connect(line_, &QLineEdit::textEdited, line_, [this](const QString& text) {
    MarkRefused(false);
    Actions().Act([&] { Control().SetWindowText(FromQt(text)); });
  });
}

void EditView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kText) FollowText();
  if (aspect == ControlAspect::kReadOnly) FollowReadOnly();
  ControlView::Follow(aspect);
}

void EditView::FollowText() {
  const QString text = ToQt(Control().GetWindowText());
  if (line_->text() == text) return;
  line_->setText(text);
  line_->setCursorPosition(0);
}

void EditView::FollowReadOnly() {
  const bool readOnly = IsReadOnlyField(Control());
  line_->setReadOnly(readOnly);
  SetLook(*line_, Look::kResult, readOnly);
}

void EditView::TakeFocus(bool selected) {
  ControlView::TakeFocus(selected);
  selected ? line_->selectAll() : line_->deselect();
}

void EditView::MarkRefused(bool refused) {
  if (refused == (mark_ != nullptr)) return;
  SetLook(*line_, Look::kRefused, refused);
  line_->setToolTip(refused ? QStringLiteral("此项的内容不能接受，请检查") : QString());
  if (refused) {
    mark_ = line_->addAction(RefusedIcon(), QLineEdit::TrailingPosition);
  } else {
    delete std::exchange(mark_, nullptr);
  }
}

MultiLineView::MultiLineView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics,
                             QWidget* parent)
    : ControlView(control, actions), text_(new QPlainTextEdit(parent)) {
  constexpr int kUsualWidth = 160;
  constexpr int kUsualHeight = 40;
  const ControlTemplate& shape = control.Shape();
  text_->setMinimumSize(metrics.Horizontal(shape.width > 0 ? shape.width : kUsualWidth),
                        metrics.Vertical(shape.height > 0 ? shape.height : kUsualHeight));
  text_->setTabChangesFocus(true);
  constexpr int kTabStop = 32;  // dialog units, as edit fields have them
  text_->setTabStopDistance(metrics.Horizontal(kTabStop));
  FollowText();
  FollowReadOnly();
  FollowState();
  QObject::connect(text_, &QPlainTextEdit::textChanged, text_, [this] {
    if (FromQt(text_->toPlainText()) == Control().GetWindowText()) return;
    MarkRefused(false);
    Actions().Act([&] { Control().SetWindowText(FromQt(text_->toPlainText())); });
  });
}

void MultiLineView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kText) FollowText();
  if (aspect == ControlAspect::kReadOnly) FollowReadOnly();
  ControlView::Follow(aspect);
}

void MultiLineView::FollowText() {
  QString text = ToQt(Control().GetWindowText());
  text.remove(QLatin1Char('\r'));
  if (text_->toPlainText() == text) return;
  const QSignalBlocker ownChange(text_);
  text_->setPlainText(text);
}

void MultiLineView::FollowReadOnly() {
  const bool readOnly = IsReadOnlyField(Control());
  text_->setReadOnly(readOnly);
  text_->setTextInteractionFlags(readOnly ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                          : Qt::TextEditorInteraction);
  SetLook(*text_, Look::kResult, readOnly);
}

void MultiLineView::TakeFocus(bool selected) {
  ControlView::TakeFocus(selected);
  if (selected) text_->selectAll();
}

void MultiLineView::MarkRefused(bool refused) {
  SetLook(*text_, Look::kRefused, refused);
}

}  // namespace zwt
