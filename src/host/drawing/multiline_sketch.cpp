// Multi-line texts: their lines, broken to the width of the text and stacked.
#include <array>
#include <cmath>

#include "host/drawing/display_colors.h"
#include "host/drawing/display_text.h"
#include "host/drawing/entity_sketch.h"

namespace zwt {
namespace {

/// From one base line to the next, in letter heights, where the spacing is single.
constexpr double kLineDistance = 5.0 / 3;

/// The whole text: pieces of group 3 in front of that of group 1. A character may be parted by their bounds,
/// so they are joined before they are decoded.
CString WholeText(const EntityGroups& groups, const TextEncoding& encoding) {
  std::string bytes;
  for (const Tag& tag : groups.Tags()) {
    if (tag.code == 3 || tag.code == 1) bytes += tag.value;
  }
  return encoding.Decode(bytes);
}

double StyleWidthFactor(const EntityGroups& groups, const DrawingData& drawing) {
  const std::string_view written = Trimmed(groups.Text(7));
  if (written.empty()) return 1;
  const CString name = FoldedName(drawing.dialect.encoding.Decode(written));
  for (const NamedRecord& style : drawing.styles) {
    if (FoldedName(style.name) == name) return style.widthFactor > 0 ? style.widthFactor : 1;
  }
  return 1;
}

/// The angle of the base line; of a direction and an angle the later one counts.
double AngleOf(EntityGroups& groups) {
  double angle = 0;
  for (const Tag& tag : groups.Tags()) {
    if (tag.code == 50) angle = groups.Angle(50);
    if (tag.code == 11) {
      const AcGePoint3d direction = groups.Point(11);
      angle = std::atan2(direction.y, direction.x);
    }
  }
  return angle;
}

/// Heights of the base lines over the first one's, downward, and how high the whole text is.
struct Stack {
  std::vector<double> baselines;
  double height = 0;
};

Stack StackLines(const std::vector<TextLine>& lines, double height, double spacing) {
  Stack stack;
  double baseline = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) baseline -= lines[i].height * height * kLineDistance * spacing;
    stack.baselines.push_back(baseline);
  }
  stack.height = lines[0].height * height - baseline;
  return stack;
}

}  // namespace

void SketchMultilineText(EntityGroups& groups, const SketchStyle& style, const DrawingData& drawing,
                         Sketch& sketch) {
  const AcGePoint3d position = groups.Point(10);
  const double height = groups.Needed(40);
  const double spacing = groups.Real(44, 1);
  const double width = groups.Real(41, 0);
  const std::int64_t attachment = groups.Integer(71, 1) - 1;  // rows of three, from top left
  const double angle = AngleOf(groups);
  if (height <= 0 || attachment < 0 || attachment > 8) groups.Break();
  if (groups.IsBroken()) return;
  const double styleWidth = StyleWidthFactor(groups, drawing);
  const std::vector<TextLine> lines = MultilineText(WholeText(groups, drawing.dialect.encoding), height,
                                                    width / height / styleWidth, EstimatedWidth);
  const Stack stack = StackLines(lines, height, spacing > 0 ? spacing : 1);
  const std::array<double, 3> tops = {0, stack.height / 2, stack.height};
  const double top = tops[static_cast<std::size_t>(attachment / 3)];
  const Vector along{std::cos(angle), std::sin(angle), 0};
  const Vector up{-along.y, along.x, 0};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].text.empty()) continue;
    SketchText text;
    text.style = style;
    if (lines[i].color >= 0)
      text.style.color = lines[i].color == 0 ? kColorOfInsert : ColorOfIndex(lines[i].color);
    text.text = lines[i].text;
    text.position = position + up * (top - lines[0].height * height + stack.baselines[i]);
    text.along = along * (lines[i].height * height * lines[i].widthFactor * styleWidth);
    text.up = up * (lines[i].height * height);
    text.side = static_cast<TextSide>(attachment % 3);
    sketch.texts.push_back(std::move(text));
  }
}

}  // namespace zwt
