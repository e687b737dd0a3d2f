// The file that a drawing is written into when it comes from none.
#pragma once

#include <string>

namespace zwt {

/// Bytes of an empty drawing of version AC1021.
std::string NewDrawingFile();

}  // namespace zwt
