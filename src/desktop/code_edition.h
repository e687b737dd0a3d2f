// Which edition of the codes the design tables of this installation hold.
#pragma once

#include <QString>

namespace zwt {

/// The edition that Common2\ZwtDataTable.xml below the main directory names; empty where the file cannot be
/// read or names none.
QString EditionOfCodes();

}  // namespace zwt
