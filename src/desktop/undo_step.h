// All changes of the working drawing while one of these lives are one undo step.
#pragma once

#include "host/drawing/drawing.h"

namespace zwt {

class UndoStep {
 public:
  UndoStep() : drawing_(WorkingDrawing()) { drawing_.BeginStep(); }
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;
  ~UndoStep() { drawing_.EndStep(); }

 private:
  Drawing& drawing_;
};

}  // namespace zwt
