// The table of indoor hydrant demand from which a row is picked by double click.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHydrantDemandPanel;

}  // namespace zwt

class ZcUiHydrantElementParamDialog : public CDialog {
 public:
  explicit ZcUiHydrantElementParamDialog(CDialog* parent = nullptr);

  // The row picked: demand L/s, guns in use together, smallest flow per gun and per riser, L/s.
  double hydrantFlow = 0;
  std::int32_t gunCount = 0;
  double gunMinFlow = 0;
  double riserMinFlow = 0;

 protected:
  void OnInitDialog() override;

 private:
  void FillTable();
  void PickRow(int row);
};
