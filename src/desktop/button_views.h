// Statics, push buttons, radio buttons and check boxes.
#pragma once

#include <QAbstractButton>
#include <QPushButton>

#include "desktop/control_view.h"

namespace zwt {

class StaticView : public ControlView {
 public:
  StaticView(CWnd& control, PanelActions& actions, QWidget* parent);

  QWidget* Widget() const override { return text_; }
  QLabel* Text() const { return text_; }
  void Follow(ControlAspect aspect) override;

 private:
  void FollowText();

  QLabel* text_;
};

class PushButtonView : public ControlView {
 public:
  PushButtonView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return button_; }
  void Follow(ControlAspect aspect) override;

 private:
  QPushButton* button_;
};

/// A radio button or a check box.
class ChoiceView : public ControlView {
 public:
  ChoiceView(CWnd& control, PanelActions& actions, QWidget* parent);

  QWidget* Widget() const override { return button_; }
  QAbstractButton* Button() const { return button_; }
  void Follow(ControlAspect aspect) override;

 private:
  void FollowCheck();
  void Clicked();

  QAbstractButton* button_;
};

}  // namespace zwt
