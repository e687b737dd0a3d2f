// Grids of a panel: the table, and the notices of what the user does in it.
#pragma once

#include "desktop/control_view.h"
#include "desktop/grid_delegate.h"
#include "desktop/grid_table.h"
#include "desktop/later_once.h"

namespace zwt {

class GridView : public ControlView {
 public:
  GridView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return table_; }
  void Follow(ControlAspect aspect) override;

 private:
  CGridCtrl& Model() const;
  GridDelegate::Edits Edits();
  void Enter(int row, int column, const CString& text);
  void UserSelected();
  void Notify(CellNotice notice, int row, int column);

  GridTable* table_;
  GridDelegate* delegate_;
  LaterOnce takeOver_;
  bool following_ = false;
};

}  // namespace zwt
