// Looking things up in a drawing; changes are in drawing_changes.cpp, open objects in drawing_open.cpp.

#include "host/drawing/drawing.h"

#include <algorithm>
#include <utility>

#include "host/drawing/connections.h"
#include "host/drawing/drawing_open.h"
#include "host/drawing/new_drawing.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

// An identifier holds the drawing's serial number, what it names, and the index there.
constexpr std::uint64_t kEntityKind = 1;
constexpr std::uint64_t kLayerKind = 2;
constexpr std::uint64_t kStyleKind = 3;
constexpr int kKindShift = 36;
constexpr int kSerialShift = 40;

AcDbObjectId MakeId(std::uint64_t serial, std::uint64_t kind, std::int32_t index) {
  return {serial << kSerialShift | kind << kKindShift | static_cast<std::uint64_t>(index)};
}

/// The index in an identifier, or -1 where it is of another drawing or kind or beyond count.
std::int32_t IndexIn(AcDbObjectId id, std::uint64_t serial, std::uint64_t kind, std::size_t count) {
  const std::uint64_t index = id.value ^ (serial << kSerialShift | kind << kKindShift);
  return index < count ? static_cast<std::int32_t>(index) : -1;
}

std::uint64_t NextSerial() {
  static std::uint64_t serial = 0;
  return ++serial;
}

DrawingData NewDrawing() {
  DrawingData data;
  data.dialect.modelSpace = kNewModelSpace;
  data.dimensionScale = kNewDimensionScale;
  data.nextHandle = kNewFirstHandle;
  Layer zero;
  zero.name = L"0";
  zero.inTable = zero.inFile = true;
  data.layers.push_back(zero);
  NamedRecord record;
  record.inFile = true;
  record.name = L"Standard";
  data.styles.push_back(record);
  record.name = L"ACAD";
  data.applications.push_back(record);
  return data;
}

wchar_t Folded(wchar_t letter) {
  return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
}

}  // namespace

CString FoldedName(std::wstring_view name) {
  CString folded(name);
  std::transform(folded.begin(), folded.end(), folded.begin(), Folded);
  return folded;
}

void DrawingObserver::OnRefusal(const CString& /*message*/) {}

Drawing::Drawing() : Drawing(NewDrawing()) {}

Drawing::Drawing(DrawingData data)
    : data_(std::move(data)),
      serial_(NextSerial()),
      sourceCount_(static_cast<std::int32_t>(data_.entities.size())),
      open_(std::make_unique<OpenObjects>()) {
  for (std::size_t i = 0; i < data_.layers.size(); ++i) {
    layersByName_.try_emplace(FoldedName(data_.layers[i].name), static_cast<std::int32_t>(i));
  }
  for (const Attachment& attachment : data_.attachments) {
    attachments_.emplace(attachment.pipeHandle, attachment.entity);
  }
}

Drawing::~Drawing() = default;

const PipeRecord& Drawing::PipeOf(std::int32_t index) const {
  return data_.pipes[static_cast<std::size_t>(Entity(index).pipe)];
}

std::vector<std::int32_t> Drawing::Pipes() const {
  std::vector<std::int32_t> pipes;
  pipes.reserve(data_.pipes.size());
  for (std::int32_t i = 0; i < EntityCount(); ++i) {
    if (Entity(i).alive && Entity(i).pipe >= 0) pipes.push_back(i);
  }
  return pipes;
}

std::string_view Drawing::SourceTags(std::int32_t index) const {
  if (index >= sourceCount_) return {};
  const auto changed = sourceTags_.find(index);
  return changed == sourceTags_.end() ? Entity(index).tags : changed->second;
}

AcDbObjectId Drawing::IdOf(std::int32_t index) const {
  return index < 0 ? AcDbObjectId{} : MakeId(serial_, kEntityKind, index);
}
AcDbObjectId Drawing::LayerId(std::int32_t index) const {
  return index < 0 ? AcDbObjectId{} : MakeId(serial_, kLayerKind, index);
}
AcDbObjectId Drawing::StyleId(std::int32_t index) const {
  return index < 0 ? AcDbObjectId{} : MakeId(serial_, kStyleKind, index);
}
std::int32_t Drawing::IndexOf(AcDbObjectId id) const {
  return IndexIn(id, serial_, kEntityKind, data_.entities.size());
}
std::int32_t Drawing::LayerIndex(AcDbObjectId id) const {
  return IndexIn(id, serial_, kLayerKind, data_.layers.size());
}
std::int32_t Drawing::StyleIndex(AcDbObjectId id) const {
  return IndexIn(id, serial_, kStyleKind, data_.styles.size());
}

std::int32_t Drawing::FindHandle(std::uint64_t handle) const {
  bool sorted = true;
  for (; handlesKnown_ < EntityCount(); ++handlesKnown_) {
    const std::pair<std::uint64_t, std::int32_t> entry{Entity(handlesKnown_).handle, handlesKnown_};
    sorted = sorted && (handles_.empty() || handles_.back() < entry);
    handles_.push_back(entry);
  }
  if (!sorted) std::sort(handles_.begin(), handles_.end());
  const std::pair<std::uint64_t, std::int32_t> wanted{handle, 0};
  for (auto at = std::lower_bound(handles_.begin(), handles_.end(), wanted);
       handle != 0 && at != handles_.end() && at->first == handle; ++at) {
    if (Entity(at->second).alive) return at->second;
  }
  return -1;
}

PipeCurve Drawing::CurveOf(std::int32_t index) const {
  const EntityRecord& entity = Entity(index);
  if (entity.type == EntityType::Line) {
    const PipeRecord& pipe = PipeOf(index);
    return {StraightPart(pipe.start, pipe.end)};
  }
  return ReadPipeCurve(SplitTags(entity.tags), 0);
}

namespace {

/// The bytes behind the tag that opens a pipe's extended data.
std::string_view DataOf(const EntityRecord& entity, const PipeRecord& pipe) {
  return entity.tags.substr(pipe.dataOffset);
}

}  // namespace

bool Drawing::GetField(std::int32_t index, const CString& key, CString& text) const {
  std::string_view value;
  const bool found = Entity(index).pipe >= 0 &&
                     FindField(DataOf(Entity(index), PipeOf(index)), key, data_.dialect.encoding, value);
  text = found ? data_.dialect.encoding.Decode(value) : CString();
  return found;
}

FieldList Drawing::Fields(std::int32_t index) const {
  FieldList fields;
  if (Entity(index).pipe < 0) return fields;
  const TextEncoding& encoding = data_.dialect.encoding;
  for (const auto& [key, text] : ListFields(DataOf(Entity(index), PipeOf(index)))) {
    fields.emplace_back(encoding.Decode(Trimmed(key)), encoding.Decode(text));
  }
  return fields;
}

double Drawing::Diameter(std::int32_t index) const {
  CString text;
  GetField(index, L"Diameter", text);
  return _wtof(text);
}

std::int32_t Drawing::Kind(std::int32_t index) const {
  CString text;
  GetField(index, L"Kind", text);
  return _wtoi(text);
}

std::vector<std::int32_t> Drawing::AttachedTo(std::int32_t index) const {
  std::vector<std::int32_t> attached;
  const auto [first, last] = attachments_.equal_range(Entity(index).handle);
  for (auto at = first; at != last; ++at) {
    if (Entity(at->second).alive && at->second != index) attached.push_back(at->second);
  }
  std::sort(attached.begin(), attached.end());
  attached.erase(std::unique(attached.begin(), attached.end()), attached.end());
  return attached;
}

const Connections& Drawing::GetConnections() const {
  if (connections_ == nullptr) connections_ = std::make_unique<Connections>(*this);
  return *connections_;
}

double Drawing::AnnotationHeight() const {
  const double scale = data_.dimensionScale;
  return 3.5 * (scale <= 0 || scale == 1 ? 100 : scale);
}

bool Drawing::IsModified() const {
  return savedIsLost_ || savedAt_ != steps_.size() - undone_ || !openStep_.empty();
}

void Drawing::MarkSaved() {
  savedAt_ = steps_.size() - undone_;
  savedIsLost_ = false;
}

void Drawing::AddObserver(DrawingObserver* observer) {
  observers_.push_back(observer);
}

void Drawing::RemoveObserver(DrawingObserver* observer) {
  observers_.erase(std::remove(observers_.begin(), observers_.end(), observer), observers_.end());
}

void Drawing::NotifyGraphics() {
  DrawingChange change;
  change.kind = DrawingChange::Kind::Graphics;
  Notify(change);
}

}  // namespace zwt
