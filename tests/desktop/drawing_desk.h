// A main window with a drawing, worked by test functions: what opens next (a question in the drawing, a
// panel, a message) is handed to the next function of its queue when the user could begin.
#pragma once

#include <QAbstractButton>
#include <QDir>
#include <QMenuBar>
#include <QTest>
#include <QWheelEvent>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "desktop/main_window.h"
#include "desktop/qt_text.h"
#include "host/platform/paths.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/module_runtime.h"
#include "panel_desk.h"

namespace zwt::test {

/// A folder of the running test's own, empty at first.
inline std::filesystem::path FreshFolder() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::filesystem::path folder = testing::TempDir();
  folder /= std::string("desktop-") + test->test_suite_name() + "-" + test->name();
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  return folder;
}

class DrawingDesk {
 public:
  DrawingDesk() : folder_(FreshFolder()) {
    const QString folder = ToQt(TextFromPath(folder_ / "settings"));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    module_.Load();
    window_ = std::make_unique<MainWindow>();
    window_->TakeOverCommands();
    window_->Editor().onAsking = [this] { Next(askings_); };
    window_->Panels().onPanelShown = [this](PanelWindow& panel) {
      if (!panels_.empty()) Taken(panels_)(panel);
      if (!panel.Panel().HasEnded() && window_->isVisible() && !left_) panel.close();
    };
    window_->Panels().onMessageShown = [this](QMessageBox& box) {
      messages.push_back(FromQt(box.text()));
      if (answers_.empty()) {
        box.accept();
      } else {
        Taken(answers_)(box);
      }
    };
    window_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  DrawingDesk(const DrawingDesk&) = delete;
  DrawingDesk& operator=(const DrawingDesk&) = delete;
  /// Leaves without a question about changes.
  ~DrawingDesk() { window_.reset(); }

  MainWindow& Window() { return *window_; }
  DrawingArea& Area() { return window_->Area(); }
  Drawing& Contents() { return window_->GetDocument().Contents(); }
  const std::filesystem::path& Folder() const { return folder_; }
  QString Printed() { return window_->CommandLineOf().PrintedText(); }
  void DestroyWindow() { window_.reset(); }

  /// Copies a drawing of the source tree into the folder and opens it there.
  std::filesystem::path Open(const std::string& sourceFile) {
    const std::filesystem::path source = std::filesystem::path(ZWT_SOURCE_DIR) / sourceFile;
    const std::filesystem::path file = folder_ / source.filename();
    std::filesystem::copy_file(source, file);
    EXPECT_TRUE(window_->Files().OpenFile(ToQt(TextFromPath(file))));
    return file;
  }

  /// What the user does at the next question in the drawing, in the next panel, at the next message.
  void AtQuestion(std::function<void()> act) { askings_.push_back(std::move(act)); }
  void InPanel(std::function<void(PanelWindow&)> act) { panels_.push_back(std::move(act)); }
  void AtMessage(std::function<void(QMessageBox&)> act) { answers_.push_back(std::move(act)); }
  /// The user presses the button with this text at the next message.
  void Answer(const char* button) {
    AtMessage([text = QString::fromUtf8(button)](QMessageBox& box) {
      for (QAbstractButton* choice : box.buttons()) {
        if (choice->text() == text) return QTest::mouseClick(choice, Qt::LeftButton);
      }
      ADD_FAILURE() << "no button " << text.toStdString();
      box.reject();
    });
  }
  bool AllDone() const { return askings_.empty() && panels_.empty() && answers_.empty(); }

  QPoint PixelOf(double x, double y) { return Area().View().ToPixel(x, y).toPoint(); }
  void MoveTo(double x, double y) { QTest::mouseMove(&Area(), PixelOf(x, y)); }
  void ClickAt(double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseClick(&Area(), Qt::LeftButton, keys, PixelOf(x, y));
  }
  void Drag(double x, double y, double toX, double toY, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mousePress(&Area(), Qt::LeftButton, keys, PixelOf(x, y));
    QTest::mouseMove(&Area(), PixelOf(toX, toY));
    QTest::mouseRelease(&Area(), Qt::LeftButton, keys, PixelOf(toX, toY));
  }
  void Press(Qt::Key key) { QTest::keyClick(&Area(), key); }
  void Wheel(const QPoint& pixel, int notches) {
    constexpr int kNotch = 120;
    QWheelEvent event(pixel, Area().mapToGlobal(pixel), QPoint(), QPoint(0, notches * kNotch), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Area(), &event);
  }
  void TypeLine(const char* text) {
    QTest::keyClicks(&window_->CommandLineOf().Input(), QString::fromUtf8(text));
    QTest::keyClick(&window_->CommandLineOf().Input(), Qt::Key_Return);
  }

  /// Opens the menu that holds a command and clicks it there with the mouse.
  void ChooseCommand(const wchar_t* name) {
    QAction* action = window_->ActionOf(name);
    for (QAction* title : window_->menuBar()->actions()) {
      if (!title->menu()->actions().contains(action)) continue;
      QTest::mouseClick(window_->menuBar(), Qt::LeftButton, Qt::NoModifier,
                        window_->menuBar()->actionGeometry(title).center());
      QTest::mouseClick(title->menu(), Qt::LeftButton, Qt::NoModifier,
                        title->menu()->actionGeometry(action).center());
      return;
    }
    ADD_FAILURE() << "no menu holds the command";
  }

  /// From here on a panel stays open when its test function returns: the test closes the window.
  void LeavePanelsOpen() { left_ = true; }

  std::vector<CString> messages;

 private:
  template <typename Queue>
  static typename Queue::value_type Taken(Queue& queue) {
    typename Queue::value_type front = std::move(queue.front());
    queue.pop_front();
    return front;
  }
  /// A question that nobody expects is cancelled, so that no test hangs.
  void Next(std::deque<std::function<void()>>& queue) {
    if (queue.empty()) {
      window_->Editor().Escape();
    } else {
      Taken(queue)();
    }
  }

  std::filesystem::path folder_;
  ModuleRuntime module_;
  std::unique_ptr<MainWindow> window_;
  std::deque<std::function<void()>> askings_;
  std::deque<std::function<void(PanelWindow&)>> panels_;
  std::deque<std::function<void(QMessageBox&)>> answers_;
  bool left_ = false;
};

}  // namespace zwt::test
