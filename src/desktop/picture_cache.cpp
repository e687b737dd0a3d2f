#include "desktop/picture_cache.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <cmath>

namespace zwt {

namespace {

/// Drawings up to this size are painted within a frame.
constexpr std::size_t kSmallPoints = 4000;
constexpr std::size_t kSmallTexts = 300;
/// With more points than this in sight a smooth picture would take too long.
constexpr std::size_t kMostSmooth = 30000;

/// The picture reaches beyond the window by this part of it on each side, so that panning finds something
/// there; when less than the second is left, the next picture is begun.
constexpr double kMargin = 0.25;
constexpr double kLeastMargin = 0.08;

/// A picture stretched or shrunk by more says nothing, and is beyond what painters count with.
constexpr double kMostLarger = 20;

QRectF Grown(const QRectF& area, double part) {
  const double x = area.width() * part;
  const double y = area.height() * part;
  return area.adjusted(-x, -y, x, y);
}

bool IsSmoothInTime(const DisplayList& list, const ViewTransform& view) {
  const QRectF shown = view.Shown();
  PlaneBox seen;
  seen.Add(PlanePoint{shown.left(), shown.top()});
  seen.Add(PlanePoint{shown.right(), shown.bottom()});
  std::size_t points = 0;
  for (const DisplayPath& path : list.strokes) {
    if (BoxOf(list.PointsOf(path)).Touches(seen)) points += path.count;
    if (points > kMostSmooth) return false;
  }
  return true;
}

}  // namespace

/// One picture on its way, cut into bands that are painted side by side.
struct PictureCache::Job {
  std::shared_ptr<const Content> content;
  ViewTransform view;
  PictureLook look;
  double pixelRatio = 1;
  QImage image;
  std::atomic<int> bandsLeft = 0;

  /// Paints the rows of the image from one to another.
  void PaintBand(uchar* pixels, int from, int to) const {
    const int height = to - from;
    QImage band(pixels, image.width(), height, image.bytesPerLine(), image.format());
    band.fill(look.ground);
    ViewTransform part = view;
    const double bandHeight = height / pixelRatio;
    part.SetSize(QSizeF(view.Size().width(), bandHeight));
    part.Pan(QPointF(0, view.Size().height() / 2 - from / pixelRatio - bandHeight / 2));
    QPainter painter(&band);
    painter.scale(pixelRatio, pixelRatio);
    PaintDrawing(painter, *content->list, content->isShown, part, look);
  }
};

PictureCache::PictureCache(const QColor& ground) : look_{.ground = ground} {
  constexpr int kForever = -1;  // threads keep the glyphs that they have made
  pool_.setExpiryTimeout(kForever);
  pool_.setMaxThreadCount(std::max(1, QThread::idealThreadCount()));
}

PictureCache::~PictureCache() {
  pool_.waitForDone();
}

void PictureCache::SetContent(std::shared_ptr<const DisplayList> list, std::vector<bool> isShown) {
  auto content = std::make_shared<Content>();
  content->list = std::move(list);
  content->isShown = std::move(isShown);
  content_ = std::move(content);
}

bool PictureCache::IsSmall() const {
  return content_->list->points.size() <= kSmallPoints && content_->list->texts.size() <= kSmallTexts;
}

void PictureCache::Paint(QPainter& painter, const ViewTransform& view) {
  isSharp_ = content_ == nullptr || IsSmall();
  if (content_ == nullptr) return;
  if (IsSmall()) {
    picture_ = {};
    PaintDrawing(painter, *content_->list, content_->isShown, view, look_);
    return;
  }
  if (!picture_.isNull()) PaintPicture(painter, view);
  isSharp_ = Covers(view);
  wanted_ = view;
  pixelRatio_ = painter.device()->devicePixelRatioF();
  if (!isRunning_ && NeedsJob(view)) Start(view, pixelRatio_);
}

bool PictureCache::Covers(const ViewTransform& view) const {
  return pictureContent_ == content_ && pictureView_.Scale() == view.Scale() &&
         pictureView_.Shown().contains(view.Shown());
}

bool PictureCache::NeedsJob(const ViewTransform& view) const {
  if (!Covers(view)) return true;
  return !pictureView_.Shown().contains(Grown(view.Shown(), kLeastMargin));
}

void PictureCache::PaintPicture(QPainter& painter, const ViewTransform& view) const {
  const double larger = view.Scale() / pictureView_.Scale();
  const bool isNear = larger < kMostLarger && larger > 1 / kMostLarger;
  if (!isNear || !pictureView_.Shown().intersects(view.Shown())) return;
  const QPointF corner = view.ToPixel(pictureView_.ToPlace(QPointF(0, 0)));
  if (larger == 1) {  // on whole pixels nothing is blurred, and copying is all there is to do
    painter.drawImage(corner.toPoint(), picture_);
  } else {
    painter.drawImage(QRectF(corner, pictureView_.Size() * larger), picture_);
  }
}

void PictureCache::Start(const ViewTransform& view, double pixelRatio) {
  isRunning_ = true;
  const auto job = std::make_shared<Job>();
  job->content = content_;
  job->pixelRatio = pixelRatio;
  job->view = view;
  const QSize size(static_cast<int>(std::ceil(view.Size().width() * (1 + 2 * kMargin) * pixelRatio)),
                   static_cast<int>(std::ceil(view.Size().height() * (1 + 2 * kMargin) * pixelRatio)));
  job->view.SetSize(QSizeF(size) / pixelRatio);
  job->look = look_;
  job->look.smooth = IsSmoothInTime(*content_->list, job->view);
  job->image = QImage(size, QImage::Format_RGB32);
  const int bands = std::max(1, std::min(pool_.maxThreadCount(), size.height()));
  job->bandsLeft = bands;
  uchar* pixels = job->image.bits();
  for (int band = 0; band < bands; ++band) {
    const int from = size.height() * band / bands;
    const int to = size.height() * (band + 1) / bands;
    pool_.start([this, job, from, to, pixels] {
      job->PaintBand(pixels + job->image.bytesPerLine() * from, from, to);
      if (--job->bandsLeft == 0)
        QMetaObject::invokeMethod(
            this, [this, job] { Take(job); }, Qt::QueuedConnection);
    });
  }
}

void PictureCache::Take(const std::shared_ptr<Job>& job) {
  isRunning_ = false;
  picture_ = job->image;
  picture_.setDevicePixelRatio(job->pixelRatio);
  pictureView_ = job->view;
  pictureContent_ = job->content;
  if (NeedsJob(wanted_)) Start(wanted_, pixelRatio_);
  if (onSharp) onSharp();
}

void PictureCache::Finish() {
  while (isRunning_) {
    pool_.waitForDone();
    QCoreApplication::sendPostedEvents(this);
  }
}

}  // namespace zwt
