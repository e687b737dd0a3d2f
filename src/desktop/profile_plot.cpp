// Axes and curves.
#include "desktop/profile_plot.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSaveFile>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "desktop/qt_text.h"

namespace zwt {

namespace {

constexpr double kLeft = 64;
constexpr double kRight = 20;
constexpr double kTop = 30;
constexpr double kBottom = 30;
constexpr int kTicks = 4;
/// So many pixels stand for one in a saved picture.
constexpr int kSharpness = 2;

const std::array<QColor, 3> kInks = {QColor(0x1f, 0x77, 0xc4), QColor(0xc6, 0x4a, 0x1e),
                                     QColor(0x2e, 0x8b, 0x57)};

/// Values of one curve, on a straight or logarithmic scale.
class ValueScale {
 public:
  ValueScale(const std::vector<double>& values, bool logarithmic) : logarithmic_(logarithmic) {
    for (const double value : values) {
      if (!IsShown(value)) continue;
      lowest_ = std::min(lowest_, Place(value));
      highest_ = std::max(highest_, Place(value));
    }
    if (!logarithmic_) lowest_ = std::min(lowest_, 0.0);
    if (!(highest_ > lowest_)) highest_ = lowest_ + 1;
  }

  bool IsShown(double value) const { return std::isfinite(value) && (!logarithmic_ || value > 0); }
  double ShareOf(double value) const { return (Place(value) - lowest_) / (highest_ - lowest_); }
  double ValueAt(double share) const {
    const double place = lowest_ + share * (highest_ - lowest_);
    return logarithmic_ ? std::pow(10.0, place) : place;
  }

 private:
  double Place(double value) const { return logarithmic_ ? std::log10(value) : value; }

  bool logarithmic_;
  double lowest_ = std::numeric_limits<double>::infinity();
  double highest_ = -std::numeric_limits<double>::infinity();
};

/// One curve in its field.
class CurveField {
 public:
  CurveField(QPainter& painter, const QRectF& place, const OverlayProfile& profile, std::size_t curve)
      : painter_(painter),
        field_(place.adjusted(kLeft, kTop, -kRight, -kBottom)),
        profile_(profile),
        curve_(profile.curves[curve]),
        ink_(kInks[curve % kInks.size()]),
        scale_(curve_.values, profile.logarithmic) {}

  void Paint(const QColor& text) {
    painter_.setPen(text);
    painter_.drawText(QPointF(field_.left(), field_.top() - 10),
                      ToQt(curve_.quantity + L"(" + curve_.unit + L")"));
    if (curve_.values.empty()) return;
    Axes(text);
    Curve();
  }

 private:
  double X(std::size_t step) const {
    const auto last = static_cast<double>(std::max<std::size_t>(curve_.values.size(), 2) - 1);
    return field_.left() + field_.width() * static_cast<double>(step) / last;
  }
  double Y(double share) const { return field_.bottom() - field_.height() * share; }

  void Axes(const QColor& text) {
    QColor faint = text;
    faint.setAlphaF(0.2F);
    for (int tick = 0; tick <= kTicks; ++tick) {
      const double share = static_cast<double>(tick) / kTicks;
      painter_.setPen(faint);
      painter_.drawLine(QPointF(field_.left(), Y(share)), QPointF(field_.right(), Y(share)));
      painter_.setPen(text);
      painter_.drawText(QRectF(field_.left() - kLeft, Y(share) - 10, kLeft - 8, 20),
                        Qt::AlignRight | Qt::AlignVCenter, QString::number(scale_.ValueAt(share), 'g', 3));
    }
    StepNames(text);
  }

  /// As many names as have room, the first and the last among them.
  void StepNames(const QColor& text) {
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    double free = -std::numeric_limits<double>::infinity();
    const std::size_t last = profile_.steps.size() - 1;
    const auto widthOf = [&](std::size_t step) {
      return metrics.horizontalAdvance(ToQt(profile_.steps[step]));
    };
    const double lastLeft = X(last) - widthOf(last) / 2;
    painter_.setPen(text);
    for (std::size_t step = 0; step < profile_.steps.size(); ++step) {
      const double left = X(step) - widthOf(step) / 2;
      const bool fits = left > free && (step == last || left + widthOf(step) + 8 < lastLeft);
      if (!fits && step != last) continue;
      painter_.drawText(
          QPointF(std::min(left, field_.right() + kRight - widthOf(step)), field_.bottom() + 18),
          ToQt(profile_.steps[step]));
      free = left + widthOf(step) + 8;
    }
  }

  void Curve() {
    QPainterPath path;
    bool drawing = false;
    for (std::size_t step = 0; step < curve_.values.size(); ++step) {
      const double value = curve_.values[step];
      if (!scale_.IsShown(value)) {
        drawing = false;
        continue;
      }
      const QPointF place(X(step), Y(scale_.ShareOf(value)));
      if (drawing) {
        path.lineTo(place);
      } else {
        path.moveTo(place);
      }
      drawing = true;
    }
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(ink_, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter_.drawPath(path);
    constexpr std::size_t kFewSteps = 80;
    if (curve_.values.size() > kFewSteps) return;
    painter_.setBrush(ink_);
    for (std::size_t step = 0; step < curve_.values.size(); ++step) {
      const double value = curve_.values[step];
      if (scale_.IsShown(value)) painter_.drawEllipse(QPointF(X(step), Y(scale_.ShareOf(value))), 2.5, 2.5);
    }
  }

  QPainter& painter_;
  QRectF field_;
  const OverlayProfile& profile_;
  const OverlayCurve& curve_;
  QColor ink_;
  ValueScale scale_;
};

}  // namespace

ProfilePlot::ProfilePlot(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("profilePlot"));
  constexpr int kSmallestWidth = 320;
  constexpr int kSmallestHeight = 300;
  setMinimumSize(kSmallestWidth, kSmallestHeight);
}

void ProfilePlot::Show(const OverlayProfile& profile) {
  profile_ = profile;
  update();
}

QSize ProfilePlot::sizeHint() const {
  return {480, 420};
}

void ProfilePlot::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter, rect());
}

void ProfilePlot::Paint(QPainter& painter, const QRectF& place) const {
  painter.fillRect(place, palette().color(QPalette::Base));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(font());
  const QColor text = palette().color(QPalette::Text);
  painter.setPen(text);
  const double title = 24;
  painter.drawText(QRectF(place.left(), place.top() + 4, place.width(), title), Qt::AlignCenter,
                   ToQt(profile_.title));
  const auto fields = static_cast<double>(std::max<std::size_t>(profile_.curves.size(), 1));
  const double height = (place.height() - title) / fields;
  for (std::size_t curve = 0; curve < profile_.curves.size(); ++curve) {
    const QRectF field(place.left(), place.top() + title + height * static_cast<double>(curve), place.width(),
                       height);
    CurveField(painter, field, profile_, curve).Paint(text);
  }
}

bool ProfilePlot::SavePicture(const QString& file) {
  QImage picture(size() * kSharpness, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kSharpness);
  {
    QPainter painter(&picture);
    Paint(painter, rect());
  }
  QSaveFile out(file);
  return out.open(QIODevice::WriteOnly) && picture.save(&out, "PNG") && out.commit();
}

}  // namespace zwt
