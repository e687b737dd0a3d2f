// Shows panels as windows. The only class that knows both worlds: it makes a window for each panel that opens
// and keeps them in the order in which they opened.
#pragma once

#include <QMessageBox>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/input_gate.h"
#include "desktop/nested_waits.h"
#include "desktop/panel_window.h"
#include "host/dialog/presenter.h"

namespace zwt {

class DesktopPresenter : public Presenter {
 public:
  /// mainWindow is the parent of panels that have none of their own; may be null. Panels and messages that
  /// are asked for while waits is cancelling are answered as cancelled, unseen.
  DesktopPresenter(QWidget* mainWindow, NestedWaits& waits);
  DesktopPresenter(const DesktopPresenter&) = delete;
  DesktopPresenter& operator=(const DesktopPresenter&) = delete;
  ~DesktopPresenter() override;

  void RunModal(CDialog& panel) override;
  void ShowModeless(CDialog& panel) override;
  void CloseModeless(CDialog& panel) override;
  void ShowMessage(CDialog* owner, const CString& text, const CString& caption, MessageIcon icon) override;
  /// Asks the program's own questions: a button for each answer, the last one is also the way out. Gives the
  /// number of the answer; while everything is cancelled that of the last one, unseen.
  int Ask(const QString& text, const QStringList& answers);

  void GiveWayToDrawing(CDialog& panel) override;
  void ReturnFromDrawing(CDialog& panel) override;

  /// The panel that opened last, null for none.
  PanelWindow* Innermost() const { return open_.empty() ? nullptr : open_.back(); }

  /// Called when the user could begin to work in a panel, see a progress panel, or answer a message.
  std::function<void(PanelWindow&)> onPanelShown;
  std::function<void(PanelWindow&)> onProgressShown;
  std::function<void(QMessageBox&)> onMessageShown;
  /// Selects a row of a grid in the innermost panel that has it.
  void SelectRow(int table, int row);
  /// Shows curves in the innermost panel.
  void ShowProfiles(const std::vector<OverlayProfile>& profiles);

  /// Called when the selected row of a grid of a panel is another one; -1: none.
  std::function<void(int table, int row)> onRowSelected;
  /// Called when a panel gives way to the drawing (true) and when it comes back (false).
  std::function<void(bool)> onDrawingWanted;

 private:
  struct Progress {
    CDialog* panel;
    std::unique_ptr<PanelWindow> window;
    std::unique_ptr<InputGate> gate;
  };

  QWidget* ParentFor(const CDialog* owner) const;
  PanelWindow* WindowOf(const CDialog* panel) const;
  void Wait(QMessageBox& box);

  QWidget* mainWindow_;
  NestedWaits& waits_;
  std::vector<PanelWindow*> open_;
  std::vector<Progress> progress_;
};

}  // namespace zwt
