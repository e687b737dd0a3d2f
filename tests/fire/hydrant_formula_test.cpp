// Nozzle, hose and valve of one hydrant.
#include "fire/hydrant_formula.h"

#include <gtest/gtest.h>

#include "host/text/number_text.h"

namespace zwt {
namespace {

const ZwtHydrantFormula kFormula;

TEST(HydrantFormula, DefaultsOfThePanel) {
  const double head = kFormula.NozzleHead(12, 19);
  const double flow = kFormula.JetFlow(12, 19, 5);
  EXPECT_EQ(FormatFixed(head, 3), L"16.836");
  EXPECT_EQ(FormatFixed(flow, 3), L"5.153");
  EXPECT_EQ(FormatFixed(kFormula.HydrantHead(head, 50, 25, flow, 1), 2), L"23.33");
}

TEST(HydrantFormula, TheSmallestFlowWinsOnlyWhenItIsGreater) {
  const double flow = kFormula.JetFlow(12, 19, 0);
  EXPECT_EQ(kFormula.JetFlow(12, 19, flow), flow);
  EXPECT_EQ(kFormula.JetFlow(12, 19, 6), 6);
}

TEST(HydrantFormula, CoefficientsOfTheFourNozzles) {
  EXPECT_EQ(kFormula.NozzleCoefficient(13), 0.346);
  EXPECT_EQ(kFormula.NozzleCoefficient(16), 0.793);
  EXPECT_EQ(kFormula.NozzleCoefficient(19), 1.577);
  EXPECT_EQ(kFormula.NozzleCoefficient(22), 2.836);
}

TEST(HydrantFormula, DiametersAreCutToWholeNumbers) {
  EXPECT_EQ(kFormula.NozzleCoefficient(19.9), 1.577);
  EXPECT_EQ(kFormula.NozzleCoefficient(18.9), 0.0);
  EXPECT_EQ(kFormula.HoseResistance(1, 50.9), 0.00677);
}

TEST(HydrantFormula, OtherDiametersHaveNoCoefficient) {
  EXPECT_EQ(kFormula.NozzleCoefficient(25), 0.0);
  EXPECT_EQ(kFormula.NozzleCoefficient(-1e300), 0.0);
  EXPECT_EQ(kFormula.HoseResistance(1, 40), 0.0);
  EXPECT_EQ(kFormula.HoseResistance(0, 0), 0.0);
}

TEST(HydrantFormula, ResistancesOfLinedAndHempHoses) {
  EXPECT_EQ(kFormula.HoseResistance(1, 50), 0.00677);
  EXPECT_EQ(kFormula.HoseResistance(1, 65), 0.00172);
  EXPECT_EQ(kFormula.HoseResistance(1, 80), 0.00075);
  EXPECT_EQ(kFormula.HoseResistance(0, 50), 0.01501);
  EXPECT_EQ(kFormula.HoseResistance(0, 65), 0.0043);
  EXPECT_EQ(kFormula.HoseResistance(0, 80), 0.0015);
}

TEST(HydrantFormula, OnlyHempIsHemp) {
  EXPECT_EQ(kFormula.MaterialFlag(L"麻织"), 0);
  EXPECT_EQ(kFormula.MaterialFlag(L"衬胶"), 1);
  EXPECT_EQ(kFormula.MaterialFlag(L""), 1);
  EXPECT_EQ(kFormula.MaterialFlag(L"麻织 "), 1);
}

TEST(HydrantFormula, HeadRisesWithTheColumnAndFallsWithTheNozzle) {
  for (const double nozzle : {13.0, 16.0, 19.0, 22.0}) {
    for (double column = 6; column < 16; column += 2) {
      EXPECT_LT(kFormula.NozzleHead(column, nozzle), kFormula.NozzleHead(column + 2, nozzle));
    }
  }
  EXPECT_GT(kFormula.NozzleHead(12, 13), kFormula.NozzleHead(12, 22));
}

TEST(HydrantFormula, WholePowersSquareRepeatedly) {
  EXPECT_EQ(WholePower(10, 9), 1e9);
  EXPECT_EQ(WholePower(10, -9), 1 / 1e9);
  EXPECT_EQ(WholePower(0.12, 4), (0.12 * 0.12) * (0.12 * 0.12));
  EXPECT_EQ(WholePower(1.9, 3), 1.9 * (1.9 * 1.9));
  EXPECT_EQ(WholePower(7.5, 0), 1);
}

}  // namespace
}  // namespace zwt
