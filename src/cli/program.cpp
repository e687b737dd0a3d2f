// Arguments in, exit status out, and the one place where errors become a line of text.
#include "cli/program.h"

#include <algorithm>
#include <exception>
#include <ostream>

#include <CLI/CLI.hpp>

#include "cli/code_edition.h"

namespace zwt {

namespace {

/// A message as one line: line feeds and other control characters become blanks.
std::string OnOneLine(std::string message) {
  std::replace_if(
      message.begin(), message.end(),
      [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
  return message;
}

int Fail(const Streams& streams, const std::string& message) {
  streams.errors << OnOneLine(message) << '\n';
  return kFailure;
}

/// Parses, which runs the verb's callback.
int ParseAndRun(CLI::App& program, const std::vector<std::string>& arguments, const Streams& streams) {
  if (!arguments.empty() && !arguments[0].starts_with('-') &&
      program.get_subcommands([&](const CLI::App* verb) { return verb->get_name() == arguments[0]; })
          .empty()) {
    return Fail(streams, "no verb \"" + arguments[0] + "\"; zwtcal --help lists them");
  }
  try {
    program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));  // last one first
  } catch (const CLI::Success& asked) {
    return program.exit(asked, streams.output, streams.errors);  // help and version
  } catch (const CLI::ParseError& error) {
    return Fail(streams, error.what());
  }
  return 0;
}

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, const Streams& streams) {
  try {
    CLI::App program("Calculates building water supply, drainage and fire protection without a window.",
                     "zwtcal");
    program.require_subcommand(1);
    AddVerbs(program, streams);
    program.set_version_flag("--version", VersionText, "Print the version and the edition of the codes");
    for (CLI::App* verb : program.get_subcommands({})) {
      verb->set_version_flag("--version", VersionText, "Print the version and the edition of the codes");
    }
    const int status = ParseAndRun(program, arguments, streams);
    streams.output.flush();
    return streams.output.good() || status != 0 ? status
                                                : Fail(streams, "standard output: cannot be written");
  } catch (const std::exception& error) {
    return Fail(streams, error.what());
  } catch (...) {
    return Fail(streams, "unknown error");
  }
}

}  // namespace zwt
