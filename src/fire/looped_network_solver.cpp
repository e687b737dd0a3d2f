// The passes. Loss of a section is S q² with the specific resistance of steel pipes and its correction for
// slow flow; nothing is damped or exchanged between passes, since results are printed of an iteration that
// stops early.
#include "fire/looped_network_solver.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <utility>

#include "fire/head_system.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kEstimateVelocity = 1.7;    // m/s
constexpr double kZeroFlowNumerator = 20.0;  // four times 5 L/s, which stand for no flow
constexpr double kSlowVelocity = 1.2;        // m/s
constexpr double kResistanceFactor = 1.736;  // times 10^-9
constexpr double kDiameterExponent = 5.3;
constexpr double kValveHead = 2.0;  // mH2O

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

std::size_t NearestMainDiameter(double estimate) {
  std::size_t nearest = 0;
  for (std::size_t index = 1; index < kMainDiameters.size(); ++index) {
    if (std::fabs(kMainDiameters[index] - estimate * 1000) <
        std::fabs(kMainDiameters[nearest] - estimate * 1000)) {
      nearest = index;
    }
  }
  return nearest;
}

/// A main diameter in metres with the powers of it that every pass needs.
struct MainDiameter {
  double metres;
  double squared;
  double resistancePower;
};

std::array<MainDiameter, kMainDiameters.size()> MakeMainDiameters() {
  std::array<MainDiameter, kMainDiameters.size()> diameters{};
  for (std::size_t index = 0; index < diameters.size(); ++index) {
    const double metres = kMainDiameters[index] * 0.001;
    diameters[index] = {metres, WholePower(metres, 2), std::pow(metres, kDiameterExponent)};
  }
  return diameters;
}

/// Diameter and conductance of a section from its flow.
class SectionLaw {
 public:
  void Update(LoopedSection& section, Trace* trace = nullptr) const {
    const double numerator = section.flow == 0.0 ? kZeroFlowNumerator : 4 * section.flow;
    const double estimate = std::sqrt(numerator / (std::numbers::pi * kEstimateVelocity * 1000));
    const MainDiameter& diameter = diameters_[NearestMainDiameter(estimate)];
    section.diameter = diameter.metres * 1000;
    const double velocity = 4 * section.flow / (diameter.squared * std::numbers::pi * 1000);
    const double correction = velocity < kSlowVelocity ? 0.852 * std::pow(1 + 0.867 / velocity, 0.3) : 1.0;
    const double resistance =
        tenToMinusNine_ * kResistanceFactor * correction * section.length * 0.001 / diameter.resistancePower;
    section.conductance = 1 / (resistance * std::fabs(section.flow));
    if (trace != nullptr) Note(section, {estimate, velocity, correction, resistance}, *trace);
  }

 private:
  struct Steps {
    double estimate;  // m
    double velocity;
    double correction;
    double resistance;
  };

  static void Note(const LoopedSection& section, const Steps& steps, Trace& trace) {
    constexpr const wchar_t* kLaw = L"舍维列夫公式（钢管）";
    const double metres = section.diameter * 0.001;
    trace.push_back({.subject = L"管径 D",
                     .formula = L"√(4·q / (π·1.7·1000))",
                     .substitution = WithNumbers(L"前次流量 q = # L/s，估算 # m，取最接近的一档",
                                                 {section.flow, steps.estimate}),
                     .result = ZwtNum2Str(ToInt(section.diameter)) + L" mm"});
    trace.push_back({.subject = L"流速 v",
                     .formula = L"4·q / (π·D²·1000)",
                     .substitution = WithNumbers(L"4 × # / (π × #² × 1000)", {section.flow, metres}),
                     .result = FormatFixed(steps.velocity, 3) + L" m/s"});
    trace.push_back({.subject = L"低流速修正 K",
                     .formula = L"v < 1.2 时 0.852·(1 + 0.867 / v)^0.3，否则 1",
                     .result = FormatFixed(steps.correction, 4),
                     .source = kLaw});
    trace.push_back({.subject = L"摩阻 S",
                     .formula = L"1.736·10^-9·K·L / D^5.3",
                     .substitution = WithNumbers(L"1.736 × 10^-9 × # × # × 0.001 / #^5.3",
                                                 {steps.correction, section.length, metres}),
                     .result = TraceNumber(steps.resistance) + L" mH2O/(L/s)²",
                     .source = kLaw});
    trace.push_back({.subject = L"导水系数 c",
                     .formula = L"1 / (S·|q|)",
                     .substitution = WithNumbers(L"1 / (# × |#|)", {steps.resistance, section.flow}),
                     .result = TraceNumber(section.conductance) + L" (L/s)/mH2O"});
  }

  std::array<MainDiameter, kMainDiameters.size()> diameters_ = MakeMainDiameters();
  double tenToMinusNine_ = WholePower(10.0, -9);
};

constexpr int kHeadDecimals = 9;  // heads at the ends of a section agree in their first digits

/// Flow of a section, L/s, from the heads at its ends.
double SectionFlow(double conductance, double startHead, double endHead, Trace* trace = nullptr) {
  const double flow = conductance * std::fabs(startHead - endHead);
  if (trace != nullptr) {
    trace->push_back({.subject = L"管段流量 q",
                      .formula = L"c·|H1 - H2|",
                      .substitution = WithNumbers(L"# × |", {conductance}) +
                                      FormatFixed(startHead, kHeadDecimals) + L" - " +
                                      FormatFixed(endHead, kHeadDecimals) + L"|",
                      .result = ZwtNum2Str(flow, 3) + L" L/s"});
  }
  return flow;
}

/// A gun with its hose and valve.
struct GunLaw {
  explicit GunLaw(const HydrantCalcInput& input) {
    const ZwtHydrantFormula formula;
    hoseLoss = formula.HoseResistance(formula.MaterialFlag(input.hoseMaterial), input.hoseDiameter) *
               input.hoseLength;
    gunLoss = 1 / formula.NozzleCoefficient(input.nozzleDiameter) + hoseLoss;
  }

  /// Flow, L/s, at a head behind the valve, mH2O.
  double Flow(double head, Trace* trace = nullptr) const {
    const double flow = std::sqrt(std::fabs(head / gunLoss));
    if (trace != nullptr) {
      trace->push_back({.subject = L"水枪流量 q",
                        .formula = L"√((P - 2) / (1/B + A·Ld))",
                        .substitution = WithNumbers(L"√(# / #)", {head, gunLoss}),
                        .result = ZwtNum2Str(flow, 2) + L" L/s"});
    }
    return flow;
  }

  double hoseLoss = 0.0;
  double gunLoss = 0.0;
};

/// What one calculation holds from pass to pass.
class LoopedIteration {
 public:
  LoopedIteration(LoopedNetwork& network, const HydrantCalcInput& input)
      : network_(network),
        system_(static_cast<std::int32_t>(network.nodes.size()), PairsOf(network)),
        conductances_(network.sections.size()),
        outflows_(network.nodes.size()),
        heads_(network.nodes.size()),
        gun_(input) {
    const ZwtHydrantFormula formula;
    fixedHead_ = gun_.hoseLoss * WholePower(_wtof(input.jetFlow), 2) +
                 formula.NozzleHead(input.waterColumn, input.nozzleDiameter) + kValveHead +
                 (network.nodes.empty() ? 0.0 : network.nodes.front().riserLength) * 0.001;
  }

  /// One pass but for the new section flows. False if the heads can't be solved.
  bool SolveHeads() {
    for (std::size_t index = 0; index < network_.sections.size(); ++index) {
      law_.Update(network_.sections[index]);
      conductances_[index] = network_.sections[index].conductance;
    }
    CollectOutflows();
    if (!system_.Solve(conductances_, outflows_, heads_)) return false;
    UpdateNodes();
    return true;
  }

  /// Takes the new flow of every section from the heads. True if all changes stay within the limit.
  bool UpdateFlows(LoopedPass* pass) {
    bool converged = true;
    for (std::size_t index = 0; index < network_.sections.size(); ++index) {
      LoopedSection& section = network_.sections[index];
      const double flow = SectionFlow(section.conductance, heads_[At(section.startNumber - 1)],
                                      heads_[At(section.endNumber - 1)]);
      const double change = std::fabs(flow * flow - section.flow * section.flow);
      if (!(change <= kLoopedConvergenceLimit)) converged = false;
      if (pass != nullptr) NoteChange(*pass, change, static_cast<std::int32_t>(index));
      changed_ = changed_ || !IsSame(flow, section.flow);
      section.formerFlow = section.flow;
      section.flow = flow;
    }
    return converged;
  }

  /// Whether the last pass changed anything that the next one starts from.
  bool TakeChanged() { return std::exchange(changed_, false); }

 private:
  static std::vector<NodePair> PairsOf(const LoopedNetwork& network) {
    std::vector<NodePair> pairs;
    pairs.reserve(network.sections.size());
    for (const LoopedSection& section : network.sections) {
      pairs.push_back({section.startNumber - 1, section.endNumber - 1});
    }
    return pairs;
  }

  static bool IsSame(double first, double second) {
    return first == second || (std::isnan(first) && std::isnan(second));
  }

  static void NoteChange(LoopedPass& pass, double change, std::int32_t section) {
    if (std::isnan(pass.largestChange)) return;
    if (pass.section >= 0 && !(change > pass.largestChange) && !std::isnan(change)) return;
    pass.largestChange = change;
    pass.section = section;
  }

  void CollectOutflows() {
    double total = 0.0;
    for (std::size_t index = 0; index < outflows_.size(); ++index) {
      const LoopedNode& node = network_.nodes[index];
      outflows_[index] = node.isActive ? -node.flow : 0.0;
      if (node.isActive) total += node.flow;
    }
    if (!outflows_.empty()) outflows_.front() = fixedHead_;
    if (network_.sourceNumber > 0) outflows_[At(network_.sourceNumber - 1)] = total;
  }

  void UpdateNodes() {
    double total = 0.0;
    for (std::size_t index = 0; index < heads_.size(); ++index) {
      LoopedNode& node = network_.nodes[index];
      const double height = node.riserLength * 0.001;
      node.head = heads_[index];
      node.pressure = heads_[index] - height;
      const double flow = node.isActive ? gun_.Flow(heads_[index] - height - kValveHead) : 0.0;
      if (node.isActive) changed_ = changed_ || !IsSame(flow, node.flow);
      node.flow = flow;
      total += flow;
    }
    if (network_.sourceNumber > 0) network_.nodes[At(network_.sourceNumber - 1)].flow = total;
  }

  LoopedNetwork& network_;
  SectionLaw law_;
  double fixedHead_ = 0.0;
  HeadSystem system_;
  std::vector<double> conductances_;
  std::vector<double> outflows_;
  std::vector<double> heads_;
  GunLaw gun_;
  bool changed_ = false;
};

}  // namespace

double SelectMainDiameter(double estimate) {
  return kMainDiameters[NearestMainDiameter(estimate)] * 0.001;
}

LoopedResult SolveLoopedNetwork(LoopedNetwork& network, const HydrantCalcInput& input,
                                const LoopedPassObserver& observer) {
  LoopedIteration iteration(network, input);
  for (std::int32_t pass = 1; pass < kLoopedPassLimit; ++pass) {
    if (!iteration.SolveHeads()) return {LoopedOutcome::NoSolution, pass};
    LoopedPass report{pass, 0.0, -1};
    const bool converged = iteration.UpdateFlows(observer ? &report : nullptr);
    if (observer) observer(report);
    if (converged) return {LoopedOutcome::Converged, pass};
    // A flow that is no number never converges: once nothing changes, no later pass can differ.
    if (!iteration.TakeChanged()) return {LoopedOutcome::NotConverged, kLoopedPassLimit - 1};
  }
  return {LoopedOutcome::NotConverged, kLoopedPassLimit - 1};
}

Trace ExplainSection(const LoopedNetwork& network, std::size_t section) {
  Trace trace;
  LoopedSection former = network.sections.at(section);
  former.flow = former.formerFlow;
  SectionLaw().Update(former, &trace);
  SectionFlow(former.conductance, network.nodes.at(At(former.startNumber - 1)).head,
              network.nodes.at(At(former.endNumber - 1)).head, &trace);
  return trace;
}

Trace ExplainNode(const LoopedNetwork& network, const HydrantCalcInput& input, std::size_t index) {
  const LoopedNode& node = network.nodes.at(index);
  const double height = node.riserLength * 0.001;
  Trace trace;
  if (node.isActive) {
    GunLaw(input).Flow(node.head - height - kValveHead, &trace);
  } else {
    const bool isSource = network.sourceNumber == static_cast<std::int32_t>(index) + 1;
    trace.push_back({.subject = L"节点流量 q",
                     .substitution = isSource ? L"各使用消火栓流量之和" : L"不使用的节点",
                     .result = ZwtNum2Str(node.flow, 2) + L" L/s"});
  }
  trace.push_back({.subject = L"压力 P",
                   .formula = L"H - z",
                   .substitution = WithNumbers(L"# - #", {node.head, height}),
                   .result = ZwtNum2Str(node.pressure, 2) + L" mH2O"});
  return trace;
}

}  // namespace zwt
