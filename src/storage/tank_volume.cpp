// Tank volumes; the numbers and limits are those of the fire codes for initial fire water in roof tanks.
#include "storage/tank_volume.h"

#include <array>
#include <cstddef>

#include "host/text/number_text.h"

namespace zwt {
namespace {

struct TankClass {
  double minimum;
  const wchar_t* minimumText;
};

constexpr std::array<TankClass, 3> kTankClasses{{{18.0, L"18"}, {12.0, L"12"}, {6.0, L"6"}}};

const TankClass* FindTankClass(std::int32_t buildingClass) {
  if (buildingClass < 0 || buildingClass >= static_cast<std::int32_t>(kTankClasses.size())) return nullptr;
  return &kTankClasses[static_cast<std::size_t>(buildingClass)];
}

double DomesticVolume(const TankInput& input) {
  const double a = _wtof(input.a);
  const double b = _wtof(input.b);
  if (input.mode == TankMode::TankAlone) return DomesticTankVolume(a, b);
  return PumpedTankVolume(a, b, _wtof(input.duration), _wtof(input.shortestRun));
}

CString SecondNote(double fireFlow, double volume) {
  if (fireFlow > 25.0) {
    if (volume > 18.0) return L"另注:消防用水量超过25L/s且算得的消防容积大于18m3时，也可取18m3";
  } else if (volume > 12.0) {
    return L"另注:消防用水量不超过25L/s且算得的消防容积大于12m3时，也可取12m3";
  }
  return kNoSecondTankNote;
}

CString NoteOfVolume(double volume, const TankClass& tankClass) {
  const CString minimum = tankClass.minimumText;
  if (volume < tankClass.minimum) {
    return L"注:算得结果" + FormatFixed(volume, 1) + L"小于" + minimum + L"取" + minimum;
  }
  return L"注:算得结果大于最小值" + minimum + L"m3(正常情况)";
}

double ComputeFireVolume(const TankInput& input, TankResult& result) {
  const double fireFlow = _wtof(input.fireFlow);
  double volume = FireTankVolume(fireFlow, _wtof(input.fireMinutes));
  result.secondNote = SecondNote(fireFlow, volume);
  if (const TankClass* tankClass = FindTankClass(input.buildingClass)) {
    result.note = NoteOfVolume(volume, *tankClass);
    if (volume < tankClass->minimum) volume = tankClass->minimum;
  }
  result.fireVolume = FormatFixed(volume, 2);
  return volume;
}

}  // namespace

double DomesticTankVolume(double hourlyUse, double outflowHours) {
  return hourlyUse * outflowHours;
}

double PumpedTankVolume(double designFlow, double pumpFlow, double durationHours, double shortestRunHours) {
  return (3.6 * designFlow - 3.6 * pumpFlow) * durationHours + 3.6 * pumpFlow * shortestRunHours;
}

double FireTankVolume(double fireFlow, double minutes) {
  return fireFlow * 60.0 * minutes / 1000.0;
}

double MinimumFireVolume(std::int32_t buildingClass) {
  const TankClass* tankClass = FindTankClass(buildingClass);
  return tankClass == nullptr ? 0.0 : tankClass->minimum;
}

CString TankClassNote(std::int32_t buildingClass) {
  const TankClass* tankClass = FindTankClass(buildingClass);
  if (tankClass == nullptr) return {};
  return CString(L"注:选以上建筑,消防水箱容积不小于") + tankClass->minimumText + L"m3";
}

TankResult ComputeTank(const TankInput& input) {
  TankResult result;
  result.secondNote = kNoSecondTankNote;
  result.note = L"注:(无)";
  double domestic = 0.0;
  double fire = 0.0;
  if (input.use != TankUse::Fire) {
    domestic = DomesticVolume(input);
    result.domesticVolume = FormatFixed(domestic, 2);
  }
  if (input.use != TankUse::Domestic) fire = ComputeFireVolume(input, result);
  if (input.use == TankUse::Shared) result.totalVolume = FormatFixed(fire + domestic, 2);
  return result;
}

}  // namespace zwt
