#include "host/drawing/entity_sketch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/drawing/display_curves.h"
#include "host/drawing/display_text.h"

namespace zwt {
namespace {

constexpr std::int64_t kClosed = 1;

/// What the makers of sketches share.
struct SketchTask {
  EntityGroups& groups;
  std::span<const Tag> tags;  // with what belongs to the entity
  SketchStyle style;
  const DrawingData& drawing;
  Sketch& sketch;

  void AddPath(std::span<const AcGePoint3d> path, bool closed = false) const {
    if (!groups.IsBroken()) sketch.AddPath(style, path, closed);
  }
};

void SketchLine(const SketchTask& task) {
  task.AddPath(std::array{task.groups.Point(10), task.groups.Point(11)});
}

struct Vertex {
  AcGePoint3d point;
  double bulge = 0;
};

void SketchVertices(const SketchTask& task, const std::vector<Vertex>& vertices, bool closed,
                    const ObjectFrame& frame) {
  if (vertices.empty()) return;
  std::vector<AcGePoint3d> path{frame.ToWorld(vertices[0].point)};
  const std::size_t parts = vertices.size() - (closed ? 0 : 1);
  for (std::size_t i = 0; i < parts; ++i) {
    const Vertex& next = vertices[(i + 1) % vertices.size()];
    AppendPart(BulgePart(vertices[i].point, next.point, vertices[i].bulge, frame), path);
  }
  if (closed) path.pop_back();
  task.AddPath(path, closed);
}

void SketchLightPolyline(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  const double elevation = groups.Real(38, 0);
  std::vector<Vertex> vertices;
  for (const Tag& tag : groups.Tags()) {
    if (tag.code == 10) {
      vertices.push_back({{groups.Number(tag), 0, elevation}, 0});
    } else if (tag.code == 20 && !vertices.empty()) {
      vertices.back().point.y = groups.Number(tag);
    } else if (tag.code == 42 && !vertices.empty()) {
      vertices.back().bulge = groups.Number(tag);
    }
  }
  SketchVertices(task, vertices, (groups.Integer(70, 0) & kClosed) != 0, groups.Frame());
}

/// A polyline with its vertices as entities of their own; meshes are left out.
void SketchHeavyPolyline(const SketchTask& task) {
  constexpr std::int64_t kInSpace = 8;
  constexpr std::int64_t kMesh = 16 | 64;
  constexpr std::int64_t kControlVertex = 16;
  EntityGroups& groups = task.groups;
  const std::int64_t flags = groups.Integer(70, 0);
  if ((flags & kMesh) != 0) return;
  const bool inSpace = (flags & kInSpace) != 0;
  const double elevation = groups.Real(30, 0);
  std::vector<Vertex> vertices;
  for (std::size_t at = EntitySize(task.tags, 0); at < task.tags.size();) {
    const std::size_t size = EntitySize(task.tags, at);
    EntityGroups vertex(task.tags.subspan(at, size));
    at += size;
    const bool counts = (vertex.Integer(70, 0) & kControlVertex) == 0;
    if (Trimmed(vertex.Tags()[0].value) == "VERTEX" && counts) {
      AcGePoint3d point = vertex.Point(10);
      if (!inSpace) point.z = elevation;
      vertices.push_back({point, inSpace ? 0 : vertex.Real(42, 0)});
    }
    if (vertex.IsBroken()) groups.Break();
  }
  const ObjectFrame frame = inSpace ? ObjectFrame({0, 0, 1}) : groups.Frame();
  SketchVertices(task, vertices, (flags & kClosed) != 0, frame);
}

void SketchCircle(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  const ObjectFrame frame = groups.Frame();
  const AcGePoint3d center = frame.ToWorld(groups.Point(10));
  const double radius = groups.Needed(40);
  const bool isArc = Trimmed(groups.Tags()[0].value) == "ARC";
  const double start = groups.Angle(50);
  const double sweep = SweepBetween(start, isArc ? groups.Angle(51) : start);
  if (radius <= 0) groups.Break();
  std::vector<AcGePoint3d> path;
  AppendArc(center, frame.X() * radius, frame.Y() * radius, isArc ? start : 0, sweep, path);
  if (!isArc) path.pop_back();
  task.AddPath(path, !isArc);
}

void SketchEllipse(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  const AcGePoint3d center = groups.Point(10);
  const Vector major = groups.Point(11) - AcGePoint3d{};
  const Vector minor = Cross(ObjectFrame(groups.Extrusion()).Z(), major) * groups.Needed(40);
  constexpr double kFullTurn = 2 * std::numbers::pi;
  const double start = groups.Real(41, 0);
  const double sweep = SweepBetween(start, groups.Real(42, kFullTurn));
  if (Length(major) <= 0) groups.Break();
  const bool closed = sweep > kFullTurn - 1e-9;
  std::vector<AcGePoint3d> path;
  AppendArc(center, major, minor, start, sweep, path);
  if (closed) path.pop_back();
  task.AddPath(path, closed);
}

/// Control points and knots decide; a spline without them passes its fit points.
void SketchSpline(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  Spline spline;
  spline.degree = static_cast<int>(std::clamp<std::int64_t>(groups.Integer(71, 3), 0, 1000));
  spline.knots = groups.Reals(40);
  spline.controls = groups.Points(10);
  spline.weights = groups.Reals(41);
  const std::vector<AcGePoint3d> fit = groups.Points(11);
  const bool closed = (groups.Integer(70, 0) & kClosed) != 0;
  if (groups.IsBroken()) return;
  std::vector<AcGePoint3d> path;
  if (!AppendSpline(spline, path)) AppendSmoothCurve(fit, closed, path);
  if (path.empty()) groups.Break();
  task.AddPath(path);
}

void SketchPoint(const SketchTask& task) {
  const AcGePoint3d position = task.groups.Point(10);
  if (!task.groups.IsBroken()) task.sketch.marks.push_back({task.style, position});
}

/// Four corners, the last two in the order of a bow tie; a triangle repeats the third or leaves it out.
void SketchSolid(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  const ObjectFrame frame = groups.Frame();
  std::vector<AcGePoint3d> edge{groups.Point(10), groups.Point(11), groups.Point(12)};
  if (groups.Has(13)) edge.insert(edge.begin() + 2, groups.Point(13));
  for (AcGePoint3d& corner : edge) corner = frame.ToWorld(corner);
  if (edge.size() == 4 && edge[2] == edge[3]) edge.pop_back();
  if (!groups.IsBroken()) task.sketch.AddArea(task.style, edge);
}

void SketchFace(const SketchTask& task) {
  EntityGroups& groups = task.groups;
  std::vector<AcGePoint3d> edge{groups.Point(10), groups.Point(11), groups.Point(12)};
  if (groups.Has(13)) edge.push_back(groups.Point(13));
  if (edge.size() == 4 && edge[2] == edge[3]) edge.pop_back();
  task.AddPath(edge, true);
}

void SketchLeader(const SketchTask& task) {
  task.AddPath(task.groups.Points(10));
}

/// The direction of a text and of its uprights, from the angle of its base line and its lean.
void TurnText(SketchText& text, const ObjectFrame& frame, double height, double widthFactor, double angle,
              double slant) {
  const auto inPlane = [&frame](double x, double y) { return frame.ToWorld({x, y, 0}) - AcGePoint3d{}; };
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  text.along = inPlane(c, s) * (height * widthFactor);
  text.up = inPlane(c * std::tan(slant) - s, s * std::tan(slant) + c) * height;
}

/// Takes where a single-line text stands out of its groups for alignment. levelCode: 73, of attributes 74.
void AlignText(EntityGroups& groups, std::int32_t levelCode, SketchText& text, double& angle) {
  constexpr std::int64_t kAligned = 3;
  constexpr std::int64_t kMiddle = 4;
  constexpr std::int64_t kFit = 5;
  const std::int64_t side = groups.Integer(72, 0);
  const std::int64_t level = groups.Integer(levelCode, 0);
  text.position = groups.Point(10);
  if ((side == 0 && level == 0) || !groups.Has(11)) return;
  const AcGePoint3d second = groups.Point(11);
  if (side == kAligned || side == kFit) {
    const Vector way = second - text.position;
    text.fitWidth = std::hypot(way.x, way.y);
    if (text.fitWidth > 0) angle = std::atan2(way.y, way.x);
    return;
  }
  text.position = second;
  text.side = side == 1 || side == kMiddle ? TextSide::Center : side == 2 ? TextSide::Right : TextSide::Left;
  text.level =
      side == kMiddle ? TextLevel::Middle : static_cast<TextLevel>(std::clamp<std::int64_t>(level, 0, 3));
}

void SketchLineOfText(EntityGroups& groups, std::int32_t levelCode, const SketchStyle& style,
                      const DrawingData& drawing, Sketch& sketch) {
  constexpr std::int64_t kBackward = 2;
  constexpr std::int64_t kUpsideDown = 4;
  constexpr double kSteepest = 1.5;  // radians: close to lying
  SketchText text;
  text.style = style;
  text.text = PlainText(drawing.dialect.encoding.Decode(groups.Text(1)));
  const double height = groups.Needed(40);
  const double widthFactor = groups.Real(41, 1);
  double angle = groups.Angle(50);
  AlignText(groups, levelCode, text, angle);
  const ObjectFrame frame = groups.Frame();
  TurnText(text, frame, height, widthFactor > 0 ? widthFactor : 1, angle,
           std::clamp(groups.Angle(51), -kSteepest, kSteepest));
  const std::int64_t turned = groups.Integer(71, 0);
  if ((turned & kBackward) != 0) text.along = text.along * -1;
  if ((turned & kUpsideDown) != 0) text.up = text.up * -1;
  if (text.fitWidth > 0) text.fitWidth /= Length(text.along);
  text.position = frame.ToWorld(text.position);
  if (height <= 0) groups.Break();
  if (!groups.IsBroken() && !text.text.empty()) sketch.texts.push_back(std::move(text));
}

void SketchSingleText(const SketchTask& task) {
  SketchLineOfText(task.groups, 73, task.style, task.drawing, task.sketch);
}

/// Of the definitions of attributes only constant ones are part of what a block shows.
void SketchDefinition(const SketchTask& task) {
  constexpr std::int64_t kConstant = 2;
  const std::int64_t flags = task.groups.Integer(70, 0);
  if ((flags & kConstant) != 0) SketchAttribute(task.groups, task.style, task.drawing, task.sketch);
}

using SketchMaker = void (*)(const SketchTask& task);

struct KindOfEntity {
  std::string_view type;
  SketchMaker maker;
};

constexpr std::array<KindOfEntity, 16> kKinds = {{
    {"LINE", SketchLine},
    {"LWPOLYLINE", SketchLightPolyline},
    {"POLYLINE", SketchHeavyPolyline},
    {"TEXT", SketchSingleText},
    {"MTEXT", [](const SketchTask& t) { SketchMultilineText(t.groups, t.style, t.drawing, t.sketch); }},
    {"CIRCLE", SketchCircle},
    {"ARC", SketchCircle},
    {"ELLIPSE", SketchEllipse},
    {"SPLINE", SketchSpline},
    {"HATCH", [](const SketchTask& t) { SketchHatch(t.groups, t.style, t.sketch); }},
    {"POINT", SketchPoint},
    {"SOLID", SketchSolid},
    {"TRACE", SketchSolid},
    {"3DFACE", SketchFace},
    {"LEADER", SketchLeader},
    {"ATTDEF", SketchDefinition},
}};

}  // namespace

bool SketchEntity(std::span<const Tag> tags, const SketchStyle& style, const DrawingData& drawing,
                  Sketch& sketch) {
  const std::string_view type = Trimmed(tags[0].value);
  const auto kind =
      std::find_if(kKinds.begin(), kKinds.end(), [type](const KindOfEntity& k) { return k.type == type; });
  if (kind == kKinds.end()) return true;
  EntityGroups groups(tags);
  const Sketch::Extent before = sketch.Now();
  kind->maker({groups, tags, style, drawing, sketch});
  if (groups.IsBroken()) sketch.TakeBack(before);
  return !groups.IsBroken();
}

void SketchAttribute(EntityGroups& attribute, const SketchStyle& style, const DrawingData& drawing,
                     Sketch& sketch) {
  constexpr std::int64_t kInvisible = 1;
  if ((attribute.Integer(70, 0) & kInvisible) != 0) return;
  SketchLineOfText(attribute, 74, style, drawing, sketch);
}

}  // namespace zwt
