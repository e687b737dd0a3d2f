// The window of one open panel. It makes a view for each control, runs the user's actions in the panel, and
// keeps the panel's exceptions out of the toolkit: one that a handler throws ends the window's loop and is
// given to whoever opened the panel.
#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QToolButton>
#include <exception>
#include <map>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/later_once.h"
#include "desktop/panel_layout.h"
#include "desktop/side_sheet.h"

namespace zwt {

class PanelWindow : public QDialog, private PanelListener, private PanelActions {
 public:
  PanelWindow(CDialog& panel, QWidget* parent);
  PanelWindow(const PanelWindow&) = delete;
  PanelWindow& operator=(const PanelWindow&) = delete;
  ~PanelWindow() override;

  CDialog& Panel() const { return panel_; }

  /// The view of a control, null for an unknown number.
  ControlView* FindView(int id) const;
  QWidget* WidgetOf(int id) const;

  /// Shows the window and lets the user work until the panel has ended. shown is called once, when the user
  /// could begin: when the window has become the active one. Throws what a handler of the panel threw.
  void Run(const std::function<void()>& shown);

  /// Takes the cancel path. The panel has ended afterwards, whatever its handlers do.
  void Cancel();

  /// Hides the window for work in the drawing, and brings it back. The loop of Run goes on meanwhile.
  void GiveWay();
  void Return();

  /// Draws a frame around a window that has no title bar.
  void SetFramed() { framed_ = true; }
  bool WasPainted() const { return painted_; }

  /// Selects a row of a grid, if the panel has that grid and that row. False otherwise.
  bool SelectRow(int table, int row);
  /// The sheet that tells how results were computed; null where the panel's results can't tell.
  SideSheet* Sheet() const { return sheet_; }

  /// Called when the selected row of a grid is another one; -1: none.
  std::function<void(int table, int row)> onRowSelected;

  /// Closes as the close box does.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void OnControlChanged(CWnd& control, ControlAspect aspect) override;
  void OnFocusMoved(CWnd& control, bool selected) override;
  void OnEnded() override;
  void Act(const std::function<void()>& action) override;
  void Press(CWnd& button) override;

  void MakeViews();
  void MakeLabels();
  void GroupRadioButtons();
  void SetTabOrder();
  void MakeSideSheet();
  void ShowSheet(bool shown);
  void FollowSelection(const CWnd& grid);
  void Explain();
  void FocusFirst();
  /// A table that was filled anew may ask for more room; a window that the user made larger stays so.
  void GrowToFit();
  void FocusMovedTo(QWidget* widget);
  CWnd* ControlWith(const QWidget* widget) const;
  CWnd* DefaultButton() const;
  void ClearRefusals();

  CDialog& panel_;
  PanelMetrics metrics_;
  std::map<int, std::unique_ptr<ControlView>> views_;
  std::unique_ptr<PanelLayout> layout_;
  QToolButton* sheetButton_ = nullptr;
  SideSheet* sheet_ = nullptr;
  int explained_ = 0;  // the grid whose selected row is explained, 0 for none
  LaterOnce explain_{[this] { Explain(); }};
  QEventLoop loop_;
  std::function<void()> shown_;  // empty once it was called
  QMetaObject::Connection focusFollower_;
  std::exception_ptr failure_;
  bool following_ = false;
  bool framed_ = false;
  bool painted_ = false;
};

}  // namespace zwt
