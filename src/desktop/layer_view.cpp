// Layers in a list with boxes to tick.
#include "desktop/layer_view.h"

#include <QPainter>
#include <QPixmap>
#include <QScopedValueRollback>

#include "desktop/layer_colours.h"
#include "desktop/qt_text.h"
#include "host/drawing/drawing.h"

namespace zwt {

namespace {

constexpr int kSwatch = 12;

QIcon Swatch(const QColor& colour) {
  QPixmap pixmap(kSwatch, kSwatch);
  pixmap.fill(colour);
  QPainter painter(&pixmap);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, kSwatch - 1, kSwatch - 1);
  return QIcon(pixmap);
}

}  // namespace

LayerView::LayerView(DrawingScene& scene, QWidget* parent) : QListWidget(parent), scene_(scene) {
  setObjectName(QStringLiteral("layerView"));
  setFrameShape(QFrame::NoFrame);
  connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    if (following_) return;
    scene_.ShowLayer(item->data(Qt::UserRole).toInt(), item->checkState() == Qt::Checked);
  });
}

void LayerView::Follow() {
  const QScopedValueRollback following(following_, true);
  clear();
  const std::vector<Layer>& layers = WorkingDrawing().Data().layers;
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(layers.size()); ++i) {
    const Layer& layer = layers[static_cast<std::size_t>(i)];
    auto* item = new QListWidgetItem(Swatch(ColourOfLayer(layer)), ToQt(layer.name), this);
    item->setData(Qt::UserRole, i);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    item->setCheckState(scene_.IsLayerShown(i) ? Qt::Checked : Qt::Unchecked);
  }
  sortItems();
}

}  // namespace zwt
