// Broken drawings have a picture all the same: every group of one drawing with everything in it is damaged or
// left out, one after another.
#include <array>
#include <cmath>
#include <functional>

#include <gtest/gtest.h>

#include "host/drawing/drawing_error.h"
#include "host_drawing/seen.h"

namespace zwt {
namespace {

constexpr std::string_view kTables =
    "0 TABLE|2 LAYER|0 LAYER|2 0|70 0|62 7|0 LAYER|2 A|70 0|62 3|420 255|0 ENDTAB|"
    "0 TABLE|2 STYLE|0 STYLE|2 S|40 0|41 0.7|0 ENDTAB";

constexpr std::string_view kBlocks =
    "0 BLOCK|8 0|2 X|10 1|20 1|30 0|0 LINE|8 0|62 0|10 0|20 0|11 1|21 0|0 TEXT|8 0|10 0|20 0|40 2|1 A|"
    "0 ATTDEF|8 0|10 0|20 0|40 2|1 B|2 T|70 2|0 ENDBLK|"
    "0 BLOCK|8 0|2 Y|10 0|20 0|30 0|0 INSERT|8 A|2 X|10 5|20 5|41 2|42 2|50 30|70 2|71 2|44 3|45 3|0 ENDBLK";

constexpr std::string_view kEntities =
    "0 LINE|8 A|62 1|10 0|20 0|30 0|11 9|21 9|31 0|"
    "0 LWPOLYLINE|8 A|90 3|70 1|38 1|10 0|20 0|42 1|10 5|20 0|10 5|20 5|42 -0.5|210 0|220 0|230 -1|"
    "0 POLYLINE|8 0|66 1|70 1|30 2|0 VERTEX|8 0|70 0|10 0|20 0|42 1|0 VERTEX|8 0|10 5|20 0|0 SEQEND|8 0|"
    "0 CIRCLE|8 0|10 0|20 0|40 5|0 ARC|8 0|10 0|20 0|40 5|50 30|51 200|"
    "0 ELLIPSE|8 0|10 0|20 0|11 5|21 0|40 0.5|41 0|42 3|"
    "0 SPLINE|8 0|70 8|71 3|72 8|73 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|41 1|41 1|41 1|41 1|"
    "10 0|20 0|10 0|20 9|10 9|20 9|10 9|20 0|11 0|21 0|11 9|21 0|"
    "0 TEXT|8 0|10 0|20 0|11 9|21 0|40 2.5|41 0.8|50 30|51 10|71 2|72 5|73 0|1 %%c100|"
    "0 MTEXT|8 0|10 0|20 0|40 2.5|41 20|44 1|71 5|7 S|50 30|3 {\\H2x;\\C1;a|1 b} \\S1/2;|"
    "0 INSERT|8 A|66 1|2 Y|10 9|20 9|41 2|42 3|43 1|50 45|70 2|71 1|44 5|45 5|0 ATTRIB|8 0|10 0|20 0|40 2|1 "
    "C|70 0|74 1|"
    "0 SEQEND|8 0|"
    "0 HATCH|8 0|10 0|20 0|30 0|230 1|2 SOLID|70 1|71 0|91 2|92 2|72 1|73 1|93 2|10 0|20 0|42 1|10 5|20 0|42 "
    "1|97 0|"
    "92 1|93 4|72 1|10 0|20 0|11 5|21 0|72 2|10 0|20 0|40 5|50 0|51 90|73 1|72 3|10 0|20 0|11 9|21 0|40 "
    "0.5|50 0|51 90|"
    "73 0|72 4|94 1|73 0|74 0|95 4|96 2|40 0|40 0|40 1|40 1|10 1|20 1|10 2|20 3|97 0|97 0|75 0|76 1|98 0|"
    "0 POINT|8 0|10 1|20 1|0 SOLID|8 0|10 0|20 0|11 5|21 0|12 0|22 5|13 5|23 5|"
    "0 3DFACE|8 0|10 0|20 0|11 5|21 0|12 5|22 5|13 0|23 5|0 LEADER|8 0|76 2|10 0|20 0|10 5|20 5|"
    "0 DIMENSION|8 0|2 X|10 0|20 0";

std::vector<std::string> Split(std::string_view groups) {
  std::vector<std::string> parts;
  while (!groups.empty()) {
    parts.emplace_back(groups.substr(0, groups.find('|')));
    groups.remove_prefix(std::min(groups.size(), parts.back().size() + 1));
  }
  return parts;
}

std::string Join(const std::vector<std::string>& parts) {
  std::string groups;
  for (const std::string& part : parts) groups += (groups.empty() || part.empty() ? "" : "|") + part;
  return groups;
}

void ExpectSound(const DisplayList& list, const std::string& damage) {
  for (const PlanePoint& point : list.points) {
    ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y)) << damage;
  }
  for (const DisplayText& text : list.texts) {
    ASSERT_TRUE(std::isfinite(text.height) && text.height > 0 && std::isfinite(text.angle) &&
                std::isfinite(text.widthFactor) && std::isfinite(text.fitWidth))
        << damage;
  }
  for (const DisplayPath& path : list.strokes) {
    ASSERT_GE(path.count, 2U) << damage;
    ASSERT_LE(path.first + path.count, list.points.size()) << damage;
    ASSERT_LT(static_cast<std::size_t>(path.layer), list.layers.size()) << damage;
  }
}

/// Makes the picture of a drawing, unless it is too broken to be read.
void Look(const std::string& entities, const std::string& blocks, const std::string& damage) {
  try {
    ExpectSound(MakeDisplayList(*test::DrawingOf(entities, blocks, kTables)), damage);
  } catch (const DrawingError&) {
    return;  // the reader says so, with a line number: that has its own tests
  }
}

void DamageAll(std::string_view whole,
               const std::function<void(const std::string&, const std::string&)>& look) {
  static constexpr std::array<std::string_view, 10> kOddValues = {
      "", "x", "0", "-1", "0.5", "1e15", "1e-15", "1e300", "nan", "2147483647"};
  const std::vector<std::string> parts = Split(whole);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    std::vector<std::string> damaged = parts;
    const std::string code = parts[i].substr(0, parts[i].find(' '));
    if (code == "0") continue;
    for (const std::string_view value : kOddValues) {
      damaged[i] = code + " " + std::string(value);
      look(Join(damaged), parts[i] + " as " + std::string(value));
    }
    damaged.erase(damaged.begin() + static_cast<std::ptrdiff_t>(i));
    look(Join(damaged), parts[i] + " left out");
  }
}

TEST(BrokenPictures, TheWholeDrawingShowsAllOfItsKinds) {
  const DisplayList list = MakeDisplayList(*test::DrawingOf(kEntities, kBlocks, kTables));
  EXPECT_EQ(list.leftOut, 0);
  EXPECT_EQ(list.strokes.size(), 23U);
  EXPECT_EQ(list.areas.size(), 1U);
  EXPECT_EQ(list.marks.size(), 1U);
}

TEST(BrokenPictures, AnyDamagedGroupOfAnEntity) {
  DamageAll(kEntities, [](const std::string& entities, const std::string& damage) {
    Look(entities, std::string(kBlocks), damage);
  });
}

TEST(BrokenPictures, AnyDamagedGroupOfABlock) {
  DamageAll(kBlocks, [](const std::string& blocks, const std::string& damage) {
    Look(std::string(kEntities), blocks, damage);
  });
}

}  // namespace
}  // namespace zwt
