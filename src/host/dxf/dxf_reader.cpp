// Reads a file in one pass: tags are cut, entities become spans of the file's bytes with a small record each,
// and the places are noted at which a save may put something.

#include <algorithm>
#include <array>
#include <span>
#include <unordered_map>
#include <utility>

#include "host/dxf/dxf_file.h"
#include "host/dxf/source_encoding.h"

namespace zwt {
namespace {

constexpr std::int32_t kCommentCode = 999;
constexpr std::size_t kNoPlace = std::string_view::npos;
/// Handles beyond this are left out when the next free one is looked for: what follows them would overflow.
constexpr std::uint64_t kHighestHandle = std::uint64_t{1} << 62;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// An entity as it was read: its bytes, its first line, its tags.
struct ReadEntity {
  std::string_view bytes;
  std::int64_t line = 0;
  std::span<const Tag> tags;
};

/// Whether a group 0 begins or ends a part of the file, and so is no entity.
bool IsStructure(std::string_view keyword) {
  static constexpr std::array<std::string_view, 7> kKeywords = {"SECTION", "EOF",    "BLOCK", "TABLE",
                                                                "ENDTAB",  "ENDSEC", "ENDBLK"};
  return !keyword.empty() && std::string_view("SEBT").find(keyword[0]) != std::string_view::npos &&
         std::find(kKeywords.begin(), kKeywords.end(), keyword) != kKeywords.end();
}

class DxfReader {
 public:
  explicit DxfReader(std::string bytes);

  DrawingData Read();

 private:
  // Tags. next_ is the group 0 (or any other tag) that comes next; it has been cut already.
  void Advance();
  void SkipComments();
  [[noreturn]] void Fail(const std::string& expected) const;
  bool IsNext(std::string_view keyword) const { return next_.code == 0 && Trimmed(next_.value) == keyword; }
  void NoteHandle(const Tag& tag);
  void ReadGroup();
  std::string_view BytesFrom(std::size_t begin) const {
    return std::string_view(source_->bytes).substr(begin, nextAt_ - begin);
  }

  // Structure.
  void ReadSection();
  void SkipToSectionEnd();
  void ReadHeader();
  void ReadHeaderValue(std::string_view variable);
  void ReadTables();
  void ReadTable();
  void ReadTableRecord(std::string_view table);
  void ReadBlocks();
  void ReadBlock();
  void ReadEntities();
  ReadEntity ReadOneEntity();

  // Content.
  void EnterLayer(std::string_view bytes);
  void EnterNamed(std::vector<NamedRecord>& table);
  void EnterEntity(const ReadEntity& entity);
  void EnterPipe(const ReadEntity& entity, const EntityFacts& facts, std::int32_t index);
  void NoteStrayPipe(const ReadEntity& entity, const EntityFacts& facts, std::int32_t block);
  std::int32_t LayerNumber(std::string_view written);
  TablePlace* PlaceOf(std::string_view table);
  void FinishNames();
  void GiveHandles();

  std::shared_ptr<SourceFile> source_ = std::make_shared<SourceFile>();
  DrawingData data_;
  TagReader reader_{std::string_view()};
  Tag next_;
  std::size_t nextAt_ = 0;               // where next_ begins
  std::int64_t nextLine_ = 1;            // its line
  std::vector<Tag> tags_;                // of the thing being read
  std::size_t tablesPlace_ = kNoPlace;   // where a table section would stand
  std::size_t objectsPlace_ = kNoPlace;  // begin of the section of objects
  std::string_view codePage_;
  std::uint64_t highestHandle_ = 0;
  std::uint64_t seed_ = 0;

  // Names stay bytes until the end of the file has told the encoding.
  std::vector<std::string_view> tableLayers_;
  std::unordered_map<std::string_view, std::int32_t> layerNumbers_;
  std::vector<std::string_view> entityLayers_;
  std::string_view lastLayer_;
  std::int32_t lastLayerNumber_ = -1;
  std::vector<std::string_view> styleNames_;
  std::vector<std::string_view> applicationNames_;
  std::vector<std::string_view> blockNames_;
};

DxfReader::DxfReader(std::string bytes) {
  data_.dialect.version = kOldestVersion;  // a file that tells none is R12
  source_->bytes = std::move(bytes);
  const std::string_view all = source_->bytes;
  RefuseOtherFormats(all);
  const std::size_t begin = all.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  reader_ = TagReader(all, begin);
}

void DxfReader::Fail(const std::string& expected) const {
  throw DrawingError(nextLine_, "expected " + expected + ", found group " + std::to_string(next_.code) + " " +
                                    Quoted(Trimmed(next_.value)));
}

void DxfReader::Advance() {
  nextAt_ = reader_.Position();
  nextLine_ = reader_.Line();
  if (!reader_.Next(next_)) {
    throw DrawingError(nextLine_, "expected group 0 \"EOF\", found the end of the file");
  }
}

void DxfReader::SkipComments() {
  while (next_.code == kCommentCode) Advance();
}

void DxfReader::NoteHandle(const Tag& tag) {
  std::uint64_t handle = 0;
  if (ParseHandle(tag.value, handle) && handle < kHighestHandle)
    highestHandle_ = std::max(highestHandle_, handle);
}

/// Reads next_ and what follows up to the next group 0 into tags_ (which is not emptied).
void DxfReader::ReadGroup() {
  do {
    tags_.push_back(next_);
    if (next_.code == 5 || next_.code == 105 || next_.code == 1005) NoteHandle(next_);
    Advance();
  } while (next_.code != 0);
}

DrawingData DxfReader::Read() {
  Advance();
  while (true) {
    SkipComments();
    if (IsNext("EOF")) break;
    if (!IsNext("SECTION")) Fail("group 0 \"SECTION\" or \"EOF\"");
    ReadSection();
  }
  if (tablesPlace_ == kNoPlace) tablesPlace_ = nextAt_;
  if (!source_->hasTables) source_->insertTables = tablesPlace_;
  if (!source_->hasEntities) source_->insertEntities = objectsPlace_ != kNoPlace ? objectsPlace_ : nextAt_;
  const std::string_view all = source_->bytes;
  const std::size_t firstEnd = all.find('\n');
  const bool carriageReturns =
      firstEnd != 0 && firstEnd != std::string_view::npos && all[firstEnd - 1] == '\r';
  data_.dialect.lineEnd = carriageReturns ? "\r\n" : "\n";
  data_.dialect.encoding = ReadEncoding(data_.dialect.version, codePage_, all);
  FinishNames();
  GiveHandles();
  data_.source = source_;
  return std::move(data_);
}

void DxfReader::ReadSection() {
  const std::size_t begin = nextAt_;
  Advance();
  SkipComments();
  if (next_.code != 2) Fail("group 2 with the name of the section");
  const std::string_view name = Trimmed(next_.value);
  if (tablesPlace_ == kNoPlace && name != "HEADER" && name != "CLASSES") tablesPlace_ = begin;
  if (name == "OBJECTS") objectsPlace_ = begin;
  Advance();
  if (name == "HEADER") {
    ReadHeader();
  } else if (name == "TABLES") {
    ReadTables();
  } else if (name == "BLOCKS") {
    ReadBlocks();
  } else if (name == "ENTITIES") {
    ReadEntities();
  } else {
    SkipToSectionEnd();
  }
  if (!IsNext("ENDSEC")) Fail("group 0 \"ENDSEC\"");
  Advance();
}

void DxfReader::SkipToSectionEnd() {
  while (!IsNext("ENDSEC")) {
    if (IsNext("SECTION") || IsNext("EOF")) Fail("group 0 \"ENDSEC\"");
    if (next_.code == 5 || next_.code == 105) NoteHandle(next_);
    Advance();
  }
}

void DxfReader::ReadHeader() {
  std::string_view variable;
  while (next_.code != 0) {
    if (next_.code == 9) {
      variable = Trimmed(next_.value);
    } else {
      ReadHeaderValue(variable);
    }
    Advance();
  }
  source_->hasHeader = true;
  source_->insertHeader = nextAt_;
}

void DxfReader::ReadHeaderValue(std::string_view variable) {
  if (variable == "$ACADVER" && next_.code == 1) {
    data_.dialect.version = ReadVersion(next_.value, nextLine_ + 1);
  } else if (variable == "$DWGCODEPAGE" && next_.code == 3) {
    codePage_ = next_.value;
  } else if (variable == "$HANDSEED" && next_.code == 5) {
    source_->handleSeed = next_.value;
    if (!ParseHandle(next_.value, seed_) || seed_ >= kHighestHandle) seed_ = 0;
  } else if (variable == "$HANDLING" && next_.code == 70) {
    source_->handling = next_.value;
  } else if (variable == "$DIMSCALE" && next_.code == 40) {
    if (!ParseReal(next_.value, data_.dimensionScale)) {
      throw DrawingError(nextLine_ + 1, "expected a number for $DIMSCALE, found " + Quoted(next_.value));
    }
  }
}

TablePlace* DxfReader::PlaceOf(std::string_view table) {
  if (table == "LAYER") return &source_->layers;
  if (table == "STYLE") return &source_->styles;
  if (table == "APPID") return &source_->applications;
  return nullptr;
}

void DxfReader::ReadTables() {
  SkipComments();
  while (IsNext("TABLE")) {
    ReadTable();
    SkipComments();
  }
  source_->hasTables = true;
  source_->insertTables = nextAt_;
}

void DxfReader::ReadTable() {
  tags_.clear();
  ReadGroup();
  std::string_view name;
  TablePlace place;
  place.found = true;
  for (const Tag& tag : tags_) {
    if (tag.code == 2 && name.empty()) name = Trimmed(tag.value);
    if (tag.code == 5) ParseHandle(tag.value, place.handle);
    if (tag.code == 70) place.count = tag.value;
  }
  while (!IsNext("ENDTAB")) {
    if (IsNext("TABLE") || IsNext("ENDSEC") || IsNext("SECTION") || IsNext("EOF")) Fail("group 0 \"ENDTAB\"");
    ReadTableRecord(name);
  }
  place.insertAt = nextAt_;
  TablePlace* held = PlaceOf(name);
  if (held != nullptr && !held->found) *held = place;
  tags_.clear();
  ReadGroup();
}

void DxfReader::ReadTableRecord(std::string_view table) {
  tags_.clear();
  const std::size_t begin = nextAt_;
  ReadGroup();
  if (table == "LAYER") {
    EnterLayer(BytesFrom(begin));
  } else if (table == "STYLE") {
    styleNames_.push_back(FirstValue(BytesFrom(begin), 2));
    EnterNamed(data_.styles);
  } else if (table == "APPID") {
    applicationNames_.push_back(FirstValue(BytesFrom(begin), 2));
    EnterNamed(data_.applications);
  } else if (table == "BLOCK_RECORD") {
    const std::string_view name = Trimmed(FirstValue(BytesFrom(begin), 2));
    const bool isModelSpace = name == "*Model_Space" || name == "*MODEL_SPACE";
    if (isModelSpace) ParseHandle(FirstValue(BytesFrom(begin), 5), data_.dialect.modelSpace);
  }
}

void DxfReader::EnterLayer(std::string_view bytes) {
  Layer layer;
  layer.inTable = layer.inFile = true;
  std::string_view name;
  for (const Tag& tag : tags_) {
    if (tag.code >= 1000) break;
    std::int64_t number = 0;
    if (tag.code == 2) name = Trimmed(tag.value);
    if (tag.code == 5) ParseHandle(tag.value, layer.handle);
    if (tag.code == 70 && ParseInteger(tag.value, number)) layer.isFrozen = (number & 1) != 0;
    if (tag.code == 62 && ParseInteger(tag.value, number)) {
      layer.isOff = number < 0;
      layer.color = static_cast<std::int32_t>(std::clamp<std::int64_t>(std::abs(number), 1, 255));
    }
    if (tag.code == 420 && ParseInteger(tag.value, number)) {
      layer.trueColor = static_cast<std::int32_t>(number & 0xFFFFFF);
    }
  }
  if (source_->firstLayer.empty()) source_->firstLayer = bytes;
  data_.layers.push_back(layer);
  tableLayers_.push_back(name);
}

void DxfReader::EnterNamed(std::vector<NamedRecord>& table) {
  NamedRecord record;
  record.inFile = true;
  for (const Tag& tag : tags_) {
    if (tag.code == 5) ParseHandle(tag.value, record.handle);
    if (tag.code == 41) ParseReal(tag.value, record.widthFactor);
  }
  table.push_back(record);
}

void DxfReader::ReadBlocks() {
  SkipComments();
  while (IsNext("BLOCK")) {
    ReadBlock();
    SkipComments();
  }
}

void DxfReader::ReadBlock() {
  tags_.clear();
  ReadGroup();
  Block block;
  std::string_view name;
  for (const Tag& tag : tags_) {
    if (tag.code == 2 && name.data() == nullptr) name = Trimmed(tag.value);
    if (tag.code == 10) ParseReal(tag.value, block.base.x);
    if (tag.code == 20) ParseReal(tag.value, block.base.y);
    if (tag.code == 30) ParseReal(tag.value, block.base.z);
  }
  const auto number = static_cast<std::int32_t>(data_.blocks.size());
  while (!IsNext("ENDBLK")) {
    const ReadEntity entity = ReadOneEntity();
    const EntityFacts facts = ReadFacts(entity.tags);
    if (facts.pipeData >= 0 && facts.canBePipe) NoteStrayPipe(entity, facts, number);
    block.entities.push_back(entity.bytes);
  }
  data_.blocks.push_back(std::move(block));
  blockNames_.push_back(name);
  tags_.clear();
  ReadGroup();
}

void DxfReader::ReadEntities() {
  SkipComments();
  while (!IsNext("ENDSEC")) EnterEntity(ReadOneEntity());
  source_->hasEntities = true;
  source_->insertEntities = nextAt_;
}

/// Reads an entity with what belongs to it: the vertices of a polyline, the attributes of an insert.
ReadEntity DxfReader::ReadOneEntity() {
  if (next_.code != 0) Fail("group 0 with an entity");
  if (IsStructure(Trimmed(next_.value))) Fail("an entity or the end of its section or block");
  tags_.clear();
  ReadEntity entity;
  entity.line = nextLine_;
  const std::size_t begin = nextAt_;
  const bool polyline = IsNext("POLYLINE");
  const bool insert = IsNext("INSERT");
  ReadGroup();
  const std::string_view part = polyline ? "VERTEX" : "ATTRIB";
  if (polyline || insert) {
    const bool parts = IsNext(part);
    while (IsNext(part)) ReadGroup();
    if ((polyline || parts) && IsNext("SEQEND")) ReadGroup();
  }
  entity.bytes = BytesFrom(begin);
  entity.tags = tags_;
  return entity;
}

std::int32_t DxfReader::LayerNumber(std::string_view written) {
  if (lastLayerNumber_ >= 0 && written == lastLayer_) return lastLayerNumber_;
  const auto [at, isNew] =
      layerNumbers_.try_emplace(written, static_cast<std::int32_t>(entityLayers_.size()));
  if (isNew) entityLayers_.push_back(written);
  lastLayer_ = written;
  lastLayerNumber_ = at->second;
  return at->second;
}

void DxfReader::EnterEntity(const ReadEntity& read) {
  const EntityFacts facts = ReadFacts(read.tags);
  const auto index = static_cast<std::int32_t>(data_.entities.size());
  EntityRecord& entity = data_.entities.emplace_back();
  entity.tags = read.bytes;
  entity.handle = facts.handle;
  entity.handleInTags = facts.hasHandle || facts.oddHandle;
  entity.layer = LayerNumber(facts.layer);
  entity.type = facts.type;
  entity.canBePipe = facts.canBePipe;
  entity.inPaperSpace = facts.inPaperSpace;
  if (facts.attachedTo != 0) data_.attachments.push_back({index, facts.attachedTo});
  if (facts.pipeData < 0 || !facts.canBePipe) return;
  if (facts.inPaperSpace) {
    NoteStrayPipe(read, facts, -1);
  } else {
    EnterPipe(read, facts, index);
  }
}

void DxfReader::EnterPipe(const ReadEntity& read, const EntityFacts& facts, std::int32_t index) {
  if (facts.oddHandle)
    throw DrawingError(read.line, "expected a handle (group 5) of hexadecimal digits for a pipe");
  const PipeCurve curve = ReadPipeCurve(read.tags, read.line);
  const Tag& opening = read.tags[static_cast<std::size_t>(facts.pipeData)];
  const char* lineEnd = opening.value.data() + opening.value.size();
  const auto at = static_cast<std::size_t>(lineEnd - read.bytes.data());
  const std::size_t next = read.bytes.find('\n', at);
  PipeRecord& pipe = data_.pipes.emplace_back();
  pipe.entity = index;
  pipe.dataOffset = static_cast<std::uint32_t>(next == std::string_view::npos ? read.bytes.size() : next + 1);
  pipe.start = curve.front().start;
  pipe.end = curve.back().end;
  pipe.length = LengthOf(curve);
  data_.entities.back().pipe = static_cast<std::int32_t>(data_.pipes.size()) - 1;
}

void DxfReader::NoteStrayPipe(const ReadEntity& read, const EntityFacts& facts, std::int32_t block) {
  StrayPipe stray;
  stray.handle = facts.handle;
  stray.block = block;
  try {
    stray.start = ReadPipeCurve(read.tags, read.line).front().start;
  } catch (const DrawingError&) {
    // It is no pipe of the model: odd numbers of it are kept as they are.
    stray.start = {};
  }
  data_.strayPipes.push_back(stray);
}

/// Decodes the names and joins the layers that entities name with those of the table.
void DxfReader::FinishNames() {
  const TextEncoding& encoding = data_.dialect.encoding;
  for (std::size_t i = 0; i < tableLayers_.size(); ++i)
    data_.layers[i].name = encoding.Decode(tableLayers_[i]);
  for (std::size_t i = 0; i < styleNames_.size(); ++i) {
    data_.styles[i].name = encoding.Decode(Trimmed(styleNames_[i]));
  }
  for (std::size_t i = 0; i < applicationNames_.size(); ++i) {
    data_.applications[i].name = encoding.Decode(Trimmed(applicationNames_[i]));
  }
  for (std::size_t i = 0; i < blockNames_.size(); ++i) data_.blocks[i].name = encoding.Decode(blockNames_[i]);
  std::unordered_map<CString, std::int32_t> byName;
  for (std::size_t i = 0; i < data_.layers.size(); ++i) {
    byName.try_emplace(FoldedName(data_.layers[i].name), static_cast<std::int32_t>(i));
  }
  std::vector<std::int32_t> numbers;
  for (const std::string_view written : entityLayers_) {
    const CString name = encoding.Decode(written);
    const auto count = static_cast<std::int32_t>(data_.layers.size());
    const auto [at, isNew] = byName.try_emplace(FoldedName(name), count);
    if (isNew) data_.layers.emplace_back().name = name;
    numbers.push_back(at->second);
  }
  for (EntityRecord& entity : data_.entities) entity.layer = numbers[static_cast<std::size_t>(entity.layer)];
}

void DxfReader::GiveHandles() {
  data_.nextHandle = std::max(highestHandle_ + 1, seed_);
  for (EntityRecord& entity : data_.entities) {
    if (!entity.handleInTags) entity.handle = data_.nextHandle++;
  }
}

}  // namespace

std::unique_ptr<Drawing> ParseDrawing(std::string bytes) {
  return std::make_unique<Drawing>(DxfReader(std::move(bytes)).Read());
}

}  // namespace zwt
