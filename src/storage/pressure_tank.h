// Volumes and working pressures of a pressure tank. The two halves stand alone but for the pressure ratio: a
// bad field in one does not stop the other.
#pragma once

#include <vector>

#include "host/text/wide_text.h"

namespace zwt {

enum class PressureTankField {
  PressureRatio,
  PumpStarts,
  SafetyFactor,
  PumpFlow,
  VolumeFactor,
  HeightDifference,
  HeadLoss,
  OutletHead,
};

/// Regulating volume, m³ (GB 50015-2003, 3.8.5): safetyFactor of the pump's flow (L/s) over a quarter of its
/// cycle, for so many starts per hour. No starts divide by zero: infinite, or not a number without a flow.
double RegulatingVolume(double safetyFactor, double pumpFlow, double startsPerHour);

/// Total volume, m³ (GB 50015-2003, 3.8.5), of a regulating volume (m³) at a ratio of lowest to highest
/// pressure between 0 and 1.
double PressureTankVolume(double volumeFactor, double regulatingVolume, double pressureRatio);

/// Lowest working pressure, MPa: what the heads (m) to the worst outlet add up to.
double LowestPressure(double heightDifference, double headLoss, double outletHead);

/// Highest working pressure, MPa, from the lowest (MPa). The ratio holds between absolute pressures, with
/// 0.098 MPa for the atmosphere.
double HighestPressure(double lowestPressure, double pressureRatio);

/// The fields as typed.
struct PressureTankInput {
  CString pressureRatio;
  CString pumpStarts;  // per hour
  CString safetyFactor;
  CString pumpFlow;  // L/s
  CString volumeFactor;
  CString heightDifference;  // m
  CString headLoss;          // m
  CString outletHead;        // m
};

struct PressureTankResult {
  CString regulatingVolume;              // m³
  CString totalVolume;                   // m³
  CString lowestPressure;                // MPa
  CString highestPressure;               // MPa
  std::vector<PressureTankField> focus;  // the bad fields that take the focus, one after the other
};

/// Both halves; a half with a field that is empty or negative gives empty results and moves the focus to the
/// first such field. A pressure ratio that is empty or not between 0 and 1 stops both. 0 is accepted
/// everywhere else.
PressureTankResult ComputePressureTank(const PressureTankInput& input);

}  // namespace zwt
