// Design hourly heat demand of a hot water system, and the hot water flow that carries it.
#pragma once

#include <cstdint>

#include "host/text/wide_text.h"

namespace zwt {

enum class HotWaterSupply : std::int32_t { AllDay = 0, Timed = 1 };

/// The panel's values; 0 stands for a value not given.
struct HeatDemandInput {
  HotWaterSupply supply = HotWaterSupply::AllDay;
  double waterQuota = 0.0;       // L per unit and day
  double units = 0.0;            // persons, beds and the like, as the quota counts them
  double hourlyVariation = 0.0;  // Kh
  double hourlyQuota = 0.0;      // L/h of all fixtures, timed supply
  double coldTemperature = 0.0;  // °C
  double useHours = 24.0;        // h per day
};

/// Heat of an all-day supply, kJ/h (GB 50015-2003, 5.3.1).
double AllDayHeat(const HeatDemandInput& input);

/// Heat of a supply at set times, kJ/h (GB 50015-2003, 5.3.1).
double TimedHeat(const HeatDemandInput& input);

/// Hot water of 60 °C, L/h, that carries a heat (kJ/h) above cold water of the temperature given (°C). Cold
/// water of 60 °C divides by zero.
double HotWaterFlow(double heat, double coldTemperature);

/// A text is empty where a value that it needs is 0. Cold water of 60 °C gives a heat of 0.000 and no flow;
/// warmer water gives a negative heat.
struct HeatDemandResult {
  CString heatText;  // kJ/h
  CString flowText;  // L/h
};

HeatDemandResult ComputeHeatDemand(const HeatDemandInput& input);

}  // namespace zwt
