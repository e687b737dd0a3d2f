#include "drainage/grade_table.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "support/data_folder.h"

namespace {

using zwt::DrainMaterial;
using zwt::InterpolateGrade;
using zwt::LoadGradeTable;

struct Lists {
  ZcList<double> grades;
  ZcList<double> flows;
  ZcList<double> velocities;
};

void Append(ZcList<double>& list, const std::vector<double>& values) {
  for (const double value : values) list.Append(value);
}

Lists ListsOf(const std::vector<double>& grades, const std::vector<double>& flows,
              const std::vector<double>& velocities) {
  Lists lists;
  Append(lists.grades, grades);
  Append(lists.flows, flows);
  Append(lists.velocities, velocities);
  return lists;
}

struct Answer {
  double grade = -1;
  double velocity = -1;
};

Answer Interpolated(Lists lists, double flow) {
  Answer answer;
  InterpolateGrade(flow, lists.grades, lists.flows, lists.velocities, answer.grade, answer.velocity);
  return answer;
}

const std::vector<double> kGrades = {0.01, 0.02, 0.04};
const std::vector<double> kFlows = {1, 2, 4};
const std::vector<double> kVelocities = {0.5, 0.7, 1.3};

Answer InExample(double flow) {
  return Interpolated(ListsOf(kGrades, kFlows, kVelocities), flow);
}

TEST(InterpolateGradeTest, BetweenTwoRowsTheLineThroughThem) {
  EXPECT_EQ(InExample(3).grade, (0.04 - 0.02) * (3.0 - 2.0) / (4.0 - 2.0) + 0.02);
  EXPECT_EQ(InExample(3).velocity, (1.3 - 0.7) * (3.0 - 2.0) / (4.0 - 2.0) + 0.7);
}

TEST(InterpolateGradeTest, FlowOfARowGivesThatRow) {
  EXPECT_EQ(InExample(1).grade, 0.01);
  EXPECT_EQ(InExample(2).grade, 0.02);
  EXPECT_EQ(InExample(2).velocity, 0.7);
}

TEST(InterpolateGradeTest, BelowTheTableTheFirstLineGoesOn) {
  EXPECT_EQ(InExample(0.5).grade, (0.01 * 2 - 0.02 * 1 + (0.02 - 0.01) * 0.5) / (2.0 - 1.0));
  EXPECT_EQ(InExample(0.5).velocity, (0.5 * 2 - 0.7 * 1 + (0.7 - 0.5) * 0.5) / (2.0 - 1.0));
}

TEST(InterpolateGradeTest, AtAndAboveTheLastRowTheFirstLineGoesOnAndNotTheLast) {
  EXPECT_EQ(InExample(4).grade, (0.01 * 2 - 0.02 * 1 + (0.02 - 0.01) * 4) / (2.0 - 1.0));
  EXPECT_NEAR(InExample(4).velocity, 1.1, 1e-15);
  EXPECT_NEAR(InExample(10).grade, 0.1, 1e-15);
}

TEST(InterpolateGradeTest, FewerThanTwoRowsLeaveTheAnswersAsTheyAre) {
  EXPECT_EQ(Interpolated(Lists(), 1).grade, -1);
  EXPECT_EQ(Interpolated(ListsOf({0.01}, {1}, {0.5}), 1).velocity, -1);
}

TEST(InterpolateGradeTest, FlowThatIsNoNumberHasNoGrade) {
  EXPECT_TRUE(std::isnan(InExample(std::nan("")).grade));
}

TEST(LoadGradeTableTest, EveryRowGivesOneEntryOfEachList) {
  Lists metal;
  LoadGradeTable(DrainMaterial::Metal, 100, metal.grades, metal.flows, metal.velocities);
  EXPECT_EQ(metal.grades.GetLength(), 22);
  EXPECT_EQ(metal.flows.GetLength(), 22);
  EXPECT_EQ(metal.velocities.GetLength(), 22);
  EXPECT_EQ(metal.grades.GetAt(0), 0.005);
  EXPECT_EQ(metal.flows.GetAt(0), 1.826);
  EXPECT_EQ(metal.velocities.GetAt(0), 0.465);
  Lists plastic;
  LoadGradeTable(DrainMaterial::Plastic, 110, plastic.grades, plastic.flows, plastic.velocities);
  EXPECT_EQ(plastic.grades.GetLength(), 26);
  EXPECT_EQ(plastic.grades.GetAt(25), 0.15);
  EXPECT_EQ(plastic.flows.GetAt(25), 15.878);
  EXPECT_EQ(plastic.velocities.GetAt(25), 3.767);
}

TEST(LoadGradeTableTest, DiameterThatTheTableDoesNotHaveReadsAsZeros) {
  Lists lists;
  LoadGradeTable(DrainMaterial::Metal, 110, lists.grades, lists.flows, lists.velocities);
  EXPECT_EQ(lists.flows.GetLength(), 22);
  EXPECT_EQ(lists.flows.GetAt(3), 0);
  EXPECT_EQ(lists.grades.GetAt(3), 0.008);
}

TEST(LoadGradeTableTest, UnreadableFileAndMissingTableLeaveTheListsEmpty) {
  const zwt::test::DataFolder folder;
  Lists lists;
  LoadGradeTable(DrainMaterial::Metal, 100, lists.grades, lists.flows, lists.velocities);
  EXPECT_EQ(lists.grades.GetLength(), 0);
  folder.Write("ZwtDataTable.xml", "<DataTables/>");
  LoadGradeTable(DrainMaterial::Plastic, 110, lists.grades, lists.flows, lists.velocities);
  EXPECT_EQ(lists.grades.GetLength(), 0);
}

struct Size {
  DrainMaterial material;
  int diameter;
};

class GradeTableLaw : public testing::TestWithParam<Size> {};

TEST_P(GradeTableLaw, InsideTheTableGradeAndVelocityRiseWithTheFlow) {
  Lists lists;
  LoadGradeTable(GetParam().material, GetParam().diameter, lists.grades, lists.flows, lists.velocities);
  const double first = lists.flows.GetAt(0);
  const double last = lists.flows.GetAt(lists.flows.GetLength() - 1);
  Answer before;
  for (int i = 0; i < 500; ++i) {
    const Answer answer = Interpolated(lists, first + (last - first) * i / 500);
    ASSERT_GT(answer.grade, before.grade) << i;
    ASSERT_GT(answer.velocity, before.velocity) << i;
    before = answer;
  }
  EXPECT_LE(before.grade, 0.15);
}

INSTANTIATE_TEST_SUITE_P(Sizes, GradeTableLaw,
                         testing::Values(Size{DrainMaterial::Metal, 50}, Size{DrainMaterial::Metal, 75},
                                         Size{DrainMaterial::Metal, 100}, Size{DrainMaterial::Metal, 125},
                                         Size{DrainMaterial::Metal, 150}, Size{DrainMaterial::Metal, 200},
                                         Size{DrainMaterial::Plastic, 50}, Size{DrainMaterial::Plastic, 75},
                                         Size{DrainMaterial::Plastic, 110}, Size{DrainMaterial::Plastic, 125},
                                         Size{DrainMaterial::Plastic, 160},
                                         Size{DrainMaterial::Plastic, 200}));

}  // namespace
