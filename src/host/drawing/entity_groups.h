// The groups of one entity as its picture needs them: a wrong number does not throw, it makes the entity one
// that cannot be drawn.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "host/drawing/geometry.h"
#include "host/drawing/tags.h"

namespace zwt {

class EntityGroups {
 public:
  /// tags: of one entity, from its group 0 on. Extended data, embedded objects and other entities behind it
  /// do not count.
  explicit EntityGroups(std::span<const Tag> tags);

  std::span<const Tag> Tags() const { return tags_; }
  bool IsBroken() const { return broken_; }
  void Break() { broken_ = true; }

  /// The first such group; null: there is none.
  const Tag* Find(std::int32_t code) const;
  /// Value of the first such group, blanks kept; empty where there is none.
  std::string_view Text(std::int32_t code) const;
  bool Has(std::int32_t code) const { return Find(code) != nullptr; }

  /// The number of a tag. Beyond 1e15, or none: the entity is broken.
  double Number(const Tag& tag);
  double Real(std::int32_t code, double missing);
  /// A group without which the entity is broken.
  double Needed(std::int32_t code);
  std::int64_t Integer(std::int32_t code, std::int64_t missing);
  /// A point under code, code + 10 and code + 20; the last may be missing.
  AcGePoint3d Point(std::int32_t code);
  /// The points of which every coordinate x has this code, each with the y (and z) right behind it.
  std::vector<AcGePoint3d> Points(std::int32_t code);
  /// All numbers of a group, in order.
  std::vector<double> Reals(std::int32_t code);
  /// Angle of a group in degrees, as radians; missing: 0.
  double Angle(std::int32_t code);
  Vector Extrusion();
  ObjectFrame Frame() { return ObjectFrame(Extrusion()); }

 private:
  std::span<const Tag> tags_;
  bool broken_ = false;
};

/// Number of tags of the entity that begins at a place, up to the next group 0.
std::size_t EntitySize(std::span<const Tag> tags, std::size_t at);

}  // namespace zwt
