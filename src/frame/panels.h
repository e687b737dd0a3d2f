// The panels that the module makes known to listing and explaining programs.
#pragma once

#include <span>

#include "host/dialog/panel_template.h"

namespace zwt {

/// All panels of the module: those of the commands in the commands' order, each followed by the panels that
/// it opens.
std::span<const PanelTemplate* const> ModulePanels();

}  // namespace zwt
