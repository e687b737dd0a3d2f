// Display lists as they are painted: what stands at which pixel.
#include "desktop/drawing_painter.h"

#include <QImage>

#include <gtest/gtest.h>

#include "host_drawing/seen.h"

namespace zwt {
namespace {

constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kRed = 0xFFFF0000;

/// Paints into 101 by 101 pixels, of which the middle one shows the origin, a millimetre each unless zoomed.
class Canvas {
 public:
  explicit Canvas(std::string_view entities, double zoom = 1, std::string_view tables = {})
      : list_(MakeDisplayList(*test::DrawingOf(entities, "", tables))), isShown_(ShownLayers(list_)) {
    view_.SetSize(QSizeF(kSide, kSide));
    view_.Fit(QRectF(-kSide / 2, -kSide / 2, kSide, kSide));
    view_.ZoomAt(QPointF(kSide / 2, kSide / 2), zoom / view_.Scale());
    view_.Pan(QPointF(-0.3, -0.3));  // off the middle of a pixel: all kinds of items are rounded alike
    look_.smooth = false;
  }

  PictureLook& Look() { return look_; }
  ViewTransform& View() { return view_; }
  std::vector<bool>& Layers() { return isShown_; }

  const QImage& Paint() {
    image_ = QImage(static_cast<int>(kSide), static_cast<int>(kSide), QImage::Format_RGB32);
    image_.fill(look_.ground);
    QPainter painter(&image_);
    PaintDrawing(painter, list_, isShown_, view_, look_);
    return image_;
  }

  /// Box around all that is not ground.
  QRect Box() {
    const QImage& image = Paint();
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != look_.ground.rgb()) box |= QRect(x, y, 1, 1);
      }
    }
    return box;
  }

  /// The same as "left,top right,bottom"; empty where nothing is painted.
  std::string Painted() {
    const QRect box = Box();
    if (box.isNull()) return "";
    const auto corner = [](const QPoint& point) {
      return std::to_string(point.x()) + "," + std::to_string(point.y());
    };
    return corner(box.topLeft()) + " " + corner(box.bottomRight());
  }

 private:
  static constexpr double kSide = 101;
  DisplayList list_;
  std::vector<bool> isShown_;
  ViewTransform view_;
  PictureLook look_{.ground = Qt::white};
  QImage image_;
};

TEST(DrawingPainter, LinesStandWhereTheViewPutsThem) {
  EXPECT_EQ(Canvas("0 LINE|8 0|10 -20|20 10|11 30|21 10").Painted(), "30,40 80,40");
  EXPECT_EQ(Canvas("0 LINE|8 0|10 -20|20 10|11 0|21 10", 2).Painted(), "10,30 50,30");
  EXPECT_EQ(Canvas("0 LINE|8 0|10 5|20 -10|11 5|21 20").Painted(), "55,30 55,60");
}

TEST(DrawingPainter, ColourSevenIsTheOppositeOfTheGround) {
  Canvas canvas("0 LINE|8 0|10 -20|20 0|11 20|21 0");
  EXPECT_EQ(canvas.Paint().pixel(50, 50), kBlack);
  canvas.Look().ground = QColor(0x21, 0x28, 0x30);
  EXPECT_EQ(canvas.Paint().pixel(50, 50), kWhite);
}

TEST(DrawingPainter, ItemsHaveTheirColours) {
  EXPECT_EQ(Canvas("0 LINE|8 0|62 1|10 -20|20 0|11 20|21 0").Paint().pixel(50, 50), kRed);
  EXPECT_EQ(Canvas("0 LINE|8 0|420 1193046|10 -20|20 0|11 20|21 0").Paint().pixel(50, 50), 0xFF123456U);
}

TEST(DrawingPainter, LayersThatAreNotShownAreLeftOut) {
  Canvas canvas("0 LINE|8 A|10 -20|20 0|11 20|21 0", 1,
                "0 TABLE|2 LAYER|0 LAYER|2 0|62 7|0 LAYER|2 A|62 -7|0 ENDTAB");
  EXPECT_EQ(canvas.Painted(), "");
  canvas.Layers()[1] = true;
  EXPECT_EQ(canvas.Painted(), "30,50 70,50");
}

TEST(DrawingPainter, ClosedPolylinesReturnToTheirStart) {
  const QImage image = Canvas("0 LWPOLYLINE|8 0|90 3|70 1|10 -20|20 -20|10 20|20 -20|10 20|20 20").Paint();
  EXPECT_EQ(image.pixel(50, 50), kBlack);  // the closing diagonal
  EXPECT_EQ(image.pixel(70, 45), kBlack);
  EXPECT_EQ(image.pixel(40, 45), kWhite);
}

TEST(DrawingPainter, AreasAreFilled) {
  const QImage image = Canvas("0 SOLID|8 0|62 1|10 -20|20 -20|11 20|21 -20|12 -20|22 20|13 20|23 20").Paint();
  EXPECT_EQ(image.pixel(50, 50), kRed);
  EXPECT_EQ(image.pixel(35, 65), kRed);
  EXPECT_EQ(image.pixel(20, 50), kWhite);
}

TEST(DrawingPainter, UprightLinesAndTinyThingsAreDots) {
  EXPECT_EQ(Canvas("0 LINE|8 0|10 0|20 0|11 0|21 0|31 3000").Painted(), "50,50 50,50");
  EXPECT_EQ(Canvas("0 CIRCLE|8 0|10 10|20 0|40 0.01").Painted(), "60,50 60,50");
}

TEST(DrawingPainter, PointsAreMarksOfThreePixels) {
  EXPECT_EQ(Canvas("0 POINT|8 0|10 0|20 0").Painted(), "49,49 51,51");
}

TEST(DrawingPainter, HugeZoomsCutWhatLiesOutside) {
  // At 1e5 pixels a millimetre the ends lie ten thousand million pixels away.
  EXPECT_EQ(Canvas("0 LINE|8 0|10 -100000|20 0|11 100000|21 0", 1e5).Painted(), "0,50 100,50");
  EXPECT_EQ(Canvas("0 LINE|8 0|10 -100000|20 -100000|11 100000|21 100000", 1e5).Painted(), "0,0 100,100");
  EXPECT_EQ(Canvas("0 LINE|8 0|10 -100000|20 1|11 100000|21 1", 1e5).Painted(), "");
  EXPECT_EQ(
      Canvas("0 SOLID|8 0|10 -90000|20 -90000|11 90000|21 -90000|12 -90000|22 90000|13 90000|23 90000", 1e5)
          .Painted(),
      "0,0 100,100");
  EXPECT_EQ(Canvas("0 CIRCLE|8 0|10 0|20 0|40 100000", 1e5).Painted(), "");
}

/// Smoothed edges may take a pixel more on each side.
void ExpectNear(const QRect& box, int left, int top, int right, int bottom) {
  EXPECT_NEAR(box.left(), left, 1);
  EXPECT_NEAR(box.top(), top, 1);
  EXPECT_NEAR(box.right(), right, 1);
  EXPECT_NEAR(box.bottom(), bottom, 1);
}

TEST(DrawingPainter, CapitalsAreAsHighAsTheTextSays) {
  const QRect box = Canvas("0 TEXT|8 0|10 -40|20 0|40 30|1 H").Box();
  EXPECT_NEAR(box.top(), 20, 1);
  EXPECT_NEAR(box.bottom(), 50, 1);
  EXPECT_GT(box.left(), 10);
  EXPECT_LT(box.left(), 17);  // the letter's own margin
}

TEST(DrawingPainter, TextsAreAlignedByTheirPoint) {
  const QRect right = Canvas("0 TEXT|8 0|10 0|20 0|11 40|21 0|40 10|72 2|73 3|1 DN25").Box();
  EXPECT_NEAR(right.right(), 90, 2);
  EXPECT_NEAR(right.top(), 50, 1);
  const QRect middle = Canvas("0 TEXT|8 0|10 0|20 0|11 0|21 0|40 20|72 4|1 H").Box();
  EXPECT_NEAR(middle.center().x(), 50, 1);
  EXPECT_NEAR(middle.center().y(), 50, 1);
}

TEST(DrawingPainter, TextsTurnMirrorAndFit) {
  const QRect turned = Canvas("0 TEXT|8 0|10 0|20 -40|40 20|50 90|1 HH").Box();
  EXPECT_NEAR(turned.right(), 50, 1);
  EXPECT_NEAR(turned.left(), 30, 1);
  EXPECT_GT(turned.bottom(), 84);
  const QRect mirrored = Canvas("0 TEXT|8 0|10 40|20 0|40 20|71 2|1 HH").Box();
  EXPECT_LE(mirrored.right(), 90);
  EXPECT_LT(mirrored.left(), 65);
  const QRect fitted = Canvas("0 TEXT|8 0|10 -40|20 0|11 40|21 0|40 10|72 5|1 HHH").Box();
  EXPECT_NEAR(fitted.left(), 10, 4);
  EXPECT_NEAR(fitted.right(), 90, 4);
}

TEST(DrawingPainter, HugeZoomsIntoATextEnd) {
  // A letter three million pixels high: its stem fills the window, or nothing of it is there.
  EXPECT_EQ(Canvas("0 TEXT|8 0|10 -4.2|20 -15|40 30|1 H", 1e5).Painted(), "0,0 100,100");
  EXPECT_EQ(Canvas("0 TEXT|8 0|10 20|20 20|40 30|1 H", 1e5).Painted(), "");
}

TEST(DrawingPainter, TextsTooSmallToReadAreBars) {
  const QRect bar = Canvas("0 TEXT|8 0|10 -30|20 0|40 2|1 水水水水水水水水水水").Box();
  ExpectNear(bar, 20, 49, 47, 50);
  Canvas readable("0 TEXT|8 0|10 -30|20 0|40 2|1 ___");
  readable.Look().readable = true;
  EXPECT_GT(readable.Box().top(), 49);  // letters stand below the base line, a bar above it
}

}  // namespace
}  // namespace zwt
