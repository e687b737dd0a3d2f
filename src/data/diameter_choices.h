// The nominal diameters that a panel offers for a pipe.
#pragma once

#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

/// The nominal diameters of a material as texts, in the order of its table; none for one that is not listed.
std::vector<CString> DiameterTexts(const CString& material);

}  // namespace zwt
