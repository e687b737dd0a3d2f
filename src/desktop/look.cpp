// Fonts and style sheet.
#include "desktop/look.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleFactory>

namespace zwt {

namespace {

constexpr const char* kStyleSheet = R"(
QLineEdit[result="true"] {
  background: transparent; border: none; border-bottom: 1px solid palette(mid); padding: 2px 1px 1px 1px;
}
QPlainTextEdit[result="true"] { background: palette(window); border: 1px solid palette(mid); }
QLineEdit[refused="true"] {
  background: #fdecea; color: #1a1a1a; border: 1px solid #c62828; border-radius: 2px; padding: 2px 1px 1px 1px;
}
QPlainTextEdit[refused="true"] { border: 1px solid #c62828; }
)";

const char* PropertyOf(Look look) {
  return look == Look::kResult ? "result" : "refused";
}

QFont ApplicationFont() {
  constexpr double kPoints = 9.5;
  QFont font;
  font.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                    QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Microsoft YaHei"),
                    QStringLiteral("PingFang SC"), QStringLiteral("SimSun")});
  font.setPointSizeF(kPoints);
  return font;
}

}  // namespace

void SetLook(QWidget& widget, Look look, bool on) {
  if (HasLook(widget, look) == on) return;
  widget.setProperty(PropertyOf(look), on);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

bool HasLook(const QWidget& widget, Look look) {
  return widget.property(PropertyOf(look)).toBool();
}

QIcon RefusedIcon() {
  constexpr int kSize = 64;
  QPixmap pixmap(kSize, kSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xc6, 0x28, 0x28));
  painter.drawEllipse(4, 4, 56, 56);
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(QRectF(28, 15, 8, 23), 4, 4);
  painter.drawEllipse(QRectF(27.5, 42, 9, 9));
  return QIcon(pixmap);
}

void DressApplication(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setFont(ApplicationFont());
  application.setStyleSheet(QString::fromLatin1(kStyleSheet));
}

}  // namespace zwt
