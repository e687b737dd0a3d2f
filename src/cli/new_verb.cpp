// zwtcal new: schematics to start from.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/schematic.h"
#include "cli/verbs.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/paths.h"

namespace zwt {

namespace {

/// What the options of a kind hold.
struct NewOptions {
  RiserSchematic schematic;
  std::vector<std::string> materials;
  std::vector<std::string> branch;
  std::string vent;
  std::string file;
};

/// Takes KEY=TEXT in place of what the schematic has under the key.
void SetBranchField(FieldList& fields, const std::string& assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string::npos || equals == 0) {
    throw ArgumentError("--branch " + assignment + ": expected KEY=TEXT, as in Equivalent=4");
  }
  const CString key = WideFromUtf8(assignment.substr(0, equals));
  const CString text = WideFromUtf8(assignment.substr(equals + 1));
  for (auto& [heldKey, heldText] : fields) {
    if (heldKey != key) continue;
    heldText = text;
    return;
  }
  fields.emplace_back(key, text);
}

void WriteSchematic(NewOptions options, std::ostream& output) {
  RiserSchematic& schematic = options.schematic;
  if (schematic.storeys > kMostSections / schematic.risers) {
    throw ArgumentError("--storeys and --risers: more than " + std::to_string(kMostSections) +
                        " riser sections");
  }
  if (!options.materials.empty()) schematic.materials.clear();
  for (const std::string& material : options.materials) schematic.materials.push_back(WideFromUtf8(material));
  for (const std::string& assignment : options.branch) SetBranchField(schematic.branch, assignment);
  if (!options.vent.empty()) schematic.entry = {{L"TQType", WideFromUtf8(options.vent)}};
  const auto drawing = DrawSchematic(schematic);
  SaveDrawing(*drawing, PathFromText(WideFromUtf8(options.file)));
  output << options.file << ": " << drawing->Pipes().size() << " pipes\n";
}

void AddKind(CLI::App& verb, const Streams& streams, const char* name, const char* description,
             const RiserSchematic& schematic) {
  CLI::App* kind = verb.add_subcommand(name, description);
  const auto options = std::make_shared<NewOptions>();
  options->schematic = schematic;
  kind->add_option("--storeys", options->schematic.storeys, "Number of storeys")
      ->capture_default_str()
      ->check(CLI::Range(1, 1000));
  kind->add_option("--risers", options->schematic.risers, "Number of risers")
      ->capture_default_str()
      ->check(CLI::Range(1, 10000));
  kind->add_option("--height", options->schematic.storeyHeight, "Storey height, mm")
      ->capture_default_str()
      ->check(CLI::Range(500.0, 20000.0));
  kind->add_option("--material", options->materials, "Pipe material; of several each riser takes the next")
      ->allow_extra_args(false);
  kind->add_option("--branch", options->branch, "Attribute of every branch, KEY=TEXT")
      ->allow_extra_args(false);
  if (!schematic.entry.empty()) kind->add_option("--vent", options->vent, "How the stack is vented (TQType)");
  kind->add_option("-o,--output", options->file, "The DXF file to write")->required();
  kind->callback([options, streams] { WriteSchematic(*options, streams.output); });
}

}  // namespace

void AddNewVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("new", "Write a schematic to start from");
  verb->require_subcommand(1);
  AddKind(*verb, streams, "supply", "Supply risers with a branch on every storey", SupplySchematic());
  AddKind(*verb, streams, "drainage", "Drainage stacks with a branch on every storey", DrainageSchematic());
}

}  // namespace zwt
