// A presenter with real windows whose panels are worked by test functions: each panel that opens is handed to
// the next function in the queue when the user could begin. A panel still open afterwards is closed by its
// close box, so that no test hangs.
#pragma once

#include <QApplication>
#include <QTest>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "desktop/desktop_presenter.h"
#include "desktop/grid_table.h"
#include "desktop/qt_text.h"

namespace zwt::test {

class PanelDesk {
 public:
  using UserFunction = std::function<void(PanelWindow& window)>;

  PanelDesk() : PanelDesk(nullptr) {}
  explicit PanelDesk(QWidget* mainWindow) : presenter(mainWindow, waits), before_(SetPresenter(&presenter)) {
    presenter.onPanelShown = [this](PanelWindow& window) { Work(window); };
    presenter.onMessageShown = [this](QMessageBox& box) {
      messages.push_back(FromQt(box.windowTitle()) + L"|" + FromQt(box.text()));
      box.accept();
    };
  }
  PanelDesk(const PanelDesk&) = delete;
  PanelDesk& operator=(const PanelDesk&) = delete;
  ~PanelDesk() { SetPresenter(before_); }

  void User(UserFunction user) { users_.push_back(std::move(user)); }

  std::vector<CString> messages;  // caption|text
  NestedWaits waits;
  DesktopPresenter presenter;

 private:
  void Work(PanelWindow& window) {
    if (!users_.empty()) {
      const UserFunction user = std::move(users_.front());
      users_.pop_front();
      user(window);
    }
    if (!window.Panel().HasEnded() && !waits.IsCancelling()) window.close();
  }

  Presenter* before_;
  std::deque<UserFunction> users_;
};

/// The widget of a control as a kind of widget; a wrong kind fails the test by an exception.
template <typename Widget>
Widget& WidgetOf(PanelWindow& window, int id) {
  auto* widget = dynamic_cast<Widget*>(window.WidgetOf(id));
  if (widget == nullptr) throw std::logic_error("no such widget: control " + std::to_string(id));
  return *widget;
}

inline void ClickOn(PanelWindow& window, int id) {
  QTest::mouseClick(window.WidgetOf(id), Qt::LeftButton);
}

/// Puts the caret into a field with the mouse and types over what stands there.
inline void TypeInto(PanelWindow& window, int id, const char* text) {
  QWidget* field = window.WidgetOf(id);
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(field, QString::fromUtf8(text));
}

/// The middle of a cell in the coordinates of the view's viewport that shows it.
inline void ClickCell(PanelWindow& window, int id, int row, int column, bool twice = false) {
  auto& table = WidgetOf<GridTable>(window, id);
  QTableView& view = table.ViewOf(row, column);
  const QPoint place = view.visualRect(view.model()->index(row, column)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

}  // namespace zwt::test
