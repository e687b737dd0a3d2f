// Heat and flow of the two supply regimes.
#include "hotwater/heat_demand.h"

#include <optional>

#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr double kHotTemperature = 60.0;      // °C
constexpr double kSpecificHeat = 4.187;       // kJ/(kg·°C)
constexpr double kHotWaterDensity = 0.98324;  // kg/L
constexpr double kFixtureShare = 1.0;         // of the fixtures that run at the same time
constexpr double kFixtureGroups = 1.0;        // of one kind

std::optional<double> Heat(const HeatDemandInput& input) {
  if (input.coldTemperature == 0.0) return std::nullopt;
  if (input.supply == HotWaterSupply::Timed) {
    if (input.hourlyQuota == 0.0) return std::nullopt;
    return TimedHeat(input);
  }
  if (input.hourlyVariation == 0.0 || input.units == 0.0 || input.waterQuota == 0.0 ||
      input.useHours == 0.0) {
    return std::nullopt;
  }
  return AllDayHeat(input);
}

}  // namespace

double AllDayHeat(const HeatDemandInput& input) {
  return input.hourlyVariation * input.units * input.waterQuota * kSpecificHeat *
         (kHotTemperature - input.coldTemperature) * kHotWaterDensity / input.useHours;
}

double TimedHeat(const HeatDemandInput& input) {
  return input.hourlyQuota * (kHotTemperature - input.coldTemperature) * kHotWaterDensity * kFixtureShare *
         kFixtureGroups * kSpecificHeat;
}

double HotWaterFlow(double heat, double coldTemperature) {
  return heat / ((kHotTemperature - coldTemperature) * kSpecificHeat * kHotWaterDensity);
}

HeatDemandResult ComputeHeatDemand(const HeatDemandInput& input) {
  HeatDemandResult result;
  const std::optional<double> heat = Heat(input);
  if (!heat) return result;
  result.heatText = FormatFixed(*heat, 3);
  if (*heat != 0.0) result.flowText = FormatFixed(HotWaterFlow(*heat, input.coldTemperature), 3);
  return result;
}

}  // namespace zwt
