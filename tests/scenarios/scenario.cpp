// Plays one scenario through the program and compares with what lies beside the script:
//
//   NAME.json            the script
//   NAME.expected.json   the exact result, or
//   NAME.error.txt       the line on standard error of a run that must fail, and
//   NAME.expected.dxf    the saved drawing, where the scenario saves one
//
// test_scenario NAME.json compares; test_scenario --regenerate NAME.json writes what the program gives now.
#include <algorithm>
#include <iostream>
#include <sstream>
#include <string>

#include "support/child_process.h"

namespace {

namespace fs = std::filesystem;
using zwt::test::ChildResult;

struct Scenario {
  fs::path script;
  fs::path Beside(const char* ending) const {
    return (script.parent_path() / script.stem()).string() + ending;
  }
};

/// Whether the scenario saves; the script names a file, which is replaced by one in a temporary folder.
bool Saves(const Scenario& scenario) {
  return zwt::test::ReadBytes(scenario.script).find("\"save\"") != std::string::npos;
}

ChildResult Play(const Scenario& scenario, const fs::path& saved) {
  std::vector<std::string> arguments = {"run", scenario.script.string()};
  if (Saves(scenario)) arguments.insert(arguments.end(), {"--save", saved.string()});
  return zwt::test::RunChild(ZWT_PROGRAM, arguments);
}

std::string LineOf(const std::string& text, std::size_t number) {
  std::istringstream lines(text);
  std::string line = "(end)";
  for (std::size_t i = 0; i < number; ++i) {
    if (!std::getline(lines, line)) return "(end)";
  }
  return line;
}

/// Whether both are the same; says where they part.
bool Compare(const fs::path& file, const std::string& actual) {
  if (!fs::exists(file)) {
    std::cerr << file.string() << " does not exist; the program gives:\n" << actual;
    return false;
  }
  const std::string expected = zwt::test::ReadBytes(file);
  if (expected == actual) return true;
  const auto parting = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first;
  const auto line = static_cast<std::size_t>(1 + std::count(expected.begin(), parting, '\n'));
  std::cerr << file.string() << ":" << line << ": expected\n  " << LineOf(expected, line) << "\nbut got\n  "
            << LineOf(actual, line) << '\n';
  return false;
}

bool CompareFailure(const Scenario& scenario, const ChildResult& result, const fs::path& saved) {
  if (result.status != 2 || !result.output.empty() || fs::exists(saved)) {
    std::cerr << "status " << result.status << ", " << result.output.size() << " bytes of output"
              << (fs::exists(saved) ? ", a drawing saved" : "")
              << "; a failing run gives 2 and nothing else\n";
    return false;
  }
  return Compare(scenario.Beside(".error.txt"), result.errors);
}

bool CompareSuccess(const Scenario& scenario, const ChildResult& result, const fs::path& saved) {
  if (result.status != 0 || !result.errors.empty()) {
    std::cerr << "status " << result.status << ": " << result.errors << '\n';
    return false;
  }
  const bool same = Compare(scenario.Beside(".expected.json"), result.output);
  return (!Saves(scenario) || Compare(scenario.Beside(".expected.dxf"), zwt::test::ReadBytes(saved))) && same;
}

bool Check(const Scenario& scenario) {
  const zwt::test::TemporaryFolder folder;
  const fs::path saved = folder.Path() / "saved.dxf";
  const ChildResult result = Play(scenario, saved);
  return fs::exists(scenario.Beside(".error.txt")) ? CompareFailure(scenario, result, saved)
                                                   : CompareSuccess(scenario, result, saved);
}

/// Writes the files anew; a scenario keeps its kind, so that an error never becomes the expected result by
/// itself.
bool Regenerate(const Scenario& scenario) {
  const zwt::test::TemporaryFolder folder;
  const fs::path saved = folder.Path() / "saved.dxf";
  const ChildResult result = Play(scenario, saved);
  const bool mustFail = fs::exists(scenario.Beside(".error.txt"));
  if (mustFail != (result.status != 0)) {
    std::cerr << "status " << result.status << ": " << result.errors << "nothing written; create "
              << scenario.Beside(".error.txt").string() << " first for a run that has to fail\n";
    return false;
  }
  if (mustFail) {
    zwt::test::WriteBytes(scenario.Beside(".error.txt"), result.errors);
    return true;
  }
  zwt::test::WriteBytes(scenario.Beside(".expected.json"), result.output);
  if (Saves(scenario)) zwt::test::WriteBytes(scenario.Beside(".expected.dxf"), zwt::test::ReadBytes(saved));
  return true;
}

int Usage() {
  std::cerr << "test_scenario [--regenerate] SCRIPT.json\n";
  return 1;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    if (count == 2) return Check({arguments[1]}) ? 0 : 1;
    if (count == 3 && std::string(arguments[1]) == "--regenerate") return Regenerate({arguments[2]}) ? 0 : 1;
    return Usage();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
