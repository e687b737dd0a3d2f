// Work on the drawing outside of commands: what is selected and its properties, drawing pipes, erasing,
// checking.
#pragma once

#include <QAction>
#include <QMenu>
#include <functional>
#include <memory>

#include "desktop/draw_pipe_tool.h"
#include "desktop/drawing_area.h"
#include "desktop/findings_view.h"
#include "desktop/property_view.h"
#include "desktop/select_tool.h"

namespace zwt {

class DrawingEdits {
 public:
  /// Area and scene outlive the edits; the views belong to parent.
  DrawingEdits(DrawingArea& area, DrawingScene& scene, QWidget* parent);
  DrawingEdits(const DrawingEdits&) = delete;
  DrawingEdits& operator=(const DrawingEdits&) = delete;
  ~DrawingEdits();

  /// Puts the actions into a menu.
  void AddTo(QMenu& menu);
  /// While a command runs nothing can be edited.
  void SetEnabled(bool enabled);

  PropertyView& Properties() { return *properties_; }
  FindingsView& Findings() { return *findings_; }
  /// What is selected, by index of the entity.
  const std::vector<std::int32_t>& Selected() const { return selection_.Picked(); }
  void Select(std::vector<std::int32_t> entities);

  /// The drawing has changed, or another one is there.
  void Follow();
  void Reset();

  void BeginDrawing();
  /// Whether pipes are being drawn.
  bool IsDrawing() const { return drawing_ != nullptr; }
  /// Ends drawing; the new pipes are selected.
  void EndDrawing();
  void Escape();

  /// Enter in the drawing while nothing is asked.
  std::function<void()> onEnter;
  /// A prompt and a line for the command line; an empty prompt brings the usual one back.
  std::function<void(const QString&)> onPrompt;
  std::function<void(const CString&)> onNote;

 private:
  void EraseSelected();
  void ShowFinding(const Finding& finding);

  DrawingArea& area_;
  DrawingScene& scene_;
  PropertyView* properties_;
  FindingsView* findings_;
  SelectTool selection_;
  std::unique_ptr<DrawPipeTool> drawing_;
  QList<QAction*> actions_;
};

}  // namespace zwt
