// Widths of characters and of columns.
#include "cli/text_table.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace zwt {

namespace {

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

// Blocks whose characters are wide or full-width, ascending.
constexpr Range kWide[] = {
    {0x1100, 0x115F},    // Hangul Jamo, initial consonants
    {0x2E80, 0x303E},    // CJK radicals, punctuation
    {0x3041, 0x33FF},    // kana, Bopomofo, CJK compatibility
    {0x3400, 0x4DBF},    // CJK extension A
    {0x4E00, 0x9FFF},    // CJK unified ideographs
    {0xA000, 0xA4CF},    // Yi
    {0xA960, 0xA97F},    // Hangul Jamo extended A
    {0xAC00, 0xD7A3},    // Hangul syllables
    {0xF900, 0xFAFF},    // CJK compatibility ideographs
    {0xFE10, 0xFE19},    // vertical forms
    {0xFE30, 0xFE6F},    // CJK compatibility forms, small forms
    {0xFF01, 0xFF60},    // full-width forms
    {0xFFE0, 0xFFE6},    // full-width signs
    {0x1F300, 0x1F64F},  // pictographs
    {0x1F900, 0x1F9FF},  // pictographs
    {0x20000, 0x3FFFD},  // CJK extensions B and later
};

constexpr Range kWithoutWidth[] = {
    {0x0000, 0x001F},  // control characters
    {0x007F, 0x009F},  // control characters
    {0x0300, 0x036F},  // combining marks
    {0x200B, 0x200F},  // zero-width characters
    {0x20D0, 0x20FF},  // combining marks for symbols
    {0xFE00, 0xFE0F},  // variation selectors
    {0xFE20, 0xFE2F},  // combining half marks
    {0xFEFF, 0xFEFF},  // byte order mark
};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], std::uint32_t c) {
  const auto* found =
      std::lower_bound(std::begin(ranges), std::end(ranges), c,
                       [](const Range& range, std::uint32_t wanted) { return range.last < wanted; });
  return found != std::end(ranges) && found->first <= c;
}

CString OnOneLine(CString text) {
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return c == L'\n' || c == L'\r' || c == L'\t'; }, L' ');
  return text;
}

/// Whether nothing stands behind the first cell, so that it may run across the other columns.
bool StandsAlone(const std::vector<CString>& row) {
  return std::all_of(row.begin() + (row.empty() ? 0 : 1), row.end(),
                     [](const CString& cell) { return cell.empty(); });
}

}  // namespace

std::size_t DisplayWidth(std::wstring_view text) {
  std::size_t width = 0;
  for (const wchar_t c : text) {
    const auto code = static_cast<char32_t>(c);
    if (!IsIn(kWithoutWidth, code)) width += IsIn(kWide, code) ? 2U : 1U;
  }
  return width;
}

std::string TextTable(const std::vector<std::vector<CString>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    if (row.size() > widths.size()) widths.resize(row.size());
    if (StandsAlone(row)) continue;
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], DisplayWidth(OnOneLine(row[i])));
  }
  std::string text;
  for (const auto& row : rows) {
    CString line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const CString cell = OnOneLine(row[i]);
      const std::size_t width = DisplayWidth(cell);
      line += cell + CString(std::max(widths[i], width) - width + 2, L' ');
    }
    line.erase(line.find_last_not_of(L' ') + 1);
    text += Utf8FromWide(line) + '\n';
  }
  return text;
}

}  // namespace zwt
