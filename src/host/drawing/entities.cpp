#include "host/drawing/entities.h"

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

#include "host/drawing/connections.h"

using zwt::Drawing;

bool ZcRxClass::isDerivedFrom(const ZcRxClass* other) const {
  for (const ZcRxClass* at = this; at != nullptr; at = at->parent) {
    if (at == other) return true;
  }
  return false;
}

Acad::ErrorStatus ZcDbFieldGroup::GetField(const wchar_t* key, CString& text) const {
  return drawing_->GetField(index_, key, text) ? Acad::eOk : Acad::eKeyNotFound;
}

const ZcRxClass* ZcDbEntity::desc() {
  static const ZcRxClass entityClass{L"ZcDbEntity", nullptr};
  return &entityClass;
}
const ZcRxClass* ZcDbPipeSysEntity::desc() {
  static const ZcRxClass entityClass{L"ZcDbPipeSysEntity", ZcDbEntity::desc()};
  return &entityClass;
}
const ZcRxClass* ZcDbPipeEntity::desc() {
  static const ZcRxClass entityClass{L"ZcDbPipeEntity", ZcDbPipeSysEntity::desc()};
  return &entityClass;
}
const ZcRxClass* ZcDbWtPipe::desc() {
  static const ZcRxClass entityClass{L"ZcDbWtPipe", ZcDbPipeEntity::desc()};
  return &entityClass;
}
const ZcRxClass* ZcDbText::desc() {
  static const ZcRxClass entityClass{L"ZcDbText", ZcDbEntity::desc()};
  return &entityClass;
}
const ZcRxClass* ZcDbWtSymbDiameterDim::desc() {
  static const ZcRxClass entityClass{L"ZcDbWtSymbDiameterDim", ZcDbEntity::desc()};
  return &entityClass;
}

ZcDbEntity::~ZcDbEntity() = default;

ZcDbFieldGroup* ZcDbEntity::Fields() {
  if (drawing_ == nullptr) return nullptr;
  if (fields_ == nullptr) fields_ = std::make_unique<ZcDbFieldGroup>(*drawing_, index_);
  return fields_.get();
}

Acad::ErrorStatus ZcDbEntity::WriteStatus() const {
  if (drawing_ == nullptr) return Acad::eInvalidInput;
  return mode_ == AcDb::kForWrite ? Acad::eOk : Acad::eNotOpenForWrite;
}

Acad::ErrorStatus ZcDbEntity::setLayer(AcDbObjectId layer, bool /*onSubentities*/, bool allowHidden) {
  if (drawing_ == nullptr) {
    newLayer_ = layer;
    return Acad::eOk;
  }
  const Acad::ErrorStatus status = WriteStatus();
  return status == Acad::eOk ? drawing_->SetLayer(index_, layer, allowHidden) : status;
}

Acad::ErrorStatus ZcDbEntity::erase(bool erasing) {
  const Acad::ErrorStatus status = erasing ? WriteStatus() : Acad::eInvalidInput;
  return status == Acad::eOk ? drawing_->Erase(index_) : status;
}

Acad::ErrorStatus ZcDbEntity::close() {
  if (drawing_ == nullptr) return Acad::eInvalidInput;
  drawing_->Close(this);
  return Acad::eOk;
}

AcDbObjectId ZcDbEntity::AppendTo(Drawing& /*drawing*/) {
  return {};
}

void ZcDbPipeSysEntity::GetAttachObjectId(ZcDbObjectIdList& objects) const {
  for (const std::int32_t attached : drawing_->AttachedTo(index_)) objects.Append(drawing_->IdOf(attached));
}

void ZcDbPipeEntity::GetConnectEnt(ZcDbObjectIdList& connected, const ZcRxClass* wanted) const {
  if (!ZcDbWtPipe::desc()->isDerivedFrom(wanted)) return;
  for (const std::int32_t pipe : drawing_->GetConnections().ConnectedTo(index_)) {
    connected.Append(drawing_->IdOf(pipe));
  }
}

AcGePoint3d ZcDbWtPipe::GetStartPoint() const {
  return drawing_->PipeOf(index_).start;
}
AcGePoint3d ZcDbWtPipe::GetEndPoint() const {
  return drawing_->PipeOf(index_).end;
}
double ZcDbWtPipe::GetPipeLength() const {
  return drawing_->PipeOf(index_).length;
}

CString ZcDbWtPipe::GetMaterial() const {
  CString material;
  drawing_->GetField(index_, L"Material", material);
  return material;
}

CString ZcDbWtPipe::GetWtSystem() const {
  CString system;
  drawing_->GetField(index_, L"WtSystem", system);
  return system;
}

double ZcDbWtPipe::GetDiameter() const {
  return drawing_->Diameter(index_);
}

Acad::ErrorStatus ZcDbWtPipe::SetDiameter(double diameter) {
  const Acad::ErrorStatus status = WriteStatus();
  return status == Acad::eOk ? drawing_->SetDiameter(index_, diameter) : status;
}

ZcGeCurve3d* ZcDbWtPipe::GetPipeCurve() const {
  return std::make_unique<ZcGeCurve3d>(drawing_->CurveOf(index_)).release();
}

ZcDbText::ZcDbText(const CString& content) {
  values_.content = content;
}
void ZcDbText::SetTextString(const CString& content) {
  values_.content = content;
}
void ZcDbText::SetTextHeight(double height, int /*mode*/) {
  values_.height = height;
}
void ZcDbText::SetPosition(const AcGePoint3d& position) {
  values_.position = position;
}
void ZcDbText::SetRotation(double rotation) {
  values_.rotation = rotation;
}
void ZcDbText::SetColorIndex(std::int32_t color) {
  values_.color = color;
}
void ZcDbText::SetTextStyle(AcDbObjectId style) {
  values_.style = style;
}

void ZcDbText::SetAlignment(ZcGiText::TextAlignment alignment) {
  struct Place {
    std::int32_t horizontal;
    std::int32_t vertical;
  };
  static constexpr std::array<Place, 15> kPlaces = {{{0, 0},
                                                     {1, 0},
                                                     {2, 0},
                                                     {0, 0},
                                                     {1, 2},
                                                     {1, 2},
                                                     {0, 3},
                                                     {1, 3},
                                                     {2, 3},
                                                     {0, 2},
                                                     {1, 2},
                                                     {2, 2},
                                                     {0, 1},
                                                     {1, 1},
                                                     {2, 1}}};
  const Place& place = kPlaces.at(static_cast<std::size_t>(alignment));
  values_.horizontal = place.horizontal;
  values_.vertical = place.vertical;
}

AcDbObjectId ZcDbText::AppendTo(Drawing& drawing) {
  values_.layer = newLayer_;
  return drawing.AddText(values_);
}

void ZcDbWtSymbDiameterDim::SetStyle(DimStyle style) {
  style_ = style;
}
void ZcDbWtSymbDiameterDim::SetLocation(const AcGePoint3d& location) {
  location_ = location;
}
void ZcDbWtSymbDiameterDim::SetPrefix(const CString& prefix) {
  prefix_ = prefix;
}
void ZcDbWtSymbDiameterDim::SetDiameter(const CString& diameter) {
  diameter_ = diameter;
}
void ZcDbWtSymbDiameterDim::SetTextHeight(double height) {
  textHeight_ = height;
}
void ZcDbWtSymbDiameterDim::SetTextStyle(AcDbObjectId style) {
  textStyle_ = style;
}

namespace {

/// The pipe whose midpoint a point is: of several the one whose system's annotation layer this is, then the
/// first. -1: none.
std::int32_t PipeWithMidPoint(const Drawing& drawing, const AcGePoint3d& point, const CString& layer) {
  const std::vector<std::int32_t> pipes = drawing.GetConnections().PipesWithMidPoint(point);
  for (const std::int32_t pipe : pipes) {
    CString system;
    drawing.GetField(pipe, L"WtSystem", system);
    const CString ownLayer = GetZwtLayer(L"标注", L"管径", system);
    if (zwt::FoldedName(ownLayer) == zwt::FoldedName(layer)) return pipe;
  }
  return pipes.empty() ? -1 : pipes.front();
}

/// Angle of a text along a direction in plan that is read from below or from the right: above -90° up to 90°.
double ReadableAngle(const zwt::Vector& direction) {
  constexpr double kRounding = 1e-9;
  double angle = std::atan2(direction.y, direction.x);
  if (angle > std::numbers::pi / 2 + kRounding) angle -= std::numbers::pi;
  if (angle <= -std::numbers::pi / 2 + kRounding) angle += std::numbers::pi;
  return angle;
}

}  // namespace

std::string ZcDbWtSymbDiameterDim::ExtendedData(const Drawing& drawing, std::int32_t pipe) const {
  const zwt::Dialect& dialect = drawing.Data().dialect;
  zwt::TagWriter writer(dialect.lineEnd);
  if (pipe >= 0) {
    writer.Text(1001, zwt::kAttachApplication).Handle(1005, drawing.Entity(pipe).handle);
  }
  writer.Text(1001, zwt::kDiameterApplication);
  writer.Text(1000, "Style").Integer(1000, style_);
  writer.Text(1000, "Prefix").Text(1000, dialect.encoding.Encode(prefix_));
  writer.Text(1000, "Diameter").Text(1000, dialect.encoding.Encode(diameter_));
  return writer.Take();
}

AcDbObjectId ZcDbWtSymbDiameterDim::AppendTo(Drawing& drawing) {
  zwt::TextValues values;
  const std::int32_t layer = drawing.LayerIndex(newLayer_);
  const CString layerName =
      layer < 0 ? CString() : drawing.Data().layers[static_cast<std::size_t>(layer)].name;
  const std::int32_t pipe = PipeWithMidPoint(drawing, location_, layerName);
  if (pipe >= 0) {
    zwt::Vector direction;
    zwt::MidPointOf(drawing.CurveOf(pipe), &direction);
    values.rotation = ReadableAngle(direction);
  }
  values.content = prefix_ + diameter_;
  values.position = location_;
  values.height = textHeight_;
  values.horizontal = 1;
  values.vertical = 1;
  values.style = textStyle_;
  values.layer = newLayer_;
  return drawing.AddText(values, ExtendedData(drawing, pipe));
}

AcDbObjectId AddToModelSpace(ZcDbEntity* entity, int close) {
  std::unique_ptr<ZcDbEntity> owned(entity);
  Drawing& drawing = zwt::WorkingDrawing();
  const AcDbObjectId id = owned->AppendTo(drawing);
  if (!id.isNull() && close == 0) drawing.Adopt(owned.release(), id);
  return id;
}

Acad::ErrorStatus ZwtGetEntityFields(AcDbObjectId id, const wchar_t* key, CString& text) {
  text.clear();
  ZcDbEntity* entity = nullptr;
  Acad::ErrorStatus status = acdbOpenAcDbObject(entity, id, AcDb::kForRead);
  if (status != Acad::eOk) return status;
  status = entity->Fields()->GetField(key, text);
  entity->close();
  return status;
}

Acad::ErrorStatus ZwtSetEntityFields(AcDbObjectId id, const wchar_t* key, const CString& text) {
  ZcDbEntity* entity = nullptr;
  Acad::ErrorStatus status = acdbOpenAcDbObject(entity, id, AcDb::kForWrite);
  if (status != Acad::eOk) return status;
  Drawing& drawing = zwt::WorkingDrawing();
  status = drawing.SetFields(drawing.IndexOf(id), {{key, text}});
  entity->close();
  return status;
}

double ZcDbGetWtTextHeight(const AcDbDatabase* database) {
  return (database == nullptr ? zwt::WorkingDrawing() : *database).AnnotationHeight();
}

AcDbObjectId ZcDtInitTextStyle(const CString& name, AcDbDatabase* database) {
  return (database == nullptr ? zwt::WorkingDrawing() : *database).InitTextStyle(name);
}

AcDbObjectId ZcDtInitLayer(const CString& name, AcDbDatabase* database) {
  return (database == nullptr ? zwt::WorkingDrawing() : *database).InitLayer(name);
}

CString GetZwtLayer(const CString& first, const CString& second, const CString& third) {
  CString name;
  for (const CString* word : {&first, &second, &third}) {
    if (word->empty()) continue;
    if (!name.empty()) name += L'-';
    name += *word;
  }
  for (wchar_t& letter : name) {
    if (letter < 0x20 || CString(L"<>/\\\":;?*|,=`").find(letter) != CString::npos) letter = L'_';
  }
  return name;
}

void UpdateGraphics() {
  zwt::WorkingDrawing().NotifyGraphics();
}
