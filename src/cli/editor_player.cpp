// Answers to prompts, and the drawing's changes as events.
#include "cli/editor_player.h"

#include <utility>

#include "cli/script_error.h"
#include "host/drawing/tags.h"
#include "host/editor/result_buffer.h"

namespace zwt {

namespace {

/// -1 where no living entity has the handle.
std::int32_t FindEntity(const Drawing& drawing, const std::string& text) {
  std::uint64_t handle = 0;
  return ParseHandle(text, handle) ? drawing.FindHandle(handle) : -1;
}

}  // namespace

EditorPlayer::EditorPlayer(Drawing& drawing, EventLog& log, std::function<PointAnswer()> nextPoint)
    : drawing_(drawing),
      log_(log),
      nextPoint_(std::move(nextPoint)),
      frontEndBefore_(InstallFrontEnd(this)),
      commandLineBefore_(SetCommandLine(this)) {
  drawing_.AddObserver(this);
}

EditorPlayer::~EditorPlayer() {
  drawing_.RemoveObserver(this);
  SetCommandLine(commandLineBefore_);
  InstallFrontEnd(frontEndBefore_);
}

std::optional<std::vector<AcDbObjectId>> EditorPlayer::SelectEntities(const CString& prompt,
                                                                      const EntityFilter& filter,
                                                                      bool single) {
  Print(prompt);
  switch (pick_.kind) {
    case PipePick::Kind::kCancel:
      return std::nullopt;
    case PipePick::Kind::kAll:
      return PickAll(filter, single);
    case PipePick::Kind::kHandles:
      return PickHandles(filter, single);
  }
  return std::nullopt;
}

std::vector<AcDbObjectId> EditorPlayer::PickAll(const EntityFilter& filter, bool single) const {
  constexpr std::size_t kMostNamed = 10;
  std::vector<AcDbObjectId> picked;
  std::string handles;
  for (std::int32_t i = 0; i < drawing_.EntityCount(); ++i) {
    const AcDbObjectId id = drawing_.IdOf(i);
    if (!filter(id)) continue;
    picked.push_back(id);
    if (picked.size() <= kMostNamed)
      handles += (handles.empty() ? "" : ", ") + HandleText(drawing_.Entity(i).handle);
  }
  if (!single || picked.size() == 1) return picked;
  if (picked.empty()) throw ScriptError(pick_.at, "one pipe is asked for, none fits");
  if (picked.size() > kMostNamed) handles += ", ...";
  throw ScriptError(pick_.at, "one pipe is asked for, " + std::to_string(picked.size()) + " fit: " + handles);
}

std::vector<AcDbObjectId> EditorPlayer::PickHandles(const EntityFilter& filter, bool single) const {
  std::vector<AcDbObjectId> picked;
  for (const std::string& handle : pick_.handles) {
    const std::int32_t index = FindEntity(drawing_, handle);
    if (index < 0) throw ScriptError(pick_.at, "no entity has the handle \"" + handle + '"');
    const AcDbObjectId id = drawing_.IdOf(index);
    if (!filter(id)) throw ScriptError(pick_.at, "the prompt does not take the entity \"" + handle + '"');
    picked.push_back(id);
  }
  if (single && picked.size() > 1) {
    throw ScriptError(pick_.at, "one pipe is asked for, " + std::to_string(picked.size()) + " are given");
  }
  return picked;
}

std::int32_t EditorPlayer::GetPoint(const CString& prompt, AcGePoint3d& point) {
  if (!prompt.empty()) Print(prompt);
  switch (nextPoint_()) {
    case PointAnswer::kPoint:
      point = {};
      return RTNORM;
    case PointAnswer::kNone:
      return RTNONE;
    case PointAnswer::kCancel:
      return RTCAN;
  }
  return RTCAN;
}

void EditorPlayer::Print(const CString& text) {
  log_.Print(text);
}

void EditorPlayer::OnChange(const DrawingChange& change) {
  const std::string handle = HandleText(change.handle);
  const CString* text = change.hasText ? &change.text : nullptr;
  switch (change.kind) {
    case DrawingChange::Kind::Add:
      return log_.Add(handle, change.type, change.layer, text);
    case DrawingChange::Kind::Erase:
      return log_.Erase(handle, change.type, change.layer, text);
    case DrawingChange::Kind::SetDiameter:
      return log_.SetDiameter(handle, change.diameter);
    case DrawingChange::Kind::SetField:
      return log_.SetField(handle, change.key, change.text);
    case DrawingChange::Kind::Modify:
    case DrawingChange::Kind::Graphics:
      return;
  }
}

void EditorPlayer::OnRefusal(const CString& message) {
  log_.Message(message, L"错误", MessageIcon::kStop);
}

}  // namespace zwt
