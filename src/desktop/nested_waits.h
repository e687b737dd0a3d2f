// What a running command is waiting for: panels, messages and prompts, one inside the other. Closing the
// program cancels them from the innermost out, each once the one inside it is gone.
#pragma once

#include <QObject>
#include <functional>
#include <utility>
#include <vector>

namespace zwt {

class NestedWaits {
 public:
  /// Something that waits for the user, for as long as it lives. cancel ends the waiting as the user's own
  /// way out does.
  class Wait {
   public:
    Wait(NestedWaits& all, std::function<void()> cancel) : all_(all) {
      all_.waits_.push_back(std::move(cancel));
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
    ~Wait() {
      all_.waits_.pop_back();
      all_.CancelNext();
    }

   private:
    NestedWaits& all_;
  };

  bool IsEmpty() const { return waits_.empty(); }

  /// Begins to cancel everything that waits. Until the command has ended, whatever it asks for is to be
  /// answered as cancelled at once.
  void CancelAll() {
    cancelling_ = true;
    CancelNext();
  }
  bool IsCancelling() const { return cancelling_; }

  /// The command has ended: nothing is cancelled any more.
  void CommandEnded() { cancelling_ = false; }

 private:
  /// Cancels the innermost wait when control is back in its own event loop.
  void CancelNext() {
    if (!cancelling_ || waits_.empty()) return;
    const std::size_t depth = waits_.size();
    const auto cancel = [this, depth] {
      if (cancelling_ && waits_.size() == depth) waits_.back()();
    };
    QMetaObject::invokeMethod(&context_, cancel, Qt::QueuedConnection);
  }

  std::vector<std::function<void()>> waits_;
  bool cancelling_ = false;
  QObject context_;
};

}  // namespace zwt
