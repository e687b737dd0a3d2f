// Picks entities with the pointer: what may be picked lights up under it, a click picks, a rectangle from
// left to right picks what lies wholly in it and one from right to left what it touches. With Shift picked
// ones are taken out again.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "desktop/drawing_scene.h"
#include "desktop/drawing_tool.h"

namespace zwt {

class SelectTool : public DrawingTool {
 public:
  /// Whether an entity, by its index, may be picked. Asked once for each entity until Forget.
  using Filter = std::function<bool(std::int32_t entity)>;

  /// The scene outlives the tool. single: one click picks and ends.
  SelectTool(const DrawingScene& scene, Filter filter, bool single);

  /// What is picked, in picking order.
  const std::vector<std::int32_t>& Picked() const { return picked_; }
  void SetPicked(std::vector<std::int32_t> picked) { picked_ = std::move(picked); }
  /// The entity that lights up under the pointer, -1 for none.
  std::int32_t Hovered() const { return hovered_; }
  /// Picks all that may be picked and is shown; with a single pick only where there is just one.
  void PickAll();
  /// The drawing has changed: forgets what the filter said, and picked ones that are no more.
  void Forget();

  void Press(const PointerPlace& at) override;
  void Move(const PointerPlace& at) override;
  void Release(const PointerPlace& at) override;
  void Leave() override;
  void Enter() override;
  void Escape() override;
  bool Take(const QString& word) override;
  void Paint(QPainter& painter, const ViewTransform& view) const override;

  /// Called after each change of what is picked.
  std::function<void()> onPicked;
  /// Called when a click hits something that may not be picked.
  std::function<void()> onRefused;
  /// Called when the user is done (true) or gives up (false).
  std::function<void(bool)> onEnded;

 private:
  /// A rectangle being drawn: a second click, or letting go after a drag, ends it.
  struct Frame {
    QPointF from;
    QPointF to;
    QPointF pressedAt;     // pixel
    bool onOther = false;  // it begins on something that may not be picked: only a drag makes it a rectangle
  };

  bool MayPick(std::int32_t entity) const;
  std::int32_t Under(const PointerPlace& at) const;
  bool IsOtherUnder(const PointerPlace& at) const;
  void PickOne(std::int32_t entity, bool takeOut);
  void PickFrame(const QPointF& from, const QPointF& to, bool takeOut);
  bool Change(std::int32_t entity, bool takeOut);
  void PaintShapes(QPainter& painter, const ViewTransform& view, std::span<const std::int32_t> entities,
                   const QColor& colour) const;
  static void PaintFrame(QPainter& painter, const ViewTransform& view, const Frame& frame);

  const DrawingScene& scene_;
  Filter filter_;
  bool single_;
  std::vector<std::int32_t> picked_;
  std::int32_t hovered_ = -1;
  std::optional<Frame> frame_;
  mutable std::unordered_map<std::int32_t, bool> known_;  // what the filter said
};

}  // namespace zwt
