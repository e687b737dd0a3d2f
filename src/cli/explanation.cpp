#include "cli/explanation.h"

#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/dialog/dialog.h"
#include "host/dialog/grid_control.h"
#include "host/text/wide_text.h"

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;

struct RowTrace {
  int row = -1;  // -1 for a control without rows
  CString name;
  Trace trace;
};

std::vector<RowTrace> Explain(const CWnd& control) {
  std::vector<RowTrace> rows;
  const auto add = [&](int row, const CString& name) {
    Trace trace = control.Panel().Explain(control.GetDlgCtrlID(), row);
    if (!trace.empty()) rows.push_back({row, name, std::move(trace)});
  };
  if (const auto* grid = dynamic_cast<const CGridCtrl*>(&control)) {
    for (int row = 0; row < grid->GetRowCount(); ++row) add(row, grid->GetItemText(row, 0));
  } else {
    add(-1, control.Label());
  }
  return rows;
}

Json Steps(const Trace& trace) {
  Json steps = Json::array();
  for (const TraceStep& step : trace) {
    steps.push_back({{"subject", Utf8FromWide(step.subject)},
                     {"formula", Utf8FromWide(step.formula)},
                     {"substitution", Utf8FromWide(step.substitution)},
                     {"result", Utf8FromWide(step.result)},
                     {"source", Utf8FromWide(step.source)}});
  }
  return steps;
}

}  // namespace

Json ExplanationJson(const CWnd& control) {
  if (!control.Panel().CanExplain(control.GetDlgCtrlID())) return nullptr;
  Json rows = Json::array();
  for (const RowTrace& row : Explain(control)) {
    rows.push_back({{"row", row.row < 0 ? Json(nullptr) : Json(row.row)}, {"steps", Steps(row.trace)}});
  }
  return rows;
}

std::string ExplanationText(const CWnd& control) {
  std::string text;
  for (const RowTrace& row : Explain(control)) {
    text += '\n' + Utf8FromWide(row.name) + '\n';
    for (const TraceStep& step : row.trace) text += "  " + Utf8FromWide(TraceLine(step)) + '\n';
  }
  return text;
}

}  // namespace zwt
