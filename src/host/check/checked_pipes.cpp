#include "host/check/checked_pipes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/drawing/tags.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

PipeRole RoleFrom(const CString& type) {
  if (type == L"入口立管") return PipeRole::kEntry;
  if (type == L"立管") return PipeRole::kRiser;
  if (type == L"支管") return PipeRole::kBranch;
  return PipeRole::kOther;
}

}  // namespace

CheckedPipes::CheckedPipes(const Drawing& drawing)
    : drawing_(drawing),
      connections_(drawing.GetConnections()),
      pipes_(drawing.Pipes()),
      roles_(static_cast<std::size_t>(drawing.EntityCount()), PipeRole::kOther) {
  for (const std::int32_t pipe : pipes_) {
    roles_[static_cast<std::size_t>(pipe)] = RoleFrom(Text(pipe, L"ELS_TYPE"));
  }
}

CString CheckedPipes::Text(std::int32_t pipe, const wchar_t* key) const {
  CString text;
  drawing_.GetField(pipe, key, text);
  return text;
}

CString CheckedPipes::NameOf(std::int32_t pipe) const {
  return WideFromUtf8(HandleText(drawing_.Entity(pipe).handle));
}

AcGePoint3d CheckedPipes::MiddleOf(std::int32_t pipe) const {
  return MidPointOf(connections_.CurveOf(pipe));
}

bool CheckedPipes::IsEntryOf(std::int32_t pipe, const wchar_t* system, const wchar_t* otherSystem) const {
  if (RoleOf(pipe) != PipeRole::kEntry || drawing_.Kind(pipe) != 0) return false;
  const CString held = Text(pipe, L"WtSystem");
  return held == system || held == otherSystem;
}

void CheckedPipes::Report(const char* kind, const CString& text, const AcGePoint3d& place,
                          const std::vector<std::int32_t>& entities) {
  Placed placed{entities.front(), {kind, text, place, {}}};
  for (const std::int32_t entity : entities) placed.finding.handles.push_back(drawing_.Entity(entity).handle);
  findings_.push_back(std::move(placed));
}

void CheckedPipes::ReportStray(const char* kind, const CString& text, const AcGePoint3d& place,
                               std::uint64_t handle) {
  constexpr std::int32_t kBeforeAll = -1;
  Placed placed{kBeforeAll, {kind, text, place, {}}};
  if (handle != 0) placed.finding.handles.push_back(handle);
  findings_.push_back(std::move(placed));
}

std::vector<Finding> CheckedPipes::TakeFindings() {
  std::stable_sort(findings_.begin(), findings_.end(),
                   [](const Placed& a, const Placed& b) { return a.entity < b.entity; });
  std::vector<Finding> sorted;
  sorted.reserve(findings_.size());
  for (Placed& placed : findings_) sorted.push_back(std::move(placed.finding));
  findings_.clear();
  return sorted;
}

CString LengthText(double length) {
  return FormatBound(std::round(length * 10) / 10) + L" mm";
}

}  // namespace zwt
