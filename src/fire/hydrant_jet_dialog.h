// The panel of the single hydrant jet. The calculation is hydrant_jet.h.
#pragma once

#include <cstdint>

#include "fire/hydrant_jet.h"
#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kHydrantJetPanel;

/// The command that opens the panel.
void RunHydrantJetCommand();

}  // namespace zwt

class ZcUiHydrantDialoge : public ZcUiDialog {
 public:
  explicit ZcUiHydrantDialoge(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ChooseKnown(zwt::JetKnown known);
  void ComputeHydrantJet();
  zwt::HydrantJetInput Input() const;

  std::int32_t hoseDiameterIndex_ = -1;
  std::int32_t nozzleIndex_ = -1;
  std::int32_t hoseMaterialIndex_ = -1;
  std::int32_t knownMode_ = -1;
  CString inputText_;
  CString resultText_;
  CString pressureText_;
  CString radiusText_;
  CString hoseLengthText_;
};
