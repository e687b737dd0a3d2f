// Walk over the drawn risers.
#include "supply/supply_network.h"

#include "host/drawing/pipe_walk.h"
#include "host/text/number_text.h"

double ZwtVPipeData::SumEquivalent(std::int32_t position) const {
  double sum = 0;
  for (const ZwtVPipeEdge* edge = GetTo(position); edge != nullptr; edge = GetNext(edge))
    sum += edge->equivalent;
  return sum;
}

double ZwtVPipeData::SumUsers(std::int32_t position) const {
  double sum = 0;
  for (const ZwtVPipeEdge* edge = GetTo(position); edge != nullptr; edge = GetNext(edge)) {
    sum += edge->doorNum * edge->userNum;
  }
  return sum;
}

namespace zwt {

namespace {

double EndPointX(const AcDbObjectId& pipeId) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, pipeId, AcDb::kForRead) != Acad::eOk) return 0;
  const double x = pipe->GetEndPoint().x;
  pipe->close();
  return x;
}

void TakeBranch(ZwtVPipeEdge& edge, AcDbObjectId branchId, ZcDbWtPipe& branch) {
  edge.branchId = branchId;
  edge.material = branch.GetMaterial();
  edge.doorNum = _wtof(FieldText(branch, L"DoorNum"));
  edge.userNum = _wtof(FieldText(branch, L"UserNum"));
  edge.equivalent = _wtof(FieldText(branch, L"Equivalent"));
  edge.ration = _wtof(FieldText(branch, L"Ration"));
  edge.kh = _wtof(FieldText(branch, L"Kh"));
  edge.time = _wtoi(FieldText(branch, L"Time"));
}

void VisitNeighbour(PipeWalk& walk, AcDbObjectId id, ZwtVPipeEdge& edge) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, id, AcDb::kForRead) != Acad::eOk) return;
  if (walk.See(id)) {
    const CString role = FieldText(*pipe, L"ELS_TYPE");
    if (role == L"支管") {
      TakeBranch(edge, id, *pipe);
    } else if (role == L"立管") {
      walk.Visit(id);
    }
  }
  pipe->close();
}

}  // namespace

int CompareEndPointX(const AcDbObjectId& first, const AcDbObjectId& second) {
  return EndPointX(first) > EndPointX(second) ? 1 : -1;
}

void BuildRiserData(ZcDList<ZwtVPipeData>& risers, AcDbObjectId entryPipe) {
  PipeWalk walk(entryPipe);
  ZwtVPipeData riser;
  for (AcDbObjectId pipeId; walk.Next(pipeId);) {
    ZcDbWtPipe* pipe = nullptr;
    if (acdbOpenAcDbObject(pipe, pipeId, AcDb::kForRead) != Acad::eOk) continue;
    ZwtVPipeEdge edge;
    edge.pipeId = pipeId;
    edge.length = Distance(pipe->GetEndPoint(), pipe->GetStartPoint());
    ZcDbObjectIdList neighbours;
    pipe->GetConnectEnt(neighbours, ZcDbWtPipe::desc());
    for (neighbours.MoveToFirst(); !neighbours.IsOut(); neighbours.MoveToNext()) {
      VisitNeighbour(walk, neighbours.GetCurData(), edge);
    }
    riser.Append(edge);
    pipe->close();
  }
  risers.Append(riser);
}

SupplySectionInput SectionInput(const ZwtVPipeData& riser, std::int32_t position) {
  const ZwtVPipeEdge& section = riser.GetAt(position);
  SupplySectionInput input;
  input.equivalents = riser.SumEquivalent(position);
  input.persons = riser.SumUsers(position);
  input.quota = section.ration;
  input.hourlyFactor = section.kh;
  input.hours = section.time;
  input.length = section.length;
  input.material = section.material;
  return input;
}

CString FormatSectionLabel(std::int32_t riser, std::int32_t position) {
  return ZwtNum2Str(riser + 1) + L"#-" + ZwtNum2Str(position + 1) + L"层";
}

bool ParseSectionLabel(const CString& label, std::int32_t& riser, std::int32_t& position) {
  const std::size_t dash = label.find(L'-');
  if (dash == CString::npos) return false;
  const CString left = label.substr(0, dash);
  const CString right = label.substr(dash + 1);
  const std::size_t riserMark = left.find(L'#');
  const std::size_t floorMark = right.find(L'层');
  if (riserMark == CString::npos || floorMark == CString::npos) return false;
  riser = _wtoi(left.substr(0, riserMark)) - 1;
  position = _wtoi(right.substr(0, floorMark)) - 1;
  return true;
}

}  // namespace zwt
