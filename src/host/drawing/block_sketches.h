// Sketches of blocks, each made when an insert first asks for it, and of whole entities with what their
// inserts put into them.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/drawing/drawing_data.h"
#include "host/drawing/sketch.h"

namespace zwt {

class EntityGroups;

class BlockSketches {
 public:
  /// Both must outlive this; layers that only blocks name are added to the list's.
  BlockSketches(const DrawingData& drawing, DisplayList& list);

  /// Adds what an entity of model or paper space shows. False where it is left out.
  bool AddEntity(std::string_view entity, Sketch& sketch);

 private:
  enum class State : std::uint8_t { Unknown, Being, Known };
  struct BlockSketch {
    State state = State::Unknown;
    Sketch sketch;
    AcGePoint3d base;
    std::int64_t cost = 0;
  };
  /// Columns and rows of an insert, and the way from one to the next.
  struct Array {
    std::int64_t columns = 1;
    std::int64_t rows = 1;
    Vector column;
    Vector row;
  };
  /// Whether what is drawn lies in a block: then an insert decides some styles.
  enum class Within { Drawing, Block };

  bool Add(std::span<const Tag> tags, Within within, Sketch& sketch);
  bool AddInsert(std::span<const Tag> tags, const SketchStyle& style, Within within, Sketch& sketch);
  void AddAttributes(std::span<const Tag> tags, Within within, Sketch& sketch);
  bool AddDimension(EntityGroups& dimension, const SketchStyle& style, Sketch& sketch);
  bool AddCopies(const BlockSketch& block, const Placement& place, const Array& array,
                 const SketchStyle& style, Sketch& sketch);
  /// Null where the block is missing or is being sketched: it holds itself.
  const BlockSketch* SketchOf(std::string_view name);
  void MakeSketch(std::size_t block);
  SketchStyle StyleOf(const EntityGroups& groups, Within within);
  std::int32_t LayerOf(std::string_view written);
  std::int32_t ColorOfLayer(std::int32_t layer) const;
  bool IsFrozen(std::int32_t layer) const;

  const DrawingData& drawing_;
  DisplayList& list_;
  std::vector<BlockSketch> blocks_;
  std::unordered_map<CString, std::size_t> blocksByName_;             // folded
  std::unordered_map<CString, std::int32_t> layersByName_;            // folded
  std::unordered_map<std::string_view, std::int32_t> layersByBytes_;  // as written
  std::int64_t budget_ = kMostInserted;
  int depth_ = 0;
};

}  // namespace zwt
