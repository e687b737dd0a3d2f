// Identifiers, pointers and lists around the plain network.
#include "host/graph/pipe_graph.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <utility>

#include "host/drawing/connections.h"
#include "host/drawing/drawing.h"
#include "host/graph/first_route.h"
#include "host/graph/first_sight.h"
#include "host/graph/pipe_layout.h"

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

constexpr std::int32_t kNoPipe = -1;

}  // namespace

ZcDbPipeGraphNode::~ZcDbPipeGraphNode() = default;

AcDbObjectId ZcDbPipeGraphNode::GetObjectId() const {
  return AcDbObjectId{static_cast<std::uint64_t>(index_) + 1};
}

std::int32_t ZcDbPipeGraphNode::FindPathTo(ZcDbPipeGraphNode* other, ZcPDList<ZcDbPipeGraphPath>& paths) {
  if (!graph_->Owns(other)) return 0;
  const auto route = zwt::FirstRouteBetweenNodes(graph_->network_, index_, other->index_);
  if (!route) return 0;
  paths.Append(graph_->MakePath(*route, kNoPipe, kNoPipe));
  return 1;
}

ZcDbPipeGraphEdge::~ZcDbPipeGraphEdge() = default;

ZcDbPipeGraphPath::ZcDbPipeGraphPath(std::int64_t length, std::vector<ZcDbPipeGraphNode*> nodes,
                                     std::vector<AcDbObjectId> pipeIds, std::vector<std::int32_t> edges)
    : length_(length),
      nodes_(std::move(nodes)),
      pipeIds_(std::move(pipeIds)),
      latestFirst_(std::move(edges)) {
  std::sort(latestFirst_.rbegin(), latestFirst_.rend());
}

ZcDbPipeGraphPath::~ZcDbPipeGraphPath() = default;

void ZcDbPipeGraphPath::GetPathNode(ZcDList<ZcDbPipeGraphNode*>& nodes) const {
  for (ZcDbPipeGraphNode* node : nodes_) nodes.Append(node);
}

void ZcDbPipeGraphPath::GetPathPipeId(ZcDbObjectIdList& pipeIds) const {
  for (const AcDbObjectId pipeId : pipeIds_) pipeIds.Append(pipeId);
}

std::int32_t ZcDbPipeGraphPath::Compare(const ZcDbPipeGraphPath& first, const ZcDbPipeGraphPath& second) {
  if (first.length_ != second.length_) return first.length_ < second.length_ ? -1 : 1;
  if (first.latestFirst_ == second.latestFirst_) return 0;
  return first.latestFirst_ < second.latestFirst_ ? -1 : 1;
}

ZcDbPipeGraph::ZcDbPipeGraph() = default;
ZcDbPipeGraph::~ZcDbPipeGraph() = default;

bool ZcDbPipeGraph::CreateRelateGraph(AcDbObjectId pipe) {
  const zwt::Drawing& drawing = zwt::WorkingDrawing();
  zwt::PipeLayout layout = zwt::MakePipeLayout(drawing, drawing.IndexOf(pipe));
  foundPaths_.Reset();
  Reset();
  nodes_.Reset();
  nodeAt_.clear();
  pipeIds_.clear();
  joints_.clear();
  network_ = std::move(layout.network);
  for (const std::int32_t entity : layout.pipes) pipeIds_.push_back(drawing.IdOf(entity));
  for (const zwt::PipeJoint& joint : layout.joints) joints_.push_back({joint.point, joint.node});
  for (std::int32_t index = 0; index < network_.NodeCount(); ++index) {
    const auto kindOfNode =
        static_cast<std::int32_t>(std::min<std::size_t>(network_.EdgesAt(index).size(), 3));
    nodeAt_.push_back(new ZcDbPipeGraphNode(this, index, kindOfNode, layout.nodes[At(index)]));
    nodes_.Append(nodeAt_.back());
  }
  for (std::int32_t index = 0; index < network_.EdgeCount(); ++index) {
    const zwt::RouteEdge& edge = network_.Edge(index);
    Append(new ZcDbPipeGraphEdge(pipeIds_[At(edge.pipe)], NodeAt(edge.start), NodeAt(edge.end),
                                 static_cast<double>(edge.length) / 1000));
  }
  return !pipeIds_.empty();
}

ZcDbPipeGraphNode* ZcDbPipeGraph::FindPipeGraphNode(const AcGePoint3d& point) const {
  ZcDbPipeGraphNode* nearest = nullptr;
  double distance = std::numeric_limits<double>::infinity();
  for (const Joint& joint : joints_) {
    const double ofJoint = zwt::Distance(joint.point, point);
    if (ofJoint > zwt::kTouch + zwt::kTouchRounding || !(ofJoint < distance)) continue;
    nearest = NodeAt(joint.node);
    distance = ofJoint;
  }
  return nearest;
}

std::int32_t ZcDbPipeGraph::NumberOf(AcDbObjectId pipe) const {
  const auto found = std::find(pipeIds_.begin(), pipeIds_.end(), pipe);
  return found == pipeIds_.end() ? kNoPipe : static_cast<std::int32_t>(found - pipeIds_.begin());
}

bool ZcDbPipeGraph::Owns(const ZcDbPipeGraphNode* node) const {
  return node != nullptr && node->graph_ == this;
}

std::int32_t ZcDbPipeGraph::FindPath(AcDbObjectId fromPipe, AcDbObjectId toPipe) {
  const std::int32_t from = NumberOf(fromPipe);
  const std::int32_t to = NumberOf(toPipe);
  if (from == kNoPipe || to == kNoPipe) return 0;
  const auto route = zwt::FirstRouteBetweenPipes(network_, from, to);
  if (!route) return 0;
  foundPaths_.Append(MakePath(*route, from, to));
  return 1;
}

std::int32_t ZcDbPipeGraph::FindPath(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to) {
  return Owns(from) ? from->FindPathTo(to, foundPaths_) : 0;
}

std::int32_t ZcDbPipeGraph::FindPathOfFirstSight(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to) {
  if (!Owns(from) || !Owns(to)) return 0;
  const auto routes = zwt::RoutesOfFirstSight(network_, from->GetIndex(), to->GetIndex());
  for (const zwt::Route& route : routes) foundPaths_.Append(MakePath(route, kNoPipe, kNoPipe));
  return static_cast<std::int32_t>(routes.size());
}

void ZcDbPipeGraph::FindFirstPaths(ZcDbPipeGraphNode* from, ZcPDList<ZcDbPipeGraphPath>& paths) const {
  if (!Owns(from)) return;
  const std::int32_t source = from->GetIndex();
  const zwt::FirstRoutes routes(network_, std::span(&source, 1));
  for (std::int32_t node = 0; node < network_.NodeCount(); ++node) {
    const bool isReached = routes.Reaches(node);
    paths.Append(isReached ? MakePath(routes.To(node), kNoPipe, kNoPipe) : nullptr);
  }
}

/// A path of a route; one between pipes has these at its ends.
ZcDbPipeGraphPath* ZcDbPipeGraph::MakePath(const zwt::Route& route, std::int32_t fromPipe,
                                           std::int32_t toPipe) const {
  std::vector<ZcDbPipeGraphNode*> nodes;
  nodes.reserve(route.nodes.size());
  for (const std::int32_t node : route.nodes) nodes.push_back(NodeAt(node));
  std::vector<char> named(pipeIds_.size(), 0);
  std::vector<AcDbObjectId> pipeIds;
  const auto name = [&](std::int32_t pipe) {
    if (pipe == kNoPipe || std::exchange(named[At(pipe)], static_cast<char>(1)) != 0) return;
    pipeIds.push_back(pipeIds_[At(pipe)]);
  };
  name(fromPipe);
  for (const std::int32_t edge : route.edges) name(network_.Edge(edge).pipe);
  name(toPipe);
  return new ZcDbPipeGraphPath(route.length, std::move(nodes), std::move(pipeIds), route.edges);
}

void ZcDbPipeGraph::SortPath() {
  foundPaths_.Sort(&ZcDbPipeGraphPath::Compare);
}
