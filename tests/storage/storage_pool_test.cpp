// Parts and total of the storage pool.
#include "storage/storage_pool.h"

#include <gtest/gtest.h>

namespace zwt::test {
namespace {

StoragePoolInput Defaults() {
  StoragePoolInput input;
  input.maximumDay = 100;
  input.hourlyUse = 2;
  return input;
}

TEST(StoragePool, DefaultsWithDayAndHour) {
  const StoragePoolResult result = ComputeStoragePool(Defaults(), {});
  EXPECT_EQ(result.regulating, L"10.00");
  EXPECT_EQ(result.domesticReserve, L"6.00");
  EXPECT_EQ(result.fireReserve, L"864.00");
  EXPECT_EQ(result.inletFlow, L"42.41");
  EXPECT_EQ(result.inletSupply, L"127.23");
  EXPECT_EQ(result.total, L"752.77");
}

TEST(StoragePool, WithoutSprinklersTheFireReserveIsZeroAndTheTotalToo) {
  StoragePoolInput input = Defaults();
  input.sprinklerFlow = 0;
  const StoragePoolResult result = ComputeStoragePool(input, {});
  EXPECT_EQ(result.fireReserve, L"0.00");
  EXPECT_EQ(result.inletSupply, L"127.23");
  EXPECT_EQ(result.total, L"0.00");
}

TEST(StoragePool, SprinklerFlowIsNotMultipliedByTheDuration) {
  StoragePoolInput input = Defaults();
  input.fireHours = 6;
  EXPECT_DOUBLE_EQ(FireReserve(input), (6.0 * 70.0 + 30.0) * 3.6);
}

TEST(StoragePool, WithoutTheFireReserveThereIsNoInletSupply) {
  StoragePoolParts parts;
  parts.fireReserve = false;
  const StoragePoolResult result = ComputeStoragePool(Defaults(), parts);
  EXPECT_FALSE(result.fireReserve);
  EXPECT_FALSE(result.inletFlow);
  EXPECT_EQ(result.inletSupply, L"0.00");
  EXPECT_EQ(result.total, L"16.00");
}

TEST(StoragePool, UncheckedInletGivesThePlainSum) {
  StoragePoolParts parts;
  parts.inletSupply = false;
  const StoragePoolResult result = ComputeStoragePool(Defaults(), parts);
  EXPECT_EQ(result.inletFlow, L"0.00");
  EXPECT_EQ(result.inletSupply, L"0.00");
  EXPECT_EQ(result.total, L"880.00");
}

TEST(StoragePool, UncheckedPartsCountAsZeroAndKeepTheirResults) {
  StoragePoolParts parts;
  parts.regulating = false;
  parts.domesticReserve = false;
  const StoragePoolResult result = ComputeStoragePool(Defaults(), parts);
  EXPECT_FALSE(result.regulating);
  EXPECT_FALSE(result.domesticReserve);
  EXPECT_EQ(result.total, L"736.77");
}

TEST(StoragePool, PartsAreZeroWithoutAPositiveValue) {
  using Member = double StoragePoolInput::*;
  for (const double bad : {0.0, -1.0}) {
    for (const Member member : {&StoragePoolInput::maximumDay, &StoragePoolInput::regulatingPercent}) {
      StoragePoolInput input = Defaults();
      input.*member = bad;
      EXPECT_EQ(RegulatingPart(input), 0.0);
    }
    for (const Member member : {&StoragePoolInput::hourlyUse, &StoragePoolInput::reserveHours}) {
      StoragePoolInput input = Defaults();
      input.*member = bad;
      EXPECT_EQ(DomesticReserve(input), 0.0);
    }
    for (const Member member : {&StoragePoolInput::indoorHydrantFlow, &StoragePoolInput::outdoorHydrantFlow,
                                &StoragePoolInput::sprinklerFlow, &StoragePoolInput::fireHours}) {
      StoragePoolInput input = Defaults();
      input.*member = bad;
      EXPECT_EQ(FireReserve(input), 0.0);
    }
    for (const Member member : {&StoragePoolInput::inletDiameter, &StoragePoolInput::inletVelocity}) {
      StoragePoolInput input = Defaults();
      input.*member = bad;
      EXPECT_EQ(InletFlow(input, true), 0.0);
    }
  }
}

TEST(StoragePool, PercentageIsNotLimited) {
  StoragePoolInput input = Defaults();
  input.regulatingPercent = 250;
  EXPECT_DOUBLE_EQ(RegulatingPart(input), 250.0);
}

TEST(StoragePool, TotalPlusSupplyIsTheSumOfThePartsWhereItIsNotCut) {
  for (double day = 0; day < 5000; day += 333) {
    StoragePoolInput input = Defaults();
    input.maximumDay = day;
    const double sum = RegulatingPart(input) + DomesticReserve(input) + FireReserve(input);
    const StoragePoolResult result = ComputeStoragePool(input, {});
    EXPECT_NEAR(std::stod(result.total) + std::stod(result.inletSupply), sum, 0.011) << day;
  }
}

}  // namespace
}  // namespace zwt::test
