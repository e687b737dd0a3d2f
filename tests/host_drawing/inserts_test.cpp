// What inserts of blocks show.
#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

using test::DrawingOf;
using test::Seen;

constexpr std::string_view kTick = "0 BLOCK|8 0|2 TICK|10 1|20 0|0 LINE|8 0|10 1|20 0|11 2|21 0|0 ENDBLK";

TEST(Inserts, ABlockIsScaledTurnedAndMoved) {
  EXPECT_EQ(Seen("0 INSERT|8 0|2 TICK|10 10|20 20", kTick), "line 10,20 11,20\n");
  EXPECT_EQ(Seen("0 INSERT|8 0|2 tick|10 10|20 20|41 3|50 90", kTick), "line 10,20 10,23\n");
  EXPECT_EQ(Seen("0 INSERT|8 0|2 TICK|10 10|20 20|41 -1", kTick), "line 10,20 9,20\n");
}

TEST(Inserts, AnExtrusionDownwardMirrorsTheBlock) {
  EXPECT_EQ(Seen("0 INSERT|8 0|2 TICK|10 10|20 20|210 0|220 0|230 -1", kTick), "line -10,20 -11,20\n");
}

TEST(Inserts, ColumnsAndRowsTurnWithTheInsert) {
  EXPECT_EQ(Seen("0 INSERT|8 0|2 TICK|10 0|20 0|70 2|71 2|44 10|45 5", kTick),
            "line 0,0 1,0\nline 10,0 11,0\nline 0,5 1,5\nline 10,5 11,5\n");
  EXPECT_EQ(Seen("0 INSERT|8 0|2 TICK|10 0|20 0|50 90|70 2|44 10", kTick), "line 0,0 0,1\nline 0,10 0,11\n");
}

TEST(Inserts, NestedInsertsMultiplyTheirScales) {
  const std::string blocks = std::string(kTick) +
                             "|0 BLOCK|8 0|2 PAIR|10 0|20 0|0 INSERT|8 0|2 TICK|10 0|20 0|41 2|42 2|0 "
                             "INSERT|8 0|2 TICK|10 5|20 0|50 90|"
                             "0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 0|2 PAIR|10 100|20 0|41 10|42 10", blocks),
            "line 100,0 120,0\nline 150,0 150,10\n");
}

TEST(Inserts, ACircleUnderUnequalScalesIsAnEllipse) {
  const auto drawing = DrawingOf("0 INSERT|8 0|2 RING|10 0|20 0|41 3|42 1",
                                 "0 BLOCK|8 0|2 RING|10 0|20 0|0 CIRCLE|8 0|10 0|20 0|40 2|0 ENDBLK");
  const PlaneBox box = MakeDisplayList(*drawing).Extents();
  EXPECT_EQ(test::PointText(box.low) + " " + test::PointText(box.high), "-6,-2 6,2");
}

TEST(Inserts, TextsAreScaledTurnedAndMirroredWithTheirBlock) {
  constexpr std::string_view kSign = "0 BLOCK|8 0|2 SIGN|10 0|20 0|0 TEXT|8 0|10 1|20 0|40 2|1 A|0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 0|2 SIGN|10 0|20 0|41 3|42 3|50 90", kSign),
            "text A at 0,3 height 6 angle 90\n");
  EXPECT_EQ(Seen("0 INSERT|8 0|2 SIGN|10 0|20 0|41 -1", kSign), "text A at -1,0 height 2 width -1\n");
  EXPECT_EQ(Seen("0 INSERT|8 0|2 SIGN|10 0|20 0|42 2", kSign), "text A at 1,0 height 4 width 0.5\n");
}

constexpr std::string_view kLayers =
    "0 TABLE|2 LAYER|0 LAYER|2 0|62 7|0 LAYER|2 A|62 1|0 LAYER|2 B|62 3|0 LAYER|2 C|70 1|62 5|0 ENDTAB";

TEST(Inserts, LayerZeroAndTheColourOfTheBlockAreThoseOfTheInsert) {
  constexpr std::string_view kBlock =
      "0 BLOCK|8 0|2 X|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 LINE|8 0|62 0|10 0|20 0|11 2|21 0|"
      "0 LINE|8 B|10 0|20 0|11 3|21 0|0 LINE|8 B|62 0|10 0|20 0|11 4|21 0|0 LINE|8 0|62 6|10 0|20 0|11 5|21 "
      "0|0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 A|62 5|2 X|10 0|20 0", kBlock, kLayers),
            "line 0,0 1,0 A #ff0000\nline 0,0 2,0 A #0000ff\nline 0,0 3,0 B #00ff00\nline 0,0 4,0 B #0000ff\n"
            "line 0,0 5,0 A #ff00ff\n");
}

TEST(Inserts, StylesPassThroughNestedInserts) {
  constexpr std::string_view kBlocks =
      "0 BLOCK|8 0|2 X|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 LINE|8 0|62 0|10 0|20 0|11 2|21 0|0 ENDBLK|"
      "0 BLOCK|8 0|2 Y|10 0|20 0|0 INSERT|8 0|62 0|2 X|10 0|20 0|0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 A|62 5|2 Y|10 0|20 0", kBlocks, kLayers),
            "line 0,0 1,0 A #ff0000\nline 0,0 2,0 A #0000ff\n");
}

TEST(Inserts, AFrozenLayerOfAnInsertHidesAllOfIt) {
  constexpr std::string_view kBlock = "0 BLOCK|8 0|2 X|10 0|20 0|0 LINE|8 B|10 0|20 0|11 1|21 0|0 ENDBLK";
  const auto drawing = DrawingOf("0 INSERT|8 C|2 X|10 0|20 0", kBlock, kLayers);
  const DisplayList list = MakeDisplayList(*drawing);
  ASSERT_EQ(list.strokes.size(), 1U);
  EXPECT_FALSE(list.Shows(list.strokes[0]));
}

TEST(Inserts, LayersThatBlocksAloneNameAreKnown) {
  constexpr std::string_view kBlock = "0 BLOCK|8 0|2 X|10 0|20 0|0 LINE|8 阀|10 0|20 0|11 1|21 0|0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 0|2 X|10 0|20 0", kBlock, kLayers), "line 0,0 1,0 阀\n");
}

TEST(Inserts, AttributesStandWhereTheyAre) {
  EXPECT_EQ(Seen("0 INSERT|8 0|66 1|2 TICK|10 10|20 20|0 ATTRIB|8 0|10 3|20 4|40 2.5|1 FL-1|2 N|70 0|"
                 "0 ATTRIB|8 0|10 3|20 4|40 2.5|1 hidden|2 M|70 1|0 SEQEND|8 0",
                 kTick),
            "line 10,20 11,20\ntext FL-1 at 3,4 height 2.5\n");
}

TEST(Inserts, OfDefinitionsOnlyConstantOnesAreSeen) {
  EXPECT_EQ(Seen("0 INSERT|8 0|2 X|10 0|20 0",
                 "0 BLOCK|8 0|2 X|10 0|20 0|0 ATTDEF|8 0|10 0|20 0|40 2|1 value|2 TAG|70 0|"
                 "0 ATTDEF|8 0|10 0|20 0|40 2|1 给水|2 TAG|70 2|0 ENDBLK"),
            "text 给水 at 0,0 height 2\n");
}

TEST(Inserts, ADimensionShowsItsBlock) {
  EXPECT_EQ(Seen("0 DIMENSION|8 0|2 *D1|10 7|20 7",
                 "0 BLOCK|8 0|2 *D1|10 0|20 0|0 LINE|8 0|10 0|20 0|11 9|21 0|0 ENDBLK"),
            "line 0,0 9,0\n");
}

TEST(Inserts, BlocksThatHoldThemselvesEnd) {
  constexpr std::string_view kBlocks =
      "0 BLOCK|8 0|2 X|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 INSERT|8 0|2 Y|10 0|20 0|0 ENDBLK|"
      "0 BLOCK|8 0|2 Y|10 0|20 0|0 LINE|8 0|10 0|20 0|11 2|21 0|0 INSERT|8 0|2 X|10 0|20 0|0 ENDBLK";
  const DisplayList list = MakeDisplayList(*DrawingOf("0 INSERT|8 0|2 X|10 0|20 0", kBlocks));
  EXPECT_EQ(test::ListText(list), "line 0,0 1,0\nline 0,0 2,0\n");
  EXPECT_EQ(list.leftOut, 1);
}

TEST(Inserts, AMissingBlockIsLeftOut) {
  const DisplayList list = MakeDisplayList(*DrawingOf("0 INSERT|8 0|2 NONE|10 0|20 0"));
  EXPECT_EQ(test::ListText(list), "");
  EXPECT_EQ(list.leftOut, 1);
}

TEST(Inserts, MoreCopiesThanAListHoldsAreLeftOut) {
  const DisplayList list = MakeDisplayList(*DrawingOf(
      "0 INSERT|8 0|2 TICK|10 0|20 0|70 32767|71 32767|44 1|45 1|0 INSERT|8 0|2 TICK|10 0|20 0", kTick));
  EXPECT_EQ(list.strokes.size(), 1U);
  EXPECT_EQ(list.leftOut, 1);
}

TEST(Inserts, NestsThatDoubleAtEveryLevelEnd) {
  std::string blocks = "0 BLOCK|8 0|2 B0|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK";
  for (int level = 1; level <= 60; ++level) {
    const std::string inner = "0 INSERT|8 0|2 B" + std::to_string(level - 1) + "|10 0|20 0|";
    blocks += "|0 BLOCK|8 0|2 B" + std::to_string(level) + "|10 0|20 0|" + inner + inner + "0 ENDBLK";
  }
  const DisplayList list = MakeDisplayList(*DrawingOf("0 INSERT|8 0|2 B60|10 0|20 0", blocks));
  EXPECT_LE(list.strokes.size(), static_cast<std::size_t>(kMostInserted));
  EXPECT_GT(list.leftOut, 0);
}

TEST(Inserts, AnEmptyBlockCostsNothingHoweverOften) {
  const DisplayList list = MakeDisplayList(*DrawingOf(
      "0 INSERT|8 0|2 X|10 0|20 0|70 2000000000|71 2000000000", "0 BLOCK|8 0|2 X|10 0|20 0|0 ENDBLK"));
  EXPECT_EQ(list.leftOut, 0);
}

TEST(Inserts, ScalesThatLeadBeyondAllBoundsAreLeftOut) {
  const std::string blocks =
      std::string(kTick) + "|0 BLOCK|8 0|2 Y|10 0|20 0|0 INSERT|8 0|2 TICK|10 0|20 0|41 1e12|0 ENDBLK";
  EXPECT_EQ(Seen("0 INSERT|8 0|2 Y|10 0|20 0|41 1e12", blocks), "");
}

}  // namespace
}  // namespace zwt
