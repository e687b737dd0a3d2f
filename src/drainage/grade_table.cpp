#include "drainage/grade_table.h"

#include "data/design_tables.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

constexpr const wchar_t* kMetalTable = L"PSCALDATA_MTAL";
constexpr const wchar_t* kPlasticTable = L"PSCALDATA_PLASTIC";

/// The row whose flow is the first above the one looked for; 0 if there is none.
std::int32_t FirstRowAbove(ZcList<double>& flows, double flow) {
  for (flows.MoveToFirst(); !flows.IsOut(); flows.MoveToNext()) {
    if (flows.GetCurData() > flow) return flows.GetCur();
  }
  return 0;
}

/// The flows of two neighbouring rows.
struct FlowSpan {
  double lower;
  double upper;
};

double OnFirstLine(const ZcList<double>& column, const FlowSpan& flows, double flow) {
  const double first = column.GetAt(0);
  const double second = column.GetAt(1);
  return (first * flows.upper - second * flows.lower + (second - first) * flow) / (flows.upper - flows.lower);
}

double OnLineBelow(const ZcList<double>& column, std::int32_t row, const FlowSpan& flows, double flow) {
  const double lower = column.GetAt(row - 1);
  const double upper = column.GetAt(row);
  return (upper - lower) * (flow - flows.lower) / (flows.upper - flows.lower) + lower;
}

}  // namespace

void LoadGradeTable(DrainMaterial material, std::int32_t diameter, ZcList<double>& grades,
                    ZcList<double>& flows, ZcList<double>& velocities) {
  ZcDtDictionary dictionary(nullptr, nullptr);
  if (!ReadDesignTables(dictionary)) return;
  const ZcDtDictItem& table =
      FindTable(dictionary, material == DrainMaterial::Metal ? kMetalTable : kPlasticTable);
  const CString key = L"dn" + ZwtNum2Str(diameter);
  for (std::int32_t i = 0; i < table.GetCount(); ++i) {
    const ZcDtDictItem& row = *table.GetAt(i);
    grades.Append(row.GetAttributeDoubleValue(L"grade"));
    flows.Append(row.GetAttributeDoubleValue(key + L"q"));
    velocities.Append(row.GetAttributeDoubleValue(key + L"v"));
  }
}

void InterpolateGrade(double flow, ZcList<double>& grades, ZcList<double>& flows, ZcList<double>& velocities,
                      double& grade, double& velocity) {
  if (flows.GetLength() < 2) return;
  const std::int32_t row = FirstRowAbove(flows, flow);
  if (row == 0) {
    const FlowSpan span{flows.GetAt(0), flows.GetAt(1)};
    grade = OnFirstLine(grades, span, flow);
    velocity = OnFirstLine(velocities, span, flow);
    return;
  }
  const FlowSpan span{flows.GetAt(row - 1), flows.GetAt(row)};
  grade = OnLineBelow(grades, row, span, flow);
  velocity = OnLineBelow(velocities, row, span, flow);
}

}  // namespace zwt
