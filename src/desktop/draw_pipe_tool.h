// Draws pipes from click to click. The pointer jumps to ends, middles and perpendiculars of what is there.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "desktop/drawing_scene.h"
#include "desktop/drawing_tool.h"
#include "desktop/snap_points.h"

namespace zwt {

class DrawPipeTool : public DrawingTool {
 public:
  /// The scene outlives the tool. New pipes have the fields and the layer.
  DrawPipeTool(const DrawingScene& scene, FieldList fields, AcDbObjectId layer);

  void Press(const PointerPlace& at) override;
  void Move(const PointerPlace& at) override;
  void Release(const PointerPlace&) override {}
  void Leave() override { snap_.reset(); }
  void Enter() override { End(); }
  void Escape() override;
  void Paint(QPainter& painter, const ViewTransform& view) const override;

  /// The pipes drawn so far, by index.
  const std::vector<std::int32_t>& Drawn() const { return drawn_; }
  const std::optional<SnapPoint>& Snap() const { return snap_; }

  /// Called when the user is done. Whoever hears it may let the tool go.
  std::function<void()> onEnded;

 private:
  /// Where a click there would put the point.
  QPointF Aim(const PointerPlace& at);
  void End();

  const DrawingScene& scene_;
  FieldList fields_;
  AcDbObjectId layer_;
  std::optional<QPointF> from_;
  QPointF to_;
  std::optional<SnapPoint> snap_;
  std::vector<std::int32_t> drawn_;
};

}  // namespace zwt
