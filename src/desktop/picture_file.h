// Pictures of drawings as files: bitmaps and pages.
#pragma once

#include <QString>

#include "host/drawing/display_list.h"

namespace zwt {

/// Writes all that a list shows into a .png of at most 3000 pixels, or a .pdf of one A3 sheet, by the file's
/// name; dark on white. The file is replaced whole or not at all. Throws std::runtime_error, one line, for
/// other names, and FileError.
void WritePicture(const DisplayList& list, const QString& file);

}  // namespace zwt
