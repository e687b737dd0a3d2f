// The looped hydrant network of a drawing: numbered nodes, sections between them, and the risers on which
// hydrants are used. Stands on the pipe graph and shows its numbers in the drawing; calculates nothing.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/containers/zc_dlist.h"
#include "frame/containers/zc_pointer_containers.h"
#include "host/drawing/object_id.h"
#include "host/graph/pipe_graph.h"

/// A record with a word of flags.
class ZcBitData {
 public:
  ZcBitData() = default;
  ZcBitData(const ZcBitData&) = default;
  ZcBitData& operator=(const ZcBitData&) = default;
  virtual ~ZcBitData();

  bool HasFlag(std::uint32_t flag) const { return (flags & flag) != 0; }
  void SetFlag(std::uint32_t flag) { flags |= flag; }
  void ClearFlag(std::uint32_t flag) { flags &= ~flag; }

  std::uint32_t flags = 0;
};

namespace zwt {

inline constexpr std::uint32_t HYDRANT_NODE_END = 1;      ///< a free end but node 1; the first is the source
inline constexpr std::uint32_t HYDRANT_NODE_FIRST = 2;    ///< node 1, the joint of the farthest top hydrant
inline constexpr std::uint32_t HYDRANT_NODE_ACTIVE = 4;   ///< a hydrant in use
inline constexpr std::uint32_t HYDRANT_NODE_VISITED = 8;  ///< mark of the flow accumulation

/// A node where pipes meet or end.
class ZwtHydrantNode : public ZcBitData {
 public:
  std::int32_t number = -1;                ///< from 1
  double flow = 0.0;                       ///< L/s; of the source the total
  double pressure = 0.0;                   ///< mH2O
  double accumulatedFlow = 0.0;            ///< L/s, to seed section flows
  ZcDbPipeGraphNode* graphNode = nullptr;  ///< belongs to the graph
};

/// A section between two nodes, in the direction in which the routes meet it first.
struct ZwtHydrantEdge {
  std::int32_t startNumber = -1;
  std::int32_t endNumber = -1;
  double flow = 0.0;                  ///< L/s
  double diameter = 0.0;              ///< mm
  double conductance = 0.0;           ///< (L/s) per mH2O
  ZcDbPipeGraphPath* path = nullptr;  ///< its pipes, owned by the model; null where there is no way
};

/// The model. Its sections and nodes take new values from the calculation; its structure stays as built.
class ZwtHydrantGraph : public ZcDbPipeGraph {
 public:
  ZwtHydrantGraph() = default;
  ~ZwtHydrantGraph() override;

  /// Builds the model from the end pipe of the main, in place of what it held. False without a message where
  /// there is no top hydrant, no route to one, no free end of the main or no joint of the farthest top pipe;
  /// with one on the command line where risers differ in their number of hydrants.
  bool BuildHydrantModel(AcDbObjectId mainEnd);

  /// Puts a number label at every node into the drawing.
  void CreateNumberTexts();
  /// Erases the labels that are still there.
  void EraseNumberTexts();

  /// Null where there is none, as for all that follow.
  ZwtHydrantNode* FindNodeByGraphNode(const ZcDbPipeGraphNode* graphNode);
  ZwtHydrantNode* FindNodeByNumber(std::int32_t number);
  ZwtHydrantNode* FindSourceNode();
  /// Path of the section with exactly this start and end.
  ZcDbPipeGraphPath* FindEdgePath(std::int32_t startNumber, std::int32_t endNumber);

  /// Takes the nodes that are neither free ends nor tees out of a list.
  static void KeepKeyNodes(ZcDList<ZcDbPipeGraphNode*>& graphNodes);
  /// Key nodes of a riser's path from its hydrant towards the main.
  static void KeyNodesFromTop(const ZcDbPipeGraphPath& path, ZcDList<ZcDbPipeGraphNode*>& graphNodes);
  /// Appends the first `count` of them, or as many as there are.
  static void TopNodesOfRiser(const ZcDbPipeGraphPath& path, std::int32_t count,
                              ZcDList<ZcDbPipeGraphNode*>& graphNodes);

  /// The first route between two nodes, owned by the caller; null if either is null or nothing leads.
  static ZcDbPipeGraphPath* ShortestPathBetween(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to);

  /// By node in list order, mm of riser pipes on the first route from the source; 0 where there is no source
  /// or no way. Read from the drawing once: the model is a picture of the moment at which it was built.
  const std::vector<double>& RiserLengths();

  ZcDList<ZwtHydrantNode> nodes;  ///< node k at index k - 1
  ZcDList<ZwtHydrantEdge> edges;  ///< in order of creation
  ZcPDList<ZcDbPipeGraphPath>
      risers;                  ///< from the main's end to the top hydrants: the farthest, then its neighbour
  std::int32_t layerNum = -1;  ///< hydrants per riser
  AcDbObjectId mainEndPipe;
  AcDbObjectId farthestTopPipe;
  ZcDbObjectIdList numberTexts;

 private:
  void Clear();
  bool CollectTopPipes(std::vector<AcDbObjectId>& topPipes);
  bool NoteLayerNum(AcDbObjectId topPipe);
  void FindRisers(const std::vector<AcDbObjectId>& topPipes);
  void BringNeighbourForward();
  ZcDbPipeGraphNode* FindEndNode(AcDbObjectId pipeId, bool isFree);
  void NumberNodes();
  void NumberNode(ZcDbPipeGraphNode* graphNode);
  void MakeEdges();
  void MakeEdge(ZcDbPipeGraphNode* from, ZcDbPipeGraphNode* to);

  std::vector<std::int32_t> numberOf_;  // by graph node, 0 for none
  std::vector<double> riserLengths_;
};

}  // namespace zwt
