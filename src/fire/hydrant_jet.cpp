// The jet table and the interpolation in both directions.
#include "fire/hydrant_jet.h"

#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr double kLowestColumn = 6.0;
constexpr double kHighestColumn = 20.0;
constexpr std::size_t kLastPointByFlow = 15;

constexpr std::array<double, kJetPoints> kJetColumns{6.0,  7.0,  8.0,  9.0,  10.0, 11.0, 12.0,
                                                     12.5, 13.0, 13.5, 14.0, 15.0, 15.5, 16.0,
                                                     17.0, 17.5, 18.0, 19.0, 19.5, 20.0};

// Resistances by material, then by diameter.
constexpr std::array<std::array<double, 2>, 2> kHoseResistances{{{0.00677, 0.00172}, {0.01501, 0.0043}}};

constexpr std::array<JetNozzle, 5> kJetNozzles{{
    {13,
     0.346,
     {1.7, 1.8, 2.0, 2.1, 2.3, 2.4, 2.6, 2.7, 2.9, 3.0, 3.2, 3.4, 3.6, 3.8, 4.0, 4.3, 4.6, 4.9, 5.3, 5.8},
     L"流量必须在1.7至5.8之间"},
    {16,
     0.793,
     {2.5, 2.7, 2.9, 3.1, 3.3, 3.5, 3.8, 4.0, 4.2, 4.4, 4.6, 4.8, 5.1, 5.3, 5.6, 5.9, 6.2, 6.6, 7.0, 7.5},
     L"流量必须在2.5至7.5之间"},
    {19,
     1.577,
     {3.5, 3.8, 4.1, 4.3, 4.6, 4.9, 5.2, 5.4, 5.7, 6.0, 6.2, 6.5, 6.8, 7.1, 7.5, 7.8, 8.2, 8.7, 9.1, 9.6},
     L"流量必须在3.5至9.6之间"},
    {22,
     2.834,
     {4.6, 5.0, 5.4, 5.8, 6.1, 6.5,  6.8,  7.2,  7.5,  7.8,
      8.2, 8.5, 8.9, 9.3, 9.7, 10.1, 10.6, 11.1, 11.7, 12.2},
     L"流量必须在4.6至12.2之间"},
    {25,
     4.727,
     {5.9,  6.4,  6.9,  7.4,  7.8,  8.3,  8.7,  9.1,  9.6,  10.0,
      10.4, 10.8, 11.3, 11.7, 12.2, 12.8, 13.3, 13.9, 14.5, 15.2},
     L"流量必须在5.9至15.2之间"},
}};

// Index of the upper end of the segment that holds a value, at most last.
std::size_t FindSegment(const std::array<double, kJetPoints>& points, double value, std::size_t last) {
  std::size_t i = 1;
  while (i < last && points[i] <= value) ++i;
  return i;
}

double Interpolate(const std::array<double, kJetPoints>& from, const std::array<double, kJetPoints>& to,
                   double value, std::size_t i) {
  return to[i - 1] + (value - from[i - 1]) * (to[i] - to[i - 1]) / (from[i] - from[i - 1]);
}

struct JetEquipment {
  const JetNozzle* nozzle;
  double hoseResistance;
  double hoseLength;
};

CString PressureText(const JetEquipment& equipment, double flow) {
  const double pressure = HydrantValvePressure(equipment.hoseResistance, equipment.hoseLength, flow,
                                               equipment.nozzle->coefficient);
  return FormatFixed(pressure, 2);
}

HydrantJetResult ComputeFromColumn(const JetEquipment& equipment, double column) {
  HydrantJetResult result;
  if (column < kLowestColumn || column > kHighestColumn) {
    result.message = L"充实水柱长度应在6.0米至20.0米之间";
    return result;
  }
  const double flow = JetFlow(*equipment.nozzle, column);
  result.resultText = FormatFixed(flow, 2);
  result.pressureText = PressureText(equipment, flow);
  result.radiusText = FormatFixed(ProtectionRadius(equipment.hoseLength, column), 2);
  return result;
}

HydrantJetResult ComputeFromFlow(const JetEquipment& equipment, double flow) {
  HydrantJetResult result;
  if (flow < equipment.nozzle->flows.front() || flow > equipment.nozzle->flows.back()) {
    result.message = equipment.nozzle->rangeMessage;
    result.focus = JetField::Input;
    return result;
  }
  const double column = JetColumn(*equipment.nozzle, flow);
  result.pressureText = PressureText(equipment, flow);
  result.resultText = FormatFixed(column, 1);
  result.radiusText = FormatFixed(ProtectionRadius(equipment.hoseLength, column), 2);
  return result;
}

}  // namespace

const std::array<double, kJetPoints>& JetColumns() {
  return kJetColumns;
}

const JetNozzle* FindJetNozzle(std::int32_t nozzleIndex) {
  if (nozzleIndex < 0 || nozzleIndex >= static_cast<std::int32_t>(kJetNozzles.size())) return nullptr;
  return &kJetNozzles[static_cast<std::size_t>(nozzleIndex)];
}

std::optional<double> HoseResistance(std::int32_t materialIndex, std::int32_t diameterIndex) {
  if (materialIndex < 0 || materialIndex > 1 || diameterIndex < 0 || diameterIndex > 1) return std::nullopt;
  return kHoseResistances[static_cast<std::size_t>(materialIndex)][static_cast<std::size_t>(diameterIndex)];
}

double JetFlow(const JetNozzle& nozzle, double column) {
  const std::size_t i = FindSegment(kJetColumns, column, kJetPoints);
  // At 20 m the search has run out of points; the last segment ends exactly there.
  return i == kJetPoints ? nozzle.flows.back() : Interpolate(kJetColumns, nozzle.flows, column, i);
}

double JetColumn(const JetNozzle& nozzle, double flow) {
  return Interpolate(nozzle.flows, kJetColumns, flow, FindSegment(nozzle.flows, flow, kLastPointByFlow));
}

double HydrantValvePressure(double hoseResistance, double hoseLength, double flow, double nozzleCoefficient) {
  return hoseResistance * hoseLength * flow * flow + flow * flow / nozzleCoefficient + 2.0;
}

double ProtectionRadius(double hoseLength, double column) {
  return hoseLength * 0.8 + column * 0.71;
}

HydrantJetResult ComputeHydrantJet(const HydrantJetInput& input) {
  const JetNozzle* nozzle = FindJetNozzle(input.nozzleIndex);
  const std::optional<double> resistance = HoseResistance(input.hoseMaterialIndex, input.hoseDiameterIndex);
  if (nozzle == nullptr || !resistance) return {};
  const double hoseLength = _wtof(input.hoseLengthText);
  if (hoseLength < 0.0 || input.hoseLengthText.empty()) {
    HydrantJetResult result;
    result.focus = JetField::HoseLength;
    return result;
  }
  const JetEquipment equipment{nozzle, *resistance, hoseLength};
  const double known = _wtof(input.inputText);
  return input.known == JetKnown::WaterColumn ? ComputeFromColumn(equipment, known)
                                              : ComputeFromFlow(equipment, known);
}

}  // namespace zwt
