// Work that many small changes ask for and that is to be done once, when control is back in the event loop.
#pragma once

#include <QObject>
#include <functional>
#include <utility>

namespace zwt {

class LaterOnce {
 public:
  explicit LaterOnce(std::function<void()> work) : work_(std::move(work)) {}
  LaterOnce(const LaterOnce&) = delete;
  LaterOnce& operator=(const LaterOnce&) = delete;

  void Ask() {
    if (std::exchange(asked_, true)) return;
    QMetaObject::invokeMethod(
        &context_, [this] { DoNow(); }, Qt::QueuedConnection);
  }

  /// Does the work now if it was asked for.
  void DoNow() {
    if (std::exchange(asked_, false)) work_();
  }

 private:
  std::function<void()> work_;
  bool asked_ = false;
  QObject context_;
};

}  // namespace zwt
