// The panel of the pressure tank. The calculation is pressure_tank.h.
#pragma once

#include "host/dialog/dialog.h"
#include "storage/pressure_tank.h"

namespace zwt {

extern const PanelTemplate kPressureTankPanel;

/// The command that opens the panel.
void RunPressureTankCommand();

}  // namespace zwt

class ZcUiAirContainerDialog : public ZcUiDialog {
 public:
  explicit ZcUiAirContainerDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void Calculate();

  zwt::PressureTankInput input_;
  zwt::PressureTankResult result_;
};
