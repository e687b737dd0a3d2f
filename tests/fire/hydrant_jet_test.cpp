// The jet table against a second copy of it, both directions of the calculation, and what stops it.
#include "fire/hydrant_jet.h"

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "support/table_file.h"

namespace zwt::test {
namespace {

HydrantJetInput Known(JetKnown known, const CString& input, std::int32_t nozzleIndex = 2) {
  HydrantJetInput jet;
  jet.known = known;
  jet.inputText = input;
  jet.nozzleIndex = nozzleIndex;
  jet.hoseLengthText = L"25";
  return jet;
}

TEST(JetTable, EveryCellAsInTheSecondCopy) {
  const auto rows = ReadTable("fire/jet_points.txt");
  ASSERT_EQ(rows.size(), kJetPoints);
  for (std::size_t point = 0; point < kJetPoints; ++point) {
    ASSERT_EQ(rows[point].size(), 6U);
    EXPECT_EQ(JetColumns()[point], _wtof(rows[point][0])) << "point " << point;
    for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
      const auto cell = static_cast<std::size_t>(nozzle) + 1;
      EXPECT_EQ(FindJetNozzle(nozzle)->flows[point], _wtof(rows[point][cell]))
          << "point " << point << " nozzle " << nozzle;
    }
  }
}

TEST(JetTable, ColumnsAndFlowsRiseStrictly) {
  for (std::size_t point = 1; point < kJetPoints; ++point) {
    EXPECT_LT(JetColumns()[point - 1], JetColumns()[point]);
    for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
      EXPECT_LT(FindJetNozzle(nozzle)->flows[point - 1], FindJetNozzle(nozzle)->flows[point]);
    }
  }
}

TEST(JetTable, CoefficientsAndDiametersByNozzle) {
  const std::pair<int, double> expected[] = {{13, 0.346}, {16, 0.793}, {19, 1.577}, {22, 2.834}, {25, 4.727}};
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    EXPECT_EQ(FindJetNozzle(nozzle)->diameter, expected[nozzle].first);
    EXPECT_EQ(FindJetNozzle(nozzle)->coefficient, expected[nozzle].second);
  }
  EXPECT_EQ(FindJetNozzle(-1), nullptr);
  EXPECT_EQ(FindJetNozzle(5), nullptr);
}

TEST(JetTable, HoseResistanceByMaterialAndDiameter) {
  EXPECT_EQ(HoseResistance(0, 0), 0.00677);
  EXPECT_EQ(HoseResistance(0, 1), 0.00172);
  EXPECT_EQ(HoseResistance(1, 0), 0.01501);
  EXPECT_EQ(HoseResistance(1, 1), 0.0043);
  EXPECT_FALSE(HoseResistance(-1, 0));
  EXPECT_FALSE(HoseResistance(0, 2));
}

TEST(HydrantJet, WaterColumnOf12Metres) {
  const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::WaterColumn, L"12"));
  EXPECT_EQ(result.resultText, L"5.20");
  EXPECT_EQ(result.pressureText, L"20.31");
  EXPECT_EQ(result.radiusText, L"28.52");
  EXPECT_EQ(result.message, L"");
  EXPECT_FALSE(result.focus);
}

TEST(HydrantJet, RadiusOfAKnownFlowUsesTheUnroundedColumn) {
  const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::Flow, L"5"));
  EXPECT_EQ(result.resultText, L"11.3");
  EXPECT_EQ(result.pressureText, L"18.93");
  EXPECT_EQ(result.radiusText, L"28.05");
}

TEST(HydrantJet, PressureOfCanvasHoseOf50Millimetres) {
  HydrantJetInput jet = Known(JetKnown::Flow, L"5");
  jet.hoseMaterialIndex = 1;
  jet.hoseDiameterIndex = 0;
  // 0.01501 * 25 * 25 + 25 / 1.577 + 2
  EXPECT_EQ(ComputeHydrantJet(jet).pressureText, L"27.23");
}

TEST(HydrantJet, LongestColumnGivesTheLastFlowExactly) {
  const CString flows[] = {L"5.80", L"7.50", L"9.60", L"12.20", L"15.20"};
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::WaterColumn, L"20.0", nozzle));
    EXPECT_EQ(result.resultText, flows[nozzle]) << nozzle;
    EXPECT_EQ(JetFlow(*FindJetNozzle(nozzle), 20.0), FindJetNozzle(nozzle)->flows[19]);
  }
}

TEST(HydrantJet, FlowAtTheTopOfTheRangeIsExtendedFromPoint15) {
  const std::pair<CString, CString> rows[] = {
      {L"5.8", L"20.0"}, {L"7.5", L"20.2"}, {L"9.6", L"20.5"}, {L"12.2", L"20.1"}, {L"15.2", L"19.5"}};
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    EXPECT_EQ(ComputeHydrantJet(Known(JetKnown::Flow, rows[nozzle].first, nozzle)).resultText,
              rows[nozzle].second)
        << nozzle;
  }
}

TEST(HydrantJet, FlowAtTheBottomOfTheRangeGivesSixMetres) {
  const CString flows[] = {L"1.7", L"2.5", L"3.5", L"4.6", L"5.9"};
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    EXPECT_EQ(ComputeHydrantJet(Known(JetKnown::Flow, flows[nozzle], nozzle)).resultText, L"6.0") << nozzle;
  }
}

TEST(HydrantJet, BothDirectionsAgreeBelowPoint15) {
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    for (double column = 6.0; column < 17.5; column += 0.07) {
      const JetNozzle& jet = *FindJetNozzle(nozzle);
      EXPECT_NEAR(JetColumn(jet, JetFlow(jet, column)), column, 1e-12) << nozzle;
    }
  }
}

TEST(HydrantJet, FlowOutsideTheRangeGivesTheNozzlesMessageAndTheFocus) {
  struct Row {
    CString below;
    CString above;
    CString message;
  };
  const Row rows[] = {{L"1.69", L"5.81", L"流量必须在1.7至5.8之间"},
                      {L"2.49", L"7.51", L"流量必须在2.5至7.5之间"},
                      {L"3.49", L"9.61", L"流量必须在3.5至9.6之间"},
                      {L"4.59", L"12.21", L"流量必须在4.6至12.2之间"},
                      {L"5.89", L"15.21", L"流量必须在5.9至15.2之间"}};
  for (std::int32_t nozzle = 0; nozzle < 5; ++nozzle) {
    for (const CString& flow : {rows[nozzle].below, rows[nozzle].above}) {
      const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::Flow, flow, nozzle));
      EXPECT_EQ(result.message, rows[nozzle].message);
      EXPECT_EQ(result.focus, JetField::Input);
      EXPECT_EQ(result.resultText, L"");
      EXPECT_EQ(result.pressureText, L"");
      EXPECT_FALSE(result.radiusText);
    }
  }
}

TEST(HydrantJet, ColumnOutsideItsBoundsGivesAMessageAndLeavesTheFocus) {
  for (const CString column : {L"5.99", L"20.01", L"", L"abc"}) {
    const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::WaterColumn, column));
    EXPECT_EQ(result.message, L"充实水柱长度应在6.0米至20.0米之间");
    EXPECT_FALSE(result.focus);
    EXPECT_EQ(result.resultText, L"");
    EXPECT_EQ(result.pressureText, L"");
    EXPECT_FALSE(result.radiusText);
  }
}

TEST(HydrantJet, HoseLengthNegativeOrEmptyTakesTheFocusWithoutAMessage) {
  for (const CString length : {L"-1", L""}) {
    HydrantJetInput jet = Known(JetKnown::Flow, L"999");
    jet.hoseLengthText = length;
    const HydrantJetResult result = ComputeHydrantJet(jet);
    EXPECT_EQ(result.focus, JetField::HoseLength);
    EXPECT_EQ(result.message, L"");
    EXPECT_FALSE(result.radiusText);
  }
}

TEST(HydrantJet, HoseLengthZeroOrWithoutANumberTakesNoLoss) {
  for (const CString length : {L"0", L"abc"}) {
    HydrantJetInput jet = Known(JetKnown::WaterColumn, L"12");
    jet.hoseLengthText = length;
    const HydrantJetResult result = ComputeHydrantJet(jet);
    EXPECT_EQ(result.pressureText, L"19.15");  // 5.2 * 5.2 / 1.577 + 2
    EXPECT_EQ(result.radiusText, L"8.52");     // 12 * 0.71
  }
}

TEST(HydrantJet, ChoiceOutsideItsListGivesEmptyResults) {
  const HydrantJetResult result = ComputeHydrantJet(Known(JetKnown::Flow, L"5", -1));
  EXPECT_EQ(result.resultText, L"");
  EXPECT_EQ(result.message, L"");
  EXPECT_FALSE(result.radiusText);
}

}  // namespace
}  // namespace zwt::test
