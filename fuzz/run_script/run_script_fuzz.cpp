// Any bytes as a script: they are read, or refused with the pointer of a place.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "cli/run_script.h"
#include "cli/script_error.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

/// Steps name their places one below the other.
void CheckPlaces(const std::vector<zwt::PanelStep>& steps, const std::string& parent) {
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const zwt::PanelStep& step = steps[i];
    Require(step.at == zwt::PointerTo(parent, i));
    if (const auto* click = std::get_if<zwt::ClickStep>(&step.action)) {
      CheckPlaces(click->panel, zwt::PointerTo(step.at, "panel"));
    }
    if (const auto* cell = std::get_if<zwt::CellStep>(&step.action)) {
      CheckPlaces(cell->panel, zwt::PointerTo(step.at, "panel"));
      Require(cell->panel.empty() || cell->action == zwt::CellAction::kDoubleClick);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    const zwt::RunScript script = zwt::ReadRunScript(bytes);
    for (std::size_t i = 0; i < script.steps.size(); ++i) {
      const zwt::CommandStep& step = script.steps[i];
      Require(step.at == zwt::PointerTo("/steps", i));
      CheckPlaces(step.panel, zwt::PointerTo(step.at, "panel"));
    }
  } catch (const zwt::ScriptError& error) {
    Require(error.At().empty() || error.At().front() == '/');
    Require(std::string_view(error.what()).size() > error.At().size());
  }
  return 0;
}
