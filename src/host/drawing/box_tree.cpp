// Pipes of a schematic come in all lengths, from stubs of millimetres to mains across the sheet, and drawings
// lie anywhere from the origin to 1e9 mm away: no cell size of a grid fits both. A packed tree written for
// the purpose was measured beside this one and was no faster.

#include "host/drawing/box_tree.h"

#include <algorithm>
#include <utility>

#include <boost/geometry/algorithms/disjoint.hpp>
#include <boost/geometry/core/cs.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

namespace zwt {
namespace {

namespace geometry = boost::geometry;

using TreePoint = geometry::model::point<double, 3, geometry::cs::cartesian>;
using TreeBox = geometry::model::box<TreePoint>;
using Entry = std::pair<TreeBox, std::int32_t>;

TreePoint ToPoint(const AcGePoint3d& point) {
  return {point.x, point.y, point.z};
}

std::vector<Entry> Entries(const std::vector<Box>& boxes) {
  std::vector<Entry> entries;
  entries.reserve(boxes.size());
  for (const Box& box : boxes) {
    entries.emplace_back(TreeBox(ToPoint(box.low), ToPoint(box.high)),
                         static_cast<std::int32_t>(entries.size()));
  }
  return entries;
}

}  // namespace

struct BoxTree::Tree {
  geometry::index::rtree<Entry, geometry::index::quadratic<16>> entries;
};

Box BoxAround(const AcGePoint3d& a, const AcGePoint3d& b, double distance) {
  return {{std::min(a.x, b.x) - distance, std::min(a.y, b.y) - distance, std::min(a.z, b.z) - distance},
          {std::max(a.x, b.x) + distance, std::max(a.y, b.y) + distance, std::max(a.z, b.z) + distance}};
}

BoxTree::BoxTree() : BoxTree(std::vector<Box>()) {}
// A tree made of a range is packed: sorted from the top down, without the splits of one insertion after
// another.
BoxTree::BoxTree(const std::vector<Box>& boxes) : tree_(std::make_unique<Tree>()) {
  tree_->entries = decltype(Tree::entries)(Entries(boxes));
}
BoxTree::~BoxTree() = default;
BoxTree::BoxTree(BoxTree&&) noexcept = default;
BoxTree& BoxTree::operator=(BoxTree&&) noexcept = default;

std::vector<std::int32_t> BoxTree::Find(const Box& wanted) const {
  std::vector<std::int32_t> found;
  const TreeBox box(ToPoint(wanted.low), ToPoint(wanted.high));
  tree_->entries.query(
      geometry::index::intersects(box),
      boost::make_function_output_iterator([&](const Entry& entry) { found.push_back(entry.second); }));
  return found;
}

}  // namespace zwt
