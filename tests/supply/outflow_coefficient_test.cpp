#include "supply/outflow_coefficient.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

using zwt::OutflowCoefficient;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(OutflowCoefficientTest, EveryRowOfTheTableIsFoundByItsOwnProbability) {
  EXPECT_EQ(OutflowCoefficient(1.0), 0.00323);
  EXPECT_EQ(OutflowCoefficient(1.5), 0.00697);
  EXPECT_EQ(OutflowCoefficient(2.0), 0.01097);
  EXPECT_EQ(OutflowCoefficient(2.5), 0.01512);
  EXPECT_EQ(OutflowCoefficient(3.0), 0.01939);
  EXPECT_EQ(OutflowCoefficient(3.5), 0.02374);
  EXPECT_EQ(OutflowCoefficient(4.0), 0.02816);
  EXPECT_EQ(OutflowCoefficient(4.5), 0.03263);
  EXPECT_EQ(OutflowCoefficient(5.0), 0.03715);
  EXPECT_EQ(OutflowCoefficient(6.0), 0.04629);
  EXPECT_EQ(OutflowCoefficient(7.0), 0.05555);
  EXPECT_EQ(OutflowCoefficient(8.0), 0.06489);
}

TEST(OutflowCoefficientTest, ProbabilityBetweenTwoRowsTakesTheLater) {
  EXPECT_EQ(OutflowCoefficient(1.25), 0.00697);
  EXPECT_EQ(OutflowCoefficient(5.5), 0.04629);
  EXPECT_EQ(OutflowCoefficient(7.5), 0.06489);
}

TEST(OutflowCoefficientTest, ProbabilityJustBelowTheMiddleTakesTheEarlierRow) {
  EXPECT_EQ(OutflowCoefficient(1.24), 0.00323);
  EXPECT_EQ(OutflowCoefficient(std::nextafter(1.25, 0.0)), 0.00323);
}

TEST(OutflowCoefficientTest, BeyondTheTableTheOuterRowsStand) {
  EXPECT_EQ(OutflowCoefficient(0), 0.00323);
  EXPECT_EQ(OutflowCoefficient(-50), 0.00323);
  EXPECT_EQ(OutflowCoefficient(100), 0.06489);
  EXPECT_EQ(OutflowCoefficient(1e9), 0.06489);
  EXPECT_EQ(OutflowCoefficient(kInfinity), 0.06489);
}

TEST(OutflowCoefficientTest, NoRowWithinReachGivesZero) {
  EXPECT_EQ(OutflowCoefficient(8 + 9999, zwt::kFarthestRow), 0.06489);
  EXPECT_EQ(OutflowCoefficient(8 + 10000, zwt::kFarthestRow), 0);
  EXPECT_EQ(OutflowCoefficient(kInfinity, zwt::kFarthestRow), 0);
  EXPECT_EQ(OutflowCoefficient(std::nan("")), 0);
}

TEST(UseRatioTest, OneEquivalentIsAlwaysInUse) {
  for (const double coefficient : {0.0, 0.00323, 0.06489, 5.0}) EXPECT_EQ(zwt::UseRatio(coefficient, 1), 1);
}

TEST(UseRatioTest, FewerThanOneEquivalentIsNoNumber) {
  EXPECT_TRUE(std::isnan(zwt::UseRatio(0.00323, 0)));
  EXPECT_TRUE(std::isnan(zwt::UseRatio(0.00323, 0.5)));
  EXPECT_TRUE(std::isnan(zwt::UseRatio(0.00323, -4)));
}

TEST(ProbabilityFlowLaw, MoreEquivalentsAtTheSameRowFlowMoreButShareLess) {
  double flowBefore = 0;
  double ratioBefore = 2;
  for (int halves = 2; halves <= 4000; ++halves) {
    const double equivalents = halves * 0.5;
    const double ratio = zwt::UseRatio(0.02816, equivalents);
    const double flow = zwt::ProbabilityFlow(ratio, equivalents);
    ASSERT_GT(flow, flowBefore) << equivalents;
    ASSERT_LT(ratio, ratioBefore) << equivalents;
    flowBefore = flow;
    ratioBefore = ratio;
  }
}

TEST(RootFlowTest, SquareRootOfTheEquivalents) {
  EXPECT_DOUBLE_EQ(zwt::RootFlow(1.5, 16), 1.2);
  EXPECT_EQ(zwt::RootFlow(1.5, 0), 0);
  EXPECT_EQ(zwt::RootFlow(0, 16), 0);
  EXPECT_TRUE(std::isnan(zwt::RootFlow(1.5, -1)));
}

}  // namespace
