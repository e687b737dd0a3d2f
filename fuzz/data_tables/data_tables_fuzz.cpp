// Any bytes as a data file: both readers end, refuse with a reason or give a tree that can be walked, and a
// refused file leaves nothing behind.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "data/dictionary.h"
#include "data/material_catalogue.h"
#include "data/range_value.h"
#include "data/xml_text.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void Walk(const ZcDtDictItem& item, std::int32_t outerKind) {
  const std::int32_t kind = item.GetKindCode();
  Require(kind >= ZcDtDictItem::kTable && kind <= ZcDtDictItem::kLeaf);
  Require(outerKind != ZcDtDictItem::kLeaf);
  for (const ZcDtDictItem::Attribute& attribute : item.Attributes()) {
    Require(attribute.first != L"Name");
    zwt::ParseRangeValue(item.GetAttributeValue(attribute.first));
    item.GetAttributeDoubleValue(attribute.first);
  }
  for (std::int32_t i = 0; i < item.GetCount(); ++i) Walk(*item.GetAt(i), kind);
  Require(item.GetAt(item.GetCount()) == nullptr);
}

void ReadTables(std::string_view bytes) {
  ZcDtDictionary dictionary(nullptr, nullptr);
  const bool isRead = dictionary.ReadFromBytes(bytes);
  Require(isRead == dictionary.Failure().empty());
  Require(isRead || dictionary.Tables().GetCount() == 0);
  Walk(dictionary.Tables(), ZcDtDictItem::kTable);
}

void ReadMaterials(std::string_view bytes) {
  try {
    for (const zwt::PipeMaterial& material : zwt::ReadMaterials(bytes)) {
      Require(material.sizes.size() < bytes.size());
    }
  } catch (const zwt::DataFileError& error) {
    Require(*error.what() != '\0');
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ReadTables(bytes);
  ReadMaterials(bytes);
  return 0;
}
