// The panel that estimates the diameter of a dwelling's inlet pipe by the probability method.
#pragma once

#include "host/dialog/dialog.h"
#include "supply/max_day.h"

namespace zwt {

extern const PanelTemplate kInletDiameterPanel;

}  // namespace zwt

class ZcUiMaxDayDiameterDialog : public CDialog {
 public:
  explicit ZcUiMaxDayDiameterDialog(CDialog* parent = nullptr);

  /// Quota, users, factor and hours, handed in by the maximum-day panel.
  zwt::MaxDayInputs inputs;

 protected:
  void DoDataExchange(CDataExchange* exchange) override;
  void OnCancel() override;

 private:
  void Estimate();
  void SumFixtures();

  double equivalents_ = 0;
  CString diameterText_;
  CString velocityText_;
};
