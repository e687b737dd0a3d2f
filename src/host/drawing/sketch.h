// What one entity, or one block definition, shows: lines, areas, texts and marks in space, before it is known
// on which layer, in which colour and where an insert puts it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/drawing/display_list.h"
#include "host/drawing/geometry.h"

namespace zwt {

/// Colours that an insert decides: its own (BYBLOCK), and that of the layer where its content lies (BYLAYER
/// of what lies on layer 0 of a block). Other colours are as in a display list.
constexpr std::int32_t kColorOfInsert = -2;
constexpr std::int32_t kColorOfInsertLayer = -3;
/// The layer of what lies on layer 0 of a block.
constexpr std::int32_t kLayerOfInsert = -1;

struct SketchStyle {
  std::int32_t layer = 0;
  std::int32_t color = kForegroundColor;
};

/// How a block lies in what holds it.
struct Placement {
  Vector x{1, 0, 0};
  Vector y{0, 1, 0};
  Vector z{0, 0, 1};
  AcGePoint3d origin;

  AcGePoint3d operator()(const AcGePoint3d& point) const;
  Vector operator()(const Vector& way) const;
};

/// What an insert decides.
struct InsertStyle {
  SketchStyle own;
  std::int32_t layerColor = kForegroundColor;  // of the insert's layer
  bool hidesAll = false;                       // a frozen layer of an insert hides what lies on others, too
};

struct SketchPath {
  SketchStyle style;
  std::size_t first = 0;
  std::size_t count = 0;
  bool closed = false;
  bool filled = false;
};

struct SketchText {
  SketchStyle style;
  CString text;
  AcGePoint3d position;
  Vector along;         // base line, as long as a capital is high times the width factor
  Vector up;            // upright, as long as a capital is high
  double fitWidth = 0;  // above 0: the text is to be that many times as wide as along is long
  TextSide side = TextSide::Left;
  TextLevel level = TextLevel::Baseline;
};

struct SketchMark {
  SketchStyle style;
  AcGePoint3d position;
};

struct Sketch {
  std::vector<AcGePoint3d> points;
  std::vector<SketchPath> paths;
  std::vector<SketchText> texts;
  std::vector<SketchMark> marks;

  void Clear();
  bool IsEmpty() const { return paths.empty() && texts.empty() && marks.empty(); }
  /// What a copy of it takes: points, paths, letters and marks.
  std::int64_t Cost() const;
  /// Adds a line through points. Fewer than two are none.
  void AddPath(const SketchStyle& style, std::span<const AcGePoint3d> path, bool closed);
  /// How much there is, to take back what a broken entity has added by then.
  struct Extent {
    std::size_t points = 0;
    std::size_t paths = 0;
    std::size_t texts = 0;
    std::size_t marks = 0;
  };
  Extent Now() const { return {points.size(), paths.size(), texts.size(), marks.size()}; }
  void TakeBack(const Extent& extent);
  void AddArea(const SketchStyle& style, std::span<const AcGePoint3d> edge);
  /// Adds what a block shows, at a place and in the style of the insert.
  void AddBlock(const Sketch& block, const Placement& place, const InsertStyle& insert);
};

/// Appends what a sketch shows to a list, seen from above. entity: index in the drawing.
void AppendToList(const Sketch& sketch, std::int32_t entity, DisplayList& list);

}  // namespace zwt
