// The hydrant networks of a drawing as a graph: everything connected to a top hydrant, with roles, top
// hydrants and the parts that it falls into.
#pragma once

#include <cstdint>
#include <vector>

#include "host/check/checked_pipes.h"
#include "host/graph/pipe_layout.h"

namespace zwt {

/// The branch pipe of the top hydrant of a riser.
struct TopHydrant {
  std::int32_t pipe = 0;    // number in the network
  std::int32_t joint = -1;  // node at the riser; -1 where both ends are free
};

class HydrantNetwork {
 public:
  explicit HydrantNetwork(const CheckedPipes& pipes);

  const RouteNetwork& Network() const { return layout_.network; }
  std::int32_t PipeCount() const { return static_cast<std::int32_t>(layout_.pipes.size()); }
  /// Entity of a pipe of the network.
  std::int32_t EntityOf(std::int32_t pipe) const { return layout_.pipes[static_cast<std::size_t>(pipe)]; }
  PipeRole RoleOf(std::int32_t pipe) const { return pipes_.RoleOf(EntityOf(pipe)); }
  PipeRole RoleOfEdge(std::int32_t edge) const { return RoleOf(Network().Edge(edge).pipe); }
  const AcGePoint3d& PointOf(std::int32_t node) const {
    return layout_.nodes[static_cast<std::size_t>(node)];
  }
  /// Edges at a node that belong to pipes of a role.
  std::int32_t EdgesOfRole(std::int32_t node, PipeRole role) const;
  /// Whether a branch leaves there.
  bool IsHydrantJoint(std::int32_t node) const { return EdgesOfRole(node, PipeRole::kBranch) > 0; }

  /// In drawing order.
  const std::vector<TopHydrant>& Tops() const { return tops_; }

  /// The connected parts are numbered from 0.
  std::int32_t PartCount() const { return partCount_; }
  std::int32_t PartOfNode(std::int32_t node) const { return parts_[static_cast<std::size_t>(node)]; }
  /// Whether a part is drawn in the round: then upright is along Z, else along Y.
  bool IsSpatial(std::int32_t part) const { return isSpatial_[static_cast<std::size_t>(part)] != 0; }

 private:
  void FindTops(const std::vector<std::int32_t>& tops);
  void FindParts();

  const CheckedPipes& pipes_;
  PipeLayout layout_;
  std::vector<TopHydrant> tops_;
  std::int32_t partCount_ = 0;
  std::vector<std::int32_t> parts_;  // by node
  std::vector<char> isSpatial_;      // by part
};

}  // namespace zwt
