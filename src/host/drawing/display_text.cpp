#include "host/drawing/display_text.h"

#include <algorithm>

#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr wchar_t kDiameterSign = 0x2205;
constexpr wchar_t kDegreeSign = 0xB0;
constexpr wchar_t kPlusMinusSign = 0xB1;

bool IsDigit(wchar_t letter) {
  return letter >= L'0' && letter <= L'9';
}

/// Character number of three digits at a place of the text, or 0.
wchar_t NumberedCharacter(std::wstring_view text, std::size_t at) {
  if (at + 3 > text.size() || !std::all_of(&text[at], &text[at] + 3, IsDigit)) return 0;
  const int number = (text[at] - L'0') * 100 + (text[at + 1] - L'0') * 10 + (text[at + 2] - L'0');
  const bool isControl = number < 32 || (number >= 127 && number < 160);
  return isControl || number > 255 ? L'\0' : static_cast<wchar_t>(number);
}

/// Appends what a code stands for; text[at] and the next are per cent signs. Gives how many characters the
/// code takes, 0 where it is none.
std::size_t AppendPercentCode(std::wstring_view text, std::size_t at, CString& plain) {
  if (at + 2 >= text.size()) return 0;
  switch (text[at + 2]) {
    case L'c':
    case L'C':
      plain += kDiameterSign;
      return 3;
    case L'd':
    case L'D':
      plain += kDegreeSign;
      return 3;
    case L'p':
    case L'P':
      plain += kPlusMinusSign;
      return 3;
    case L'%':
      plain += L'%';
      return 3;
    case L'u':
    case L'U':
    case L'o':
    case L'O':
    case L'k':
    case L'K':
      return 3;
    default:
      break;
  }
  const wchar_t numbered = NumberedCharacter(text, at + 2);
  if (numbered == 0) return 0;
  plain += numbered;
  return 5;
}

/// The same for a caret code: ^I and others are control characters, "^ " is the caret.
std::size_t AppendCaretCode(std::wstring_view text, std::size_t at, CString& plain) {
  if (at + 1 >= text.size()) return 0;
  const wchar_t letter = text[at + 1];
  if (letter == L' ') {
    plain += L'^';
  } else if (letter >= L'@' && letter <= L'_') {
    plain += L' ';
  } else {
    return 0;
  }
  return 2;
}

/// The same for either.
std::size_t AppendCode(std::wstring_view text, std::size_t at, CString& plain) {
  if (text[at] == L'%' && at + 1 < text.size() && text[at + 1] == L'%')
    return AppendPercentCode(text, at, plain);
  return text[at] == L'^' ? AppendCaretCode(text, at, plain) : 0;
}

}  // namespace

CString PlainText(std::wstring_view text) {
  CString plain;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t taken = AppendCode(text, at, plain);
    if (taken == 0) plain += text[at] < L' ' ? L' ' : text[at];
    at += std::max<std::size_t>(taken, 1);
  }
  return plain;
}

namespace {

/// What formats set, and what the end of their braces takes back.
struct TextFormat {
  double height = 1;
  double widthFactor = 1;
  std::int32_t color = -1;
};

/// Deeper braces occur in broken texts alone; those beyond keep the formats of the last that counted.
constexpr std::size_t kDeepestBraces = 64;

/// Whether a line may be broken behind a letter: ideographs and what is written like them.
bool IsIdeograph(wchar_t letter) {
  return letter >= 0x2E80 && letter < 0xFF61;
}

class MultilineReader {
 public:
  MultilineReader(std::wstring_view text, double height, double width, TextMeasure measure)
      : text_(text), height_(height), width_(width), measure_(measure) {}

  std::vector<TextLine> Read() {
    while (at_ < text_.size()) ReadNext();
    EndLine();
    return std::move(lines_);
  }

 private:
  void ReadNext() {
    const wchar_t letter = text_[at_];
    if (letter == L'\\' && at_ + 1 < text_.size()) {
      ReadFormat();
    } else if (letter == L'{') {
      ++at_;
      if (outer_.size() < kDeepestBraces) outer_.push_back(format_);
    } else if (letter == L'}') {
      ++at_;
      if (outer_.empty()) return;
      format_ = outer_.back();
      outer_.pop_back();
    } else if (letter == L'\n' || text_.substr(at_, 2) == L"^J") {
      at_ += letter == L'\n' ? 1 : 2;
      EndLine();
    } else {
      ReadLetter();
    }
  }

  void ReadLetter() {
    CString plain;
    const std::size_t taken = AppendCode(text_, at_, plain);
    if (taken == 0) plain = text_[at_] < L' ' ? L' ' : text_[at_];
    at_ += std::max<std::size_t>(taken, 1);
    for (const wchar_t letter : plain) Put(letter);
  }

  /// A backslash and a letter; some go on to the next semicolon.
  void ReadFormat() {
    const wchar_t kind = text_[at_ + 1];
    at_ += 2;
    switch (kind) {
      case L'\\':
      case L'{':
      case L'}':
        Put(kind);
        return;
      case L'P':
      case L'N':
        EndLine();
        return;
      case L'X':
        return;
      case L'~':
        Put(0xA0);
        return;
      case L'L':
      case L'l':
      case L'O':
      case L'o':
      case L'K':
      case L'k':
        return;
      case L'S':
        PutStack(Argument());
        return;
      case L'H':
        SetHeight(Argument());
        return;
      case L'W':
        SetWidth(Argument());
        return;
      case L'C':
        SetColor(Argument());
        return;
      case L'A':
      case L'Q':
      case L'T':
      case L'c':
      case L'f':
      case L'F':
      case L'p':
        Argument();
        return;
      default:
        Put(L'\\');
        --at_;  // no format: it stands as it is
    }
  }

  /// Up to the semicolon, which a backslash hides; without one a format has none.
  std::wstring_view Argument() {
    const std::size_t begin = at_;
    std::size_t end = begin;
    while (end < text_.size() && text_[end] != L';') end += text_[end] == L'\\' ? 2U : 1U;
    if (end >= text_.size()) return {};
    at_ = end + 1;
    return text_.substr(begin, end - begin);
  }

  /// Upper and lower part are parted by ^, / or #.
  void PutStack(std::wstring_view stack) {
    bool parted = false;
    for (std::size_t i = 0; i < stack.size(); ++i) {
      if (stack[i] == L'\\' && i + 1 < stack.size()) {
        Put(stack[++i]);
      } else if (!parted && (stack[i] == L'^' || stack[i] == L'/' || stack[i] == L'#')) {
        parted = true;
        const bool isEmpty = i == 0 || i + 1 == stack.size() || stack.substr(i + 1) == L" ";
        if (!isEmpty) Put(L'/');
      } else {
        Put(stack[i]);
      }
    }
  }

  /// "2.5x" is a part of the height in force, "2.5" a height in mm.
  void SetHeight(std::wstring_view argument) {
    std::size_t length = 0;
    const double number = ReadDouble(argument, length);
    if (!(number > 0)) return;
    const bool isFactor = length < argument.size() && (argument[length] == L'x' || argument[length] == L'X');
    const double height = isFactor ? format_.height * number : number / height_;
    if (height > 1e-3 && height < 1e3) format_.height = height;
  }

  void SetWidth(std::wstring_view argument) {
    std::size_t length = 0;
    const double number = ReadDouble(argument, length);
    if (number >= 0.01 && number <= 100) format_.widthFactor = number;
  }

  void SetColor(std::wstring_view argument) {
    std::int32_t index = 0;
    if (ParseWholeNumber(argument, index) && index >= 0 && index <= 256) {
      format_.color = index == 256 ? -1 : index;
    }
  }

  void Put(wchar_t letter) {
    CString& text = line_.text;
    if (!text.empty() && (text.back() == L' ' || IsIdeograph(text.back()) || IsIdeograph(letter))) {
      lastBreak_ = text.size();
    }
    if (text.empty()) {
      line_.height = 0;
      line_.widthFactor = format_.widthFactor;
      line_.color = format_.color;
    }
    text += letter;
    line_.height = std::max(line_.height, format_.height);
    used_ += measure_(std::wstring_view(&letter, 1)) * format_.height * format_.widthFactor;
    if (width_ > 0 && used_ > width_) BreakLine();
  }

  /// Takes the last word, or the last ideograph, to a new line; a word that fills the line stays whole.
  void BreakLine() {
    CString& text = line_.text;
    if (text.back() == L' ') return;  // blanks may hang over
    if (lastBreak_ == 0) return;
    const CString carried = text.substr(lastBreak_);
    text.resize(lastBreak_);
    while (!text.empty() && text.back() == L' ') text.pop_back();
    EndLine();
    for (const wchar_t letter : carried) Put(letter);
  }

  void EndLine() {
    if (line_.text.empty()) line_.height = format_.height;
    lines_.push_back(std::move(line_));
    line_ = {};
    used_ = 0;
    lastBreak_ = 0;
  }

  std::wstring_view text_;
  double height_;
  double width_;
  TextMeasure measure_;
  std::size_t at_ = 0;
  TextFormat format_;
  std::vector<TextFormat> outer_;
  std::vector<TextLine> lines_;
  TextLine line_;
  double used_ = 0;            // width of the line so far, in capital heights of the text
  std::size_t lastBreak_ = 0;  // where the line may be broken, 0: nowhere
};

}  // namespace

std::vector<TextLine> MultilineText(std::wstring_view text, double height, double width,
                                    TextMeasure measure) {
  return MultilineReader(text, height, width, measure).Read();
}

}  // namespace zwt
