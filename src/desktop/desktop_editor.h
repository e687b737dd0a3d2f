// Answers the questions of commands for pipes and points: shows the prompt on the command line, gives the
// pointer to a tool, and waits until the user has answered. Keys work on the drawing and on the command line
// alike.
#pragma once

#include <QEventLoop>
#include <functional>

#include "desktop/command_pane.h"
#include "desktop/drawing_area.h"
#include "desktop/nested_waits.h"
#include "desktop/select_tool.h"
#include "host/editor/front_end.h"

namespace zwt {

class DesktopEditor : public EditorFrontEnd {
 public:
  /// Puts itself in force for as long as it lives. Questions asked while waits is cancelling are answered as
  /// cancelled, unseen.
  DesktopEditor(DrawingArea& area, DrawingScene& scene, CommandPane& pane, NestedWaits& waits);
  DesktopEditor(const DesktopEditor&) = delete;
  DesktopEditor& operator=(const DesktopEditor&) = delete;
  ~DesktopEditor() override;

  std::optional<std::vector<AcDbObjectId>> SelectEntities(const CString& prompt, const EntityFilter& filter,
                                                          bool single) override;
  std::int32_t GetPoint(const CString& prompt, AcGePoint3d& point) override;

  /// Whether a question waits for its answer.
  bool IsAsking() const { return asking_; }
  /// A line of the command line while a question waits; an empty one is Enter.
  void TakeLine(const QString& line);
  void Escape();

  /// Called with a place that was pressed while the user looks around, and how far from it still counts as
  /// hit (mm).
  std::function<void(const QPointF& place, double reach)> onLookedAt;
  /// Called when the user could begin to answer.
  std::function<void()> onAsking;

 private:
  class PointTool;

  /// Runs the tool until ended is called through its own callbacks.
  void Ask(DrawingTool& tool, const QString& prompt, QEventLoop& loop);
  void TellCount(const SelectTool& tool) const;

  DrawingArea& area_;
  DrawingScene& scene_;
  CommandPane& pane_;
  NestedWaits& waits_;
  EditorFrontEnd* before_;
  bool asking_ = false;
};

}  // namespace zwt
