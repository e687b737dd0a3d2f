// The panel of the tank volume. The calculation is tank_volume.h.
#pragma once

#include <cstdint>

#include "host/dialog/dialog.h"
#include "storage/tank_volume.h"

namespace zwt {

extern const PanelTemplate kTankPanel;

/// The command that opens the panel.
void RunTankCommand();

}  // namespace zwt

class ZcUiTankDialog : public ZcUiDialog {
 public:
  explicit ZcUiTankDialog(CDialog* parent = nullptr);

 protected:
  void OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ChooseUse(zwt::TankUse use);
  void ChooseMode(zwt::TankMode mode);
  void ChooseClass();
  void Calculate();

  std::int32_t use_ = static_cast<std::int32_t>(zwt::TankUse::Domestic);
  std::int32_t mode_ = static_cast<std::int32_t>(zwt::TankMode::TankAlone);
  zwt::TankInput input_;
  CString fireVolumeText_;
  CString domesticVolumeText_;
  CString totalText_;
};
