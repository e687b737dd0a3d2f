// Lays the widgets of a panel out by its plan: group boxes with aligned labels and fields, grids that take
// the room that is left, the button row at the end.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <functional>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/panel_plan.h"

namespace zwt {

class PanelLayout {
 public:
  /// viewOf gives the view of a control's number.
  using ViewOf = std::function<ControlView&(int id)>;

  PanelLayout(QWidget& window, const PanelPlan& plan, ViewOf viewOf);

  /// Hides group boxes in which nothing is visible and shows the others.
  void FollowVisibility();

  /// Puts a widget of the window itself at the left end of the button row.
  void AddAside(QWidget& widget);

  /// Whether something in the panel takes more room when the window grows.
  bool CanGrow() const { return canGrow_; }

 private:
  struct Box {
    QWidget* frame;
    std::vector<const CWnd*> controls;
  };

  QLayout* MakeBand(const PanelBand& band);
  QLayout* MakeColumn(const std::vector<PanelBox>& boxes);
  QGridLayout* MakeBox(const PanelBox& box);
  QGridLayout* FillBox(QWidget& frame, const PanelBox& box);
  QLayout* MakeButtonRow(const PanelRow& row);

  QWidget& window_;
  ViewOf viewOf_;
  std::vector<Box> boxes_;
  QHBoxLayout* buttonRow_ = nullptr;
  bool canGrow_ = false;
};

}  // namespace zwt
