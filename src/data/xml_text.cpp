#include "data/xml_text.h"

#include <algorithm>
#include <cstring>

namespace zwt {
namespace {

std::string Placed(std::string_view bytes, std::ptrdiff_t offset, const std::string& finding) {
  const auto end = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(offset, 0, std::ssize(bytes)));
  const auto lines = std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(end), '\n');
  return "line " + std::to_string(lines + 1) + ": " + finding;
}

std::string Described(const pugi::xml_node& node) {
  if (node.type() == pugi::node_element) return std::string("element ") + node.name();
  return "text";
}

}  // namespace

XmlText::XmlText(std::string_view bytes, const char* outerElement) : bytes_(bytes) {
  if (!IsUtf8(bytes)) throw DataFileError("expected UTF-8");
  const pugi::xml_parse_result result =
      document_.load_buffer(bytes.data(), bytes.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) throw DataFileError(Placed(bytes, result.offset, result.description()));
  for (const pugi::xml_node& node : document_) {
    if (!outer_.empty() || std::strcmp(node.name(), outerElement) != 0) Refuse(node, outerElement);
    outer_ = node;
  }
}

void XmlText::Refuse(const pugi::xml_node& node, const char* expected) const {
  const std::string finding = std::string("expected ") + expected + ", found " + Described(node);
  throw DataFileError(Placed(bytes_, node.offset_debug(), finding));
}

CString AttributeText(const pugi::xml_node& node, const char* key) {
  return WideFromUtf8(node.attribute(key).value());
}

}  // namespace zwt
