// The main directory: the folder with the data tables and report templates that come with the program.
#pragma once

#include "host/text/wide_text.h"

/// The main directory. A file in it is named by putting its relative name directly behind: a text that does
/// not end in a separator is not repaired. Before one is set: the share/zwtcal that belongs to this
/// installation or source tree, with a backslash at its end.
CString GetMainDirectory();

namespace zwt {

/// Sets the main directory, as the text stands.
void SetMainDirectory(const CString& directory);

/// What GetMainDirectory gives before one is set.
CString DefaultMainDirectory();

}  // namespace zwt
