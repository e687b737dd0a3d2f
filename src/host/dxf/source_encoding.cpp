#include "host/dxf/source_encoding.h"

#include <algorithm>
#include <optional>

#include "host/drawing/entity_tags.h"
#include "host/drawing/tags.h"
#include "host/text/wide_text.h"

namespace zwt {
namespace {

constexpr std::string_view kBinarySentinel = "AutoCAD Binary DXF";
constexpr std::string_view kDefaultPage = "ANSI_936";

/// As IsUtf8, quick about the plain bytes that make up nearly all of a drawing.
bool IsUtf8Text(std::string_view bytes) {
  constexpr std::size_t kBlock = 4096;
  for (std::size_t at = 0; at < bytes.size(); at += kBlock) {
    unsigned char joined = 0;
    for (const char byte : bytes.substr(at, kBlock)) joined |= static_cast<unsigned char>(byte);
    // All bytes in front are plain, so that no character begins there.
    if (joined >= 0x80) return IsUtf8(bytes.substr(at));
  }
  return true;
}

}  // namespace

std::int32_t ReadVersion(std::string_view value, std::int64_t line) {
  const std::string_view text = Trimmed(value);
  std::int64_t number = 0;
  const bool known = text.size() == 6 && text.substr(0, 2) == "AC" && ParseInteger(text.substr(2), number) &&
                     number >= kOldestVersion && number <= kNewestVersion;
  if (!known) throw DrawingError(line, "expected a version from AC1009 to AC1032, found " + Quoted(text));
  return static_cast<std::int32_t>(number);
}

TextEncoding ReadEncoding(std::int32_t version, std::string_view codePage, std::string_view bytes) {
  if (version >= kVersionWithUtf8) return {};
  std::optional<CodePage> page = CodePage::Open(Trimmed(codePage));
  if (!page.has_value()) {
    if (IsUtf8Text(bytes)) return {};
    page = CodePage::Open(kDefaultPage);
  }
  return page.has_value() ? TextEncoding(std::move(*page)) : TextEncoding();
}

void RefuseOtherFormats(std::string_view bytes) {
  if (bytes.substr(0, kBinarySentinel.size()) == kBinarySentinel) {
    throw DrawingError(0, "this is a binary DXF file: save the drawing as DXF in text form first");
  }
  const std::string_view digits = bytes.substr(0, 6);
  const bool isDwg =
      digits.size() == 6 && digits.substr(0, 2) == "AC" &&
      std::all_of(digits.begin() + 2, digits.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (isDwg) throw DrawingError(0, "this is a DWG file: save the drawing as DXF first");
}

}  // namespace zwt
