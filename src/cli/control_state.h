// The state of a control as JSON, as a script reads it.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "host/dialog/controls.h"

namespace zwt {

/// Numbers from here on are internal: they never show outside.
inline constexpr int kFirstInternalNumber = 3000;

/// The key under which a control shows: its public number, else the name of its value, else its label; empty
/// where it has none of them.
std::string ControlKey(const CWnd& control);

/// Whether a control is nothing but the label beside another one, which a list of all controls leaves out.
bool IsMereLabel(const CWnd& control);

/// "edit", "static", "button", "radio", "check", "combo", "list" or "grid".
const char* ControlKindName(ControlKind kind);

/// kind, text, enabled, visible, and what the kind has beside them.
nlohmann::ordered_json ControlState(const CWnd& control);

}  // namespace zwt
