// How the results of a control were computed, for terminals and for other programs.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "host/dialog/controls.h"

namespace zwt {

/// A list of {"row", "steps": [{"subject", "formula", "substitution", "result", "source"}]}, one for each row
/// that has something to tell; the row is null for a control without rows. Null where the control's results
/// can't be explained.
nlohmann::ordered_json ExplanationJson(const CWnd& control);

/// A line for each step below the name of its row, with an empty line in front of each row; empty where there
/// is nothing to tell.
std::string ExplanationText(const CWnd& control);

}  // namespace zwt
