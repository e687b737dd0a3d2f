// zwtcal run: where script, drawing and folders come from, and where the result goes.
#include <array>
#include <istream>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

#include "cli/json_tree.h"
#include "cli/script_run.h"
#include "cli/verbs.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"

namespace zwt {

namespace {

struct RunOptions {
  std::string script;
  std::string drawing;
  std::string save;
  std::string mainDirectory;
  std::string reportDirectory;
};

/// Reads what a script may have, and a little more where there is more.
std::string ReadStream(std::istream& input) {
  std::string bytes;
  std::array<char, 65536> chunk{};
  while (bytes.size() <= kMaxJsonBytes && input) {
    input.read(chunk.data(), chunk.size());
    bytes.append(chunk.data(), static_cast<std::size_t>(input.gcount()));
  }
  return bytes;
}

std::string ReadScript(const std::string& script, std::istream& input) {
  if (script == "-") return ReadStream(input);
  try {
    return ReadWholeFile(script, kMaxJsonBytes);
  } catch (const FileError& error) {
    throw ScriptError("", error.what());
  }
}

/// An option counts before the script's key; paths in the script count from its folder.
std::optional<RunPath> Choose(const std::string& option, const std::optional<std::string>& key,
                              const std::string& name, const std::filesystem::path& folder) {
  if (!option.empty()) return RunPath{option, "--" + name};
  if (key) return RunPath{folder / *key, PointerTo("", name)};
  return std::nullopt;
}

void Run(const RunOptions& options, const Streams& streams) {
  const RunScript script = ReadRunScript(ReadScript(options.script, streams.input));
  const auto folder = options.script == "-" ? "" : std::filesystem::path(options.script).parent_path();
  RunPaths paths;
  paths.drawing = Choose(options.drawing, script.drawing, "drawing", folder);
  paths.mainDirectory = Choose(options.mainDirectory, script.mainDirectory, "main-dir", folder);
  paths.save = Choose(options.save, script.save, "save", folder);
  paths.reportDirectory = Choose(options.reportDirectory, script.reportDirectory, "report-dir", folder);
  streams.output << PlayScript(script, paths);
}

}  // namespace

void AddRunVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("run", "Play a script and print what happened, as JSON");
  const auto options = std::make_shared<RunOptions>();
  verb->add_option("SCRIPT", options->script, "The script, or - for standard input")->required();
  verb->add_option("--drawing", options->drawing, "The drawing to work on");
  verb->add_option("--save", options->save, "Where the drawing is saved after the last step");
  verb->add_option("--main-dir", options->mainDirectory, "Folder of the data files and templates");
  verb->add_option("--report-dir", options->reportDirectory, "Folder for reports");
  verb->callback([options, streams] { Run(*options, streams); });
}

}  // namespace zwt
