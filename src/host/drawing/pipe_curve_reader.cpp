// Reads the way along a pipe from the tags of its line or polyline.

#include <array>
#include <cmath>

#include "host/drawing/entity_tags.h"

namespace zwt {
namespace {

/// Coordinates beyond this have no millimetres left, and their squares would overflow.
constexpr double kFarthest = 1e15;

constexpr std::int64_t kClosed = 1;
constexpr std::int64_t kSpace = 8;           // a polyline of points in space
constexpr std::int64_t kControlVertex = 16;  // of a vertex: it bends the curve but does not lie on it

/// Reads groups of the tags of one entity (a line, a polyline's head, a vertex).
class GroupReader {
 public:
  GroupReader(std::span<const Tag> tags, std::int64_t line) : tags_(tags), line_(line) {}

  double Number(const Tag& tag) const {
    double number = 0;
    if (!ParseReal(tag.value, number) || std::abs(number) > kFarthest) {
      throw DrawingError(line_ + 2 * (&tag - tags_.data()) + 1,
                         "expected a number for a pipe, found " + Quoted(tag.value));
    }
    return number;
  }

  /// The first such group in front of extended data; missing: the given number.
  double Real(std::int32_t code, double missing) const {
    const Tag* tag = Find(code);
    return tag == nullptr ? missing : Number(*tag);
  }

  double NeededReal(std::int32_t code) const {
    const Tag* tag = Find(code);
    if (tag == nullptr) {
      throw DrawingError(line_, "expected a group " + std::to_string(code) + " in the pipe's " +
                                    std::string(Trimmed(tags_[0].value)));
    }
    return Number(*tag);
  }

  std::int64_t Flags() const {
    const Tag* tag = Find(70);
    std::int64_t flags = 0;
    if (tag != nullptr && !ParseInteger(tag->value, flags)) {
      throw DrawingError(line_ + 2 * (tag - tags_.data()) + 1,
                         "expected whole-number flags of a pipe, found " + Quoted(tag->value));
    }
    return flags;
  }

  AcGePoint3d Point(std::int32_t code) const {
    return {NeededReal(code), NeededReal(code + 10), Real(code + 20, 0)};
  }

  ObjectFrame Frame() const { return ObjectFrame({Real(210, 0), Real(220, 0), Real(230, 1)}); }

 private:
  const Tag* Find(std::int32_t code) const {
    for (const Tag& tag : tags_) {
      if (tag.code >= 1000) return nullptr;
      if (tag.code == code) return &tag;
    }
    return nullptr;
  }

  std::span<const Tag> tags_;
  std::int64_t line_;
};

struct Vertex {
  AcGePoint3d point;
  double bulge = 0;
};

PipeCurve JoinVertices(const std::vector<Vertex>& vertices, bool closed, const ObjectFrame& frame) {
  PipeCurve curve;
  const std::size_t count = vertices.size();
  const std::size_t parts = closed && count > 1 ? count : count - 1;
  for (std::size_t i = 0; i < parts; ++i) {
    const Vertex& from = vertices[i];
    curve.push_back(BulgePart(from.point, vertices[(i + 1) % count].point, from.bulge, frame));
  }
  if (curve.empty()) {
    const AcGePoint3d only = frame.ToWorld(vertices[0].point);
    curve.push_back(StraightPart(only, only));
  }
  return curve;
}

PipeCurve ReadLightPolyline(std::span<const Tag> tags, std::int64_t line) {
  const GroupReader groups(tags, line);
  const double elevation = groups.Real(38, 0);
  std::vector<Vertex> vertices;
  for (std::size_t i = 1; i < tags.size() && tags[i].code < 1000; ++i) {
    const Tag& tag = tags[i];
    if (tag.code == 10) {
      if (i + 1 == tags.size() || tags[i + 1].code != 20) {
        throw DrawingError(line + 2 * static_cast<std::int64_t>(i + 1),
                           "expected a group 20 behind the group 10");
      }
      vertices.push_back({{groups.Number(tag), groups.Number(tags[i + 1]), elevation}, 0});
    } else if (tag.code == 42 && !vertices.empty()) {
      vertices.back().bulge = groups.Number(tag);
    }
  }
  if (vertices.empty()) throw DrawingError(line, "expected a vertex in the pipe's LWPOLYLINE");
  return JoinVertices(vertices, (groups.Flags() & kClosed) != 0, groups.Frame());
}

/// Index behind the tags of the entity that begins at a place.
std::size_t NextEntity(std::span<const Tag> tags, std::size_t at) {
  do {
    ++at;
  } while (at < tags.size() && tags[at].code != 0);
  return at;
}

PipeCurve ReadHeavyPolyline(std::span<const Tag> tags, std::int64_t line) {
  std::size_t at = NextEntity(tags, 0);
  const GroupReader head(tags.first(at), line);
  const std::int64_t flags = head.Flags();
  const bool inSpace = (flags & kSpace) != 0;
  const double elevation = head.Real(30, 0);
  std::vector<Vertex> vertices;
  while (at < tags.size()) {
    const std::size_t next = NextEntity(tags, at);
    const GroupReader vertex(tags.subspan(at, next - at), line + 2 * static_cast<std::int64_t>(at));
    if (Trimmed(tags[at].value) == "VERTEX" && (vertex.Flags() & kControlVertex) == 0) {
      const AcGePoint3d point = vertex.Point(10);
      const double z = inSpace ? point.z : elevation;
      vertices.push_back({{point.x, point.y, z}, inSpace ? 0 : vertex.Real(42, 0)});
    }
    at = next;
  }
  if (vertices.empty()) throw DrawingError(line, "expected a vertex in the pipe's POLYLINE");
  return JoinVertices(vertices, (flags & kClosed) != 0, inSpace ? ObjectFrame({0, 0, 1}) : head.Frame());
}

}  // namespace

PipeCurve ReadPipeCurve(std::span<const Tag> tags, std::int64_t line) {
  const std::string_view type = Trimmed(tags[0].value);
  if (type == "LWPOLYLINE") return ReadLightPolyline(tags, line);
  if (type == "POLYLINE") return ReadHeavyPolyline(tags, line);
  const GroupReader groups(tags, line);
  return {StraightPart(groups.Point(10), groups.Point(11))};
}

}  // namespace zwt
