// The main window: the drawing in the middle, the command line below it, the commands of the module by
// discipline in menus and tool bar. It puts itself in force as the presenter of panels and as the command
// line for as long as it lives.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <map>

#include "desktop/command_pane.h"
#include "desktop/command_session.h"
#include "desktop/desktop_presenter.h"
#include "desktop/settings.h"

namespace zwt {

class MainWindow : public QMainWindow {
 public:
  MainWindow();
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow() override;

  /// Takes over the commands that are registered now. Commands that are not are greyed.
  void TakeOverCommands();

  /// Runs what was typed on the command line: a command in any case, or the last one again for an empty line.
  void Enter(const QString& line);

  DesktopPresenter& Panels() { return presenter_; }
  CommandPane& CommandLineOf() { return *pane_; }
  CommandSession& Session() { return session_; }
  /// The menu and tool bar entry of a command, null for a name of no discipline.
  QAction* ActionOf(const CString& command) const;

  /// Called when the window stands on the screen for the first time.
  std::function<void()> onShown;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeCommandLine();
  void MakeFileMenu();
  void MakeCommandActions();
  void MakeHelpMenu();
  void MakeStatusBar();
  void RestoreWindow();
  void FollowSession();
  void ShowAbout();

  Settings settings_;
  NestedWaits waits_;
  DesktopPresenter presenter_;
  CommandSession session_;
  CommandPane* pane_;
  QLabel* state_;
  std::map<CString, QAction*> actions_;
  Presenter* presenterBefore_;
  CommandLine* lineBefore_;
  bool closing_ = false;
};

}  // namespace zwt
