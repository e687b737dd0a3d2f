// Filter of input events.
#include "desktop/input_gate.h"

#include <QApplication>
#include <QEvent>

namespace zwt {

InputGate::InputGate() {
  qApp->installEventFilter(this);
}

InputGate::~InputGate() {
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
}

bool InputGate::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::Close:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    default:
      return false;
  }
}

}  // namespace zwt
