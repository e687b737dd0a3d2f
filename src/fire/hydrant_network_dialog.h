// The panel of the command ZWTXFJS: demand and gun parameters, calculation and results of a looped hydrant
// network.
#pragma once

#include <optional>

#include "fire/hydrant_calculation.h"
#include "fire/hydrant_formula.h"
#include "fire/hydrant_network_model.h"
#include "fire/hydrant_overlay.h"
#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHydrantNetworkPanel;

/// The command ZWTXFJS: asks for the end of the main, builds the model, labels its nodes and opens the panel.
void RunHydrantNetworkCommand();

}  // namespace zwt

class ZcUiHydrantElementDialog : public ZcUiDialog {
 public:
  ZcUiHydrantElementDialog();

  /// Whether the number labels stay in the drawing after the panel.
  bool KeepsNumbers() const { return keepNumbers_ != 0; }

  zwt::ZwtHydrantGraph model;

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnCancel() override;

 private:
  void BuildSectionTable();
  void BuildNodeTable();
  void PickDemand();
  void ComputeJetFlow();
  void Calculate();
  void ShowResults();
  void PublishResults(const zwt::LoopedResult& passes, const zwt::PassHistory& history);
  zwt::Trace ExplainSectionRow(int row);
  zwt::Trace ExplainNodeRow(int row) const;
  void ViewDrawing();
  void WriteBackDiameters();
  void WriteHydrantReport();
  /// The choices of the five selection fields into the input.
  void ReadSelections();

  std::int32_t keepNumbers_ = 0;
  zwt::HydrantCalcInput input_;

  /// What the tables show since the last calculation.
  struct Calculated {
    zwt::HydrantCalcInput input;
    zwt::LoopedNetwork network;
  };
  std::optional<Calculated> calculated_;  // none where the last pass found no heads
};
