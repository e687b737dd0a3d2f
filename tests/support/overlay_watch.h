// Somebody who watches what panels put over the drawing.
#pragma once

#include "host/overlay/overlay.h"

namespace zwt::test {

class OverlayWatch : public OverlayWatcher {
 public:
  OverlayWatch() : before_(SetOverlayWatcher(this)) {}
  OverlayWatch(const OverlayWatch&) = delete;
  OverlayWatch& operator=(const OverlayWatch&) = delete;
  ~OverlayWatch() override {
    ClearOverlay();
    SetOverlayWatcher(before_);
  }

  void OnOverlayChanged() override { ++changes; }

  int changes = 0;

 private:
  OverlayWatcher* before_;
};

}  // namespace zwt::test
