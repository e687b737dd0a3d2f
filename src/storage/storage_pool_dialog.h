// The panel of the storage pool. The calculation is storage_pool.h.
#pragma once

#include "host/dialog/dialog.h"
#include "storage/storage_pool.h"

namespace zwt {

extern const PanelTemplate kStoragePoolPanel;

/// The command that opens the panel.
void RunStoragePoolCommand();

}  // namespace zwt

class ZcUiComputePoolDialog : public ZcUiDialog {
 public:
  explicit ZcUiComputePoolDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ShowInletFlow();
  void SwitchInletSupply();
  void Calculate();

  zwt::StoragePoolInput input_;
  CString inletFlowText_;
  CString fireReserveText_;
  CString regulatingText_;
  CString domesticReserveText_;
  CString inletSupplyText_;
  CString totalText_;
};
