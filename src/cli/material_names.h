// Which pipe materials the material file of the main directory lists.
#pragma once

#include <optional>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// The names in the order of the file; nothing where the file cannot be read or is none of materials.
std::optional<std::vector<CString>> MaterialNames();

}  // namespace zwt
