// Nozzle, hose and valve of one hydrant.
#include "fire/hydrant_formula.h"

#include <cmath>

#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kValveHead = 2.0;  // mH2O kept at the hydrant valve

struct NozzleRow {
  std::int32_t diameter;  // mm
  double coefficient;
};
constexpr NozzleRow kNozzles[] = {{13, 0.346}, {16, 0.793}, {19, 1.577}, {22, 2.836}};

struct HoseRow {
  std::int32_t diameter;  // mm
  double lined;
  double hemp;
};
constexpr HoseRow kHoses[] = {{50, 0.00677, 0.01501}, {65, 0.00172, 0.0043}, {80, 0.00075, 0.0015}};

}  // namespace

double WholePower(double base, std::int32_t exponent) {
  double result = 1.0;
  for (std::int32_t left = exponent < 0 ? -exponent : exponent; left > 0; left /= 2) {
    if (left % 2 != 0) result *= base;
    base *= base;
  }
  return exponent < 0 ? 1.0 / result : result;
}

double ZwtHydrantFormula::NozzleCoefficient(double nozzleDiameter) const {
  for (const NozzleRow& nozzle : kNozzles) {
    if (nozzle.diameter == ToInt(nozzleDiameter)) return nozzle.coefficient;
  }
  return 0.0;
}

double ZwtHydrantFormula::HoseResistance(std::int32_t materialFlag, double hoseDiameter) const {
  for (const HoseRow& hose : kHoses) {
    if (hose.diameter == ToInt(hoseDiameter)) return materialFlag == 0 ? hose.hemp : hose.lined;
  }
  return 0.0;
}

std::int32_t ZwtHydrantFormula::MaterialFlag(const CString& hoseMaterial) const {
  return hoseMaterial == L"麻织" ? 0 : 1;
}

double ZwtHydrantFormula::NozzleHead(double waterColumn, double nozzleDiameter) const {
  const double a = 1.19 + 80 * WholePower(0.01 * waterColumn, 4);
  const double f = 0.25 / (nozzleDiameter + WholePower(0.1 * nozzleDiameter, 3));
  return a * waterColumn / (1 - f * a * waterColumn);
}

double ZwtHydrantFormula::HydrantHead(double nozzleHead, double hoseDiameter, double hoseLength, double flow,
                                      std::int32_t materialFlag) const {
  // kPa and back to mH2O: the two factors round, so they stay.
  const double hoseLoss =
      HoseResistance(materialFlag, hoseDiameter) * hoseLength * WholePower(flow, 2) * 10 * 0.1;
  return nozzleHead + hoseLoss + kValveHead;
}

double ZwtHydrantFormula::JetFlow(double waterColumn, double nozzleDiameter, double smallestFlow) const {
  const double flow = std::sqrt(NozzleCoefficient(nozzleDiameter) * NozzleHead(waterColumn, nozzleDiameter));
  return smallestFlow > flow ? smallestFlow : flow;
}

}  // namespace zwt
