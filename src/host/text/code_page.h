// Bytes of a named code page to wide text and back, for drawings older than UTF-8. Deciding which page a
// drawing has, and reading or writing escapes such as \U+XXXX, is the caller's.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/text/wide_text.h"

namespace zwt {

struct DecodedText {
  CString text;
  bool complete =
      true;  ///< False if some bytes could not be decoded; each such byte is a U+FFFD in the text.
};

/// One code page, made once and used for many texts. Not to be shared between threads.
class CodePage {
 public:
  /// The code page of a drawing's name for it ("ANSI_936", "UTF-8", upper or lower case). Nothing for an
  /// unknown name, or for a page that this system cannot convert.
  static std::optional<CodePage> Open(std::string_view name);

  DecodedText Decode(std::string_view bytes);

  /// Appends the bytes of the text up to the first character that the code page cannot hold. Gives the number
  /// of wide units taken, which is the size of the text when everything fits.
  std::size_t Encode(std::wstring_view text, std::string& bytes);

 private:
  struct CloseConverter {
    void operator()(void* converter) const;
  };
  // What iconv_open gives: POSIX has it in the C library, other systems in libiconv.
  using Converter = std::unique_ptr<void, CloseConverter>;

  CodePage(Converter decoder, Converter encoder);

  /// Converters put a look-alike for some characters, or drop invisible ones, without a word: only what
  /// decodes to the same text again counts as held.
  std::size_t EncodeExactly(std::wstring_view text, std::string& bytes);

  // Both empty for UTF-8, which needs no tables.
  Converter decoder_;
  Converter encoder_;
};

}  // namespace zwt
