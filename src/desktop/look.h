// The looks that the program adds to the toolkit's: fonts, results, refused fields. One place for all of it.
#pragma once

#include <QIcon>
#include <QWidget>

class QApplication;

namespace zwt {

/// Marks of widgets that the style sheet knows.
enum class Look { kResult, kRefused };

/// Puts a mark on a widget or takes it away.
void SetLook(QWidget& widget, Look look, bool on);
bool HasLook(const QWidget& widget, Look look);

/// The sign inside a field whose content was refused.
QIcon RefusedIcon();

/// Gives the application its style, its font and its texts of standard buttons. The font is Noto Sans CJK SC;
/// where it is missing the next of a list of Chinese fonts serves.
void DressApplication(QApplication& application);

}  // namespace zwt
