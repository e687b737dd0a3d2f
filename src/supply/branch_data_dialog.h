// The panel of the command ZWTGSCS: the supply data of branch pipes. The results panel opens it for one
// section, too.
#pragma once

#include "host/dialog/dialog.h"
#include "supply/branch_data.h"

namespace zwt {

extern const PanelTemplate kBranchDataPanel;

/// The command ZWTGSCS: asks for branch pipes, shows the first one's values and gives the panel's values to
/// all.
void RunBranchDataCommand();

}  // namespace zwt

class ZcUiComputeGSParamEditDialog : public ZcUiDialog {
 public:
  explicit ZcUiComputeGSParamEditDialog(CDialog* parent = nullptr);

  zwt::BranchData data;

 protected:
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void PickQuota();
  void SumFixtures();
};
