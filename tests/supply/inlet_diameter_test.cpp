#include "supply/inlet_diameter.h"

#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "host/text/number_text.h"

namespace {

using zwt::ChooseInletDiameter;
using zwt::InletMaterial;

/// Diameter and velocity as the panels show them; empty where nothing is found.
CString Shown(InletMaterial material, double flow) {
  const auto chosen = ChooseInletDiameter(material, flow);
  if (!chosen) return L"";
  return ZwtNum2Str(chosen->diameter) + L" " + zwt::FormatFixed(chosen->velocity, 2);
}

double ChosenVelocity(InletMaterial material, double flow) {
  return ChooseInletDiameter(material, flow).value_or(zwt::SizedVelocity{}).velocity;
}

TEST(InletDiameterTest, OneTap) {
  EXPECT_EQ(Shown(InletMaterial::Metal, 0.2), L"20 0.62");
  EXPECT_EQ(Shown(InletMaterial::Plastic, 0.2), L"15 0.99");
}

TEST(InletDiameterTest, TwoNamesOfOnePipeGiveTheLargerName) {
  EXPECT_EQ(Shown(InletMaterial::Metal, 3.5), L"70 0.99");
  EXPECT_EQ(Shown(InletMaterial::Plastic, 3.8), L"70 0.99");
}

TEST(InletDiameterTest, MiddleOfThreeSizes) {
  EXPECT_EQ(Shown(InletMaterial::Metal, 88), L"300 1.20");
}

TEST(InletDiameterTest, MetalUsesTheFullCircleConstantAndPlasticTheRoundedOne) {
  EXPECT_EQ(ChosenVelocity(InletMaterial::Metal, 0.2),
            4 * 0.2 * 0.001 / (3.141592653589793 * (0.02025 * 0.02025)));
  EXPECT_EQ(ChosenVelocity(InletMaterial::Plastic, 0.2), 1.273 * 0.2 / (1000 * (0.016 * 0.016)));
}

TEST(InletDiameterTest, NoFlowTakesTheFirstSize) {
  EXPECT_EQ(Shown(InletMaterial::Metal, 0), L"8 0.00");
  EXPECT_EQ(Shown(InletMaterial::Plastic, 0), L"8 0.00");
}

TEST(InletDiameterTest, FlowBetweenBandsTakesTheFastestBelowTheFallbackBound) {
  // DN 20 would run at 1.08 m/s and DN 25 at 0.66: neither lies in its band.
  EXPECT_EQ(Shown(InletMaterial::Metal, 0.35), L"25 0.66");
}

TEST(InletDiameterTest, VeryLargeFlowFindsNothing) {
  EXPECT_EQ(Shown(InletMaterial::Metal, 500), L"");
  EXPECT_EQ(Shown(InletMaterial::Plastic, 500), L"");
}

TEST(InletDiameterTest, FlowThatIsNoNumberFindsNothing) {
  EXPECT_EQ(Shown(InletMaterial::Metal, std::nan("")), L"");
  EXPECT_EQ(Shown(InletMaterial::Plastic, std::nan("")), L"");
}

std::set<std::int32_t> DiametersInReach(InletMaterial material) {
  std::set<std::int32_t> diameters;
  double flow = 0.001;
  for (int i = 0; i < 12'700; ++i) {
    flow *= 1.001;
    if (const auto chosen = ChooseInletDiameter(material, flow)) diameters.insert(chosen->diameter);
  }
  return diameters;
}

TEST(InletDiameterLaw, OnlyPlasticHasDiameters110And400) {
  const std::set<std::int32_t> metal = DiametersInReach(InletMaterial::Metal);
  const std::set<std::int32_t> plastic = DiametersInReach(InletMaterial::Plastic);
  EXPECT_FALSE(metal.contains(110));
  EXPECT_FALSE(metal.contains(400));
  EXPECT_TRUE(plastic.contains(110));
  EXPECT_TRUE(plastic.contains(400));
  EXPECT_FALSE(plastic.contains(325));
}

}  // namespace
