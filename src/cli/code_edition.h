// Which edition of the design codes the data file holds, and the text of --version.
#pragma once

#include <string>

namespace zwt {

/// The edition that the data file of the default main directory names, empty where the file cannot be read or
/// names none.
std::string CodeEdition();

/// Program, version and edition, on two lines.
std::string VersionText();

}  // namespace zwt
