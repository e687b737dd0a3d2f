// What there is to see and to pick of the working drawing, kept up to date, and which of its layers the user
// wants to see. Switching a layer changes the view alone, never the drawing.
#pragma once

#include <QRectF>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/drawing_picker.h"
#include "host/drawing/display_list.h"

namespace zwt {

class DrawingScene {
 public:
  /// The working drawing has changed: what is known of it is made anew on the next use.
  void Forget();
  /// A drawing of another file is the working one: layers are shown as the file says.
  void Reset();

  const DrawingPicker& Picker() const;
  /// What there is to see of the drawing; it stays as it is while the drawing changes.
  std::shared_ptr<const DisplayList> Picture() const;
  /// By layer of the picture, whether the user sees it.
  std::vector<bool> ShownInPicture() const;

  /// Whether the user sees a layer, by its index.
  bool IsLayerShown(std::int32_t layer) const;
  void ShowLayer(std::int32_t layer, bool shown);
  /// Whether an entity lives and lies on a layer that is shown.
  bool IsShown(std::int32_t entity) const;

  /// Box around what is shown; nothing where nothing is.
  std::optional<QRectF> Extents() const;

  /// Called when something else is to be seen.
  std::function<void()> onChanged;

 private:
  mutable std::unique_ptr<DrawingPicker> picker_;
  mutable std::shared_ptr<const DisplayList> picture_;
  std::map<CString, bool> switched_;    // layers that the user switched on or off, by name
  mutable std::vector<bool> isHidden_;  // by index of the layer, as far as it was asked for
};

}  // namespace zwt
