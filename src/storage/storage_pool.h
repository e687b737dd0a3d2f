// Volume of a storage pool: a regulating part, a domestic reserve and a fire reserve, less what the inlet
// pipe supplies while the fire lasts.
#pragma once

#include <optional>

#include "host/text/wide_text.h"

namespace zwt {

/// Which parts count; on opening all four are checked.
struct StoragePoolParts {
  bool regulating = true;
  bool domesticReserve = true;
  bool fireReserve = true;
  bool inletSupply = true;  // only looked at where the fire reserve counts
};

/// The fields of the panel with their defaults.
struct StoragePoolInput {
  double inletDiameter = 100.0;      // mm
  double inletVelocity = 1.5;        // m/s
  double fireHours = 3.0;            // h
  double indoorHydrantFlow = 40.0;   // L/s
  double outdoorHydrantFlow = 30.0;  // L/s
  double sprinklerFlow = 30.0;       // L/s
  double maximumDay = 0.0;           // m³
  double regulatingPercent = 10.0;   // % of the maximum day, usually 8 to 12 but not limited to that
  double reserveHours = 3.0;         // h
  double hourlyUse = 0.0;            // m³/h
};

/// Regulating part, m³. 0 where the maximum day or the percentage is 0 or less.
double RegulatingPart(const StoragePoolInput& input);

/// Domestic reserve, m³. 0 where the hourly use or the reserve time is 0 or less.
double DomesticReserve(const StoragePoolInput& input);

/// Fire reserve, m³. 0 where any of the three flows or the duration is 0 or less: a building without
/// sprinklers gets no fire reserve at all. The sprinkler flow counts for one hour, whatever the duration.
double FireReserve(const StoragePoolInput& input);

/// Flow of the inlet pipe, m³/h. 0 unless the supply is checked, and where diameter or velocity is 0 or less.
double InletFlow(const StoragePoolInput& input, bool inletSupplyChecked);

/// A result without a value is left on the panel as an earlier run wrote it.
struct StoragePoolResult {
  std::optional<CString> regulating;       // m³
  std::optional<CString> domesticReserve;  // m³
  std::optional<CString> fireReserve;      // m³
  std::optional<CString> inletFlow;        // m³/h
  CString inletSupply;                     // m³
  CString total;                           // m³
};

/// Sum of the checked parts less the inlet supply, never below 0. An unchecked part counts as 0.
StoragePoolResult ComputeStoragePool(const StoragePoolInput& input, const StoragePoolParts& parts);

}  // namespace zwt
