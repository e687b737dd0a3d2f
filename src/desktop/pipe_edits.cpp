// Changes of many pipes.
#include "desktop/pipe_edits.h"

#include <algorithm>
#include <cmath>

#include "desktop/undo_step.h"
#include "host/drawing/connections.h"

namespace zwt {

namespace {

/// A copy that stands on its original is the next section of its riser, not a second entry.
FieldList FieldsOfCopy(std::int32_t pipe) {
  FieldList fields = WorkingDrawing().Fields(pipe);
  for (auto& [key, text] : fields) {
    if (key == L"ELS_TYPE" && text == L"入口立管") text = L"立管";
  }
  return fields;
}

AcGePoint3d Raised(const AcGePoint3d& point, double height, bool inSpace) {
  return inSpace ? AcGePoint3d{point.x, point.y, point.z + height}
                 : AcGePoint3d{point.x, point.y + height, point.z};
}

/// Upward is along Z where pipes reach through space, else along Y as in schematics.
bool IsSpatial(const std::vector<std::int32_t>& pipes) {
  return std::any_of(pipes.begin(), pipes.end(), [](std::int32_t pipe) {
    const PipeRecord& record = WorkingDrawing().PipeOf(pipe);
    return std::abs(record.end.z - record.start.z) > kTouch;
  });
}

/// The point of a pipe nearest to another point: one of its ends where that is as near as any, so that ends
/// meet ends. Nothing on arcs.
std::optional<AcGePoint3d> NearestOnPipe(std::int32_t pipe, const AcGePoint3d& point) {
  const PipeCurve curve = WorkingDrawing().CurveOf(pipe);
  std::optional<AcGePoint3d> nearest;
  const auto offer = [&](const AcGePoint3d& candidate, double handicap) {
    if (!nearest || Distance(candidate, point) + handicap < Distance(*nearest, point)) nearest = candidate;
  };
  offer(curve.front().start, 0);
  offer(curve.back().end, 0);
  for (const CurvePart& part : curve) {
    const double length = part.GetLength();
    if (part.radius > 0 || length == 0) continue;
    const double along = Dot(point - part.start, part.end - part.start) / (length * length);
    offer(part.PointAt(std::clamp(along, 0.0, 1.0)), kTouch);
  }
  return nearest;
}

bool CloseGap(const Finding& finding) {
  Drawing& drawing = WorkingDrawing();
  if (finding.kind != "gap" || finding.handles.size() != 2) return false;
  const std::int32_t pipe = drawing.FindHandle(finding.handles[0]);
  const std::int32_t other = drawing.FindHandle(finding.handles[1]);
  if (pipe < 0 || other < 0 || drawing.Entity(pipe).pipe < 0 || drawing.Entity(other).pipe < 0) return false;
  const PipeRecord& record = drawing.PipeOf(pipe);
  const bool atStart = Distance(record.start, finding.place) <= Distance(record.end, finding.place);
  const std::optional<AcGePoint3d> target = NearestOnPipe(other, finding.place);
  return target && drawing.MoveLineEnd(pipe, atStart, *target) == Acad::eOk;
}

}  // namespace

std::vector<std::int32_t> PipesAmong(Entities entities) {
  std::vector<std::int32_t> pipes;
  std::copy_if(entities.begin(), entities.end(), std::back_inserter(pipes), [](std::int32_t entity) {
    const EntityRecord& record = WorkingDrawing().Entity(entity);
    return record.alive && record.pipe >= 0;
  });
  return pipes;
}

std::vector<std::int32_t> LinesAmong(Entities entities) {
  std::vector<std::int32_t> lines;
  std::copy_if(entities.begin(), entities.end(), std::back_inserter(lines), [](std::int32_t entity) {
    const EntityRecord& record = WorkingDrawing().Entity(entity);
    return record.alive && record.pipe < 0 && record.canBePipe && !record.inPaperSpace;
  });
  return lines;
}

std::optional<CString> CommonField(Entities entities, const CString& key) {
  std::optional<CString> common;
  for (const std::int32_t pipe : PipesAmong(entities)) {
    CString text;
    WorkingDrawing().GetField(pipe, key, text);
    if (common && *common != text) return std::nullopt;
    common = text;
  }
  return common;
}

void EraseAll(Entities entities) {
  const UndoStep step;
  for (const std::int32_t entity : entities) WorkingDrawing().Erase(entity);
}

CopyCount CopyStoreyUpward(Entities entities, double height, std::int32_t storeys) {
  const UndoStep step;
  Drawing& drawing = WorkingDrawing();
  CopyCount count;
  const std::vector<std::int32_t> pipes = PipesAmong(entities);
  const bool inSpace = IsSpatial(pipes);
  for (const std::int32_t entity : pipes) {
    if (drawing.Entity(entity).type != EntityType::Line) {
      ++count.leftOut;
      continue;
    }
    const PipeRecord pipe = drawing.PipeOf(entity);
    const FieldList fields = FieldsOfCopy(entity);
    const AcDbObjectId layer = drawing.LayerId(drawing.Entity(entity).layer);
    for (std::int32_t storey = 1; storey <= storeys; ++storey) {
      const double rise = storey * height;
      const AcDbObjectId copy =
          drawing.AddPipe(Raised(pipe.start, rise, inSpace), Raised(pipe.end, rise, inSpace), fields, layer);
      if (!copy.isNull()) ++count.copied;
    }
  }
  return count;
}

std::int32_t CloseGaps(const std::vector<Finding>& findings) {
  const UndoStep step;
  return static_cast<std::int32_t>(std::count_if(findings.begin(), findings.end(), CloseGap));
}

}  // namespace zwt
