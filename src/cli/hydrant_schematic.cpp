// Drawing of hydrant networks.
#include "cli/hydrant_schematic.h"

#include <algorithm>

#include "cli/storey_lines.h"
#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

constexpr double kHydrantHeight = 1100;  // mm above the floor
constexpr double kBelowRoof = 400;       // of the upper main
constexpr double kBelowGround = 1000;    // of the lower main
constexpr double kBranchLength = 1200;
constexpr double kMargin = 3000;

class HydrantNetworkDrawing {
 public:
  explicit HydrantNetworkDrawing(const HydrantSchematic& schematic)
      : schematic_(schematic),
        drawing_(std::make_unique<Drawing>()),
        layer_(drawing_->InitLayer(GetZwtLayer(L"原理图", L"管道", L"消防"))),
        upperMain_(schematic.storeys * schematic.storeyHeight -
                   std::min(kBelowRoof, schematic.storeyHeight / 4)) {}

  std::unique_ptr<Drawing> Draw() {
    const double last = (schematic_.risers - 1) * schematic_.bay;
    DrawStoreyLines(*drawing_, {schematic_.storeys, schematic_.storeyHeight, -schematic_.entry - kMargin,
                                last + kBranchLength + kMargin});
    Pipe({-schematic_.entry, -kBelowGround, 0}, {0, -kBelowGround, 0}, L"干管");
    for (std::int32_t riser = 0; riser < schematic_.risers; ++riser) {
      const double x = riser * schematic_.bay;
      if (riser > 0) DrawMains(x);
      DrawRiser(x);
      DrawLabel(*drawing_, L"XL-" + ZwtNum2Str(riser + 1),
                {x, -kBelowGround - 2 * drawing_->AnnotationHeight(), 0}, layer_);
    }
    return std::move(drawing_);
  }

 private:
  void Pipe(const AcGePoint3d& start, const AcGePoint3d& end, const wchar_t* role,
            const FieldList& more = {}) {
    FieldList fields = {{L"WtSystem", L"消防"}, {L"ELS_TYPE", role}, {L"Material", schematic_.material}};
    fields.insert(fields.end(), more.begin(), more.end());
    drawing_->AddPipe(start, end, fields, layer_);
  }

  void DrawMains(double x) {
    for (const double y : {-kBelowGround, upperMain_}) Pipe({x - schematic_.bay, y, 0}, {x, y, 0}, L"干管");
  }

  void DrawRiser(double x) {
    const double height = std::min(kHydrantHeight, schematic_.storeyHeight / 2);
    double below = -kBelowGround;
    for (std::int32_t storey = 0; storey < schematic_.storeys; ++storey) {
      const double y = storey * schematic_.storeyHeight + height;
      Pipe({x, below, 0}, {x, y, 0}, L"立管");
      const bool isTop = storey + 1 == schematic_.storeys;
      const FieldList top = {{L"IsTopHydrant", L"TRUE"}, {L"LayerNum", ZwtNum2Str(schematic_.storeys)}};
      Pipe({x, y, 0}, {x + std::min(kBranchLength, schematic_.bay / 2), y, 0}, L"支管",
           isTop ? top : FieldList{});
      below = y;
    }
    Pipe({x, below, 0}, {x, upperMain_, 0}, L"立管");
  }

  const HydrantSchematic& schematic_;
  std::unique_ptr<Drawing> drawing_;
  AcDbObjectId layer_;
  double upperMain_;
};

}  // namespace

std::unique_ptr<Drawing> DrawHydrantSchematic(const HydrantSchematic& schematic) {
  return HydrantNetworkDrawing(schematic).Draw();
}

}  // namespace zwt
