// The looped network solver as one would write it down at first: a full matrix per section in a list, added
// one by one, eliminated with full pivoting; every length searched anew. Slow, and the measure for the
// product's own.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <utility>
#include <vector>

#include "fire/hydrant_formula.h"
#include "fire/looped_network_solver.h"
#include "fire/ring_network.h"
#include "frame/containers/matrix.h"
#include "frame/containers/zc_dlist.h"
#include "host/text/number_text.h"

namespace zwt::testing_rings {

/// A matrix as row-major numbers and back.
inline std::vector<double> Elements(const CMatrix& matrix) {
  std::vector<double> elements;
  for (std::int32_t row = 0; row < matrix.GetRows(); ++row) {
    for (std::int32_t column = 0; column < matrix.GetCols(); ++column) {
      elements.push_back(matrix.GetElement(row, column));
    }
  }
  return elements;
}

/// Full pivoting, step by step as described, on numbers that are copied out of the matrices.
inline bool PlainSolve(std::vector<double> m, std::vector<double> r, int n, std::vector<double>& x) {
  const auto at = [&](int row, int column) -> double& {
    return m[static_cast<std::size_t>(row) * static_cast<std::size_t>(n) + static_cast<std::size_t>(column)];
  };
  const auto right = [&](int row) -> double& { return r[static_cast<std::size_t>(row)]; };
  std::vector<int> p(static_cast<std::size_t>(n), 0);
  for (int k = 0; k <= n - 2; ++k) {
    double best = 0.0;
    int pivotRow = k;
    for (int i = k; i < n; ++i) {
      for (int j = k; j < n; ++j) {
        if (std::fabs(at(i, j)) > best) {
          best = std::fabs(at(i, j));
          p[static_cast<std::size_t>(k)] = j;
          pivotRow = i;
        }
      }
    }
    if (best < 0.000001) return false;
    const int column = p[static_cast<std::size_t>(k)];
    for (int i = 0; column != k && i < n; ++i) std::swap(at(i, k), at(i, column));
    for (int j = k; pivotRow != k && j < n; ++j) std::swap(at(k, j), at(pivotRow, j));
    if (pivotRow != k) std::swap(right(k), right(pivotRow));
    for (int j = k + 1; j < n; ++j) at(k, j) = at(k, j) / at(k, k);
    right(k) = right(k) / at(k, k);
    for (int i = k + 1; i < n; ++i) {
      for (int j = k + 1; j < n; ++j) at(i, j) = at(i, j) - at(i, k) * at(k, j);
      right(i) = right(i) - at(i, k) * right(k);
    }
  }
  if (at(n - 1, n - 1) < 0.000001) return false;
  x[static_cast<std::size_t>(n - 1)] = right(n - 1) / at(n - 1, n - 1);
  for (int i = n - 2; i >= 0; --i) {
    double sum = 0.0;
    for (int j = i + 1; j < n; ++j) sum = sum + at(i, j) * x[static_cast<std::size_t>(j)];
    x[static_cast<std::size_t>(i)] = right(i) - sum;
  }
  p[static_cast<std::size_t>(n - 1)] = n - 1;
  for (int k = n - 1; k >= 0; --k) {
    const int from = p[static_cast<std::size_t>(k)];
    if (from != k) std::swap(x[static_cast<std::size_t>(k)], x[static_cast<std::size_t>(from)]);
  }
  return true;
}

/// The matrix of one section, and its new diameter and conductance.
inline CMatrix PlainSection(const RingNetwork& network, LoopedSection& section) {
  const int n = static_cast<int>(network.looped.nodes.size());
  double estimate = std::sqrt(4 * section.flow / (std::numbers::pi * 1.7 * 1000));
  if (section.flow == 0.0) estimate = std::sqrt(20 / (std::numbers::pi * 1.7 * 1000));
  const double d = SelectMainDiameter(estimate);
  section.diameter = d * 1000;
  const double v = 4 * section.flow / (d * d * std::numbers::pi * 1000);
  double k = 1;
  if (v < 1.2) k = 0.852 * std::pow(1 + 0.867 / v, 0.3);
  const double length = PipeLengthBetween(network, section.startNumber, section.endNumber, false);
  const double s = 1 / 1000000000.0 * 1.736 * k * length * 0.001 / std::pow(d, 5.3);
  section.conductance = 1 / (s * std::fabs(section.flow));
  CMatrix matrix(n, n);
  const int a = section.startNumber - 1;
  const int b = section.endNumber - 1;
  matrix.SetElement(a, b, -section.conductance);
  matrix.SetElement(b, a, -section.conductance);
  matrix.SetElement(a, a, section.conductance);
  matrix.SetElement(b, b, section.conductance);
  return matrix;
}

/// Sum of the sections' matrices in the order of the list, with row 0 replaced.
inline CMatrix PlainMatrix(RingNetwork& network) {
  const int n = static_cast<int>(network.looped.nodes.size());
  ZcDList<CMatrix> matrices;
  for (LoopedSection& section : network.looped.sections) matrices.Append(PlainSection(network, section));
  CMatrix sum(n, n);
  for (matrices.MoveToFirst(); !matrices.IsOut(); matrices.MoveToNext()) sum = sum + matrices.GetCurData();
  for (int j = 0; j < n; ++j) sum.SetElement(0, j, j == 0 ? 1.0 : 0.0);
  return sum;
}

struct PlainGun {
  double resistance, coefficient, length;
};

inline CMatrix PlainRightSide(const RingNetwork& network, const HydrantCalcInput& input,
                              const PlainGun& gun) {
  const LoopedNetwork& looped = network.looped;
  CMatrix right(static_cast<int>(looped.nodes.size()), 1);
  double total = 0.0;
  for (std::size_t i = 0; i < looped.nodes.size(); ++i) {
    if (!looped.nodes[i].isActive) continue;
    right.SetElement(static_cast<int>(i), 0, -looped.nodes[i].flow);
    total += looped.nodes[i].flow;
  }
  const double jet = _wtof(input.jetFlow);
  right.SetElement(0, 0,
                   gun.resistance * gun.length * (jet * jet) +
                       ZwtHydrantFormula().NozzleHead(input.waterColumn, input.nozzleDiameter) + 2.0 +
                       PipeLengthBetween(network, looped.sourceNumber, 1, true) * 0.001);
  right.SetElement(looped.sourceNumber - 1, 0, total);
  return right;
}

/// Pressures and outflows from the heads.
inline void PlainNodes(RingNetwork& network, const PlainGun& gun, const std::vector<double>& heads) {
  LoopedNetwork& looped = network.looped;
  double total = 0.0;
  for (std::size_t i = 0; i < looped.nodes.size(); ++i) {
    const auto number = static_cast<std::int32_t>(i) + 1;
    const double z = PipeLengthBetween(network, looped.sourceNumber, number, true) * 0.001;
    LoopedNode& node = looped.nodes[i];
    node.pressure = heads[i] - z;
    const double loss = 1 / gun.coefficient + gun.resistance * gun.length;
    node.flow = node.isActive ? std::sqrt(std::fabs((heads[i] - z - 2.0) / loss)) : 0.0;
    total += node.flow;
  }
  looped.nodes[static_cast<std::size_t>(looped.sourceNumber - 1)].flow = total;
}

inline LoopedResult PlainSolveLoopedNetwork(RingNetwork& network, const HydrantCalcInput& input) {
  const ZwtHydrantFormula formula;
  const PlainGun gun = {formula.HoseResistance(formula.MaterialFlag(input.hoseMaterial), input.hoseDiameter),
                        formula.NozzleCoefficient(input.nozzleDiameter), input.hoseLength};
  const int n = static_cast<int>(network.looped.nodes.size());
  std::int32_t pass = 0;
  while (true) {
    ++pass;
    if (pass == 5000) return {LoopedOutcome::NotConverged, 4999};
    const CMatrix matrix = PlainMatrix(network);
    const CMatrix right = PlainRightSide(network, input, gun);
    std::vector<double> heads(network.looped.nodes.size(), 0.0);
    if (!PlainSolve(Elements(matrix), Elements(right), n, heads)) return {LoopedOutcome::NoSolution, pass};
    PlainNodes(network, gun, heads);
    bool converged = true;
    for (LoopedSection& section : network.looped.sections) {
      const double start = heads[static_cast<std::size_t>(section.startNumber - 1)];
      const double end = heads[static_cast<std::size_t>(section.endNumber - 1)];
      const double flow = section.conductance * std::fabs(start - end);
      if (!(std::fabs(flow * flow - section.flow * section.flow) <= 0.1)) converged = false;
      section.flow = flow;
    }
    if (converged) return {LoopedOutcome::Converged, pass};
  }
}

}  // namespace zwt::testing_rings
