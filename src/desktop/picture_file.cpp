#include "desktop/picture_file.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <stdexcept>

#include "desktop/drawing_painter.h"
#include "desktop/qt_text.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"

namespace zwt {

namespace {

/// The longer side of a bitmap, pixels, and the least that a side has.
constexpr double kLongSide = 3000;
constexpr int kShortestSide = 200;
constexpr double kBitmapLine = 2;

constexpr int kPageResolution = 1200;
constexpr double kPageMargin = 10;  // mm
constexpr double kPageLine = 0.18;  // mm
constexpr double kMillimetresOfInch = 25.4;

QRectF PartOf(const DisplayList& list) {
  const PlaneBox box = list.Extents();
  return box.IsEmpty() ? QRectF(0, 0, 0, 0) : RectOf(box);
}

void PaintAll(QPainter& painter, const DisplayList& list, const QSizeF& size, const PictureLook& look) {
  ViewTransform view;
  view.SetSize(size);
  view.Fit(PartOf(list));
  PaintDrawing(painter, list, ShownLayers(list), view, look);
}

QSize BitmapSize(const QRectF& part) {
  const double longer = std::max(part.width(), part.height());
  if (longer <= 0) return {kShortestSide, kShortestSide};
  const auto pixels = [longer](double side) {
    return std::max(kShortestSide, static_cast<int>(std::lround(kLongSide * side / longer)));
  };
  return {pixels(part.width()), pixels(part.height())};
}

QByteArray Bitmap(const DisplayList& list) {
  QImage image(BitmapSize(PartOf(list)), QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    PaintAll(painter, list, image.size(), {.ground = Qt::white, .lineWidth = kBitmapLine});
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

QByteArray Page(const DisplayList& list) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kPageResolution);
  const QRectF part = PartOf(list);
  writer.setPageLayout(QPageLayout(
      QPageSize(QPageSize::A3), part.height() > part.width() ? QPageLayout::Portrait : QPageLayout::Landscape,
      QMarginsF(kPageMargin, kPageMargin, kPageMargin, kPageMargin), QPageLayout::Millimeter));
  {
    QPainter painter(&writer);
    const QSizeF size(writer.width(), writer.height());
    const double line = kPageLine / kMillimetresOfInch * kPageResolution;
    PaintAll(painter, list, size, {.ground = Qt::white, .lineWidth = line, .readable = true});
  }
  return bytes;
}

}  // namespace

void WritePicture(const DisplayList& list, const QString& file) {
  const bool isBitmap = file.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive);
  if (!isBitmap && !file.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
    throw std::runtime_error(file.toStdString() +
                             ": expected a name that ends in .png or .pdf; zwtcal render writes .svg");
  }
  const QByteArray bytes = isBitmap ? Bitmap(list) : Page(list);
  WriteFileAtomically(PathFromText(FromQt(file)),
                      std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace zwt
