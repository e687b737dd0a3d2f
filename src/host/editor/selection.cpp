#include "host/editor/selection.h"

#include <optional>
#include <unordered_set>
#include <vector>

#include "host/drawing/drawing.h"
#include "host/editor/front_end.h"

void ZwtSelSet::setAllowSingleOnly(bool single, bool /*onePick*/) {
  single_ = single;
}

Acad::ErrorStatus ZwtSelSet::userSelect(const wchar_t* prompt, const wchar_t* /*prompt2*/,
                                        const resbuf* filter) {
  picked_.Reset();
  first_ = {};
  zwt::EditorFrontEnd* frontEnd = zwt::CurrentFrontEnd();
  if (frontEnd == nullptr) return Acad::eUserBreak;
  const auto passes = [filter](AcDbObjectId id) {
    const zwt::Drawing& drawing = zwt::WorkingDrawing();
    const std::int32_t index = drawing.IndexOf(id);
    return index >= 0 && zwt::PassesFilter(drawing, index, filter);
  };
  const std::optional<std::vector<AcDbObjectId>> answer =
      frontEnd->SelectEntities(prompt == nullptr ? CString() : CString(prompt), passes, single_);
  if (!answer.has_value()) return Acad::eUserBreak;
  std::unordered_set<AcDbObjectId> seen;
  for (const AcDbObjectId id : *answer) {
    if (!passes(id) || !seen.insert(id).second) continue;
    picked_.Append(id);
    if (single_) break;
  }
  if (picked_.IsEmpty()) return Acad::eNothingSelected;
  first_ = *picked_.GetFirst();
  return Acad::eOk;
}
