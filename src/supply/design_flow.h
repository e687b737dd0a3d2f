// Design flow of one pipe section from its fixture equivalents, by the kind of site: the probability method
// for dwellings, the square root method for public buildings. Choosing a diameter for the flow lies
// elsewhere.
#pragma once

#include <array>
#include <cstdint>

#include "host/text/trace.h"
#include "host/text/wide_text.h"

namespace zwt {

struct DesignFlowSite {
  const wchar_t* name;
  double quota;         // L per person and day; 0 for the square root method
  double hourlyFactor;  // Kh
  double hours;         // of use per day
  double rootFactor;    // α; 0 for the probability method
};

/// The sites in the order of their combo box. The quotas and factors of the dwellings are the middles of
/// their ranges (GB 50015-2003, 3.1.9), the factors of the others those of 3.6.5.
inline constexpr std::array kDesignFlowSites = {
    DesignFlowSite{L"普通住宅Ⅰ", 117.5, 2.75, 24, 0},
    DesignFlowSite{L"普通住宅Ⅱ", 215, 2.55, 24, 0},
    DesignFlowSite{L"普通住宅Ⅲ", 250, 2.25, 24, 0},
    DesignFlowSite{L"别墅", 275, 2.05, 24, 0},
    DesignFlowSite{L"幼儿园、托儿所、养老院", 0, 0, 0, 1.2},
    DesignFlowSite{L"门诊部、诊疗所", 0, 0, 0, 1.4},
    DesignFlowSite{L"办公楼、商场", 0, 0, 0, 1.5},
    DesignFlowSite{L"图书馆", 0, 0, 0, 1.6},
    DesignFlowSite{L"书店", 0, 0, 0, 1.7},
    DesignFlowSite{L"学校", 0, 0, 0, 1.8},
    DesignFlowSite{L"医院、疗养所、休养所", 0, 0, 0, 2.0},
    DesignFlowSite{L"酒店式公寓", 0, 0, 0, 2.2},
    DesignFlowSite{L"宿舍、旅馆、招待所、宾馆", 0, 0, 0, 2.5},
    DesignFlowSite{L"和运站、航站楼、会展中心、公共厕所", 0, 0, 0, 3.0},
};

struct DesignFlowInputs {
  CString site;
  double personsPerHousehold = 0;
  double equivalents = 0;
};

/// What keeps a design flow from being computed.
enum class DesignFlowRefusal : std::int32_t { None, Equivalents, Persons };

/// Dwellings need equivalents of at least 1 and at least one person; other sites only equivalents other than
/// 0, and never look at the persons.
DesignFlowRefusal CheckDesignFlow(const DesignFlowInputs& inputs);

/// Design flow in L/s. A site that is not in the table counts as a public building with the factor 0: no
/// flow. Negative equivalents give no number.
double DesignFlow(const DesignFlowInputs& inputs, Trace* trace = nullptr);

}  // namespace zwt
