#include "supply/design_flow.h"

#include <algorithm>
#include <cmath>

#include "supply/flow_steps.h"
#include "supply/outflow_coefficient.h"

namespace zwt {
namespace {

constexpr int kFlowDecimals = 3;  // of the panel

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

double DesignFlow(const DesignFlowInputs& inputs, Trace* trace) {
  const DesignFlowSite& site = FindSite(inputs.site);
  const double equivalents = inputs.equivalents;
  if (!IsDwelling(site)) {
    const double flow = RootFlow(site.rootFactor, equivalents);
    if (trace != nullptr) trace->push_back(RootFlowStep(site.rootFactor, equivalents, flow, kFlowDecimals));
    return flow;
  }
  const double persons = inputs.personsPerHousehold;
  const double u0 = OutflowProbability(site.quota, persons, site.hourlyFactor, site.hours, equivalents);
  const double coefficient = OutflowCoefficient(u0, kFarthestRow);
  const double ratio = UseRatio(coefficient, equivalents);
  const double flow = ProbabilityFlow(ratio, equivalents);
  if (trace != nullptr) {
    trace->push_back(ProbabilityStep({site.quota, persons, site.hourlyFactor, site.hours, equivalents}, u0));
    trace->push_back(CoefficientStep(u0, coefficient));
    trace->push_back(RatioStep(coefficient, equivalents, ratio));
    trace->push_back(ProbabilityFlowStep(ratio, equivalents, flow, kFlowDecimals));
  }
  return flow;
}

}  // namespace zwt
