// The pipe graph as the calculations know it: nodes, edges and found routes of everything connected to one
// pipe of the working drawing. A picture of the moment at which it was made; later changes of the drawing
// don't reach it.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_pointer_containers.h"
#include "host/drawing/geometry.h"
#include "host/drawing/object_id.h"
#include "host/graph/route_network.h"

class ZcDbPipeGraph;
class ZcDbPipeGraphPath;

/// A node: a free end, or where pipes meet. Belongs to its graph.
class ZcDbPipeGraphNode {
 public:
  ZcDbPipeGraphNode(ZcDbPipeGraph* graph, std::int32_t index, std::int32_t kind, const AcGePoint3d& point)
      : graph_(graph), index_(index), kind_(kind), point_(point) {}
  virtual ~ZcDbPipeGraphNode();

  /// 1 with one edge (a free end), 2 with two, 3 with three or more.
  std::int32_t GetKind() const { return kind_; }
  const AcGePoint3d& GetPoint() const { return point_; }
  /// Place among the nodes of the graph, from 0.
  std::int32_t GetIndex() const { return index_; }

  /// Tells the nodes of a graph apart; names nothing in any drawing.
  virtual AcDbObjectId GetObjectId() const;

  /// Appends the first route in sort order from here to another node of the graph; the number of routes
  /// appended, 1 or 0. To itself it is the route of one node.
  std::int32_t FindPathTo(ZcDbPipeGraphNode* other, ZcPDList<ZcDbPipeGraphPath>& paths);

 private:
  friend class ZcDbPipeGraph;

  ZcDbPipeGraph* graph_;
  std::int32_t index_;
  std::int32_t kind_;
  AcGePoint3d point_;
};

/// An edge: a stretch of a pipe between two nodes. Belongs to its graph.
class ZcDbPipeGraphEdge {
 public:
  ZcDbPipeGraphEdge(AcDbObjectId pipeId, ZcDbPipeGraphNode* start, ZcDbPipeGraphNode* end, double length)
      : pipeId_(pipeId), start_(start), end_(end), length_(length) {}
  virtual ~ZcDbPipeGraphEdge();

  AcDbObjectId GetPipeId() const { return pipeId_; }
  ZcDbPipeGraphNode* GetStartNode() const { return start_; }
  ZcDbPipeGraphNode* GetEndNode() const { return end_; }
  double Length() const { return length_; }  ///< mm

 private:
  AcDbObjectId pipeId_;
  ZcDbPipeGraphNode* start_;
  ZcDbPipeGraphNode* end_;
  double length_;
};

/// A route. Its nodes are those of its graph, which must outlive it where they are used.
class ZcDbPipeGraphPath {
 public:
  ZcDbPipeGraphPath(std::int64_t length, std::vector<ZcDbPipeGraphNode*> nodes,
                    std::vector<AcDbObjectId> pipeIds, std::vector<std::int32_t> edges);
  virtual ~ZcDbPipeGraphPath();

  /// mm, an exact sum of thousandths.
  double Length() const { return static_cast<double>(length_) / 1000; }
  /// Appends the nodes from the start to the end; of a route between pipes the joints alone.
  void GetPathNode(ZcDList<ZcDbPipeGraphNode*>& nodes) const;
  /// Appends the pipes from the start to the end, each once.
  void GetPathPipeId(ZcDbObjectIdList& pipeIds) const;

  /// -1 if the first path comes before the second in sort order, 1 if it comes after, 0 if they are one
  /// route.
  static std::int32_t Compare(const ZcDbPipeGraphPath& first, const ZcDbPipeGraphPath& second);

 private:
  std::int64_t length_;  // thousandths of a millimetre
  std::vector<ZcDbPipeGraphNode*> nodes_;
  std::vector<AcDbObjectId> pipeIds_;
  std::vector<std::int32_t> latestFirst_;  // its edges, the latest first
};

/// The graph, as a list of its edges in drawing order.
class ZcDbPipeGraph : public ZcPDList<ZcDbPipeGraphEdge> {
 public:
  ZcDbPipeGraph();
  ~ZcDbPipeGraph() override;
  ZcDbPipeGraph(const ZcDbPipeGraph&) = delete;
  ZcDbPipeGraph& operator=(const ZcDbPipeGraph&) = delete;

  /// Builds the graph of everything connected to a pipe of the working drawing, in place of what it held.
  /// Found paths are emptied. False, and an empty graph, where the identifier is that of no pipe.
  bool CreateRelateGraph(AcDbObjectId pipe);

  /// The nodes in their order.
  ZcPXList<ZcDbPipeGraphNode>& Nodes() { return nodes_; }

  /// The node that a point belongs to, within a millimetre of where pipes end or meet; null for none. Of
  /// several the nearest.
  ZcDbPipeGraphNode* FindPipeGraphNode(const AcGePoint3d& point) const;

  /// Appends the first route in sort order to the found paths; the number of routes appended, 1 or 0. Pipes
  /// and nodes that the graph doesn't have, null included, have no route.
  std::int32_t FindPath(AcDbObjectId fromPipe, AcDbObjectId toPipe);
  std::int32_t FindPath(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to);

  /// Appends the routes between two nodes that are the first of all in sort order to use one of their edges:
  /// walking them meets nodes and edges for the first time as walking all routes would. The number of routes
  /// appended.
  std::int32_t FindPathOfFirstSight(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to);

  /// Appends the first route from a node to each node, in the order of the nodes; null where nothing leads.
  /// As many calls of FindPathTo would, in one search.
  void FindFirstPaths(ZcDbPipeGraphNode* from, ZcPDList<ZcDbPipeGraphPath>& paths) const;

  ZcPDList<ZcDbPipeGraphPath>& FoundPaths() { return foundPaths_; }
  /// Sorts the found paths: the shortest first, of equal ones the one without the latest edge that only one
  /// uses.
  void SortPath();

  /// True if some edge can be taken away without any node losing its way to another.
  bool HasLoop() const { return network_.HasLoop(); }

 private:
  friend class ZcDbPipeGraphNode;

  struct Joint {
    AcGePoint3d point;
    std::int32_t node;
  };

  std::int32_t NumberOf(AcDbObjectId pipe) const;
  ZcDbPipeGraphNode* NodeAt(std::int32_t index) const { return nodeAt_[static_cast<std::size_t>(index)]; }
  bool Owns(const ZcDbPipeGraphNode* node) const;
  ZcDbPipeGraphPath* MakePath(const zwt::Route& route, std::int32_t fromPipe, std::int32_t toPipe) const;

  zwt::RouteNetwork network_;
  std::vector<AcDbObjectId> pipeIds_;  // by number in the network
  std::vector<Joint> joints_;
  std::vector<ZcDbPipeGraphNode*> nodeAt_;
  ZcPXList<ZcDbPipeGraphNode> nodes_;
  ZcPDList<ZcDbPipeGraphPath> foundPaths_;
};
