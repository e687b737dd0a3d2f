// Defaults by work and source, the two sums, and where a negative value puts the focus.
#include "storage/air_defence_water.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

using Field = AirDefenceField;

AirDefenceState With(AirDefenceWork work, WaterSource source = WaterSource::ReliableInside) {
  AirDefenceState state;
  ChooseWaterSource(state, source);
  ChooseWork(state, work);
  return state;
}

AirDefenceState Hospital() {
  AirDefenceState state = With(AirDefenceWork::Hospital);
  state.wounded = L"20";
  state.staff = L"30";
  return state;
}

TEST(AirDefenceWater, HundredPeopleWithTheDefaults) {
  AirDefenceState state;
  state.people = L"100";
  const AirDefenceResult result = ComputeAirDefenceWater(state);
  EXPECT_EQ(result.drinkingTotal, L"1.800");
  EXPECT_EQ(result.domesticTotal, L"0.000");
  EXPECT_FALSE(result.focus);
}

TEST(AirDefenceWater, HundredPeopleOfASpecialUnit) {
  AirDefenceState state = With(AirDefenceWork::SpecialUnitShelter);
  state.people = L"100";
  EXPECT_EQ(ComputeAirDefenceWater(state).domesticTotal, L"0.300");
}

TEST(AirDefenceWater, HospitalWithWoundedAndStaff) {
  const AirDefenceResult result = ComputeAirDefenceWater(Hospital());
  EXPECT_EQ(result.drinkingTotal, L"0.840");
  EXPECT_EQ(result.domesticTotal, L"1.400");
}

TEST(AirDefenceWater, WithoutAReliableSourceTheDomesticTimeIsInDays) {
  AirDefenceState state = With(AirDefenceWork::PersonnelShelter, WaterSource::NoReliableInside);
  state.people = L"100";
  EXPECT_EQ(state.domesticTime, L"14");
  EXPECT_EQ(ComputeAirDefenceWater(state).drinkingTotal, L"9.000");
  EXPECT_EQ(ComputeAirDefenceWater(state).domesticTotal, L"5.600");
  ToggleProtectedOutside(state);
  EXPECT_EQ(state.domesticTime, L"7");
  EXPECT_EQ(ComputeAirDefenceWater(state).drinkingTotal, L"9.000");
  EXPECT_EQ(ComputeAirDefenceWater(state).domesticTotal, L"2.800");
}

TEST(AirDefenceWater, OpensWithoutDomesticHours) {
  const AirDefenceState state;
  EXPECT_EQ(state.drinking, L"6");
  EXPECT_EQ(state.domestic, L"4");
  EXPECT_EQ(state.drinkingDays, L"3");
  EXPECT_EQ(state.domesticTime, L"0");
  EXPECT_TRUE(state.domesticTimeReadOnly);
  EXPECT_FALSE(state.drinkingDaysReadOnly);
  EXPECT_FALSE(state.outsideEnabled);
  EXPECT_EQ(DomesticTimeLabel(state.source), L"生活用水贮水时间(h):");
}

TEST(AirDefenceWater, ChangeOfWorkSetsItsDefaults) {
  AirDefenceState state;
  ChooseWork(state, AirDefenceWork::SpecialUnitShelter);
  EXPECT_EQ(state.drinking, L"6");
  EXPECT_EQ(state.domestic, L"9");
  EXPECT_EQ(state.domesticTime, L"8");
  EXPECT_FALSE(state.domesticTimeReadOnly);
  ChooseWork(state, AirDefenceWork::FirstAidStation);
  EXPECT_EQ(state.woundedDrinking, L"5");
  EXPECT_EQ(state.staffDrinking, L"6");
  EXPECT_EQ(state.woundedDomestic, L"50");
  EXPECT_EQ(state.staffDomestic, L"35");
  EXPECT_EQ(state.domesticTime, L"12");
  ChooseWork(state, AirDefenceWork::Hospital);
  EXPECT_EQ(state.woundedDomestic, L"80");
  EXPECT_EQ(state.staffDomestic, L"40");
  EXPECT_EQ(state.domesticTime, L"12");
  EXPECT_FALSE(state.domesticTimeReadOnly);
  EXPECT_EQ(state.domestic, L"9") << "the single column keeps its values";
}

TEST(AirDefenceWater, ChangeToAWorkWithoutDomesticStorageEmptiesTheTime) {
  for (const AirDefenceWork work : {AirDefenceWork::PersonnelShelter, AirDefenceWork::SupportingWork}) {
    AirDefenceState state = With(AirDefenceWork::Hospital);
    ChooseWork(state, work);
    EXPECT_EQ(state.domesticTime, L"");
    EXPECT_TRUE(state.domesticTimeReadOnly);
    EXPECT_EQ(state.drinking, L"6");
    EXPECT_EQ(state.domestic, L"4");
  }
}

TEST(AirDefenceWater, ChangeOfWorkWithoutAReliableSourceLeavesTheTimesAlone) {
  AirDefenceState state;
  ChooseWaterSource(state, WaterSource::NoReliableInside);
  state.domesticTime = L"11";
  for (const AirDefenceWork work : {AirDefenceWork::SpecialUnitShelter, AirDefenceWork::FirstAidStation,
                                    AirDefenceWork::SupportingWork}) {
    ChooseWork(state, work);
    EXPECT_EQ(state.drinkingDays, L"15");
    EXPECT_EQ(state.domesticTime, L"11");
    EXPECT_FALSE(state.domesticTimeReadOnly);
  }
  EXPECT_EQ(state.domestic, L"4");
}

TEST(AirDefenceWater, NoReliableSourceSetsTheLongTimes) {
  AirDefenceState state;
  ChooseWaterSource(state, WaterSource::NoReliableInside);
  EXPECT_TRUE(state.outsideEnabled);
  EXPECT_FALSE(state.protectedOutside);
  EXPECT_EQ(state.drinkingDays, L"15");
  EXPECT_TRUE(state.drinkingDaysReadOnly);
  EXPECT_EQ(state.domesticTime, L"14");
  EXPECT_FALSE(state.domesticTimeReadOnly);
  EXPECT_EQ(DomesticTimeLabel(state.source), L"生活用水贮水时间(d):");
}

TEST(AirDefenceWater, ReliableSourceSetsTheTimesOfTheWork) {
  struct Row {
    AirDefenceWork work;
    CString domesticTime;
    bool readOnly;
  };
  const Row rows[] = {{AirDefenceWork::PersonnelShelter, L"0", true},
                      {AirDefenceWork::SpecialUnitShelter, L"8", false},
                      {AirDefenceWork::SupportingWork, L"0", true},
                      {AirDefenceWork::FirstAidStation, L"12", false},
                      {AirDefenceWork::Hospital, L"12", false}};
  for (const Row& row : rows) {
    AirDefenceState state = With(row.work, WaterSource::NoReliableInside);
    ToggleProtectedOutside(state);
    ChooseWaterSource(state, WaterSource::ReliableInside);
    EXPECT_FALSE(state.protectedOutside);
    EXPECT_FALSE(state.outsideEnabled);
    EXPECT_EQ(state.drinkingDays, L"3");
    EXPECT_FALSE(state.drinkingDaysReadOnly);
    EXPECT_EQ(state.domesticTime, row.domesticTime);
    EXPECT_EQ(state.domesticTimeReadOnly, row.readOnly);
  }
}

TEST(AirDefenceWater, ChoosingTheSourceInForceChangesNothing) {
  AirDefenceState state;
  state.drinkingDays = L"5";
  ChooseWaterSource(state, WaterSource::ReliableInside);
  EXPECT_EQ(state.drinkingDays, L"5");
  ChooseWaterSource(state, WaterSource::NoReliableInside);
  ToggleProtectedOutside(state);
  ChooseWaterSource(state, WaterSource::NoReliableInside);
  EXPECT_TRUE(state.protectedOutside);
  EXPECT_EQ(state.domesticTime, L"7");
}

TEST(AirDefenceWater, OutsideSourceTogglesSevenAndFourteenDays) {
  AirDefenceState state;
  ChooseWaterSource(state, WaterSource::NoReliableInside);
  ToggleProtectedOutside(state);
  EXPECT_TRUE(state.protectedOutside);
  EXPECT_EQ(state.domesticTime, L"7");
  EXPECT_EQ(state.drinkingDays, L"15");
  ToggleProtectedOutside(state);
  EXPECT_FALSE(state.protectedOutside);
  EXPECT_EQ(state.domesticTime, L"14");
  EXPECT_EQ(state.drinkingDays, L"15");
}

struct NegativeRow {
  CString AirDefenceState::*member;
  Field focus;
};

void ExpectFocus(AirDefenceState state, const NegativeRow& row) {
  state.*row.member = L"-1";
  const AirDefenceResult result = ComputeAirDefenceWater(state);
  EXPECT_EQ(result.focus, row.focus) << static_cast<int>(row.focus);
  EXPECT_FALSE(result.drinkingTotal);
  EXPECT_FALSE(result.domesticTotal);
}

TEST(AirDefenceWater, NegativeValueOfOneColumnTakesTheFocus) {
  for (const NegativeRow& row : {NegativeRow{&AirDefenceState::drinkingDays, Field::DrinkingDays},
                                 NegativeRow{&AirDefenceState::domesticTime, Field::DomesticTime},
                                 NegativeRow{&AirDefenceState::people, Field::People},
                                 NegativeRow{&AirDefenceState::drinking, Field::Drinking},
                                 NegativeRow{&AirDefenceState::domestic, Field::Domestic}}) {
    ExpectFocus({}, row);
  }
}

TEST(AirDefenceWater, NegativeValueOfTwoColumnsTakesTheFocus) {
  for (const NegativeRow& row : {NegativeRow{&AirDefenceState::wounded, Field::Wounded},
                                 NegativeRow{&AirDefenceState::staff, Field::Staff},
                                 NegativeRow{&AirDefenceState::woundedDrinking, Field::WoundedDrinking},
                                 NegativeRow{&AirDefenceState::staffDrinking, Field::StaffDrinking},
                                 NegativeRow{&AirDefenceState::woundedDomestic, Field::WoundedDomestic}}) {
    ExpectFocus(Hospital(), row);
  }
}

TEST(AirDefenceWater, NegativeDomesticUseOfTheStaffFocusesThatOfTheWounded) {
  ExpectFocus(Hospital(), {&AirDefenceState::staffDomestic, Field::WoundedDomestic});
}

TEST(AirDefenceWater, FirstNegativeValueWins) {
  AirDefenceState state = Hospital();
  state.drinkingDays = state.domesticTime = state.wounded = state.staff = L"-1";
  EXPECT_EQ(ComputeAirDefenceWater(state).focus, Field::DrinkingDays);
  state.drinkingDays = L"3";
  EXPECT_EQ(ComputeAirDefenceWater(state).focus, Field::DomesticTime);
  state.domesticTime = L"12";
  EXPECT_EQ(ComputeAirDefenceWater(state).focus, Field::Wounded);
}

TEST(AirDefenceWater, NegativeValueOfTheOtherColumnDoesNotMatter) {
  AirDefenceState state = Hospital();
  state.people = L"-1";
  EXPECT_FALSE(ComputeAirDefenceWater(state).focus);
}

TEST(AirDefenceWater, EmptyFieldsCountAsZeroAndPeopleAreWhole) {
  AirDefenceState state;
  state.people = L"10.9";
  state.domestic = L"";
  const AirDefenceResult result = ComputeAirDefenceWater(state);
  EXPECT_EQ(result.drinkingTotal, L"0.180");
  EXPECT_EQ(result.domesticTotal, L"0.000");
}

}  // namespace
}  // namespace zwt::test
