// The hands of the round trip scripts: reads a drawing, saves it unchanged or after a run of every change
// that commands make.
//
//   dxf_probe same IN OUT      reads and saves
//   dxf_probe change IN OUT    reads, makes changes of every kind, saves
//   dxf_probe undo IN OUT      reads, makes them, takes them back, saves

#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/drawing/connections.h"
#include "host/drawing/entities.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/files.h"

namespace {

using zwt::Drawing;
using zwt::WorkingDrawing;

/// What the annotation of one pipe does: the attached objects go, a new annotation comes.
void Annotate(AcDbObjectId id) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, id, AcDb::kForWrite) != Acad::eOk) return;
  pipe->SetDiameter(65);
  const CString system = pipe->GetWtSystem();
  ZcDbObjectIdList attached;
  pipe->GetAttachObjectId(attached);
  const std::unique_ptr<ZcGeCurve3d> curve(pipe->GetPipeCurve());
  pipe->close();
  for (std::int32_t i = 0; i < attached.GetLength(); ++i) {
    ZcDbEntity* entity = nullptr;
    if (acdbOpenAcDbObject(entity, attached.GetAt(i), AcDb::kForWrite) != Acad::eOk) continue;
    entity->erase(true);
    entity->close();
  }
  auto dimension = std::make_unique<ZcDbWtSymbDiameterDim>();
  dimension->SetLocation(curve->GetMidPoint());
  dimension->SetPrefix(L"DN");
  dimension->SetDiameter(L"65");
  dimension->SetTextHeight(ZcDbGetWtTextHeight());
  dimension->SetTextStyle(ZcDtInitTextStyle(L"WT_TEXT"));
  dimension->setLayer(ZcDtInitLayer(GetZwtLayer(L"标注", L"管径", system)));
  AddToModelSpace(dimension.release(), 1);
}

void ChangeEverything() {
  Drawing& drawing = WorkingDrawing();
  drawing.BeginStep();
  for (const std::int32_t pipe : drawing.Pipes()) Annotate(drawing.IdOf(pipe));
  for (std::int32_t i = 0; i < drawing.EntityCount(); ++i) {
    if (drawing.Entity(i).alive && drawing.Entity(i).canBePipe && drawing.Entity(i).pipe < 0) {
      drawing.MakePipe(i,
                       {{L"WtSystem", L"热水"}, {L"ELS_TYPE", L"支管"}, {L"备注", L"\U0001F6B0 \\U+0041"}});
    }
  }
  const AcDbObjectId pipe = drawing.AddPipe({-1000, 0, 0}, {-1000, 3000, 0}, {{L"WtSystem", L"消防"}},
                                            drawing.InitLayer(L"新消防管"));
  Annotate(pipe);
  auto label = std::make_unique<ZcDbText>(L"12");
  label->SetTextHeight(ZcDbGetWtTextHeight(), 1);
  label->SetColorIndex(3);
  label->SetAlignment(ZcGiText::kAlignmentMiddleLeft);
  label->setLayer(ZcDtInitLayer(GetZwtLayer(L"平面", L"管道", L"消防")));
  AddToModelSpace(label.release(), 1);
  drawing.EndStep();
}

int Run(const std::vector<std::string>& arguments) {
  if (arguments.size() != 3) return 2;
  zwt::ReplaceWorkingDrawing(zwt::ReadDrawing(arguments[1]));
  if (arguments[0] != "same") ChangeEverything();
  if (arguments[0] == "undo") WorkingDrawing().Undo();
  zwt::SaveDrawing(WorkingDrawing(), arguments[2]);
  zwt::ReplaceWorkingDrawing(zwt::ReadDrawing(arguments[2]));
  const Drawing& drawing = WorkingDrawing();
  std::size_t attached = 0;
  for (const std::int32_t pipe : drawing.Pipes()) attached += drawing.AttachedTo(pipe).size();
  std::printf("%zu pipes, %zu attached\n", drawing.Pipes().size(), attached);
  return 0;
}

}  // namespace

int main(int count, char** values) {
  try {
    return Run(std::vector<std::string>(values + 1, values + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}
