// Asking for pipes, and letting the user look at the drawing: what commands and panels that work on pipes
// share.
#pragma once

#include "host/drawing/object_id.h"

namespace zwt {

/// Which pipes a command asks for. Alternatives are separated by commas; a null role takes pipes of any role.
struct PipeQuestion {
  const wchar_t* prompt;
  const wchar_t* systems;
  const wchar_t* role = nullptr;
  bool single = false;  // exactly one pick
};

/// Asks the user for ordinary pipes; the picked ones in picking order. False, and none, if the user cancels.
bool SelectPipes(const PipeQuestion& question, ZcDbObjectIdList& picked);

/// Lets the user pan and zoom until the point prompt is cancelled or gets no input; picked points are
/// ignored.
void LetUserLookAround();

}  // namespace zwt
