// What the texts of a drawing say once their codes are resolved: %%c and the like, and the formats of
// multi-line texts.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// A single-line text without its codes: %%c is the diameter sign, %%d the degree sign, %%p plus-minus, %%%
/// a per cent sign, %%nnn the character of that number; %%u, %%o and %%k switch lines at the text, which are
/// not drawn. A caret and a letter is a control character, shown as a blank.
CString PlainText(std::wstring_view text);

/// One line of a multi-line text.
struct TextLine {
  CString text;
  double height = 1;        // greatest of the line, as a part of that of the whole text
  double widthFactor = 1;   // that of its first letter
  std::int32_t color = -1;  // index that the formats give its first letter, -1: that of the entity
};

/// How wide a text is, in capital heights.
using TextMeasure = double (*)(std::wstring_view text);

/// Lines of a multi-line text. Fonts and underlines are left out, stacked fractions are shown as a/b. height:
/// of the text, mm, for heights that are given in mm. width: lines that are longer are broken at blanks or
/// behind ideographs, in capital heights of the text; 0: they are not.
std::vector<TextLine> MultilineText(std::wstring_view text, double height, double width, TextMeasure measure);

}  // namespace zwt
