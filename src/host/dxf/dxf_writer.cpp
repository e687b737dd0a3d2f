// Writes a drawing as the bytes of its file with a list of replacements: what did not change is not even
// looked at.

#include <algorithm>
#include <utility>

#include "host/dxf/dxf_file.h"
#include "host/dxf/new_drawing_file.h"

namespace zwt {
namespace {

constexpr std::int32_t kCommentCode = 999;

/// Whether the file's table still lacks a layer, style or application.
constexpr auto IsNewRecord = [](const auto& record) { return record.inTable && !record.inFile; };

/// Bytes put in the place of others; removed may be 0.
struct Edit {
  std::size_t at = 0;
  std::size_t removed = 0;
  std::string added;
};

/// What is put into one table of the file.
struct TableAddition {
  std::string_view name;         // of the table
  std::string_view recordClass;  // subclass of its records
  const TablePlace* place = nullptr;
  std::uint64_t handle = 0;  // of the table
  std::string records;
  std::int64_t count = 0;
};

class DxfWriter {
 public:
  DxfWriter(const Drawing& drawing, std::shared_ptr<const SourceFile> source)
      : drawing_(drawing),
        data_(drawing.Data()),
        source_(std::move(source)),
        bytes_(source_->bytes),
        nextHandle_(data_.nextHandle) {}

  std::string Bytes();

 private:
  bool HasChanges() const;
  std::size_t Offset(std::string_view part) const {
    return static_cast<std::size_t>(part.data() - bytes_.data());
  }
  void Replace(std::string_view part, std::string added) {
    edits_.push_back({Offset(part), part.size(), std::move(added)});
  }
  void Insert(std::size_t at, std::string added) { edits_.push_back({at, 0, std::move(added)}); }
  TagWriter Writer() const { return TagWriter(data_.dialect.lineEnd); }
  bool HasOwners() const { return data_.dialect.HasOwners(); }

  void EditEntities();
  void EditEntity(std::int32_t index);
  std::string KeptComments(std::string_view tags) const;
  std::string PlaceOfErased(std::int32_t index) const;
  std::string WithHandle(std::string_view tags, std::uint64_t handle) const;
  void AddEntities();
  void EditTables();
  template <class Records>
  TableAddition Begin(std::string_view name, std::string_view recordClass, const TablePlace& place,
                      const Records& records);
  TagWriter RecordHead(const TableAddition& table, std::uint64_t handle, const CString& name) const;
  void AddLayers(TableAddition& table) const;
  void AddStyles(TableAddition& table) const;
  void AddApplications(TableAddition& table) const;
  void Finish(const TableAddition& table, std::string& newTables);
  void EditHeader();
  std::string Joined();

  const Drawing& drawing_;
  const DrawingData& data_;
  std::shared_ptr<const SourceFile> source_;
  std::string_view bytes_;
  std::uint64_t nextHandle_;
  bool givesHandles_ = false;
  std::vector<Edit> edits_;
};

bool DxfWriter::HasChanges() const {
  if (std::any_of(data_.layers.begin(), data_.layers.end(), IsNewRecord)) return true;
  if (std::any_of(data_.styles.begin(), data_.styles.end(), IsNewRecord)) return true;
  if (std::any_of(data_.applications.begin(), data_.applications.end(), IsNewRecord)) return true;
  for (std::int32_t i = 0; i < drawing_.EntityCount(); ++i) {
    const EntityRecord& entity = drawing_.Entity(i);
    const std::string_view source = drawing_.SourceTags(i);
    if (entity.alive != (source.data() != nullptr)) return true;
    if (entity.alive && source.data() != entity.tags.data()) return true;
  }
  return false;
}

std::string DxfWriter::Bytes() {
  if (!HasChanges()) return std::string(bytes_);
  EditTables();  // in front of the entities also where both sections are new and have one place
  EditEntities();
  AddEntities();
  EditHeader();
  return Joined();
}

/// The comments of an entity that goes: they are the user's, and may well speak of what follows.
std::string DxfWriter::KeptComments(std::string_view tags) const {
  TagWriter writer = Writer();
  for (const Tag& tag : SplitTags(tags)) {
    if (tag.code == kCommentCode) writer.Text(kCommentCode, tag.value);
  }
  return writer.Take();
}

/// Whether an entity is a vertex or attribute that belongs to nothing. A broken file may have such ones.
bool IsStrayPart(std::string_view tags) {
  Tag type;
  if (!TagReader(tags).Next(type)) return false;
  const std::string_view name = Trimmed(type.value);
  return name == "VERTEX" || name == "ATTRIB";
}

/// What stands in the place of an erased entity.
std::string DxfWriter::PlaceOfErased(std::int32_t index) const {
  std::string left = KeptComments(drawing_.SourceTags(index));
  const bool isLast = index + 1 == drawing_.EntityCount();
  if (isLast || !drawing_.Entity(index + 1).alive || !IsStrayPart(drawing_.SourceTags(index + 1)))
    return left;
  // A polyline or insert in front would take the stray part behind for its own.
  TagWriter end = Writer();
  return left + end.Text(0, "SEQEND").Bytes();
}

/// Tags of an entity with a handle behind its type.
std::string DxfWriter::WithHandle(std::string_view tags, std::uint64_t handle) const {
  TagReader reader(tags);
  Tag type;
  reader.Next(type);
  TagWriter writer = Writer();
  writer.Handle(5, handle);
  std::string bytes(tags.substr(0, reader.Position()));
  bytes += writer.Bytes();
  bytes += tags.substr(reader.Position());
  return bytes;
}

void DxfWriter::EditEntity(std::int32_t index) {
  const EntityRecord& entity = drawing_.Entity(index);
  const std::string_view source = drawing_.SourceTags(index);
  if (!entity.alive) {
    Replace(source, PlaceOfErased(index));
    return;
  }
  const bool changed = source.data() != entity.tags.data();
  const bool givesHandle = !entity.handleInTags && entity.handle != 0;
  givesHandles_ = givesHandles_ || givesHandle;
  if (givesHandle) {
    Replace(source, WithHandle(entity.tags, entity.handle));
  } else if (changed) {
    Replace(source, std::string(entity.tags));
  }
}

void DxfWriter::EditEntities() {
  for (std::int32_t i = 0; i < drawing_.EntityCount(); ++i) {
    if (drawing_.SourceTags(i).data() != nullptr) EditEntity(i);
  }
}

void DxfWriter::AddEntities() {
  std::string added;
  for (std::int32_t i = 0; i < drawing_.EntityCount(); ++i) {
    const EntityRecord& entity = drawing_.Entity(i);
    if (entity.alive && drawing_.SourceTags(i).data() == nullptr) added += entity.tags;
  }
  if (added.empty()) return;
  givesHandles_ = true;
  if (source_->hasEntities) {
    Insert(source_->insertEntities, std::move(added));
    return;
  }
  TagWriter section = Writer();
  section.Text(0, "SECTION").Text(2, "ENTITIES");
  TagWriter end = Writer();
  end.Text(0, "ENDSEC");
  Insert(source_->insertEntities, section.Take() + added + end.Take());
}

template <class Records>
TableAddition DxfWriter::Begin(std::string_view name, std::string_view recordClass, const TablePlace& place,
                               const Records& records) {
  TableAddition table;
  table.name = name;
  table.recordClass = recordClass;
  table.place = &place;
  const bool grows = std::any_of(records.begin(), records.end(), IsNewRecord);
  table.handle = grows && !place.found && HasOwners() ? nextHandle_++ : place.handle;
  return table;
}

TagWriter DxfWriter::RecordHead(const TableAddition& table, std::uint64_t handle, const CString& name) const {
  TagWriter writer = Writer();
  writer.Text(0, table.name);
  if (HasOwners()) {
    writer.Handle(5, handle);
    if (table.handle != 0) writer.Handle(330, table.handle);
    writer.Text(100, "AcDbSymbolTableRecord").Text(100, table.recordClass);
  }
  writer.Text(2, data_.dialect.encoding.Encode(name)).Integer(70, 0);
  return writer;
}

void DxfWriter::AddLayers(TableAddition& table) const {
  for (const Layer& layer : data_.layers) {
    if (!IsNewRecord(layer)) continue;
    TagWriter writer = RecordHead(table, layer.handle, layer.name);
    writer.Integer(62, layer.color).Text(6, HasOwners() ? "Continuous" : "CONTINUOUS");
    for (const std::int32_t code : {370, 390, 347}) {
      const std::string_view value = HasOwners() ? FirstValue(source_->firstLayer, code) : std::string_view();
      if (!value.empty()) writer.Text(code, code == 370 ? "-3" : value);
    }
    table.records += writer.Bytes();
    ++table.count;
  }
}

void DxfWriter::AddStyles(TableAddition& table) const {
  for (const NamedRecord& style : data_.styles) {
    if (!IsNewRecord(style)) continue;
    TagWriter writer = RecordHead(table, style.handle, style.name);
    writer.Real(40, 0).Real(41, style.widthFactor).Real(50, 0).Integer(71, 0).Real(42, 2.5);
    table.records += writer.Text(3, "txt").Text(4, "").Bytes();
    ++table.count;
  }
}

void DxfWriter::AddApplications(TableAddition& table) const {
  for (const NamedRecord& application : data_.applications) {
    if (!IsNewRecord(application)) continue;
    table.records += RecordHead(table, application.handle, application.name).Bytes();
    ++table.count;
  }
}

/// Puts the records into the file's table, or a table of their own among the new ones.
void DxfWriter::Finish(const TableAddition& table, std::string& newTables) {
  if (table.count == 0) return;
  givesHandles_ = givesHandles_ || HasOwners();
  std::int64_t count = 0;
  if (table.place->found) {
    Insert(table.place->insertAt, table.records);
    const std::string_view held = table.place->count;
    if (ParseInteger(held, count)) Replace(Trimmed(held), std::to_string(count + table.count));
    return;
  }
  TagWriter writer = Writer();
  writer.Text(0, "TABLE").Text(2, table.name);
  if (HasOwners()) writer.Handle(5, table.handle).Integer(330, 0).Text(100, "AcDbSymbolTable");
  writer.Integer(70, table.count);
  TagWriter end = Writer();
  end.Text(0, "ENDTAB");
  newTables += writer.Take() + table.records + end.Take();
}

void DxfWriter::EditTables() {
  TableAddition layers = Begin("LAYER", "AcDbLayerTableRecord", source_->layers, data_.layers);
  AddLayers(layers);
  TableAddition styles = Begin("STYLE", "AcDbTextStyleTableRecord", source_->styles, data_.styles);
  AddStyles(styles);
  TableAddition applications =
      Begin("APPID", "AcDbRegAppTableRecord", source_->applications, data_.applications);
  AddApplications(applications);
  std::string newTables;
  Finish(layers, newTables);
  Finish(styles, newTables);
  Finish(applications, newTables);
  if (newTables.empty()) return;
  if (!source_->hasTables) {
    TagWriter section = Writer();
    section.Text(0, "SECTION").Text(2, "TABLES");
    TagWriter end = Writer();
    end.Text(0, "ENDSEC");
    newTables = section.Take() + newTables + end.Take();
  }
  Insert(source_->insertTables, std::move(newTables));
}

/// A header tells the next free handle; a file without a header has no place for it.
void DxfWriter::EditHeader() {
  if (!source_->hasHeader || !givesHandles_) return;
  std::uint64_t seed = 0;
  const bool known = ParseHandle(source_->handleSeed, seed);
  if (source_->handleSeed.data() == nullptr) {
    TagWriter writer = Writer();
    Insert(source_->insertHeader, writer.Text(9, "$HANDSEED").Handle(5, nextHandle_).Take());
  } else if (!known || seed < nextHandle_) {
    Replace(Trimmed(source_->handleSeed), HandleText(nextHandle_));
  }
  std::int64_t handling = 0;
  if (ParseInteger(source_->handling, handling) && handling == 0) Replace(Trimmed(source_->handling), "1");
}

std::string DxfWriter::Joined() {
  std::stable_sort(edits_.begin(), edits_.end(), [](const Edit& a, const Edit& b) { return a.at < b.at; });
  std::size_t size = bytes_.size();
  for (const Edit& edit : edits_) size += edit.added.size();
  std::string joined;
  joined.reserve(size);
  std::size_t copied = 0;
  for (const Edit& edit : edits_) {
    joined += bytes_.substr(copied, edit.at - copied);
    joined += edit.added;
    copied = edit.at + edit.removed;
  }
  joined += bytes_.substr(copied);
  return joined;
}

}  // namespace

std::string DrawingBytes(const Drawing& drawing) {
  std::shared_ptr<const SourceFile> source = drawing.Data().source;
  if (source == nullptr) source = ParseDrawing(NewDrawingFile())->Data().source;
  return DxfWriter(drawing, std::move(source)).Bytes();
}

}  // namespace zwt
