// The plain records of a drawing: its entities, pipes, tables and blocks, and the file that it was read from.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/drawing/entity_tags.h"
#include "host/drawing/geometry.h"
#include "host/text/wide_text.h"

namespace zwt {

/// One entity of the drawing's entity section, in model or paper space. Entities keep their place for good:
/// an erased one stays as a record that is not alive.
struct EntityRecord {
  std::string_view tags;     // in the file's bytes, or in the drawing's own
  std::uint64_t handle = 0;  // 0: the file gives one that is no number
  std::int32_t layer = 0;    // index of the drawing's layers
  std::int32_t pipe = -1;    // index of the drawing's pipes, or -1
  EntityType type = EntityType::Other;
  bool alive = true;
  bool inPaperSpace = false;
  bool canBePipe = false;
  bool handleInTags = false;  // false: the handle was given here, the file shows none
};

/// What the model knows of a pipe beside its entity.
struct PipeRecord {
  std::int32_t entity = 0;       // index of its entity
  std::uint32_t dataOffset = 0;  // where its extended data begins in the entity's tags
  AcGePoint3d start;
  AcGePoint3d end;
  double length = 0;
};

/// A layer. Negative colours of the file are folded into isOff.
struct Layer {
  CString name;
  std::uint64_t handle = 0;
  std::int32_t color = 7;
  std::int32_t trueColor = -1;  // 0xRRGGBB, -1: none
  bool isOff = false;
  bool isFrozen = false;
  bool isHidden = false;
  bool inTable = false;  // false: only named by entities
  bool inFile = false;   // the file's table has it
};

/// A text style or a registered application.
struct NamedRecord {
  CString name;
  std::uint64_t handle = 0;
  bool inTable = true;
  bool inFile = false;
  double widthFactor = 1;  // of text styles
};

/// A block definition; its entities are kept as they are.
struct Block {
  CString name;
  AcGePoint3d base;
  std::vector<std::string_view> entities;
};

/// A pipe that is none of the model's, since it lies in a block or in paper space.
struct StrayPipe {
  std::uint64_t handle = 0;
  std::int32_t block = -1;  // index of the block, -1: paper space
  AcGePoint3d start;
};

/// One attachment as the file has it: the entity and the handle of the pipe.
struct Attachment {
  std::int32_t entity = 0;
  std::uint64_t pipeHandle = 0;
};

/// A table of the file into which records can be added.
struct TablePlace {
  bool found = false;
  std::uint64_t handle = 0;
  std::string_view count;    // value of the table's own group 70, empty where there is none
  std::size_t insertAt = 0;  // in front of its ENDTAB
};

/// Places in the file that a save may change. All are offsets into bytes.
struct SourceFile {
  std::string bytes;
  bool hasEntities = false;
  std::size_t insertEntities =
      0;  // in front of the entity section's ENDSEC, or where the section would stand
  bool hasTables = false;
  std::size_t insertTables = 0;  // in front of the table section's ENDSEC, or where the section would stand
  bool hasHeader = false;
  std::size_t insertHeader = 0;  // in front of the header's ENDSEC
  std::string_view handleSeed;   // value of $HANDSEED, empty where there is none
  std::string_view handling;     // value of $HANDLING, empty where there is none
  std::string_view firstLayer;   // tags of the first layer: new ones take plot style and material from it
  TablePlace layers;
  TablePlace styles;
  TablePlace applications;
};

/// All that a reader makes of a file, handed over to a Drawing.
struct DrawingData {
  std::shared_ptr<const SourceFile> source;  // null: the drawing comes from no file
  Dialect dialect;
  double dimensionScale = 1;
  std::uint64_t nextHandle = 1;
  std::vector<EntityRecord> entities;
  std::vector<PipeRecord> pipes;
  std::vector<Layer> layers;
  std::vector<NamedRecord> styles;
  std::vector<NamedRecord> applications;
  std::vector<Block> blocks;
  std::vector<StrayPipe> strayPipes;
  std::vector<Attachment> attachments;
};

}  // namespace zwt
