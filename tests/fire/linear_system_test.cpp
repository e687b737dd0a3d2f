// The plain elimination, and the one on what is not zero, which must give the same bits.
#include "fire/linear_system.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "fire/head_system.h"

namespace zwt {
namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(LinearSystem, SolvesWithExchangesOfRowsAndColumns) {
  std::vector<double> matrix = {0, 2, 1, 0, 0, 5, 3, 1, 0};
  std::vector<double> right = {7, 15, 5};  // x = 1, y = 2, z = 3
  std::vector<double> solution(3);
  ASSERT_TRUE(SolveLinearSystem(matrix.data(), right.data(), 3, solution.data()));
  EXPECT_DOUBLE_EQ(solution[0], 1);
  EXPECT_DOUBLE_EQ(solution[1], 2);
  EXPECT_DOUBLE_EQ(solution[2], 3);
}

TEST(LinearSystem, ANegativeLastPivotFails) {
  std::vector<double> matrix = {-1};
  std::vector<double> right = {5};
  std::vector<double> solution = {42};
  EXPECT_FALSE(SolveLinearSystem(matrix.data(), right.data(), 1, solution.data()));
  EXPECT_EQ(solution[0], 42);
}

TEST(LinearSystem, ANegativePivotBeforeTheLastIsUsed) {
  std::vector<double> matrix = {-4, 0, 0, 2};
  std::vector<double> right = {8, 6};
  std::vector<double> solution(2);
  ASSERT_TRUE(SolveLinearSystem(matrix.data(), right.data(), 2, solution.data()));
  EXPECT_EQ(solution[0], -2);
  EXPECT_EQ(solution[1], 3);
}

TEST(LinearSystem, ThePivotLimitItselfIsUsed) {
  for (const double pivot : {0.000001, std::nextafter(0.000001, 0.0)}) {
    for (const bool last : {false, true}) {
      std::vector<double> matrix = {last ? 1.0 : pivot, 0, 0, last ? pivot : pivot / 2};
      std::vector<double> right = {1, 1};
      std::vector<double> solution(2);
      const bool solved = SolveLinearSystem(matrix.data(), right.data(), 2, solution.data());
      EXPECT_EQ(solved, last && pivot == 0.000001);
    }
  }
}

TEST(LinearSystem, WhatIsNoNumberIsTakenOnlyAsTheLastPivot) {
  std::vector<double> last = {3, 0, 0, kNoNumber};
  std::vector<double> right = {6, 1};
  std::vector<double> solution(2);
  ASSERT_TRUE(SolveLinearSystem(last.data(), right.data(), 2, solution.data()));
  EXPECT_TRUE(std::isnan(solution[1]));
  EXPECT_TRUE(std::isnan(solution[0]));  // zero times no number
  std::vector<double> all(4, kNoNumber);
  EXPECT_FALSE(SolveLinearSystem(all.data(), right.data(), 2, solution.data()));
}

/// The full matrix of a head system, as one would write it down.
bool SolveInFull(std::int32_t size, const std::vector<NodePair>& sections,
                 const std::vector<double>& conductances, std::vector<double> right,
                 std::vector<double>& heads) {
  const auto n = static_cast<std::size_t>(size);
  std::vector<double> matrix(n * n, 0.0);
  for (std::size_t i = 0; i < sections.size(); ++i) {
    const auto a = static_cast<std::size_t>(sections[i].start);
    const auto b = static_cast<std::size_t>(sections[i].end);
    std::vector<double> one(n * n, 0.0);
    one[a * n + b] = -conductances[i];
    one[b * n + a] = -conductances[i];
    one[a * n + a] = conductances[i];
    one[b * n + b] = conductances[i];
    for (std::size_t k = 0; k < one.size(); ++k) matrix[k] = matrix[k] + one[k];
  }
  for (std::size_t j = 0; j < n; ++j) matrix[j] = j == 0 ? 1.0 : 0.0;
  return SolveLinearSystem(matrix.data(), right.data(), size, heads.data());
}

bool SameBits(const std::vector<double>& first, const std::vector<double>& second) {
  if (first.size() != second.size()) return false;
  for (std::size_t i = 0; i < first.size(); ++i) {
    if (std::isnan(first[i]) && std::isnan(second[i])) continue;
    if (std::bit_cast<std::uint64_t>(first[i]) != std::bit_cast<std::uint64_t>(second[i])) return false;
  }
  return true;
}

using Draw = double (*)(std::mt19937&);

double Wide(std::mt19937& random) {
  return std::exp(std::uniform_real_distribution<double>(-12, 12)(random));
}
double FewValues(std::mt19937& random) {
  return 1.0 + static_cast<double>(random() % 3);
}
double WithOddities(std::mt19937& random) {
  const double odd[] = {0.0, kInfinite, kNoNumber, 1e308, 5e-324, 1e-7};
  const auto pick = random() % 60;
  return pick < 6 ? odd[pick] : Wide(random);
}
double Huge(std::mt19937& random) {
  return 1e307 * (1.0 + static_cast<double>(random() % 15));
}

class HeadSystemLaw : public testing::TestWithParam<Draw> {};

TEST_P(HeadSystemLaw, GivesTheBitsOfTheFullMatrix) {
  std::mt19937 random(7);
  int solved = 0;
  for (int round = 0; round < 1500; ++round) {
    const auto size = static_cast<std::int32_t>(1 + random() % (round % 20 == 0 ? 60 : 24));
    std::vector<NodePair> sections;
    for (std::int32_t node = 1; node < size; ++node) {
      const auto start = static_cast<std::int32_t>(random() % static_cast<unsigned>(node));
      if (random() % 25 != 0) sections.push_back({start, node});
    }
    for (auto extra = random() % 12; extra > 0; --extra) {
      const auto start = static_cast<std::int32_t>(random() % static_cast<unsigned>(size));
      const auto end = static_cast<std::int32_t>(random() % static_cast<unsigned>(size));
      sections.push_back({start, end});
    }
    HeadSystem system(size, sections);
    for (int pass = 0; pass < 3; ++pass) {
      std::vector<double> conductances(sections.size());
      for (double& conductance : conductances) conductance = GetParam()(random);
      std::vector<double> right(static_cast<std::size_t>(size), 0.0);
      right[0] = 23.0;
      right.back() = 10.0 * static_cast<double>(random() % 3);
      if (size > 2) right[1] = random() % 8 == 0 ? -0.0 : -5.0;
      std::vector<double> full(right.size(), 42.0);
      std::vector<double> sparse(right.size(), 42.0);
      const bool expected = SolveInFull(size, sections, conductances, right, full);
      ASSERT_EQ(system.Solve(conductances, right, sparse), expected) << "round " << round;
      ASSERT_TRUE(SameBits(sparse, full)) << "round " << round;
      solved += expected ? 1 : 0;
    }
  }
  EXPECT_GT(solved, 100);
}

INSTANTIATE_TEST_SUITE_P(Conductances, HeadSystemLaw,
                         testing::Values(&Wide, &FewValues, &WithOddities, &Huge));

TEST(HeadSystem, WithoutNodesHasNothingToSolve) {
  HeadSystem system(0, {});
  std::vector<double> heads;
  EXPECT_TRUE(system.Solve({}, {}, heads));
}

TEST(HeadSystem, ANodeWithoutSectionsHasNoPivot) {
  HeadSystem system(3, {{0, 1}});
  std::vector<double> heads = {1, 2, 3};
  EXPECT_FALSE(system.Solve({1.0}, {23.0, 0.0, 0.0}, heads));
  EXPECT_EQ(heads, (std::vector<double>{1, 2, 3}));
}

}  // namespace
}  // namespace zwt
