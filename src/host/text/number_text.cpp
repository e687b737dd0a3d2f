#include "host/text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace zwt {
namespace {

// Within these powers of ten a number is written out in full digits, beyond them with an exponent: nobody
// wants to read 100000 as 1e+05, or 1e300 as three hundred zeros.
constexpr double kLowestPlain = 1e-5;
constexpr double kHighestPlain = 1e16;

// Enough for every finite double in full digits before the point.
constexpr std::size_t kWholeDigits = 320;

bool IsBlank(wchar_t c) {
  return c == L' ' || (c >= L'\t' && c <= L'\r');
}
bool IsDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}
bool IsSign(wchar_t c) {
  return c == L'+' || c == L'-';
}

std::size_t SkipBlanks(std::wstring_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) ++at;
  return at;
}

std::size_t SkipDigits(std::wstring_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

/// Where the number that starts with its sign at `begin` ends; `begin` itself if there is none.
std::size_t NumberEnd(std::wstring_view text, std::size_t begin) {
  const std::size_t mantissa = begin < text.size() && IsSign(text[begin]) ? begin + 1 : begin;
  std::size_t at = SkipDigits(text, mantissa);
  std::size_t digits = at - mantissa;
  if (at < text.size() && text[at] == L'.') {
    const std::size_t fraction = at + 1;
    at = SkipDigits(text, fraction);
    digits += at - fraction;
  }
  if (digits == 0) return begin;
  if (at < text.size() && (text[at] == L'e' || text[at] == L'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && IsSign(text[exponent])) ++exponent;
    const std::size_t end = SkipDigits(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

/// Decimal position of the first significant digit, counted from the point: above 0 before it. The number is
/// one that no double can hold, so the sign of the answer tells too large from too small.
double DecimalPosition(std::string_view number) {
  const std::size_t e = number.find_first_of("eE");
  const std::string_view mantissa = number.substr(0, e);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  double position = static_cast<double>(point) - static_cast<double>(first);
  if (e != std::string_view::npos) {
    std::string_view exponent = number.substr(e + 1);
    const bool negative = exponent.front() == '-';
    if (exponent.front() == '-' || exponent.front() == '+') exponent.remove_prefix(1);
    double power = 0;
    for (const char digit : exponent) power = power * 10 + (digit - '0');
    position += negative ? -power : power;
  }
  return position;
}

/// Value of an unsigned decimal number that is known to be well formed.
double UnsignedValue(std::string_view number) {
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    return DecimalPosition(number) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return value;
}

CString Widen(const char* begin, const char* end) {
  return CString(begin, end);
}

CString NotFinite(double value) {
  if (std::isnan(value)) return L"nan";
  return value < 0 ? L"-inf" : L"inf";
}

/// Saturating value of a sign and digits at the front of a text; length 0 if there are none.
std::int32_t ReadWhole(std::wstring_view text, std::size_t& length) {
  length = 0;
  const std::size_t begin = SkipBlanks(text, 0);
  const bool hasSign = begin < text.size() && IsSign(text[begin]);
  const bool negative = hasSign && text[begin] == L'-';
  const std::size_t digits = begin + (hasSign ? 1 : 0);
  const std::size_t end = SkipDigits(text, digits);
  if (end == digits) return 0;
  length = end;
  constexpr std::int64_t kBeyond = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  std::int64_t value = 0;
  for (std::size_t i = digits; i < end; ++i) value = std::min(value * 10 + (text[i] - L'0'), kBeyond);
  return static_cast<std::int32_t>(negative ? -value : std::min(value, kBeyond - 1));
}

}  // namespace

double ReadDouble(std::wstring_view text, std::size_t& length) {
  length = 0;
  const std::size_t begin = SkipBlanks(text, 0);
  const std::size_t end = NumberEnd(text, begin);
  if (end == begin) return 0;
  length = end;
  const bool hasSign = IsSign(text[begin]);
  const std::wstring_view digits = text.substr(begin + (hasSign ? 1 : 0), end - begin - (hasSign ? 1 : 0));
  std::string narrow(digits.size(), '\0');
  std::transform(digits.begin(), digits.end(), narrow.begin(),
                 [](wchar_t c) { return static_cast<char>(c); });
  const double value = UnsignedValue(narrow);
  return hasSign && text[begin] == L'-' ? -value : value;
}

bool ParseNumber(std::wstring_view text, double& value) {
  std::size_t length = 0;
  const double read = ReadDouble(text, length);
  if (length == 0 || SkipBlanks(text, length) != text.size()) return false;
  value = read;
  return true;
}

bool ParseWholeNumber(std::wstring_view text, std::int32_t& value) {
  std::size_t length = 0;
  const std::int32_t read = ReadWhole(text, length);
  if (length == 0 || SkipBlanks(text, length) != text.size()) return false;
  value = read;
  return true;
}

CString FormatFixed(double value, int decimals) {
  if (!std::isfinite(value)) return NotFinite(value);
  const int precision = std::max(decimals, 0);
  std::string text(kWholeDigits + static_cast<std::size_t>(precision), '\0');
  const auto result =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, precision);
  return Widen(text.data(), result.ptr);
}

CString FormatBound(double value) {
  if (!std::isfinite(value)) return NotFinite(value);
  std::array<char, 32> text{};
  const auto result =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 15);
  return Widen(text.data(), result.ptr);
}

std::int32_t ToInt(double value) {
  if (std::isnan(value)) return 0;
  constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(value, kLowest, kHighest));
}

}  // namespace zwt

double _wtof(const CString& text) {
  std::size_t length = 0;
  return zwt::ReadDouble(text, length);
}

std::int32_t _wtoi(const CString& text) {
  std::size_t length = 0;
  return zwt::ReadWhole(text, length);
}

CString ZwtNum2Str(double value, int decimals) {
  if (decimals >= 0 || !std::isfinite(value)) return zwt::FormatFixed(value, decimals);
  const double size = std::fabs(value);
  const bool plain = size == 0 || (size >= zwt::kLowestPlain && size < zwt::kHighestPlain);
  std::array<char, 64> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                    plain ? std::chars_format::fixed : std::chars_format::scientific);
  return zwt::Widen(text.data(), result.ptr);
}

CString ZwtNum2Str(std::int32_t value) {
  std::array<char, 16> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
  return zwt::Widen(text.data(), result.ptr);
}
