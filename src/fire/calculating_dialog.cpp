// Notice of a running calculation.
#include "fire/calculating_dialog.h"

namespace zwt {

namespace {

constexpr ControlTemplate kCalculatingControls[] = {
    {.id = 3001, .name = L"notice", .label = L"正在计算,请稍候...", .kind = ControlKind::kStatic},
};

}  // namespace

constexpr PanelTemplate kCalculatingPanel = {
    .resource = 3101, .className = L"ZcUiCalingDialog", .controls = kCalculatingControls};

}  // namespace zwt

ZcUiCalingDialog::ZcUiCalingDialog(CDialog* parent) : CDialog(zwt::kCalculatingPanel, parent) {
  ShowModeless();
}

ZcUiCalingDialog::~ZcUiCalingDialog() {
  CloseModeless();
}
