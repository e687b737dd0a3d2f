#include "supply/velocity_choice.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace {

using zwt::ChooseByVelocity;
using zwt::FallbackLimits;
using zwt::IsInVelocityBand;
using zwt::SizedVelocity;
using zwt::Velocity;

constexpr FallbackLimits kAllSizes{1000, 999999.0};

TEST(VelocityTest, FlowOverArea) {
  EXPECT_NEAR(Velocity(25, 0.43807), 0.892, 0.0005);
  EXPECT_EQ(Velocity(25, 0), 0);
  EXPECT_TRUE(std::isinf(Velocity(0, 1)));
}

TEST(VelocityBandTest, VelocityExactlyOnBandEndIsACandidate) {
  EXPECT_TRUE(IsInVelocityBand({20, 0.6}));
  EXPECT_TRUE(IsInVelocityBand({20, 1.0}));
  EXPECT_FALSE(IsInVelocityBand({20, 0.5999}));
  EXPECT_FALSE(IsInVelocityBand({20, 1.0001}));
}

TEST(VelocityBandTest, Diameter25And80OpenTheNextBand) {
  EXPECT_TRUE(IsInVelocityBand({24, 0.6}));
  EXPECT_FALSE(IsInVelocityBand({25, 0.6}));
  EXPECT_TRUE(IsInVelocityBand({25, 0.8}));
  EXPECT_TRUE(IsInVelocityBand({25, 1.2}));
  EXPECT_TRUE(IsInVelocityBand({79, 0.8}));
  EXPECT_FALSE(IsInVelocityBand({80, 0.8}));
  EXPECT_TRUE(IsInVelocityBand({80, 1.0}));
  EXPECT_TRUE(IsInVelocityBand({80, 1.5}));
  EXPECT_FALSE(IsInVelocityBand({80, 1.5001}));
}

std::int32_t ChosenDiameter(const std::vector<SizedVelocity>& sizes,
                            const FallbackLimits& fallback = kAllSizes) {
  return ChooseByVelocity(sizes, fallback).value_or(SizedVelocity{}).diameter;
}

TEST(VelocityChoiceTest, TakesTheMiddleCandidateOrOfTwoMiddlesTheLater) {
  EXPECT_EQ(ChosenDiameter({{32, 1.0}}), 32);
  EXPECT_EQ(ChosenDiameter({{32, 1.1}, {40, 1.0}}), 40);
  EXPECT_EQ(ChosenDiameter({{32, 1.1}, {40, 1.0}, {50, 0.9}}), 40);
  EXPECT_EQ(ChosenDiameter({{32, 1.1}, {40, 1.0}, {50, 0.9}, {65, 0.8}}), 50);
}

TEST(VelocityChoiceTest, CandidatesKeepTheOrderOfTheList) {
  EXPECT_EQ(ChosenDiameter({{50, 0.9}, {32, 1.1}}), 32);
}

TEST(VelocityChoiceTest, SizesOutsideTheirBandDoNotCountForTheMiddle) {
  EXPECT_EQ(ChosenDiameter({{15, 2.479}, {20, 1.394}, {25, 0.892}, {32, 0.545}}), 25);
}

TEST(VelocityChoiceTest, WithoutCandidateTheVelocityNearestBelowIsTaken) {
  EXPECT_EQ(ChosenDiameter({{25, 0.75}, {32, 0.79}}), 32);
  EXPECT_EQ(ChosenDiameter({{25, 0.79}, {32, 0.75}}), 25);
}

TEST(VelocityChoiceTest, FirstOfEqualVelocitiesWinsTheFallback) {
  EXPECT_EQ(ChosenDiameter({{25, 0.7}, {32, 0.7}}), 25);
}

TEST(VelocityChoiceTest, VelocityOfExactlyTheFallbackBoundIsPassedOver) {
  EXPECT_EQ(ChosenDiameter({{100, 0.8}, {125, 0.5}}), 125);
  EXPECT_EQ(ChosenDiameter({{100, 0.8}}), 0);
}

TEST(VelocityChoiceTest, AllVelocitiesAboveFindNothing) {
  EXPECT_EQ(ChosenDiameter({{25, 1.3}, {32, 2.0}}), 0);
  EXPECT_EQ(ChosenDiameter({}), 0);
}

TEST(VelocityChoiceTest, VelocityThatIsNoNumberFindsNothing) {
  EXPECT_EQ(ChosenDiameter({{25, std::nan("")}}), 0);
}

TEST(VelocityChoiceTest, SizesBehindTheLimitAreCandidatesButNoFallback) {
  const std::vector<SizedVelocity> slow = {{100, 0.3}, {125, 0.4}, {150, 0.5}};
  EXPECT_EQ(ChosenDiameter(slow, {2, 999999.0}), 125);
  const std::vector<SizedVelocity> fitting = {{100, 0.3}, {125, 0.4}, {150, 1.2}};
  EXPECT_EQ(ChosenDiameter(fitting, {2, 999999.0}), 150);
}

TEST(VelocityChoiceTest, GapAsLargeAsTheLimitIsTooLarge) {
  const std::vector<SizedVelocity> sizes = {{25, 0.3}};
  EXPECT_FALSE(ChooseByVelocity(sizes, {1, 0.5}).has_value());
  EXPECT_TRUE(ChooseByVelocity(sizes, {1, 0.5001}).has_value());
}

}  // namespace
