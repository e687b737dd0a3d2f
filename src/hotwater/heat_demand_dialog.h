// The panel of the hot water heat demand. The calculation is heat_demand.h.
#pragma once

#include "host/dialog/dialog.h"
#include "hotwater/heat_demand.h"

namespace zwt {

extern const PanelTemplate kHeatDemandPanel;

/// The command that opens the panel.
void RunHeatDemandCommand();

}  // namespace zwt

class ZcUiComputeRSDialog : public ZcUiDialog {
 public:
  explicit ZcUiComputeRSDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void OnCancel() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ChooseAllDay();
  void ChooseTimed();
  void EnableSupply(zwt::HotWaterSupply supply);
  void PickQuota();
  void PickHourlyVariation();
  void CountFixtures();
  void PickColdTemperature();
  void Calculate();

  zwt::HeatDemandInput input_;
  CString buildingText_;
  zwt::HeatDemandResult result_;
};
