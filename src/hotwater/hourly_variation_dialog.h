// The panel from which the hourly variation coefficient of hot water is picked by number of persons or beds.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHourlyVariationPanel;

}  // namespace zwt

class ZcUiComputeRsCoeffDialog : public CDialog {
 public:
  explicit ZcUiComputeRsCoeffDialog(CDialog* parent = nullptr);

  double hourlyVariation = 0;

 protected:
  void OnInitDialog() override;

 private:
  void PickCell(int grid, int row, int column);
};
