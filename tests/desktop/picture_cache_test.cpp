// The kept picture of a large drawing: what the window shows while the view moves, and when it is sharp.
#include "desktop/picture_cache.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 160;
const QColor kGround(0x21, 0x28, 0x30);

/// So many upright lines, 2 mm from each other, each on a height of its own.
std::shared_ptr<const DisplayList> Comb(int lines) {
  auto list = std::make_shared<DisplayList>();
  list->layers.push_back({L"0", true});
  for (int i = 0; i < lines; ++i) {
    DisplayPath path;
    path.first = static_cast<std::uint32_t>(list->points.size());
    path.count = 2;
    list->points.push_back({2.0 * i, static_cast<double>(i * 7 % 50)});
    list->points.push_back({2.0 * i, 100.0 + i * 13 % 50});
    list->strokes.push_back(path);
  }
  return list;
}

class PictureCacheTest : public testing::Test {
 protected:
  PictureCacheTest() {
    view.SetSize(QSizeF(kWidth, kHeight));
    view.Fit(QRectF(3000, 0, 100, 100));
    cache.onSharp = [this] { ++sharpened; };
  }

  QImage Show() {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(kGround);
    QPainter painter(&image);
    cache.Paint(painter, view);
    return image;
  }
  void Use(const std::shared_ptr<const DisplayList>& list) { cache.SetContent(list, ShownLayers(*list)); }

  ViewTransform view;
  PictureCache cache{kGround};
  int sharpened = 0;
};

QImage Painted(const DisplayList& list, const ViewTransform& view) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  image.fill(kGround);
  QPainter painter(&image);
  PaintDrawing(painter, list, ShownLayers(list), view, {.ground = kGround});
  return image;
}

/// Pixels that differ by more than what rounding makes of a smoothed edge.
int Differing(const QImage& a, const QImage& b) {
  int count = 0;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      count += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 24 ? 1 : 0;
    }
  }
  return count;
}

TEST_F(PictureCacheTest, SmallDrawingsAreSharpAtOnce) {
  const auto list = Comb(1800);
  Use(list);
  EXPECT_EQ(Show(), Painted(*list, view));
  EXPECT_TRUE(cache.IsSharp());
  EXPECT_EQ(sharpened, 0);
}

TEST_F(PictureCacheTest, LargeOnesAreSharpWhenTheirPictureIsDone) {
  const auto list = Comb(5000);
  Use(list);
  QImage ground(kWidth, kHeight, QImage::Format_RGB32);
  ground.fill(kGround);
  EXPECT_EQ(Show(), ground);
  EXPECT_FALSE(cache.IsSharp());
  cache.Finish();
  EXPECT_EQ(sharpened, 1);
  EXPECT_LE(Differing(Show(), Painted(*list, view)), 0);
  EXPECT_TRUE(cache.IsSharp());
}

TEST_F(PictureCacheTest, PanningMovesThePictureAndStaysSharp) {
  Use(Comb(5000));
  Show();
  cache.Finish();
  const QImage before = Show();
  view.Pan(QPointF(10, -5));
  const QImage after = Show();
  EXPECT_TRUE(cache.IsSharp());
  EXPECT_EQ(after.copy(10, 0, kWidth - 10, kHeight - 5), before.copy(0, 5, kWidth - 10, kHeight - 5));
  EXPECT_EQ(sharpened, 1) << "what lies around the window was painted with it";
}

TEST_F(PictureCacheTest, PanningBeyondThePictureHasANewOneMade) {
  const auto list = Comb(5000);
  Use(list);
  Show();
  cache.Finish();
  const QImage before = Show();
  view.Pan(QPointF(120, 0));
  const QImage moved = Show();
  EXPECT_FALSE(cache.IsSharp());
  EXPECT_EQ(moved.copy(120, 0, kWidth - 120, kHeight), before.copy(0, 0, kWidth - 120, kHeight));
  cache.Finish();
  EXPECT_EQ(Differing(Show(), Painted(*list, view)), 0);
  EXPECT_TRUE(cache.IsSharp());
}

TEST_F(PictureCacheTest, ZoomingShowsTheFormerPictureLargerUntilTheNewOneIsThere) {
  const auto list = Comb(5000);
  Use(list);
  Show();
  cache.Finish();
  view.ZoomAt(QPointF(0, 0), 2);
  QImage ground(kWidth, kHeight, QImage::Format_RGB32);
  ground.fill(kGround);
  EXPECT_NE(Show(), ground);
  EXPECT_FALSE(cache.IsSharp());
  cache.Finish();
  EXPECT_EQ(Differing(Show(), Painted(*list, view)), 0);
}

TEST_F(PictureCacheTest, AfterALeapTheGroundIsSeenUntilThePictureIsThere) {
  const auto list = Comb(5000);
  Use(list);
  QImage ground(kWidth, kHeight, QImage::Format_RGB32);
  ground.fill(kGround);
  const ViewTransform before = view;
  for (const bool zoomed : {false, true}) {
    view = before;
    Show();
    cache.Finish();
    if (zoomed) {
      view.ZoomAt(QPointF(0, 0), 1e4);
    } else {
      view.Pan(QPointF(1e12, 0));
    }
    EXPECT_EQ(Show(), ground);
    EXPECT_FALSE(cache.IsSharp());
    cache.Finish();
    EXPECT_EQ(Differing(Show(), Painted(*list, view)), 0);
    EXPECT_TRUE(cache.IsSharp());
  }
}

TEST_F(PictureCacheTest, WhereTheViewMovedMeanwhileTheLastViewIsMade) {
  const auto list = Comb(5000);
  Use(list);
  Show();
  view.ZoomAt(QPointF(50, 50), 3);
  Show();
  view.Pan(QPointF(500, 0));
  Show();
  cache.Finish();
  EXPECT_EQ(Differing(Show(), Painted(*list, view)), 0);
  EXPECT_TRUE(cache.IsSharp());
  EXPECT_EQ(sharpened, 2) << "the views in between are passed over";
}

TEST_F(PictureCacheTest, ANewContentReplacesThePicture) {
  Use(Comb(5000));
  Show();
  cache.Finish();
  const auto other = Comb(6000);
  std::vector<bool> hidden{false};
  cache.SetContent(other, hidden);
  Show();
  EXPECT_FALSE(cache.IsSharp());
  cache.Finish();
  QImage ground(kWidth, kHeight, QImage::Format_RGB32);
  ground.fill(kGround);
  EXPECT_EQ(Show(), ground) << "its only layer is not shown";
}

TEST_F(PictureCacheTest, ACacheThatEndsWhileItPaintsEndsCleanly) {
  auto ending = std::make_unique<PictureCache>(kGround);
  const auto list = Comb(20000);
  ending->SetContent(list, ShownLayers(*list));
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  QPainter painter(&image);
  ending->Paint(painter, view);
  ending->onSharp = [] { ADD_FAILURE() << "called after the end"; };
  ending.reset();
  QCoreApplication::processEvents();
}

}  // namespace
}  // namespace zwt
