// Drawing of schematics.
#include "cli/schematic.h"

#include <algorithm>

#include "cli/storey_lines.h"
#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kRiserDistance = 6000;  // mm
constexpr double kBranchLength = 2500;
constexpr double kBranchHeight = 1000;  // above the floor
constexpr double kMargin = 3000;

CString MaterialOf(const RiserSchematic& schematic, std::int32_t riser) {
  if (schematic.materials.empty()) return {};
  return schematic.materials[static_cast<std::size_t>(riser) % schematic.materials.size()];
}

FieldList PipeFields(const RiserSchematic& schematic, std::int32_t riser, const wchar_t* role) {
  return {{L"WtSystem", schematic.system}, {L"ELS_TYPE", role}, {L"Material", MaterialOf(schematic, riser)}};
}

void Append(FieldList& fields, const FieldList& further) {
  fields.insert(fields.end(), further.begin(), further.end());
}

void DrawRiser(Drawing& drawing, const RiserSchematic& schematic, std::int32_t riser, AcDbObjectId layer) {
  const double x = riser * kRiserDistance;
  const double branchHeight = std::min(kBranchHeight, schematic.storeyHeight / 2);
  for (std::int32_t storey = 0; storey < schematic.storeys; ++storey) {
    const double floor = storey * schematic.storeyHeight;
    FieldList section = PipeFields(schematic, riser, storey == 0 ? L"入口立管" : L"立管");
    if (storey == 0) Append(section, schematic.entry);
    drawing.AddPipe({x, floor, 0}, {x, floor + schematic.storeyHeight, 0}, section, layer);
    FieldList branch = PipeFields(schematic, riser, L"支管");
    Append(branch, schematic.branch);
    drawing.AddPipe({x, floor + branchHeight, 0}, {x + kBranchLength, floor + branchHeight, 0}, branch,
                    layer);
  }
}

}  // namespace

RiserSchematic SupplySchematic() {
  RiserSchematic schematic;
  schematic.system = L"给水";
  schematic.label = L"JL-";
  schematic.materials = {L"PP-R管(S4)"};
  schematic.branch = {{L"Ration", L"250"}, {L"Kh", L"2.5"},      {L"Equivalent", L"4"},
                      {L"DoorNum", L"1"},  {L"UserNum", L"3.5"}, {L"Time", L"24"}};
  return schematic;
}

RiserSchematic DrainageSchematic() {
  RiserSchematic schematic;
  schematic.system = L"污水";
  schematic.label = L"WL-";
  schematic.materials = {L"PVC-U排水管"};
  schematic.branch = {{L"Equivalent", L"6"}, {L"Flux", L"2"}, {L"Qmax", L"1.5"}, {L"MaxDN", L"100"}};
  schematic.entry = {{L"TQType", L"伸顶通气"}};
  return schematic;
}

std::unique_ptr<Drawing> DrawSchematic(const RiserSchematic& schematic) {
  auto drawing = std::make_unique<Drawing>();
  const AcDbObjectId pipes = drawing->InitLayer(GetZwtLayer(L"原理图", L"管道", schematic.system));
  const double right = (schematic.risers - 1) * kRiserDistance + kBranchLength + kMargin;
  DrawStoreyLines(*drawing, {schematic.storeys, schematic.storeyHeight, -kMargin, right});
  for (std::int32_t riser = 0; riser < schematic.risers; ++riser) {
    DrawRiser(*drawing, schematic, riser, pipes);
    const double below = -2 * drawing->AnnotationHeight();
    DrawLabel(*drawing, schematic.label + ZwtNum2Str(riser + 1), {riser * kRiserDistance, below, 0}, pipes);
  }
  return drawing;
}

}  // namespace zwt
