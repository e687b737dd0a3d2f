// Findings about drainage stacks: each in a drawing with it and in one without.
#include "host_check/checked_drawing.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DrainageCheck : public CheckedDrawing {
 protected:
  DrainageCheck() {
    for (int floor = 0; floor < 3; ++floor) {
      segments.push_back(Pipe({0, floor * 3000.0, 0}, {0, (floor + 1) * 3000.0, 0},
                              {{L"WtSystem", L"污水"}, {L"ELS_TYPE", floor == 0 ? L"入口立管" : L"立管"}}));
      branches.push_back(Branch(floor * 3000.0 + 1500));
    }
    Set(segments[0], L"TQType", L"伸顶通气");
  }
  std::uint64_t Branch(double height) {
    return Pipe({0, height, 0}, {900, height, 0},
                {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"支管"}, {L"Material", L"PVC-U排水管"}});
  }

  std::vector<std::uint64_t> segments;
  std::vector<std::uint64_t> branches;
};

TEST_F(DrainageCheck, AWholeStackIsQuiet) {
  for (const wchar_t* vent : {L"伸顶通气", L"专用通气", L"自循环通气"}) {
    Set(segments[0], L"TQType", vent);
    EXPECT_THAT(Kinds(), IsEmpty());
  }
}

TEST_F(DrainageCheck, AVentTypeThatIsMissingOrUnknownMakesTheRiserZero) {
  Set(segments[0], L"TQType", L"");
  ExpectFinding(Only("vent-type"), L"入口立管 40 未填通气方式（TQType），立管管径将为 0", {0, 1500, 0},
                {segments[0]});
  Set(segments[0], L"TQType", L"伸顶");
  EXPECT_EQ(Utf8FromWide(Only("vent-type").text),
            "入口立管 40 的通气方式“伸顶”不是伸顶通气、专用通气或自循环通气，立管管径将为 0");
}

TEST_F(DrainageCheck, OfTwoBranchesOnASegmentTheLastCounts) {
  const auto second = Branch(5000);
  ExpectFinding(Only("two-branches"), L"立管 43 上接有 2 根支管，计算只取最后一根 47", {0, 4500, 0},
                {segments[1], branches[1], second});
}

TEST_F(DrainageCheck, ASegmentWithoutABranchGetsNoDiameter) {
  Erase(branches[2]);
  ExpectFinding(Only("no-branch"), L"立管 45 未接支管，该段不编层号，也不写入管径", {0, 7500, 0},
                {segments[2]});
}

TEST_F(DrainageCheck, AForkIsNamed) {
  const auto aside = Pipe({0, 3000, 0}, {-2000, 3000, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  EXPECT_EQ(Only("riser-fork").handles, (std::vector{segments[0], segments[1], aside}));
  Erase(aside);
  EXPECT_THAT(Kinds(), IsEmpty());
}

TEST_F(DrainageCheck, AMaterialThatIsNeitherMetalNorPlasticCountsAsPlastic) {
  for (const wchar_t* material :
       {L"铸铁管", L"不锈钢管", L"铜", L"钢塑复合管", L"HDPE管", L"硬聚氯乙烯塑料管", L"pvc-u"}) {
    Set(branches[1], L"Material", material);
    EXPECT_THAT(Kinds(), IsEmpty()) << Utf8FromWide(material);
  }
  Set(branches[1], L"Material", L"混凝土管");
  ExpectFinding(Only("other-material"), L"支管 44 的管材“混凝土管”既非金属也非塑料，计算按塑料管取值",
                {450, 4500, 0}, {branches[1]});
  Set(branches[1], L"Material", L"");
  EXPECT_EQ(Utf8FromWide(Only("other-material").text), "支管 44 未填管材，计算按塑料管取值");
}

TEST_F(DrainageCheck, AClosedCircuitOfRisersEnds) {
  Pipe({0, 9000, 0}, {-3000, 9000, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  Pipe({-3000, 9000, 0}, {0, 6000, 0}, {{L"WtSystem", L"污水"}, {L"ELS_TYPE", L"立管"}});
  EXPECT_THAT(Kinds(), testing::Contains("no-branch"));
}

}  // namespace
}  // namespace zwt::test
