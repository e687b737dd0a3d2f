// Texts and buttons of a panel.
#include "desktop/button_views.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <algorithm>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

/// A label without a buddy would show the mark of a shortcut.
QString PlainLabel(const CWnd& control) {
  return ToQt(control.Shape().labelOf != 0 ? control.GetWindowText()
                                           : WithoutShortcut(control.GetWindowText()));
}

QAbstractButton* MakeChoice(const CWnd& control, QWidget* parent) {
  if (control.Shape().kind == ControlKind::kCheck) return new QCheckBox(parent);
  auto* radio = new QRadioButton(parent);
  radio->setAutoExclusive(false);
  return radio;
}

}  // namespace

StaticView::StaticView(CWnd& control, PanelActions& actions, QWidget* parent)
    : ControlView(control, actions), text_(new QLabel(parent)) {
  text_->setTextFormat(Qt::PlainText);
  if (control.Shape().labelOf == 0) text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  if ((control.Shape().style & kMultiLine) != 0) text_->setWordWrap(true);
  FollowText();
  FollowState();
}

void StaticView::FollowText() {
  text_->setText(PlainLabel(Control()));
}

void StaticView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kText) FollowText();
  ControlView::Follow(aspect);
}

PushButtonView::PushButtonView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics,
                               QWidget* parent)
    : ControlView(control, actions), button_(new QPushButton(parent)) {
  button_->setText(ToQt(control.GetWindowText()));
  button_->setDefault((control.Shape().style & kDefaultButton) != 0);
  if (control.Shape().width > 0) button_->setMinimumWidth(metrics.Horizontal(control.Shape().width));
  constexpr std::size_t kShortLabel = 2;
  const bool beside = control.Shape().place != Placement::kButtonRow;
  if (beside && control.GetWindowText().size() <= kShortLabel) {
    button_->setMaximumWidth(std::max(metrics.Horizontal(20), metrics.TextWidth(button_->text()) * 2));
  }
  FollowState();
  QObject::connect(button_, &QPushButton::clicked, button_, [this] { Actions().Press(Control()); });
}

void PushButtonView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kText) button_->setText(ToQt(Control().GetWindowText()));
  ControlView::Follow(aspect);
}

ChoiceView::ChoiceView(CWnd& control, PanelActions& actions, QWidget* parent)
    : ControlView(control, actions), button_(MakeChoice(control, parent)) {
  button_->setText(ToQt(control.GetWindowText()));
  FollowCheck();
  FollowState();
  QObject::connect(button_, &QAbstractButton::clicked, button_, [this] { Clicked(); });
}

void ChoiceView::FollowCheck() {
  QButtonGroup* group = button_->group();
  if (group != nullptr) group->setExclusive(false);
  button_->setChecked(dynamic_cast<const CButton&>(Control()).GetCheck());
  if (group != nullptr) group->setExclusive(true);
}

void ChoiceView::Clicked() {
  Actions().Press(Control());
  FollowCheck();
}

void ChoiceView::Follow(ControlAspect aspect) {
  if (aspect == ControlAspect::kText) button_->setText(ToQt(Control().GetWindowText()));
  if (aspect == ControlAspect::kChecked) FollowCheck();
  ControlView::Follow(aspect);
}

}  // namespace zwt
