// Volume of a roof tank for fire water, for domestic water or for both, and the notes that explain the fire
// volume. Texts in, texts out: the panel beside it only carries them to and from its controls.
#pragma once

#include <cstdint>
#include <optional>

#include "host/text/wide_text.h"

namespace zwt {

enum class TankUse : std::int32_t { Fire = 0, Domestic = 1, Shared = 2 };

enum class TankMode : std::int32_t { TankAlone = 0, WithPump = 1 };

/// What a second note reads while there is nothing to say.
inline constexpr const wchar_t* kNoSecondTankNote = L"另注:(无)";

/// Domestic volume of a tank that works without a pump, m³: mean hourly use (m³) for the longest continuous
/// outflow (h).
double DomesticTankVolume(double hourlyUse, double outflowHours);

/// Domestic volume of a tank that a pump fills, m³: the design flow less the pump's flow (both L/s) for the
/// duration of the design flow (h), and what the pump delivers in its shortest run (h).
double PumpedTankVolume(double designFlow, double pumpFlow, double durationHours, double shortestRunHours);

/// Fire volume before the minimum of the building class, m³: fire flow (L/s) for its duration (min).
double FireTankVolume(double fireFlow, double minutes);

/// Smallest fire volume of a building class from 0 to 2: 18, 12 or 6 m³. 0 for any other class.
double MinimumFireVolume(std::int32_t buildingClass);

/// The note that goes with the choice of a building class from 0 to 2. Empty for any other class.
CString TankClassNote(std::int32_t buildingClass);

/// The fields as typed; a field without a number counts as 0.
struct TankInput {
  TankUse use = TankUse::Domestic;
  TankMode mode = TankMode::TankAlone;
  std::int32_t buildingClass = 0;
  CString fireFlow;     // L/s
  CString fireMinutes;  // min
  CString a;            // mean hourly use, m³, or design flow, L/s
  CString b;            // longest outflow, h, or pump flow, L/s
  CString duration;     // of the design flow, h
  CString shortestRun;  // of the pump, h
};

/// A result without a value is left on the panel as an earlier run wrote it.
struct TankResult {
  std::optional<CString> fireVolume;
  std::optional<CString> domesticVolume;
  std::optional<CString> totalVolume;
  CString note;
  CString secondNote;
};

/// Volumes and notes for the use of the tank. The fire volume is raised to the minimum of the building class;
/// the notes look at the volume before that, and the volume is never lowered to the 18 or 12 m³ that a note
/// allows.
TankResult ComputeTank(const TankInput& input);

}  // namespace zwt
