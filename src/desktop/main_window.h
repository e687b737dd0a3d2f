// The main window: the drawing in the middle, its layers beside it, the command line below it, files, edits
// and the commands of the module by discipline in menus and tool bar. For as long as it lives it shows the
// panels, answers questions in the drawing, prints what commands print and takes their reports.
#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <map>

#include "desktop/command_pane.h"
#include "desktop/command_session.h"
#include "desktop/desktop_editor.h"
#include "desktop/desktop_presenter.h"
#include "desktop/desktop_reports.h"
#include "desktop/document.h"
#include "desktop/drawing_area.h"
#include "desktop/drawing_edits.h"
#include "desktop/drawing_overlay.h"
#include "desktop/drawing_scene.h"
#include "desktop/file_actions.h"
#include "desktop/layer_view.h"
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

  /// Takes what was typed on the command line: the answer to a question that waits, otherwise a command in
  /// any case, or the last one again for an empty line.
  void Enter(const QString& line);

  DesktopPresenter& Panels() { return presenter_; }
  CommandPane& CommandLineOf() { return *pane_; }
  CommandSession& Session() { return session_; }
  DrawingArea& Area() { return *area_; }
  DrawingScene& Scene() { return scene_; }
  DesktopEditor& Editor() { return editor_; }
  Document& GetDocument() { return document_; }
  FileActions& Files() { return files_; }
  DesktopReports& Reports() { return reports_; }
  DrawingEdits& Edits() { return edits_; }
  LayerView& Layers() { return *layers_; }
  DrawingOverlay& Results() { return overlay_; }
  /// The menu and tool bar entry of a command, null for a name of no discipline.
  QAction* ActionOf(const CString& command) const;

  /// Called when the window stands on the screen for the first time.
  std::function<void()> onShown;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeCommandLine();
  void MakeFileMenu();
  void MakeEditMenu();
  void MakeViewMenu();
  QDockWidget* AddSideDock(const QString& title, const char* name, QWidget* content, QMenu& menu);
  void FollowDocument();
  void FollowResults();
  void MakeCommandActions();
  void MakeFileBar();
  void MakeHelpMenu();
  void MakeStatusBar();
  void RestoreWindow();
  void FollowSession();
  void FollowDrawing();
  void CatchUpWithFile();
  bool RunOwnCommand(const QString& name);
  void ShowAbout();

  Settings settings_;
  NestedWaits waits_;
  DesktopPresenter presenter_;
  CommandSession session_;
  Document document_;
  DrawingScene scene_;
  DrawingOverlay overlay_;
  CommandPane* pane_;
  DrawingArea* area_;
  LayerView* layers_;
  DrawingEdits edits_;
  DesktopEditor editor_;
  FileActions files_;
  DesktopReports reports_;
  QLabel* state_;
  QLabel* place_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  std::map<CString, QAction*> actions_;
  Presenter* presenterBefore_;
  CommandLine* lineBefore_;
  bool closing_ = false;
};

}  // namespace zwt
