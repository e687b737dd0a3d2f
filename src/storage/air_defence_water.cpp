// Defaults by work and source, and the two sums.
#include "storage/air_defence_water.h"

#include <initializer_list>

#include "host/text/number_text.h"

namespace zwt {
namespace {

struct CheckedNumber {
  double value;
  AirDefenceField field;
};

// The field of the first negative number.
std::optional<AirDefenceField> FirstNegative(std::initializer_list<CheckedNumber> numbers) {
  for (const CheckedNumber& number : numbers) {
    if (number.value < 0.0) return number.field;
  }
  return std::nullopt;
}

struct StorageTimes {
  double drinkingDays;
  double domesticTime;
  double domesticFactor;  // days in one unit of the domestic time
};

AirDefenceResult Totals(double drinking, double domestic) {
  return {FormatFixed(drinking, 3), FormatFixed(domestic, 3), std::nullopt};
}

AirDefenceResult ComputeTwoColumns(const AirDefenceState& state, const StorageTimes& times) {
  const double wounded = _wtoi(state.wounded);
  const double staff = _wtoi(state.staff);
  const double woundedDrinking = _wtof(state.woundedDrinking);
  const double staffDrinking = _wtof(state.staffDrinking);
  const double woundedDomestic = _wtof(state.woundedDomestic);
  const double staffDomestic = _wtof(state.staffDomestic);
  // The domestic use of the staff is reported at the field of the wounded.
  const auto negative = FirstNegative({{wounded, AirDefenceField::Wounded},
                                       {staff, AirDefenceField::Staff},
                                       {woundedDrinking, AirDefenceField::WoundedDrinking},
                                       {staffDrinking, AirDefenceField::StaffDrinking},
                                       {woundedDomestic, AirDefenceField::WoundedDomestic},
                                       {staffDomestic, AirDefenceField::WoundedDomestic}});
  if (negative) return {std::nullopt, std::nullopt, negative};
  const double drinking = (wounded * woundedDrinking + staff * staffDrinking) * times.drinkingDays / 1000.0;
  const double domestic = (wounded * woundedDomestic + staff * staffDomestic) * times.domesticTime *
                          times.domesticFactor / 1000.0;
  return Totals(drinking, domestic);
}

AirDefenceResult ComputeOneColumn(const AirDefenceState& state, const StorageTimes& times) {
  const double people = _wtoi(state.people);
  const double drinking = _wtof(state.drinking);
  const double domestic = _wtof(state.domestic);
  const auto negative = FirstNegative({{people, AirDefenceField::People},
                                       {drinking, AirDefenceField::Drinking},
                                       {domestic, AirDefenceField::Domestic}});
  if (negative) return {std::nullopt, std::nullopt, negative};
  return Totals(people * drinking * times.drinkingDays / 1000.0,
                people * domestic * times.domesticTime * times.domesticFactor / 1000.0);
}

void SetSingleUse(AirDefenceState& state, const wchar_t* drinking, const wchar_t* domestic) {
  state.drinking = drinking;
  state.domestic = domestic;
}

void SetDoubleUse(AirDefenceState& state, const wchar_t* woundedDomestic, const wchar_t* staffDomestic) {
  state.woundedDrinking = L"5";
  state.staffDrinking = L"6";
  state.woundedDomestic = woundedDomestic;
  state.staffDomestic = staffDomestic;
}

void SetDailyUse(AirDefenceState& state) {
  switch (state.work) {
    case AirDefenceWork::PersonnelShelter:
    case AirDefenceWork::SupportingWork:
      SetSingleUse(state, L"6", L"4");
      break;
    case AirDefenceWork::SpecialUnitShelter:
      SetSingleUse(state, L"6", L"9");
      break;
    case AirDefenceWork::FirstAidStation:
      SetDoubleUse(state, L"50", L"35");
      break;
    case AirDefenceWork::Hospital:
      SetDoubleUse(state, L"80", L"40");
      break;
  }
}

// Works that store no domestic water show what the caller gives as nothing.
void SetDomesticHours(AirDefenceState& state, const wchar_t* nothing) {
  const bool stores = HasTwoColumns(state.work) || state.work == AirDefenceWork::SpecialUnitShelter;
  state.domesticTimeReadOnly = !stores;
  if (!stores) {
    state.domesticTime = nothing;
  } else {
    state.domesticTime = HasTwoColumns(state.work) ? L"12" : L"8";
  }
}

}  // namespace

bool HasTwoColumns(AirDefenceWork work) {
  return work == AirDefenceWork::FirstAidStation || work == AirDefenceWork::Hospital;
}

CString DomesticTimeLabel(WaterSource source) {
  return source == WaterSource::ReliableInside ? L"生活用水贮水时间(h):" : L"生活用水贮水时间(d):";
}

void ChooseWork(AirDefenceState& state, AirDefenceWork work) {
  state.work = work;
  SetDailyUse(state);
  if (state.source == WaterSource::ReliableInside) SetDomesticHours(state, L"");
}

void ChooseWaterSource(AirDefenceState& state, WaterSource source) {
  if (state.source == source) return;
  state.source = source;
  if (source == WaterSource::NoReliableInside) {
    state.outsideEnabled = true;
    state.drinkingDays = L"15";
    state.drinkingDaysReadOnly = true;
    state.domesticTime = L"14";
    state.domesticTimeReadOnly = false;
    return;
  }
  state.protectedOutside = false;
  state.outsideEnabled = false;
  state.drinkingDays = L"3";
  state.drinkingDaysReadOnly = false;
  SetDomesticHours(state, L"0");
}

void ToggleProtectedOutside(AirDefenceState& state) {
  state.protectedOutside = !state.protectedOutside;
  state.domesticTime = state.protectedOutside ? L"7" : L"14";
}

AirDefenceResult ComputeAirDefenceWater(const AirDefenceState& state) {
  const StorageTimes times{_wtof(state.drinkingDays), _wtof(state.domesticTime),
                           state.source == WaterSource::NoReliableInside ? 1.0 : 1.0 / 24.0};
  const auto negative = FirstNegative({{times.drinkingDays, AirDefenceField::DrinkingDays},
                                       {times.domesticTime, AirDefenceField::DomesticTime}});
  if (negative) return {std::nullopt, std::nullopt, negative};
  return HasTwoColumns(state.work) ? ComputeTwoColumns(state, times) : ComputeOneColumn(state, times);
}

}  // namespace zwt
