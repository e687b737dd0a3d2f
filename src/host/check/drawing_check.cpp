#include "host/check/drawing_check.h"

#include "host/check/checked_pipes.h"

namespace zwt {

std::vector<Finding> CheckDrawing(const Drawing& drawing, const CheckSettings& settings) {
  CheckedPipes pipes(drawing);
  CheckGeometry(pipes);
  CheckSupply(pipes, settings);
  CheckDrainage(pipes);
  CheckHydrants(pipes, settings);
  return pipes.TakeFindings();
}

}  // namespace zwt
