// zwtcal new: schematics to start from.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/hydrant_schematic.h"
#include "cli/schematic.h"
#include "cli/verbs.h"
#include "host/drawing/tags.h"
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

void Save(Drawing& drawing, const std::string& file, std::ostream& output) {
  SaveDrawing(drawing, PathFromText(WideFromUtf8(file)));
  output << file << ": " << drawing.Pipes().size() << " pipes\n";
}

/// Throws ArgumentError for more riser sections than are drawn.
void RequireDrawable(std::int32_t storeys, std::int32_t risers) {
  if (storeys > kMostSections / risers) {
    throw ArgumentError("--storeys and --risers: more than " + std::to_string(kMostSections) +
                        " riser sections");
  }
}

void WriteSchematic(NewOptions options, std::ostream& output) {
  RiserSchematic& schematic = options.schematic;
  RequireDrawable(schematic.storeys, schematic.risers);
  if (!options.materials.empty()) schematic.materials.clear();
  for (const std::string& material : options.materials) schematic.materials.push_back(WideFromUtf8(material));
  for (const std::string& assignment : options.branch) SetBranchField(schematic.branch, assignment);
  if (!options.vent.empty()) schematic.entry = {{L"TQType", WideFromUtf8(options.vent)}};
  const auto drawing = DrawSchematic(schematic);
  Save(*drawing, options.file, output);
}

/// The sizes that every kind has.
template <typename Schematic>
void AddSizes(CLI::App& kind, Schematic& schematic, int fewestRisers) {
  kind.add_option("--storeys", schematic.storeys, "Number of storeys")
      ->capture_default_str()
      ->check(CLI::Range(1, 1000));
  kind.add_option("--risers", schematic.risers, "Number of risers")
      ->capture_default_str()
      ->check(CLI::Range(fewestRisers, 10000));
  kind.add_option("--height", schematic.storeyHeight, "Storey height, mm")
      ->capture_default_str()
      ->check(CLI::Range(500.0, 20000.0));
}

void AddKind(CLI::App& verb, const Streams& streams, const char* name, const char* description,
             const RiserSchematic& schematic) {
  CLI::App* kind = verb.add_subcommand(name, description);
  const auto options = std::make_shared<NewOptions>();
  options->schematic = schematic;
  AddSizes(*kind, options->schematic, 1);
  kind->add_option("--material", options->materials, "Pipe material; of several each riser takes the next")
      ->allow_extra_args(false);
  kind->add_option("--branch", options->branch, "Attribute of every branch, KEY=TEXT")
      ->allow_extra_args(false);
  if (!schematic.entry.empty()) kind->add_option("--vent", options->vent, "How the stack is vented (TQType)");
  kind->add_option("-o,--output", options->file, "The DXF file to write")->required();
  kind->callback([options, streams] { WriteSchematic(*options, streams.output); });
}

struct NewHydrantOptions {
  HydrantSchematic schematic;
  std::string material;
  std::string file;
};

void WriteHydrants(NewHydrantOptions options, std::ostream& output) {
  RequireDrawable(options.schematic.storeys, options.schematic.risers);
  if (!options.material.empty()) options.schematic.material = WideFromUtf8(options.material);
  const auto drawing = DrawHydrantSchematic(options.schematic);
  Save(*drawing, options.file, output);
  const std::uint64_t entry = drawing->Entity(drawing->Pipes().front()).handle;
  output << "entered by pipe " << HandleText(entry) << ": zwtcal calc ZWTXFJS " << options.file
         << " --select " << HandleText(entry) << '\n';
}

void AddHydrants(CLI::App& verb, const Streams& streams) {
  CLI::App* kind = verb.add_subcommand("hydrants", "Hydrant risers between a lower and an upper main");
  const auto options = std::make_shared<NewHydrantOptions>();
  constexpr int kFewestOfALoop = 2;
  AddSizes(*kind, options->schematic, kFewestOfALoop);
  kind->add_option("--bay", options->schematic.bay, "Distance of the risers, mm")
      ->capture_default_str()
      ->check(CLI::Range(500.0, 200000.0));
  kind->add_option("--entry", options->schematic.entry, "Length of the main before the first riser, mm")
      ->capture_default_str()
      ->check(CLI::Range(500.0, 1000000.0));
  kind->add_option("--material", options->material, "Pipe material");
  kind->add_option("-o,--output", options->file, "The DXF file to write")->required();
  kind->callback([options, streams] { WriteHydrants(*options, streams.output); });
}

}  // namespace

void AddNewVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("new", "Write a schematic to start from");
  verb->require_subcommand(1);
  AddKind(*verb, streams, "supply", "Supply risers with a branch on every storey", SupplySchematic());
  AddKind(*verb, streams, "drainage", "Drainage stacks with a branch on every storey", DrainageSchematic());
  AddHydrants(*verb, streams);
}

}  // namespace zwt
