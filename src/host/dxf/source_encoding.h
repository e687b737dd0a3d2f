// Which version a drawing file has and how its texts are encoded.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/drawing/text_encoding.h"

namespace zwt {

/// Number behind "AC" of a header's $ACADVER. Throws DrawingError for what is not from AC1009 to AC1032.
std::int32_t ReadVersion(std::string_view value, std::int64_t line);

/// Encoding of a file: UTF-8 from AC1021 on; before it that of the header's code page. Where the header has
/// none, or an odd one: UTF-8 if all bytes are, else GBK.
TextEncoding ReadEncoding(std::int32_t version, std::string_view codePage, std::string_view bytes);

/// Throws DrawingError for files that are no DXF in text form, with the hint what to do.
void RefuseOtherFormats(std::string_view bytes);

}  // namespace zwt
