// The panel of the command ZWTGRGS: maximum-day and maximum-hour water use of a building.
#pragma once

#include <optional>

#include "host/dialog/dialog.h"
#include "supply/max_day.h"

namespace zwt {

extern const PanelTemplate kMaxDayPanel;

/// The command ZWTGRGS: opens the panel.
void RunMaxDayCommand();

}  // namespace zwt

class ZcUiMaxDayDialog : public ZcUiDialog {
 public:
  ZcUiMaxDayDialog();

 protected:
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void Calculate();
  void PickQuota();
  void EstimateInlet();

  zwt::MaxDayInputs inputs_;
  std::optional<zwt::MaxDayInputs> calculated_;  // what the results belong to
  CString quotaName_;
  CString maxDayText_;   // m³
  CString maxHourText_;  // m³
};
