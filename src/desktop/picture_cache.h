// A picture of a large drawing, kept while the view moves: the window shows it where it belongs now, at every
// frame, and a sharp one is painted on other threads meanwhile. Small drawings are painted as they are.
#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/drawing_painter.h"

namespace zwt {

class PictureCache : public QObject {
 public:
  explicit PictureCache(const QColor& ground);
  PictureCache(const PictureCache&) = delete;
  PictureCache& operator=(const PictureCache&) = delete;
  ~PictureCache() override;

  /// What is to be seen from now on. The former picture stands in until there is a new one.
  void SetContent(std::shared_ptr<const DisplayList> list, std::vector<bool> isShown);

  /// Paints the view as well as it is known now, and has a sharp picture made where that is not sharp.
  void Paint(QPainter& painter, const ViewTransform& view);

  /// Waits until the view that was painted last is known sharply.
  void Finish();
  /// Whether what Paint showed last was sharp.
  bool IsSharp() const { return isSharp_; }

  /// Called when a sharp picture is there: paint again.
  std::function<void()> onSharp;

 private:
  struct Content {
    std::shared_ptr<const DisplayList> list;
    std::vector<bool> isShown;
  };
  struct Job;

  bool IsSmall() const;
  bool Covers(const ViewTransform& view) const;
  bool NeedsJob(const ViewTransform& view) const;
  void PaintPicture(QPainter& painter, const ViewTransform& view) const;
  void Start(const ViewTransform& view, double pixelRatio);
  void Take(const std::shared_ptr<Job>& job);

  std::shared_ptr<const Content> content_;
  PictureLook look_;
  QImage picture_;
  ViewTransform pictureView_;  // of the whole picture, which is larger than the window
  std::shared_ptr<const Content> pictureContent_;
  ViewTransform wanted_;
  double pixelRatio_ = 1;
  bool isSharp_ = false;
  bool isRunning_ = false;
  QThreadPool pool_;
};

}  // namespace zwt
