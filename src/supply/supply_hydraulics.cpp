#include "supply/supply_hydraulics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "data/materials.h"
#include "host/text/number_text.h"
#include "supply/flow_steps.h"
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
              const CString& place, Trace* trace) {
  if (buildingClass == kDwellingClass) return ResidentialFlow(section.equivalents, useRatio, trace);
  if (buildingClass == kPublicClass) return PublicFlow(section.equivalents, place, trace);
  return 0;
}

// Decimals of the results table.
constexpr int kFlowDecimals = 2;
constexpr int kVelocityDecimals = 3;

constexpr const wchar_t* kVelocitySubject = L"流速 v";

CString VelocityText(double velocity) {
  return ZwtNum2Str(velocity, kVelocityDecimals) + L" m/s";
}

}  // namespace

double MeanOutflowProbability(double quota, double persons, double hourlyFactor, double hours,
                              double equivalents, Trace* trace) {
  const bool isDefined = hours != 0 && equivalents != 0;
  const double u0 = isDefined ? OutflowProbability(quota, persons, hourlyFactor, hours, equivalents) : 0;
  if (trace != nullptr)
    trace->push_back(ProbabilityStep({quota, persons, hourlyFactor, hours, equivalents}, u0));
  return u0;
}

double SimultaneousRatio(double u0, double equivalents, Trace* trace) {
  const double coefficient = OutflowCoefficient(u0);
  const double ratio = UseRatio(coefficient, equivalents);
  if (trace != nullptr) {
    trace->push_back(CoefficientStep(u0, coefficient));
    trace->push_back(RatioStep(coefficient, equivalents, ratio));
  }
  return ratio;
}

double ResidentialFlow(double equivalents, double useRatio, Trace* trace) {
  const double flow = ProbabilityFlow(useRatio, equivalents);
  if (trace != nullptr) trace->push_back(ProbabilityFlowStep(useRatio, equivalents, flow, kFlowDecimals));
  return flow;
}

double PublicFlow(double equivalents, const CString& place, Trace* trace) {
  const double factor = FactorOf(place);
  const double flow = RootFlow(factor, equivalents);
  if (trace != nullptr) trace->push_back(RootFlowStep(factor, equivalents, flow, kFlowDecimals));
  return flow;
}

void SelectDiameter(const CString& material, double flow, std::int32_t& diameter, double& velocity,
                    Trace* trace) {
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
  if (chosen) {
    diameter = chosen->diameter;
    velocity = chosen->velocity;
  }
  if (trace == nullptr) return;
  trace->push_back(SizeStep(material, diameter, chosen.has_value()));
  const auto size = std::find_if(sizes.begin(), sizes.end(),
                                 [&](const SizedVelocity& one) { return one.diameter == diameter; });
  if (size == sizes.end()) {
    trace->push_back({.subject = kVelocitySubject, .result = VelocityText(velocity)});
  } else {
    const auto index = static_cast<std::int32_t>(size - sizes.begin());
    trace->push_back(VelocityStep(inner.GetAt(index), flow, velocity, kVelocityDecimals));
  }
}

double SectionHeadLoss(const CString& material, std::int32_t diameter, double flow, double length,
                       Trace* trace) {
  constexpr const wchar_t* kSubject = L"沿程水头损失 h";
  if (diameter == 0) {
    if (trace != nullptr) trace->push_back({.subject = kSubject, .result = ZwtNum2Str(0.0, 3) + L" mH2O"});
    return 0;
  }
  double coefficient = 0;
  ZwtGetMaterialCoeff(material, coefficient);
  double inner = 0;
  double outer = 0;
  ZwtGetMaterialParam(material, static_cast<double>(diameter), inner, outer);
  const double lossPerMetre =
      105 * std::pow(coefficient, -1.85) * std::pow(inner * 0.001, -4.87) * std::pow(flow * 0.001, 1.85);
  const double loss = lossPerMetre * (length * 0.001);
  if (trace != nullptr) {
    trace->push_back({.subject = L"单位长度水头损失 i",
                      .formula = L"105·Ch^-1.85·dj^-4.87·qg^1.85",
                      .substitution = WithNumbers(L"105 × #^-1.85 × (# × 0.001)^-4.87 × (# × 0.001)^1.85",
                                                  {coefficient, inner, flow}),
                      .result = FormatFixed(lossPerMetre, 4) + L" kPa/m",
                      .source = L"GB 50015-2003 第3.6.10条"});
    trace->push_back({.subject = kSubject,
                      .formula = L"0.1·i·L",
                      .substitution = WithNumbers(L"0.1 × # × # × 0.001", {lossPerMetre, length}),
                      .result = ZwtNum2Str(loss * kMetresOfWaterPerKilopascal, 3) + L" mH2O"});
  }
  return loss;
}

SupplySectionResult CalculateSection(const SupplySectionInput& section, const CString& buildingClass,
                                     const CString& place, Trace* trace) {
  SupplySectionResult result;
  result.u0 = MeanOutflowProbability(section.quota, section.persons, section.hourlyFactor, section.hours,
                                     section.equivalents, trace);
  result.useRatio = SimultaneousRatio(result.u0, section.equivalents, trace);
  result.flow = FlowOf(section, result.useRatio, buildingClass, place, trace);
  SelectDiameter(section.material, result.flow, result.diameter, result.velocity, trace);
  result.headLoss = SectionHeadLoss(section.material, result.diameter, result.flow, section.length, trace);
  return result;
}

ChangedDiameterResult RecalculateSection(const CString& material, std::int32_t diameter, double flow,
                                         double length, Trace* trace) {
  double inner = 0;
  double outer = 0;
  ZwtGetMaterialParam(material, diameter, inner, outer);
  const double velocity = Velocity(inner, flow);
  if (trace != nullptr) trace->push_back(VelocityStep(inner, flow, velocity, kVelocityDecimals));
  return {velocity, SectionHeadLoss(material, diameter, flow, length, trace)};
}

}  // namespace zwt
