#include "supply/design_flow.h"

#include <algorithm>
#include <cmath>

#include "supply/outflow_coefficient.h"

namespace zwt {
namespace {

constexpr DesignFlowSite kUnknownSite{L"", 0, 0, 0, 0};

const DesignFlowSite& FindSite(const CString& name) {
  const auto* const site = std::find_if(kDesignFlowSites.begin(), kDesignFlowSites.end(),
                                        [&name](const DesignFlowSite& row) { return name == row.name; });
  return site == kDesignFlowSites.end() ? kUnknownSite : *site;
}

bool IsDwelling(const DesignFlowSite& site) {
  return site.quota != 0;
}

}  // namespace

DesignFlowRefusal CheckDesignFlow(const DesignFlowInputs& inputs) {
  if (IsDwelling(FindSite(inputs.site))) {
    if (inputs.equivalents < 1) return DesignFlowRefusal::Equivalents;
    if (inputs.personsPerHousehold < 1) return DesignFlowRefusal::Persons;
    return DesignFlowRefusal::None;
  }
  return inputs.equivalents == 0 ? DesignFlowRefusal::Equivalents : DesignFlowRefusal::None;
}

double DesignFlow(const DesignFlowInputs& inputs) {
  const DesignFlowSite& site = FindSite(inputs.site);
  const double equivalents = inputs.equivalents;
  if (!IsDwelling(site)) return RootFlow(site.rootFactor, equivalents);
  const double u0 =
      OutflowProbability(site.quota, inputs.personsPerHousehold, site.hourlyFactor, site.hours, equivalents);
  return ProbabilityFlow(UseRatio(OutflowCoefficient(u0, kFarthestRow), equivalents), equivalents);
}

}  // namespace zwt
