// Icons from drawings.
#include "desktop/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace zwt {

namespace {

class DrawingIcon : public QIconEngine {
 public:
  DrawingIcon(const char* drawing, QColor colour) : drawing_(drawing), colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const QColor ink = mode == QIcon::Disabled ? palette.color(QPalette::Disabled, QPalette::Text) : colour_;
    QSvgRenderer renderer(Picture(ink, palette.color(QPalette::Window)));
    renderer.render(painter, QRectF(rect));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new DrawingIcon(drawing_, colour_); }

 private:
  QByteArray Picture(const QColor& ink, const QColor& paper) const {
    const QString look = QStringLiteral(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><g fill='none' stroke='%1' "
        "stroke-width='1.6' stroke-linecap='round' stroke-linejoin='round'>%2</g></svg>");
    QString body = QString::fromUtf8(drawing_);
    body.replace(QStringLiteral("class=\"full\""), QStringLiteral("stroke='none' fill='%1'").arg(ink.name()));
    body.replace(QStringLiteral("class=\"paper\""), QStringLiteral("fill='%1'").arg(paper.name()));
    return look.arg(ink.name(), body).toUtf8();
  }

  const char* drawing_;
  QColor colour_;
};

}  // namespace

QIcon MakeIcon(const char* drawing, QColor colour) {
  return QIcon(new DrawingIcon(drawing, colour));
}

QIcon ProgramIcon() {
  static constexpr const char* kDrop = R"(
<path class="full" d="M12 1.500c5 6.500 7.500 9.500 7.500 13.300a7.500 7.500 0 0 1-15 0C4.5 11 7 8 12 1.5z"/>
<path stroke="white" d="M9 18.5V11h6M9 15h4"/>)";
  return MakeIcon(kDrop, QColor(0x15, 0x65, 0xc0));
}

}  // namespace zwt
