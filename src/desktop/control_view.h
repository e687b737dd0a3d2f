// The widget of one control. A view follows the model's changes and turns what the user does to its widget
// into the same notices that PanelUser gives; it decides nothing by itself.
#pragma once

#include <QLabel>
#include <functional>
#include <memory>

#include "desktop/panel_metrics.h"
#include "host/dialog/dialog.h"

namespace zwt {

/// What views ask of the window around them. Exceptions of the panel's handlers stop here.
class PanelActions {
 public:
  virtual ~PanelActions() = default;

  /// Runs something that the user did. Nothing runs any more once the panel has ended.
  virtual void Act(const std::function<void()>& action) = 0;

  /// A button was pressed: the focus leaves the field it was in, then the button's handler runs.
  virtual void Press(CWnd& button) = 0;
};

class ControlView {
 public:
  ControlView(CWnd& control, PanelActions& actions) : control_(control), actions_(actions) {}
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView() = default;

  CWnd& Control() const { return control_; }
  virtual QWidget* Widget() const = 0;

  /// The label beside the widget where the template gives it; null for none. It is shown and greyed with the
  /// control.
  QLabel* LabelWidget() const { return label_; }
  void SetLabelWidget(QLabel* label);
  /// The same for a label that is a control by itself and has a state of its own.
  void SetLabelControl(QLabel* label) {
    label_ = label;
    labelHasOwnState_ = true;
  }

  /// Takes over what changed in the model.
  virtual void Follow(ControlAspect aspect);

  /// Puts the focus into the widget, with its content selected if selected says so.
  virtual void TakeFocus(bool selected);

  /// Marks the content as not accepted, until the user changes it or the mark is taken away.
  virtual void MarkRefused(bool) {}

 protected:
  PanelActions& Actions() const { return actions_; }
  void FollowState();

 private:
  CWnd& control_;
  PanelActions& actions_;
  QLabel* label_ = nullptr;
  bool labelHasOwnState_ = false;
};

/// Makes the view of a control below parent; its widget shows the model's present state and bears the object
/// name "control<number>".
std::unique_ptr<ControlView> MakeControlView(CWnd& control, PanelActions& actions,
                                             const PanelMetrics& metrics, QWidget* parent);

}  // namespace zwt
