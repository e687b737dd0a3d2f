#include "host/drawing/entity_groups.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace zwt {
namespace {

/// Coordinates beyond this have no millimetres left, and their squares would overflow.
constexpr double kFarthest = 1e15;

constexpr std::int32_t kEmbeddedObject = 101;
constexpr std::int32_t kFirstDataCode = 1000;

std::span<const Tag> OwnTags(std::span<const Tag> tags) {
  std::size_t count = 1;
  while (count < tags.size() && tags[count].code != 0 && tags[count].code != kEmbeddedObject &&
         tags[count].code < kFirstDataCode) {
    ++count;
  }
  return tags.first(count);
}

}  // namespace

EntityGroups::EntityGroups(std::span<const Tag> tags) : tags_(OwnTags(tags)) {}

const Tag* EntityGroups::Find(std::int32_t code) const {
  for (const Tag& tag : tags_) {
    if (tag.code == code) return &tag;
  }
  return nullptr;
}

std::string_view EntityGroups::Text(std::int32_t code) const {
  const Tag* tag = Find(code);
  return tag == nullptr ? std::string_view() : tag->value;
}

double EntityGroups::Number(const Tag& tag) {
  double number = 0;
  if (ParseReal(tag.value, number) && std::abs(number) <= kFarthest) return number;
  broken_ = true;
  return 0;
}

double EntityGroups::Real(std::int32_t code, double missing) {
  const Tag* tag = Find(code);
  return tag == nullptr ? missing : Number(*tag);
}

double EntityGroups::Needed(std::int32_t code) {
  const Tag* tag = Find(code);
  if (tag != nullptr) return Number(*tag);
  broken_ = true;
  return 0;
}

std::int64_t EntityGroups::Integer(std::int32_t code, std::int64_t missing) {
  const Tag* tag = Find(code);
  std::int64_t number = missing;
  if (tag != nullptr && !ParseInteger(tag->value, number)) broken_ = true;
  return number;
}

AcGePoint3d EntityGroups::Point(std::int32_t code) {
  return {Needed(code), Needed(code + 10), Real(code + 20, 0)};
}

std::vector<AcGePoint3d> EntityGroups::Points(std::int32_t code) {
  std::vector<AcGePoint3d> points;
  for (std::size_t i = 0; i < tags_.size(); ++i) {
    if (tags_[i].code != code) continue;
    if (i + 1 == tags_.size() || tags_[i + 1].code != code + 10) {
      broken_ = true;
      return {};
    }
    const bool inSpace = i + 2 < tags_.size() && tags_[i + 2].code == code + 20;
    points.push_back({Number(tags_[i]), Number(tags_[i + 1]), inSpace ? Number(tags_[i + 2]) : 0});
  }
  return points;
}

std::vector<double> EntityGroups::Reals(std::int32_t code) {
  std::vector<double> numbers;
  for (const Tag& tag : tags_) {
    if (tag.code == code) numbers.push_back(Number(tag));
  }
  return numbers;
}

double EntityGroups::Angle(std::int32_t code) {
  return Real(code, 0) * (std::numbers::pi / 180);
}

Vector EntityGroups::Extrusion() {
  return {Real(210, 0), Real(220, 0), Real(230, 1)};
}

std::size_t EntitySize(std::span<const Tag> tags, std::size_t at) {
  std::size_t end = at + 1;
  while (end < tags.size() && tags[end].code != 0) ++end;
  return end - at;
}

}  // namespace zwt
