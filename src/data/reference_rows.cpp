// Flattening of a table with groups into rows.
#include "data/reference_rows.h"

#include "data/design_tables.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

using Keys = std::initializer_list<const wchar_t*>;

ReferenceRow ItemRow(const ZcDtDictItem& item, const CString& number, Keys keys) {
  ReferenceRow row;
  row.number = number;
  row.name = item.GetName();
  for (const wchar_t* key : keys) row.texts.push_back(item.GetAttributeValue(key));
  return row;
}

void AppendGroup(std::vector<ReferenceRow>& rows, const ZcDtDictItem& group, const CString& number,
                 Keys keys) {
  ReferenceRow heading;
  heading.number = number;
  heading.name = group.GetName();
  heading.heading = true;
  rows.push_back(heading);
  for (std::int32_t index = 0; index < group.GetCount(); ++index) {
    rows.push_back(ItemRow(*group.GetAt(index), number, keys));
    rows.back().group = group.GetName();
  }
  rows.back().closesGroup = true;
}

}  // namespace

std::vector<ReferenceRow> ReadReferenceRows(const wchar_t* table, Keys keys) {
  std::vector<ReferenceRow> rows;
  ZcDtDictionary dictionary(nullptr, nullptr);
  if (!ReadDesignTables(dictionary)) return rows;
  const ZcDtDictItem& items = FindTable(dictionary, table);
  for (std::int32_t index = 0; index < items.GetCount(); ++index) {
    const ZcDtDictItem& item = *items.GetAt(index);
    const CString number = ZwtNum2Str(index + 1);
    if (item.GetKindCode() == ZcDtDictItem::kLeaf) {
      rows.push_back(ItemRow(item, number, keys));
    } else {
      AppendGroup(rows, item, number, keys);
    }
  }
  return rows;
}

}  // namespace zwt
