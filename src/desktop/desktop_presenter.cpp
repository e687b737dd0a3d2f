// Panels, messages and progress as windows.
#include "desktop/desktop_presenter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

/// Where a window's title shows that something is not saved.
const auto kModifiedMark = QStringLiteral("[*]");

/// Lets a window appear and paint itself; input stays queued. A window system that never shows it does not
/// hold up the calculation.
void WaitUntilPainted(PanelWindow& window) {
  constexpr int kPatience = 250;  // ms
  QElapsedTimer clock;
  clock.start();
  while (!window.WasPainted() && clock.elapsed() < kPatience) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  window.repaint();
}

}  // namespace

DesktopPresenter::DesktopPresenter(QWidget* mainWindow, NestedWaits& waits)
    : mainWindow_(mainWindow), waits_(waits) {}

DesktopPresenter::~DesktopPresenter() = default;

PanelWindow* DesktopPresenter::WindowOf(const CDialog* panel) const {
  const auto found = std::find_if(open_.begin(), open_.end(),
                                  [panel](const PanelWindow* window) { return &window->Panel() == panel; });
  return found == open_.end() ? nullptr : *found;
}

QWidget* DesktopPresenter::ParentFor(const CDialog* owner) const {
  if (PanelWindow* window = WindowOf(owner); window != nullptr && window->isVisible()) return window;
  PanelWindow* innermost = Innermost();
  return innermost != nullptr && innermost->isVisible() ? innermost : mainWindow_;
}

void DesktopPresenter::RunModal(CDialog& panel) {
  PanelWindow window(panel, ParentFor(panel.GetParent()));
  if (waits_.IsCancelling()) {
    window.Cancel();
    return;
  }
  const NestedWaits::Wait wait(waits_, [&window] { window.Cancel(); });
  open_.push_back(&window);
  window.onRowSelected = [this](int table, int row) {
    if (onRowSelected) onRowSelected(table, row);
  };
  const auto leave = [this](PanelWindow*) { open_.pop_back(); };
  const std::unique_ptr<PanelWindow, decltype(leave)> open(&window, leave);
  window.Run([&] {
    if (onPanelShown) onPanelShown(window);
  });
}

void DesktopPresenter::SelectRow(int table, int row) {
  for (auto window = open_.rbegin(); window != open_.rend(); ++window) {
    if ((*window)->SelectRow(table, row)) return;
  }
}

void DesktopPresenter::ShowProfiles(const std::vector<OverlayProfile>& profiles) {
  for (PanelWindow* window : open_) {
    if (window->Sheet() != nullptr) window->Sheet()->ShowProfiles(profiles);
  }
}

void DesktopPresenter::ShowModeless(CDialog& panel) {
  auto window = std::make_unique<PanelWindow>(panel, ParentFor(panel.GetParent()));
  window->setWindowFlag(Qt::WindowCloseButtonHint, false);
  if (CString(panel.Shape().title).empty()) {
    window->setWindowFlag(Qt::FramelessWindowHint);
    window->SetFramed();
  }
  window->show();
  WaitUntilPainted(*window);
  progress_.push_back({&panel, std::move(window), std::make_unique<InputGate>()});
  if (onProgressShown) onProgressShown(*progress_.back().window);
}

void DesktopPresenter::CloseModeless(CDialog& panel) {
  const auto found = std::find_if(progress_.begin(), progress_.end(),
                                  [&panel](const Progress& progress) { return progress.panel == &panel; });
  if (found != progress_.end()) progress_.erase(found);
}

void DesktopPresenter::ShowMessage(CDialog* owner, const CString& text, const CString& caption,
                                   MessageIcon icon) {
  if (waits_.IsCancelling()) return;
  QWidget* parent = ParentFor(owner);
  QMessageBox box(parent);
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  const QString usual = parent != nullptr ? parent->windowTitle().remove(kModifiedMark) : QString();
  box.setWindowTitle(caption.empty() ? usual : ToQt(caption));
  box.setIcon(icon == MessageIcon::kStop ? QMessageBox::Critical : QMessageBox::NoIcon);
  box.addButton(QStringLiteral("确定"), QMessageBox::AcceptRole);
  Wait(box);
}

void DesktopPresenter::Wait(QMessageBox& box) {
  const NestedWaits::Wait wait(waits_, [&box] { box.reject(); });
  QMetaObject::invokeMethod(
      &box,
      [&] {
        if (onMessageShown) onMessageShown(box);
      },
      Qt::QueuedConnection);
  box.exec();
}

int DesktopPresenter::Ask(const QString& text, const QStringList& answers) {
  const int wayOut = static_cast<int>(answers.size()) - 1;
  if (waits_.IsCancelling()) return wayOut;
  QMessageBox box(mainWindow_);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setWindowTitle(mainWindow_ != nullptr ? mainWindow_->windowTitle().remove(kModifiedMark) : QString());
  box.setIcon(QMessageBox::Question);
  QList<QAbstractButton*> buttons;
  for (const QString& answer : answers) {
    const bool last = buttons.size() == wayOut;
    buttons.append(box.addButton(answer, last ? QMessageBox::RejectRole : QMessageBox::AcceptRole));
  }
  box.setEscapeButton(buttons.last());
  Wait(box);
  const auto pressed = static_cast<int>(buttons.indexOf(box.clickedButton()));
  return pressed < 0 ? wayOut : pressed;
}

void DesktopPresenter::GiveWayToDrawing(CDialog&) {
  for (auto window = open_.rbegin(); window != open_.rend(); ++window) (*window)->GiveWay();
  if (onDrawingWanted) onDrawingWanted(true);
}

void DesktopPresenter::ReturnFromDrawing(CDialog&) {
  if (onDrawingWanted) onDrawingWanted(false);
  if (waits_.IsCancelling()) return;
  for (PanelWindow* window : open_) window->Return();
}

}  // namespace zwt
