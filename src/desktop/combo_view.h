// Combo boxes: a list to pick from, or a field with a list.
#pragma once

#include <QComboBox>

#include "desktop/control_view.h"

namespace zwt {

class ComboView : public ControlView {
 public:
  ComboView(CWnd& control, PanelActions& actions, const PanelMetrics& metrics, QWidget* parent);

  QWidget* Widget() const override { return box_; }
  void Follow(ControlAspect aspect) override;
  void TakeFocus(bool selected) override;

 private:
  CComboBox& Model() const;
  void FollowItems();
  void FollowSelection();
  void Pick(int index);

  QComboBox* box_;
};

}  // namespace zwt
