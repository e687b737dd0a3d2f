// zwtcal pipes: what the model sees in a drawing, pipe by pipe, and what a designer should look at in it.
#include <cmath>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "cli/json_layout.h"
#include "cli/material_names.h"
#include "cli/text_table.h"
#include "cli/verbs.h"
#include "host/check/drawing_check.h"
#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"
#include "host/platform/paths.h"
#include "host/text/number_text.h"

namespace zwt {

namespace {

using Json = nlohmann::ordered_json;

struct PipesOptions {
  std::string drawing;
  CheckSettings settings;
  bool check = false;
  bool asJson = false;
};

/// One pipe as both outputs show it.
struct PipeLine {
  std::string handle;
  CString system;
  CString role;
  CString material;
  double diameter = 0;  // nominal, mm
  std::int32_t kind = 0;
  double length = 0;  // mm
  AcGePoint3d start;
  AcGePoint3d end;
  FieldList attributes;  // those without a column of their own; of a repeated key the first
  std::vector<std::string> connected;
};

std::string HandleOf(const Drawing& drawing, std::int32_t pipe) {
  return HandleText(drawing.Entity(pipe).handle);
}

bool HasKey(const FieldList& fields, const CString& key) {
  for (const auto& [held, text] : fields) {
    if (held == key) return true;
  }
  return false;
}

FieldList OtherAttributes(const Drawing& drawing, std::int32_t pipe) {
  static const FieldList kColumns = {
      {L"WtSystem", {}}, {L"Material", {}}, {L"Diameter", {}}, {L"Kind", {}}, {L"ELS_TYPE", {}}};
  FieldList attributes;
  for (auto& [key, text] : drawing.Fields(pipe)) {
    if (!HasKey(kColumns, key) && !HasKey(attributes, key)) attributes.emplace_back(key, text);
  }
  return attributes;
}

PipeLine Describe(const Drawing& drawing, std::int32_t pipe) {
  PipeLine line;
  line.handle = HandleOf(drawing, pipe);
  drawing.GetField(pipe, L"WtSystem", line.system);
  drawing.GetField(pipe, L"ELS_TYPE", line.role);
  drawing.GetField(pipe, L"Material", line.material);
  line.diameter = drawing.Diameter(pipe);
  line.kind = drawing.Kind(pipe);
  line.length = drawing.PipeOf(pipe).length;
  line.start = drawing.PipeOf(pipe).start;
  line.end = drawing.PipeOf(pipe).end;
  line.attributes = OtherAttributes(drawing, pipe);
  for (const std::int32_t other : drawing.GetConnections().ConnectedTo(pipe)) {
    line.connected.push_back(HandleOf(drawing, other));
  }
  return line;
}

/// Millimetres for reading eyes: tenths at most.
CString ShortLength(double length) {
  return FormatBound(std::round(length * 10) / 10);
}

std::vector<CString> TableRow(const PipeLine& line) {
  CString attributes;
  for (const auto& [key, text] : line.attributes) {
    if (!attributes.empty()) attributes += L' ';
    attributes += key;
    attributes += L'=';
    attributes += text;
  }
  CString connected;
  for (const std::string& handle : line.connected) {
    if (!connected.empty()) connected += L',';
    connected += WideFromUtf8(handle);
  }
  return {WideFromUtf8(line.handle),
          line.system,
          line.role,
          line.material,
          line.diameter == 0 ? CString() : FormatBound(line.diameter),
          ShortLength(line.length),
          attributes,
          connected};
}

Json PointJson(const AcGePoint3d& point) {
  return Json::array({JsonNumber(point.x), JsonNumber(point.y), JsonNumber(point.z)});
}

Json PipeJson(const PipeLine& line) {
  Json attributes = Json::object();
  for (const auto& [key, text] : line.attributes) attributes[Utf8FromWide(key)] = Utf8FromWide(text);
  return {{"handle", line.handle},
          {"system", Utf8FromWide(line.system)},
          {"role", Utf8FromWide(line.role)},
          {"material", Utf8FromWide(line.material)},
          {"diameter", JsonNumber(line.diameter)},
          {"kind", line.kind},
          {"length", JsonNumber(line.length)},
          {"start", PointJson(line.start)},
          {"end", PointJson(line.end)},
          {"attributes", std::move(attributes)},
          {"connected", line.connected}};
}

void ListPipes(const Drawing& drawing, bool asJson, std::ostream& output) {
  Json list = Json::array();
  std::vector<std::vector<CString>> rows = {
      {L"句柄", L"系统", L"类型", L"管材", L"管径", L"长度", L"属性", L"连接"}};
  for (const std::int32_t pipe : drawing.Pipes()) {
    const PipeLine line = Describe(drawing, pipe);
    if (asJson) {
      list.push_back(PipeJson(line));
    } else {
      rows.push_back(TableRow(line));
    }
  }
  output << (asJson ? LayOutJson({{"pipes", std::move(list)}}) + '\n' : TextTable(rows));
}

CString PlaceText(const AcGePoint3d& place) {
  const auto tenths = [](double number) { return FormatBound(std::round(number * 10) / 10); };
  return L"(" + tenths(place.x) + L", " + tenths(place.y) + L", " + tenths(place.z) + L")";
}

std::string CountLine(std::size_t count) {
  if (count == 0) return "no findings\n";
  return std::to_string(count) + (count == 1 ? " finding\n" : " findings\n");
}

void ListFindings(const std::vector<Finding>& findings, bool asJson, std::ostream& output) {
  Json list = Json::array();
  std::vector<std::vector<CString>> rows;
  for (const Finding& finding : findings) {
    std::vector<std::string> handles;
    handles.reserve(finding.handles.size());
    for (const std::uint64_t handle : finding.handles) handles.push_back(HandleText(handle));
    if (asJson) {
      list.push_back({{"kind", finding.kind},
                      {"text", Utf8FromWide(finding.text)},
                      {"point", PointJson(finding.place)},
                      {"handles", handles}});
    } else {
      rows.push_back({WideFromUtf8(handles.empty() ? "" : handles.front()), WideFromUtf8(finding.kind),
                      PlaceText(finding.place), finding.text});
    }
  }
  if (asJson) {
    output << LayOutJson({{"findings", std::move(list)}, {"count", findings.size()}}) << '\n';
  } else {
    output << TextTable(rows) << CountLine(findings.size());
  }
}

void ShowPipes(const PipesOptions& options, const Streams& streams) {
  const auto drawing = ReadDrawing(PathFromText(WideFromUtf8(options.drawing)));
  if (!options.check) return ListPipes(*drawing, options.asJson, streams.output);
  CheckSettings settings = options.settings;
  settings.materials = MaterialNames();
  ListFindings(CheckDrawing(*drawing, settings), options.asJson, streams.output);
}

}  // namespace

void AddPipesVerb(CLI::App& program, const Streams& streams) {
  CLI::App* verb = program.add_subcommand("pipes", "List the pipes of a drawing with what they connect to");
  const auto options = std::make_shared<PipesOptions>();
  verb->add_option("DRAWING", options->drawing, "The DXF file")->required();
  verb->add_flag("--check", options->check, "List what to look at before calculating instead of the pipes");
  verb->add_option("--guns", options->settings.guns, "Hydrants used together, for --check")
      ->capture_default_str()
      ->check(CLI::Range(0, 1000));
  verb->add_option("--riser-guns", options->settings.gunsOnFirstRiser,
                   "How many of them the farthest riser takes, for --check")
      ->capture_default_str()
      ->check(CLI::Range(0, 1000));
  verb->add_flag("--json", options->asJson, "Print JSON");
  verb->callback([options, streams] { ShowPipes(*options, streams); });
}

}  // namespace zwt
