// The panel that turns a protected area into a required rating, and hands it to the panel of the extinguisher
// choice.
#pragma once

#include <cstdint>

#include "fire/extinguisher_sizing.h"
#include "host/dialog/dialog.h"

class ZcUiFireChildDialog;

namespace zwt {

extern const PanelTemplate kExtinguisherSizingPanel;

/// The command that opens the panel.
void RunExtinguisherCommand();

}  // namespace zwt

class ZcUiFireExtinguisherDialog : public ZcUiDialog {
 public:
  explicit ZcUiFireExtinguisherDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void RequiredRating();
  void TakeBack(const ZcUiFireChildDialog& choice);

  zwt::ProtectedArea area_{
      .areaText = {}, .classIndex = -1, .buildingIndex = -1, .dangerIndex = -1, .facilityIndex = -1};
};
