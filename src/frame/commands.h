// The module's commands: which name runs which function.
#pragma once

#include <span>

#include "host/runtime/command_stack.h"

namespace zwt {

inline constexpr const wchar_t* kCommandGroup = L"ZwtCalModel";

/// The thirteen rows, in the order in which they are registered.
std::span<const ZcCmdTable> CommandTable();

}  // namespace zwt
