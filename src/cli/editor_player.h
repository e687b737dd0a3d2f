// The user of a script in the drawing: answers prompts for pipes and points, and writes down what is printed
// and what happens to the drawing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/event_log.h"
#include "cli/run_script.h"
#include "host/drawing/drawing.h"
#include "host/editor/front_end.h"
#include "host/runtime/command_line.h"

namespace zwt {

class EditorPlayer : public EditorFrontEnd, public CommandLine, public DrawingObserver {
 public:
  /// nextPoint answers the prompts for points.
  EditorPlayer(Drawing& drawing, EventLog& log, std::function<PointAnswer()> nextPoint);
  EditorPlayer(const EditorPlayer&) = delete;
  EditorPlayer& operator=(const EditorPlayer&) = delete;
  /// Takes itself out of force.
  ~EditorPlayer() override;

  /// Sets the answer to the prompts for pipes from here on.
  void Answer(const PipePick& pick) { pick_ = pick; }

  /// Throws ScriptError for a handle that the prompt does not take, for more than it takes, and where "all"
  /// does not find the one that it takes.
  std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString& prompt, const EntityFilter& filter,
                                                          bool single) override;
  std::int32_t GetPoint(const CString& prompt, AcGePoint3d& point) override;

  void Print(const CString& text) override;

  void OnChange(const DrawingChange& change) override;
  void OnRefusal(const CString& message) override;

 private:
  std::vector<AcDbObjectId> PickAll(const EntityFilter& filter, bool single) const;
  std::vector<AcDbObjectId> PickHandles(const EntityFilter& filter, bool single) const;

  Drawing& drawing_;
  EventLog& log_;
  std::function<PointAnswer()> nextPoint_;
  PipePick pick_;
  EditorFrontEnd* frontEndBefore_;
  CommandLine* commandLineBefore_;
};

}  // namespace zwt
