#include "supply/supply_hydraulics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "data/materials.h"
#include "supply/outflow_coefficient.h"

namespace zwt {
namespace {

struct PlaceFactor {
  const wchar_t* place;
  double factor;  // α
};

// GB 50015-2003, 3.6.5. The places are those of the panel of a drawn system, which words some of them
// otherwise than the panel of a single section does.
constexpr std::array kPlaceFactors = {
    PlaceFactor{L"幼儿园、托儿所、养老院", 1.2},
    PlaceFactor{L"门诊部、诊疗所", 1.4},
    PlaceFactor{L"办公楼、商场", 1.5},
    PlaceFactor{L"图书馆", 1.6},
    PlaceFactor{L"书店", 1.7},
    PlaceFactor{L"学校", 1.8},
    PlaceFactor{L"医院、疗养院、休养所", 2.0},
    PlaceFactor{L"酒店式公寓", 2.2},
    PlaceFactor{L"旅馆、招待所、宾馆", 2.5},
    PlaceFactor{L"客运站、航站楼、会展中心、公共厕所", 3.0},
};

// However long a material's list is, the search for a slow size looks at so many from the front.
constexpr FallbackLimits kFallback{22, 999999.0};

double FactorOf(const CString& place) {
  const auto* const row = std::find_if(kPlaceFactors.begin(), kPlaceFactors.end(),
                                       [&place](const PlaceFactor& factor) { return place == factor.place; });
  return row == kPlaceFactors.end() ? 0 : row->factor;
}

double FlowOf(const SupplySectionInput& section, double useRatio, const CString& buildingClass,
              const CString& place) {
  if (buildingClass == kDwellingClass) return ResidentialFlow(section.equivalents, useRatio);
  if (buildingClass == kPublicClass) return PublicFlow(section.equivalents, place);
  return 0;
}

}  // namespace

double MeanOutflowProbability(double quota, double persons, double hourlyFactor, double hours,
                              double equivalents) {
  if (hours == 0 || equivalents == 0) return 0;
  return OutflowProbability(quota, persons, hourlyFactor, hours, equivalents);
}

double SimultaneousRatio(double u0, double equivalents) {
  return UseRatio(OutflowCoefficient(u0), equivalents);
}

double ResidentialFlow(double equivalents, double useRatio) {
  return ProbabilityFlow(useRatio, equivalents);
}

double PublicFlow(double equivalents, const CString& place) {
  return RootFlow(FactorOf(place), equivalents);
}

void SelectDiameter(const CString& material, double flow, std::int32_t& diameter, double& velocity) {
  ZcList<int> diameters;
  ZcList<double> inner;
  ZcList<double> outer;
  ZwtGetMaterialParam(material, diameters, inner, outer);
  std::vector<SizedVelocity> sizes;
  inner.MoveToFirst();
  for (diameters.MoveToFirst(); !diameters.IsOut(); diameters.MoveToNext()) {
    sizes.push_back({diameters.GetCurData(), Velocity(inner.GetCurData(), flow)});
    inner.MoveToNext();
  }
  const auto chosen = ChooseByVelocity(sizes, kFallback);
  if (!chosen) return;
  diameter = chosen->diameter;
  velocity = chosen->velocity;
}

double SectionHeadLoss(const CString& material, std::int32_t diameter, double flow, double length) {
  if (diameter == 0) return 0;
  double coefficient = 0;
  ZwtGetMaterialCoeff(material, coefficient);
  double inner = 0;
  double outer = 0;
  ZwtGetMaterialParam(material, static_cast<double>(diameter), inner, outer);
  const double lossPerMetre =
      105 * std::pow(coefficient, -1.85) * std::pow(inner * 0.001, -4.87) * std::pow(flow * 0.001, 1.85);
  return lossPerMetre * (length * 0.001);
}

SupplySectionResult CalculateSection(const SupplySectionInput& section, const CString& buildingClass,
                                     const CString& place) {
  SupplySectionResult result;
  result.u0 = MeanOutflowProbability(section.quota, section.persons, section.hourlyFactor, section.hours,
                                     section.equivalents);
  result.useRatio = SimultaneousRatio(result.u0, section.equivalents);
  result.flow = FlowOf(section, result.useRatio, buildingClass, place);
  SelectDiameter(section.material, result.flow, result.diameter, result.velocity);
  result.headLoss = SectionHeadLoss(section.material, result.diameter, result.flow, section.length);
  return result;
}

}  // namespace zwt
