// Selection of pipes by a filter on class, kind, system and role.
#include "host/editor/pipe_selection.h"

#include <memory>

#include "host/editor/front_end.h"
#include "host/editor/result_buffer.h"
#include "host/editor/selection.h"

namespace zwt {

namespace {

constexpr std::int32_t kKind = 70;
constexpr std::int32_t kSystem = 300;
constexpr std::int32_t kRole = 301;

struct Releasing {
  void operator()(resbuf* list) const { acutRelRb(list); }
};

/// A list that is released also where a front end gives the question up with an exception.
using Filter = std::unique_ptr<resbuf, Releasing>;

Filter FilterOf(const PipeQuestion& question) {
  if (question.role == nullptr)
    return Filter(acutBuildList(RTDXF0, L"ZWT_PIPE", kKind, 0, kSystem, question.systems, 0));
  return Filter(
      acutBuildList(RTDXF0, L"ZWT_PIPE", kKind, 0, kSystem, question.systems, kRole, question.role, 0));
}

}  // namespace

bool SelectPipes(const PipeQuestion& question, ZcDbObjectIdList& picked) {
  ZwtSelSet selection;
  if (question.single) selection.setAllowSingleOnly(true, true);
  const Filter filter = FilterOf(question);
  if (selection.userSelect(question.prompt, nullptr, filter.get()) != Acad::eOk) return false;
  picked = selection.asList();
  return true;
}

void LetUserLookAround() {
  std::int32_t answer = RTNORM;
  while (answer != RTCAN && answer != RTNONE) answer = acedGetPoint(nullptr, nullptr, nullptr);
}

}  // namespace zwt
