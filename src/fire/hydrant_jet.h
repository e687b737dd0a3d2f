// One hydrant with hose and nozzle: water column and outlet flow from each other, pressure at the valve and
// protection radius. The relation is a table with values of its own, apart from the formulae of the looped
// hydrant network.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "host/text/wide_text.h"

namespace zwt {

inline constexpr std::size_t kJetPoints = 20;

/// One nozzle: its coefficient, the flows (L/s) that belong to the water columns of kJetColumns, and what is
/// said of a flow outside them.
struct JetNozzle {
  int diameter;  // mm
  double coefficient;
  std::array<double, kJetPoints> flows;
  const wchar_t* rangeMessage;
};

/// Water columns of the jet table, m, strictly rising.
const std::array<double, kJetPoints>& JetColumns();

/// Nozzles of 13, 16, 19, 22 and 25 mm by their index; null for any other index.
const JetNozzle* FindJetNozzle(std::int32_t nozzleIndex);

/// Resistance of a metre of hose: material 0 lined with rubber, 1 canvas or hemp; diameter 0 is 50 mm, 1 is
/// 65 mm. No value for any other index.
std::optional<double> HoseResistance(std::int32_t materialIndex, std::int32_t diameterIndex);

/// Flow, L/s, that throws a water column (m) between 6 and 20, interpolated in the jet table.
double JetFlow(const JetNozzle& nozzle, double column);

/// Water column, m, of a flow (L/s) within the nozzle's range. The search ends at the point of 17.5 m: larger
/// flows are extended along the segment before it.
double JetColumn(const JetNozzle& nozzle, double flow);

/// Pressure at the hydrant valve, mH2O: hose loss, nozzle loss and 2 m for the valve. hoseLength m, flow L/s.
double HydrantValvePressure(double hoseResistance, double hoseLength, double flow, double nozzleCoefficient);

/// Protection radius, m: four fifths of the hose (m) and the level part of the water column (m).
double ProtectionRadius(double hoseLength, double column);

enum class JetKnown : std::int32_t { WaterColumn = 0, Flow = 1 };

enum class JetField { HoseLength, Input };

/// The panel's choices and texts as typed.
struct HydrantJetInput {
  std::int32_t hoseMaterialIndex = 0;
  std::int32_t hoseDiameterIndex = 1;
  std::int32_t nozzleIndex = 2;
  JetKnown known = JetKnown::Flow;
  CString inputText;       // m or L/s
  CString hoseLengthText;  // m
};

/// Result and pressure are empty where the calculation stopped; a radius without a value stays as it stood.
struct HydrantJetResult {
  CString resultText;
  CString pressureText;
  std::optional<CString> radiusText;
  CString message;  // to be shown before the focus moves; empty: none
  std::optional<JetField> focus;
};

/// The whole calculation. A hose length that is negative or empty takes the focus; a water column outside 6
/// to 20 m and a flow outside the nozzle's range give a message, the latter with the focus. A text without a
/// number counts as 0. A choice outside its list gives empty results.
HydrantJetResult ComputeHydrantJet(const HydrantJetInput& input);

}  // namespace zwt
