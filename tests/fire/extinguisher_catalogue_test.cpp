// The catalogue against a second copy of it, cell by cell.
#include "fire/extinguisher_catalogue.h"

#include <gtest/gtest.h>

#include "host/text/number_text.h"
#include "support/table_file.h"

namespace zwt::test {
namespace {

void ExpectKind(std::span<const ExtinguisherModel> models, const CString& kind) {
  std::size_t index = 0;
  for (const std::vector<CString>& row : ReadTable("fire/extinguisher_models.txt")) {
    ASSERT_EQ(row.size(), 7U);
    if (row[0] != kind) continue;
    ASSERT_LT(index, models.size());
    const ExtinguisherModel& model = models[index++];
    EXPECT_EQ(ZwtNum2Str(static_cast<std::int32_t>(index)), row[1]);
    EXPECT_EQ(model.type, row[2]) << Utf8FromWide(row[4]);
    EXPECT_EQ(model.spec, row[3]) << Utf8FromWide(row[4]);
    EXPECT_EQ(model.model, row[4]);
    EXPECT_EQ(model.ratingA, row[5]) << Utf8FromWide(row[4]);
    EXPECT_EQ(model.ratingB, row[6]) << Utf8FromWide(row[4]);
  }
  EXPECT_EQ(index, models.size());
}

TEST(ExtinguisherCatalogue, HandHeldModelsAsInTheSecondCopy) {
  EXPECT_EQ(HandHeldExtinguishers().size(), 35U);
  ExpectKind(HandHeldExtinguishers(), L"hand-held");
}

TEST(ExtinguisherCatalogue, TrolleyModelsAsInTheSecondCopy) {
  EXPECT_EQ(TrolleyExtinguishers().size(), 24U);
  ExpectKind(TrolleyExtinguishers(), L"trolley");
}

TEST(ExtinguisherCatalogue, RatingsEndInTheLetterOfTheirClass) {
  for (const auto models : {HandHeldExtinguishers(), TrolleyExtinguishers()}) {
    for (const ExtinguisherModel& model : models) {
      EXPECT_TRUE(model.ratingA.empty() || model.ratingA.back() == L'A') << Utf8FromWide(model.model);
      EXPECT_TRUE(model.ratingB.empty() || model.ratingB.back() == L'B') << Utf8FromWide(model.model);
      EXPECT_FALSE(model.ratingA.empty() && model.ratingB.empty()) << Utf8FromWide(model.model);
    }
  }
}

}  // namespace
}  // namespace zwt::test
