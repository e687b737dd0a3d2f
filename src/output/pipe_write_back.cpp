// Diameters and annotations into the drawing.
#include "output/pipe_write_back.h"

#include <memory>

#include "data/materials.h"
#include "host/drawing/entities.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

/// What an annotation needs to know of its pipe.
struct AnnotatedPipe {
  CString material;
  double diameter = 0;  // mm
  CString system;
  AcGePoint3d middle;
  ZcDbObjectIdList attached;
};

bool ReadPipe(AcDbObjectId pipeId, AnnotatedPipe& read) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, pipeId, AcDb::kForRead) != Acad::eOk) return false;
  read.material = pipe->GetMaterial();
  read.diameter = pipe->GetDiameter();
  read.system = pipe->GetWtSystem();
  const std::unique_ptr<ZcGeCurve3d> curve(pipe->GetPipeCurve());
  pipe->GetAttachObjectId(read.attached);
  pipe->close();
  read.middle = curve->GetMidPoint();
  return true;
}

void EraseAll(ZcDbObjectIdList& objects) {
  for (objects.MoveToFirst(); !objects.IsOut(); objects.MoveToNext()) {
    ZcDbEntity* entity = nullptr;
    if (acdbOpenAcDbObject(entity, objects.GetCurData(), AcDb::kForWrite) != Acad::eOk) continue;
    entity->erase(true);
    entity->close();
  }
}

}  // namespace

void SetSectionDiameter(AcDbObjectId pipeId, std::int32_t diameter) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, pipeId, AcDb::kForWrite) != Acad::eOk) return;
  pipe->SetDiameter(diameter);
  pipe->close();
}

void AnnotatePipeDiameter(AcDbObjectId pipeId) {
  AnnotatedPipe pipe;
  if (!ReadPipe(pipeId, pipe)) return;
  EraseAll(pipe.attached);
  auto annotation = std::make_unique<ZcDbWtSymbDiameterDim>();
  annotation->SetStyle(DimStyle{0});
  annotation->SetLocation(pipe.middle);
  annotation->SetPrefix(ZwtGetMaterialPrefix(pipe.material));
  annotation->SetDiameter(ZwtNum2Str(pipe.diameter, -1));
  annotation->SetTextHeight(ZcDbGetWtTextHeight());
  annotation->SetTextStyle(ZcDtInitTextStyle(L"WT_TEXT"));
  annotation->setLayer(ZcDtInitLayer(GetZwtLayer(L"标注", L"管径", pipe.system)));
  AddToModelSpace(annotation.release(), 1);
}

}  // namespace zwt
