// Risers, numbers and sections from the routes of the pipe graph. The routes through the loop are not listed:
// those that show a node or a section for the first time are all that numbering and sections can see of them.
#include "fire/hydrant_network_model.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <unordered_map>

#include "frame/containers/zc_find_tree.h"
#include "host/drawing/entities.h"
#include "host/runtime/command_line.h"
#include "host/text/number_text.h"

ZcBitData::~ZcBitData() = default;

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

constexpr std::int32_t kFreeEnd = 1;
constexpr std::int32_t kTee = 3;

bool HasField(AcDbObjectId id, const wchar_t* key, const wchar_t* wanted) {
  CString text;
  return ZwtGetEntityFields(id, key, text) == Acad::eOk && text == wanted;
}

bool IsTopHydrantPipe(AcDbObjectId id) {
  return HasField(id, L"ELS_TYPE", L"支管") && HasField(id, L"IsTopHydrant", L"TRUE");
}

/// The longer path goes first.
int CompareLongestFirst(const ZcDbPipeGraphPath& first, const ZcDbPipeGraphPath& second) {
  if (first.Length() == second.Length()) return 0;
  return first.Length() > second.Length() ? -1 : 1;
}

AcDbObjectId LastPipeOf(const ZcDbPipeGraphPath& path) {
  ZcDbObjectIdList pipes;
  path.GetPathPipeId(pipes);
  return pipes.IsEmpty() ? AcDbObjectId{} : pipes.GetAt(pipes.GetMaxIndex());
}

CString SectionKey(std::int32_t from, std::int32_t to) {
  CString key = ZwtNum2Str(from);
  key += L'-';
  key += ZwtNum2Str(to);
  return key;
}

/// The first element that matches, or null. Leaves the cursor alone, so that a walk over the list may ask for
/// it.
template <class T, class Match>
T* FindElement(ZcDList<T>& list, Match matches) {
  for (const T* element = list.GetFirst(); element != nullptr; element = list.GetNext(element)) {
    if (matches(*element)) return const_cast<T*>(element);
  }
  return nullptr;
}

/// Length of a pipe if it is part of a riser, else 0.
double RiserPipeLength(AcDbObjectId id) {
  if (!HasField(id, L"ELS_TYPE", L"立管")) return 0.0;
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, id, AcDb::kForRead) != Acad::eOk) return 0.0;
  const double length = pipe->GetPipeLength();
  pipe->close();
  return length;
}

}  // namespace

ZwtHydrantGraph::~ZwtHydrantGraph() {
  for (edges.MoveToFirst(); !edges.IsOut(); edges.MoveToNext()) delete edges.GetCurData().path;
}

void ZwtHydrantGraph::Clear() {
  for (edges.MoveToFirst(); !edges.IsOut(); edges.MoveToNext()) delete edges.GetCurData().path;
  edges.Reset();
  nodes.Reset();
  risers.Reset();
  layerNum = -1;
  farthestTopPipe = AcDbObjectId{};
  riserLengths_.clear();
}

bool ZwtHydrantGraph::BuildHydrantModel(AcDbObjectId mainEnd) {
  Clear();
  mainEndPipe = mainEnd;
  CreateRelateGraph(mainEndPipe);
  std::vector<AcDbObjectId> topPipes;
  if (!CollectTopPipes(topPipes)) return false;
  FindRisers(topPipes);
  if (farthestTopPipe.isNull()) return false;
  risers.Sort(&CompareLongestFirst);
  BringNeighbourForward();
  FoundPaths().Reset();
  ZcDbPipeGraphNode* root = FindEndNode(mainEndPipe, true);
  ZcDbPipeGraphNode* farNode = root == nullptr ? nullptr : FindEndNode(farthestTopPipe, false);
  if (farNode == nullptr || FindPathOfFirstSight(root, farNode) == 0) return false;
  NumberNodes();
  MakeEdges();
  return true;
}

/// The top pipes in drawing order. False where there are none or where they differ in their number of
/// hydrants.
bool ZwtHydrantGraph::CollectTopPipes(std::vector<AcDbObjectId>& topPipes) {
  AcDbObjectId former;
  for (MoveToFirst(); !IsOut(); MoveToNext()) {
    const AcDbObjectId pipe = GetCurData()->GetPipeId();
    const bool isSamePipe = pipe == former;  // the edges of a pipe follow each other
    former = pipe;
    if (isSamePipe || !IsTopHydrantPipe(pipe)) continue;
    if (!NoteLayerNum(pipe)) return false;
    topPipes.push_back(pipe);
  }
  return !topPipes.empty();
}

bool ZwtHydrantGraph::NoteLayerNum(AcDbObjectId topPipe) {
  CString text;
  ZwtGetEntityFields(topPipe, L"LayerNum", text);
  const std::int32_t ofRiser = _wtoi(text);
  if (layerNum == -1) layerNum = ofRiser;
  if (layerNum == ofRiser) return true;
  acutPrintf(L"\n每根立管所连接消火栓数量不同.");
  return false;
}

void ZwtHydrantGraph::FindRisers(const std::vector<AcDbObjectId>& topPipes) {
  double longest = 0.0;
  for (const AcDbObjectId topPipe : topPipes) {
    FoundPaths().Reset();
    if (FindPath(mainEndPipe, topPipe) == 0) continue;
    SortPath();
    ZcDbPipeGraphPath* riser = FoundPaths().TakeOffHead();
    risers.Append(riser);
    if (riser->Length() > longest) {
      longest = riser->Length();
      farthestTopPipe = topPipe;
    }
  }
}

/// Exchanges the second riser with the one whose top pipe is nearest to the farthest.
void ZwtHydrantGraph::BringNeighbourForward() {
  double shortest = std::numeric_limits<double>::max();
  std::int32_t neighbour = -1;
  for (std::int32_t index = 1; index < risers.GetLength(); ++index) {
    FoundPaths().Reset();
    if (FindPath(farthestTopPipe, LastPipeOf(risers(index))) == 0) break;
    SortPath();
    if (FoundPaths()(0).Length() < shortest) {
      shortest = FoundPaths()(0).Length();
      neighbour = index;
    }
  }
  if (neighbour >= 2) risers.Exchange(1, neighbour);
}

/// The node at the start of a pipe, else that at its end, which is a free end or is none as wanted.
ZcDbPipeGraphNode* ZwtHydrantGraph::FindEndNode(AcDbObjectId pipeId, bool isFree) {
  ZcDbWtPipe* pipe = nullptr;
  if (acdbOpenAcDbObject(pipe, pipeId, AcDb::kForRead) != Acad::eOk) return nullptr;
  ZcDbPipeGraphNode* const ends[] = {FindPipeGraphNode(pipe->GetStartPoint()),
                                     FindPipeGraphNode(pipe->GetEndPoint())};
  pipe->close();
  for (ZcDbPipeGraphNode* end : ends) {
    if (end != nullptr && (end->GetKind() == kFreeEnd) == isFree) return end;
  }
  return nullptr;
}

void ZwtHydrantGraph::NumberNodes() {
  numberOf_.assign(At(Nodes().GetLength()), 0);
  ZcBFindTree<AcDbObjectId> seen;
  for (FoundPaths().MoveToFirst(); !FoundPaths().IsOut(); FoundPaths().MoveToNext()) {
    ZcDList<ZcDbPipeGraphNode*> graphNodes;
    KeyNodesFromTop(*FoundPaths().GetCurData(), graphNodes);
    for (graphNodes.MoveToFirst(); !graphNodes.IsOut(); graphNodes.MoveToNext()) {
      if (seen.Insert(graphNodes.GetCurData()->GetObjectId())) NumberNode(graphNodes.GetCurData());
    }
  }
}

void ZwtHydrantGraph::NumberNode(ZcDbPipeGraphNode* graphNode) {
  ZwtHydrantNode node;
  node.number = nodes.GetLength() + 1;
  node.graphNode = graphNode;
  if (node.number == 1) {
    node.flags = HYDRANT_NODE_FIRST;
  } else if (graphNode->GetKind() == kFreeEnd) {
    node.flags = HYDRANT_NODE_END;
  }
  nodes.Append(node);
  numberOf_[At(graphNode->GetIndex())] = node.number;
}

void ZwtHydrantGraph::MakeEdges() {
  ZcBFindTree<CString> made;
  for (FoundPaths().MoveToFirst(); !FoundPaths().IsOut(); FoundPaths().MoveToNext()) {
    ZcDList<ZcDbPipeGraphNode*> graphNodes;
    KeyNodesFromTop(*FoundPaths().GetCurData(), graphNodes);
    ZcDbPipeGraphNode* former = nullptr;
    for (graphNodes.MoveToFirst(); !graphNodes.IsOut(); graphNodes.MoveToNext()) {
      ZcDbPipeGraphNode* const start = former;
      former = graphNodes.GetCurData();
      if (start == nullptr) continue;
      const std::int32_t first = numberOf_[At(start->GetIndex())];
      const std::int32_t second = numberOf_[At(former->GetIndex())];
      // The second key keeps a section from being made again in the other direction.
      const bool isNewForth = made.Insert(SectionKey(first, second));
      const bool isNewBack = made.Insert(SectionKey(second, first));
      if (isNewForth && isNewBack) MakeEdge(start, former);
    }
  }
}

void ZwtHydrantGraph::MakeEdge(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to) {
  ZwtHydrantEdge edge;
  edge.startNumber = numberOf_[At(from->GetIndex())];
  edge.endNumber = numberOf_[At(to->GetIndex())];
  edge.path = ShortestPathBetween(from, to);
  edges.Append(edge);
}

ZwtHydrantNode* ZwtHydrantGraph::FindNodeByGraphNode(const ZcDbPipeGraphNode* graphNode) {
  if (graphNode == nullptr) return nullptr;
  return FindElement(nodes, [graphNode](const ZwtHydrantNode& node) {
    return node.graphNode->GetPoint() == graphNode->GetPoint();
  });
}

ZwtHydrantNode* ZwtHydrantGraph::FindNodeByNumber(std::int32_t number) {
  return FindElement(nodes, [number](const ZwtHydrantNode& node) { return node.number == number; });
}

ZwtHydrantNode* ZwtHydrantGraph::FindSourceNode() {
  return FindElement(nodes, [](const ZwtHydrantNode& node) { return node.HasFlag(HYDRANT_NODE_END); });
}

ZcDbPipeGraphPath* ZwtHydrantGraph::FindEdgePath(std::int32_t startNumber, std::int32_t endNumber) {
  const ZwtHydrantEdge* found = FindElement(edges, [startNumber, endNumber](const ZwtHydrantEdge& edge) {
    return edge.startNumber == startNumber && edge.endNumber == endNumber;
  });
  return found == nullptr ? nullptr : found->path;
}

void ZwtHydrantGraph::KeepKeyNodes(ZcDList<ZcDbPipeGraphNode*>& graphNodes) {
  for (graphNodes.MoveToLast(); !graphNodes.IsOut();) {
    const std::int32_t kindOfNode = graphNodes.GetCurData()->GetKind();
    if (kindOfNode == kFreeEnd || kindOfNode == kTee) {
      graphNodes.MoveToPre();
    } else {
      graphNodes.DelCur();
    }
  }
}

void ZwtHydrantGraph::KeyNodesFromTop(const ZcDbPipeGraphPath& path,
                                      ZcDList<ZcDbPipeGraphNode*>& graphNodes) {
  path.GetPathNode(graphNodes);
  graphNodes.ReverseList();
  KeepKeyNodes(graphNodes);
}

void ZwtHydrantGraph::TopNodesOfRiser(const ZcDbPipeGraphPath& path, std::int32_t count,
                                      ZcDList<ZcDbPipeGraphNode*>& graphNodes) {
  ZcDList<ZcDbPipeGraphNode*> fromTop;
  KeyNodesFromTop(path, fromTop);
  fromTop.MoveToFirst();
  for (; count > 0 && !fromTop.IsOut(); --count) {
    graphNodes.Append(fromTop.GetCurData());
    fromTop.MoveToNext();
  }
}

ZcDbPipeGraphPath* ZwtHydrantGraph::ShortestPathBetween(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to) {
  if (from == nullptr || to == nullptr) return nullptr;
  ZcPDList<ZcDbPipeGraphPath> paths;
  if (from->FindPathTo(to, paths) == 0) return nullptr;
  paths.Sort(&ZcDbPipeGraphPath::Compare);
  return paths.TakeOffHead();
}

const std::vector<double>& ZwtHydrantGraph::RiserLengths() {
  const ZwtHydrantNode* source = FindSourceNode();
  if (!riserLengths_.empty() || source == nullptr) {
    riserLengths_.resize(At(nodes.GetLength()), 0.0);
    return riserLengths_;
  }
  ZcPDList<ZcDbPipeGraphPath> paths;
  FindFirstPaths(source->graphNode, paths);
  std::unordered_map<AcDbObjectId, double> lengthOf;
  riserLengths_.assign(At(nodes.GetLength()), 0.0);
  for (paths.MoveToFirst(); !paths.IsOut(); paths.MoveToNext()) {
    const std::int32_t number = numberOf_[At(paths.GetCur())];
    if (number == 0 || paths.IsCurEmpty()) continue;
    ZcDbObjectIdList pipes;
    paths.GetCurData()->GetPathPipeId(pipes);
    for (pipes.MoveToFirst(); !pipes.IsOut(); pipes.MoveToNext()) {
      const auto [known, isNew] = lengthOf.try_emplace(pipes.GetCurData(), 0.0);
      if (isNew) known->second = RiserPipeLength(pipes.GetCurData());
      riserLengths_[At(number - 1)] += known->second;
    }
  }
  return riserLengths_;
}

void ZwtHydrantGraph::CreateNumberTexts() {
  for (nodes.MoveToFirst(); !nodes.IsOut(); nodes.MoveToNext()) {
    const ZwtHydrantNode& node = nodes.GetCurData();
    const AcGePoint3d& point = node.graphNode->GetPoint();
    auto text = std::make_unique<ZcDbText>(ZwtNum2Str(node.number));
    text->SetTextHeight(ZcDbGetWtTextHeight(), 1);
    text->SetPosition({point.x + 10, point.y + 10, point.z});
    text->SetRotation(0);
    text->SetColorIndex(3);
    text->SetTextStyle(ZcDtInitTextStyle(L"WT_TEXT"));
    text->setLayer(ZcDtInitLayer(GetZwtLayer(L"平面", L"管道", L"消防")));
    text->SetAlignment(ZcGiText::kAlignmentMiddleLeft);
    numberTexts.Append(AddToModelSpace(text.release(), 1));
  }
}

void ZwtHydrantGraph::EraseNumberTexts() {
  for (numberTexts.MoveToFirst(); !numberTexts.IsOut(); numberTexts.MoveToNext()) {
    ZcDbEntity* text = nullptr;
    if (acdbOpenAcDbObject(text, numberTexts.GetCurData(), AcDb::kForWrite) != Acad::eOk) continue;
    text->erase(true);
    text->close();
  }
}

}  // namespace zwt
