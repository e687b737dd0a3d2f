// Calling the program inside a test, as its users call it.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/program.h"

namespace zwt::test {

struct Outcome {
  int status;
  std::string output;
  std::string errors;
};

inline Outcome Call(const std::vector<std::string>& arguments, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunProgram(arguments, {in, out, err});
  return {status, out.str(), err.str()};
}

/// The error line of a call that has to fail.
inline std::string Failure(const std::vector<std::string>& arguments, const std::string& input = "") {
  const Outcome outcome = Call(arguments, input);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  return outcome.errors;
}

}  // namespace zwt::test
