// Walk up a drawn drainage stack.
#include "drainage/drainage_network.h"

#include "host/drawing/pipe_walk.h"
#include "host/text/number_text.h"
#include "output/pipe_write_back.h"

namespace {

void TakeBranch(ZwtPsPipeEdge& row, AcDbObjectId branchId, ZcDbWtPipe& branch) {
  row.branchId = branchId;
  row.material = branch.GetMaterial();
  row.equivalent = _wtof(zwt::FieldText(branch, L"Equivalent"));
  row.flux = _wtof(zwt::FieldText(branch, L"Flux"));
  row.qmax = _wtof(zwt::FieldText(branch, L"Qmax"));
  row.maxDn = _wtoi(zwt::FieldText(branch, L"MaxDN"));
}

/// Looks at a pipe that touches the current riser; true if it is a branch, whose values the row then holds.
bool VisitNeighbour(zwt::PipeWalk& walk, AcDbObjectId id, ZwtPsPipeEdge& row) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, id, AcDb::kForRead) != Acad::eOk) return false;
  bool isBranch = false;
  if (walk.See(id)) {
    const CString role = zwt::FieldText(*pipe, L"ELS_TYPE");
    isBranch = role == L"支管";
    if (isBranch) TakeBranch(row, id, *pipe);
    if (role == L"立管") walk.Visit(id);
  }
  pipe->close();
  return isBranch;
}

}  // namespace

std::int32_t ZwtPsPipeNetwork::BuildFromEndPipe(AcDbObjectId id) {
  endPipeId = id;
  zwt::PipeWalk walk(id);
  for (AcDbObjectId riserId; walk.Next(riserId);) {
    ZcDbWtPipe* riser = nullptr;
    if (acdbOpenAcDbObject(riser, riserId, AcDb::kForRead) != Acad::eOk) continue;
    ZwtPsPipeEdge row;
    row.riserId = riserId;
    bool hasBranch = false;
    ZcDbObjectIdList neighbours;
    riser->GetConnectEnt(neighbours, ZcDbWtPipe::desc());
    for (neighbours.MoveToFirst(); !neighbours.IsOut(); neighbours.MoveToNext()) {
      if (VisitNeighbour(walk, neighbours.GetCurData(), row)) hasBranch = true;
    }
    if (hasBranch) edges.Append(row);
    riser->close();
  }
  return 1;
}

std::vector<zwt::DrainageBranch> ZwtPsPipeNetwork::Branches() const {
  std::vector<zwt::DrainageBranch> branches;
  for (const ZwtPsPipeEdge* edge = edges.GetFirst(); edge != nullptr; edge = edges.GetNext(edge)) {
    branches.push_back({edge->equivalent, edge->qmax, edge->maxDn, edge->material});
  }
  return branches;
}

CString ZwtPsPipeNetwork::GetVentType() const {
  CString text;
  ZwtGetEntityFields(endPipeId, L"TQType", text);
  return text;
}

void ZwtPsPipeNetwork::AnnotatePipes() {
  for (edges.MoveToFirst(); !edges.IsOut(); edges.MoveToNext()) {
    zwt::AnnotatePipeDiameter(edges.GetCurData().riserId);
    zwt::AnnotatePipeDiameter(edges.GetCurData().branchId);
  }
}
