// Hydraulics of a drainage stack: flow, diameter, grade, velocity and fullness of each branch, flow and
// diameter of the riser. Plain values in and out; the drawing and the results grid are the panel's.
#pragma once

#include <cstdint>
#include <vector>

#include "drainage/grade_table.h"
#include "host/text/trace.h"
#include "host/text/wide_text.h"

namespace zwt {

/// Design flow in L/s (GB 50015-2003, 4.4.5): useFactor is the coefficient α of the building's use,
/// equivalents those of the fixtures on the pipe, largestFlow that of a single fixture (L/s). Negative
/// equivalents give no number.
double DrainageFlow(double useFactor, double equivalents, double largestFlow, Trace* trace = nullptr);

/// Metal if the text names iron, copper or steel and no plastic; everything else is plastic.
DrainMaterial DrainMaterialOf(const CString& material);

struct BranchDiameter {
  std::int32_t diameter = 0;  // nominal, mm
  DrainMaterial material = DrainMaterial::Plastic;
};

/// The size of the material class whose capacity lies nearest to the flow (L/s), even if it is below it; of
/// two equally near the smaller, and the largest size for a flow that is near none. A size below
/// largestFixture (the largest fixture drain on the branch, mm) gives way to the first larger one that
/// reaches it; if none does it stays.
BranchDiameter SelectBranchDiameter(double flow, std::int32_t largestFixture, const CString& material);

/// Raises a grade to the least one of a nominal diameter (GB 50015-2003, 4.4.9 and 4.4.10).
void ClampMinimumGrade(DrainMaterial material, std::int32_t diameter, double& grade);

/// Share of the depth that is filled: 0.5 below DN 150, 0.6 from there on.
double Fullness(std::int32_t diameter);

/// Diameter in mm of a riser vented through the roof (GB 50015-2003, 4.4.11): the first whose capacity
/// exceeds the flow (L/s), but DN 50 for a flow beyond them all. It is raised to the first size that reaches
/// largestFixture (mm), if one does. formIndex 0: 90° swept tee, 1: 45° tee.
std::int32_t SelectRiserDiameter(double flow, std::int32_t largestFixture, std::int32_t formIndex);

struct DrainageBranch {
  double equivalents = 0;
  double largestFlow = 0;           // of a single fixture, L/s
  std::int32_t largestFixture = 0;  // drain diameter, mm
  CString material;
};

struct DrainageSettings {
  double useFactor = 0;        // α
  std::int32_t formIndex = 0;  // of the tees on the riser
  CString ventType;
};

struct DrainageBranchResult {
  double flow = 0;            // L/s
  std::int32_t diameter = 0;  // nominal, mm
  double grade = 0;           // plain ratio
  double velocity = 0;        // m/s
  double fullness = 0;        // plain ratio
};

struct DrainageStackResult {
  std::vector<DrainageBranchResult> branches;  // in the order of the branches
  double riserFlow = 0;                        // L/s
  std::int32_t riserDiameter = 0;              // nominal, mm; 0 for an unknown vent type
};

/// How each branch and the riser were computed.
struct DrainageStackTrace {
  std::vector<Trace> branches;
  Trace riser;
};

/// The whole stack. The grade table of a size is read once, however many branches have it. The trace, if one
/// is given, takes the steps.
DrainageStackResult CalculateStack(const std::vector<DrainageBranch>& branches,
                                   const DrainageSettings& settings, DrainageStackTrace* trace = nullptr);

/// The line that tells the riser's result.
CString RiserResultText(const DrainageStackResult& result);

}  // namespace zwt
