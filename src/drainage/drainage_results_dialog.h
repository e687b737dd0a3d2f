// The panel of the command ZWTPSJS: the floors of a drainage stack, their calculation, fixtures and
// annotation.
#pragma once

#include "drainage/drainage_network.h"
#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kDrainageResultsPanel;

/// The command ZWTPSJS: asks for the end of a stack, builds the model and opens the panel.
void RunDrainageCommand();

}  // namespace zwt

class ZcUiElementsPsDialog : public ZcUiDialog {
 public:
  ZcUiElementsPsDialog();

  ZwtPsPipeNetwork network;

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void InitGrid();
  void FillGrid();
  void Calculate();
  zwt::Trace ExplainRow(int row);
  /// What the rows show, for the eye; 0 where the stack has no diameter yet.
  void PublishFloors(std::int32_t riserDiameter);
  void EditBranchData();
  void ViewDrawing();

  CString useCoefficient_ = L"1.5";           // of the building, parsed at each calculation
  std::int32_t formIndex_ = 0;                // of the riser's tees
  bool calculated_ = false;                   // set by the first calculation, never cleared
  zwt::DrainageSettings calculatedSettings_;  // of the last calculation
};
