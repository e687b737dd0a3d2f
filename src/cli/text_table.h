// Tables for terminals: columns stand under each other also where their texts are Chinese.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// The terminal columns that a text takes: two for East Asian wide and full-width characters, none for
/// combining marks and control characters, one for any other (Unicode Standard Annex 11).
std::size_t DisplayWidth(std::wstring_view text);

/// Rows of texts, in UTF-8, each line ended by a line feed; columns are two blanks apart, and no blanks stand
/// at the end of a line. Line feeds and tabs inside a text become blanks. A row may be shorter than the
/// others; one with its first cell alone runs across the columns and does not widen them.
std::string TextTable(const std::vector<std::vector<CString>>& rows);

}  // namespace zwt
