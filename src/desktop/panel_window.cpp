// Life of a panel's window.
#include "desktop/panel_window.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "desktop/button_views.h"
#include "desktop/qt_text.h"

namespace zwt {

PanelWindow::PanelWindow(CDialog& panel, QWidget* parent) : QDialog(parent), panel_(panel), metrics_(font()) {
  setObjectName(QStringLiteral("panel%1").arg(panel.Shape().resource));
  setWindowTitle(ToQt(panel.Shape().title));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowModality(Qt::ApplicationModal);
  MakeViews();
  MakeLabels();
  GroupRadioButtons();
  layout_ = std::make_unique<PanelLayout>(*this, PlanPanel(panel.Shape()),
                                          [this](int id) -> ControlView& { return *views_.at(id); });
  SetTabOrder();
  MakeSideSheet();
  if (!layout_->CanGrow()) layout()->setSizeConstraint(QLayout::SetFixedSize);
  focusFollower_ =
      connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FocusMovedTo(now); });
  panel_.AddListener(this);
}

PanelWindow::~PanelWindow() {
  disconnect(focusFollower_);
  panel_.RemoveListener(this);
  // The widgets go before the views that listen to them.
  layout_.reset();
  qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void PanelWindow::MakeViews() {
  for (const auto& control : panel_.Controls()) {
    views_[control->GetDlgCtrlID()] = MakeControlView(*control, *this, metrics_, this);
  }
}

void PanelWindow::MakeLabels() {
  for (auto& [id, view] : views_) {
    const ControlTemplate& shape = view->Control().Shape();
    const bool ownText = shape.kind == ControlKind::kStatic || shape.kind == ControlKind::kButton ||
                         shape.kind == ControlKind::kRadio || shape.kind == ControlKind::kCheck;
    if (ownText) continue;
    if (const CWnd* label = panel_.LabelControlOf(id)) {
      auto* text = dynamic_cast<StaticView&>(*views_.at(label->GetDlgCtrlID())).Text();
      text->setBuddy(view->Widget());
      view->SetLabelControl(text);
    } else if (!CString(shape.label).empty()) {
      auto* text = new QLabel(ToQt(shape.label), this);
      text->setBuddy(view->Widget());
      view->SetLabelWidget(text);
    }
  }
}

void PanelWindow::GroupRadioButtons() {
  QButtonGroup* group = nullptr;
  for (const auto& control : panel_.Controls()) {
    const ControlTemplate& shape = control->Shape();
    if (shape.kind != ControlKind::kRadio) continue;
    if (group == nullptr || (shape.style & kGroupStart) != 0) group = new QButtonGroup(this);
    auto& choice = dynamic_cast<ChoiceView&>(*views_.at(shape.id));
    group->setExclusive(false);
    group->addButton(choice.Button());
    group->setExclusive(true);
  }
}

void PanelWindow::SetTabOrder() {
  QWidget* before = nullptr;
  for (const auto& control : panel_.Controls()) {
    QWidget* widget = WidgetOf(control->GetDlgCtrlID());
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

void PanelWindow::MakeSideSheet() {
  for (const auto& control : panel_.Controls()) {
    const int id = control->GetDlgCtrlID();
    // The sheet follows the selected row; a panel of single fields has none.
    const bool isGrid = dynamic_cast<const CGridCtrl*>(control.get()) != nullptr;
    if (explained_ == 0 && isGrid && panel_.CanExplain(id)) explained_ = id;
  }
  if (explained_ == 0) return;
  sheet_ = new SideSheet(this);
  sheetButton_ = new QToolButton(this);
  sheetButton_->setObjectName(QStringLiteral("sheetButton"));
  sheetButton_->setText(QStringLiteral("计算过程"));
  sheetButton_->setToolTip(QStringLiteral("所选一行如何算出 (F2)"));
  sheetButton_->setShortcut(Qt::Key_F2);
  sheetButton_->setCheckable(true);
  sheetButton_->setFocusPolicy(Qt::NoFocus);
  layout_->AddAside(*sheetButton_);
  connect(sheetButton_, &QToolButton::toggled, this, [this](bool shown) { ShowSheet(shown); });
  connect(sheet_, &QDialog::finished, this, [this] { sheetButton_->setChecked(false); });
}

void PanelWindow::ShowSheet(bool shown) {
  sheet_->setVisible(shown);
  if (!shown) return;
  const QRect room = screen()->availableGeometry();
  const QRect frame = frameGeometry();
  const int right = std::min(frame.right() + 8, room.right() - sheet_->width());
  sheet_->move(std::max(room.left(), right), std::max(room.top(), frame.top()));
  Explain();
}

void PanelWindow::Explain() {
  if (sheet_ == nullptr || !sheet_->isVisible()) return;
  const auto& grid = dynamic_cast<CGridCtrl&>(panel_.GetDlgItem(explained_));
  const int row = grid.GetSelectedCellRange().minRow;
  const CString title = row < 0 ? CString() : grid.GetItemText(row, 0);
  Act([&] { sheet_->Explain(title, panel_.Explain(explained_, row)); });
}

bool PanelWindow::SelectRow(int table, int row) {
  auto* grid = dynamic_cast<CGridCtrl*>(panel_.FindItem(table));
  if (grid == nullptr || row < 0 || row >= grid->GetRowCount()) return false;
  Act([&] { grid->SetSelectedRange({row, 0, row, grid->GetColumnCount() - 1}); });
  return true;
}

void PanelWindow::FollowSelection(const CWnd& control) {
  const auto* grid = dynamic_cast<const CGridCtrl*>(&control);
  if (grid == nullptr) return;
  const int id = control.GetDlgCtrlID();
  if (panel_.CanExplain(id)) explained_ = id;
  explain_.Ask();
  if (onRowSelected) onRowSelected(id, grid->GetSelectedCellRange().minRow);
}

ControlView* PanelWindow::FindView(int id) const {
  const auto found = views_.find(id);
  return found == views_.end() ? nullptr : found->second.get();
}

QWidget* PanelWindow::WidgetOf(int id) const {
  ControlView* view = FindView(id);
  return view == nullptr ? nullptr : view->Widget();
}

void PanelWindow::Run(const std::function<void()>& shown) {
  shown_ = shown;
  show();
  FocusFirst();
  activateWindow();
  if (!panel_.HasEnded()) loop_.exec();
  hide();
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  if (!panel_.HasEnded()) Cancel();
}

void PanelWindow::FocusFirst() {
  if (CWnd* chosen = panel_.FocusedControl()) {
    views_.at(chosen->GetDlgCtrlID())->TakeFocus(true);
    return;
  }
  for (const auto& control : panel_.Controls()) {
    ControlView& view = *views_.at(control->GetDlgCtrlID());
    const bool takesFocus = (view.Widget()->focusPolicy() & Qt::TabFocus) != 0;
    if (!takesFocus || !control->IsWindowEnabled() || !control->IsWindowVisible()) continue;
    view.TakeFocus(control->Shape().kind == ControlKind::kEdit);
    return;
  }
}

void PanelWindow::Cancel() {
  Act([this] { panel_.NotifyClose(); });
  if (!panel_.HasEnded()) panel_.EndDialog(IDCANCEL);
}

void PanelWindow::GiveWay() {
  if (sheet_ != nullptr) sheet_->hide();
  hide();
  setWindowModality(Qt::NonModal);
}

void PanelWindow::Return() {
  setWindowModality(Qt::ApplicationModal);
  show();
  if (sheet_ != nullptr && sheetButton_->isChecked()) ShowSheet(true);
  raise();
  activateWindow();
}

void PanelWindow::reject() {
  Act([this] { panel_.NotifyClose(); });
}

void PanelWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Act([this] { panel_.NotifyClose(); });
}

void PanelWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) {
    QDialog::keyPressEvent(event);
    return;
  }
  CWnd* button = DefaultButton();
  if (button != nullptr && button->IsWindowEnabled() && button->IsWindowVisible()) Press(*button);
}

void PanelWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  const QRect room = screen()->availableGeometry();
  if (layout_->CanGrow()) resize(size().boundedTo(room.size()));
  const QWidget* parent = parentWidget();
  QRect place = rect();
  place.moveCenter(parent != nullptr ? parent->frameGeometry().center() : room.center());
  place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width())));
  place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height())));
  move(place.topLeft());
}

bool PanelWindow::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::LayoutRequest && isVisible() && layout_->CanGrow()) GrowToFit();
  return handled;
}

void PanelWindow::GrowToFit() {
  const QSize room = screen()->availableGeometry().size();
  const QSize wanted = sizeHint().boundedTo(room).expandedTo(size());
  if (wanted != size()) resize(wanted);
}

void PanelWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  painted_ = true;
  if (!framed_) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PanelWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !shown_) return;
  const auto shown = std::exchange(shown_, nullptr);
  QMetaObject::invokeMethod(
      this, [this, shown] { Act(shown); }, Qt::QueuedConnection);
}

CWnd* PanelWindow::DefaultButton() const {
  for (const auto& control : panel_.Controls()) {
    if ((control->Shape().style & kDefaultButton) != 0) return control.get();
  }
  return nullptr;
}

void PanelWindow::Act(const std::function<void()>& action) {
  if (panel_.HasEnded() || failure_) return;
  try {
    action();
  } catch (...) {
    failure_ = std::current_exception();
    loop_.quit();
  }
}

void PanelWindow::Press(CWnd& button) {
  ClearRefusals();
  Act([&] {
    panel_.UserFocused(&button);
    if (panel_.HasEnded()) return;
    const int id = button.GetDlgCtrlID();
    if (button.Shape().kind == ControlKind::kRadio) panel_.CheckRadioButton(id);
    if (button.Shape().kind == ControlKind::kCheck) {
      auto& check = dynamic_cast<CButton&>(button);
      check.SetCheck(!check.GetCheck());
    }
    panel_.NotifyClick(id);
  });
  // Enter presses a button from afar: the user is still in the field.
  CWnd* present = ControlWith(focusWidget());
  if (present != nullptr && panel_.FocusedControl() == &button) Act([&] { panel_.UserFocused(present); });
}

CWnd* PanelWindow::ControlWith(const QWidget* widget) const {
  for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    for (const auto& [id, view] : views_) {
      if (view->Widget() == widget) return &view->Control();
    }
  }
  return nullptr;
}

void PanelWindow::FocusMovedTo(QWidget* widget) {
  if (following_ || widget == nullptr || !isAncestorOf(widget)) return;
  if (CWnd* control = ControlWith(widget)) Act([&] { panel_.UserFocused(control); });
}

void PanelWindow::ClearRefusals() {
  for (const auto& [id, view] : views_) view->MarkRefused(false);
}

void PanelWindow::OnControlChanged(CWnd& control, ControlAspect aspect) {
  const QScopedValueRollback following(following_, true);
  views_.at(control.GetDlgCtrlID())->Follow(aspect);
  if (aspect == ControlAspect::kVisible) layout_->FollowVisibility();
  if (aspect == ControlAspect::kSelection) FollowSelection(control);
  if (aspect == ControlAspect::kCells && sheet_ != nullptr) explain_.Ask();
}

void PanelWindow::OnFocusMoved(CWnd& control, bool selected) {
  const QScopedValueRollback following(following_, true);
  ControlView& view = *views_.at(control.GetDlgCtrlID());
  view.TakeFocus(selected);
  view.MarkRefused(selected);
}

void PanelWindow::OnEnded() {
  loop_.quit();
}

}  // namespace zwt
