// zwtcal: the calculations without a window.
#include <iostream>

#include "cli/program.h"

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  return zwt::RunProgram({arguments + (count > 0 ? 1 : 0), arguments + count},
                         {std::cin, std::cout, std::cerr});
}
