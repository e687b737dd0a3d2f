// What there is to see of a drawing: its entities as flat lists of lines, areas, texts and marks in the
// plane, seen from above. The one description for the screen, bitmaps, pages and SVG; it knows no toolkit.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "host/drawing/entities.h"

namespace zwt {

/// A point of the drawing seen from above, mm, y upward.
struct PlanePoint {
  double x = 0;
  double y = 0;

  bool operator==(const PlanePoint&) const = default;
};

/// A rectangle of the plane; empty where low lies beyond high.
struct PlaneBox {
  PlanePoint low{1, 1};
  PlanePoint high{-1, -1};

  bool IsEmpty() const { return low.x > high.x || low.y > high.y; }
  double Width() const { return high.x - low.x; }
  double Height() const { return high.y - low.y; }
  /// Grows to hold a point.
  void Add(const PlanePoint& point);
  void Add(const PlaneBox& box);
  bool Touches(const PlaneBox& other) const;
};

/// The colour of what takes that of the ground's opposite: black on a light ground, white on a dark one.
/// All other colours are 0xRRGGBB.
constexpr std::int32_t kForegroundColor = -1;

/// What everything that can be seen has.
struct DisplayItem {
  std::int32_t entity = 0;  // index in the drawing; of what an insert shows: that of the insert
  std::int32_t layer = 0;   // index of DisplayList::layers
  std::int32_t color = kForegroundColor;
};

/// A line through points, or the edge of a filled area (which is always closed). Of length 0 it is a dot.
struct DisplayPath : DisplayItem {
  std::uint32_t first = 0;  // of DisplayList::points
  std::uint32_t count = 0;  // 2 or more
  bool closed = false;      // the last point is joined with the first
};

/// A point entity.
struct DisplayMark : DisplayItem {
  PlanePoint position;
};

enum class TextSide : std::uint8_t { Left, Center, Right };
enum class TextLevel : std::uint8_t { Baseline, Bottom, Middle, Top };

/// One line of text, formats and codes resolved.
struct DisplayText : DisplayItem {
  CString text;
  PlanePoint position;     // the point by which it is aligned
  double height = 0;       // of a capital letter, mm, above 0
  double angle = 0;        // of the base line, radians, counter-clockwise
  double widthFactor = 1;  // below 0: mirrored
  double slant = 0;        // of the uprights to the right, radians
  double fitWidth = 0;     // mm; above 0: the text is stretched or pressed to this width
  TextSide side = TextSide::Left;
  TextLevel level = TextLevel::Baseline;
};

struct DisplayLayer {
  CString name;
  bool shown = true;  // neither off nor frozen
};

struct DisplayList {
  std::vector<PlanePoint> points;  // of strokes and areas
  std::vector<DisplayPath> strokes;
  std::vector<DisplayPath> areas;
  std::vector<DisplayText> texts;
  std::vector<DisplayMark> marks;
  std::vector<DisplayLayer>
      layers;                // those of the drawing, by its indices; behind them those of blocks alone
  std::int32_t leftOut = 0;  // entities that cannot be drawn: broken, or beyond what a list may hold

  std::span<const PlanePoint> PointsOf(const DisplayPath& path) const {
    return std::span(points).subspan(path.first, path.count);
  }
  bool Shows(const DisplayItem& item) const { return layers[static_cast<std::size_t>(item.layer)].shown; }
  /// Box around all that the file's layers show; empty where nothing is.
  PlaneBox Extents() const;
  /// The same where others are shown. isShown: by layer; those beyond its end are.
  PlaneBox Extents(const std::vector<bool>& isShown) const;
};

/// Most points, lines, letters and marks that inserts may bring: those beyond are left out.
constexpr std::int64_t kMostInserted = 10'000'000;

/// Which of the drawing's two spaces.
enum class DisplaySpace { Model, Paper };

/// The list of a drawing, items of each kind in drawing order. Curves are flattened to within a thousandth of
/// their size. Entities with missing or broken numbers, inserts of blocks that hold themselves, and kinds
/// that have no picture are left out.
DisplayList MakeDisplayList(const AcDbDatabase& drawing, DisplaySpace space = DisplaySpace::Model);

/// Box around the points of a path.
PlaneBox BoxOf(std::span<const PlanePoint> path);

/// Box around a text, by an estimate of its width: a font is not at hand here.
PlaneBox BoxOf(const DisplayText& text);

/// Where the base line of a text is below the point by which it is aligned, in capital heights.
double BaselineBelow(TextLevel level);

/// Width of a text in capital heights, estimated: ideographs are about square, letters narrower.
double EstimatedWidth(std::wstring_view text);

}  // namespace zwt
