#include "host/overlay/overlay.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "host/drawing/drawing.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

struct OverlayState {
  OverlayWatcher* watcher = nullptr;
  std::optional<Overlay> overlay;
};

OverlayState& State() {
  static OverlayState state;
  return state;
}

/// How many lines stand for a part: one for a straight part, one for each fifteen degrees of an arc.
int LineCount(const CurvePart& part) {
  if (part.radius <= 0) return 1;
  constexpr double kStep = std::numbers::pi / 12;
  return std::clamp(static_cast<int>(std::ceil(part.sweep / kStep)), 1, 24);
}

}  // namespace

OverlayWatcher* SetOverlayWatcher(OverlayWatcher* watcher) {
  return std::exchange(State().watcher, watcher);
}

bool IsOverlayWatched() {
  return State().watcher != nullptr;
}

void PublishOverlay(Overlay overlay) {
  if (!IsOverlayWatched()) return;
  State().overlay = std::move(overlay);
  State().watcher->OnOverlayChanged();
}

void ClearOverlay() {
  if (!State().overlay.has_value()) return;
  State().overlay.reset();
  if (IsOverlayWatched()) State().watcher->OnOverlayChanged();
}

const Overlay* CurrentOverlay() {
  const std::optional<Overlay>& overlay = State().overlay;
  return overlay.has_value() ? &*overlay : nullptr;
}

std::vector<AcGePoint3d> PipeCourse(AcDbObjectId pipe) {
  const Drawing& drawing = WorkingDrawing();
  const std::int32_t index = drawing.IndexOf(pipe);
  if (index < 0 || drawing.Entity(index).pipe < 0) return {};
  const PipeCurve curve = drawing.CurveOf(index);
  std::vector<AcGePoint3d> course = {curve.front().start};
  for (const CurvePart& part : curve) {
    const int lines = LineCount(part);
    for (int line = 1; line < lines; ++line)
      course.push_back(part.PointAt(static_cast<double>(line) / lines));
    course.push_back(part.end);
  }
  return course;
}

OverlaySection SectionOfPipe(std::int32_t row, AcDbObjectId pipe, const CString& value,
                             const CString& diameter) {
  OverlaySection section = {.row = row, .pipes = {pipe}};
  section.course = PipeCourse(pipe);
  if (!value.empty()) section.value = _wtof(value);
  if (!diameter.empty()) section.label = L"DN" + diameter;
  return section;
}

}  // namespace zwt
