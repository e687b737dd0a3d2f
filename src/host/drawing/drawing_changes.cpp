// Changes of a drawing. Every one goes through Record, which keeps what undo needs.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"
#include "host/drawing/drawing_open.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr std::int32_t kLayerColor = 256;

bool IsPipeData(const EntityFacts& facts) {
  return facts.pipeData >= 0 && facts.canBePipe && !facts.inPaperSpace;
}

/// Whether a new entity can be written there: farther out millimetres are lost.
bool IsInReach(const AcGePoint3d& point) {
  return std::abs(point.x) <= 1e15 && std::abs(point.y) <= 1e15 && std::abs(point.z) <= 1e15;
}

}  // namespace

/// Makes a change a step of its own where no step is open.
class Drawing::StepScope {
 public:
  explicit StepScope(Drawing& drawing) : drawing_(drawing) { drawing_.BeginStep(); }
  ~StepScope() { drawing_.EndStep(); }
  StepScope(const StepScope&) = delete;
  StepScope& operator=(const StepScope&) = delete;

 private:
  Drawing& drawing_;
};

std::string_view Drawing::Keep(std::string bytes) {
  return kept_.emplace_back(std::move(bytes));
}

std::int32_t Drawing::LayerOf(const CString& name) {
  const auto [at, isNew] =
      layersByName_.try_emplace(FoldedName(name), static_cast<std::int32_t>(data_.layers.size()));
  if (isNew) data_.layers.emplace_back().name = name;
  return at->second;
}

void Drawing::DecodeEntity(std::int32_t index) {
  EntityRecord& entity = data_.entities[static_cast<std::size_t>(index)];
  const std::vector<Tag> tags = SplitTags(entity.tags);
  const EntityFacts facts = ReadFacts(tags);
  entity.type = facts.type;
  entity.canBePipe = facts.canBePipe;
  entity.inPaperSpace = facts.inPaperSpace;
  entity.handleInTags = facts.hasHandle;
  if (facts.hasHandle) entity.handle = facts.handle;
  entity.layer = LayerOf(data_.dialect.encoding.Decode(facts.layer));
  if (!IsPipeData(facts)) {
    entity.pipe = -1;
    return;
  }
  if (entity.pipe < 0) {
    entity.pipe = static_cast<std::int32_t>(data_.pipes.size());
    data_.pipes.emplace_back();
  }
  const PipeCurve curve = ReadPipeCurve(tags, 0);
  const std::string_view opening = tags[static_cast<std::size_t>(facts.pipeData)].value;
  const auto behind = static_cast<std::size_t>(opening.data() - entity.tags.data()) + opening.size();
  const std::size_t lineEnd = entity.tags.find('\n', behind);
  PipeRecord& pipe = data_.pipes[static_cast<std::size_t>(entity.pipe)];
  pipe.entity = index;
  pipe.dataOffset =
      static_cast<std::uint32_t>(lineEnd == std::string_view::npos ? entity.tags.size() : lineEnd + 1);
  pipe.start = curve.front().start;
  pipe.end = curve.back().end;
  pipe.length = LengthOf(curve);
}

AcDbObjectId Drawing::Enter(std::string tags, std::uint64_t handle) {
  const std::int32_t index = EntityCount();
  EntityRecord entity;
  entity.tags = Keep(std::move(tags));
  entity.handle = handle;
  entity.alive = false;
  data_.entities.push_back(entity);
  const EntityFacts facts = ReadFacts(SplitTags(entity.tags));
  if (facts.attachedTo != 0) attachments_.emplace(facts.attachedTo, index);
  ChangeEntity(index, {entity.tags, true});
  Notify(Describe(DrawingChange::Kind::Add, index));
  return IdOf(index);
}

void Drawing::ChangeEntity(std::int32_t index, const EntityState& after) {
  const EntityRecord& entity = Entity(index);
  Change change;
  change.index = index;
  change.before = {entity.tags, entity.alive};
  change.after = after;
  if (index < sourceCount_) sourceTags_.try_emplace(index, entity.tags);
  if (change.before.alive == after.alive && change.before.tags.data() == after.tags.data()) return;
  Record(change);
}

void Drawing::Record(const Change& change) {
  const StepScope scope(*this);
  openStep_.push_back(change);
  Apply(change, true);
}

void Drawing::Apply(const Change& change, bool forward) {
  const EntityState& state = forward ? change.after : change.before;
  const auto at = static_cast<std::size_t>(change.index);
  if (change.target == Change::Target::Layer) {
    data_.layers[at].inTable = state.alive;
  } else if (change.target == Change::Target::Style) {
    data_.styles[at].inTable = state.alive;
  } else if (change.target == Change::Target::Application) {
    data_.applications[at].inTable = state.alive;
  } else {
    EntityRecord& entity = data_.entities[at];
    const bool wasPipe = entity.pipe >= 0;
    const PipeRecord before = wasPipe ? PipeOf(change.index) : PipeRecord();
    const bool sameLife = entity.alive == state.alive;
    entity.tags = state.tags;
    entity.alive = state.alive;
    DecodeEntity(change.index);
    const bool isPipe = entity.pipe >= 0;
    const bool moved =
        wasPipe && isPipe &&
        !(before.start == PipeOf(change.index).start && before.end == PipeOf(change.index).end);
    if (wasPipe != isPipe || (isPipe && !sameLife) || moved) connections_.reset();
  }
}

void Drawing::BeginStep() {
  ++stepDepth_;
}

void Drawing::EndStep() {
  if (--stepDepth_ > 0 || openStep_.empty()) return;
  const std::size_t kept = steps_.size() - undone_;
  if (savedAt_ > kept) savedIsLost_ = true;
  steps_.resize(kept);
  undone_ = 0;
  steps_.push_back(std::move(openStep_));
  openStep_.clear();
}

void Drawing::Undo() {
  if (!CanUndo() || stepDepth_ > 0) return;
  const Step& step = steps_[steps_.size() - undone_ - 1];
  ++undone_;
  std::for_each(step.rbegin(), step.rend(), [this](const Change& change) { Replay(change, false); });
  NotifyGraphics();
}

void Drawing::Redo() {
  if (!CanRedo() || stepDepth_ > 0) return;
  const Step& step = steps_[steps_.size() - undone_];
  --undone_;
  std::for_each(step.begin(), step.end(), [this](const Change& change) { Replay(change, true); });
  NotifyGraphics();
}

void Drawing::Replay(const Change& change, bool forward) {
  Apply(change, forward);
  if (change.target != Change::Target::Entity) return;
  const bool was = forward ? change.before.alive : change.after.alive;
  const bool is = forward ? change.after.alive : change.before.alive;
  DrawingChange::Kind kind = DrawingChange::Kind::Modify;
  if (was != is) kind = is ? DrawingChange::Kind::Add : DrawingChange::Kind::Erase;
  DrawingChange notice = Describe(kind, change.index);
  notice.byUndo = true;
  Notify(notice);
}

DrawingChange Drawing::Describe(DrawingChange::Kind kind, std::int32_t index) const {
  const EntityRecord& entity = Entity(index);
  const TextEncoding& encoding = data_.dialect.encoding;
  DrawingChange change;
  change.kind = kind;
  change.id = IdOf(index);
  change.handle = entity.handle;
  const std::vector<Tag> tags = SplitTags(entity.tags);
  const std::string_view type = Trimmed(tags[0].value);
  change.type = encoding.Decode(type);
  change.layer = data_.layers[static_cast<std::size_t>(entity.layer)].name;
  change.hasText = type == "TEXT" || type == "MTEXT";
  std::string content;
  for (const Tag& tag : tags) {
    if (change.hasText && (tag.code == 1 || tag.code == 3)) content += tag.value;
  }
  change.text = encoding.Decode(content);
  return change;
}

void Drawing::Notify(const DrawingChange& change) const {
  for (DrawingObserver* observer : observers_) observer->OnChange(change);
}

void Drawing::Refuse(const CString& message) const {
  for (DrawingObserver* observer : observers_) observer->OnRefusal(message);
}

Acad::ErrorStatus Drawing::Erase(std::int32_t index) {
  if (!Entity(index).alive) return Acad::eWasErased;
  ChangeEntity(index, {Entity(index).tags, false});
  Notify(Describe(DrawingChange::Kind::Erase, index));
  return Acad::eOk;
}

std::int32_t Drawing::PutInTable(std::vector<NamedRecord>& table, Change::Target target,
                                 const CString& name) {
  const auto found = std::find_if(
      table.begin(), table.end(),
      [folded = FoldedName(name)](const NamedRecord& record) { return FoldedName(record.name) == folded; });
  const auto index = static_cast<std::int32_t>(found - table.begin());
  if (found == table.end()) {
    NamedRecord record;
    record.name = name;
    record.handle = data_.nextHandle++;
    record.inTable = false;
    table.push_back(record);
  }
  if (!table[static_cast<std::size_t>(index)].inTable) Record({target, index, {{}, false}, {{}, true}});
  return index;
}

void Drawing::RegisterApplication(std::string_view name) {
  PutInTable(data_.applications, Change::Target::Application, CString(name.begin(), name.end()));
}

AcDbObjectId Drawing::InitTextStyle(const CString& name) {
  return StyleId(PutInTable(data_.styles, Change::Target::Style, name));
}

AcDbObjectId Drawing::InitLayer(const CString& name) {
  const std::int32_t index = LayerOf(name);
  Layer& layer = data_.layers[static_cast<std::size_t>(index)];
  if (!layer.inTable) {
    if (layer.handle == 0) layer.handle = data_.nextHandle++;
    Record({Change::Target::Layer, index, {{}, false}, {{}, true}});
  }
  return LayerId(index);
}

std::string Drawing::LayerBytes(AcDbObjectId layer) const {
  const std::int32_t index = LayerIndex(layer);
  return index < 0 ? "0" : data_.dialect.encoding.Encode(data_.layers[static_cast<std::size_t>(index)].name);
}

Acad::ErrorStatus Drawing::SetLayer(std::int32_t index, AcDbObjectId layer, bool allowHidden) {
  const std::int32_t target = LayerIndex(layer);
  if (target < 0) return Acad::eInvalidInput;
  if (!Entity(index).alive) return Acad::eWasErased;
  if (data_.layers[static_cast<std::size_t>(target)].isHidden && !allowHidden) return Acad::eHiddenLayer;
  if (Entity(index).layer == target) return Acad::eOk;
  ChangeEntity(index, {Keep(WithLayer(Entity(index).tags, LayerBytes(layer), data_.dialect)), true});
  Notify(Describe(DrawingChange::Kind::Modify, index));
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::MoveLineEnd(std::int32_t index, bool atStart, const AcGePoint3d& point) {
  const EntityRecord& entity = Entity(index);
  if (!entity.alive) return Acad::eWasErased;
  if (entity.pipe < 0 || entity.type != EntityType::Line) return Acad::eNotThatKindOfClass;
  if (!IsInReach(point)) return Acad::eInvalidInput;
  ChangeEntity(index, {Keep(WithLineEnd(entity.tags, atStart, point, data_.dialect)), true});
  Notify(Describe(DrawingChange::Kind::Modify, index));
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::CheckFields(const FieldList& fields) const {
  for (const auto& [key, text] : fields) {
    const TextEncoding& encoding = data_.dialect.encoding;
    if (key.empty()) return Acad::eInvalidInput;
    if (encoding.Encode(key).size() <= kLongestDataText && encoding.Encode(text).size() <= kLongestDataText)
      continue;
    Refuse(L"属性 " + key.substr(0, 32) + L" 的文字超过 255 字节，未写入。");
    return Acad::eExtendedDataTooLarge;
  }
  return Acad::eOk;
}

/// Whether extended data may become that large.
Acad::ErrorStatus Drawing::CheckDataSize(std::string_view tags) const {
  if (MeasureExtendedData(tags).total <= kMostExtendedData) return Acad::eOk;
  Refuse(L"管道属性总量超过 16 KB，未写入。");
  return Acad::eExtendedDataTooLarge;
}

Acad::ErrorStatus Drawing::WriteFields(std::int32_t index, const FieldList& fields) {
  FieldList changed;
  for (const auto& [key, text] : fields) {
    CString held;
    if (!GetField(index, key, held) || held != text) changed.emplace_back(key, text);
  }
  if (changed.empty() && Entity(index).pipe >= 0) return Acad::eOk;
  Acad::ErrorStatus checked = CheckFields(changed);
  if (checked != Acad::eOk) return checked;
  std::string tags = WithFields(Entity(index).tags, changed, data_.dialect);
  checked = CheckDataSize(tags);
  if (checked != Acad::eOk) return checked;
  const StepScope scope(*this);
  RegisterApplication(kPipeApplication);
  ChangeEntity(index, {Keep(std::move(tags)), true});
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::SetFields(std::int32_t index, const FieldList& fields) {
  if (!Entity(index).alive) return Acad::eWasErased;
  if (Entity(index).pipe < 0) return Acad::eNotThatKindOfClass;
  const Acad::ErrorStatus status = WriteFields(index, fields);
  if (status != Acad::eOk) return status;
  if (fields.empty()) return Acad::eOk;
  DrawingChange change = Describe(DrawingChange::Kind::SetField, index);
  for (const auto& [key, text] : fields) {
    change.key = key;
    change.text = text;
    Notify(change);
  }
  return Acad::eOk;
}

/// Whether an entity is a pipe or can become one.
Acad::ErrorStatus Drawing::CheckPipe(std::int32_t index) const {
  const EntityRecord& entity = Entity(index);
  if (!entity.alive) return Acad::eWasErased;
  if (!entity.canBePipe || entity.inPaperSpace) return Acad::eNotThatKindOfClass;
  if (entity.pipe >= 0) return Acad::eOk;
  // A pipe must have a handle that others can name.
  if (entity.handle == 0) return Acad::eInvalidInput;
  try {
    ReadPipeCurve(SplitTags(entity.tags), 0);
  } catch (const DrawingError&) {
    return Acad::eInvalidInput;
  }
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::MakePipe(std::int32_t index, const FieldList& fields) {
  const Acad::ErrorStatus checked = CheckPipe(index);
  if (checked != Acad::eOk) return checked;
  if (Entity(index).pipe < 0) {
    FieldList first = fields;
    if (first.empty()) first.emplace_back(L"Kind", L"0");
    const Acad::ErrorStatus status = WriteFields(index, first);
    if (status != Acad::eOk) return status;
  }
  return SetFields(index, fields);
}

Acad::ErrorStatus Drawing::CheckPipes(std::span<const FieldsOfPipe> pipes) const {
  for (const FieldsOfPipe& pipe : pipes) {
    Acad::ErrorStatus status = CheckPipe(pipe.entity);
    if (status == Acad::eOk) status = CheckFields(pipe.fields);
    if (status == Acad::eOk) {
      status = CheckDataSize(WithFields(Entity(pipe.entity).tags, pipe.fields, data_.dialect));
    }
    if (status != Acad::eOk) return status;
  }
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::MakePipes(std::span<const FieldsOfPipe> pipes) {
  const Acad::ErrorStatus checked = CheckPipes(pipes);
  if (checked != Acad::eOk) return checked;
  const StepScope scope(*this);
  for (const FieldsOfPipe& pipe : pipes) {
    const Acad::ErrorStatus status = MakePipe(pipe.entity, pipe.fields);
    if (status != Acad::eOk) return status;
  }
  return Acad::eOk;
}

Acad::ErrorStatus Drawing::SetDiameter(std::int32_t index, double diameter) {
  if (!Entity(index).alive) return Acad::eWasErased;
  if (Entity(index).pipe < 0) return Acad::eNotThatKindOfClass;
  if (!std::isfinite(diameter)) return Acad::eInvalidInput;
  CString held;
  // A text that already reads as this number stays as the user wrote it.
  const bool same = GetField(index, L"Diameter", held) && _wtof(held) == diameter;
  const Acad::ErrorStatus status =
      same ? Acad::eOk : WriteFields(index, {{L"Diameter", ZwtNum2Str(diameter, -1)}});
  if (status != Acad::eOk) return status;
  DrawingChange change = Describe(DrawingChange::Kind::SetDiameter, index);
  change.diameter = diameter;
  Notify(change);
  return Acad::eOk;
}

TagWriter Drawing::EntityHead(std::string_view type, std::uint64_t handle, AcDbObjectId layer) const {
  TagWriter writer(data_.dialect.lineEnd);
  writer.Text(0, type).Handle(5, handle);
  if (data_.dialect.HasOwners()) {
    if (data_.dialect.modelSpace != 0) writer.Handle(330, data_.dialect.modelSpace);
    writer.Text(100, "AcDbEntity");
  }
  writer.Text(8, LayerBytes(layer));
  return writer;
}

TagWriter Drawing::LineTags(std::uint64_t handle, const AcGePoint3d& start, const AcGePoint3d& end,
                            AcDbObjectId layer) const {
  TagWriter writer = EntityHead("LINE", handle, layer);
  if (data_.dialect.HasOwners()) writer.Text(100, "AcDbLine");
  writer.Point(10, start.x, start.y, start.z).Point(11, end.x, end.y, end.z);
  return writer;
}

AcDbObjectId Drawing::AddLine(const AcGePoint3d& start, const AcGePoint3d& end, AcDbObjectId layer) {
  if (!IsInReach(start) || !IsInReach(end)) return {};
  const StepScope scope(*this);
  const std::uint64_t handle = data_.nextHandle++;
  return Enter(LineTags(handle, start, end, layer).Take(), handle);
}

AcDbObjectId Drawing::AddPipe(const AcGePoint3d& start, const AcGePoint3d& end, const FieldList& fields,
                              AcDbObjectId layer) {
  if (!IsInReach(start) || !IsInReach(end) || CheckFields(fields) != Acad::eOk) return {};
  const StepScope scope(*this);
  const std::uint64_t handle = data_.nextHandle++;
  TagWriter writer = LineTags(handle, start, end, layer);
  writer.Text(1001, kPipeApplication);
  RegisterApplication(kPipeApplication);
  return Enter(WithFields(writer.Take(), fields, data_.dialect), handle);
}

AcDbObjectId Drawing::AddText(const TextValues& values, std::string_view extendedData) {
  if (!IsInReach(values.position) || !std::isfinite(values.rotation) || !(values.height > 0)) return {};
  if (MeasureExtendedData(extendedData).longest > kLongestDataText) {
    Refuse(L"标注的文字超过 255 字节，未写入。");
    return {};
  }
  const StepScope scope(*this);
  const TextEncoding& encoding = data_.dialect.encoding;
  const bool aligned = values.horizontal != 0 || values.vertical != 0;
  const std::uint64_t handle = data_.nextHandle++;
  TagWriter writer = EntityHead("TEXT", handle, values.layer);
  if (values.color != kLayerColor) writer.Integer(62, values.color);
  if (data_.dialect.HasOwners()) writer.Text(100, "AcDbText");
  const AcGePoint3d& at = values.position;
  writer.Point(10, at.x, at.y, at.z).Real(40, values.height).Text(1, encoding.Encode(values.content));
  const double degrees = values.rotation * 180 / std::numbers::pi;
  if (degrees != 0) writer.Real(50, degrees);
  const std::int32_t style = StyleIndex(values.style);
  if (style >= 0) {
    const NamedRecord& record = data_.styles[static_cast<std::size_t>(style)];
    if (record.widthFactor != 1) writer.Real(41, record.widthFactor);
    writer.Text(7, encoding.Encode(record.name));
  }
  if (values.horizontal != 0) writer.Integer(72, values.horizontal);
  if (aligned) writer.Point(11, at.x, at.y, at.z);
  if (data_.dialect.HasOwners()) writer.Text(100, "AcDbText");
  if (values.vertical != 0) writer.Integer(73, values.vertical);
  for (const Tag& tag : SplitTags(extendedData)) {
    if (tag.code == 1001) RegisterApplication(tag.value);
  }
  return Enter(writer.Take() + std::string(extendedData), handle);
}

}  // namespace zwt
