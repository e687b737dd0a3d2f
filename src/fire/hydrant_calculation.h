// The looped hydrant calculation on a model: which hydrants are in use, their flows to start from, the
// solver, and the texts of the result tables. Knows no panel; messages are part of the result.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "fire/hydrant_formula.h"
#include "fire/hydrant_network_model.h"
#include "fire/looped_network_solver.h"
#include "host/text/wide_text.h"

namespace zwt {

/// Title of every message of the calculation, which bears the stop icon.
inline constexpr const wchar_t* kHydrantMessageTitle = L"错误";

/// What a caller may want to hear of while it calculates.
struct HydrantCalcEvents {
  std::function<void()> solvingStarts;  ///< before the first pass
  std::function<void()> solvingEnds;    ///< after the last
  LoopedPassObserver passDone;
};

struct HydrantCalcResult {
  std::vector<CString> messages;  ///< to be shown in this order
  bool isSolved = false;  ///< the passes were begun: the tables are to be filled, also after a failure
  LoopedResult passes;    ///< how they ended
  LoopedNetwork network;  ///< as the last pass left it
};

/// Calculates the model with the panel's values. Hydrants put in use by earlier runs stay in use, and flows
/// accumulated at nodes that are not seeded again stay as well. Values that are zero, too few risers and too
/// few hydrants on the first riser give a message and change nothing.
HydrantCalcResult CalculateHydrantNetwork(const HydrantCalcInput& input, ZwtHydrantGraph& model,
                                          const HydrantCalcEvents& events = {});

/// Sets flow, pressure and accumulated flow of the hydrants in use on the first two risers, from the top
/// down. Each riser's walk ends at the first node that is not in use.
void SeedHydrantFlows(const HydrantCalcInput& input, ZwtHydrantGraph& model);

/// The model as plain data for the solver, and the solver's values back.
LoopedNetwork DescribeLoopedNetwork(ZwtHydrantGraph& model);
void TakeLoopedNetwork(const LoopedNetwork& network, ZwtHydrantGraph& model);

struct SectionResultTexts {
  CString diameter;
  CString flow;
};

/// Rows of the section table from its first on: only sections with a path have one, so behind a section
/// without one they stand a row too high.
std::vector<SectionResultTexts> SectionResults(ZwtHydrantGraph& model);

/// Index of the section that a row, from 0, of the section table shows; -1 for none.
std::int32_t SectionOfResultRow(ZwtHydrantGraph& model, std::int32_t row);

struct NodeResultTexts {
  CString flow;
  CString pressure;
};

/// One row per node.
std::vector<NodeResultTexts> NodeResults(ZwtHydrantGraph& model);

}  // namespace zwt
