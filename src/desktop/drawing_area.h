// The place of the drawing in the main window.
#pragma once

#include <QWidget>

namespace zwt {

class DrawingArea : public QWidget {
 public:
  explicit DrawingArea(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zwt
