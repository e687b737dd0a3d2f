// Numbers in the cells of the design tables, plain or as a range.
#pragma once

#include <cstddef>

#include "host/text/number_text.h"

namespace zwt {

/// The middle of a range that is written with the full-width tilde ("130～300" gives 215), else the number at
/// the front of the text. A text without a number counts as 0, so the "-" of a cell that does not apply does
/// as well.
inline double ParseRangeValue(const CString& text) {
  const std::size_t tilde = text.find(L'～');
  if (tilde == CString::npos) return _wtof(text);
  return (_wtof(text.substr(0, tilde)) + _wtof(text.substr(tilde + 1))) * 0.5;
}

}  // namespace zwt
