// Hydraulics of one section of a supply riser: design flow, nominal diameter, velocity and head loss. The
// sizes come from the material file. Nothing here knows the riser, the drawing or the panel, and no check
// stands in front of the arithmetic: equivalents of 0 give a flow that is not a number. Each function notes
// its step in a trace, if it is given one.
#pragma once

#include <cstdint>

#include "host/text/trace.h"
#include "host/text/wide_text.h"
#include "supply/velocity_choice.h"

namespace zwt {

/// The building classes of a calculation; any other text gives no flow.
inline constexpr const wchar_t* kDwellingClass = L"住宅别墅";
inline constexpr const wchar_t* kPublicClass = L"公共建筑";

/// The panel and the trace show head losses in metres of water.
inline constexpr double kMetresOfWaterPerKilopascal = 0.1;

/// Mean outflow probability U0 in per cent (GB 50015-2003, 3.6.4). quota L per person and day, persons beyond
/// the section, hourlyFactor Kh, hours per day, equivalents Ng beyond the section. 0 for zero hours or
/// equivalents.
double MeanOutflowProbability(double quota, double persons, double hourlyFactor, double hours,
                              double equivalents, Trace* trace = nullptr);

/// Simultaneous use ratio U, a plain ratio: the table row nearest to U0, however far, without interpolation.
double SimultaneousRatio(double u0, double equivalents, Trace* trace = nullptr);

/// Design flow of a dwelling in L/s.
double ResidentialFlow(double equivalents, double useRatio, Trace* trace = nullptr);

/// Design flow of a public building in L/s (GB 50015-2003, 3.6.5) by the text of the place; 0 for any other
/// text.
double PublicFlow(double equivalents, const CString& place, Trace* trace = nullptr);

/// Nominal diameter (mm) and velocity (m/s) for a flow in L/s among the sizes of a material. Both stay as
/// they are where no size is found: an unknown material, or every size too fast.
void SelectDiameter(const CString& material, double flow, std::int32_t& diameter, double& velocity,
                    Trace* trace = nullptr);

/// Head loss in kPa by Hazen-Williams (GB 50015-2003, 3.6.10): nominal diameter mm, flow L/s, length mm. 0
/// for the diameter 0, infinite for a material without a coefficient.
double SectionHeadLoss(const CString& material, std::int32_t diameter, double flow, double length,
                       Trace* trace = nullptr);

struct SupplySectionInput {
  double equivalents = 0;   // Ng, from the section to the end of the riser
  double persons = 0;       // likewise
  double quota = 0;         // of the section's own branch, L per person and day
  double hourlyFactor = 0;  // likewise, Kh
  double hours = 0;         // likewise, per day
  double length = 0;        // mm
  CString material;
};

struct SupplySectionResult {
  double u0 = 0;              // per cent
  double useRatio = 0;        // plain
  double flow = 0;            // L/s
  std::int32_t diameter = 0;  // nominal, mm; 0 where none was found
  double velocity = 0;        // m/s
  double headLoss = 0;        // kPa
};

/// One section from its data to its head loss.
SupplySectionResult CalculateSection(const SupplySectionInput& section, const CString& buildingClass,
                                     const CString& place, Trace* trace = nullptr);

struct ChangedDiameterResult {
  double velocity = 0;  // m/s
  double headLoss = 0;  // kPa
};

/// A section whose diameter (nominal, mm) was overruled: flow L/s, length mm.
ChangedDiameterResult RecalculateSection(const CString& material, std::int32_t diameter, double flow,
                                         double length, Trace* trace = nullptr);

}  // namespace zwt
