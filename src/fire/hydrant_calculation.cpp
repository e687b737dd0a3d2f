// From the panel's values to the solver and back.
#include "fire/hydrant_calculation.h"

#include <cmath>
#include <cstddef>
#include <memory>

#include "fire/flow_seeding.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kValveHead = 2.0;  // mH2O

bool IsAnyValueMissing(const HydrantCalcInput& input) {
  return input.hydrantFlow == 0.0 || input.gunCount == 0 || input.gunMinFlow == 0.0 ||
         input.riserMinFlow == 0.0 || _wtof(input.jetFlow) == 0.0;
}

/// What stands against the calculation; empty for nothing.
CString Objection(const HydrantCalcInput& input, const ZwtHydrantGraph& model, std::int32_t onFirstRiser) {
  const bool needsSecondRiser = onFirstRiser < input.gunCount;
  if (needsSecondRiser && model.risers.IsEmpty()) return L"立管数量不足.";
  if (onFirstRiser > model.layerNum) return L"立管连接消火栓数量不足.";
  if (needsSecondRiser && model.risers.GetLength() < 2) return L"立管数量不足.";
  return {};
}

/// Puts the top hydrants of a riser in use.
void UseTopHydrants(ZwtHydrantGraph& model, std::int32_t riser, std::int32_t count) {
  const ZcDbPipeGraphPath* path = model.risers.GetPData(riser);
  if (path == nullptr) return;
  ZcDList<ZcDbPipeGraphNode*> graphNodes;
  ZwtHydrantGraph::TopNodesOfRiser(*path, count, graphNodes);
  for (graphNodes.MoveToFirst(); !graphNodes.IsOut(); graphNodes.MoveToNext()) {
    ZwtHydrantNode* node = model.FindNodeByGraphNode(graphNodes.GetCurData());
    if (node != nullptr) node->SetFlag(HYDRANT_NODE_ACTIVE);
  }
}

/// Flows of the hydrants in use on one riser.
class RiserSeeding {
 public:
  RiserSeeding(const HydrantCalcInput& input, ZwtHydrantGraph& model) : model_(model) {
    const std::int32_t flag = formula_.MaterialFlag(input.hoseMaterial);
    head_ = formula_.HydrantHead(formula_.NozzleHead(input.waterColumn, input.nozzleDiameter),
                                 input.hoseDiameter, input.hoseLength, _wtof(input.jetFlow), flag);
    topFlow_ = formula_.JetFlow(input.waterColumn, input.nozzleDiameter, input.gunMinFlow);
    gunLoss_ = 1 / formula_.NozzleCoefficient(input.nozzleDiameter) +
               formula_.HoseResistance(flag, input.hoseDiameter) * input.hoseLength;
  }

  void Seed(const ZcDbPipeGraphPath& riser) {
    ZcDList<ZcDbPipeGraphNode*> graphNodes;
    ZwtHydrantGraph::KeyNodesFromTop(riser, graphNodes);
    const ZwtHydrantNode* former = nullptr;
    double height = 0.0;
    for (graphNodes.MoveToFirst(); !graphNodes.IsOut(); graphNodes.MoveToNext()) {
      ZwtHydrantNode* node = model_.FindNodeByGraphNode(graphNodes.GetCurData());
      if (node == nullptr) continue;
      if (!node->HasFlag(HYDRANT_NODE_ACTIVE)) return;
      if (node->HasFlag(HYDRANT_NODE_FIRST) || graphNodes.GetCur() == 0) {
        node->pressure = head_;
        node->flow = topFlow_;
      } else {
        height += SectionLength(former, *node) * 0.001;
        node->pressure = head_ + height;
        node->flow = std::sqrt((node->pressure - kValveHead) / gunLoss_);
      }
      node->accumulatedFlow = node->flow;
      former = node;
    }
  }

 private:
  double SectionLength(const ZwtHydrantNode* former, const ZwtHydrantNode& node) {
    if (former == nullptr) return 0.0;
    const ZcDbPipeGraphPath* path = model_.FindEdgePath(former->number, node.number);
    return path == nullptr ? 0.0 : path->Length();
  }

  ZwtHydrantGraph& model_;
  ZwtHydrantFormula formula_;
  double head_ = 0.0;
  double topFlow_ = 0.0;
  double gunLoss_ = 0.0;
};

void Solve(const HydrantCalcInput& input, ZwtHydrantGraph& model, const HydrantCalcEvents& events,
           HydrantCalcResult& result) {
  LoopedNetwork& network = result.network;
  network = DescribeLoopedNetwork(model);
  AccumulateFlows(network, network.sourceNumber);
  SeedSectionFlows(network);
  if (events.solvingStarts) events.solvingStarts();
  result.passes = SolveLoopedNetwork(network, input, events.passDone);
  if (events.solvingEnds) events.solvingEnds();
  TakeLoopedNetwork(network, model);
}

}  // namespace

HydrantCalcResult CalculateHydrantNetwork(const HydrantCalcInput& input, ZwtHydrantGraph& model,
                                          const HydrantCalcEvents& events) {
  HydrantCalcResult result;
  if (IsAnyValueMissing(input)) {
    result.messages.emplace_back(L"参数不足！");
    return result;
  }
  const std::int32_t onFirstRiser = ToInt(input.riserMinFlow / input.gunMinFlow);
  const CString objection = Objection(input, model, onFirstRiser);
  if (!objection.empty()) {
    result.messages.push_back(objection);
    return result;
  }
  UseTopHydrants(model, 0, onFirstRiser);
  const double onSecondRiser = static_cast<double>(input.gunCount) - onFirstRiser;
  if (onSecondRiser > 0) UseTopHydrants(model, 1, ToInt(onSecondRiser));
  SeedHydrantFlows(input, model);
  result.isSolved = true;
  Solve(input, model, events, result);
  if (result.passes.outcome == LoopedOutcome::NoSolution) result.messages.emplace_back(L"解方程失败！");
  if (result.passes.outcome != LoopedOutcome::Converged) result.messages.emplace_back(L"计算失败！");
  return result;
}

void SeedHydrantFlows(const HydrantCalcInput& input, ZwtHydrantGraph& model) {
  RiserSeeding seeding(input, model);
  for (std::int32_t index = 0; index < 2 && index < model.risers.GetLength(); ++index) {
    seeding.Seed(model.risers(index));
  }
}

LoopedNetwork DescribeLoopedNetwork(ZwtHydrantGraph& model) {
  LoopedNetwork network;
  const std::vector<double>& riserLengths = model.RiserLengths();
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    const ZwtHydrantNode& node = model.nodes.GetCurData();
    network.nodes.push_back({node.HasFlag(HYDRANT_NODE_ACTIVE), riserLengths[network.nodes.size()], node.flow,
                             node.pressure, node.accumulatedFlow});
  }
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const ZwtHydrantEdge& edge = model.edges.GetCurData();
    network.sections.push_back({edge.startNumber, edge.endNumber,
                                edge.path == nullptr ? 0.0 : edge.path->Length(), edge.flow, edge.diameter,
                                edge.conductance});
  }
  const ZwtHydrantNode* source = model.FindSourceNode();
  network.sourceNumber = source == nullptr ? 0 : source->number;
  return network;
}

void TakeLoopedNetwork(const LoopedNetwork& network, ZwtHydrantGraph& model) {
  model.nodes.MoveToFirst();
  for (const LoopedNode& from : network.nodes) {
    ZwtHydrantNode& node = model.nodes.GetCurData();
    node.flow = from.flow;
    node.pressure = from.pressure;
    node.accumulatedFlow = from.accumulatedFlow;
    model.nodes.MoveToNext();
  }
  model.edges.MoveToFirst();
  for (const LoopedSection& from : network.sections) {
    ZwtHydrantEdge& edge = model.edges.GetCurData();
    edge.flow = from.flow;
    edge.diameter = from.diameter;
    edge.conductance = from.conductance;
    model.edges.MoveToNext();
  }
}

std::vector<SectionResultTexts> SectionResults(ZwtHydrantGraph& model) {
  std::vector<SectionResultTexts> rows;
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext()) {
    const ZwtHydrantEdge& edge = model.edges.GetCurData();
    if (edge.path != nullptr) rows.push_back({ZwtNum2Str(ToInt(edge.diameter)), ZwtNum2Str(edge.flow, 3)});
  }
  return rows;
}

std::int32_t SectionOfResultRow(ZwtHydrantGraph& model, std::int32_t row) {
  std::int32_t shown = 0;
  std::int32_t section = 0;
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext(), ++section) {
    if (model.edges.GetCurData().path == nullptr) continue;
    if (shown == row) return section;
    ++shown;
  }
  return -1;
}

std::vector<NodeResultTexts> NodeResults(ZwtHydrantGraph& model) {
  std::vector<NodeResultTexts> rows;
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    const ZwtHydrantNode& node = model.nodes.GetCurData();
    rows.push_back({ZwtNum2Str(node.flow, 2), ZwtNum2Str(node.pressure, 2)});
  }
  return rows;
}

}  // namespace zwt
