// What all views share, and which view a control gets.
#include "desktop/control_view.h"

#include "desktop/button_views.h"
#include "desktop/combo_view.h"
#include "desktop/field_views.h"
#include "desktop/grid_view.h"
#include "desktop/list_view.h"

namespace zwt {

namespace {

std::unique_ptr<ControlView> MakeView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics,
                                      QWidget* parent) {
  switch (control.Shape().kind) {
    case ControlKind::kEdit:
      if ((control.Shape().style & kMultiLine) != 0) {
        return std::make_unique<MultiLineView>(control, actions, metrics, parent);
      }
      return std::make_unique<EditView>(control, actions, metrics, parent);
    case ControlKind::kStatic:
      return std::make_unique<StaticView>(control, actions, parent);
    case ControlKind::kButton:
      return std::make_unique<PushButtonView>(control, actions, metrics, parent);
    case ControlKind::kRadio:
    case ControlKind::kCheck:
      return std::make_unique<ChoiceView>(control, actions, parent);
    case ControlKind::kCombo:
      return std::make_unique<ComboView>(control, actions, metrics, parent);
    case ControlKind::kList:
      return std::make_unique<ListView>(control, actions, metrics, parent);
    case ControlKind::kGrid:
      return std::make_unique<GridView>(control, actions, metrics, parent);
  }
  throw std::logic_error("a control of no kind");
}

}  // namespace

void ControlView::SetLabelWidget(QLabel* label) {
  label_ = label;
  FollowState();
}

void ControlView::FollowState() {
  Widget()->setEnabled(control_.IsWindowEnabled());
  Widget()->setVisible(control_.IsWindowVisible());
  if (label_ == nullptr || labelHasOwnState_) return;
  label_->setEnabled(control_.IsWindowEnabled());
  label_->setVisible(control_.IsWindowVisible());
}

void ControlView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kEnabled || aspect == ControlAspect::kVisible) FollowState();
}

void ControlView::TakeFocus(bool) {
  Widget()->setFocus(Qt::OtherFocusReason);
}

std::unique_ptr<ControlView> MakeControlView(CWnd& control, PanelActions& actions,
                                             const PanelMetrics& metrics, QWidget* parent) {
  std::unique_ptr<ControlView> view = MakeView(control, actions, metrics, parent);
  view->Widget()->setObjectName(QStringLiteral("control%1").arg(control.GetDlgCtrlID()));
  return view;
}

}  // namespace zwt
