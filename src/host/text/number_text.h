// Numbers to text and back, the same on every machine: nothing here looks at the locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/text/wide_text.h"

/// Number at the front of a text: leading blanks, a sign, decimal digits, fraction, exponent. 0 where there
/// is none. No hexadecimal, "inf" or "nan".
double _wtof(const CString& text);

/// Whole number at the front of a text, saturating at the 32-bit bounds. 0 where there is none.
std::int32_t _wtoi(const CString& text);

/// Number as text. decimals >= 0: exactly that many; -1: the fewest digits that read back as the value, with
/// an exponent only below 1e-5 and from 1e16 on.
CString ZwtNum2Str(double value, int decimals);
CString ZwtNum2Str(std::int32_t value);

namespace zwt {

/// As _wtof, and the number of characters read, 0 if there is no number at the front.
double ReadDouble(std::wstring_view text, std::size_t& length);

/// Whether the whole text, but for blanks around it, is a number; then value is set.
bool ParseNumber(std::wstring_view text, double& value);

/// Whether the whole text, but for blanks around it, is a whole number ("2.5" is none); then value is set,
/// saturated.
bool ParseWholeNumber(std::wstring_view text, std::int32_t& value);

/// As C's "%.<decimals>f" in the "C" locale: "inf", "-inf" and "nan" for what is no finite number.
CString FormatFixed(double value, int decimals);

/// The form in which a refresh shows a bound number: the shortest text of at most 15 significant digits.
CString FormatBound(double value);

/// A double as a 32-bit integer: truncated, saturated, not-a-number as 0.
std::int32_t ToInt(double value);

}  // namespace zwt
