// Looped hydrant networks, on their graph alone: what the model of the calculation leaves out, counts twice
// or takes for something else.
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <set>
#include <utility>

#include "host/check/checked_pipes.h"
#include "host/check/hydrant_network.h"
#include "host/check/network_sections.h"
#include "host/graph/first_route.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr double kThousandths = 1000;

std::size_t At(std::int32_t index) {
  return static_cast<std::size_t>(index);
}

class HydrantCheck {
 public:
  HydrantCheck(CheckedPipes& pipes, const CheckSettings& settings)
      : pipes_(pipes), settings_(settings), hydrants_(pipes), network_(hydrants_.Network()) {}

  void Run() {
    if (hydrants_.Tops().empty()) return;
    ReportCorners();
    ReportStrangeTees();
    ReportSections();
    ReportTallRisers();
    ReportUprightMains();
    ReportLayerNumbers();
    ReportFewJoints();
  }

 private:
  CString NameOf(std::int32_t pipe) const { return pipes_.NameOf(hydrants_.EntityOf(pipe)); }

  void ReportCorners() {
    for (const TopHydrant& top : hydrants_.Tops()) {
      if (top.joint < 0 || network_.EdgesAt(top.joint).size() != 2) continue;
      std::vector<std::int32_t> entities = {hydrants_.EntityOf(top.pipe)};
      for (const std::int32_t edge : network_.EdgesAt(top.joint)) {
        if (network_.Edge(edge).pipe != top.pipe)
          entities.push_back(hydrants_.EntityOf(network_.Edge(edge).pipe));
      }
      pipes_.Report(
          "hydrant-at-corner",
          L"顶层消火栓支管 " + NameOf(top.pipe) + L" 接在转角处，那里没有三通，不成为节点，不参加计算",
          hydrants_.PointOf(top.joint), entities);
    }
  }

  /// Stretches of risers between hydrants: edges joined where no branch leaves. By edge: one of its stretch.
  std::vector<std::int32_t> RiserStretches() const {
    std::vector<std::int32_t> stretch(At(network_.EdgeCount()));
    std::iota(stretch.begin(), stretch.end(), 0);
    const auto first = [&stretch](std::int32_t edge) {
      while (stretch[At(edge)] != edge) edge = stretch[At(edge)] = stretch[At(stretch[At(edge)])];
      return edge;
    };
    for (std::int32_t node = 0; node < network_.NodeCount(); ++node) {
      if (hydrants_.IsHydrantJoint(node)) continue;
      std::int32_t former = -1;
      for (const std::int32_t edge : network_.EdgesAt(node)) {
        if (hydrants_.RoleOfEdge(edge) != PipeRole::kRiser) continue;
        if (former >= 0) stretch[At(first(edge))] = first(former);
        former = edge;
      }
    }
    for (std::int32_t edge = 0; edge < network_.EdgeCount(); ++edge) stretch[At(edge)] = first(edge);
    return stretch;
  }

  /// A tee between two hydrants of a riser is counted among them from the top down.
  void ReportStrangeTees() {
    const std::vector<std::int32_t> stretches = RiserStretches();
    std::map<std::int32_t, std::set<std::int32_t>> joints;  // by stretch
    for (std::int32_t node = 0; node < network_.NodeCount(); ++node) {
      if (!hydrants_.IsHydrantJoint(node)) continue;
      for (const std::int32_t edge : network_.EdgesAt(node)) {
        if (hydrants_.RoleOfEdge(edge) == PipeRole::kRiser) joints[stretches[At(edge)]].insert(node);
      }
    }
    for (std::int32_t node = 0; node < network_.NodeCount(); ++node) {
      if (network_.EdgesAt(node).size() < 3 || hydrants_.IsHydrantJoint(node)) continue;
      if (hydrants_.EdgesOfRole(node, PipeRole::kRiser) < 2) continue;
      ReportStrangeTee(node, stretches, joints);
    }
  }

  void ReportStrangeTee(std::int32_t node, const std::vector<std::int32_t>& stretches,
                        const std::map<std::int32_t, std::set<std::int32_t>>& joints) {
    std::vector<std::int32_t> entities;
    bool isBetween = false;
    for (const std::int32_t edge : network_.EdgesAt(node)) {
      entities.push_back(hydrants_.EntityOf(network_.Edge(edge).pipe));
      const auto found = joints.find(stretches[At(edge)]);
      isBetween = isBetween || (found != joints.end() && found->second.size() > 1);
    }
    if (!isBetween) return;
    std::sort(entities.begin(), entities.end());
    entities.erase(std::unique(entities.begin(), entities.end()), entities.end());
    pipes_.Report("tee-without-hydrant", L"立管上的三通没有消火栓支管，计算会把它算作一个消火栓",
                  hydrants_.PointOf(node), entities);
  }

  void ReportSections() {
    const std::vector<NetworkSection> sections = SectionsOf(network_);
    std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> firstBetween;
    WayRound ways(network_);
    for (std::size_t i = 0; i < sections.size(); ++i) {
      const NetworkSection& section = sections[i];
      if (section.start == section.end) continue;
      const auto [held, isFirst] = firstBetween.try_emplace(std::minmax(section.start, section.end), i);
      if (!isFirst) {
        ReportDouble(section, sections[held->second]);
        continue;
      }
      const std::int64_t round = ways.Shortest(section.start, section.end, section.length);
      if (round < section.length) ReportLongSection(section, round);
    }
  }

  std::vector<std::int32_t> EntitiesOf(const NetworkSection& section) const {
    std::vector<std::int32_t> entities;
    entities.reserve(section.pipes.size());
    for (const std::int32_t pipe : section.pipes) entities.push_back(hydrants_.EntityOf(pipe));
    return entities;
  }

  CString NamesOf(const NetworkSection& section) const {
    CString names = NameOf(section.pipes.front());
    if (section.pipes.size() > 1) names += L"～" + NameOf(section.pipes.back());
    return names;
  }

  void ReportDouble(const NetworkSection& section, const NetworkSection& first) {
    std::vector<std::int32_t> entities = EntitiesOf(section);
    const std::vector<std::int32_t> others = EntitiesOf(first);
    entities.insert(entities.end(), others.begin(), others.end());
    pipes_.Report("double-section",
                  L"管段 " + NamesOf(section) + L" 与 " + NamesOf(first) + L" 连接同样两个节点，计算只取一段",
                  pipes_.MiddleOf(entities.front()), entities);
  }

  void ReportLongSection(const NetworkSection& section, std::int64_t round) {
    const std::vector<std::int32_t> entities = EntitiesOf(section);
    const double length = static_cast<double>(section.length) / kThousandths;
    pipes_.Report("way-round",
                  L"管段 " + NamesOf(section) + L" 长 " + LengthText(length) + L"，绕行只有 " +
                      LengthText(static_cast<double>(round) / kThousandths) + L"，计算取绕行的长度",
                  pipes_.MiddleOf(entities.front()), entities);
  }

  /// Every hydrant on a riser pipe gets the height of the whole pipe.
  void ReportTallRisers() {
    std::map<std::int32_t, std::int32_t> jointsWithin;  // by pipe: hydrants between its ends
    for (std::int32_t edge = 1; edge < network_.EdgeCount(); ++edge) {
      const RouteEdge& former = network_.Edge(edge - 1);
      const RouteEdge& stretch = network_.Edge(edge);
      if (former.pipe != stretch.pipe || hydrants_.RoleOf(stretch.pipe) != PipeRole::kRiser) continue;
      if (hydrants_.IsHydrantJoint(stretch.start)) ++jointsWithin[stretch.pipe];
    }
    for (const auto& [pipe, count] : jointsWithin) {
      const std::int32_t entity = hydrants_.EntityOf(pipe);
      pipes_.Report("tall-riser",
                    L"立管 " + NameOf(pipe) + L" 为一整根管，跨越多层，中间接有 " + std::to_wstring(count) +
                        L" 处支管，其上每个消火栓都按全长计高差",
                    pipes_.MiddleOf(entity), {entity});
    }
  }

  bool IsUpright(std::int32_t entity, bool isSpatial) const {
    constexpr double kSteep = 50;
    const PipeRecord& pipe = pipes_.GetDrawing().PipeOf(entity);
    const Vector way = pipe.end - pipe.start;
    const double height = std::abs(isSpatial ? way.z : way.y);
    const double aside = isSpatial ? std::hypot(way.x, way.y) : std::abs(way.x);
    return height > kTouch && height > kSteep * aside;
  }

  void ReportUprightMains() {
    std::int32_t former = -1;
    for (std::int32_t edge = 0; edge < network_.EdgeCount(); ++edge) {
      const std::int32_t pipe = network_.Edge(edge).pipe;
      if (std::exchange(former, pipe) == pipe) continue;
      const PipeRole role = hydrants_.RoleOf(pipe);
      if (role == PipeRole::kRiser || role == PipeRole::kBranch) continue;
      const std::int32_t entity = hydrants_.EntityOf(pipe);
      if (!IsUpright(entity, hydrants_.IsSpatial(hydrants_.PartOfNode(network_.Edge(edge).start)))) continue;
      pipes_.Report("upright-main", L"竖管 " + NameOf(pipe) + L" 的类型不是“立管”，计算不计其高差",
                    pipes_.MiddleOf(entity), {entity});
    }
  }

  std::int32_t PartOf(const TopHydrant& top) const {
    return top.joint < 0 ? -1 : hydrants_.PartOfNode(top.joint);
  }

  void ReportLayerNumbers() {
    std::map<std::int32_t, std::vector<std::int32_t>> topsOf;  // by part: pipes
    for (const TopHydrant& top : hydrants_.Tops()) {
      if (top.joint >= 0) topsOf[PartOf(top)].push_back(top.pipe);
    }
    for (const auto& [part, tops] : topsOf) {
      CString list;
      std::set<std::int32_t> numbers;
      std::vector<std::int32_t> entities;
      for (const std::int32_t top : tops) {
        const std::int32_t number = _wtoi(pipes_.Text(hydrants_.EntityOf(top), L"LayerNum"));
        numbers.insert(number);
        entities.push_back(hydrants_.EntityOf(top));
        if (!list.empty()) list += L"，";
        list += NameOf(top) + L" 为 " + ZwtNum2Str(number);
      }
      if (numbers.size() < 2) continue;
      pipes_.Report("layer-num", L"各立管所连接消火栓数量（LayerNum）不同：" + list,
                    pipes_.MiddleOf(entities.front()), entities);
    }
  }

  /// Free ends of mains, the first of each part, from which its risers are counted; of a riser, which may end
  /// in an air valve, only where no main has one.
  std::vector<std::int32_t> Roots() const {
    std::vector<std::int32_t> roots;
    std::vector<char> known(At(hydrants_.PartCount()), 0);
    for (const bool ofRisers : {false, true}) {
      for (std::int32_t edge = 0; edge < network_.EdgeCount(); ++edge) {
        const PipeRole role = hydrants_.RoleOfEdge(edge);
        if (role == PipeRole::kBranch || (role == PipeRole::kRiser) != ofRisers) continue;
        for (const std::int32_t node : {network_.Edge(edge).start, network_.Edge(edge).end}) {
          char& isKnown = known[At(hydrants_.PartOfNode(node))];
          if (network_.EdgesAt(node).size() != 1 || isKnown != 0) continue;
          isKnown = 1;
          roots.push_back(node);
        }
      }
    }
    return roots;
  }

  double LengthOfPipe(const TopHydrant& top) const {
    return pipes_.GetDrawing().PipeOf(hydrants_.EntityOf(top.pipe)).length * kThousandths;
  }

  /// The top hydrant of each part that a measure makes the first; less(a, b): a comes before b.
  template <class Measure>
  std::map<std::int32_t, TopHydrant> BestOfParts(Measure measure) const {
    std::map<std::int32_t, TopHydrant> best;
    std::map<std::int32_t, double> values;
    for (const TopHydrant& top : hydrants_.Tops()) {
      double value = 0;
      if (top.joint < 0 || !measure(top, value)) continue;
      const auto [held, isNew] = values.try_emplace(PartOf(top), value);
      if (!isNew && !(value < held->second)) continue;
      held->second = value;
      best[PartOf(top)] = top;
    }
    return best;
  }

  /// The second riser is the one nearest to the farthest: the calculation takes its guns from the top down.
  void ReportFewJoints() {
    const std::int32_t needed = settings_.guns - settings_.gunsOnFirstRiser;
    const std::vector<std::int32_t> roots = Roots();
    if (needed <= 0 || roots.empty()) return;
    const FirstRoutes fromMain(network_, roots);
    const auto farthest = BestOfParts([&](const TopHydrant& top, double& value) {
      value = -static_cast<double>(fromMain.Reaches(top.joint) ? fromMain.LengthTo(top.joint) : 0) -
              LengthOfPipe(top);
      return fromMain.Reaches(top.joint);
    });
    std::vector<std::int32_t> joints;
    joints.reserve(farthest.size());
    for (const auto& [part, top] : farthest) joints.push_back(top.joint);
    const FirstRoutes fromFarthest(network_, joints);
    const auto second = BestOfParts([&](const TopHydrant& top, double& value) {
      const auto first = farthest.find(PartOf(top));
      if (first == farthest.end() || first->second.pipe == top.pipe || !fromFarthest.Reaches(top.joint))
        return false;
      value = static_cast<double>(fromFarthest.LengthTo(top.joint)) + LengthOfPipe(top);
      return true;
    });
    for (const auto& [part, top] : second) {
      const std::int32_t count = HydrantsBelow(fromMain.To(top.joint));
      if (count >= needed) continue;
      const std::int32_t entity = hydrants_.EntityOf(top.pipe);
      pipes_.Report("few-joints",
                    L"第二根立管（顶层支管 " + NameOf(top.pipe) + L"）只有 " + ZwtNum2Str(count) +
                        L" 个消火栓接点，少于所需的 " + ZwtNum2Str(needed) + L" 支水枪",
                    hydrants_.PointOf(top.joint), {entity});
    }
  }

  /// Joints with a hydrant on the riser at the end of a route, counted from its top.
  std::int32_t HydrantsBelow(const Route& route) const {
    std::int32_t count = 0;
    for (std::size_t i = route.nodes.size(); i-- > 0;) {
      const std::int32_t node = route.nodes[i];
      count += hydrants_.IsHydrantJoint(node) && network_.EdgesAt(node).size() > 2 ? 1 : 0;
      if (i == 0 || hydrants_.RoleOfEdge(route.edges[i - 1]) != PipeRole::kRiser) break;
    }
    return count;
  }

  CheckedPipes& pipes_;
  const CheckSettings& settings_;
  HydrantNetwork hydrants_;
  const RouteNetwork& network_;
};

}  // namespace

void CheckHydrants(CheckedPipes& pipes, const CheckSettings& settings) {
  HydrantCheck(pipes, settings).Run();
}

}  // namespace zwt
