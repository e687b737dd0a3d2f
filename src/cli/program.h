// The program without its main function, so that tests can run it inside themselves.
#pragma once

#include <string>
#include <vector>

#include "cli/verbs.h"

namespace zwt {

/// Exit status of a run that could not be played to its end, and of every other failure.
inline constexpr int kFailure = 2;

/// Runs the program with its arguments, the program's own name left out. Gives the exit status: 0, or 2 with
/// one line on the error stream. Lets no exception out.
int RunProgram(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace zwt
