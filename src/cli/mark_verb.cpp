// zwtcal mark: makes drawn lines pipes and sets the attributes of many pipes at once.
#include <algorithm>
#include <memory>
#include <ostream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "cli/verbs.h"
#include "host/drawing/tags.h"
#include "host/dxf/dxf_file.h"
#include "host/editor/pipe_marking.h"
#include "host/platform/paths.h"
#include "host/text/wide_text.h"

namespace zwt {

namespace {

constexpr const char* kProposed = "auto";

struct MarkOptions {
  std::string drawing;
  std::vector<std::string> layers;
  std::vector<std::int32_t> colors;
  std::vector<std::string> handles;
  std::string system;
  std::string role;
  std::string material;
  std::vector<std::string> fields;
  std::string file;
};

/// Hears why a change was refused.
class Refusals : public DrawingObserver {
 public:
  explicit Refusals(Drawing& drawing) : drawing_(drawing) { drawing_.AddObserver(this); }
  Refusals(const Refusals&) = delete;
  Refusals& operator=(const Refusals&) = delete;
  ~Refusals() override { drawing_.RemoveObserver(this); }

  void OnChange(const DrawingChange& /*change*/) override {}
  void OnRefusal(const CString& message) override { last = message; }

  CString last;

 private:
  Drawing& drawing_;
};

/// Names of a few layers, for a message.
std::string SomeLayers(const Drawing& drawing) {
  constexpr std::size_t kFew = 8;
  const std::vector<Layer>& layers = drawing.Data().layers;
  std::string names;
  for (std::size_t i = 0; i < std::min(layers.size(), kFew); ++i) {
    names += (i == 0 ? "" : ", ") + Utf8FromWide(layers[i].name);
  }
  return layers.size() > kFew ? names + ", …" : names;
}

std::int32_t FindLayer(const Drawing& drawing, const std::string& name) {
  const std::vector<Layer>& layers = drawing.Data().layers;
  const CString wanted = FoldedName(WideFromUtf8(name));
  const auto found = std::find_if(layers.begin(), layers.end(),
                                  [&](const Layer& layer) { return FoldedName(layer.name) == wanted; });
  if (found != layers.end()) return static_cast<std::int32_t>(found - layers.begin());
  throw ArgumentError("--layer " + name + ": the drawing has no such layer; it has " + SomeLayers(drawing));
}

std::uint64_t FindLine(const Drawing& drawing, const std::string& text) {
  const std::string option = "--handle " + text + ": ";
  std::uint64_t handle = 0;
  if (!ParseHandle(text, handle)) throw ArgumentError(option + "expected hexadecimal digits, as in 2A");
  const std::int32_t entity = drawing.FindHandle(handle);
  if (entity < 0 || drawing.Entity(entity).inPaperSpace) {
    throw ArgumentError(option + "model space has no entity with this handle");
  }
  if (!CanBePipe(drawing, entity)) {
    const std::string_view type = Trimmed(SplitTags(drawing.Entity(entity).tags).front().value);
    throw ArgumentError(option + std::string(type) + " is no line or polyline");
  }
  return handle;
}

EntityChoice ReadChoice(const Drawing& drawing, const MarkOptions& options) {
  if (options.layers.empty() && options.colors.empty() && options.handles.empty()) {
    throw ArgumentError("--layer, --color or --handle is required: which lines become pipes");
  }
  EntityChoice choice;
  choice.colors = options.colors;
  for (const std::string& layer : options.layers) choice.layers.push_back(FindLayer(drawing, layer));
  for (const std::string& list : options.handles) {
    std::istringstream handles(list);
    for (std::string handle; std::getline(handles, handle, ',');) {
      choice.handles.push_back(FindLine(drawing, handle));
    }
  }
  return choice;
}

/// The text of an option, or a proposal in its place.
void TakeField(PipeMarking& marking, const wchar_t* key, const std::string& text, bool* propose) {
  if (propose != nullptr && text == kProposed) {
    *propose = true;
  } else if (!text.empty()) {
    PutField(marking.fields, key, WideFromUtf8(text));
  }
}

PipeMarking ReadMarking(const MarkOptions& options) {
  PipeMarking marking;
  TakeField(marking, L"WtSystem", options.system, &marking.proposeSystem);
  TakeField(marking, L"ELS_TYPE", options.role, &marking.proposeRole);
  TakeField(marking, L"Material", options.material, nullptr);
  for (const std::string& assignment : options.fields) {
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos || equals == 0) {
      throw ArgumentError("--set " + assignment + ": expected KEY=TEXT, as in Equivalent=4");
    }
    PutField(marking.fields, WideFromUtf8(assignment.substr(0, equals)),
             WideFromUtf8(assignment.substr(equals + 1)));
  }
  return marking;
}

void Mark(const MarkOptions& options, std::ostream& output) {
  const auto drawing = ReadDrawing(PathFromText(WideFromUtf8(options.drawing)));
  const PipeMarking marking = ReadMarking(options);
  const std::vector<std::int32_t> lines = FindLines(*drawing, ReadChoice(*drawing, options));
  if (lines.empty())
    throw ArgumentError("nothing to mark: no line or polyline of model space is all that was asked for");
  const auto alreadyPipes =
      std::count_if(lines.begin(), lines.end(), [&](std::int32_t i) { return drawing->Entity(i).pipe >= 0; });
  const Refusals refusals(*drawing);
  const Acad::ErrorStatus status = MarkPipes(*drawing, lines, marking);
  if (status == Acad::eInvalidInput)
    throw ArgumentError("nothing marked: a line has an odd handle or coordinate");
  if (status != Acad::eOk) throw ArgumentError("nothing marked: " + Utf8FromWide(refusals.last));
  SaveDrawing(*drawing, PathFromText(WideFromUtf8(options.file)));
  output << options.file << ": " << lines.size() << " pipes marked, " << alreadyPipes
         << " of them were pipes before\n";
}

}  // namespace

void AddMarkVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb =
      program.add_subcommand("mark", "Make lines and polylines pipes, and set the attributes of pipes");
  const auto options = std::make_shared<MarkOptions>();
  const auto addList = [verb](const char* name, auto& list, const char* description) {
    return verb->add_option(name, list, description)->allow_extra_args(false);
  };
  verb->add_option("DRAWING", options->drawing, "The DXF file")->required();
  addList("--layer", options->layers, "Lines on this layer; of several any");
  addList("--color", options->colors, "Lines of this colour, 1 to 255; of several any")
      ->check(CLI::Range(1, 255));
  addList("--handle", options->handles, "Lines with these handles, with commas between them");
  verb->add_option("--system", options->system, "System, as in 给水; auto: as the layer's name says");
  verb->add_option("--role", options->role, "Role, as in 立管; auto: as the lines are drawn");
  verb->add_option("--material", options->material, "Pipe material");
  addList("--set", options->fields, "Any attribute, KEY=TEXT");
  verb->add_option("-o,--output", options->file, "The DXF file to write")->required();
  verb->callback([options, streams] { Mark(*options, streams.output); });
}

}  // namespace zwt
