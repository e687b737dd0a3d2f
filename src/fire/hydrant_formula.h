// The formulae of one hydrant in a looped network: nozzle, hose and valve. The coefficients are those of the
// network calculation; the single jet has a table of its own with other values.
#pragma once

#include <cstdint>

#include "host/text/wide_text.h"

namespace zwt {

/// What the panel hands over to the looped hydrant calculation.
struct HydrantCalcInput {
  double hydrantFlow = 10.0;       ///< L/s, only tested for being given
  std::int32_t gunCount = 2;       ///< hydrants in use together
  double gunMinFlow = 5.0;         ///< L/s per gun
  double riserMinFlow = 10.0;      ///< L/s per riser
  double nozzleDiameter = 19.0;    ///< mm: 13, 16, 19 or 22
  double hoseLength = 25.0;        ///< m
  double hoseDiameter = 50.0;      ///< mm: 50, 65 or 80
  double waterColumn = 12.0;       ///< m
  CString hoseMaterial = L"衬胶";  ///< or 麻织
  CString jetFlow = L"0";          ///< L/s as text; one without a number counts as 0
};

/// `base` to a whole power, by repeated squaring: a library's pow may differ in the last digit. A negative
/// exponent gives 1 divided by the positive power.
double WholePower(double base, std::int32_t exponent);

/// Hydraulics of nozzle and hose (design handbook for building water supply and drainage, indoor hydrants).
class ZwtHydrantFormula {
 public:
  /// Coefficient B of a nozzle, q² = B H. nozzleDiameter mm, cut to a whole number; 0 for a size that is
  /// none.
  double NozzleCoefficient(double nozzleDiameter) const;

  /// Resistance A of a metre of hose, h = A L q². hoseDiameter mm, cut to a whole number; 0 for a size that
  /// is none.
  double HoseResistance(std::int32_t materialFlag, double hoseDiameter) const;

  /// 0 for 麻织, 1 for every other hose.
  std::int32_t MaterialFlag(const CString& hoseMaterial) const;

  /// Head at the nozzle, mH2O, that throws a water column. waterColumn m, nozzleDiameter mm.
  double NozzleHead(double waterColumn, double nozzleDiameter) const;

  /// Head at the hydrant, mH2O: nozzle, hose and 2 m for the valve. hoseDiameter mm, hoseLength m, flow L/s.
  double HydrantHead(double nozzleHead, double hoseDiameter, double hoseLength, double flow,
                     std::int32_t materialFlag) const;

  /// Flow of a gun, L/s: what the water column gives, but at least smallestFlow. waterColumn m,
  /// nozzleDiameter mm.
  double JetFlow(double waterColumn, double nozzleDiameter, double smallestFlow) const;
};

}  // namespace zwt
