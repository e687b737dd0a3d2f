// Stored drinking and domestic water of a civil air defence work, and the defaults that follow from the kind
// of work and from its water source. All fields are texts as typed.
#pragma once

#include <cstdint>
#include <optional>

#include "host/text/wide_text.h"

namespace zwt {

/// Kinds of work in the order of the list. The two with wounded count them apart from the staff.
enum class AirDefenceWork : std::int32_t {
  PersonnelShelter = 0,
  SpecialUnitShelter = 1,
  SupportingWork = 2,
  FirstAidStation = 3,
  Hospital = 4,
};

enum class WaterSource : std::int32_t { ReliableInside = 0, NoReliableInside = 1 };

enum class AirDefenceField {
  DrinkingDays,
  DomesticTime,
  People,
  Drinking,
  Domestic,
  Wounded,
  WoundedDrinking,
  WoundedDomestic,
  Staff,
  StaffDrinking,
  StaffDomestic,
};

/// Everything that the panel holds but its two results; the initial values are those of an opening panel.
struct AirDefenceState {
  AirDefenceWork work = AirDefenceWork::PersonnelShelter;
  WaterSource source = WaterSource::ReliableInside;
  bool protectedOutside = false;
  bool outsideEnabled = false;  // the check box of the protected outside source
  CString drinkingDays = L"3";  // d
  bool drinkingDaysReadOnly = false;
  CString domesticTime = L"0";  // h with a reliable source inside, otherwise d
  bool domesticTimeReadOnly = true;
  CString people;           // works without wounded
  CString drinking = L"6";  // L per person and day
  CString domestic = L"4";  // L per person and day
  CString wounded;
  CString woundedDrinking;
  CString woundedDomestic;
  CString staff;
  CString staffDrinking;
  CString staffDomestic;
};

/// Whether the work counts wounded and staff apart.
bool HasTwoColumns(AirDefenceWork work);

/// Label of the domestic storage time, which goes by hours or by days.
CString DomesticTimeLabel(WaterSource source);

/// Chooses a work and sets its defaults. The domestic storage time follows only with a reliable source
/// inside.
void ChooseWork(AirDefenceState& state, AirDefenceWork work);

/// Chooses the water source and sets its storage times. Choosing the source in force changes nothing.
void ChooseWaterSource(AirDefenceState& state, WaterSource source);

/// Sets or clears the protected outside source, and with it the domestic storage time: 7 or 14 days.
void ToggleProtectedOutside(AirDefenceState& state);

/// Without texts the results stay as they stood and the focus goes to the bad field.
struct AirDefenceResult {
  std::optional<CString> drinkingTotal;  // m³
  std::optional<CString> domesticTotal;  // m³
  std::optional<AirDefenceField> focus;
};

/// Stored water for the people's daily use over the storage times. A negative value takes the focus and
/// stops; a negative domestic use of the staff gives the focus to that of the wounded. 0 is accepted
/// everywhere, and a field without a number counts as 0.
AirDefenceResult ComputeAirDefenceWater(const AirDefenceState& state);

}  // namespace zwt
