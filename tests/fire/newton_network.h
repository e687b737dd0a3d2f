// A second method for looped hydrant networks: Newton's on the balances of all nodes at once, with the heads
// as unknowns. Shares nothing with the passes but the equations; the diameters are given.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

#include "fire/hydrant_formula.h"
#include "fire/looped_network_solver.h"
#include "host/text/number_text.h"

namespace zwt::testing_rings {

class NewtonNetwork {
 public:
  NewtonNetwork(const LoopedNetwork& network, const HydrantCalcInput& input)
      : network_(network), size_(network.nodes.size()), heads_(size_, 0.0) {
    const ZwtHydrantFormula formula;
    const double hose = formula.HoseResistance(formula.MaterialFlag(input.hoseMaterial), input.hoseDiameter);
    const double jet = _wtof(input.jetFlow);
    gunLoss_ = 1 / formula.NozzleCoefficient(input.nozzleDiameter) + hose * input.hoseLength;
    const double first = hose * input.hoseLength * jet * jet +
                         formula.NozzleHead(input.waterColumn, input.nozzleDiameter) + 2.0 +
                         network.nodes.front().riserLength * 0.001;
    std::fill(heads_.begin(), heads_.end(), first);
  }

  /// True once every balance holds to a billionth of a litre per second.
  bool Solve() {
    SpreadHeads();
    std::vector<double> missing = Balances(heads_);
    for (int step = 0; step < 500; ++step) {
      if (Norm(missing) < 1e-9) return true;
      const std::vector<double> change = Direction(missing);
      double share = 1.0;
      std::vector<double> trial;
      std::vector<double> left;
      do {
        trial = heads_;
        for (std::size_t i = 0; i < size_; ++i) trial[i] += share * change[i];
        left = Balances(trial);
        share /= 2;
      } while (!(Norm(left) < Norm(missing)) && share > 1e-12);
      heads_ = trial;
      missing = left;
    }
    return false;
  }

  double SectionFlow(std::size_t section) const {
    return Flow(network_.sections[section], Difference(network_.sections[section], heads_));
  }
  double Pressure(std::size_t node) const { return heads_[node] - network_.nodes[node].riserLength * 0.001; }
  double NodeFlow(std::size_t node) const {
    return network_.nodes[node].isActive ? GunFlow(node, heads_) : 0.0;
  }

 private:
  static std::size_t Index(std::int32_t number) { return static_cast<std::size_t>(number - 1); }

  static double Norm(const std::vector<double>& values) {
    double sum = 0.0;
    for (const double value : values) sum += value * value;
    return std::sqrt(sum);
  }

  static double Loss(const LoopedSection& section, double flow) {
    const double d = section.diameter / 1000;
    const double v = 4 * flow / (d * d * std::numbers::pi * 1000);
    const double k = v < 1.2 ? 0.852 * std::pow(1 + 0.867 / v, 0.3) : 1.0;
    return 1e-9 * 1.736 * k * section.length * 0.001 / std::pow(d, 5.3) * flow * flow;
  }

  /// Flow at a head difference; the loss grows with the flow, so halving finds it.
  static double Flow(const LoopedSection& section, double difference) {
    double low = 0.0;
    double high = 1000.0;
    for (int i = 0; i < 100; ++i) {
      const double middle = (low + high) / 2;
      (Loss(section, middle) < std::fabs(difference) ? low : high) = middle;
    }
    return std::copysign(high, difference);
  }

  double Difference(const LoopedSection& section, const std::vector<double>& heads) const {
    return heads[Index(section.endNumber)] - heads[Index(section.startNumber)];
  }

  double GunFlow(std::size_t node, const std::vector<double>& heads) const {
    return std::sqrt(std::fabs(heads[node] - network_.nodes[node].riserLength * 0.001 - 2.0) / gunLoss_);
  }

  /// Heads that fall from the source to node 1, so that no section starts without a flow.
  void SpreadHeads() {
    for (std::size_t i = 1; i < size_; ++i) heads_[i] += 0.01 * static_cast<double>(i);
  }

  /// What comes to each node more than it gives off; node 1 has its head instead.
  std::vector<double> Balances(const std::vector<double>& heads) const {
    std::vector<double> balance(size_, 0.0);
    double total = 0.0;
    for (std::size_t i = 0; i < size_; ++i) {
      if (!network_.nodes[i].isActive) continue;
      balance[i] -= GunFlow(i, heads);
      total += GunFlow(i, heads);
    }
    balance[Index(network_.sourceNumber)] += total;
    for (const LoopedSection& section : network_.sections) {
      const double flow = Flow(section, Difference(section, heads));
      balance[Index(section.startNumber)] += flow;
      balance[Index(section.endNumber)] -= flow;
    }
    balance[0] = 0.0;
    return balance;
  }

  std::vector<double> Direction(const std::vector<double>& missing) const {
    std::vector<std::vector<double>> slope(size_, std::vector<double>(size_, 0.0));
    for (const LoopedSection& section : network_.sections) {
      const double difference = std::max(std::fabs(Difference(section, heads_)), 1e-12);
      const double rate =
          (Flow(section, difference * 1.0001) - Flow(section, difference)) / (difference * 0.0001);
      const std::size_t a = Index(section.startNumber);
      const std::size_t b = Index(section.endNumber);
      slope[a][b] += rate;
      slope[a][a] -= rate;
      slope[b][a] += rate;
      slope[b][b] -= rate;
    }
    const std::size_t source = Index(network_.sourceNumber);
    for (std::size_t i = 1; i < size_; ++i) {
      if (!network_.nodes[i].isActive) continue;
      const double height = network_.nodes[i].riserLength * 0.001;
      const double rate = GunFlow(i, heads_) / (2 * (heads_[i] - height - 2.0));
      slope[i][i] -= rate;
      slope[source][i] += rate;
    }
    std::fill(slope[0].begin(), slope[0].end(), 0.0);
    slope[0][0] = 1.0;
    std::vector<double> right = missing;
    for (double& value : right) value = -value;
    return Gauss(std::move(slope), std::move(right));
  }

  static std::vector<double> Gauss(std::vector<std::vector<double>> m, std::vector<double> r) {
    const std::size_t n = r.size();
    for (std::size_t k = 0; k < n; ++k) {
      std::size_t pivot = k;
      for (std::size_t i = k + 1; i < n; ++i) pivot = std::fabs(m[i][k]) > std::fabs(m[pivot][k]) ? i : pivot;
      std::swap(m[k], m[pivot]);
      std::swap(r[k], r[pivot]);
      for (std::size_t i = k + 1; i < n; ++i) {
        const double factor = m[i][k] / m[k][k];
        for (std::size_t j = k; j < n; ++j) m[i][j] -= factor * m[k][j];
        r[i] -= factor * r[k];
      }
    }
    for (std::size_t i = n; i-- > 0;) {
      for (std::size_t j = i + 1; j < n; ++j) r[i] -= m[i][j] * r[j];
      r[i] /= m[i][i];
    }
    return r;
  }

  const LoopedNetwork& network_;
  std::size_t size_;
  double gunLoss_ = 0.0;
  std::vector<double> heads_;
};

}  // namespace zwt::testing_rings
