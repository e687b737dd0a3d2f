#include "drainage/drainage_hydraulics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>

#include "host/text/number_text.h"

namespace zwt {
namespace {

struct DrainSize {
  std::int32_t diameter;  // nominal, mm
  double capacity;        // L/s at the usual grade
};

using DrainSizes = std::array<DrainSize, 6>;

constexpr DrainSizes kMetalSizes = {
    {{50, 0.76}, {75, 1.9}, {100, 3.65}, {125, 5.86}, {150, 10.23}, {200, 19.7}}};
constexpr DrainSizes kPlasticSizes = {
    {{50, 0.74}, {75, 1.79}, {110, 4.49}, {125, 5.88}, {160, 12.8}, {200, 19.67}}};

// L/s; a flow that lies farther from every capacity takes the largest size.
constexpr double kFarthestCapacity = 999.9;

struct LeastGrade {
  std::int32_t diameter;
  double grade;
};

constexpr std::array kMetalGrades = {LeastGrade{50, 0.025}, LeastGrade{75, 0.015},  LeastGrade{100, 0.012},
                                     LeastGrade{125, 0.01}, LeastGrade{150, 0.007}, LeastGrade{200, 0.005}};
constexpr double kOtherMetalGrade = 0;
constexpr std::array kPlasticGrades = {LeastGrade{50, 0.012}, LeastGrade{75, 0.007}, LeastGrade{100, 0.004},
                                       LeastGrade{110, 0.004}, LeastGrade{125, 0.0035}};
constexpr double kOtherPlasticGrade = 0.003;

struct RiserSize {
  std::int32_t diameter;
  double capacitySweptTee;  // L/s
  double capacityTee;       // L/s
};

constexpr std::array kRiserSizes = {RiserSize{50, 0.8, 1.0}, RiserSize{75, 1.3, 1.7},
                                    RiserSize{110, 3.2, 4.0}, RiserSize{125, 4.0, 5.2},
                                    RiserSize{160, 5.7, 7.4}};

constexpr std::int32_t kSeparatelyVentedDiameter = 110;

bool Contains(const CString& text, wchar_t c) {
  return text.find(c) != CString::npos;
}

template <std::size_t N>
double LeastGradeOf(const std::array<LeastGrade, N>& grades, std::int32_t diameter, double other) {
  const auto row = std::find_if(grades.begin(), grades.end(),
                                [diameter](const LeastGrade& least) { return least.diameter == diameter; });
  return row == grades.end() ? other : row->grade;
}

std::size_t NearestCapacity(const DrainSizes& sizes, double flow) {
  std::size_t position = sizes.size() - 1;
  double best = kFarthestCapacity;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const double distance = std::fabs(sizes[i].capacity - flow);
    if (distance < best) {
      best = distance;
      position = i;
    }
  }
  return position;
}

/// The diameter at a position, or the first behind it that reaches the least one wanted; if none does, that
/// at the position.
template <typename Sizes>
std::int32_t DiameterReaching(const Sizes& sizes, std::size_t position, std::int32_t least) {
  const auto start = sizes.begin() + static_cast<std::ptrdiff_t>(position);
  const auto reaching =
      std::find_if(start, sizes.end(), [least](const auto& size) { return size.diameter >= least; });
  return reaching == sizes.end() ? start->diameter : reaching->diameter;
}

std::int32_t RiserDiameterOf(double flow, std::int32_t largestFixture, const DrainageSettings& settings) {
  if (settings.ventType == L"伸顶通气") return SelectRiserDiameter(flow, largestFixture, settings.formIndex);
  if (settings.ventType == L"专用通气" || settings.ventType == L"自循环通气")
    return kSeparatelyVentedDiameter;
  return 0;
}

std::int32_t RiserDiameter(double flow, std::int32_t largestFixture, const DrainageSettings& settings,
                           Trace* trace) {
  const std::int32_t diameter = RiserDiameterOf(flow, largestFixture, settings);
  if (trace != nullptr) {
    trace->push_back(
        {.subject = L"立管管径 DN",
         .substitution = settings.ventType + WithNumbers(L"，排水能力大于 # L/s，不小于卫生器具排水管 #",
                                                         {flow, static_cast<double>(largestFixture)}),
         .result = ZwtNum2Str(diameter) + L" mm",
         .source = L"GB 50015-2003 第4.4.11条"});
  }
  return diameter;
}

struct GradeTable {
  ZcList<double> grades;
  ZcList<double> flows;
  ZcList<double> velocities;
};

/// The grade tables of one calculation, each read when a branch first has its size.
class GradeTables {
 public:
  GradeTable& Of(const BranchDiameter& branch) {
    const auto [place, isNew] = tables_.try_emplace({branch.material, branch.diameter});
    GradeTable& table = place->second;
    if (isNew) LoadGradeTable(branch.material, branch.diameter, table.grades, table.flows, table.velocities);
    return table;
  }

 private:
  std::map<std::pair<DrainMaterial, std::int32_t>, GradeTable> tables_;
};

TraceStep FlowStep(double useFactor, double equivalents, double largestFlow, double flow) {
  return {.subject = L"设计秒流量 qp",
          .formula = L"0.12·α·√Np + qmax",
          .substitution = WithNumbers(L"0.12 × # × √# + #", {useFactor, equivalents, largestFlow}),
          .result = ZwtNum2Str(flow, 3) + L" L/s",
          .source = L"GB 50015-2003 第4.4.5条"};
}

/// What the rows of the grade table gave, before the least grade.
struct TableGrade {
  double grade = 0;
  double velocity = 0;
};

void TraceBranch(const DrainageBranch& branch, const TableGrade& table, const DrainageBranchResult& result,
                 Trace& trace) {
  trace.push_back({.subject = L"管径 DN",
                   .substitution = WithNumbers(L"排水能力最接近设计秒流量的一档，不小于卫生器具排水管 #",
                                               {static_cast<double>(branch.largestFixture)}),
                   .result = ZwtNum2Str(result.diameter) + L" mm"});
  trace.push_back({.subject = L"坡度 i",
                   .substitution = WithNumbers(L"按流量 # L/s 在水力计算表中线性插值得 #，不小于最小坡度",
                                               {result.flow, table.grade}),
                   .result = ZwtNum2Str(result.grade, 3),
                   .source = L"GB 50015-2003 第4.4.9、4.4.10条"});
  trace.push_back({.subject = L"流速 v",
                   .substitution = WithNumbers(L"按流量 # L/s 在水力计算表中线性插值", {result.flow}),
                   .result = ZwtNum2Str(table.velocity, 3) + L" m/s"});
  trace.push_back({.subject = L"充满度 h/D",
                   .substitution = L"小于DN150取0.5，其余取0.6",
                   .result = ZwtNum2Str(result.fullness, 1)});
}

DrainageBranchResult CalculateBranch(const DrainageBranch& branch, double useFactor, GradeTables& tables,
                                     Trace* trace) {
  DrainageBranchResult result;
  result.flow = DrainageFlow(useFactor, branch.equivalents, branch.largestFlow, trace);
  const BranchDiameter chosen = SelectBranchDiameter(result.flow, branch.largestFixture, branch.material);
  result.diameter = chosen.diameter;
  GradeTable& table = tables.Of(chosen);
  InterpolateGrade(result.flow, table.grades, table.flows, table.velocities, result.grade, result.velocity);
  const TableGrade fromTable = {result.grade, result.velocity};
  ClampMinimumGrade(chosen.material, chosen.diameter, result.grade);
  result.fullness = Fullness(chosen.diameter);
  if (trace != nullptr) TraceBranch(branch, fromTable, result, *trace);
  return result;
}

}  // namespace

double DrainageFlow(double useFactor, double equivalents, double largestFlow, Trace* trace) {
  const double flow = useFactor * 0.12 * std::sqrt(equivalents) + largestFlow;
  if (trace != nullptr) trace->push_back(FlowStep(useFactor, equivalents, largestFlow, flow));
  return flow;
}

DrainMaterial DrainMaterialOf(const CString& material) {
  const bool metal = Contains(material, L'铁') || Contains(material, L'铜') || Contains(material, L'钢');
  return metal && !Contains(material, L'塑') ? DrainMaterial::Metal : DrainMaterial::Plastic;
}

BranchDiameter SelectBranchDiameter(double flow, std::int32_t largestFixture, const CString& material) {
  const DrainMaterial drain = DrainMaterialOf(material);
  const DrainSizes& sizes = drain == DrainMaterial::Metal ? kMetalSizes : kPlasticSizes;
  return {DiameterReaching(sizes, NearestCapacity(sizes, flow), largestFixture), drain};
}

void ClampMinimumGrade(DrainMaterial material, std::int32_t diameter, double& grade) {
  const double least = material == DrainMaterial::Metal
                           ? LeastGradeOf(kMetalGrades, diameter, kOtherMetalGrade)
                           : LeastGradeOf(kPlasticGrades, diameter, kOtherPlasticGrade);
  if (least > grade) grade = least;
}

double Fullness(std::int32_t diameter) {
  return diameter < 150 ? 0.5 : 0.6;
}

std::int32_t SelectRiserDiameter(double flow, std::int32_t largestFixture, std::int32_t formIndex) {
  const auto* const enough =
      std::find_if(kRiserSizes.begin(), kRiserSizes.end(), [flow, formIndex](const RiserSize& size) {
        return (formIndex == 1 ? size.capacityTee : size.capacitySweptTee) > flow;
      });
  const std::ptrdiff_t position = enough == kRiserSizes.end() ? 0 : enough - kRiserSizes.begin();
  return DiameterReaching(kRiserSizes, static_cast<std::size_t>(position), largestFixture);
}

DrainageStackResult CalculateStack(const std::vector<DrainageBranch>& branches,
                                   const DrainageSettings& settings, DrainageStackTrace* trace) {
  DrainageStackResult result;
  GradeTables tables;
  double equivalents = 0;
  double largestFlow = 0;
  std::int32_t largestFixture = 0;
  for (const DrainageBranch& branch : branches) {
    largestFixture = std::max(largestFixture, branch.largestFixture);
    largestFlow = std::max(largestFlow, branch.largestFlow);
    equivalents += branch.equivalents;
    Trace* steps = trace == nullptr ? nullptr : &trace->branches.emplace_back();
    result.branches.push_back(CalculateBranch(branch, settings.useFactor, tables, steps));
  }
  Trace* steps = trace == nullptr ? nullptr : &trace->riser;
  result.riserFlow = DrainageFlow(settings.useFactor, equivalents, largestFlow, steps);
  result.riserDiameter = RiserDiameter(result.riserFlow, largestFixture, settings, steps);
  return result;
}

CString RiserResultText(const DrainageStackResult& result) {
  return L"立管设计秒流量为：" + FormatFixed(result.riserFlow, 3) + L"，管径为：" +
         ZwtNum2Str(result.riserDiameter) + L"。";
}

}  // namespace zwt
