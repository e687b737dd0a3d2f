// The panel from which a hot water quota is picked, with the hours of use and the name of the building.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHotWaterQuotaPanel;

}  // namespace zwt

class ZcUiComputeRsParamDialog : public CDialog {
 public:
  explicit ZcUiComputeRsParamDialog(CDialog* parent = nullptr);

  // What was picked: L per unit and day, h per day.
  double quota = 0;
  CString buildingText;
  double hours = 24;

 protected:
  void OnInitDialog() override;

 private:
  void FillTable();
  /// Takes the values of a row; false where the cell belongs to no row of values.
  bool PickRow(int row, int column);
};
