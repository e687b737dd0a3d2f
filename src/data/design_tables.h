// The file of the design tables: where it lies and how a table is found in it. What a table's columns mean is
// known to the panel or calculation that reads it.
#pragma once

#include "data/dictionary.h"

namespace zwt {

/// Below the main directory.
inline constexpr const wchar_t* kDesignTablesFile = L"Common2\\ZwtDataTable.xml";

/// Reads the design tables of the main directory anew; false if they cannot be read. Nothing of them is kept
/// anywhere else: each reader copies what it needs.
bool ReadDesignTables(ZcDtDictionary& dictionary);

/// The table of that name, or an empty one where the file has none.
const ZcDtDictItem& FindTable(const ZcDtDictionary& dictionary, const CString& name);

}  // namespace zwt
