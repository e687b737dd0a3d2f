// The panel from which a cold water temperature is picked by region.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kColdWaterPanel;

}  // namespace zwt

class ZcUiComputeRsColdDialog : public CDialog {
 public:
  explicit ZcUiComputeRsColdDialog(CDialog* parent = nullptr);

  double temperature = 0;  // °C

 protected:
  void OnInitDialog() override;

 private:
  void PickCell(int grid, int row, int column);
};
