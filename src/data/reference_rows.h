// Rows of a reference table in the order in which panels show them: items by themselves, and groups that head
// theirs.
#pragma once

#include <initializer_list>
#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// A heading or an item of a table.
struct ReferenceRow {
  CString number;  // running number of the item or of its group, from 1
  CString name;
  CString group;  // the group's name, for items of a group
  bool heading = false;
  bool closesGroup = false;    // the last row of a group, or its heading where it has no items
  std::vector<CString> texts;  // the attributes asked for, in that order; none for a heading
};

/// Reads a table of the design tables anew. Empty where the file cannot be read or has no such table.
std::vector<ReferenceRow> ReadReferenceRows(const wchar_t* table, std::initializer_list<const wchar_t*> keys);

}  // namespace zwt
