// How the texts of one drawing are written in its file: the bytes of its character set, and the escapes for
// what the set does not have.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/text/code_page.h"

namespace zwt {

class TextEncoding {
 public:
  /// UTF-8.
  TextEncoding() = default;
  /// The character set of an older drawing.
  explicit TextEncoding(CodePage page);

  bool IsUtf8() const { return page_ == nullptr; }

  /// Text of a value. The bytes are decoded first, escapes (\U+XXXX, \M+nXXXX) are looked for in the
  /// characters: the second byte of a Chinese character may be that of a backslash. What cannot be decoded is
  /// U+FFFD.
  std::wstring Decode(std::string_view bytes) const;

  /// Bytes of a text, which Decode turns into the same text: what the set does not have, control characters
  /// and a backslash that would begin an escape are written as \U+XXXX.
  std::string Encode(std::wstring_view text) const;

 private:
  bool AppendPlain(std::wstring_view character, std::string& bytes) const;

  // Converters keep a state while they convert: copies share one, as all of this runs on one thread.
  std::shared_ptr<CodePage> page_;
};

}  // namespace zwt
