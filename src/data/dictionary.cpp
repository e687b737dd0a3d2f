// Reading: the element names are the kinds, and a kind may only stand where the readers expect it.
#include "data/dictionary.h"

#include <algorithm>
#include <cstring>

#include "data/xml_text.h"
#include "host/runtime/installed_file.h"
#include "host/text/number_text.h"

namespace {

// Tables in tables and groups in groups are read recursively; the data go four deep.
constexpr int kDeepest = 16;

constexpr const char* kName = "Name";

std::int32_t KindOf(const pugi::xml_node& node) {
  if (std::strcmp(node.name(), "Row") == 0) return ZcDtDictItem::kLeaf;
  if (std::strcmp(node.name(), "Group") == 0) return ZcDtDictItem::kGroup;
  if (std::strcmp(node.name(), "Table") == 0) return ZcDtDictItem::kTable;
  return 0;
}

const char* AllowedIn(std::int32_t kind) {
  if (kind == ZcDtDictItem::kLeaf) return "nothing inside a Row";
  return kind == ZcDtDictItem::kGroup ? "Group or Row" : "Table, Group or Row";
}

bool IsAllowedIn(std::int32_t outer, std::int32_t inner) {
  if (outer == ZcDtDictItem::kLeaf || inner == 0) return false;
  return outer == ZcDtDictItem::kTable || inner != ZcDtDictItem::kTable;
}

std::vector<ZcDtDictItem::Attribute> ReadAttributes(const pugi::xml_node& node) {
  std::vector<ZcDtDictItem::Attribute> attributes;
  for (const pugi::xml_attribute& attribute : node.attributes()) {
    if (std::strcmp(attribute.name(), kName) == 0) continue;
    attributes.emplace_back(zwt::WideFromUtf8(attribute.name()), zwt::WideFromUtf8(attribute.value()));
  }
  return attributes;
}

ZcDtDictItem ReadItem(const zwt::XmlText& text, const pugi::xml_node& node, std::int32_t kind, int depth) {
  if (depth > kDeepest) text.Refuse(node, "no deeper nesting");
  std::vector<ZcDtDictItem> children;
  for (const pugi::xml_node& child : node) {
    const std::int32_t childKind = KindOf(child);
    if (!IsAllowedIn(kind, childKind)) text.Refuse(child, AllowedIn(kind));
    children.push_back(ReadItem(text, child, childKind, depth + 1));
  }
  return {kind, zwt::AttributeText(node, kName), ReadAttributes(node), std::move(children)};
}

ZcDtDictItem ReadTables(const zwt::XmlText& text) {
  for (const pugi::xml_node& child : text.Outer()) {
    if (KindOf(child) != ZcDtDictItem::kTable) text.Refuse(child, "Table");
  }
  return ReadItem(text, text.Outer(), ZcDtDictItem::kTable, 0);
}

}  // namespace

ZcDtDictItem::ZcDtDictItem(std::int32_t kindCode, CString name, std::vector<Attribute> attributes,
                           std::vector<ZcDtDictItem> children)
    : kindCode_(kindCode),
      name_(std::move(name)),
      attributes_(std::move(attributes)),
      children_(std::move(children)) {}

const ZcDtDictItem* ZcDtDictItem::GetAt(std::int32_t i) const {
  return i >= 0 && i < GetCount() ? &children_[static_cast<std::size_t>(i)] : nullptr;
}

const ZcDtDictItem* ZcDtDictItem::FindItem(const CString& name) const {
  const auto found = std::find_if(children_.begin(), children_.end(), [&name](const ZcDtDictItem& child) {
    return child.GetKindCode() == kTable && child.GetName() == name;
  });
  return found == children_.end() ? nullptr : &*found;
}

CString ZcDtDictItem::GetAttributeValue(const CString& key) const {
  const auto found = std::find_if(attributes_.begin(), attributes_.end(),
                                  [&key](const Attribute& attribute) { return attribute.first == key; });
  return found == attributes_.end() ? CString() : found->second;
}

double ZcDtDictItem::GetAttributeDoubleValue(const CString& key) const {
  return _wtof(GetAttributeValue(key));
}

ZcDtDictionary::ZcDtDictionary(std::nullptr_t, std::nullptr_t) {}

bool ZcDtDictionary::ReadFromXML(const CString& path) {
  try {
    return ReadFromBytes(zwt::InstalledFile(path).Read(zwt::kLargestDataFile));
  } catch (const std::runtime_error& error) {
    return Fail(error.what());
  }
}

bool ZcDtDictionary::ReadFromBytes(std::string_view bytes) {
  try {
    const zwt::XmlText text(bytes, "DataTables");
    tables_ = ReadTables(text);
    edition_ = zwt::AttributeText(text.Outer(), "edition");
    failure_.clear();
    return true;
  } catch (const zwt::DataFileError& error) {
    return Fail(error.what());
  }
}

bool ZcDtDictionary::Fail(const char* reason) {
  tables_ = ZcDtDictItem();
  edition_.clear();
  failure_ = zwt::WideFromUtf8(reason);
  return false;
}
