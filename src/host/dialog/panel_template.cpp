// The list of the panels that the loaded module offers.
#include "host/dialog/panel_template.h"

#include <algorithm>

namespace zwt {

namespace {

std::vector<const PanelTemplate*>& Registered() {
  static std::vector<const PanelTemplate*> panels;
  return panels;
}

}  // namespace

void RegisterPanel(const PanelTemplate& panel) {
  Registered().push_back(&panel);
}

void UnregisterPanel(const PanelTemplate& panel) {
  std::erase(Registered(), &panel);
}

const std::vector<const PanelTemplate*>& RegisteredPanels() {
  return Registered();
}

const PanelTemplate* FindPanelOfCommand(const CString& command) {
  const auto& panels = Registered();
  const auto found = std::find_if(panels.begin(), panels.end(), [&](const PanelTemplate* panel) {
    return !command.empty() && command == panel->command;
  });
  return found == panels.end() ? nullptr : *found;
}

CString WithoutShortcut(const CString& label) {
  CString plain = label;
  std::erase(plain, L'&');
  return plain;
}

}  // namespace zwt
