// The layers of the drawing with their colours, to be switched on and off.
#pragma once

#include <QListWidget>

#include "desktop/drawing_scene.h"

namespace zwt {

class LayerView : public QListWidget {
 public:
  /// The scene outlives the list.
  LayerView(DrawingScene& scene, QWidget* parent);

  /// Shows the layers of the working drawing as they are now, by name.
  void Follow();

 private:
  DrawingScene& scene_;
  bool following_ = false;
};

}  // namespace zwt
