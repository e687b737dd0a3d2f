// Keeps the user's keys and clicks from every window while it lives. What was queued meanwhile is thrown away
// when it goes, so that a click that fell into a long calculation presses nothing afterwards.
#pragma once

#include <QObject>

namespace zwt {

class InputGate : public QObject {
 public:
  InputGate();
  InputGate(const InputGate&) = delete;
  InputGate& operator=(const InputGate&) = delete;
  ~InputGate() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace zwt
