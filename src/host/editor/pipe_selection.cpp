// Selection of pipes by a filter on class, kind, system and role.
#include "host/editor/pipe_selection.h"

#include "host/editor/front_end.h"
#include "host/editor/result_buffer.h"
#include "host/editor/selection.h"

namespace zwt {

namespace {

constexpr std::int32_t kKind = 70;
constexpr std::int32_t kSystem = 300;
constexpr std::int32_t kRole = 301;

resbuf* FilterOf(const PipeQuestion& question) {
  if (question.role == nullptr)
    return acutBuildList(RTDXF0, L"ZWT_PIPE", kKind, 0, kSystem, question.systems, 0);
  return acutBuildList(RTDXF0, L"ZWT_PIPE", kKind, 0, kSystem, question.systems, kRole, question.role, 0);
}

}  // namespace

bool SelectPipes(const PipeQuestion& question, ZcDbObjectIdList& picked) {
  ZwtSelSet selection;
  if (question.single) selection.setAllowSingleOnly(true, true);
  resbuf* filter = FilterOf(question);
  const Acad::ErrorStatus status = selection.userSelect(question.prompt, nullptr, filter);
  acutRelRb(filter);
  if (status != Acad::eOk) return false;
  picked = selection.asList();
  return true;
}

void LetUserLookAround() {
  std::int32_t answer = RTNORM;
  while (answer != RTCAN && answer != RTNONE) answer = acedGetPoint(nullptr, nullptr, nullptr);
}

}  // namespace zwt
