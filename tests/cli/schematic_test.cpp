// Schematics to start from.
#include "cli/schematic.h"

#include <gmock/gmock.h>

#include "host/drawing/connections.h"
#include "host/drawing/entities.h"
#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;

std::vector<CString> Texts(const Drawing& drawing, const wchar_t* key) {
  std::vector<CString> texts;
  for (const std::int32_t pipe : drawing.Pipes()) {
    CString text;
    drawing.GetField(pipe, key, text);
    texts.push_back(text);
  }
  return texts;
}

TEST(Schematic, HasASectionAndABranchOnEveryStoreyOfEveryRiser) {
  RiserSchematic schematic = SupplySchematic();
  schematic.storeys = 18;
  schematic.risers = 2;
  const auto drawing = DrawSchematic(schematic);
  EXPECT_EQ(drawing->Pipes().size(), 72U);
  const auto roles = Texts(*drawing, L"ELS_TYPE");
  EXPECT_EQ(std::count(roles.begin(), roles.end(), L"入口立管"), 2);
  EXPECT_EQ(std::count(roles.begin(), roles.end(), L"立管"), 34);
  EXPECT_EQ(std::count(roles.begin(), roles.end(), L"支管"), 36);
}

TEST(Schematic, RisersTakeTheMaterialsInTurn) {
  RiserSchematic schematic = SupplySchematic();
  schematic.storeys = 1;
  schematic.risers = 3;
  schematic.materials = {L"铜管", L"衬塑钢管"};
  EXPECT_THAT(Texts(*DrawSchematic(schematic), L"Material"),
              ElementsAre(L"铜管", L"铜管", L"衬塑钢管", L"衬塑钢管", L"铜管", L"铜管"));
}

TEST(Schematic, BranchTouchesItsOwnSectionAlone) {
  RiserSchematic schematic = SupplySchematic();
  schematic.storeys = 3;
  const auto drawing = DrawSchematic(schematic);
  const std::vector<std::int32_t> pipes = drawing->Pipes();
  const Connections& connections = drawing->GetConnections();
  for (std::size_t branch = 1; branch < pipes.size(); branch += 2) {
    EXPECT_THAT(connections.ConnectedTo(pipes[branch]), ElementsAre(pipes[branch - 1]));
  }
}

TEST(Schematic, EntryOfAStackSaysHowItIsVented) {
  const auto drawing = DrawSchematic(DrainageSchematic());
  EXPECT_EQ(Texts(*drawing, L"TQType").front(), L"伸顶通气");
  EXPECT_EQ(Texts(*drawing, L"WtSystem").front(), L"污水");
}

TEST(Schematic, ReadsBackFromItsFile) {
  RiserSchematic schematic = SupplySchematic();
  schematic.storeys = 4;
  const auto drawing = DrawSchematic(schematic);
  const auto read = ParseDrawing(DrawingBytes(*drawing));
  EXPECT_EQ(read->EntityCount(), drawing->EntityCount());
  EXPECT_EQ(Texts(*read, L"Equivalent"), Texts(*drawing, L"Equivalent"));
  EXPECT_EQ(DrawingBytes(*read), DrawingBytes(*drawing));
}

}  // namespace
}  // namespace zwt::test
