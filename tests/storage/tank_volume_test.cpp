// Tank volumes and their notes.
#include "storage/tank_volume.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

TankInput FireTank(const CString& flow, const CString& minutes, std::int32_t buildingClass) {
  TankInput input;
  input.use = TankUse::Fire;
  input.fireFlow = flow;
  input.fireMinutes = minutes;
  input.buildingClass = buildingClass;
  return input;
}

TEST(TankVolume, FireVolumeEqualToTheMinimumIsTheNormalCase) {
  const TankResult result = ComputeTank(FireTank(L"30", L"10", 0));
  EXPECT_EQ(result.fireVolume, L"18.00");
  EXPECT_EQ(result.note, L"注:算得结果大于最小值18m3(正常情况)");
  EXPECT_EQ(result.secondNote, L"另注:(无)");
  EXPECT_FALSE(result.domesticVolume);
  EXPECT_FALSE(result.totalVolume);
}

TEST(TankVolume, LargeFlowAllowsEighteenWhateverTheClass) {
  const TankResult result = ComputeTank(FireTank(L"40", L"10", 1));
  EXPECT_EQ(result.fireVolume, L"24.00");
  EXPECT_EQ(result.note, L"注:算得结果大于最小值12m3(正常情况)");
  EXPECT_EQ(result.secondNote, L"另注:消防用水量超过25L/s且算得的消防容积大于18m3时，也可取18m3");
}

TEST(TankVolume, SmallFlowAllowsTwelve) {
  const TankResult result = ComputeTank(FireTank(L"25", L"10", 2));
  EXPECT_EQ(result.fireVolume, L"15.00");
  EXPECT_EQ(result.note, L"注:算得结果大于最小值6m3(正常情况)");
  EXPECT_EQ(result.secondNote, L"另注:消防用水量不超过25L/s且算得的消防容积大于12m3时，也可取12m3");
}

TEST(TankVolume, NoAllowanceAtExactlyTwelve) {
  EXPECT_EQ(ComputeTank(FireTank(L"20", L"10", 2)).secondNote, L"另注:(无)");
}

TEST(TankVolume, SmallestClassAtItsMinimum) {
  const TankResult result = ComputeTank(FireTank(L"10", L"10", 2));
  EXPECT_EQ(result.fireVolume, L"6.00");
  EXPECT_EQ(result.note, L"注:算得结果大于最小值6m3(正常情况)");
}

TEST(TankVolume, VolumeBelowTheMinimumIsRaisedAndNoted) {
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 0)).note, L"注:算得结果3.0小于18取18");
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 0)).fireVolume, L"18.00");
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 1)).note, L"注:算得结果3.0小于12取12");
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 1)).fireVolume, L"12.00");
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 2)).note, L"注:算得结果3.0小于6取6");
  EXPECT_EQ(ComputeTank(FireTank(L"5", L"10", 2)).fireVolume, L"6.00");
}

TEST(TankVolume, AllowanceLooksAtTheVolumeBeforeTheMinimum) {
  const TankResult result = ComputeTank(FireTank(L"25", L"9", 0));  // 13.5, raised to 18
  EXPECT_EQ(result.fireVolume, L"18.00");
  EXPECT_EQ(result.secondNote, L"另注:消防用水量不超过25L/s且算得的消防容积大于12m3时，也可取12m3");
}

TEST(TankVolume, EmptyFireFieldsGiveTheMinimumOfTheClass) {
  const TankResult result = ComputeTank(FireTank(L"", L"", 0));
  EXPECT_EQ(result.fireVolume, L"18.00");
  EXPECT_EQ(result.note, L"注:算得结果0.0小于18取18");
}

TEST(TankVolume, DomesticTankAloneMultiplies) {
  TankInput input;
  input.a = L"4";
  input.b = L"2.5";
  const TankResult result = ComputeTank(input);
  EXPECT_EQ(result.domesticVolume, L"10.00");
  EXPECT_EQ(result.note, L"注:(无)");
  EXPECT_EQ(result.secondNote, L"另注:(无)");
  EXPECT_FALSE(result.fireVolume);
  EXPECT_FALSE(result.totalVolume);
}

TEST(TankVolume, PumpAndTankTogether) {
  TankInput input;
  input.mode = TankMode::WithPump;
  input.a = L"10";
  input.b = L"4";
  input.duration = L"0.5";
  input.shortestRun = L"0.25";
  EXPECT_EQ(ComputeTank(input).domesticVolume, L"14.40");
}

TEST(TankVolume, SharedTankAddsTheRaisedFireVolume) {
  TankInput input = FireTank(L"5", L"10", 0);
  input.use = TankUse::Shared;
  input.a = L"4";
  input.b = L"2.5";
  const TankResult result = ComputeTank(input);
  EXPECT_EQ(result.domesticVolume, L"10.00");
  EXPECT_EQ(result.fireVolume, L"18.00");
  EXPECT_EQ(result.totalVolume, L"28.00");
}

TEST(TankVolume, NotesAndMinimaByClass) {
  EXPECT_EQ(TankClassNote(0), L"注:选以上建筑,消防水箱容积不小于18m3");
  EXPECT_EQ(TankClassNote(1), L"注:选以上建筑,消防水箱容积不小于12m3");
  EXPECT_EQ(TankClassNote(2), L"注:选以上建筑,消防水箱容积不小于6m3");
  EXPECT_EQ(TankClassNote(3), L"");
  EXPECT_EQ(MinimumFireVolume(0), 18.0);
  EXPECT_EQ(MinimumFireVolume(1), 12.0);
  EXPECT_EQ(MinimumFireVolume(2), 6.0);
  EXPECT_EQ(MinimumFireVolume(-1), 0.0);
}

TEST(TankVolume, ClassOutsideItsListHasNoMinimum) {
  const TankResult result = ComputeTank(FireTank(L"5", L"10", -1));
  EXPECT_EQ(result.fireVolume, L"3.00");
  EXPECT_EQ(result.note, L"注:(无)");
}

TEST(TankVolume, FireVolumeNeverFallsBelowItsClassAndGrowsWithTheFlow) {
  for (const std::int32_t buildingClass : {0, 1, 2}) {
    double before = 0;
    for (int flow = 0; flow <= 60; ++flow) {
      const double volume =
          std::stod(*ComputeTank(FireTank(std::to_wstring(flow), L"10", buildingClass)).fireVolume);
      EXPECT_GE(volume, MinimumFireVolume(buildingClass));
      EXPECT_GE(volume, before);
      before = volume;
    }
  }
}

}  // namespace
}  // namespace zwt::test
