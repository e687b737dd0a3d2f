// The panel of the command ZWTJDGS: design flow and diameter of one pipe section.
#pragma once

#include <optional>

#include "host/dialog/dialog.h"
#include "supply/design_flow.h"

namespace zwt {

extern const PanelTemplate kDesignFlowPanel;

/// The command ZWTJDGS: opens the panel.
void RunDesignFlowCommand();

}  // namespace zwt

class ZcUiComputeGSDialog : public ZcUiDialog {
 public:
  ZcUiComputeGSDialog();

 protected:
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void Calculate();
  /// The choice of the diameter, then its velocity.
  zwt::Trace ExplainSize() const;
  void SumFixtures();

  zwt::DesignFlowInputs inputs_;
  std::optional<zwt::DesignFlowInputs> calculated_;  // what the results belong to
  CString calculatedMaterial_;
  CString material_ = L"塑料管";
  CString flowText_;      // L/s
  CString diameterText_;  // mm
  CString velocityText_;  // m/s
};
