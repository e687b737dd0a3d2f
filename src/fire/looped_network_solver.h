// Flows and pressures of a looped hydrant network by linearised heads: every pass turns the flows of the pass
// before into conductances, solves for the heads and takes new flows from them. Takes a plain description, no
// drawing.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "fire/hydrant_formula.h"
#include "host/text/trace.h"

namespace zwt {

/// A node; number k stands at index k - 1.
struct LoopedNode {
  bool isActive = false;         ///< a hydrant in use
  double riserLength = 0.0;      ///< mm of riser pipes on the way from the source
  double flow = 0.0;             ///< L/s; of the source the total
  double pressure = 0.0;         ///< mH2O
  double accumulatedFlow = 0.0;  ///< L/s, used to seed section flows
  double head = 0.0;             ///< mH2O, of the last pass: the pressure and the height
};

struct LoopedSection {
  std::int32_t startNumber = 0;
  std::int32_t endNumber = 0;
  double length = 0.0;       ///< mm
  double flow = 0.0;         ///< L/s
  double diameter = 0.0;     ///< mm
  double conductance = 0.0;  ///< (L/s) per mH2O
  double formerFlow = 0.0;   ///< L/s, from which the last pass took diameter and conductance
};

struct LoopedNetwork {
  std::vector<LoopedNode> nodes;
  std::vector<LoopedSection> sections;
  std::int32_t sourceNumber = 0;  ///< 0 for a network without a source
};

/// How a pass went.
struct LoopedPass {
  std::int32_t pass = 0;       ///< from 1
  double largestChange = 0.0;  ///< of the squared flow of a section, (L/s)²; no number if one of them is none
  std::int32_t section = -1;   ///< index of the section with that change
};

using LoopedPassObserver = std::function<void(const LoopedPass&)>;

enum class LoopedOutcome {
  Converged,
  NotConverged,  ///< the limit of passes was reached
  NoSolution,    ///< the linear system of a pass had no usable pivot
};

struct LoopedResult {
  LoopedOutcome outcome = LoopedOutcome::Converged;
  std::int32_t passes = 0;  ///< passes begun
};

inline constexpr std::int32_t kLoopedPassLimit = 5000;  ///< the pass that is no longer made
inline constexpr double kLoopedConvergenceLimit = 0.1;  ///< (L/s)², on the change of a squared section flow

/// Main diameters to choose from, mm.
inline constexpr std::array<double, 7> kMainDiameters = {100, 125, 150, 175, 200, 225, 250};

/// The main diameter nearest to an estimate; of two equally near the smaller; 100 mm for what is no number.
/// Argument and result in m.
double SelectMainDiameter(double estimate);

/// Repeats passes from the flows in `network` until no squared section flow changes by more than the limit.
/// Flows, pressures, diameters and conductances of the last pass stay in the network, also on failure. The
/// iteration is neutrally stable: where the loss is S q², in sections of 1.2 m/s and more, a pass turns a
/// flow q into q*²/q, which swings about q* and never nears it; slower sections alone damp that. Rings of few
/// risers that carry many hydrants therefore take thousands of passes or reach the limit. `observer`, if
/// there is one, hears of every pass.
LoopedResult SolveLoopedNetwork(LoopedNetwork& network, const HydrantCalcInput& input,
                                const LoopedPassObserver& observer = {});

/// How the last pass found the flow of a section, and flow and pressure of a node: the pass's own formulae
/// with the numbers that it left in the network.
Trace ExplainSection(const LoopedNetwork& network, std::size_t section);
Trace ExplainNode(const LoopedNetwork& network, const HydrantCalcInput& input, std::size_t node);

}  // namespace zwt
