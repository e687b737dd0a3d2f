// Edit fields. Results are read-only fields: flat, but their text can be selected and copied.
#pragma once

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/control_view.h"

namespace zwt {

/// A field of one line.
class EditView : public ControlView {
 public:
  EditView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return line_; }
  void Follow(ControlAspect aspect) override;
  void TakeFocus(bool selected) override;
  void MarkRefused(bool refused) override;

 private:
  void FollowText();
  void FollowReadOnly();

  QLineEdit* line_;
  QAction* mark_ = nullptr;
};

/// A field of several lines.
class MultiLineView : public ControlView {
 public:
  MultiLineView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return text_; }
  void Follow(ControlAspect aspect) override;
  void TakeFocus(bool selected) override;
  void MarkRefused(bool refused) override;

 private:
  void FollowText();
  void FollowReadOnly();

  QPlainTextEdit* text_;
};

}  // namespace zwt
