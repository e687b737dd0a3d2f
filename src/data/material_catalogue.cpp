#include "data/material_catalogue.h"

#include <algorithm>
#include <cstring>

#include "data/xml_text.h"
#include "host/text/number_text.h"

namespace zwt {
namespace {

PipeSize ReadSize(const pugi::xml_node& node) {
  return {.diameter = _wtoi(AttributeText(node, "DN")),
          .inner = _wtof(AttributeText(node, "Inner")),
          .outer = _wtof(AttributeText(node, "Outer"))};
}

PipeMaterial ReadMaterial(const XmlText& text, const pugi::xml_node& node) {
  PipeMaterial material;
  material.name = AttributeText(node, "Name");
  material.prefix = AttributeText(node, "Prefix");
  if (node.attribute("Coefficient")) material.coefficient = _wtof(AttributeText(node, "Coefficient"));
  for (const pugi::xml_node& child : node) {
    if (std::strcmp(child.name(), "Size") != 0 || child.first_child()) text.Refuse(child, "an empty Size");
    material.sizes.push_back(ReadSize(child));
  }
  return material;
}

}  // namespace

std::vector<PipeMaterial> ReadMaterials(std::string_view bytes) {
  const XmlText text(bytes, "Materials");
  std::vector<PipeMaterial> materials;
  for (const pugi::xml_node& node : text.Outer()) {
    if (std::strcmp(node.name(), "Material") != 0) text.Refuse(node, "Material");
    materials.push_back(ReadMaterial(text, node));
  }
  return materials;
}

const PipeMaterial* MaterialCatalogue::Find(const CString& path, const CString& name) {
  if (name.empty()) return nullptr;
  Open(path);
  Refresh();
  const auto found = std::find_if(materials_.begin(), materials_.end(),
                                  [&name](const PipeMaterial& material) { return material.name == name; });
  return found == materials_.end() ? nullptr : &*found;
}

void MaterialCatalogue::Open(const CString& path) {
  if (path == path_) return;
  path_ = path;
  file_ = InstalledFile(path);
  state_.reset();
}

void MaterialCatalogue::Refresh() {
  // The state is taken before the reading: a write in between shows as a change next time.
  const std::optional<FileState> now = file_.SettledState();
  if (now && now == state_) return;
  materials_.clear();
  state_.reset();
  try {
    materials_ = ReadMaterials(file_.Read(kLargestDataFile));
    state_ = now;
  } catch (const std::runtime_error&) {
    // A file that cannot be read holds no materials; the next question tries again.
  }
}

}  // namespace zwt
