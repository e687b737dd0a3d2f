// The verbs of the program. Each has a file of its own, src/cli/<verb>_verb.cpp, with one function that is
// listed here and called in verbs.cpp:
//
//   void AddPanelVerb(CLI::App& program, const Streams& streams);
//
// It adds a subcommand with its options, and a callback that does the work: what was asked for goes to
// streams.output; a failure is an exception whose what() is one line. The program catches it, prints the line
// on the error stream and ends with status 2.
#pragma once

#include <iosfwd>

#include "host/runtime/command_stack.h"

namespace CLI {
class App;
}

namespace zwt {

/// What a verb reads and writes.
struct Streams {
  std::istream& input;
  std::ostream& output;
  std::ostream& errors;
};

/// An argument that does not fit; what() says which and what was expected.
class ArgumentError : public CommandInterruption {
 public:
  using CommandInterruption::CommandInterruption;
};

/// Adds every verb. The streams must outlive the program.
void AddVerbs(CLI::App& program, const Streams& streams);

void AddRunVerb(CLI::App& program, const Streams& streams);
void AddCommandsVerb(CLI::App& program, const Streams& streams);
void AddPanelVerb(CLI::App& program, const Streams& streams);
void AddNewVerb(CLI::App& program, const Streams& streams);
void AddPipesVerb(CLI::App& program, const Streams& streams);
void AddMarkVerb(CLI::App& program, const Streams& streams);
void AddRenderVerb(CLI::App& program, const Streams& streams);
void AddCalcVerb(CLI::App& program, const Streams& streams);

}  // namespace zwt
