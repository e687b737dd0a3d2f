// Drawings written down in one line, and what there is to see of them as one text.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <string_view>

#include "host/drawing/display_list.h"
#include "host/dxf/dxf_file.h"
#include "host/text/number_text.h"

namespace zwt::test {

/// Tags of "0 LINE|8 0|10 1.5": groups parted by bars, each a code, a blank and the value.
inline std::string Tags(std::string_view groups) {
  std::string tags;
  while (!groups.empty()) {
    const std::string_view group = groups.substr(0, groups.find('|'));
    groups.remove_prefix(std::min(groups.size(), group.size() + 1));
    const std::size_t blank = std::min(group.find(' '), group.size());
    tags += std::string(group.substr(0, blank)) + "\n";
    tags += std::string(group.substr(std::min(blank + 1, group.size()))) + "\n";
  }
  return tags;
}

/// A drawing of these entities; tables and blocks stand in front of them where they are given.
inline std::unique_ptr<Drawing> DrawingOf(std::string_view entities, std::string_view blocks = {},
                                          std::string_view tables = {}) {
  std::string groups = "0 SECTION|2 HEADER|9 $ACADVER|1 AC1021|0 ENDSEC|";
  const auto add = [&groups](std::string_view name, std::string_view body) {
    if (body.empty()) return;
    groups += "0 SECTION|2 " + std::string(name) + "|" + std::string(body) + "|0 ENDSEC|";
  };
  add("TABLES", tables);
  add("BLOCKS", blocks);
  add("ENTITIES", entities);
  return ParseDrawing(Tags(groups + "0 EOF"));
}

inline std::string Rounded(double number) {
  const double thousandths = std::round(number * 1000) / 1000;
  return Utf8FromWide(FormatBound(thousandths == 0 ? 0 : thousandths));
}

inline std::string PointText(const PlanePoint& point) {
  return Rounded(point.x) + "," + Rounded(point.y);
}

/// " layer" where it is not 0, and " #colour" where it is not the foreground's.
inline std::string StyleText(const DisplayList& list, const DisplayItem& item) {
  std::string text;
  if (item.layer != 0) text += " " + Utf8FromWide(list.layers[static_cast<std::size_t>(item.layer)].name);
  if (item.color == kForegroundColor) return text;
  constexpr std::string_view kDigits = "0123456789abcdef";
  text += " #";
  for (int shift = 20; shift >= 0; shift -= 4)
    text += kDigits[static_cast<std::size_t>(item.color >> shift & 15)];
  return text;
}

inline std::string PathText(const DisplayList& list, const DisplayPath& path, std::string_view kind) {
  std::string text(kind);
  for (const PlanePoint& point : list.PointsOf(path)) text += " " + PointText(point);
  return text + (path.closed ? " closed" : "") + StyleText(list, path) + "\n";
}

inline std::string TextText(const DisplayList& list, const DisplayText& text) {
  constexpr double kDegrees = 180 / 3.14159265358979323846;
  std::string shown = "text " + Utf8FromWide(text.text) + " at " + PointText(text.position) + " height " +
                      Rounded(text.height);
  const auto add = [&shown](std::string_view name, double value, double usual) {
    if (Rounded(value) != Rounded(usual)) shown += " " + std::string(name) + " " + Rounded(value);
  };
  add("angle", text.angle * kDegrees, 0);
  add("width", text.widthFactor, 1);
  add("slant", text.slant * kDegrees, 0);
  add("fit", text.fitWidth, 0);
  constexpr std::array<std::string_view, 3> kSides = {"", " center", " right"};
  constexpr std::array<std::string_view, 4> kLevels = {"", " bottom", " middle", " top"};
  shown += kSides[static_cast<std::size_t>(text.side)];
  shown += kLevels[static_cast<std::size_t>(text.level)];
  return shown + StyleText(list, text) + "\n";
}

/// All items of a list, a line each.
inline std::string ListText(const DisplayList& list) {
  std::string text;
  for (const DisplayPath& path : list.strokes) text += PathText(list, path, "line");
  for (const DisplayPath& path : list.areas) text += PathText(list, path, "area");
  for (const DisplayText& item : list.texts) text += TextText(list, item);
  for (const DisplayMark& mark : list.marks) {
    text += "point " + PointText(mark.position) + StyleText(list, mark) + "\n";
  }
  return text;
}

/// What there is to see of these entities.
inline std::string Seen(std::string_view entities, std::string_view blocks = {},
                        std::string_view tables = {}) {
  return ListText(MakeDisplayList(*DrawingOf(entities, blocks, tables)));
}

}  // namespace zwt::test
