// The small modeless panel that says that a calculation is running.
#pragma once

#include "host/dialog/dialog.h"

namespace zwt {

extern const PanelTemplate kCalculatingPanel;

}  // namespace zwt

/// Shown for as long as it lives.
class ZcUiCalingDialog : public CDialog {
 public:
  explicit ZcUiCalingDialog(CDialog* parent);
  ~ZcUiCalingDialog() override;
};
