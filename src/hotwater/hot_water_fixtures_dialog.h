// The panel in which fixtures are counted into an hourly use. The counts are remembered in fixture_counts.h.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHotWaterFixturesPanel;

}  // namespace zwt

class ZcUiComputeRsWareDialog : public CDialog {
 public:
  explicit ZcUiComputeRsWareDialog(double hourlyQuotaHeld, CDialog* parent = nullptr);

  double hourlyQuota;  // L/h of all fixtures; as handed in until "确定"

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void FillTable();
  void EmptyCounts();
};
