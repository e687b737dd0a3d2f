// Colours, widths, labels and the legend.
#include "desktop/drawing_overlay.h"

#include <QLineF>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

constexpr double kThin = 2.5;       // pixels
constexpr double kThickest = 10.0;  // of the largest flow
constexpr double kLit = 5.0;        // around what is lit up
constexpr double kArrow = 7.0;
constexpr double kPointRadius = 3.5;
constexpr double kMarkRadius = 6.5;
/// Shorter sections leave their label out, so that labels don't cover each other.
constexpr double kLabelledLength = 26;
constexpr double kLegendMargin = 12;
constexpr int kLegendBar = 140;

const QColor kLight(0xff, 0x40, 0xd0);
const QColor kMark(0xe5, 0x39, 0x35);
const QColor kFlow(0x29, 0x9d, 0xf0);
const QColor kNoValue(0x8a, 0x94, 0x9e);

bool IsDark(const QColor& ground) {
  return ground.lightnessF() < 0.5;
}

QColor InkOn(const QColor& ground) {
  return IsDark(ground) ? QColor(0xf2, 0xf4, 0xf6) : QColor(0x1a, 0x1f, 0x24);
}

struct Range {
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -std::numeric_limits<double>::infinity();

  bool IsEmpty() const { return lowest > highest; }
  double ShareOf(double value) const {
    return highest > lowest ? std::clamp((value - lowest) / (highest - lowest), 0.0, 1.0) : 0.5;
  }
};

/// Range of the finite values.
Range RangeOf(const Overlay& overlay) {
  Range range;
  for (const OverlaySection& section : overlay.sections) {
    if (!section.value || !std::isfinite(*section.value)) continue;
    range.lowest = std::min(range.lowest, *section.value);
    range.highest = std::max(range.highest, *section.value);
  }
  return range;
}

QPointF Flat(const AcGePoint3d& point) {
  return {point.x, point.y};
}

QPolygonF OnScreen(const std::vector<AcGePoint3d>& course, const ViewTransform& view) {
  QPolygonF line;
  for (const AcGePoint3d& point : course) line.append(view.ToPixel(Flat(point)));
  return line;
}

double LengthOf(const QPolygonF& line) {
  double length = 0;
  for (qsizetype i = 1; i < line.size(); ++i) length += QLineF(line[i - 1], line[i]).length();
  return length;
}

/// The piece of a line in which its middle lies.
QLineF MiddlePiece(const QPolygonF& line) {
  double left = LengthOf(line) / 2;
  for (qsizetype i = 1; i < line.size(); ++i) {
    const QLineF piece(line[i - 1], line[i]);
    if (left <= piece.length())
      return {piece.p1(), piece.length() > 0 ? piece.pointAt(left / piece.length()) : piece.p2()};
    left -= piece.length();
  }
  return {line.front(), line.back()};
}

void PaintArrow(QPainter& painter, const QLineF& piece, const QColor& colour) {
  if (piece.length() <= 0) return;
  const double angle = std::atan2(piece.dy(), piece.dx());
  const QPointF along(std::cos(angle), std::sin(angle));
  const QPointF across(-along.y(), along.x());
  const QPointF tip = piece.p2() + along * kArrow;
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(QPolygonF(
      {tip, tip - along * (2 * kArrow) + across * kArrow, tip - along * (2 * kArrow) - across * kArrow}));
}

/// A text that reads on lines: with a rim in the colour of the ground.
void PaintText(QPainter& painter, const QPointF& place, const CString& text, const QColor& ground) {
  QPainterPath path;
  path.addText(place, painter.font(), ToQt(text));
  painter.setPen(QPen(ground, 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  painter.setPen(Qt::NoPen);
  painter.setBrush(InkOn(ground));
  painter.drawPath(path);
}

/// Beside a section: to the right of an upright one, above a level one.
QPointF BesidePiece(const QLineF& piece, double width) {
  const bool upright = std::fabs(piece.dy()) > std::fabs(piece.dx());
  return piece.p2() + (upright ? QPointF(6 + width / 2, 4) : QPointF(-12, -5 - width / 2));
}

/// Paints one overlay.
class OverlayPainting {
 public:
  OverlayPainting(QPainter& painter, const ViewTransform& view, const QColor& ground, const Overlay& overlay)
      : painter_(painter), view_(view), ground_(ground), overlay_(overlay), range_(RangeOf(overlay)) {}

  void Sections(const TableRow& lit) {
    for (const OverlaySection& section : overlay_.sections) {
      if (section.course.size() < 2) continue;
      const QPolygonF line = OnScreen(section.course, view_);
      const bool isLit = lit == TableRow{overlay_.sectionTable, section.row};
      if (isLit) Line(line, kLight, WidthOf(section) + 2 * kLit);
      Line(line, ColourOf(section), WidthOf(section));
      if (overlay_.look == OverlayLook::kWidth && section.value)
        PaintArrow(painter_, MiddlePiece(line), ColourOf(section));
    }
  }

  void Points(const TableRow& lit) {
    for (const OverlayPoint& point : overlay_.points) {
      const QPointF pixel = view_.ToPixel(Flat(point.place));
      const bool isLit = lit == TableRow{overlay_.pointTable, point.row};
      painter_.setPen(QPen(isLit ? kLight : ground_, isLit ? kLit : 1.0));
      painter_.setBrush(point.marked ? kMark : InkOn(ground_));
      const double radius = point.marked ? kMarkRadius : kPointRadius;
      painter_.drawEllipse(pixel, radius, radius);
    }
  }

  /// What is lit up or marked is labelled first; a label that would cover another one is left out.
  void Labels(const TableRow& lit) {
    for (const bool first : {true, false}) {
      for (const OverlayPoint& point : overlay_.points) {
        const bool isFirst = point.marked || lit == TableRow{overlay_.pointTable, point.row};
        if (isFirst == first) PointLabel(point);
      }
      for (const OverlaySection& section : overlay_.sections) {
        const bool isFirst = lit == TableRow{overlay_.sectionTable, section.row};
        if (isFirst == first) SectionLabel(section, isFirst);
      }
    }
  }

  void Legend() {
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const double line = metrics.height() + 4;
    const QStringList texts = LegendTexts();
    double width = range_.IsEmpty() ? 0 : kLegendBar + 60;
    for (const QString& text : texts) width = std::max(width, metrics.horizontalAdvance(text) + 24);
    const double rows = static_cast<double>(texts.size()) + (range_.IsEmpty() ? 0 : 2) + Marks();
    const QRectF box(kLegendMargin, view_.Size().height() - kLegendMargin - rows * line - 12, width + 16,
                     rows * line + 12);
    QColor paper = ground_;
    paper.setAlphaF(0.85F);
    painter_.setPen(QPen(InkOn(ground_), 0.6));
    painter_.setBrush(paper);
    painter_.drawRoundedRect(box, 4, 4);
    QPointF place(box.left() + 8, box.top() + 6 + metrics.ascent());
    for (const QString& text : texts) {
      Write(place, text);
      place.ry() += line;
    }
    if (!range_.IsEmpty()) place = Scale(place, line);
    if (Marks() > 0) Mark(place, metrics);
  }

 private:
  /// To the left of the point and below it: its number in the drawing stands to the right, mains lie level.
  void PointLabel(const OverlayPoint& point) {
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const QPointF aside(-8 - metrics.horizontalAdvance(ToQt(point.label)), 3 + metrics.ascent());
    Label(view_.ToPixel(Flat(point.place)) + aside, point.label);
  }

  void SectionLabel(const OverlaySection& section, bool isLit) {
    if (section.course.size() < 2) return;
    const QPolygonF line = OnScreen(section.course, view_);
    if (!isLit && LengthOf(line) < kLabelledLength) return;
    Label(BesidePiece(MiddlePiece(line), WidthOf(section)), section.label);
  }

  void Label(const QPointF& place, const CString& text) {
    if (text.empty()) return;
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const QRectF box = metrics.boundingRect(ToQt(text)).translated(place);
    if (!box.intersects(QRectF(QPointF(0, 0), view_.Size()))) return;
    const bool covers = std::any_of(labels_.begin(), labels_.end(),
                                    [&box](const QRectF& other) { return other.intersects(box); });
    if (covers) return;
    labels_.push_back(box);
    PaintText(painter_, place, text, ground_);
  }

  void Line(const QPolygonF& line, const QColor& colour, double width) {
    painter_.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPolyline(line);
  }

  QColor ColourOf(const OverlaySection& section) const {
    if (!section.value || !std::isfinite(*section.value)) return kNoValue;
    return overlay_.look == OverlayLook::kWidth ? kFlow : ColourOfShare(range_.ShareOf(*section.value));
  }

  double WidthOf(const OverlaySection& section) const {
    if (overlay_.look != OverlayLook::kWidth || !section.value || range_.IsEmpty() || range_.highest <= 0)
      return kThin;
    const double share = std::isfinite(*section.value) ? std::fabs(*section.value) / range_.highest : 0;
    return kThin + (kThickest - kThin) * std::clamp(share, 0.0, 1.0);
  }

  double Marks() const { return overlay_.markMeaning.empty() ? 0 : 1; }

  void Write(const QPointF& place, const QString& text) {
    painter_.setPen(InkOn(ground_));
    painter_.drawText(place, text);
  }

  QStringList LegendTexts() const {
    QStringList texts = {ToQt(overlay_.title)};
    if (!overlay_.labelMeaning.empty())
      texts.append(QStringLiteral("管段：%1").arg(ToQt(overlay_.labelMeaning)));
    if (!overlay_.pointLabelMeaning.empty())
      texts.append(QStringLiteral("节点：%1").arg(ToQt(overlay_.pointLabelMeaning)));
    for (const CString& note : overlay_.notes) texts.append(ToQt(note));
    return texts;
  }

  /// The scale of the values with its ends; gives the place below it.
  QPointF Scale(const QPointF& place, double line) {
    Write(place, ToQt(overlay_.quantity + L"(" + overlay_.unit + L")"));
    const QPointF bar = place + QPointF(0, line);
    for (int pixel = 0; pixel < kLegendBar; ++pixel) {
      const double share = static_cast<double>(pixel) / (kLegendBar - 1);
      const bool wide = overlay_.look == OverlayLook::kWidth;
      const double width = wide ? kThin + (kThickest - kThin) * share : 9;
      painter_.fillRect(QRectF(bar.x() + 30 + pixel, bar.y() - 4 - width / 2, 1.5, width),
                        wide ? kFlow : ColourOfShare(share));
    }
    const double lowest = overlay_.look == OverlayLook::kWidth ? 0 : range_.lowest;
    Write(bar, QString::number(lowest, 'f', 1));
    Write(bar + QPointF(30 + kLegendBar + 6, 0), QString::number(range_.highest, 'f', 1));
    return bar + QPointF(0, line);
  }

  void Mark(const QPointF& place, const QFontMetricsF& metrics) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(kMark);
    painter_.drawEllipse(place + QPointF(kMarkRadius, -metrics.ascent() / 2 + 2), kMarkRadius, kMarkRadius);
    Write(place + QPointF(2 * kMarkRadius + 8, 0), ToQt(overlay_.markMeaning));
  }

  QPainter& painter_;
  const ViewTransform& view_;
  QColor ground_;
  const Overlay& overlay_;
  Range range_;
  std::vector<QRectF> labels_;  // where labels stand
};

double DistanceTo(const std::vector<AcGePoint3d>& course, const QPointF& place) {
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < course.size(); ++i) {
    const QPointF start = Flat(course[i - 1]);
    const QPointF way = Flat(course[i]) - start;
    const double squared = QPointF::dotProduct(way, way);
    const double share =
        squared > 0 ? std::clamp(QPointF::dotProduct(place - start, way) / squared, 0.0, 1.0) : 0.0;
    nearest = std::min(nearest, QLineF(place, start + way * share).length());
  }
  return nearest;
}

void Enlarge(std::optional<QRectF>& box, const AcGePoint3d& point) {
  const QRectF place(Flat(point), QSizeF(0, 0));
  if (!box) {
    box = place;
    return;
  }
  box->setLeft(std::min(box->left(), place.left()));
  box->setRight(std::max(box->right(), place.left()));
  box->setTop(std::min(box->top(), place.top()));
  box->setBottom(std::max(box->bottom(), place.top()));
}

}  // namespace

QColor ColourOfShare(double share) {
  // Blue, green, amber, red: told apart also by their lightness.
  constexpr std::array<std::array<double, 3>, 4> kStops = {
      {{0.16, 0.50, 0.90}, {0.15, 0.68, 0.38}, {0.95, 0.70, 0.10}, {0.88, 0.22, 0.16}}};
  const double place = std::clamp(share, 0.0, 1.0) * (kStops.size() - 1);
  const auto stop = std::min(static_cast<std::size_t>(place), kStops.size() - 2);
  const double rest = place - static_cast<double>(stop);
  const auto mix = [&](std::size_t part) {
    return static_cast<float>(kStops[stop][part] * (1 - rest) + kStops[stop + 1][part] * rest);
  };
  return QColor::fromRgbF(mix(0), mix(1), mix(2));
}

DrawingOverlay::DrawingOverlay() : before_(SetOverlayWatcher(this)) {}

DrawingOverlay::~DrawingOverlay() {
  ClearOverlay();
  SetOverlayWatcher(before_);
}

void DrawingOverlay::OnOverlayChanged() {
  if (CurrentOverlay() == nullptr) lit_ = {};
  if (onChanged) onChanged();
}

void DrawingOverlay::LightUp(const TableRow& row) {
  lit_ = row;
  if (onChanged) onChanged();
}

std::optional<QRectF> DrawingOverlay::LitPlace() const {
  std::optional<QRectF> box;
  const Overlay* overlay = CurrentOverlay();
  if (overlay == nullptr) return box;
  for (const OverlaySection& section : overlay->sections) {
    if (lit_ != TableRow{overlay->sectionTable, section.row}) continue;
    for (const AcGePoint3d& point : section.course) Enlarge(box, point);
  }
  for (const OverlayPoint& point : overlay->points) {
    if (lit_ == TableRow{overlay->pointTable, point.row}) Enlarge(box, point.place);
  }
  return box;
}

std::optional<TableRow> DrawingOverlay::RowAt(const QPointF& place, double reach) const {
  const Overlay* overlay = CurrentOverlay();
  if (overlay == nullptr) return std::nullopt;
  std::optional<TableRow> found;
  double nearest = reach;
  // A point wins over the sections that end in it.
  for (const OverlayPoint& point : overlay->points) {
    const double distance = QLineF(place, Flat(point.place)).length();
    if (distance > nearest) continue;
    nearest = distance;
    found = TableRow{overlay->pointTable, point.row};
  }
  if (found) return found;
  for (const OverlaySection& section : overlay->sections) {
    const double distance = DistanceTo(section.course, place);
    if (section.row < 0 || distance > nearest || (found && distance >= nearest)) continue;
    nearest = distance;
    found = TableRow{overlay->sectionTable, section.row};
  }
  return found;
}

void DrawingOverlay::Paint(QPainter& painter, const ViewTransform& view, const QColor& ground) const {
  const Overlay* overlay = CurrentOverlay();
  if (overlay == nullptr) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  OverlayPainting painting(painter, view, ground, *overlay);
  painting.Sections(lit_);
  painting.Points(lit_);
  painting.Labels(lit_);
  painting.Legend();
  painter.restore();
}

}  // namespace zwt
