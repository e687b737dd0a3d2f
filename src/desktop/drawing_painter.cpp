#include "desktop/drawing_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <optional>

#include "desktop/qt_text.h"
#include "host/drawing/display_colors.h"

namespace zwt {

namespace {

/// Lines reach as far as this beyond the edges, pixels: thick ones must not end within the picture.
constexpr double kBeyond = 32;
/// Corners nearer to each other are one, pixels.
constexpr double kSameCorner = 0.35;
/// Lines wider than this have round ends, pixels.
constexpr double kRoundFrom = 1.5;
/// Something smaller is a dot, pixels.
constexpr double kDot = 0.7;
/// A point entity, in widths of lines.
constexpr double kMarkWidth = 3;
/// Texts lower than this cannot be read: a bar stands for them, pixels.
constexpr double kLowestText = 2.5;
constexpr int kBarOpacity = 110;
/// Texts are set at one size, pixels, and scaled: one set of glyphs serves all of a drawing.
constexpr int kFontSize = 64;

/// Lines of one colour, drawn in one go.
class LineBatch {
 public:
  LineBatch(QPainter& painter, const PictureLook& look) : painter_(painter), look_(look) {}
  LineBatch(const LineBatch&) = delete;
  LineBatch& operator=(const LineBatch&) = delete;
  ~LineBatch() { Flush(); }

  void SetColor(std::int32_t color) {
    if (color == color_ && isSet_) return;
    Flush();
    color_ = color;
    isSet_ = true;
  }

  void AddLine(const QPointF& from, const QPointF& to) {
    lines_.append(QLineF(from, to));
    if (lines_.size() >= kMost) Flush();
  }
  void AddDot(const QPointF& place) {
    dots_.append(place);
    if (dots_.size() >= kMost) Flush();
  }

 private:
  static constexpr qsizetype kMost = 4096;

  void Flush() {
    if (lines_.isEmpty() && dots_.isEmpty()) return;
    const bool onLight = look_.ground.lightnessF() > 0.5;
    QPen pen(QColor::fromRgb(static_cast<QRgb>(ColorOnGround(color_, onLight))), look_.lineWidth);
    // Round ends are for lines so wide that they are seen: they take several times as long.
    pen.setCapStyle(look_.lineWidth > kRoundFrom ? Qt::RoundCap : Qt::SquareCap);
    painter_.setPen(pen);
    if (!lines_.isEmpty()) painter_.drawLines(lines_);
    if (!dots_.isEmpty()) painter_.drawPoints(dots_.constData(), static_cast<int>(dots_.size()));
    lines_.clear();
    dots_.clear();
  }

  QPainter& painter_;
  const PictureLook& look_;
  QList<QLineF> lines_;
  QList<QPointF> dots_;
  std::int32_t color_ = 0;
  bool isSet_ = false;
};

/// Cuts a line off at a rectangle; false where nothing is left. Coordinates far outside would be beyond what
/// painters count with.
bool CutLine(const QRectF& area, QPointF& from, QPointF& to) {
  const QPointF way = to - from;
  double begin = 0;
  double end = 1;
  const auto cut = [&](double step, double room) {  // keeps the part where share * step <= room
    if (step == 0) return room >= 0;
    const double share = room / step;
    if (step > 0) {
      end = std::min(end, share);
    } else {
      begin = std::max(begin, share);
    }
    return begin <= end;
  };
  const bool isLeft = cut(-way.x(), from.x() - area.left()) && cut(way.x(), area.right() - from.x()) &&
                      cut(-way.y(), from.y() - area.top()) && cut(way.y(), area.bottom() - from.y());
  if (!isLeft) return false;
  to = from + way * end;
  from += way * begin;
  return true;
}

/// Cuts a polygon off at the four edges of a rectangle.
QPolygonF CutPolygon(QPolygonF polygon, const QRectF& area) {
  const auto cutAt = [&polygon](auto inside) {  // inside: how far a corner is on the right side
    QPolygonF cut;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
      const QPointF& from = polygon[i];
      const QPointF& to = polygon[(i + 1) % polygon.size()];
      const double a = inside(from);
      const double b = inside(to);
      if (a >= 0) cut.append(from);
      if ((a >= 0) != (b >= 0)) cut.append(from + (to - from) * (a / (a - b)));
    }
    polygon = cut;
  };
  cutAt([&area](const QPointF& p) { return p.x() - area.left(); });
  cutAt([&area](const QPointF& p) { return area.right() - p.x(); });
  cutAt([&area](const QPointF& p) { return p.y() - area.top(); });
  cutAt([&area](const QPointF& p) { return area.bottom() - p.y(); });
  return polygon;
}

class DrawingPainter {
 public:
  DrawingPainter(QPainter& painter, const DisplayList& list, const std::vector<bool>& isShown,
                 const ViewTransform& view, const PictureLook& look)
      : painter_(painter), list_(list), isShown_(isShown), view_(view), look_(look) {
    const QRectF seen = view.Shown();
    const double beyond = view.LengthOf(kBeyond);
    seen_.Add(PlanePoint{seen.left() - beyond, seen.top() - beyond});
    seen_.Add(PlanePoint{seen.right() + beyond, seen.bottom() + beyond});
    area_ = QRectF(QPointF(0, 0), view.Size()).adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
  }

  void Paint() {
    painter_.setRenderHint(QPainter::Antialiasing, look_.smooth);
    painter_.setRenderHint(QPainter::TextAntialiasing, true);
    painter_.setBrush(Qt::NoBrush);
    for (const DisplayPath& path : list_.areas) PaintArea(path);
    painter_.setBrush(Qt::NoBrush);
    {
      LineBatch batch(painter_, look_);
      for (const DisplayPath& path : list_.strokes) PaintStroke(path, batch);
    }
    PaintMarks();
    PaintTexts();
  }

 private:
  bool IsShown(const DisplayItem& item) const {
    const auto layer = static_cast<std::size_t>(item.layer);
    return layer >= isShown_.size() || isShown_[layer];
  }
  QPointF Pixel(const PlanePoint& point) const { return view_.ToPixel(point.x, point.y); }
  QColor ColorOf(std::int32_t color) const {
    return QColor::fromRgb(static_cast<QRgb>(ColorOnGround(color, look_.ground.lightnessF() > 0.5)));
  }

  void PaintStroke(const DisplayPath& path, LineBatch& batch) {
    if (!IsShown(path)) return;
    const std::span<const PlanePoint> points = list_.PointsOf(path);
    const PlaneBox box = BoxOf(points);
    if (!box.Touches(seen_)) return;
    batch.SetColor(path.color);
    QPointF last = Pixel(points[0]);
    if (std::max(box.Width(), box.Height()) * view_.Scale() < kDot) {
      batch.AddDot(last);
      return;
    }
    for (std::size_t i = 1; i < points.size(); ++i) {
      const QPointF next = Pixel(points[i]);
      const bool isEnd = i + 1 == points.size() && !path.closed;
      if (!isEnd && (next - last).manhattanLength() < kSameCorner) continue;
      AddLine(batch, last, next);
      last = next;
    }
    if (path.closed) AddLine(batch, last, Pixel(points[0]));
  }

  void AddLine(LineBatch& batch, QPointF from, QPointF to) const {
    if (CutLine(area_, from, to)) batch.AddLine(from, to);
  }

  void PaintArea(const DisplayPath& path) {
    if (!IsShown(path)) return;
    const std::span<const PlanePoint> points = list_.PointsOf(path);
    if (!BoxOf(points).Touches(seen_)) return;
    QPolygonF polygon;
    for (const PlanePoint& point : points) polygon.append(Pixel(point));
    // A thin line around it: what is narrower than a pixel is seen all the same.
    const QColor color = ColorOf(path.color);
    painter_.setPen(QPen(color, look_.lineWidth / 2));
    painter_.setBrush(color);
    painter_.drawPolygon(CutPolygon(polygon, area_));
  }

  void PaintMarks() {
    for (const DisplayMark& mark : list_.marks) {
      const QPointF place = Pixel(mark.position);
      if (!IsShown(mark) || !area_.contains(place)) continue;
      QPen pen(ColorOf(mark.color), look_.lineWidth * kMarkWidth);
      pen.setCapStyle(Qt::RoundCap);
      painter_.setPen(pen);
      painter_.drawPoint(place);
    }
  }

  void PaintTexts() {
    const QTransform before = painter_.transform();
    std::optional<QFontMetricsF> metrics;
    for (const DisplayText& text : list_.texts) {
      if (!IsShown(text) || !BoxOf(text).Touches(seen_)) continue;
      if (!metrics) {
        painter_.setFont(TextFont());
        metrics.emplace(TextFont(), painter_.device());
      }
      const double height = text.height * view_.Scale();
      if (height < kLowestText && !look_.readable) {
        PaintBar(text);
      } else {
        PaintText(text, height, *metrics, before);
        painter_.setTransform(before);
      }
    }
  }

  static QFont TextFont() {
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                      QStringLiteral("Microsoft YaHei"), QStringLiteral("PingFang SC"),
                      QStringLiteral("SimHei"), QStringLiteral("SimSun")});
    font.setPixelSize(kFontSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
  }

  /// Stands for a text that is too small to be read.
  void PaintBar(const DisplayText& text) {
    const PlaneBox box = BoxOf(text);
    const QPointF middle = Pixel({(box.low.x + box.high.x) / 2, (box.low.y + box.high.y) / 2});
    const double half =
        EstimatedWidth(text.text) * text.height * std::abs(text.widthFactor) * view_.Scale() / 2;
    QColor color = ColorOf(text.color);
    color.setAlpha(kBarOpacity);
    QPen pen(color, std::max(look_.lineWidth / 2, text.height * view_.Scale()));
    pen.setCapStyle(Qt::FlatCap);
    painter_.setPen(pen);
    const QPointF along(std::cos(text.angle) * half, -std::sin(text.angle) * half);
    QPointF from = middle - along;
    QPointF to = middle + along;
    if (CutLine(area_, from, to)) painter_.drawLine(from, to);
  }

  void PaintText(const DisplayText& text, double height, const QFontMetricsF& metrics,
                 const QTransform& before) {
    const QString shown = ToQt(text.text);
    const double capital = metrics.capHeight();
    const double scale = height / capital;
    const bool needsWidth = text.side != TextSide::Left || text.fitWidth > 0;
    const double width = needsWidth ? metrics.horizontalAdvance(shown) : 0;
    double across = scale * text.widthFactor;
    if (text.fitWidth > 0 && width > 0) {
      across = std::copysign(text.fitWidth * view_.Scale() / width, text.widthFactor);
    }
    const QPointF place = Pixel(text.position);
    QTransform turned = QTransform::fromTranslate(place.x(), place.y());
    turned.rotateRadians(-text.angle);
    turned = QTransform(1, 0, -std::tan(text.slant), 1, 0, 0) * turned;
    turned = QTransform::fromScale(across, scale) * turned;
    painter_.setTransform(turned * before);
    painter_.setPen(ColorOf(text.color));
    painter_.drawText(
        QPointF(-width * static_cast<double>(text.side) / 2, BaselineBelow(text.level) * capital), shown);
  }

  QPainter& painter_;
  const DisplayList& list_;
  const std::vector<bool>& isShown_;
  const ViewTransform& view_;
  const PictureLook& look_;
  PlaneBox seen_;  // of the drawing
  QRectF area_;    // of the device
};

}  // namespace

void PaintDrawing(QPainter& painter, const DisplayList& list, const std::vector<bool>& isShown,
                  const ViewTransform& view, const PictureLook& look) {
  painter.save();
  DrawingPainter(painter, list, isShown, view, look).Paint();
  painter.restore();
}

std::vector<bool> ShownLayers(const DisplayList& list) {
  std::vector<bool> shown;
  shown.reserve(list.layers.size());
  for (const DisplayLayer& layer : list.layers) shown.push_back(layer.shown);
  return shown;
}

QRectF RectOf(const PlaneBox& box) {
  return {box.low.x, box.low.y, box.Width(), box.Height()};
}

}  // namespace zwt
