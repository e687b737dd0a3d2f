#include "data/design_tables.h"

#include "host/runtime/main_directory.h"

namespace zwt {

bool ReadDesignTables(ZcDtDictionary& dictionary) {
  return dictionary.ReadFromXML(GetMainDirectory() + kDesignTablesFile);
}

const ZcDtDictItem& FindTable(const ZcDtDictionary& dictionary, const CString& name) {
  static const ZcDtDictItem empty;
  const ZcDtDictItem* const table = dictionary.FindItem(name);
  return table == nullptr ? empty : *table;
}

}  // namespace zwt
