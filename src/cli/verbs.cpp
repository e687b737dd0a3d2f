// The verbs in the order in which --help shows them.
#include "cli/verbs.h"

namespace zwt {

void AddVerbs(CLI::App& program, const Streams& streams) {
  AddRunVerb(program, streams);
  AddCalcVerb(program, streams);
  AddCommandsVerb(program, streams);
  AddPanelVerb(program, streams);
  AddNewVerb(program, streams);
  AddPipesVerb(program, streams);
  AddMarkVerb(program, streams);
  AddRenderVerb(program, streams);
}

}  // namespace zwt
