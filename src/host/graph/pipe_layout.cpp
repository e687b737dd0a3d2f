// Every pipe gets a place at its start, at its end and wherever the end of another meets it; places that
// touch are joined, and what is joined is a node.
#include "host/graph/pipe_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <utility>

#include "host/drawing/connections.h"
#include "host/graph/place_on_pipe.h"

namespace zwt {

namespace {

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

constexpr double kReach = kTouch + kTouchRounding;
constexpr double kThousandths = 1000.0;

bool Touch(const AcGePoint3d& first, const AcGePoint3d& second) {
  return Distance(first, second) <= kReach;
}

/// The pipes connected to some, these included, in drawing order.
std::vector<std::int32_t> ConnectedPipes(const Drawing& drawing, std::vector<std::int32_t> pipes) {
  std::vector<char> met(At(drawing.EntityCount()), 0);
  for (const std::int32_t pipe : pipes) met[At(pipe)] = 1;
  for (std::size_t next = 0; next < pipes.size(); ++next) {
    for (const std::int32_t other : drawing.GetConnections().ConnectedTo(pipes[next])) {
      if (std::exchange(met[At(other)], static_cast<char>(1)) == 0) pipes.push_back(other);
    }
  }
  std::sort(pipes.begin(), pipes.end());
  return pipes;
}

/// A place on a pipe, in the order along it.
struct Place {
  double along = 0.0;
  AcGePoint3d point;
  std::int32_t joint = 0;
};

class LayoutBuilder {
 public:
  LayoutBuilder(const Drawing& drawing, std::vector<std::int32_t> pipes)
      : connections_(drawing.GetConnections()), numbers_(At(drawing.EntityCount()), -1) {
    layout_.pipes = std::move(pipes);
    for (std::size_t number = 0; number < layout_.pipes.size(); ++number) {
      numbers_[At(layout_.pipes[number])] = static_cast<std::int32_t>(number);
      AddEnds(layout_.pipes[number]);
    }
  }

  PipeLayout Build() {
    for (std::size_t number = 0; number < layout_.pipes.size(); ++number) AddTees(number);
    NumberNodes();
    std::vector<RouteEdge> edges;
    for (std::size_t number = 0; number < places_.size(); ++number) AddEdges(number, edges);
    layout_.network = RouteNetwork(static_cast<std::int32_t>(layout_.nodes.size()), std::move(edges));
    return std::move(layout_);
  }

 private:
  std::int32_t AddJoint(const AcGePoint3d& point) {
    const auto joint = static_cast<std::int32_t>(layout_.joints.size());
    layout_.joints.push_back({point, 0});
    joined_.push_back(joint);
    return joint;
  }

  void AddEnds(std::int32_t entity) {
    const std::span<const CurvePart> curve = connections_.CurveOf(entity);
    const std::int32_t start = AddJoint(curve.front().start);
    const std::int32_t end = AddJoint(curve.back().end);
    places_.push_back({{0.0, curve.front().start, start}, {LengthOf(curve), curve.back().end, end}});
    if (Touch(curve.front().start, curve.back().end)) Join(start, end);
  }

  static std::int32_t EndJoint(std::int32_t number, bool atStart) { return 2 * number + (atStart ? 0 : 1); }

  /// Joins the ends of other pipes that lie on a pipe, at its ends or between.
  void AddTees(std::size_t number) {
    std::vector<Place>& places = places_[number];
    const Place start = places.front();
    const Place end = places.back();
    for (const PipeEnd& other : connections_.EndsOn(layout_.pipes[number], kReach)) {
      const std::int32_t otherNumber = numbers_[At(other.pipe)];
      if (otherNumber < 0 || At(otherNumber) == number) continue;
      const std::int32_t joint = EndJoint(otherNumber, other.atStart);
      const bool atStart = Touch(other.point, start.point);
      const bool atEnd = Touch(other.point, end.point);
      if (atStart) Join(start.joint, joint);
      if (atEnd) Join(end.joint, joint);
      if (!atStart && !atEnd) AddTee(number, other.point, joint);
    }
    std::stable_sort(places.begin(), places.end(),
                     [](const Place& a, const Place& b) { return a.along < b.along; });
    for (std::size_t i = 1; i < places.size(); ++i) {
      if (IsOnePlace(places[i - 1], places[i])) Join(places[i - 1].joint, places[i].joint);
    }
  }

  void AddTee(std::size_t number, const AcGePoint3d& point, std::int32_t joint) {
    PlaceOnPipe place = NearestPlace(connections_.CurveOf(layout_.pipes[number]), point);
    // An end that was drawn on the pipe keeps its own digits.
    if (Distance(place.point, point) <= kTouchRounding) place.point = point;
    const std::int32_t tee = AddJoint(place.point);
    Join(tee, joint);
    // In front of the end, which stays last also where the tee lies as far along.
    places_[number].insert(places_[number].end() - 1, Place{place.along, place.point, tee});
  }

  /// Whether two places that follow each other on a pipe are no way apart.
  static bool IsOnePlace(const Place& first, const Place& second) {
    return second.along - first.along <= kReach;
  }

  void Join(std::int32_t first, std::int32_t second) {
    const std::int32_t one = Representative(first);
    const std::int32_t other = Representative(second);
    joined_[At(std::max(one, other))] = std::min(one, other);
  }

  std::int32_t Representative(std::int32_t joint) {
    while (joined_[At(joint)] != joint) {
      joined_[At(joint)] = joined_[At(joined_[At(joint)])];
      joint = joined_[At(joint)];
    }
    return joint;
  }

  void NumberNodes() {
    std::vector<std::int32_t> nodeOf(layout_.joints.size(), -1);  // by representative
    for (const std::vector<Place>& places : places_) {
      for (const Place& place : places) {
        std::int32_t& node = nodeOf[At(Representative(place.joint))];
        if (node < 0) {
          node = static_cast<std::int32_t>(layout_.nodes.size());
          layout_.nodes.push_back(place.point);
        }
        layout_.joints[At(place.joint)].node = node;
      }
    }
  }

  void AddEdges(std::size_t number, std::vector<RouteEdge>& edges) const {
    const std::vector<Place>& places = places_[number];
    for (std::size_t i = 1; i < places.size(); ++i) {
      if (IsOnePlace(places[i - 1], places[i])) continue;
      RouteEdge edge;
      edge.start = layout_.joints[At(places[i - 1].joint)].node;
      edge.end = layout_.joints[At(places[i].joint)].node;
      edge.length = Thousandths(places[i].along - places[i - 1].along);
      edge.pipe = static_cast<std::int32_t>(number);
      edges.push_back(edge);
    }
  }

  static std::int64_t Thousandths(double length) {
    constexpr double kLongest = 9e18;
    return std::llround(std::min(length * kThousandths, kLongest));
  }

  const Connections& connections_;
  std::vector<std::int32_t> numbers_;       // by entity: its number in the network, -1 for none
  std::vector<std::vector<Place>> places_;  // by number
  std::vector<std::int32_t> joined_;        // by joint: a joint before it that it is one with, or itself
  PipeLayout layout_;
};

bool IsLivingPipe(const Drawing& drawing, std::int32_t entity) {
  const std::vector<std::int32_t> pipes = drawing.Pipes();
  return std::binary_search(pipes.begin(), pipes.end(), entity);
}

}  // namespace

PipeLayout MakePipeLayout(const Drawing& drawing, std::int32_t entity) {
  if (!IsLivingPipe(drawing, entity)) return {};
  return MakePipeLayout(drawing, std::vector<std::int32_t>{entity});
}

PipeLayout MakePipeLayout(const Drawing& drawing, std::vector<std::int32_t> pipes) {
  return LayoutBuilder(drawing, ConnectedPipes(drawing, std::move(pipes))).Build();
}

}  // namespace zwt
