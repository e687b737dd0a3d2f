// Storage pool formulas.
#include "storage/storage_pool.h"

#include <numbers>

#include "host/text/number_text.h"

namespace zwt {

double RegulatingPart(const StoragePoolInput& input) {
  if (input.maximumDay <= 0.0 || input.regulatingPercent <= 0.0) return 0.0;
  return input.maximumDay * input.regulatingPercent * 0.01;
}

double DomesticReserve(const StoragePoolInput& input) {
  if (input.hourlyUse <= 0.0 || input.reserveHours <= 0.0) return 0.0;
  return input.hourlyUse * input.reserveHours;
}

double FireReserve(const StoragePoolInput& input) {
  if (input.indoorHydrantFlow <= 0.0 || input.outdoorHydrantFlow <= 0.0 || input.sprinklerFlow <= 0.0 ||
      input.fireHours <= 0.0) {
    return 0.0;
  }
  const double hydrants = input.fireHours * (input.indoorHydrantFlow + input.outdoorHydrantFlow);
  return (hydrants + input.sprinklerFlow) * 3.6;
}

double InletFlow(const StoragePoolInput& input, bool inletSupplyChecked) {
  if (!inletSupplyChecked || input.inletDiameter <= 0.0 || input.inletVelocity <= 0.0) return 0.0;
  const double diameter = input.inletDiameter * 0.001;
  return std::numbers::pi * (diameter * diameter) * 0.25 * input.inletVelocity * 3600.0;
}

StoragePoolResult ComputeStoragePool(const StoragePoolInput& input, const StoragePoolParts& parts) {
  StoragePoolResult result;
  double regulating = 0.0;
  double domestic = 0.0;
  double fire = 0.0;
  double inletFlow = 0.0;
  if (parts.regulating) {
    regulating = RegulatingPart(input);
    result.regulating = FormatFixed(regulating, 2);
  }
  if (parts.domesticReserve) {
    domestic = DomesticReserve(input);
    result.domesticReserve = FormatFixed(domestic, 2);
  }
  if (parts.fireReserve) {
    fire = FireReserve(input);
    result.fireReserve = FormatFixed(fire, 2);
    inletFlow = InletFlow(input, parts.inletSupply);
    result.inletFlow = FormatFixed(inletFlow, 2);
  }
  result.inletSupply = FormatFixed(inletFlow * input.fireHours, 2);
  double total = regulating + domestic + fire - inletFlow * input.fireHours;
  if (total < 0.0) total = 0.0;
  result.total = FormatFixed(total, 2);
  return result;
}

}  // namespace zwt
