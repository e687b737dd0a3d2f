// A spatial index over boxes, built once and then asked: an R-tree.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "host/drawing/geometry.h"

namespace zwt {

/// An upright box; low is not above high.
struct Box {
  AcGePoint3d low;
  AcGePoint3d high;
};

/// Box of two corners given in any order, and so far around.
Box BoxAround(const AcGePoint3d& a, const AcGePoint3d& b, double distance);

class BoxTree {
 public:
  BoxTree();
  /// Box i is found under its number i. Coordinates are finite. n log n in the number of boxes.
  explicit BoxTree(const std::vector<Box>& boxes);
  ~BoxTree();
  BoxTree(BoxTree&&) noexcept;
  BoxTree& operator=(BoxTree&&) noexcept;

  /// The numbers of the boxes that meet another, edges included, in no order.
  std::vector<std::int32_t> Find(const Box& wanted) const;

 private:
  struct Tree;

  std::unique_ptr<Tree> tree_;
};

}  // namespace zwt
