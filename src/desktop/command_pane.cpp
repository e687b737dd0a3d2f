// Command line.
#include "desktop/command_pane.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStringListModel>
#include <algorithm>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

const auto kUsualPrompt = QStringLiteral("命令：");

}  // namespace

CommandInput::CommandInput(QWidget* parent) : QLineEdit(parent), names_(new QStringListModel(this)) {
  setFrame(false);
  auto* completion = new QCompleter(names_, this);
  completion->setCaseSensitivity(Qt::CaseInsensitive);
  completion->setFilterMode(Qt::MatchContains);
  completion->setMaxVisibleItems(13);
  setCompleter(completion);
}

void CommandInput::SetCommandNames(const QStringList& names) {
  names_->setStringList(names);
}

void CommandInput::Remember(const QString& line) {
  if (history_.isEmpty() || history_.last() != line) history_.append(line);
  place_ = history_.size();
}

void CommandInput::GoThroughHistory(int step) {
  const qsizetype place = std::clamp(place_ + step, qsizetype{0}, history_.size());
  if (place == place_) return;
  place_ = place;
  setText(place < history_.size() ? history_.at(place) : QString());
}

void CommandInput::Submit() {
  const QString line = text().trimmed();
  clear();
  completer()->popup()->hide();
  if (!line.isEmpty()) Remember(line);
  if (onEntered) onEntered(line);
}

/// Undo and redo mean the drawing, also while a command is being typed.
bool CommandInput::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      event->ignore();
      return false;
    }
  }
  return QLineEdit::event(event);
}

void CommandInput::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      Submit();
      return;
    case Qt::Key_Escape:
      clear();
      if (onEscape) onEscape();
      return;
    case Qt::Key_Up:
      GoThroughHistory(-1);
      return;
    case Qt::Key_Down:
      GoThroughHistory(1);
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

CommandPane::CommandPane(QWidget* parent)
    : QWidget(parent),
      printed_(new QPlainTextEdit(this)),
      prompt_(new QLabel(this)),
      input_(new CommandInput(this)) {
  constexpr int kMostLines = 5000;
  constexpr int kVisibleLines = 4;
  printed_->setReadOnly(true);
  printed_->setUndoRedoEnabled(false);
  printed_->setMaximumBlockCount(kMostLines);
  printed_->setFrameShape(QFrame::NoFrame);
  printed_->setFocusPolicy(Qt::ClickFocus);
  printed_->setMinimumHeight(fontMetrics().lineSpacing() * kVisibleLines);
  prompt_->setTextFormat(Qt::PlainText);
  prompt_->setContentsMargins(4, 0, 0, 0);
  auto* line = new QHBoxLayout;
  line->setSpacing(4);
  line->addWidget(prompt_);
  line->addWidget(input_, 1);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(printed_, 1);
  all->addLayout(line);
  setFocusProxy(input_);
  SetPrompt({});
}

void CommandPane::Print(const CString& text) {
  QString shown = ToQt(text);
  if (printed_->document()->isEmpty() && shown.startsWith(QLatin1Char('\n'))) shown.remove(0, 1);
  QTextCursor end(printed_->document());
  end.movePosition(QTextCursor::End);
  end.insertText(shown);
  printed_->setTextCursor(end);
  printed_->ensureCursorVisible();
}

void CommandPane::SetPrompt(const QString& prompt) {
  prompt_->setText(prompt.isEmpty() ? kUsualPrompt : prompt);
}

}  // namespace zwt
