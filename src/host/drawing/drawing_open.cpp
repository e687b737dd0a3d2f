#include "host/drawing/drawing_open.h"

#include <algorithm>
#include <utility>

#include "host/drawing/connections.h"

namespace zwt {
namespace {

std::unique_ptr<ZcDbEntity> MakeObject(const EntityRecord& entity) {
  if (entity.pipe >= 0) return std::make_unique<ZcDbWtPipe>();
  if (entity.type != EntityType::Text) return std::make_unique<ZcDbEntity>();
  if (HasExtendedData(entity.tags, kDiameterApplication)) return std::make_unique<ZcDbWtSymbDiameterDim>();
  return std::make_unique<ZcDbText>();
}

}  // namespace

Acad::ErrorStatus Drawing::Open(AcDbObjectId id, AcDb::OpenMode mode, const ZcRxClass* wanted,
                                ZcDbEntity*& object) {
  object = nullptr;
  const std::int32_t index = IndexOf(id);
  if (index < 0) return id.isNull() ? Acad::eNullObjectId : Acad::eInvalidInput;
  if (!Entity(index).alive) return Acad::eWasErased;
  const auto open = open_->byEntity.find(index);
  if (open != open_->byEntity.end()) {
    if (open->second.front()->mode_ == AcDb::kForWrite) return Acad::eWasOpenForWrite;
    if (mode == AcDb::kForWrite) return Acad::eWasOpenForRead;
  }
  std::unique_ptr<ZcDbEntity> made = MakeObject(Entity(index));
  if (!made->isA()->isDerivedFrom(wanted)) return Acad::eNotThatKindOfClass;
  made->drawing_ = this;
  made->index_ = index;
  made->id_ = id;
  made->mode_ = mode;
  object = made.get();
  open_->byEntity[index].push_back(std::move(made));
  return Acad::eOk;
}

void Drawing::Close(ZcDbEntity* object) {
  const auto open = open_->byEntity.find(object->index_);
  if (open == open_->byEntity.end()) return;
  auto& objects = open->second;
  objects.erase(
      std::remove_if(objects.begin(), objects.end(),
                     [object](const std::unique_ptr<ZcDbEntity>& held) { return held.get() == object; }),
      objects.end());
  if (objects.empty()) open_->byEntity.erase(open);
}

void Drawing::Adopt(ZcDbEntity* object, AcDbObjectId id) {
  object->drawing_ = this;
  object->index_ = IndexOf(id);
  object->id_ = id;
  object->mode_ = AcDb::kForWrite;
  open_->byEntity[object->index_].emplace_back(object);
}

namespace {

std::unique_ptr<Drawing>& Working() {
  static std::unique_ptr<Drawing> drawing = std::make_unique<Drawing>();
  return drawing;
}

}  // namespace

Drawing& WorkingDrawing() {
  return *Working();
}

std::unique_ptr<Drawing> ReplaceWorkingDrawing(std::unique_ptr<Drawing> drawing) {
  std::swap(Working(), drawing);
  return drawing;
}

}  // namespace zwt
