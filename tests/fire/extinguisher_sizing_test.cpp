// Required rating, the reading of a typed total, the list of models and the placing text.
#include "fire/extinguisher_sizing.h"

#include <gmock/gmock.h>

namespace zwt::test {
namespace {

using testing::ElementsAre;

std::vector<CString> Models(const std::vector<ExtinguisherRow>& rows) {
  std::vector<CString> models;
  for (const ExtinguisherRow& row : rows) models.push_back(row.model);
  return models;
}

std::vector<ExtinguisherRow> OneRow(const CString& rating) {
  return {{L"干粉(磷酸铵盐)", L"5kg", L"MF/ABC5", rating}};
}

TotalText Total(const CString& text, std::int32_t fireClass = kFireClassA) {
  return {text, fireClass, L"3A", 3};
}

TEST(RequiredRating, HundredSquareMetresAboveGroundMediumDanger) {
  const Rating rating = RequiredRating({L"100", 0, 0, 1, 0});
  EXPECT_EQ(rating.totalText, L"1.20A");
  EXPECT_EQ(rating.minimumText, L"2A");
  EXPECT_EQ(rating.minimumNumber, 2);
}

TEST(RequiredRating, HundredSquareMetresBelowGroundWithNothingInstalled) {
  const Rating rating = RequiredRating({L"100", 0, 1, 0, 1});
  EXPECT_EQ(rating.totalText, L"2.60A");
  EXPECT_EQ(rating.minimumText, L"3A");
  EXPECT_EQ(rating.minimumNumber, 3);
}

TEST(RequiredRating, TwentySquareMetresOfClassB) {
  const Rating rating = RequiredRating({L"20", 1, 0, 2, 4});
  EXPECT_EQ(rating.totalText, L"4.00B");
  EXPECT_EQ(rating.minimumText, L"21B");
  EXPECT_EQ(rating.minimumNumber, 21);
}

TEST(RequiredRating, AreaWithoutANumberGivesZero) {
  EXPECT_EQ(RequiredRating({L"", 0, 0, 0, 0}).totalText, L"0.00A");
  EXPECT_EQ(RequiredRating({L"abc", 1, 0, 0, 0}).totalText, L"0.00B");
}

TEST(RequiredRating, ClassIndexTwoCountsAsB) {
  const Rating rating = RequiredRating({L"20", 2, 0, 2, 4});
  EXPECT_EQ(rating.totalText, L"4.00B");
  EXPECT_EQ(rating.minimumText, L"21B");
}

TEST(RequiredRating, FactorsKeepTheOrderOfTheList) {
  const double factors[] = {0.9, 1.0, 0.7, 0.5, 0.3};
  for (std::int32_t facility = 0; facility < 5; ++facility) {
    EXPECT_EQ(FacilityFactor(facility), factors[facility]);
  }
  EXPECT_FALSE(FacilityFactor(5));
  EXPECT_EQ(BuildingFactor(0), 1.0);
  for (const std::int32_t building : {1, 2, 3}) EXPECT_EQ(BuildingFactor(building), 1.3);
}

TEST(RequiredRating, MinimumAndAreaByClassAndDanger) {
  struct Row {
    std::int32_t fireClass;
    std::int32_t danger;
    double area;
    CString text;
    std::int32_t number;
  };
  const Row rows[] = {{0, 0, 50, L"3A", 3},    {0, 1, 75, L"2A", 2},    {0, 2, 100, L"1A", 1},
                      {1, 0, 0.5, L"89B", 89}, {1, 1, 1.0, L"55B", 55}, {1, 2, 1.5, L"21B", 21}};
  for (const Row& row : rows) {
    const MinimumRating* minimum = FindMinimumRating(row.fireClass, row.danger);
    ASSERT_NE(minimum, nullptr);
    EXPECT_EQ(minimum->areaPerUnit, row.area);
    EXPECT_EQ(minimum->text, row.text);
    EXPECT_EQ(minimum->number, row.number);
  }
  EXPECT_EQ(FindMinimumRating(0, -1), nullptr);
}

TEST(RequiredRating, ChoiceOutsideItsListGivesZeroAndNoMinimum) {
  const Rating rating = RequiredRating({L"100", 0, 0, -1, 0});
  EXPECT_EQ(rating.totalText, L"0.00A");
  EXPECT_EQ(rating.minimumText, L"");
  EXPECT_EQ(rating.minimumNumber, 0);
}

TEST(NormalizeTotalText, BareNumberGetsTheLetterOfTheClassHeld) {
  EXPECT_EQ(NormalizeTotalText(Total(L"12"), 0).text, L"12.00A");
  const TotalText total = NormalizeTotalText(Total(L"12", kFireClassB), 1);
  EXPECT_EQ(total.text, L"12.00B");
  EXPECT_EQ(total.minimumText, L"55B");
  EXPECT_EQ(total.minimumNumber, 55);
}

TEST(NormalizeTotalText, SmallLetterBecomesACapitalAndSettlesTheClass) {
  const TotalText a = NormalizeTotalText(Total(L"12a", kFireClassB), 1);
  EXPECT_EQ(a.text, L"12A");
  EXPECT_EQ(a.fireClass, kFireClassA);
  EXPECT_EQ(a.minimumText, L"2A");
  const TotalText b = NormalizeTotalText(Total(L"12b"), 0);
  EXPECT_EQ(b.text, L"12B");
  EXPECT_EQ(b.fireClass, kFireClassB);
  EXPECT_EQ(b.minimumText, L"89B");
  EXPECT_EQ(b.minimumNumber, 89);
}

TEST(NormalizeTotalText, CapitalBehindTheNumberIsLeftAlone) {
  EXPECT_EQ(NormalizeTotalText(Total(L"12.5A", kFireClassB), 2).text, L"12.5A");
  EXPECT_EQ(NormalizeTotalText(Total(L"12.5A", kFireClassB), 2).fireClass, kFireClassA);
  EXPECT_EQ(NormalizeTotalText(Total(L"7B"), 2).text, L"7B");
  EXPECT_EQ(NormalizeTotalText(Total(L"7B"), 2).minimumText, L"21B");
}

TEST(NormalizeTotalText, OnlyLetterInFrontChangesNothing) {
  for (const CString text : {L"A", L"a", L"B12", L"b"}) {
    const TotalText total = NormalizeTotalText(Total(text), 2);
    EXPECT_EQ(total.text, text);
    EXPECT_EQ(total.fireClass, kFireClassA);
    EXPECT_EQ(total.minimumText, L"3A");
    EXPECT_EQ(total.minimumNumber, 3);
  }
}

TEST(NormalizeTotalText, OfSeveralLettersTheFirstIsLookedAt) {
  EXPECT_EQ(NormalizeTotalText(Total(L"12aa"), 0).text, L"12Aa");
  EXPECT_EQ(NormalizeTotalText(Total(L"a12a"), 0).text, L"a12a");
  EXPECT_EQ(NormalizeTotalText(Total(L"a12b"), 0).text, L"a12B");
  EXPECT_EQ(NormalizeTotalText(Total(L"1b2a"), 0).text, L"1b2A");
  EXPECT_EQ(NormalizeTotalText(Total(L"1Aa"), 0).text, L"1AA");
}

TEST(NormalizeTotalText, TextWithoutNumberOrLetterReadsAsZero) {
  EXPECT_EQ(NormalizeTotalText(Total(L""), 0).text, L"0.00A");
  EXPECT_EQ(NormalizeTotalText(Total(L"x"), 0).text, L"0.00A");
}

TEST(RefreshCatalogueList, HandHeldModelsOfClassAFromThree) {
  EXPECT_THAT(Models(RefreshCatalogueList(HandHeldExtinguishers(), kFireClassA, 3)),
              ElementsAre(L"MF/ABC5", L"MF/ABC6", L"MF/ABC8", L"MF/ABC10"));
}

TEST(RefreshCatalogueList, HandHeldModelsOfClassBFrom89) {
  EXPECT_THAT(Models(RefreshCatalogueList(HandHeldExtinguishers(), kFireClassB, 89)),
              ElementsAre(L"MF/ABC5", L"MF/ABC6", L"MF/ABC8", L"MF/ABC10", L"MS/T9", L"MP9、MP/AR9", L"MF5",
                          L"MF6", L"MF8", L"MF10"));
}

TEST(RefreshCatalogueList, TwelveTrolleyModelsOfClassA) {
  const auto rows = RefreshCatalogueList(TrolleyExtinguishers(), kFireClassA, 3);
  EXPECT_EQ(rows.size(), 12U);
  for (const ExtinguisherRow& row : rows) EXPECT_NE(row.rating, L"");
}

TEST(RefreshCatalogueList, FractionOfARatingIsCompared) {
  const ExtinguisherModel model{L"卤代烷(1211)", L"2kg", L"MY2", L"0.5A", L"21B"};
  EXPECT_TRUE(RefreshCatalogueList({&model, 1}, kFireClassA, 1).empty());
  EXPECT_EQ(RefreshCatalogueList({&model, 1}, kFireClassA, 0).size(), 1U);
}

TEST(RefreshCatalogueList, LetterInFrontSkipsTheRow) {
  const ExtinguisherModel model{L"", L"", L"", L"A9", L""};
  EXPECT_TRUE(RefreshCatalogueList({&model, 1}, kFireClassA, 0).empty());
}

TEST(RefreshCatalogueList, EmptyRatingNeverReachesAMinimum) {
  for (const auto models : {HandHeldExtinguishers(), TrolleyExtinguishers()}) {
    for (const std::int32_t fireClass : {kFireClassA, kFireClassB}) {
      for (const ExtinguisherRow& row : RefreshCatalogueList(models, fireClass, 1))
        EXPECT_NE(row.rating, L"");
    }
  }
}

TEST(RefreshCatalogueList, OtherClassShowsNothing) {
  EXPECT_TRUE(RefreshCatalogueList(HandHeldExtinguishers(), 2, 0).empty());
}

TEST(ComposeResult, FewUnitsAreRaisedToTwoWithTheNote) {
  const ExtinguisherPlacing placing = ComposeResult(L"2", OneRow(L"3A"), 0, L"10.00A", kFireClassA);
  EXPECT_EQ(
      placing.text,
      L"  每个配置点的配置量为\t5.00A\r\n  所选的灭火器型号为\t\tMF/ABC5\r\n  每个配置点的灭火器数量为\t2\r\n"
      L"  (根据:一个计算单元内的配置的灭火器数量不得少于 2 具)");
  EXPECT_FALSE(placing.pointsRefused);
  EXPECT_FALSE(placing.firstRowTaken);
}

TEST(ComposeResult, MoreThanFiveUnitsGetTheLimitNote) {
  EXPECT_EQ(ComposeResult(L"2", OneRow(L"3A"), 0, L"36.00A", kFireClassA).text,
            L"  每个配置点的配置量为\t18.00A\r\n  所选的灭火器型号为\t\tMF/ABC5\r\n  "
            L"每个配置点的灭火器数量为\t6\r\n"
            L"  (注:每个设置点的灭火数量不宜多于 5 具)");
}

TEST(ComposeResult, ExactlyTwoUnitsGetNoNote) {
  EXPECT_EQ(ComposeResult(L"1", OneRow(L"3A"), 0, L"6A", kFireClassA).text,
            L"  每个配置点的配置量为\t6.00A\r\n  所选的灭火器型号为\t\tMF/ABC5\r\n  "
            L"每个配置点的灭火器数量为\t2\r\n  ");
}

TEST(ComposeResult, ExactlyFiveUnitsGetNoNote) {
  EXPECT_EQ(ComposeResult(L"1", OneRow(L"3A"), 0, L"15A", kFireClassA).text,
            L"  每个配置点的配置量为\t15.00A\r\n  所选的灭火器型号为\t\tMF/ABC5\r\n  "
            L"每个配置点的灭火器数量为\t5\r\n  ");
}

TEST(ComposeResult, PartOfAUnitCountsAsAWholeOne) {
  EXPECT_EQ(ComposeResult(L"1", OneRow(L"10B"), 0, L"21B", kFireClassB).text,
            L"  每个配置点的配置量为\t21.00B\r\n  所选的灭火器型号为\t\tMF/ABC5\r\n  "
            L"每个配置点的灭火器数量为\t3\r\n  ");
}

TEST(ComposeResult, WithoutASelectionTheFirstRowIsTakenAndNoted) {
  const ExtinguisherPlacing placing = ComposeResult(L"1", OneRow(L"3A"), -1, L"9A", kFireClassA);
  EXPECT_TRUE(placing.firstRowTaken);
  EXPECT_EQ(placing.text,
            L"  每个配置点的配置量为\t9.00A\r\n  所选的灭火器型号为\t\tMF/ABC5(取第一种灭火器)\r\n"
            L"  每个配置点的灭火器数量为\t3\r\n  ");
}

TEST(ComposeResult, PointsBelowOneGiveOnlyTheMessage) {
  for (const CString points : {L"0", L"", L"-3", L"abc", L"0.9"}) {
    const ExtinguisherPlacing placing = ComposeResult(points, OneRow(L"3A"), 0, L"9A", kFireClassA);
    EXPECT_EQ(placing.text, L"请正确输入配置点的个数");
    EXPECT_TRUE(placing.pointsRefused);
  }
}

TEST(ComposeResult, HugeTotalSaturatesTheCount) {
  const ExtinguisherPlacing placing = ComposeResult(L"1", OneRow(L"1A"), 0, L"1e20", kFireClassA);
  EXPECT_NE(placing.text.find(L"\t2147483647\r\n"), CString::npos);
}

TEST(ComposeResult, UnreadableTotalCountsAsZero) {
  const ExtinguisherPlacing placing = ComposeResult(L"1", OneRow(L"3A"), 0, L"A", kFireClassA);
  EXPECT_NE(placing.text.find(L"\t0.00A\r\n"), CString::npos);
  EXPECT_NE(placing.text.find(L"\t2\r\n"), CString::npos);
}

}  // namespace
}  // namespace zwt::test
