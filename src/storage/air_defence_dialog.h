// The panel of the civil air defence water. Calculation and defaults are air_defence_water.h.
#pragma once

#include <cstdint>

#include "host/dialog/dialog.h"
#include "storage/air_defence_water.h"

namespace zwt {

extern const PanelTemplate kAirDefencePanel;

/// The command that opens the panel.
void RunAirDefenceCommand();

}  // namespace zwt

class ZcUiAerialDefenceDialog : public ZcUiDialog {
 public:
  explicit ZcUiAerialDefenceDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ChooseWork();
  void ChooseSource(zwt::WaterSource source);
  void ToggleOutside();
  void ShowState();
  void Calculate();

  zwt::AirDefenceState state_;
  CString drinkingTotal_;
  CString domesticTotal_;
};
