// The command that opens one panel and needs nothing before it.
#pragma once

#include "frame/scope/push_resource.h"

namespace zwt {

/// Runs a panel without parent as a command: the scope is opened, the panel made, shown until it closes and
/// destroyed, and the scope is closed, in this order also when the panel is left by an exception. The code
/// with which the panel closes is ignored: it has done its own work by then.
template <typename Panel>
void RunPanel() {
  const ZcUtPushResource scope;
  Panel panel;
  panel.DoModal();
}

}  // namespace zwt
