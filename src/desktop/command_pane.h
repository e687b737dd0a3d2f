// The command line: what commands print, the present prompt, and the field in which commands are typed. Enter
// and the space bar end an input, an empty one repeats the last command; the arrow keys go through what was
// typed before; names complete themselves.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "host/runtime/command_line.h"

class QCompleter;
class QStringListModel;

namespace zwt {

/// The field: history and completion.
class CommandInput : public QLineEdit {
 public:
  explicit CommandInput(QWidget* parent);

  void SetCommandNames(const QStringList& names);
  /// Adds a line to the history, the same one twice in a row counts once.
  void Remember(const QString& line);

  std::function<void(const QString&)> onEntered;
  std::function<void()> onEscape;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Submit();
  void GoThroughHistory(int step);

  QStringListModel* names_;
  QStringList history_;
  qsizetype place_ = 0;
};

class CommandPane : public QWidget, public CommandLine {
 public:
  explicit CommandPane(QWidget* parent);

  /// Texts begin with a line feed: they stand on a line of their own.
  void Print(const CString& text) override;

  /// Takes the place of the usual prompt while a command asks for something; empty brings the usual one back.
  void SetPrompt(const QString& prompt);
  QString Prompt() const { return prompt_->text(); }
  QString PrintedText() const { return printed_->toPlainText(); }

  CommandInput& Input() const { return *input_; }

 private:
  QPlainTextEdit* printed_;
  QLabel* prompt_;
  CommandInput* input_;
};

}  // namespace zwt
