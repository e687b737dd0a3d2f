#include "fire/hydrant_overlay.h"

#include <algorithm>
#include <utility>

#include "host/text/number_text.h"

namespace zwt {
namespace {

/// Places of the nodes along a section, from its start to its end.
std::vector<AcGePoint3d> CourseOf(const ZcDbPipeGraphPath& path) {
  ZcDList<ZcDbPipeGraphNode*> nodes;
  path.GetPathNode(nodes);
  std::vector<AcGePoint3d> course;
  for (nodes.MoveToFirst(); !nodes.IsOut(); nodes.MoveToNext()) {
    course.push_back(nodes.GetCurData()->GetPoint());
  }
  return course;
}

/// Heads of the nodes in list order, mH2O above the source: water runs from the higher to the lower.
std::vector<double> Heads(ZwtHydrantGraph& model) {
  std::vector<double> heads;
  const std::vector<double>& riserLengths = model.RiserLengths();
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext()) {
    heads.push_back(model.nodes.GetCurData().pressure + riserLengths[heads.size()] * 0.001);
  }
  return heads;
}

double HeadOf(const std::vector<double>& heads, std::int32_t number) {
  return heads.at(static_cast<std::size_t>(number) - 1);
}

/// The pipes of a section and the way along them.
OverlaySection DescribeSection(const ZwtHydrantEdge& edge, int row) {
  OverlaySection section = {.row = row};
  if (edge.path != nullptr) {
    ZcDbObjectIdList pipes;
    edge.path->GetPathPipeId(pipes);
    for (pipes.MoveToFirst(); !pipes.IsOut(); pipes.MoveToNext()) section.pipes.push_back(pipes.GetCurData());
    section.course = CourseOf(*edge.path);
  }
  return section;
}

/// Adds what the calculation found.
void AddResult(const ZwtHydrantEdge& edge, const std::vector<double>& heads, OverlaySection& section) {
  section.value = edge.flow;
  section.label = L"DN" + ZwtNum2Str(ToInt(edge.diameter));
  const bool runsToStart = HeadOf(heads, edge.endNumber) > HeadOf(heads, edge.startNumber);
  if (runsToStart) std::reverse(section.course.begin(), section.course.end());
}

CString SectionName(ZwtHydrantGraph& model, std::int32_t index) {
  const ZwtHydrantEdge* edge = model.edges.GetTo(index);
  if (edge == nullptr) return {};
  return ZwtNum2Str(edge->startNumber) + L"-" + ZwtNum2Str(edge->endNumber);
}

CString GivingUpNote(const LoopedPass& last, ZwtHydrantGraph& model) {
  const CString name = SectionName(model, last.section);
  const CString where = name.empty() ? CString() : L"（管段 " + name + L"）";
  return L"第 " + ZwtNum2Str(last.pass) + L" 次迭代后流量平方的最大变化为 " +
         ZwtNum2Str(last.largestChange, 3) + L" (L/s)²" + where + L"，限值 " +
         ZwtNum2Str(kLoopedConvergenceLimit, 1) + L" (L/s)²";
}

}  // namespace

Overlay DescribeHydrants(ZwtHydrantGraph& model, const HydrantTables& tables, bool isCalculated) {
  Overlay overlay;
  overlay.title = L"消火栓环状管网水力计算";
  overlay.look = OverlayLook::kWidth;
  overlay.quantity = L"流量";
  overlay.unit = L"L/s";
  overlay.labelMeaning = L"管径(mm)";
  overlay.pointLabelMeaning = L"压力(mH2O)";
  overlay.markMeaning = L"使用的消火栓";
  overlay.sectionTable = tables.sections;
  overlay.pointTable = tables.nodes;
  const std::vector<double> heads = isCalculated ? Heads(model) : std::vector<double>();
  int row = 1;
  for (model.edges.MoveToFirst(); !model.edges.IsOut(); model.edges.MoveToNext(), ++row) {
    const ZwtHydrantEdge& edge = model.edges.GetCurData();
    OverlaySection section = DescribeSection(edge, row);
    if (isCalculated) AddResult(edge, heads, section);
    overlay.sections.push_back(std::move(section));
  }
  row = 1;
  for (model.nodes.MoveToFirst(); !model.nodes.IsOut(); model.nodes.MoveToNext(), ++row) {
    const ZwtHydrantNode& node = model.nodes.GetCurData();
    OverlayPoint point = {.row = row, .marked = node.HasFlag(HYDRANT_NODE_ACTIVE)};
    if (node.graphNode != nullptr) point.place = node.graphNode->GetPoint();
    if (isCalculated) point.label = ZwtNum2Str(node.pressure, 2);
    overlay.points.push_back(std::move(point));
  }
  return overlay;
}

void PassHistory::Describe(const LoopedResult& result, ZwtHydrantGraph& model, Overlay& overlay) const {
  if (result.outcome == LoopedOutcome::Converged || passes_.empty()) return;
  overlay.notes.push_back(GivingUpNote(passes_.back(), model));
  OverlayProfile profile = {.title = L"迭代过程", .stepName = L"迭代次数", .logarithmic = true};
  OverlayCurve curve = {L"流量平方的最大变化", L"(L/s)²", {}};
  for (const LoopedPass& pass : passes_) {
    profile.steps.push_back(ZwtNum2Str(pass.pass));
    curve.values.push_back(pass.largestChange);
  }
  profile.curves.push_back(std::move(curve));
  overlay.profiles.push_back(std::move(profile));
}

}  // namespace zwt
