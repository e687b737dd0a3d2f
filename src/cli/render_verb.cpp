// zwtcal render: a picture of a drawing.
#include <memory>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "cli/svg_picture.h"
#include "cli/verbs.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"

namespace zwt {

namespace {

struct RenderOptions {
  std::string drawing;
  std::string file;
  bool paper = false;
};

void CheckExtension(const std::string& file) {
  std::string extension = file.size() < 4 ? "" : file.substr(file.size() - 4);
  for (char& letter : extension) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  if (extension == ".svg") return;
  throw ArgumentError(file +
                      ": expected a name that ends in .svg; zwtcal-desktop --render writes .png and .pdf");
}

std::string Counted(std::size_t count, const char* thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

void Render(const RenderOptions& options, std::ostream& output) {
  CheckExtension(options.file);
  const auto drawing = ReadDrawing(PathFromText(WideFromUtf8(options.drawing)));
  const DisplayList list =
      MakeDisplayList(*drawing, options.paper ? DisplaySpace::Paper : DisplaySpace::Model);
  WriteFileAtomically(PathFromText(WideFromUtf8(options.file)), SvgPicture(list));
  output << options.file << ": " << Counted(list.strokes.size(), "line") << ", "
         << Counted(list.areas.size(), "area") << ", " << Counted(list.texts.size(), "text") << ", "
         << Counted(list.marks.size(), "point");
  if (list.leftOut > 0) output << "; left out as broken: " << list.leftOut;
  output << '\n';
}

}  // namespace

void AddRenderVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("render", "Write a picture of a drawing");
  const auto options = std::make_shared<RenderOptions>();
  verb->add_option("DRAWING", options->drawing, "The DXF file")->required();
  verb->add_option("-o,--output", options->file, "The SVG file to write")->required();
  verb->add_flag("--paper", options->paper, "Show the paper space in place of the model");
  verb->callback([options, streams] { Render(*options, streams.output); });
}

}  // namespace zwt
