#include "host/text/code_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <iconv.h>

namespace zwt {
namespace {

struct CodePageName {
  std::string_view drawing;    // as drawings name it, in upper case
  std::string_view converter;  // as iconv names it
};

// The code pages that drawings name. All of them hold ASCII as itself; pages that do not (Johab has a
// currency sign in the place of the backslash) are left out, for the escapes of drawings need the backslash.
// GB2312 is part of 936.
constexpr std::array kCodePages = {
    CodePageName{"ANSI_874", "CP874"},   CodePageName{"ANSI_932", "CP932"},
    CodePageName{"ANSI_936", "CP936"},   CodePageName{"ANSI_949", "CP949"},
    CodePageName{"ANSI_950", "CP950"},   CodePageName{"ANSI_1250", "CP1250"},
    CodePageName{"ANSI_1251", "CP1251"}, CodePageName{"ANSI_1252", "CP1252"},
    CodePageName{"ANSI_1253", "CP1253"}, CodePageName{"ANSI_1254", "CP1254"},
    CodePageName{"ANSI_1255", "CP1255"}, CodePageName{"ANSI_1256", "CP1256"},
    CodePageName{"ANSI_1257", "CP1257"}, CodePageName{"ANSI_1258", "CP1258"},
    CodePageName{"GB2312", "CP936"},     CodePageName{"BIG5", "CP950"},
    CodePageName{"DOS437", "CP437"},     CodePageName{"DOS850", "CP850"},
    CodePageName{"DOS852", "CP852"},     CodePageName{"DOS866", "CP866"},
    CodePageName{"DOS932", "CP932"},
};

constexpr wchar_t kReplacement = 0xFFFD;
constexpr auto kFailed = static_cast<std::size_t>(-1);

bool IsAscii(wchar_t c) {
  return c >= 0 && c < 0x80;
}
bool IsAsciiByte(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

bool IsSurrogate(wchar_t c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

std::string UpperCase(std::string_view name) {
  std::string upper(name);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

void* OpenConverter(std::string_view to, std::string_view from) {
  const iconv_t converter = iconv_open(std::string(to).c_str(), std::string(from).c_str());
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the failure value that POSIX prescribes
  return converter == reinterpret_cast<iconv_t>(-1) ? nullptr : converter;
}

/// A run of one conversion: units of type In read from a view, units of type Out written behind a string.
template <typename In, typename Out>
class Conversion {
 public:
  /// room: the most units of Out that one unit of In can become.
  Conversion(void* converter, std::basic_string_view<In> input, std::basic_string<Out>& output,
             std::size_t room)
      : converter_(converter), output_(output), start_(output.size()) {
    output_.resize(start_ + (input.size() + 1) * room);
    // iconv takes what it reads by a pointer to non-const, but does not write there.
    in_ = reinterpret_cast<char*>(const_cast<In*>(input.data()));
    inLeft_ = input.size() * sizeof(In);
    out_ = reinterpret_cast<char*>(output_.data() + start_);
    outLeft_ = (output_.size() - start_) * sizeof(Out);
    iconv(converter_, nullptr, nullptr, nullptr, nullptr);
  }

  /// Converts to the end, or up to the first unit that has no counterpart: then false.
  bool Run() { return iconv(converter_, &in_, &inLeft_, &out_, &outLeft_) != kFailed; }

  /// Writes what the converter holds back to see whether an accent follows.
  void Flush() { iconv(converter_, nullptr, nullptr, &out_, &outLeft_); }

  std::size_t Left() const { return inLeft_ / sizeof(In); }

  void SkipOne() {
    in_ += sizeof(In);
    inLeft_ -= sizeof(In);
  }

  void Put(Out unit) {
    *reinterpret_cast<Out*>(out_) = unit;
    out_ += sizeof(Out);
    outLeft_ -= sizeof(Out);
  }

  void Finish() { output_.resize(output_.size() - outLeft_ / sizeof(Out)); }

 private:
  void* converter_;
  std::basic_string<Out>& output_;
  std::size_t start_;
  char* in_ = nullptr;
  char* out_ = nullptr;
  std::size_t inLeft_ = 0;
  std::size_t outLeft_ = 0;
};

/// Appends the bytes of a text up to the first character that the converter refuses; how many units it took.
std::size_t Convert(void* encoder, std::wstring_view text, std::string& bytes) {
  constexpr std::size_t kMostBytes = 4;
  Conversion<wchar_t, char> conversion(encoder, text, bytes, kMostBytes);
  conversion.Run();
  conversion.Flush();
  conversion.Finish();
  return text.size() - conversion.Left();
}

std::size_t EncodeUtf8(std::wstring_view text, std::string& bytes) {
  std::size_t end = 0;
  while (end < text.size()) {
    const bool pair = sizeof(wchar_t) == 2 && IsSurrogate(text[end]) && end + 1 < text.size() &&
                      (text[end] & 0xFC00) == 0xD800 && (text[end + 1] & 0xFC00) == 0xDC00;
    if (IsSurrogate(text[end]) && !pair) break;
    end += pair ? 2 : 1;
  }
  bytes += Utf8FromWide(text.substr(0, end));
  return end;
}

}  // namespace

void CodePage::CloseConverter::operator()(void* converter) const {
  iconv_close(converter);
}

CodePage::CodePage(Converter decoder, Converter encoder)
    : decoder_(std::move(decoder)), encoder_(std::move(encoder)) {}

std::optional<CodePage> CodePage::Open(std::string_view name) {
  const std::string upper = UpperCase(name);
  if (upper == "UTF-8") return CodePage(nullptr, nullptr);
  const auto* const row = std::find_if(kCodePages.begin(), kCodePages.end(),
                                       [&upper](const CodePageName& page) { return page.drawing == upper; });
  if (row == kCodePages.end()) return std::nullopt;
  Converter decoder(OpenConverter("WCHAR_T", row->converter));
  Converter encoder(OpenConverter(row->converter, "WCHAR_T"));
  if (decoder == nullptr || encoder == nullptr) return std::nullopt;
  return CodePage(std::move(decoder), std::move(encoder));
}

DecodedText CodePage::Decode(std::string_view bytes) {
  if (decoder_ == nullptr) return {.text = WideFromUtf8(bytes), .complete = IsUtf8(bytes)};
  // Most texts of a drawing are ASCII from end to end.
  const auto* const ascii = std::find_if_not(bytes.begin(), bytes.end(), IsAsciiByte);
  DecodedText decoded{.text = CString(bytes.begin(), ascii)};
  bytes.remove_prefix(decoded.text.size());
  if (bytes.empty()) return decoded;
  Conversion<char, wchar_t> conversion(decoder_.get(), bytes, decoded.text, 1);
  while (!conversion.Run()) {
    conversion.Flush();
    conversion.Put(kReplacement);
    conversion.SkipOne();
    decoded.complete = false;
  }
  conversion.Flush();
  conversion.Finish();
  return decoded;
}

std::size_t CodePage::Encode(std::wstring_view text, std::string& bytes) {
  if (encoder_ == nullptr) return EncodeUtf8(text, bytes);
  const auto* const ascii = std::find_if_not(text.begin(), text.end(), IsAscii);
  const auto front = static_cast<std::size_t>(ascii - text.begin());
  bytes.reserve(bytes.size() + text.size());
  for (const wchar_t c : text.substr(0, front)) bytes.push_back(static_cast<char>(c));
  if (front == text.size()) return front;
  return front + EncodeExactly(text.substr(front), bytes);
}

std::size_t CodePage::EncodeExactly(std::wstring_view text, std::string& bytes) {
  const std::size_t start = bytes.size();
  const std::size_t taken = Convert(encoder_.get(), text, bytes);
  const CString back = Decode(std::string_view(bytes).substr(start)).text;
  const std::wstring_view given = text.substr(0, taken);
  const auto differ = std::mismatch(given.begin(), given.end(), back.begin(), back.end()).first;
  const auto same = static_cast<std::size_t>(differ - given.begin());
  if (same == taken) return taken;
  bytes.resize(start);
  return Convert(encoder_.get(), text.substr(0, same), bytes);
}

}  // namespace zwt
